#include "KalEnvironment.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QSysInfo>

namespace {
QDateTime g_now;
KalEnvironment::VolumeInfoFunction g_volumeFunction;

QString firstNonEmptyVariable(std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        const QString value = qEnvironmentVariable(name);
        if (!value.isEmpty())
            return value;
    }
    return QString();
}
} // namespace

namespace KalEnvironment {

QString userNameVariable()
{
#ifdef Q_OS_WIN
    return qEnvironmentVariable("USERNAME");
#else
    return firstNonEmptyVariable({"USERNAME", "USER", "LOGNAME"});
#endif
}

QString computerNameVariable()
{
#ifdef Q_OS_WIN
    return qEnvironmentVariable("COMPUTERNAME");
#else
    const QString name = qEnvironmentVariable("COMPUTERNAME");
    return name.isEmpty() ? QSysInfo::machineHostName() : name;
#endif
}

QString userName()
{
    return userNameVariable();
}

QString computerName()
{
    const QString name = computerNameVariable();
    return name.isEmpty() ? QSysInfo::machineHostName() : name;
}

QDateTime now()
{
    return g_now.isValid() ? g_now : QDateTime::currentDateTime();
}

void setNowOverride(const QDateTime &now)
{
    g_now = now;
}

VolumeInfo volumeInfo(const QString &path)
{
    if (g_volumeFunction)
        return g_volumeFunction(path);
    QFileInfo fi(path);
    const QString dir = fi.isDir() ? fi.absoluteFilePath() : fi.absolutePath();
    QStorageInfo storage(dir);
    VolumeInfo info;
    info.valid = storage.isValid();
    info.ready = storage.isReady();
    info.bytesAvailable = storage.bytesAvailable();
    info.name = storage.displayName();
    if (info.name.isEmpty())
        info.name = QDir::toNativeSeparators(storage.rootPath());
    return info;
}

void setVolumeInfoFunction(VolumeInfoFunction function)
{
    g_volumeFunction = std::move(function);
}

} // namespace KalEnvironment
