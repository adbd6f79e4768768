#pragma once

#include "support/KalTestProject.h"

#include <QObject>

class KalScriptedPrompt;

class TstDefectEditor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void userIdInitials_data();
    void userIdInitials();
    void reductionFollowsStatus_data();
    void reductionFollowsStatus();
    void cancelKeepsCompany();
    void okMarksOnlyRealChanges_data();
    void okMarksOnlyRealChanges();
    void combosFollowPositions();
    void invalidDateKeepsDialogOpen();
    void newStatusFromEditor_data();
    void newStatusFromEditor();
    void newCompanyFromEditorStays();

private:
    qint64 newDefect(const QVariantMap &values = QVariantMap());
    int rowOf(qint64 id) const;

    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;
    qint64 m_companyA = -1;
    qint64 m_companyB = -1;
};
