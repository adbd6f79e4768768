#include "KalSiteJournalImportWriter.h"

#include "core/photos/KalPictureStore.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalProject.h"

#include <QBuffer>
#include <QImageReader>
#include <QSqlError>

namespace {

const char *const kDefectColumns[] = {
    "number",          "description",     "company_id",         "user_id",        "creation_date", "roomname",
    "roombook_number", "correction_date", "imported_report_id", "site_journal_id"};

QSize headerSize(const QByteArray &data)
{
    QByteArray copy = data;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "jpeg");
    return reader.canRead() ? reader.size() : QSize();
}

// The storage rule: a JPEG within the photo size limit with a JPEG
// thumbnail of at most 240 pixels a side and no orientation to apply. Told
// from the headers alone; such pictures are taken over byte for byte.
bool meetsStorageRule(const KalSiteJournalFile::Picture &picture, KalStoredPicture *stored)
{
    static const QString jpeg = QStringLiteral("image/jpeg");
    if (picture.imageType != jpeg || picture.thumbnailType != jpeg)
        return false;
    const QSize size = headerSize(picture.image);
    const QSize thumb = headerSize(picture.thumbnail);
    const int limit = KalPictureStore::sizeLimit(KalPictureStore::Kind::Photo);
    if (!size.isValid() || size.width() > limit || size.height() > limit || !thumb.isValid() ||
        thumb.width() > KalPictureStore::thumbnailSize || thumb.height() > KalPictureStore::thumbnailSize)
        return false;
    if (KalPictureStore::exifOrientation(picture.image) > 1 || KalPictureStore::isTruncatedJpeg(picture.image))
        return false;
    stored->picture = picture.image;
    stored->size = size;
    stored->thumbnail = picture.thumbnail;
    stored->thumbnailSize = thumb;
    return true;
}

} // namespace

KalSiteJournalImportWriter::KalSiteJournalImportWriter(KalProject *project)
    : m_project(project)
    , m_db(project->database())
{
}

bool KalSiteJournalImportWriter::exec(QSqlQuery &query, const char *what)
{
    if (query.exec()) {
        m_writes += qMax(0, query.numRowsAffected());
        return true;
    }
    m_error = QStringLiteral("%1: %2").arg(QLatin1String(what), query.lastError().text());
    return false;
}

qint64 KalSiteJournalImportWriter::nextId(const QString &table)
{
    auto it = m_lastIds.find(table);
    if (it == m_lastIds.end()) {
        // One look at the counter and the table per run; the block is
        // written back by flushIds().
        QSqlQuery query(m_db);
        query.prepare(QStringLiteral("SELECT id_counter FROM id_generator WHERE id_table = :table"));
        query.bindValue(QStringLiteral(":table"), table);
        if (!query.exec()) {
            m_error = query.lastError().text();
            return -1;
        }
        qint64 last = query.next() ? query.value(0).toLongLong() : 0;
        if (!query.exec(QStringLiteral("SELECT MAX(id) FROM %1").arg(table)) || !query.next()) {
            m_error = query.lastError().text();
            return -1;
        }
        last = qMax(last, query.value(0).toLongLong());
        it = m_lastIds.insert(table, last);
    }
    return ++it.value();
}

bool KalSiteJournalImportWriter::flushIds()
{
    for (auto it = m_lastIds.constBegin(); it != m_lastIds.constEnd(); ++it) {
        QSqlQuery query(m_db);
        query.prepare(QStringLiteral("INSERT OR REPLACE INTO id_generator (id_table, id_counter) VALUES (:t, :c)"));
        query.bindValue(QStringLiteral(":t"), it.key());
        query.bindValue(QStringLiteral(":c"), it.value());
        if (!exec(query, "id_generator"))
            return false;
    }
    m_lastIds.clear();
    return true;
}

qint64 KalSiteJournalImportWriter::insertCompany(qint64 siteJournalId, const KalCompanyRecord &record)
{
    const qint64 id = nextId(QStringLiteral("company"));
    if (id < 0)
        return -1;
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, "
                                 "telephone, telefax, mobile, email, pos, modified, site_journal_id, delete_on_import) "
                                 "VALUES (:id, :f0, :f1, :f2, :f3, :f4, :f5, :f6, :f7, :f8, :f9, :f10, "
                                 "(SELECT IFNULL(MAX(pos), 0) + 1 FROM company), 0, :sj, 1)"));
    query.bindValue(QStringLiteral(":id"), id);
    for (int field = 0; field < KalCompanyRecord::FieldCount; ++field)
        query.bindValue(QStringLiteral(":f%1").arg(field), record.value(field) + QLatin1String(""));
    query.bindValue(QStringLiteral(":sj"), siteJournalId);
    return exec(query, "company") ? id : -1;
}

