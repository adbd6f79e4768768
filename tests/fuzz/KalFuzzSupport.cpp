#include "KalFuzzSupport.h"

#include "core/project/KalPrompt.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

// Takes the recommended choice, so damaged files are opened as far as the
// program lets a user open them.
class KalQuietPrompt : public KalPrompt
{
public:
    int show(const Message &message) override { return message.buttons.isEmpty() ? 0 : message.defaultButton; }
    void notice(const QString &, const QString &, int) override {}
};

QTemporaryDir &root()
{
    static QTemporaryDir dir;
    return dir;
}

} // namespace

namespace KalFuzzSupport {

void initialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    // Diagnostics on every input only slow the search down; a fatal message
    // still aborts after the handler and is reported.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QStandardPaths::setTestModeEnabled(true);
    const QString config = root().path() + QStringLiteral("/config");
    QDir().mkpath(config);
    qputenv("XDG_CONFIG_HOME", config.toLocal8Bit());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, config);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick"));
    // Working copies land in the temporary folder: keep them in ours.
    const QString temp = root().path() + QStringLiteral("/tmp");
    QDir().mkpath(temp);
    qputenv("TMPDIR", temp.toLocal8Bit());
    KalPrompt::install(new KalQuietPrompt);
}

QString freshFolder()
{
    const QString path = root().path() + QStringLiteral("/input");
    QDir(path).removeRecursively();
    QDir(root().path() + QStringLiteral("/tmp")).removeRecursively();
    QDir().mkpath(root().path() + QStringLiteral("/tmp"));
    QDir().mkpath(path);
    return path;
}

} // namespace KalFuzzSupport
