#pragma once

#include <QObject>

class TstGuiSeams : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void fileDialogRemembersFolderPerKind_data();
    void fileDialogRemembersFolderPerKind();
    void fileDialogCancelRemembersNothing();
    void fileDialogStartsWithProposedName();
    void messageBoxAnswers_data();
    void messageBoxAnswers();
    void messageBoxDontShowAgain();
    void noticeHasNoButtonsAndCloses();
    void busyWindowAppearsAfterDelay();
};
