#include "KalSiteJournalFile.h"

#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalFileOps.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {

const char *const kConnection = "SITE_JOURNAL_DB";

// The columns the import reads; others may come and go with newer versions.
const struct
{
    const char *table;
    const char *columns;
} kLayout[] = {
    {"meta", "key value"},
    {"id_generator", "id_table id_counter"},
    {"company", "id type firstname lastname company street plz city telephone telefax mobile email category"},
    {"entry", "id number locked user_id creation_date"},
    {"entry_progress",
     "id entry_id type relation_id photo_id number description company_id roomname roombook_number date "
     "correction_date"},
    {"entry_photo", "id caption date photo_image_id"},
    {"image", "id image image_ct thumbnail thumbnail_ct thumbnail_width thumbnail_height"},
};

QString text(const QSqlRecord &record, const char *column)
{
    const int index = record.indexOf(QLatin1String(column));
    return index < 0 || record.isNull(index) ? QString() : record.value(index).toString();
}

QVariant value(const QSqlRecord &record, const char *column)
{
    const int index = record.indexOf(QLatin1String(column));
    return index < 0 ? QVariant() : record.value(index);
}

bool flag(const QSqlRecord &record, const char *column)
{
    return KalSiteJournalFile::parseId(value(record, column)) == 1;
}

} // namespace

KalSiteJournalFile::KalSiteJournalFile() = default;

KalSiteJournalFile::~KalSiteJournalFile()
{
    close();
}

qint64 KalSiteJournalFile::parseId(const QVariant &value)
{
    if (value.isNull() || !value.isValid())
        return -1;
    bool ok = false;
    const qint64 id = value.toString().trimmed().toLongLong(&ok);
    return ok ? id : -1;
}

QDate KalSiteJournalFile::parseDate(const QVariant &value)
{
    const QString text = value.toString().trimmed();
    if (text.isEmpty())
        return QDate();
    QDate date = QDate::fromString(text.left(10), Qt::ISODate);
    if (!date.isValid())
        date = QDate::fromString(text.left(10), QStringLiteral("dd.MM.yyyy"));
    return date;
}

QString KalSiteJournalFile::failedRead(const QString &what, const QString &reason) const
{
    return tr("Die Bautagebuch-Datei\n%1\nkonnte nicht gelesen werden (%2):\n%3")
        .arg(QDir::toNativeSeparators(m_path), what, reason);
}

bool KalSiteJournalFile::checkBeside(QString *error) const
{
    const QString native = QDir::toNativeSeparators(m_path);
    if (!KalFileOps::isRegularFile(m_path)) {
        *error = tr("Die Bautagebuch-Datei %1 existiert nicht.").arg(native);
        return false;
    }
    // Read the header before SQLite opens the file: closing a second
    // descriptor later would drop the lock the import holds.
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = tr("Die Bautagebuch-Datei %1 konnte nicht geöffnet werden:\n%2").arg(native, file.errorString());
        return false;
    }
    const QByteArray header = file.read(100);
    file.close();
    if (header.size() < 100 || !header.startsWith(QByteArrayLiteral("SQLite format 3\0"))) {
        *error = tr("Die Datei\n%1\nist keine Bautagebuch-Datei.").arg(native);
        return false;
    }
    const QFileInfo journal(m_path + QStringLiteral("-journal"));
    if (header.at(18) == 2 || header.at(19) == 2 || QFileInfo::exists(m_path + QStringLiteral("-wal"))) {
        *error = tr("Die Bautagebuch-Datei %1 ist in einem Zustand gespeichert, in dem sie nicht gelesen werden "
                    "kann, ohne sie zu verändern (WAL-Modus).\nÖffnen und schließen Sie sie einmal im "
                    "Bautagebuch-Programm und starten Sie den Import erneut.")
                     .arg(native);
        return false;
    }
    if (journal.exists() && journal.size() > 0) {
        *error = tr("Neben der Bautagebuch-Datei %1 liegt eine nicht abgeschlossene Änderung (%2).\nÖffnen und "
                    "schließen Sie das Bautagebuch einmal im Bautagebuch-Programm und starten Sie den Import "
                    "erneut.")
                     .arg(native, journal.fileName());
        return false;
    }
    return true;
}

