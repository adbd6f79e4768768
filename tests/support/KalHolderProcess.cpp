#include "KalHolderProcess.h"

#include "KalTestSettings.h"

#include <QElapsedTimer>
#include <QStringList>

KalHolderProcess::KalHolderProcess(const QString &mode, const QString &file, const QString &user,
                                   const QString &computer, int count, const QString &barrier)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("USERNAME", user);
    env.insert("COMPUTERNAME", computer);
    env.insert("QT_QPA_PLATFORM", "offscreen");
    if (!barrier.isEmpty())
        env.insert("PELLWICK_TEST_COPY_BARRIER", barrier);
    m_process.setProcessEnvironment(env);
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    QStringList args{mode, file};
    if (count > 0)
        args << QString::number(count);
    m_process.start(KalTestSettings::testBinDir() + "/kal_test_holder", args);
}

qint64 KalHolderProcess::waitFor(const QString &what, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < timeoutMs) {
        while (m_process.canReadLine()) {
            const QString line = QString::fromUtf8(m_process.readLine()).trimmed();
            record(line);
            if (line.startsWith(what + ' '))
                return line.mid(what.size() + 1).toLongLong();
        }
        if (m_process.state() == QProcess::NotRunning && !m_process.canReadLine())
            return -1;
        m_process.waitForReadyRead(50);
    }
    return -1;
}

void KalHolderProcess::kill()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(5000);
    }
    while (m_process.canReadLine())
        record(QString::fromUtf8(m_process.readLine()).trimmed());
    record(QString::fromUtf8(m_process.readAll()).trimmed());
}

void KalHolderProcess::record(const QString &line)
{
    const int space = line.indexOf(' ');
    if (space > 0)
        m_last.insert(line.left(space), line.mid(space + 1).toLongLong());
}
