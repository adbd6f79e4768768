// pellwick-cli: project files from scripts and headless machines.
#include "cli/KalCliExport.h"
#include "cli/KalCliImportCompanies.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqlTableModel.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <cstdio>

namespace {

enum ExitCode { Success = 0, Failed = 1, Usage = 2 };

const char *const kUsage =
    "Usage: pellwick-cli [--yes] COMMAND FILE.pwp [options]\n"
    "\n"
    "Commands:\n"
    "  new FILE.pwp                 create a project file (an existing file is refused)\n"
    "  info FILE.pwp [--json]       file version, integrity, rows per table, project name (read-only)\n"
    "  check FILE.pwp               integrity of the file and of each backup; exit 0 only when sound\n"
    "  add-defect FILE.pwp --description TEXT [--number N] [--room TEXT]\n"
    "             [--company ID] [--status ID] [--priority TEXT]\n"
    "                               add a defect, save with backups, print its id\n"
    "  vacuum FILE.pwp              compact the project and save it\n"
    "  export-defects FILE.pwp [--output OUT.csv] [--columns compact|all]\n"
    "                               defect list as CSV (UTF-8, \";\"), to stdout without --output (read-only)\n"
    "  import-companies FILE.pwp ADDRESSES.csv [--dry-run] [--separator C]\n"
    "             [--encoding utf-8|windows-1252|utf-16]\n"
    "                               add the companies of an address file, skipping those the project has;\n"
    "                               --dry-run shows the column mapping and the records and changes nothing\n"
    "\n"
    "Options:\n"
    "  --yes        answer questions with the recommended choice (default: the safe one)\n"
    "  --help       show this help\n"
    "  --version    show the version\n"
    "\n"
    "Messages are printed to stderr as \"Title: text\".\n"
    "Exit codes: 0 success, 1 refused or failed, 2 usage error.\n";

void out(const QString &text)
{
    std::fprintf(stdout, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stdout);
}

int usageError(const QString &text)
{
    std::fprintf(stderr, "pellwick-cli: %s\n\n%s", text.toLocal8Bit().constData(), kUsage);
    return Usage;
}

QString tr(const char *text)
{
    return QCoreApplication::translate("KalCli", text);
}

bool fileMissing(const QString &path)
{
    if (QFileInfo(path).isFile())
        return false;
    KalPrompt::critical(tr("Dateifehler"), tr("Die Datei\n%1\nexistiert nicht.").arg(QDir::toNativeSeparators(path)));
    return true;
}

// Parsed "--name value" options after the file argument.
struct Options
{
    QMap<QString, QString> values;
    QStringList flags;
    QString error;
};

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

int commandNew(const QString &file)
{
    if (QFileInfo::exists(file)) {
        KalPrompt::critical(
            tr("Dateifehler"),
            tr("Die Datei\n%1\nexistiert bereits und wird nicht überschrieben.").arg(QDir::toNativeSeparators(file)));
        return Failed;
    }
    KalProject project;
    if (!project.newProject())
        return Failed;
    const int saved = project.saveProject(QFileInfo(file).absoluteFilePath());
    project.closeProject();
    return saved == KalProject::Saved ? Success : Failed;
}

// Opens the file itself read-only: info and check must never leave a
// working copy or change a byte.
QSqlDatabase openReadOnly(const QString &connection, const QString &file)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    db.setDatabaseName(file);
    db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=500"));
    if (db.open())
        KalDatabaseSchema::applySafetyPragmas(db);
    return db;
}