bool KalSiteJournalImportWriter::updateCompany(qint64 id, const KalCompanyRecord &record)
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("UPDATE company SET type = :f0, firstname = :f1, lastname = :f2, company = :f3, "
                                 "street = :f4, plz = :f5, city = :f6, telephone = :f7, telefax = :f8, mobile = :f9, "
                                 "email = :f10 WHERE id = :id"));
    for (int field = 0; field < KalCompanyRecord::FieldCount; ++field)
        query.bindValue(QStringLiteral(":f%1").arg(field), record.value(field) + QLatin1String(""));
    query.bindValue(QStringLiteral(":id"), id);
    return exec(query, "company");
}

bool KalSiteJournalImportWriter::deleteCompany(qint64 id)
{
    static const char *const statements[] = {
        "UPDATE defect SET company_id = NULL WHERE company_id = :id",
        "DELETE FROM imported_closed_report_company WHERE pellwick_id = :id",
        "DELETE FROM company WHERE id = :id",
    };
    for (const char *statement : statements) {
        QSqlQuery query(m_db);
        query.prepare(QLatin1String(statement));
        query.bindValue(QStringLiteral(":id"), id);
        if (!exec(query, "company"))
            return false;
    }
    return true;
}

qint64 KalSiteJournalImportWriter::insertReport(const KalSiteJournalFile::Report &report)
{
    const qint64 id = nextId(QStringLiteral("imported_report"));
    if (id < 0)
        return -1;
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("INSERT INTO imported_report (id, site_journal_id, number, locked, user_id, "
                                 "creation_date, exported_by_app, import_version, delete_on_import) VALUES (:id, :sj, "
                                 ":number, :locked, :user, :created, :app, :version, 1)"));
    query.bindValue(QStringLiteral(":id"), id);
    query.bindValue(QStringLiteral(":sj"), report.id);
    query.bindValue(QStringLiteral(":number"), report.number);
    query.bindValue(QStringLiteral(":locked"), report.locked);
    query.bindValue(QStringLiteral(":user"), report.userId);
    query.bindValue(QStringLiteral(":created"), report.creationDate);
    query.bindValue(QStringLiteral(":app"), report.exportedByApp);
    query.bindValue(QStringLiteral(":version"), report.importVersion);
    return exec(query, "imported_report") ? id : -1;
}

bool KalSiteJournalImportWriter::updateReport(qint64 id, const KalSiteJournalFile::Report &report)
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("UPDATE imported_report SET number = :number, locked = :locked, user_id = :user, "
                                 "creation_date = :created, import_version = :version WHERE id = :id"));
    query.bindValue(QStringLiteral(":number"), report.number);
    query.bindValue(QStringLiteral(":locked"), report.locked);
    query.bindValue(QStringLiteral(":user"), report.userId);
    query.bindValue(QStringLiteral(":created"), report.creationDate);
    query.bindValue(QStringLiteral(":version"), report.importVersion);
    query.bindValue(QStringLiteral(":id"), id);
    return exec(query, "imported_report");
}

bool KalSiteJournalImportWriter::deleteReport(qint64 id)
{
    return deleteRow(QStringLiteral("imported_report"), id);
}

QVariantMap KalSiteJournalImportWriter::defectValues(const KalSiteJournalFile::Defect &defect,
                                                     const KalSiteJournalFile::Report &report,
                                                     const QVariant &companyId, qint64 reportRowId)
{
    const QDate created = defect.date.isValid() ? defect.date : report.inspectionDate;
    const auto date = [](const QDate &d) { return d.isValid() ? QVariant(d.toString(Qt::ISODate)) : QVariant(); };
    const auto textOrNull = [](const QString &t) { return t.isNull() ? QVariant() : QVariant(t); };
    return {{QStringLiteral("number"), textOrNull(defect.number)},
            {QStringLiteral("description"), defect.description + QLatin1String("")},
            {QStringLiteral("company_id"), companyId},
            {QStringLiteral("user_id"), textOrNull(report.userId)},
            {QStringLiteral("creation_date"), date(created)},
            {QStringLiteral("roomname"), textOrNull(defect.roomName)},
            {QStringLiteral("roombook_number"), textOrNull(defect.roombookNumber)},
            {QStringLiteral("correction_date"), date(defect.correctionDate)},
            {QStringLiteral("imported_report_id"), reportRowId},
            {QStringLiteral("site_journal_id"), defect.id}};
}

