#include "KalPictureStore.h"

#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"
#include "core/project/KalTransactions.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <climits>

namespace {

const QString kContentType = QStringLiteral("image/jpeg");

// Pictures per committed transaction while shrinking: small enough that a
// stop or a crash loses little work, large enough that syncing stays cheap.
constexpr int kShrinkBatch = 20;

QString sqlText(const QSqlQuery &query)
{
    return query.lastError().text();
}

} // namespace

KalPictureStore::KalPictureStore(QSqlDatabase db, Kind kind)
    : m_db(std::move(db))
    , m_kind(kind)
{
}

QString KalPictureStore::sizeKey(Kind kind)
{
    return kind == Kind::Photo ? QStringLiteral("Foto/Imagesize") : QStringLiteral("Plans/Plansize");
}

int KalPictureStore::defaultSizeLimit(Kind kind)
{
    return kind == Kind::Photo ? 1000 : 5000;
}

int KalPictureStore::sizeLimit(Kind kind)
{
    bool ok = false;
    const int value = QSettings().value(sizeKey(kind)).toInt(&ok);
    if (!ok)
        return defaultSizeLimit(kind);
    return qBound(minimumSize, value, maximumSize);
}

QString KalPictureStore::table() const
{
    return m_kind == Kind::Photo ? QStringLiteral("image") : QStringLiteral("plan");
}

qint64 KalPictureStore::insertFromFile(const QString &path, QString *error)
{
    const QByteArray data = readFile(path, error);
    if (data.isEmpty())
        return -1;
    return insertFromData(data, error);
}

QByteArray KalPictureStore::readFile(const QString &path, QString *error)
{
    if (!KalFileOps::isRegularFile(path)) {
        *error = QFileInfo::exists(path) ? tr("%1 ist keine Datei.").arg(QDir::toNativeSeparators(path))
                                         : tr("Die Datei %1 existiert nicht.").arg(QDir::toNativeSeparators(path));
        return QByteArray();
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return QByteArray();
    }
    if (file.size() > maximumFileBytes) {
        *error = tr("Die Datei ist zu groß.");
        return QByteArray();
    }
    const QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        *error = file.errorString();
        return QByteArray();
    }
    if (data.isEmpty())
        *error = tr("Die Datei ist leer.");
    return data;
}

qint64 KalPictureStore::insertFromData(const QByteArray &data, QString *error)
{
    const QImage picture = decodeFitted(data, sizeLimit(m_kind), error);
    if (picture.isNull())
        return -1;
    KalStoredPicture stored;
    if (!prepare(picture, &stored, error))
        return -1;
    return insertPrepared(stored, error);
}

qint64 KalPictureStore::insertOrUpdate(const QImage &picture, qint64 id, QString *error)
{
    KalStoredPicture stored;
    if (!prepare(fitted(picture, sizeLimit(m_kind)), &stored, error))
        return -1;
    if (id == -1)
        return insertPrepared(stored, error);
    return updatePrepared(id, stored, error) ? id : -1;
}

qint64 KalPictureStore::insertPrepared(const KalStoredPicture &picture, QString *error)
{
    const QString t = table();
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("INSERT INTO %1 (%1, %1_ct, %1_width, %1_height, thumbnail, thumbnail_ct, "
                                 "thumbnail_width, thumbnail_height) VALUES (:%1, :%1_ct, :%1_width, :%1_height, "
                                 ":thumbnail, :thumbnail_ct, :thumbnail_width, :thumbnail_height)")
                      .arg(t));
    query.bindValue(QLatin1Char(':') + t, picture.picture);
    query.bindValue(QStringLiteral(":%1_ct").arg(t), kContentType);
    query.bindValue(QStringLiteral(":%1_width").arg(t), picture.size.width());
    query.bindValue(QStringLiteral(":%1_height").arg(t), picture.size.height());
    query.bindValue(QStringLiteral(":thumbnail"), picture.thumbnail);
    query.bindValue(QStringLiteral(":thumbnail_ct"), kContentType);
    query.bindValue(QStringLiteral(":thumbnail_width"), picture.thumbnailSize.width());
    query.bindValue(QStringLiteral(":thumbnail_height"), picture.thumbnailSize.height());
    if (!query.exec()) {
        *error = sqlText(query);
        return -1;
    }
    const QVariant id = query.lastInsertId();
    if (!id.isValid()) {
        *error = tr("Die neue Bildnummer ist unbekannt.");
        return -1;
    }
    return id.toLongLong();
}

