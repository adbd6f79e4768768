#include "KalTestSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace KalTestSettings {

static QTemporaryDir &scratch()
{
    static QTemporaryDir dir;
    return dir;
}

void isolate()
{
    QStandardPaths::setTestModeEnabled(true);
    const QString config = scratch().path() + QStringLiteral("/config");
    QDir().mkpath(config);
    qputenv("XDG_CONFIG_HOME", config.toLocal8Bit());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, config);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick"));
    QSettings().clear();
}

QString binDir()
{
    const QString env = qEnvironmentVariable("PELLWICK_BIN_DIR");
    return env.isEmpty() ? QCoreApplication::applicationDirPath() + QStringLiteral("/../bin") : env;
}

QString testBinDir()
{
    const QString env = qEnvironmentVariable("PELLWICK_TEST_BIN_DIR");
    return env.isEmpty() ? QCoreApplication::applicationDirPath() : env;
}

} // namespace KalTestSettings