qint64 KalSiteJournalImportWriter::insertDefect(const QVariantMap &values)
{
    const qint64 id = nextId(QStringLiteral("defect"));
    if (id < 0)
        return -1;
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral(
        "INSERT INTO defect (id, number, description, company_id, user_id, creation_date, roomname, roombook_number, "
        "correction_date, imported_report_id, site_journal_id, plan_info_id, image_cnt, priority, status_id, "
        "reduction, site_journal_data_modified, delete_on_import) VALUES (:id, :number, :description, :company_id, "
        ":user_id, :creation_date, :roomname, :roombook_number, :correction_date, :imported_report_id, "
        ":site_journal_id, -1, 0, 'Normal', 0, 0, 0, 1)"));
    query.bindValue(QStringLiteral(":id"), id);
    for (const char *column : kDefectColumns)
        query.bindValue(QLatin1Char(':') + QLatin1String(column), values.value(QLatin1String(column)));
    return exec(query, "defect") ? id : -1;
}

bool KalSiteJournalImportWriter::updateDefect(qint64 id, const QVariantMap &values)
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral(
        "UPDATE defect SET number = :number, description = :description, company_id = :company_id, user_id = "
        ":user_id, creation_date = :creation_date, roomname = :roomname, roombook_number = :roombook_number, "
        "correction_date = :correction_date, imported_report_id = :imported_report_id, site_journal_id = "
        ":site_journal_id WHERE id = :id"));
    for (const char *column : kDefectColumns)
        query.bindValue(QLatin1Char(':') + QLatin1String(column), values.value(QLatin1String(column)));
    query.bindValue(QStringLiteral(":id"), id);
    return exec(query, "defect");
}

bool KalSiteJournalImportWriter::deleteDefect(qint64 id)
{
    // Pictures first, while their photo rows still name them.
    static const char *const statements[] = {
        "DELETE FROM image WHERE id IN (SELECT image_id FROM photo_info WHERE defect_id = :id)",
        "DELETE FROM photo_info WHERE defect_id = :id",
        "DELETE FROM deleted_site_journal_photo_info WHERE defect_id = :id",
        "DELETE FROM marker WHERE defect_id = :id",
        "DELETE FROM marker_text WHERE defect_id = :id",
        "DELETE FROM defect WHERE id = :id",
    };
    for (const char *statement : statements) {
        QSqlQuery query(m_db);
        query.prepare(QLatin1String(statement));
        query.bindValue(QStringLiteral(":id"), id);
        if (!exec(query, "defect"))
            return false;
    }
    return true;
}

bool KalSiteJournalImportWriter::setImageCount(qint64 defectId, int count)
{
    QSqlQuery query(m_db);
    if (count >= 0) {
        query.prepare(QStringLiteral("UPDATE defect SET image_cnt = :count WHERE id = :id"));
        query.bindValue(QStringLiteral(":count"), count);
        query.bindValue(QStringLiteral(":id"), defectId);
        return exec(query, "defect");
    }
    query.prepare(QStringLiteral("UPDATE defect SET image_cnt = (SELECT COUNT(*) FROM photo_info WHERE defect_id = "
                                 ":id) WHERE id = :id AND IFNULL(image_cnt, -1) <> (SELECT COUNT(*) FROM photo_info "
                                 "WHERE defect_id = :id)"));
    query.bindValue(QStringLiteral(":id"), defectId);
    return exec(query, "defect");
}

bool KalSiteJournalImportWriter::storePicture(const KalSiteJournalFile::Picture &picture, qint64 replaceId,
                                              qint64 *imageId, QString *skipReason)
{
    KalStoredPicture stored;
    if (!meetsStorageRule(picture, &stored)) {
        QString reason;
        const QImage fitted = KalPictureStore::decodeFitted(
            picture.image, KalPictureStore::sizeLimit(KalPictureStore::Kind::Photo), &reason);
        if (fitted.isNull() || !KalPictureStore::prepare(fitted, &stored, &reason)) {
            *skipReason = reason;
            return true;
        }
    }
    KalPictureStore store(m_db, KalPictureStore::Kind::Photo);
    QString error;
    if (replaceId > 0) {
        if (!store.updatePrepared(replaceId, stored, &error)) {
            m_error = error;
            return false;
        }
        *imageId = replaceId;
    } else {
        *imageId = store.insertPrepared(stored, &error);
        if (*imageId < 0) {
            m_error = error;
            return false;
        }
    }
    ++m_writes;
    return true;
}