bool KalPictureStore::updatePrepared(qint64 id, const KalStoredPicture &picture, QString *error)
{
    const QString t = table();
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("UPDATE %1 SET %1 = :%1, %1_width = :%1_width, %1_height = :%1_height, "
                                 "thumbnail = :thumbnail, thumbnail_ct = :thumbnail_ct, thumbnail_width = "
                                 ":thumbnail_width, thumbnail_height = :thumbnail_height WHERE id = :id")
                      .arg(t));
    query.bindValue(QLatin1Char(':') + t, picture.picture);
    query.bindValue(QStringLiteral(":%1_width").arg(t), picture.size.width());
    query.bindValue(QStringLiteral(":%1_height").arg(t), picture.size.height());
    query.bindValue(QStringLiteral(":thumbnail"), picture.thumbnail);
    query.bindValue(QStringLiteral(":thumbnail_ct"), kContentType);
    query.bindValue(QStringLiteral(":thumbnail_width"), picture.thumbnailSize.width());
    query.bindValue(QStringLiteral(":thumbnail_height"), picture.thumbnailSize.height());
    query.bindValue(QStringLiteral(":id"), id);
    if (!query.exec()) {
        *error = sqlText(query);
        return false;
    }
    if (query.numRowsAffected() != 1) {
        *error = tr("Das Bild %1 existiert nicht.").arg(id);
        return false;
    }
    return true;
}

bool KalPictureStore::remove(qint64 id, QString *error)
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("DELETE FROM %1 WHERE id = :id").arg(table()));
    query.bindValue(QStringLiteral(":id"), id);
    if (!query.exec()) {
        *error = sqlText(query);
        return false;
    }
    return true;
}

QByteArray KalPictureStore::loadData(qint64 id, QString *error) const
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("SELECT %1 FROM %1 WHERE id = :id").arg(table()));
    query.bindValue(QStringLiteral(":id"), id);
    if (!query.exec()) {
        *error = sqlText(query);
        return QByteArray();
    }
    if (!query.next()) {
        *error = tr("Das Bild %1 existiert nicht.").arg(id);
        return QByteArray();
    }
    const QByteArray data = query.value(0).toByteArray();
    if (data.isEmpty())
        *error = tr("Das Bild %1 ist leer.").arg(id);
    return data;
}

QImage KalPictureStore::load(qint64 id, QString *error) const
{
    const QByteArray data = loadData(id, error);
    if (data.isEmpty())
        return QImage();
    // Stored pictures are already turned and fitted; no limit applies here.
    return decodeFitted(data, INT_MAX, error);
}

QList<qint64> KalPictureStore::idsLargerThan(int size, QString *error) const
{
    const QString t = table();
    const QString bound = m_kind == Kind::Photo ? QStringLiteral("image") : QStringLiteral("plan");
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT id, %1_width, %1_height FROM %1 WHERE %1_width > :%2Width OR %1_height > "
                                 ":%2Height")
                      .arg(t, bound));
    query.bindValue(QStringLiteral(":%1Width").arg(bound), size);
    query.bindValue(QStringLiteral(":%1Height").arg(bound), size);
    QList<qint64> ids;
    if (!query.exec()) {
        *error = sqlText(query);
        return ids;
    }
    while (query.next())
        ids.append(query.value(0).toLongLong());
    return ids;
}

int KalPictureStore::countLargerThan(int size, QString *error) const
{
    QString failure;
    const QList<qint64> ids = idsLargerThan(size, &failure);
    if (!failure.isEmpty()) {
        *error = failure;
        return -1;
    }
    return ids.size();
}