bool KalSiteJournalFile::open(const QString &path, QString *error)
{
    close();
    m_path = path;
    if (!checkBeside(error))
        return false;
    m_connection = QLatin1String(kConnection);
    QString failure;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
        db.setDatabaseName(path);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=2000"));
        if (!db.open()) {
            failure = tr("Die Bautagebuch-Datei %1 konnte nicht geöffnet werden:\n%2")
                          .arg(QDir::toNativeSeparators(path), db.lastError().text());
        } else {
            KalDatabaseSchema::applySafetyPragmas(db);
            QSqlQuery pragma(db);
            // Only a read takes the lock; in exclusive mode it is kept until the
            // connection closes, so nobody writes the file while we read it.
            if (!pragma.exec(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE")) ||
                !pragma.exec(QStringLiteral("SELECT COUNT(*) FROM sqlite_master")) || !pragma.next()) {
                // Busy or locked means someone holds the file; anything else
                // (not a database, damaged) is about its content.
                const QString code = pragma.lastError().nativeErrorCode();
                const bool locked = code == QLatin1String("5") || code == QLatin1String("6");
                failure = failedRead(locked ? tr("Sperre") : tr("Aufbau"), pragma.lastError().text());
            }
        }
    }
    if (!failure.isEmpty()) {
        *error = failure;
        close();
        return false;
    }
    m_open = true;
    if (!checkLayout(error) || !readAll(error)) {
        close();
        return false;
    }
    return true;
}

void KalSiteJournalFile::close()
{
    m_open = false;
    if (m_connection.isEmpty())
        return;
    {
        QSqlDatabase db = QSqlDatabase::database(m_connection, false);
        if (db.isOpen())
            db.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
    m_connection.clear();
}

bool KalSiteJournalFile::checkLayout(QString *error)
{
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    QStringList missing;
    for (const auto &table : kLayout) {
        QSqlQuery query(db);
        // The names come from the table above, never from the file.
        if (!query.exec(QStringLiteral("PRAGMA table_info(%1)").arg(QLatin1String(table.table)))) {
            *error = failedRead(tr("Aufbau"), query.lastError().text());
            return false;
        }
        QSet<QString> present;
        while (query.next())
            present.insert(query.value(1).toString().toLower());
        if (present.isEmpty()) {
            missing << tr("Tabelle \"%1\"").arg(QLatin1String(table.table));
            continue;
        }
        const QStringList columns = QString::fromLatin1(table.columns).split(QLatin1Char(' '));
        for (const QString &column : columns) {
            if (!present.contains(column))
                missing << tr("Spalte \"%1\" der Tabelle \"%2\"").arg(column, QLatin1String(table.table));
        }
    }
    if (missing.isEmpty())
        return true;
    *error = tr("Die Datei\n%1\nist keine Bautagebuch-Datei oder hat einen unbekannten Aufbau.\nEs fehlen: %2")
                 .arg(QDir::toNativeSeparators(m_path), missing.join(QStringLiteral(", ")));
    return false;
}

bool KalSiteJournalFile::readAll(QString *error)
{
    m_meta.clear();
    m_companies.clear();
    m_reports.clear();
    m_defects.clear();
    m_photos.clear();
    m_closedReportCompanies.clear();
    return readSmall(error) && readCompanies(error) && readReports(error) && readItems(error);
}

bool KalSiteJournalFile::readSmall(QString *error)
{
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT value FROM meta WHERE key=:key"));
    for (const QString &key : {QStringLiteral("exportedFrom"), QStringLiteral("exportedTo")}) {
        query.bindValue(QStringLiteral(":key"), key);
        if (!query.exec()) {
            *error = failedRead(QStringLiteral("meta"), query.lastError().text());
            return false;
        }
        if (query.next())
            m_meta.insert(key, query.value(0).toString().trimmed());
    }
    query.prepare(QStringLiteral("SELECT id_counter FROM id_generator WHERE id_table=:table"));
    query.bindValue(QStringLiteral(":table"), QStringLiteral("entry"));
    if (!query.exec()) {
        *error = failedRead(QStringLiteral("id_generator"), query.lastError().text());
        return false;
    }
    m_entryCounter = query.next() ? qMax<qint64>(0, parseId(query.value(0))) : 0;
    if (!query.exec(QStringLiteral("SELECT DISTINCT company_id FROM entry INNER JOIN entry_progress ON entry.id = "
                                   "entry_progress.entry_id WHERE entry.locked = '1' AND entry_progress.type = 4;"))) {
        *error = failedRead(QStringLiteral("entry"), query.lastError().text());
        return false;
    }
    while (query.next()) {
        const qint64 id = parseId(query.value(0));
        if (id >= 0)
            m_closedReportCompanies << id;
    }
    return true;
}

bool KalSiteJournalFile::readCompanies(QString *error)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT * FROM company ORDER BY id, rowid"))) {
        *error = failedRead(QStringLiteral("company"), query.lastError().text());
        return false;
    }
    QSet<qint64> seen;
    while (query.next()) {
        const QSqlRecord record = query.record();
        Company company;
        company.id = parseId(value(record, "id"));
        if (company.id < 0 || seen.contains(company.id))
            continue;
        seen.insert(company.id);
        for (int field = 0; field < KalCompanyRecord::FieldCount; ++field)
            company.record.setValue(field, text(record, KalCompanyRecord::columnName(field).toLatin1().constData()));
        company.category = text(record, "category").trimmed();
        company.modified = flag(record, "modified");
        m_companies << company;
    }
    if (query.lastError().isValid()) {
        *error = failedRead(QStringLiteral("company"), query.lastError().text());
        return false;
    }
    return true;
}

