#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QImage>
#include <QList>
#include <QSize>
#include <QSqlDatabase>
#include <QString>
#include <functional>

class KalTransactions;

// What shrinking did: pictures shrunk, pictures left as they were because
// they could not be shrunk, and whether the user stopped it.
struct KalShrinkResult
{
    int total = 0;
    int done = 0;
    int failed = 0;
    bool canceled = false;
};

// A picture made ready for storage: encoded picture and thumbnail with their sizes.
struct KalStoredPicture
{
    QByteArray picture;
    QSize size;
    QByteArray thumbnail;
    QSize thumbnailSize;
};

// The one way a raster picture enters the project: size check, EXIF
// orientation, fit into the size limit, thumbnail, JPEG encoding, and the
// rows of the table `image` (photos, logos) or `plan` (plans).
class KalPictureStore
{
    Q_DECLARE_TR_FUNCTIONS(KalPictureStore)

public:
    enum class Kind { Photo, Plan };

    KalPictureStore(QSqlDatabase db, Kind kind);

    // Counted transactions of the project for shrink(); without them shrink
    // runs its own on the connection.
    void setTransactions(KalTransactions *transactions) { m_transactions = transactions; }

    // "Foto/Imagesize" or "Plans/Plansize", clamped to 300..5000; unreadable:
    // the default (1000 for photos, 5000 for plans).
    static int sizeLimit(Kind kind);
    static int defaultSizeLimit(Kind kind);
    static QString sizeKey(Kind kind);
    static constexpr int minimumSize = 300;
    static constexpr int maximumSize = 5000;
    static constexpr int thumbnailSize = 240;
    // Pictures with more pixels are refused before they are decoded.
    static constexpr qint64 maximumPixels = 100000000;

    // New row id, or -1 with `error` set. Nothing is written on failure.
    qint64 insertFromFile(const QString &path, QString *error);
    qint64 insertFromData(const QByteArray &data, QString *error);
    // Fits, thumbnails and stores `picture`; id -1 inserts, another id
    // updates that row. The row id, or -1 with `error` set.
    qint64 insertOrUpdate(const QImage &picture, qint64 id, QString *error);
    qint64 insertPrepared(const KalStoredPicture &picture, QString *error);
    bool updatePrepared(qint64 id, const KalStoredPicture &picture, QString *error);
    // Row removed; false with `error` set on a database error.
    bool remove(qint64 id, QString *error);

    // The stored picture decoded; null with `error` set.
    QImage load(qint64 id, QString *error) const;
    // The stored bytes as they are; empty with `error` set.
    QByteArray loadData(qint64 id, QString *error) const;

    // Pictures whose width or height exceeds `size`; -1 with `error` set.
    int countLargerThan(int size, QString *error) const;
    QList<qint64> idsLargerThan(int size, QString *error) const;

    // Called for each picture shrink() has rewritten, inside its transaction:
    // returning false undoes that picture (it then counts as failed). Plans
    // use it to move their markers with the new scale.
    using ShrinkHook = std::function<bool(qint64 id, const QSize &oldSize, const QSize &newSize)>;
    void setShrinkHook(ShrinkHook hook) { m_shrinkHook = std::move(hook); }
    // Fits every larger stored picture into `size`; thumbnails stay as they
    // were. Progress and cancel go through KalProgress. Give it the project's
    // transactions and mark the project modified when `done` > 0.
    KalShrinkResult shrink(int size);

    // --- the picture pipeline, without a database ---

    // Decodes `data` (any format Qt reads, told by content): refuses an
    // unknown size, more than maximumPixels and truncated JPEGs; turns by
    // the EXIF orientation and fits into `limit` (never enlarging). Null
    // with `error` set on failure.
    static QImage decodeFitted(const QByteArray &data, int limit, QString *error);
    // Orientation / picture taken date of the EXIF block in `data`; 0 / an
    // invalid date-time when there is none.
    static int exifOrientation(const QByteArray &data);
    static QDateTime exifDateTaken(const QByteArray &data);
    // Clockwise degrees an orientation value asks for: 6 -> 90, 8 -> 270,
    // 3 -> 180; every other value (mirrored ones too) -> 0.
    static int rotationFor(int orientation);
    // `size` fitted into limit x limit, aspect kept, never enlarged, at least 1 px a side.
    static QSize fittedSize(const QSize &size, int limit);
    // Fitted with smooth filtering, alpha laid on white, in a format the JPEG writer takes.
    static QImage fitted(const QImage &picture, int limit);
    // Picture and thumbnail encoded; false with `error` set when either is null.
    static bool prepare(const QImage &fittedPicture, KalStoredPicture *out, QString *error);
    static QByteArray encodeJpeg(const QImage &picture);
    // The bytes of a picture file; empty with `error` set for what is no
    // regular file (a folder, a pipe that would never end) or is larger
    // than any picture this program takes.
    static QByteArray readFile(const QString &path, QString *error);
    static constexpr qint64 maximumFileBytes = 512LL * 1024 * 1024;
    // A JPEG whose last scan has no end marker after it.
    static bool isTruncatedJpeg(const QByteArray &data);

private:
    QString table() const;
    bool shrinkOne(qint64 id, int size, QString *error);
    bool transactionStep(int step);

    QSqlDatabase m_db;
    Kind m_kind;
    KalTransactions *m_transactions = nullptr;
    ShrinkHook m_shrinkHook;
};
