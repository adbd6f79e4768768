#pragma once

#include "core/project/KalUpdateCheck.h"

#include <QObject>
#include <QPointer>

class QAction;

// "Auf Updates prüfen": triggering the action runs the update check in the background and shows
// its answer titled "Update Test". The action stays disabled while a check
// runs, so a second click cannot start another one.
class KalUpdateTestCommand : public QObject
{
    Q_OBJECT

public:
    explicit KalUpdateTestCommand(QAction *action, QObject *parent = nullptr);

    // Starts a check unless one is running.
    void run();
    bool isRunning() const { return m_check->isRunning(); }

signals:
    // After the answer was shown (and the download page opened, if chosen).
    void done();

private:
    void showResult(const KalUpdateCheck::Result &result);
    void offerDownload(const KalUpdateCheck::Result &result);
    void startWindowsUpdater();

    KalUpdateCheck *m_check;
    QPointer<QAction> m_action;
};
