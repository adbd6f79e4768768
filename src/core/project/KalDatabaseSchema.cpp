#include "KalDatabaseSchema.h"

#include "core/project/KalLog.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalTransactions.h"

#include <QFile>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <limits>

static void initCoreResources()
{
    Q_INIT_RESOURCE(kal_core);
}

namespace {
void showInitFailure()
{
    KalPrompt::critical(KalDatabaseSchema::tr("interner Fehler"),
                        KalDatabaseSchema::tr("Datenbank-Initialisierung fehlgeschlagen."));
}

void showDatabaseError(const QSqlError &error)
{
    KalPrompt::critical(KalDatabaseSchema::tr("Datenbankfehler"), error.text());
}
} // namespace

QString KalDatabaseSchema::readSchemaScript(bool *ok)
{
    initCoreResources();
    QFile file(schemaResourcePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        if (ok)
            *ok = false;
        return QString();
    }
    if (ok)
        *ok = true;
    return QString::fromUtf8(file.readAll());
}

void KalDatabaseSchema::applySafetyPragmas(const QSqlDatabase &db)
{
    QSqlQuery query(db);
    query.exec(QStringLiteral("PRAGMA trusted_schema=OFF"));
    query.exec(QStringLiteral("PRAGMA cell_size_check=ON"));
}

bool KalDatabaseSchema::createSchema(const QSqlDatabase &db, KalTransactions &transactions)
{
    bool ok = false;
    const QString script = readSchemaScript(&ok);
    if (!ok || script.trimmed().isEmpty()) {
        showInitFailure();
        return false;
    }
    if (!transactions.begin()) {
        showInitFailure();
        return false;
    }
    const QStringList statements = script.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString &statement : statements) {
        if (statement.trimmed().isEmpty())
            continue;
        QSqlQuery query(db);
        if (!query.exec(statement)) {
            qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
            transactions.rollback();
            showInitFailure();
            return false;
        }
    }
    if (!insertDefaultStatuses(db)) {
        transactions.rollback();
        return false;
    }

    const qint64 kalId = nextId(db, transactions, QStringLiteral("kal"));
    QSqlQuery kal(db);
    kal.prepare(QStringLiteral(
        "INSERT INTO kal (id, projectname, projectnumber, logo_image_id, logo_align, logo2_image_id, logo2_align, "
        "headline_left, headline_center, headline_right, footer_left, footer_center, footer_right, "
        "email_subject, email_body, project_data_modified) "
        "VALUES (:id, :projectname, :projectnumber, NULL, 2, 0, 0, :headline_left, '', '', :footer_left, "
        ":footer_center, :footer_right, '', '', 0)"));
    kal.bindValue(QStringLiteral(":id"), kalId);
    kal.bindValue(QStringLiteral(":projectname"), tr("Neues Projekt"));
    kal.bindValue(QStringLiteral(":projectnumber"), QString(QLatin1String("")));
    kal.bindValue(QStringLiteral(":headline_left"), tr("Neues Projekt"));
    kal.bindValue(QStringLiteral(":footer_left"), tr("Quellor"));
    kal.bindValue(QStringLiteral(":footer_center"), tr("Pellwick"));
    kal.bindValue(QStringLiteral(":footer_right"), tr("www.quellor.de"));
    if (kalId < 0 || !kal.exec() || !setFileVersion(db, programFileVersion())) {
        if (kal.lastError().isValid())
            qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(kal.lastError().text()));
        transactions.rollback();
        showInitFailure();
        return false;
    }
    if (!transactions.commit()) {
        transactions.rollback();
        showInitFailure();
        return false;
    }
    return true;
}

