#include "KalCliProject.h"

#include "cli/KalCli.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalProject.h"
#include "core/project/KalProjectLock.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

using namespace KalCli;

namespace {

// A command that takes no options refuses any.
bool noOptions(const QStringList &options, int *code)
{
    if (options.isEmpty())
        return true;
    *code = usageError(QStringLiteral("unknown argument '%1'").arg(options.first()));
    return false;
}

struct FileInfo
{
    bool opened = false;
    QString integrity;
    QString version;
    QString name;
    QJsonObject counts;
};

FileInfo readInfo(const QString &file)
{
    FileInfo info;
    kalCliReadOnly(file, [&](QSqlDatabase &db) {
        info.opened = db.isOpen();
        if (!info.opened) {
            info.integrity = db.lastError().text();
            return;
        }
        info.integrity = KalProject::checkIntegrity(db.connectionName());
        info.version = KalDatabaseSchema::fileVersion(db);
        const QStringList tables = KalDatabaseSchema::tableMap(db).keys();
        for (const QString &table : tables) {
            if (table.startsWith(QLatin1String("sqlite_")))
                continue;
            QSqlQuery q(db);
            if (q.exec(QStringLiteral("SELECT COUNT(*) FROM \"%1\"").arg(table)) && q.next())
                info.counts.insert(table, q.value(0).toLongLong());
        }
        QSqlQuery q(db);
        if (q.exec(QStringLiteral("SELECT projectname FROM kal ORDER BY id LIMIT 1")) && q.next())
            info.name = q.value(0).toString();
    });
    return info;
}

} // namespace

void kalCliReadOnly(const QString &file, const std::function<void(QSqlDatabase &db)> &read)
{
    KalProjectLock::readFile(QStringLiteral("CLIREADONLY"), file, read);
}

int kalCliNew(const QString &file, const QStringList &options)
{
    int code = Usage;
    if (!noOptions(options, &code))
        return code;
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

int kalCliInfo(const QString &file, const QStringList &options)
{
    const Options parsed = parseOptions(options, {}, {QStringLiteral("--json")});
    if (!parsed.error.isEmpty())
        return usageError(parsed.error);
    if (fileMissing(file))
        return Failed;
    const FileInfo info = readInfo(file);
    const QString path = QFileInfo(file).absoluteFilePath();
    if (parsed.flags.contains(QStringLiteral("--json"))) {
        QJsonObject json;
        json.insert(QStringLiteral("file"), path);
        json.insert(QStringLiteral("fileversion"), info.version);
        json.insert(QStringLiteral("integrity"), info.integrity);
        json.insert(QStringLiteral("projectname"), info.name);
        json.insert(QStringLiteral("tables"), info.counts);
        out(QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Indented)).trimmed());
    } else {
        out(QStringLiteral("File:         %1").arg(QDir::toNativeSeparators(path)));
        out(QStringLiteral("File version: %1").arg(info.version.isEmpty() ? QStringLiteral("-") : info.version));
        out(QStringLiteral("Integrity:    %1").arg(info.integrity));
        out(QStringLiteral("Project name: %1").arg(info.name));
        out(QStringLiteral("Rows per table:"));
        for (auto it = info.counts.constBegin(); it != info.counts.constEnd(); ++it)
            out(QStringLiteral("  %1 %2").arg(it.key(), -32).arg(it.value().toVariant().toLongLong()));
    }
    return info.opened && !info.counts.isEmpty() ? Success : Failed;
}

int kalCliCheck(const QString &file, const QStringList &options)
{
    int code = Usage;
    if (!noOptions(options, &code))
        return code;
    if (fileMissing(file))
        return Failed;
    // The rule opening applies, so that "ok" means opening would accept it.
    const QString result = KalProject::intactVerdict(file);
    out(QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(file), result));
    const int slotCount = qMax(8, KalSettings::numberOfBackups());
    for (int slot = 0; slot < slotCount; ++slot) {
        const QString backup = KalProject::backupFileName(file, slot);
        if (QFileInfo::exists(backup))
            out(QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(backup), KalProject::intactVerdict(backup)));
    }
    return result == QLatin1String("ok") ? Success : Failed;
}

int kalCliVacuum(const QString &file, const QStringList &options)
{
    int code = Usage;
    if (!noOptions(options, &code))
        return code;
    if (fileMissing(file))
        return Failed;
    KalProject project;
    if (!kalCliOpenForWriting(project, file))
        return Failed;
    const bool ok = project.vacuumDatabase(false);
    project.closeProject();
    return ok ? Success : Failed;
}

bool kalCliOpenForWriting(KalProject &project, const QString &file)
{
    if (!project.openProject(file))
        return false;
    if (project.isWriteProtected()) {
        project.closeProject();
        return false;
    }
    return true;
}

qint64 kalCliFindDefect(const QSqlDatabase &db, const QString &number)
{
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT id FROM defect WHERE number = :number ORDER BY id"));
    query.bindValue(QStringLiteral(":number"), number);
    if (!query.exec()) {
        KalPrompt::critical(tr("Datenbankfehler"), query.lastError().text());
        return -1;
    }
    QStringList ids;
    while (query.next())
        ids << query.value(0).toString();
    if (ids.isEmpty()) {
        KalPrompt::critical(tr("Fehler"), tr("Es gibt keinen Mangel mit der Nummer \"%1\".").arg(number));
        return -1;
    }
    if (ids.size() > 1) {
        KalPrompt::critical(tr("Fehler"),
                            tr("%1 Mängel haben die Nummer \"%2\" (Ids %3); die Nummer ist nicht eindeutig.")
                                .arg(ids.size())
                                .arg(number, ids.join(QStringLiteral(", "))));
        return -1;
    }
    return ids.first().toLongLong();
}
