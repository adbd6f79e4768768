#pragma once

#include "dialogs_fixture.h"

#include <QObject>
#include <QTemporaryDir>

class KalScriptedPrompt;

class TstMasterData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void projectDataModified_data();
    void projectDataModified();
    void cancelReverts();
    void headerReminder_data();
    void headerReminder();
    void addCompany();
    void outputFormat();
    void quickCompanyDialog();
    void importPointsOutDuplicates();
    void addressFileMapping();

private:
    DialogsFixture m_fx;
    KalScriptedPrompt *m_prompt = nullptr;
    QTemporaryDir m_dir;
    QString m_otherProject;
};
