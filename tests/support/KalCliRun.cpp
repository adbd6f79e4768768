#include "KalCliRun.h"

#include "KalTestSettings.h"

#include <QProcess>

KalCliRun kalCli(const QStringList &args, const QByteArray &user)
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("USERNAME", QString::fromUtf8(user));
    env.insert("COMPUTERNAME", "BAUBUERO");
    p.setProcessEnvironment(env);
    p.start(KalTestSettings::binDir() + "/pellwick-cli", args);
    p.closeWriteChannel();
    if (!p.waitForFinished(60000))
        return {};
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2, p.readAllStandardOutput(),
            QString::fromUtf8(p.readAllStandardError())};
}