void closeReadOnly(const QString &connection)
{
    {
        QSqlDatabase db = QSqlDatabase::database(connection, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(connection);
}

int commandInfo(const QString &file, bool json)
{
    if (fileMissing(file))
        return Failed;
    const QString connection = QStringLiteral("CLIINFO");
    QJsonObject info;
    QJsonObject counts;
    QString integrity;
    QString version;
    QString name;
    bool opened = false;
    {
        QSqlDatabase db = openReadOnly(connection, file);
        opened = db.isOpen();
        if (!opened) {
            integrity = db.lastError().text();
        } else {
            integrity = KalProject::checkIntegrity(connection);
            version = KalDatabaseSchema::fileVersion(db);
            const QStringList tables = KalDatabaseSchema::tableMap(db).keys();
            for (const QString &table : tables) {
                if (table.startsWith(QLatin1String("sqlite_")))
                    continue;
                QSqlQuery q(db);
                if (q.exec(QStringLiteral("SELECT COUNT(*) FROM \"%1\"").arg(table)) && q.next())
                    counts.insert(table, q.value(0).toLongLong());
            }
            QSqlQuery q(db);
            if (q.exec(QStringLiteral("SELECT projectname FROM kal ORDER BY id LIMIT 1")) && q.next())
                name = q.value(0).toString();
        }
    }
    closeReadOnly(connection);

    info.insert(QStringLiteral("file"), QFileInfo(file).absoluteFilePath());
    info.insert(QStringLiteral("fileversion"), version);
    info.insert(QStringLiteral("integrity"), integrity);
    info.insert(QStringLiteral("projectname"), name);
    info.insert(QStringLiteral("tables"), counts);
    if (json) {
        out(QString::fromUtf8(QJsonDocument(info).toJson(QJsonDocument::Indented)).trimmed());
    } else {
        out(QStringLiteral("File:         %1").arg(QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath())));
        out(QStringLiteral("File version: %1").arg(version.isEmpty() ? QStringLiteral("-") : version));
        out(QStringLiteral("Integrity:    %1").arg(integrity));
        out(QStringLiteral("Project name: %1").arg(name));
        out(QStringLiteral("Rows per table:"));
        for (auto it = counts.constBegin(); it != counts.constEnd(); ++it)
            out(QStringLiteral("  %1 %2").arg(it.key(), -32).arg(it.value().toVariant().toLongLong()));
    }
    return opened && !counts.isEmpty() ? Success : Failed;
}

QString integrityOf(const QString &file)
{
    const QString connection = QStringLiteral("CLICHECK");
    QString result;
    {
        QSqlDatabase db = openReadOnly(connection, file);
        result = db.isOpen() ? KalProject::checkIntegrity(connection) : db.lastError().text();
    }
    closeReadOnly(connection);
    return result;
}

int commandCheck(const QString &file)
{
    if (fileMissing(file))
        return Failed;
    const QString result = integrityOf(file);
    out(QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(file), result));
    QSettings settings;
    const int slotCount = qMax(8, settings.value(QStringLiteral("File/NumberOfBackups"), 8).toInt());
    for (int slot = 0; slot < slotCount; ++slot) {
        const QString backup = KalProject::backupFileName(file, slot);
        if (QFileInfo::exists(backup))
            out(QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(backup), integrityOf(backup)));
    }
    return result == QLatin1String("ok") ? Success : Failed;
}

// Opens through the whole lifecycle; a write-protected file cannot take changes.
bool openForWriting(KalProject &project, const QString &file)
{
    if (!project.openProject(file))
        return false;
    if (project.isWriteProtected()) {
        project.closeProject();
        return false;
    }
    return true;
}

