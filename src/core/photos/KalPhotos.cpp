#include "KalPhotos.h"

#include "core/photos/KalPictureStore.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

bool run(QSqlQuery &query, QString *error)
{
    if (query.exec())
        return true;
    *error = query.lastError().text();
    return false;
}

struct PhotoRow
{
    qint64 defectId = -1;
    qint64 imageId = -1;
    qint64 siteJournalId = -1;
};

bool photoRow(const QSqlDatabase &db, qint64 photoInfoId, PhotoRow *row, QString *error)
{
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT defect_id, image_id, site_journal_id FROM photo_info WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), photoInfoId);
    if (!run(query, error))
        return false;
    if (!query.next()) {
        *error = KalPhotos::tr("Das Foto %1 existiert nicht.").arg(photoInfoId);
        return false;
    }
    row->defectId = query.value(0).toLongLong();
    row->imageId = query.value(1).toLongLong();
    row->siteJournalId = query.value(2).isNull() ? -1 : query.value(2).toLongLong();
    return true;
}

} // namespace

KalPhotos::KalPhotos(KalProject *project)
    : m_project(project)
{
}

bool KalPhotos::finish(bool ok)
{
    if (!ok) {
        m_project->rollbackTransaction();
        return false;
    }
    if (!m_project->commitTransaction()) {
        m_project->rollbackTransaction();
        return false;
    }
    m_project->markModified();
    return true;
}

KalPhotoImport KalPhotos::addFiles(qint64 defectId, const QStringList &files)
{
    KalPhotoImport result;
    KalBusyScope busy(tr("Die Fotos werden importiert."));
    for (int i = 0; i < files.size(); ++i) {
        busy.setProgress(i, files.size());
        bool portrait = false;
        const qint64 id = addFile(defectId, files.at(i), &portrait);
        if (id < 0) {
            result.failedFiles << files.at(i);
            continue;
        }
        result.photoInfoIds << id;
        result.anyPortrait = result.anyPortrait || portrait;
    }
    busy.setProgress(files.size(), files.size());
    return result;
}

qint64 KalPhotos::addFile(qint64 defectId, const QString &file, bool *portrait)
{
    QString error;
    qint64 id = -1;
    const QByteArray data = KalPictureStore::readFile(file, &error);
    if (!data.isEmpty() && storePhoto(defectId, data, file, portrait, &id, &error))
        return id;
    KalProgress::instance()->yieldToMessage();
    if (id == -2) {
        KalPrompt::critical(tr("Datenbankfehler"), error);
    } else {
        qWarning("photo import %s: %s", qPrintable(file), qPrintable(error));
        KalPrompt::critical(tr("Fehler Fotoimport"),
                            tr("Das Foto %1 konnte nicht importiert werden.").arg(QDir::toNativeSeparators(file)));
    }
    return -1;
}

// `newId` is -2 when the database, not the file, failed.
bool KalPhotos::storePhoto(qint64 defectId, const QByteArray &data, const QString &file, bool *portrait, qint64 *newId,
                           QString *error)
{
    const QImage picture =
        KalPictureStore::decodeFitted(data, KalPictureStore::sizeLimit(KalPictureStore::Kind::Photo), error);
    KalStoredPicture stored;
    if (picture.isNull() || !KalPictureStore::prepare(picture, &stored, error))
        return false;
    QDateTime taken = KalPictureStore::exifDateTaken(data);
    if (!taken.isValid())
        taken = QFileInfo(file).lastModified();

    *newId = -2;
    if (!m_project->beginTransaction()) {
        *error = m_project->database().lastError().text();
        return false;
    }
    KalPictureStore store(m_project->database(), KalPictureStore::Kind::Photo);
    KalPhotoInfo info;
    info.imageId = store.insertPrepared(stored, error);
    info.date = taken.date();
    info.defectId = defectId;
    const qint64 id = info.imageId > 0 ? insertInfo(info, error) : -1;
    const bool ok = id > 0;
    if (!finish(ok)) {
        if (error->isEmpty())
            *error = m_project->database().lastError().text();
        return false;
    }
    *newId = id;
    *portrait = stored.size.height() > stored.size.width();
    return true;
}

