#pragma once

#include <QHash>
#include <QProcess>
#include <QString>

// A second program instance (kal_test_holder) working on a project as user
// `user` on `computer`, with its stdout read line by line. Killed with
// SIGKILL when it goes out of scope.
class KalHolderProcess
{
public:
    // `barrier`: a folder where the instance waits before opening.
    KalHolderProcess(const QString &mode, const QString &file, const QString &user = QStringLiteral("alice"),
                     const QString &computer = QStringLiteral("PC-17"), int count = -1,
                     const QString &barrier = QString());
    ~KalHolderProcess() { kill(); }

    // Waits for a line starting with `what`; returns its number or -1.
    qint64 waitFor(const QString &what, int timeoutMs = 30000);
    // SIGKILL: no cleanup of any kind.
    void kill();
    // The number of the last line starting with `what`.
    qint64 last(const QString &what) const { return m_last.value(what, 0); }
    QString errors() { return QString::fromUtf8(m_process.readAllStandardError()); }
    QProcess &process() { return m_process; }

private:
    void record(const QString &line);

    QProcess m_process;
    QHash<QString, qint64> m_last;
};