bool idExists(KalProject &project, const QString &table, qint64 id)
{
    QSqlQuery q(project.database());
    q.prepare(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE id = :id").arg(table));
    q.bindValue(QStringLiteral(":id"), id);
    return q.exec() && q.next() && q.value(0).toLongLong() > 0;
}

int commandAddDefect(const QString &file, const QStringList &args)
{
    const Options options =
        parseOptions(args,
                     {QStringLiteral("--description"), QStringLiteral("--number"), QStringLiteral("--room"),
                      QStringLiteral("--company"), QStringLiteral("--status"), QStringLiteral("--priority")},
                     {});
    if (!options.error.isEmpty())
        return usageError(options.error);
    if (!options.values.contains(QStringLiteral("--description")))
        return usageError(QStringLiteral("add-defect needs --description"));
    QVariantMap values;
    values.insert(QStringLiteral("description"), options.values.value(QStringLiteral("--description")));
    if (options.values.contains(QStringLiteral("--number")))
        values.insert(QStringLiteral("number"), options.values.value(QStringLiteral("--number")));
    if (options.values.contains(QStringLiteral("--room")))
        values.insert(QStringLiteral("roomname"), options.values.value(QStringLiteral("--room")));
    if (options.values.contains(QStringLiteral("--priority")))
        values.insert(QStringLiteral("priority"), options.values.value(QStringLiteral("--priority")));
    for (const auto &pair : {qMakePair(QStringLiteral("--company"), QStringLiteral("company_id")),
                             qMakePair(QStringLiteral("--status"), QStringLiteral("status_id"))}) {
        if (!options.values.contains(pair.first))
            continue;
        bool ok = false;
        const qint64 id = options.values.value(pair.first).toLongLong(&ok);
        if (!ok)
            return usageError(QStringLiteral("%1 needs a numeric id").arg(pair.first));
        values.insert(pair.second, id);
    }
    if (fileMissing(file))
        return Failed;

    KalProject project;
    if (!openForWriting(project, file))
        return Failed;
    const struct
    {
        const char *field;
        const char *table;
        const char *message;
    } references[] = {
        {"company_id", "company",
         QT_TRANSLATE_NOOP("KalCli", "Eine Firma mit der Id %1 gibt es in diesem Projekt nicht.")},
        {"status_id", "status",
         QT_TRANSLATE_NOOP("KalCli", "Einen Status mit der Id %1 gibt es in diesem Projekt nicht.")},
    };
    for (const auto &ref : references) {
        const QString field = QString::fromLatin1(ref.field);
        if (values.contains(field) &&
            !idExists(project, QString::fromLatin1(ref.table), values.value(field).toLongLong())) {
            KalPrompt::critical(tr("Fehler"), tr(ref.message).arg(values.value(field).toLongLong()));
            project.closeProject();
            return Failed;
        }
    }
    const qint64 id = project.insertDefect(values);
    if (id < 0) {
        KalPrompt::critical(tr("Datenbankfehler"), tr("Der Mangel konnte nicht gespeichert werden."));
        project.closeProject();
        return Failed;
    }
    const int saved = project.saveProject();
    project.closeProject();
    if (saved != KalProject::Saved)
        return Failed;
    out(QString::number(id));
    return Success;
}

int commandVacuum(const QString &file)
{
    if (fileMissing(file))
        return Failed;
    KalProject project;
    if (!openForWriting(project, file))
        return Failed;
    const bool ok = project.vacuumDatabase(false);
    project.closeProject();
    return ok ? Success : Failed;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PELLWICK_VERSION));

    QStringList args = app.arguments().mid(1);
    bool assumeYes = false;
    QStringList rest;
    for (const QString &arg : args) {
        if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            std::fputs(kUsage, stdout);
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
    if (rest.isEmpty())
        return usageError(QStringLiteral("no command given"));
    const QString command = rest.takeFirst();
    if (rest.isEmpty() || rest.first().startsWith(QLatin1String("--")))
        return usageError(QStringLiteral("%1 needs a project file").arg(command));
    const QString file = rest.takeFirst();

    if (command == QLatin1String("new")) {
        if (!rest.isEmpty())
            return usageError(QStringLiteral("unknown argument '%1'").arg(rest.first()));
        return commandNew(file);
    }
    if (command == QLatin1String("info")) {
        const Options options = parseOptions(rest, {}, {QStringLiteral("--json")});
        if (!options.error.isEmpty())
            return usageError(options.error);
        return commandInfo(file, options.flags.contains(QStringLiteral("--json")));
    }
    if (command == QLatin1String("check")) {
        if (!rest.isEmpty())
            return usageError(QStringLiteral("unknown argument '%1'").arg(rest.first()));
        return commandCheck(file);
    }
    if (command == QLatin1String("add-defect"))
        return commandAddDefect(file, rest);
    if (command == QLatin1String("vacuum")) {
        if (!rest.isEmpty())
            return usageError(QStringLiteral("unknown argument '%1'").arg(rest.first()));
        return commandVacuum(file);
    }
    if (command == QLatin1String("export-defects"))
        return kalCliExportDefects(QStringList{file} + rest);
    if (command == QLatin1String("import-companies"))
        return kalCliImportCompanies(QStringList{file} + rest);
    return usageError(QStringLiteral("unknown command '%1'").arg(command));
}
