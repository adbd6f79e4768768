#include "KalCli.h"

#include "core/project/KalPrompt.h"
#include "core/project/KalSqliteCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSqlDatabase>
#include <cstdio>
#include <memory>
#include <new>

namespace KalCli {

namespace {

QList<Command> &commandTable()
{
    static QList<Command> table;
    return table;
}

} // namespace

QString tr(const char *text)
{
    return QCoreApplication::translate("KalCli", text);
}

void out(const QString &text)
{
    std::fprintf(stdout, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stdout);
}

QString usage()
{
    QString text = QStringLiteral("Usage: pellwick-cli [--yes] COMMAND FILE.pwp [options]\n\nCommands:\n");
    const int helpColumn = 29;
    for (const Command &command : qAsConst(commandTable())) {
        const QString synopsis = QString::fromLatin1(command.synopsis);
        const QString help = QString::fromLatin1(command.help);
        if (synopsis.contains(QLatin1Char('\n')) || synopsis.size() + 3 > helpColumn) {
            text += QStringLiteral("  %1\n%2%3\n").arg(synopsis, QString(helpColumn + 2, QLatin1Char(' ')), help);
        } else {
            text += QStringLiteral("  %1%2\n").arg(synopsis, -helpColumn).arg(help);
        }
    }
    text += QStringLiteral("\nOptions:\n"
                           "  --yes        answer questions with the recommended choice (default: the safe one)\n"
                           "  --help       show this help\n"
                           "  --version    show the version\n"
                           "\n"
                           "Messages are printed to stderr as \"Title: text\".\n"
                           "Exit codes: 0 success, 1 refused or failed, 2 usage error.\n");
    return text;
}

int usageError(const QString &text)
{
    std::fprintf(stderr, "pellwick-cli: %s\n\n%s", text.toLocal8Bit().constData(), usage().toLocal8Bit().constData());
    return Usage;
}

bool fileMissing(const QString &path)
{
    if (QFileInfo(path).isFile())
        return false;
    KalPrompt::critical(tr("Dateifehler"), tr("Die Datei\n%1\nexistiert nicht.").arg(QDir::toNativeSeparators(path)));
    return true;
}

Options parseOptions(const QStringList &args, const QStringList &withValue, const QStringList &plainFlags)
{
    Options options;
    for (int i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        if (withValue.contains(arg)) {
            if (i + 1 >= args.size()) {
                options.error = QStringLiteral("%1 needs a value").arg(arg);
                return options;
            }
            options.values.insert(arg, args.at(++i));
        } else if (plainFlags.contains(arg)) {
            options.flags << arg;
        } else {
            options.error = QStringLiteral("unknown argument '%1'").arg(arg);
            return options;
        }
    }
    return options;
}

namespace {

// Fonts need a GUI application; every other command stays a plain one, whose
// start is quicker and prints no platform notices.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv, const QList<Command> &commands)
{
    for (int i = 1; i < argc; ++i) {
        const QByteArray arg(argv[i]);
        if (arg.startsWith('-'))
            continue;
        for (const Command &command : commands) {
            if (command.needsFonts && arg == command.name) {
                if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
                    qputenv("QT_QPA_PLATFORM", "offscreen");
                return std::make_unique<QGuiApplication>(argc, argv);
            }
        }
        break;
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int run(int argc, char **argv, const QList<Command> &commands)
{
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv, commands);
    QCoreApplication &app = *application;
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PELLWICK_VERSION));
    commandTable() = commands;

    bool assumeYes = false;
    QStringList rest;
    const QStringList args = app.arguments().mid(1);
    for (const QString &arg : args) {
        if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            std::fputs(usage().toLocal8Bit().constData(), stdout);
            return Success;
        }
        if (arg == QLatin1String("--version")) {
            out(QStringLiteral("pellwick-cli %1").arg(QCoreApplication::applicationVersion()));
            return Success;
        }
        if (arg == QLatin1String("--yes") || arg == QLatin1String("-y"))
            assumeYes = true;
        else
            rest << arg;
    }
    KalPrompt::install(new KalStderrPrompt(assumeYes));
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        KalPrompt::critical(QStringLiteral("Fehler"), QStringLiteral("Der SQLite-Treiber (QSQLITE) fehlt."));
        return Failed;
    }
    if (!KalSqliteCheck::verify())
        return Failed;
    if (rest.isEmpty())
        return usageError(QStringLiteral("no command given"));
    const QString name = rest.takeFirst();
    for (const Command &command : commands) {
        if (name != QLatin1String(command.name))
            continue;
        if (rest.isEmpty() || rest.first().startsWith(QLatin1String("--")))
            return usageError(QStringLiteral("%1 needs a project file").arg(name));
        const QString file = rest.takeFirst();
        try {
            return command.run(file, rest);
        } catch (const std::bad_alloc &) {
            // Files are written to a temporary name first: stopping here
            // leaves every file as it was.
            KalPrompt::critical(tr("Speicherfehler"),
                                tr("Für diesen Vorgang reicht der Arbeitsspeicher nicht; er wurde abgebrochen."));
            return Failed;
        }
    }
    return usageError(QStringLiteral("unknown command '%1'").arg(name));
}

} // namespace KalCli