qint64 KalPhotos::insertPhotoInfo(const KalPhotoInfo &info, QString *error)
{
    if (!m_project->beginTransaction()) {
        *error = m_project->database().lastError().text();
        return -1;
    }
    const qint64 id = insertInfo(info, error);
    return finish(id > 0) ? id : -1;
}

// Inside the caller's transaction: the row after the defect's last, and the count.
qint64 KalPhotos::insertInfo(const KalPhotoInfo &info, QString *error)
{
    const qint64 id = m_project->nextId(QStringLiteral("photo_info"));
    if (id <= 0) {
        *error = m_project->database().lastError().text();
        return -1;
    }
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral(
        "INSERT INTO photo_info (id, caption, comment, date, defect_id, image_id, pos, site_journal_data_modified, "
        "site_journal_id, delete_on_import) VALUES (:id, :caption, :comment, :date, :defect_id, :image_id, (SELECT "
        "COALESCE(MAX(pos), 0) + 1 FROM photo_info WHERE defect_id = :defect_id2), :modified, :site_journal_id, "
        ":delete_on_import)"));
    query.bindValue(QStringLiteral(":id"), id);
    query.bindValue(QStringLiteral(":caption"), info.caption.isNull() ? QStringLiteral("") : info.caption);
    query.bindValue(QStringLiteral(":comment"), info.comment.isNull() ? QStringLiteral("") : info.comment);
    query.bindValue(QStringLiteral(":date"), info.date);
    query.bindValue(QStringLiteral(":defect_id"), info.defectId);
    query.bindValue(QStringLiteral(":image_id"), info.imageId);
    query.bindValue(QStringLiteral(":defect_id2"), info.defectId);
    query.bindValue(QStringLiteral(":modified"), info.siteJournalDataModified);
    query.bindValue(QStringLiteral(":site_journal_id"), info.siteJournalId);
    query.bindValue(QStringLiteral(":delete_on_import"), info.deleteOnImport);
    if (!run(query, error) || !updateCount(info.defectId, error))
        return -1;
    return id;
}

bool KalPhotos::updateCount(qint64 defectId, QString *error)
{
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("UPDATE defect SET image_cnt = (SELECT COUNT(*) FROM photo_info WHERE defect_id = "
                                 ":defect_id) WHERE id = :id"));
    query.bindValue(QStringLiteral(":defect_id"), defectId);
    query.bindValue(QStringLiteral(":id"), defectId);
    if (!run(query, error))
        return false;
    if (query.numRowsAffected() != 1) {
        *error = tr("Der Mangel %1 existiert nicht.").arg(defectId);
        return false;
    }
    return true;
}

QList<qint64> KalPhotos::photoIds(qint64 defectId, QString *error) const
{
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT id FROM photo_info WHERE defect_id = :defect_id ORDER BY pos, id"));
    query.bindValue(QStringLiteral(":defect_id"), defectId);
    QList<qint64> ids;
    if (!run(query, error))
        return ids;
    while (query.next())
        ids << query.value(0).toLongLong();
    return ids;
}

bool KalPhotos::renumber(const QList<qint64> &ids, QString *error)
{
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("UPDATE photo_info SET pos = :pos WHERE id = :id"));
    for (int i = 0; i < ids.size(); ++i) {
        query.bindValue(QStringLiteral(":pos"), i + 1);
        query.bindValue(QStringLiteral(":id"), ids.at(i));
        if (!run(query, error))
            return false;
    }
    return true;
}