bool KalPictureStore::transactionStep(int step)
{
    // step 0 begins, 1 commits, 2 rolls back.
    if (m_transactions)
        return step == 0 ? m_transactions->begin() : step == 1 ? m_transactions->commit() : m_transactions->rollback();
    return step == 0 ? m_db.transaction() : step == 1 ? m_db.commit() : m_db.rollback();
}

bool KalPictureStore::shrinkOne(qint64 id, int size, QString *error)
{
    const QByteArray data = loadData(id, error);
    if (data.isEmpty())
        return false;
    QSize oldSize;
    {
        QBuffer buffer;
        buffer.setData(data);
        buffer.open(QIODevice::ReadOnly);
        oldSize = QImageReader(&buffer).size();
    }
    const QImage picture = decodeFitted(data, size, error);
    if (picture.isNull())
        return false;
    const QByteArray encoded = encodeJpeg(picture);
    if (encoded.isEmpty()) {
        *error = tr("Das Bild konnte nicht als JPEG gespeichert werden.");
        return false;
    }
    // One picture at a time inside the batch: a failing hook takes back
    // only its own picture.
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("SAVEPOINT kal_shrink_one"))) {
        *error = sqlText(query);
        return false;
    }
    const QString t = table();
    query.prepare(
        QStringLiteral("UPDATE %1 SET %1 = :%1, %1_width = :%1_width, %1_height = :%1_height WHERE id = :id").arg(t));
    query.bindValue(QLatin1Char(':') + t, encoded);
    query.bindValue(QStringLiteral(":%1_width").arg(t), picture.width());
    query.bindValue(QStringLiteral(":%1_height").arg(t), picture.height());
    query.bindValue(QStringLiteral(":id"), id);
    bool ok = query.exec();
    if (!ok)
        *error = sqlText(query);
    if (ok && m_shrinkHook && !m_shrinkHook(id, oldSize, picture.size())) {
        *error = tr("Die Änderung zum Bild %1 konnte nicht übernommen werden.").arg(id);
        ok = false;
    }
    QSqlQuery end(m_db);
    if (!ok)
        end.exec(QStringLiteral("ROLLBACK TO kal_shrink_one"));
    end.exec(QStringLiteral("RELEASE kal_shrink_one"));
    return ok;
}

// Cancel rule: pictures are shrunk in batches, each committed when it is
// full; a stop commits the pictures finished so far and leaves the rest as
// they were. Every picture is either wholly shrunk or untouched.
KalShrinkResult KalPictureStore::shrink(int size)
{
    KalShrinkResult result;
    QString error;
    const QList<qint64> ids = idsLargerThan(size, &error);
    if (!error.isEmpty()) {
        qWarning("shrink: %s", qPrintable(error));
        result.failed = 1;
        result.total = 1;
        return result;
    }
    result.total = ids.size();
    if (ids.isEmpty())
        return result;
    KalProgress *progress = KalProgress::instance();
    progress->beginCancelable(m_kind == Kind::Photo ? tr("Die Fotos werden bearbeitet.")
                                                    : tr("Die Pläne werden bearbeitet."));
    bool open = false;
    int inBatch = 0;   // pictures handled in the open transaction
    int doneBatch = 0; // of those, shrunk
    const auto commit = [&] {
        if (!transactionStep(1)) {
            transactionStep(2);
            result.done -= doneBatch;
            result.failed += doneBatch;
        }
        open = false;
        inBatch = doneBatch = 0;
    };
    for (int i = 0; i < ids.size(); ++i) {
        progress->setProgress(i, ids.size());
        if (progress->wasCanceled()) {
            result.canceled = true;
            break;
        }
        if (!open && !(open = transactionStep(0))) {
            result.failed += ids.size() - i;
            break;
        }
        QString reason;
        ++inBatch;
        if (shrinkOne(ids.at(i), size, &reason)) {
            ++result.done;
            ++doneBatch;
        } else {
            ++result.failed;
            qWarning("shrink %lld: %s", ids.at(i), qPrintable(reason));
        }
        if (inBatch >= kShrinkBatch)
            commit();
    }
    if (open)
        commit();
    progress->setProgress(ids.size(), ids.size());
    progress->end();
    return result;
}