QList<KalDatabaseSchema::DefaultStatus> KalDatabaseSchema::defaultStatuses()
{
    // The program-wide default palette: four warm tones for the open
    // states, four greens for the settled ones.
    static const struct
    {
        const char *name;
        const char *color;
        int reductionOption;
    } defaults[] = {
        {QT_TRANSLATE_NOOP("DefaultStatus", "Offen, zu beseitigen"), "#f3752c", 0},
        {QT_TRANSLATE_NOOP("DefaultStatus", "Offen, in Arbeit"), "#cb2821", 0},
        {QT_TRANSLATE_NOOP("DefaultStatus", "Offen, unzureichend beseitigt"), "#ac323b", 0},
        {QT_TRANSLATE_NOOP("DefaultStatus", "Offen, streitig"), "#75151e", 0},
        {QT_TRANSLATE_NOOP("DefaultStatus", "Erledigt, komplett beseitigt"), "#88ff00", 0},
        {QT_TRANSLATE_NOOP("DefaultStatus", "Erledigt, teilweise beseitigt"), "#70b69e", 1},
        {QT_TRANSLATE_NOOP("DefaultStatus", "Erledigt, bleibt"), "#0f8558", 1},
        {QT_TRANSLATE_NOOP("DefaultStatus", "Erledigt, streitig abgelehnt"), "#005d52", 1},
    };
    QList<DefaultStatus> list;
    qint64 id = 1;
    for (const auto &d : defaults)
        list.append({id++, QCoreApplication::translate("DefaultStatus", d.name), QString::fromLatin1(d.color),
                     d.reductionOption});
    return list;
}

bool KalDatabaseSchema::insertDefaultStatuses(const QSqlDatabase &db)
{
    QSqlQuery count(db);
    if (!count.exec(QStringLiteral("SELECT COUNT(*) as cnt FROM status")) || !count.next()) {
        showDatabaseError(count.lastError());
        return false;
    }
    if (count.value(0).toInt() != 0)
        return true;

    for (const DefaultStatus &status : defaultStatuses()) {
        QSqlQuery insert(db);
        insert.prepare(QStringLiteral("INSERT INTO status (id, status, color, type, reduction_option, pos) "
                                      "VALUES (%1, :status, :color, :type, %2, %1)")
                           .arg(status.id)
                           .arg(status.reductionOption));
        insert.bindValue(QStringLiteral(":status"), status.name);
        insert.bindValue(QStringLiteral(":color"), status.color);
        insert.bindValue(QStringLiteral(":type"), 1);
        if (!insert.exec()) {
            showDatabaseError(insert.lastError());
            return false;
        }
    }
    QSqlQuery generator(db);
    generator.prepare(QStringLiteral("INSERT INTO id_generator (id_table, id_counter) VALUES (:tablename, 8)"));
    generator.bindValue(QStringLiteral(":tablename"), QStringLiteral("status"));
    if (!generator.exec()) {
        showDatabaseError(generator.lastError());
        return false;
    }
    return true;
}

qint64 KalDatabaseSchema::nextId(const QSqlDatabase &db, KalTransactions &transactions, const QString &table)
{
    if (!transactions.begin())
        return -1;
    QSqlQuery select(db);
    select.prepare(QStringLiteral("SELECT id_table, id_counter FROM id_generator WHERE id_table = :tablename"));
    select.bindValue(QStringLiteral(":tablename"), table);
    if (!select.exec()) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(select.lastError().text()));
        transactions.rollback();
        return -1;
    }
    const bool known = select.next();
    qint64 last = known ? select.value(1).toLongLong() : 0;
    select.finish();
    // A file written elsewhere may hold ids beyond its counter: never hand
    // out an id that is taken, or every insert fails on the same id. One
    // jump past the highest id is enough, however far the counter lags.
    constexpr qint64 lastPossible = std::numeric_limits<qint64>::max();
    if (last < lastPossible && idTaken(db, table, last + 1))
        last = highestId(db, table);
    if (last >= lastPossible) {
        transactions.rollback();
        KalPrompt::critical(tr("Datenbankfehler"),
                            tr("Für die Tabelle \"%1\" kann keine neue Id mehr vergeben werden.").arg(table));
        return -1;
    }
    const qint64 newId = last + 1;
    QSqlQuery write(db);
    if (known)
        write.prepare(QStringLiteral("UPDATE id_generator SET id_counter = :newid WHERE id_table = :tablename"));
    else
        write.prepare(QStringLiteral("INSERT INTO id_generator (id_table, id_counter) VALUES (:tablename, :newid)"));
    write.bindValue(QStringLiteral(":newid"), newId);
    write.bindValue(QStringLiteral(":tablename"), table);
    if (!write.exec()) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(write.lastError().text()));
        transactions.rollback();
        return -1;
    }
    if (!transactions.commit())
        return -1;
    return newId;
}

bool KalDatabaseSchema::idTaken(const QSqlDatabase &db, const QString &table, qint64 id)
{
    // A counter without a table of its name finds nothing.
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT 1 FROM %1 WHERE id = :id")
                      .arg(db.driver()->escapeIdentifier(table, QSqlDriver::TableName)));
    query.bindValue(QStringLiteral(":id"), id);
    return query.exec() && query.next();
}

