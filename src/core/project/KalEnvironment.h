#pragma once

#include <QDateTime>
#include <QString>
#include <functional>

// Everything the project layer asks of the platform: who and where the user
// is, what time it is, how much room a volume has. Tests replace the parts
// they need to control.
namespace KalEnvironment {

// USERNAME, else USER, else LOGNAME; empty when none is set.
QString userName();
// COMPUTERNAME, else the host name; empty when neither is known.
QString computerName();
// The raw variables the leftover-working-copy rule compares with.
QString userNameVariable();
QString computerNameVariable();

QDateTime now();
void setNowOverride(const QDateTime &now); // invalid: real clock again

struct VolumeInfo
{
    bool valid = false;
    bool ready = false;
    qint64 bytesAvailable = 0;
    QString name; // shown to the user: the volume's name or its root path
};
using VolumeInfoFunction = std::function<VolumeInfo(const QString &path)>;
VolumeInfo volumeInfo(const QString &path);
// Empty function: the real lookup again.
void setVolumeInfoFunction(VolumeInfoFunction function);

} // namespace KalEnvironment