bool KalPhotos::removeOne(qint64 photoInfoId, QList<qint64> *defects, QString *error)
{
    PhotoRow row;
    if (!photoRow(m_project->database(), photoInfoId, &row, error))
        return false;
    KalPictureStore store(m_project->database(), KalPictureStore::Kind::Photo);
    if (!store.remove(row.imageId, error))
        return false;
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("DELETE FROM photo_info WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), photoInfoId);
    if (!run(query, error))
        return false;
    if (!defects->contains(row.defectId))
        defects->append(row.defectId);
    // Only a photo from the site journal is kept from coming back by the next import.
    if (row.siteJournalId == -1)
        return true;
    const qint64 id = m_project->nextId(QStringLiteral("deleted_site_journal_photo_info"));
    if (id <= 0) {
        *error = m_project->database().lastError().text();
        return false;
    }
    query.prepare(QStringLiteral("INSERT INTO deleted_site_journal_photo_info (id, defect_id, site_journal_id) "
                                 "VALUES (:id, :defect_id, :site_journal_id)"));
    query.bindValue(QStringLiteral(":id"), id);
    query.bindValue(QStringLiteral(":defect_id"), row.defectId);
    query.bindValue(QStringLiteral(":site_journal_id"), row.siteJournalId);
    return run(query, error);
}

bool KalPhotos::remove(const QList<qint64> &photoInfoIds, QString *error)
{
    if (photoInfoIds.isEmpty())
        return true;
    if (!m_project->beginTransaction()) {
        *error = m_project->database().lastError().text();
        return false;
    }
    QList<qint64> defects;
    bool ok = true;
    for (qint64 id : photoInfoIds) {
        if (!(ok = removeOne(id, &defects, error)))
            break;
    }
    for (qint64 defectId : qAsConst(defects)) {
        if (!ok)
            break;
        const QList<qint64> left = photoIds(defectId, error);
        ok = error->isEmpty() && renumber(left, error) && updateCount(defectId, error);
    }
    return finish(ok);
}

bool KalPhotos::writePicture(qint64 photoInfoId, const QImage &picture, QString *error)
{
    PhotoRow row;
    if (!photoRow(m_project->database(), photoInfoId, &row, error))
        return false;
    if (!m_project->beginTransaction()) {
        *error = m_project->database().lastError().text();
        return false;
    }
    KalPictureStore store(m_project->database(), KalPictureStore::Kind::Photo);
    bool ok = store.insertOrUpdate(picture, row.imageId, error) == row.imageId;
    if (ok) {
        // A changed picture is the user's edit: a later import must not overwrite it.
        QSqlQuery query(m_project->database());
        query.prepare(QStringLiteral("UPDATE photo_info SET site_journal_data_modified = 1 WHERE id = :id"));
        query.bindValue(QStringLiteral(":id"), photoInfoId);
        ok = run(query, error);
    }
    return finish(ok);
}

bool KalPhotos::rotate(qint64 photoInfoId, int degrees, QString *error)
{
    const int turn = ((degrees % 360) + 360) % 360;
    if (turn == 0 || turn % 90 != 0) {
        *error = tr("Fotos lassen sich nur um 90°, 180° oder 270° drehen.");
        return false;
    }
    PhotoRow row;
    if (!photoRow(m_project->database(), photoInfoId, &row, error))
        return false;
    const QImage picture =
        KalPictureStore(m_project->database(), KalPictureStore::Kind::Photo).load(row.imageId, error);
    if (picture.isNull())
        return false;
    return writePicture(photoInfoId, picture.transformed(QTransform().rotate(turn)), error);
}

bool KalPhotos::replacePicture(qint64 photoInfoId, const QImage &picture, QString *error)
{
    if (picture.isNull()) {
        *error = tr("Das Bild ist leer.");
        return false;
    }
    return writePicture(photoInfoId, picture, error);
}

bool KalPhotos::move(qint64 photoInfoId, int newIndex, QString *error)
{
    PhotoRow row;
    if (!photoRow(m_project->database(), photoInfoId, &row, error))
        return false;
    QList<qint64> ids = photoIds(row.defectId, error);
    if (!error->isEmpty())
        return false;
    const QList<qint64> before = ids;
    ids.removeOne(photoInfoId);
    ids.insert(qBound(0, newIndex, ids.size()), photoInfoId);
    if (ids == before)
        return true;
    if (!m_project->beginTransaction()) {
        *error = m_project->database().lastError().text();
        return false;
    }
    return finish(renumber(ids, error));
}