bool KalSiteJournalFile::readReports(QString *error)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT * FROM entry ORDER BY id, rowid"))) {
        *error = failedRead(QStringLiteral("entry"), query.lastError().text());
        return false;
    }
    QSet<qint64> seen;
    while (query.next()) {
        const QSqlRecord record = query.record();
        Report report;
        report.id = parseId(value(record, "id"));
        if (report.id < 0 || seen.contains(report.id))
            continue;
        seen.insert(report.id);
        report.number = text(record, "number");
        report.locked = text(record, "locked").trimmed() == QLatin1String("1") ? 1 : 0;
        report.userId = text(record, "user_id");
        report.creationDate = text(record, "creation_date");
        report.inspectionDate = parseDate(value(record, "inspection_date"));
        const QVariant app = value(record, "exported_by_app");
        report.exportedByApp = app.isValid() && !app.isNull() ? static_cast<int>(parseId(app)) : -1;
        report.importVersion = text(record, "import_version");
        m_reports << report;
    }
    if (query.lastError().isValid()) {
        *error = failedRead(QStringLiteral("entry"), query.lastError().text());
        return false;
    }
    return true;
}

bool KalSiteJournalFile::readItems(QString *error)
{
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    struct PhotoRow
    {
        QString caption;
        QDate date;
        qint64 imageId = -1;
    };
    QHash<qint64, PhotoRow> photoRows;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT id, caption, date, photo_image_id FROM entry_photo ORDER BY id, rowid"))) {
        *error = failedRead(QStringLiteral("entry_photo"), query.lastError().text());
        return false;
    }
    while (query.next()) {
        const qint64 id = parseId(query.value(0));
        if (id >= 0 && !photoRows.contains(id))
            photoRows.insert(id, {query.value(1).toString(), parseDate(query.value(2)), parseId(query.value(3))});
    }
    if (!query.exec(QStringLiteral("SELECT * FROM entry_progress WHERE type IN (2, 4, '2', '4') ORDER BY id, rowid"))) {
        *error = failedRead(QStringLiteral("entry_progress"), query.lastError().text());
        return false;
    }
    QSet<qint64> seen;
    while (query.next()) {
        const QSqlRecord record = query.record();
        const qint64 id = parseId(value(record, "id"));
        if (id < 0 || seen.contains(id))
            continue;
        seen.insert(id);
        const qint64 type = parseId(value(record, "type"));
        if (type == 4) {
            Defect defect;
            defect.id = id;
            defect.entryId = parseId(value(record, "entry_id"));
            defect.number = text(record, "number");
            defect.description = text(record, "description");
            defect.companyId = parseId(value(record, "company_id"));
            defect.roomName = text(record, "roomname");
            defect.roombookNumber = text(record, "roombook_number");
            defect.date = parseDate(value(record, "date"));
            defect.correctionDate = parseDate(value(record, "correction_date"));
            defect.modified = flag(record, "modified");
            m_defects << defect;
        } else if (type == 2) {
            Photo photo;
            photo.id = id;
            photo.entryId = parseId(value(record, "entry_id"));
            photo.relationId = parseId(value(record, "relation_id"));
            const PhotoRow row = photoRows.value(parseId(value(record, "photo_id")));
            photo.caption = row.caption;
            photo.date = row.date;
            photo.imageId = row.imageId;
            photo.modified = flag(record, "modified");
            m_photos << photo;
        }
    }
    if (query.lastError().isValid()) {
        *error = failedRead(QStringLiteral("entry_progress"), query.lastError().text());
        return false;
    }
    return true;
}

bool KalSiteJournalFile::readPicture(qint64 id, Picture *picture, QString *error) const
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT * FROM image WHERE id=:id"));
    query.bindValue(QStringLiteral(":id"), id);
    if (!query.exec()) {
        *error = query.lastError().text();
        return false;
    }
    if (!query.next()) {
        *error = query.lastError().isValid() ? query.lastError().text() : tr("Das Bild fehlt im Bautagebuch.");
        return false;
    }
    const QSqlRecord record = query.record();
    picture->image = value(record, "image").toByteArray();
    picture->imageType = text(record, "image_ct").trimmed();
    picture->thumbnail = value(record, "thumbnail").toByteArray();
    picture->thumbnailType = text(record, "thumbnail_ct").trimmed();
    picture->thumbnailWidth = static_cast<int>(parseId(value(record, "thumbnail_width")));
    picture->thumbnailHeight = static_cast<int>(parseId(value(record, "thumbnail_height")));
    return true;
}

bool KalSiteJournalFile::readPictureKey(qint64 id, qint64 *bytes, QByteArray *thumbnail) const
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT length(image), thumbnail FROM image WHERE id=:id"));
    query.bindValue(QStringLiteral(":id"), id);
    if (!query.exec() || !query.next())
        return false;
    *bytes = query.value(0).toLongLong();
    *thumbnail = query.value(1).toByteArray();
    return true;
}
