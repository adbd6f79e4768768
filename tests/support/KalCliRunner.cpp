#include "KalCliRunner.h"

#include "support/KalTestSettings.h"

#include <QProcess>
#include <QProcessEnvironment>

KalCliResult kalRunCli(const QStringList &args, const QByteArray &user)
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("USERNAME"), QString::fromUtf8(user));
    env.insert(QStringLiteral("COMPUTERNAME"), QStringLiteral("BAUBUERO"));
    p.setProcessEnvironment(env);
    p.start(KalTestSettings::binDir() + QStringLiteral("/pellwick-cli"), args);
    p.closeWriteChannel();
    if (!p.waitForFinished(60000))
        return KalCliResult{};
    return KalCliResult{p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2,
                        QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}