qint64 KalSiteJournalImportWriter::insertPhoto(qint64 defectId, const KalSiteJournalFile::Photo &photo,
                                               const KalSiteJournalFile::Picture &picture, QString *skipReason)
{
    qint64 imageId = -1;
    if (!storePicture(picture, -1, &imageId, skipReason))
        return -1;
    if (!skipReason->isEmpty())
        return 0;
    const qint64 id = nextId(QStringLiteral("photo_info"));
    if (id < 0)
        return -1;
    if (!m_nextPosLoaded) {
        // photo_info has no index on defect_id: asking per defect would scan
        // the table once for every imported defect. One pass reads them all;
        // the map then follows every photo this writer adds.
        QSqlQuery query(m_db);
        query.setForwardOnly(true);
        if (!query.exec(
                QStringLiteral("SELECT defect_id, IFNULL(MAX(pos), 0) + 1 FROM photo_info GROUP BY defect_id"))) {
            m_error = query.lastError().text();
            return -1;
        }
        while (query.next())
            m_nextPos.insert(query.value(0).toLongLong(), query.value(1).toInt());
        m_nextPosLoaded = true;
    }
    auto pos = m_nextPos.find(defectId);
    if (pos == m_nextPos.end())
        pos = m_nextPos.insert(defectId, 1);
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("INSERT INTO photo_info (id, caption, comment, date, defect_id, image_id, pos, "
                                 "site_journal_data_modified, site_journal_id, delete_on_import) VALUES (:id, "
                                 ":caption, '', :date, :defect, :image, :pos, 0, :sj, 1)"));
    query.bindValue(QStringLiteral(":id"), id);
    query.bindValue(QStringLiteral(":caption"), photo.caption);
    query.bindValue(QStringLiteral(":date"),
                    photo.date.isValid() ? QVariant(photo.date.toString(Qt::ISODate)) : QVariant());
    query.bindValue(QStringLiteral(":defect"), defectId);
    query.bindValue(QStringLiteral(":image"), imageId);
    query.bindValue(QStringLiteral(":pos"), pos.value()++);
    query.bindValue(QStringLiteral(":sj"), photo.id);
    return exec(query, "photo_info") ? id : -1;
}

bool KalSiteJournalImportWriter::updatePhotoText(qint64 id, const KalSiteJournalFile::Photo &photo)
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("UPDATE photo_info SET caption = :caption, date = :date WHERE id = :id"));
    query.bindValue(QStringLiteral(":caption"), photo.caption);
    query.bindValue(QStringLiteral(":date"),
                    photo.date.isValid() ? QVariant(photo.date.toString(Qt::ISODate)) : QVariant());
    query.bindValue(QStringLiteral(":id"), id);
    return exec(query, "photo_info");
}

bool KalSiteJournalImportWriter::replacePicture(qint64 imageId, const KalSiteJournalFile::Picture &picture,
                                                QString *skipReason)
{
    qint64 id = -1;
    return storePicture(picture, imageId, &id, skipReason);
}

bool KalSiteJournalImportWriter::deletePhoto(qint64 id)
{
    static const char *const statements[] = {
        "DELETE FROM image WHERE id IN (SELECT image_id FROM photo_info WHERE id = :id)",
        "DELETE FROM photo_info WHERE id = :id",
    };
    for (const char *statement : statements) {
        QSqlQuery query(m_db);
        query.prepare(QLatin1String(statement));
        query.bindValue(QStringLiteral(":id"), id);
        if (!exec(query, "photo_info"))
            return false;
    }
    return true;
}

bool KalSiteJournalImportWriter::setFlag(const QString &table, const QString &column, qint64 id, qint64 value)
{
    QSqlQuery query(m_db);
    // Table and column names come from the import's own code.
    query.prepare(QStringLiteral("UPDATE %1 SET %2 = :value WHERE id = :id").arg(table, column));
    query.bindValue(QStringLiteral(":value"), value);
    query.bindValue(QStringLiteral(":id"), id);
    return exec(query, "flag");
}

bool KalSiteJournalImportWriter::deleteRow(const QString &table, qint64 id)
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("DELETE FROM %1 WHERE id = :id").arg(table));
    query.bindValue(QStringLiteral(":id"), id);
    return exec(query, "delete");
}

bool KalSiteJournalImportWriter::addClosedReportCompany(qint64 siteJournalId, qint64 companyId)
{
    const qint64 id = nextId(QStringLiteral("imported_closed_report_company"));
    if (id < 0)
        return false;
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("INSERT INTO imported_closed_report_company (id, site_journal_id, pellwick_id) "
                                 "VALUES (:id, :sj, :company)"));
    query.bindValue(QStringLiteral(":id"), id);
    query.bindValue(QStringLiteral(":sj"), siteJournalId);
    query.bindValue(QStringLiteral(":company"), companyId);
    return exec(query, "imported_closed_report_company");
}

bool KalSiteJournalImportWriter::setMeta(const QString &key, const QString &value)
{
    QSqlError error;
    if (!KalDatabaseSchema::setMetaValue(m_db, key, value, &error)) {
        m_error = error.text();
        return false;
    }
    ++m_writes;
    return true;
}