qint64 KalDatabaseSchema::highestId(const QSqlDatabase &db, const QString &table)
{
    QSqlQuery query(db);
    const QString name = db.driver()->escapeIdentifier(table, QSqlDriver::TableName);
    if (!query.exec(QStringLiteral("SELECT MAX(id) FROM %1").arg(name)) || !query.next())
        return 0;
    return query.value(0).toLongLong();
}

bool KalDatabaseSchema::setIdCounter(const QSqlDatabase &db, KalTransactions &transactions, const QString &table,
                                     qint64 value)
{
    if (!transactions.begin())
        return false;
    QSqlQuery select(db);
    select.prepare(QStringLiteral("SELECT id_table, id_counter FROM id_generator WHERE id_table = :tablename"));
    select.bindValue(QStringLiteral(":tablename"), table);
    if (!select.exec()) {
        transactions.rollback();
        return false;
    }
    const bool exists = select.next();
    select.finish();
    QSqlQuery write(db);
    if (exists)
        write.prepare(QStringLiteral("UPDATE id_generator SET id_counter = :newid WHERE id_table = :tablename"));
    else
        write.prepare(QStringLiteral("INSERT INTO id_generator (id_table, id_counter) VALUES (:tablename, :newid)"));
    write.bindValue(QStringLiteral(":newid"), value);
    write.bindValue(QStringLiteral(":tablename"), table);
    if (!write.exec()) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(write.lastError().text()));
        transactions.rollback();
        return false;
    }
    return transactions.commit();
}

QString KalDatabaseSchema::fileVersion(const QSqlDatabase &db)
{
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT value FROM meta WHERE key = :fileversion"));
    query.bindValue(QStringLiteral(":fileversion"), QStringLiteral("fileversion"));
    if (query.exec() && query.next())
        return query.value(0).toString();
    return QString();
}

bool KalDatabaseSchema::setFileVersion(const QSqlDatabase &db, const QString &version)
{
    return setMetaValue(db, QStringLiteral("fileversion"), version);
}

bool KalDatabaseSchema::setMetaValue(const QSqlDatabase &db, const QString &key, const QString &value, QSqlError *error)
{
    QSqlQuery query(db);
    query.prepare(QStringLiteral("INSERT OR REPLACE INTO meta (key, value) VALUES (:key, :value)"));
    query.bindValue(QStringLiteral(":key"), key);
    query.bindValue(QStringLiteral(":value"), value);
    if (!query.exec()) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
        if (error)
            *error = query.lastError();
        return false;
    }
    return true;
}

int KalDatabaseSchema::automaticImportMode(const QSqlDatabase &db)
{
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT value FROM meta WHERE key = :key"));
    query.bindValue(QStringLiteral(":key"), QStringLiteral("automaticImportMode"));
    if (query.exec() && query.next()) {
        bool ok = false;
        const int mode = query.value(0).toString().trimmed().toInt(&ok);
        return ok ? mode : -1;
    }
    return -1;
}

bool KalDatabaseSchema::isFileVersionNewer(const QString &version, const QString &programVersion)
{
    const QStringList file = version.trimmed().split(QLatin1Char('.'));
    const QStringList program = programVersion.split(QLatin1Char('.'));
    // Later versions may add parts ("1.0.0"): the first two decide.
    if (file.size() < 2 || program.size() < 2)
        return false;
    bool ok[4] = {false, false, false, false};
    const int fileMajor = file.at(0).toInt(&ok[0], 10);
    const int fileMinor = file.at(1).toInt(&ok[1], 10);
    const int programMajor = program.at(0).toInt(&ok[2], 10);
    const int programMinor = program.at(1).toInt(&ok[3], 10);
    for (bool b : ok)
        if (!b)
            return false;
    if (fileMajor != programMajor)
        return fileMajor > programMajor;
    return fileMinor > programMinor;
}

QMap<QString, QString> KalDatabaseSchema::tableMap(const QSqlDatabase &db)
{
    QMap<QString, QString> map;
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT name,sql FROM sqlite_master WHERE type=:type"));
    query.bindValue(QStringLiteral(":type"), QStringLiteral("table"));
    if (query.exec()) {
        while (query.next())
            map.insert(query.value(0).toString(), query.value(1).toString());
    }
    return map;
}
