#pragma once

#include "support/KalTestProject.h"

#include <QObject>

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

private:
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;
};
