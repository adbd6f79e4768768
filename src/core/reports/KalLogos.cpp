#include "KalLogos.h"

#include "core/photos/KalPictureStore.h"
#include "core/project/KalSqlError.h"

#include <QSettings>
#include <QSqlQuery>

namespace {

const char *const HeightKey = "Logo/LogoPrintHeight";
const char *const UnderHeaderKey = "Logo/printLogosUnderHeader";
constexpr int DefaultHeight = 25;

} // namespace

KalLogos::KalLogos(QSqlDatabase db)
    : m_db(std::move(db))
{
}

bool KalLogos::read(Which which, KalLogo *logo) const
{
    *logo = KalLogo();
    QSqlQuery query(m_db);
    if (which == First) {
        if (!query.exec(QStringLiteral("SELECT logo_image_id,logo_align FROM kal"))) {
            KAL_REPORT_SQL_ERROR(query.lastError(), "KalLogoPanel", "readFirstImage");
            return false;
        }
    } else if (!query.exec(QStringLiteral("SELECT logo2_image_id,logo2_align FROM kal"))) {
        KAL_REPORT_SQL_ERROR(query.lastError(), "KalLogoPanel", "readSecondImage");
        return false;
    }
    if (!query.next())
        return true;
    const int align = query.value(1).toInt();
    logo->align = align >= KalLogo::Left && align <= KalLogo::Right ? align : KalLogo::Left;
    const qint64 id = query.value(0).isNull() ? -1 : query.value(0).toLongLong();
    logo->imageId = id > 0 && imageExists(id) ? id : -1;
    return true;
}

bool KalLogos::imageExists(qint64 imageId) const
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("SELECT 1 FROM image WHERE id=:id"));
    query.bindValue(QStringLiteral(":id"), imageId);
    return query.exec() && query.next();
}

bool KalLogos::write(Which which, const KalLogo &logo)
{
    QSqlQuery query(m_db);
    query.prepare(which == First ? QStringLiteral("UPDATE kal SET logo_image_id=:image_id,logo_align=:align")
                                 : QStringLiteral("UPDATE kal SET logo2_image_id=:image_id,logo2_align=:align"));
    QVariant none = which == First ? QVariant(QVariant::LongLong) : QVariant(0);
    query.bindValue(QStringLiteral(":image_id"), logo.isSet() ? QVariant(logo.imageId) : none);
    query.bindValue(QStringLiteral(":align"), logo.align);
    if (!query.exec()) {
        KAL_REPORT_SQL_ERROR(query.lastError(), "KalLogoPanel", "updateKal");
        return false;
    }
    return true;
}

qint64 KalLogos::append(const QString &path, QString *error)
{
    return KalPictureStore(m_db, KalPictureStore::Kind::Photo).insertFromFile(path, error);
}

bool KalLogos::remove(qint64 imageId)
{
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("DELETE FROM image WHERE id=:image_id"));
    query.bindValue(QStringLiteral(":image_id"), imageId);
    if (!query.exec()) {
        KAL_REPORT_SQL_ERROR(query.lastError(), "KalLogoPanel", "deleteImage");
        return false;
    }
    return true;
}

QImage KalLogos::image(qint64 imageId) const
{
    if (imageId <= 0)
        return QImage();
    QString error;
    const QByteArray data = KalPictureStore(m_db, KalPictureStore::Kind::Photo).loadData(imageId, &error);
    if (data.isEmpty())
        return QImage();
    // The stored bytes went through the picture rule once; decoding them
    // with its checks again keeps a hostile row from costing memory.
    return KalPictureStore::decodeFitted(data, KalPictureStore::maximumSize, &error);
}

int KalLogos::printHeight()
{
    bool ok = false;
    const int height = QSettings().value(QLatin1String(HeightKey), DefaultHeight).toInt(&ok);
    return ok ? qMax(0, height) : DefaultHeight;
}

void KalLogos::setPrintHeight(int millimetres)
{
    QSettings().setValue(QLatin1String(HeightKey), qMax(0, millimetres));
}

bool KalLogos::underHeader()
{
    return QSettings().value(QLatin1String(UnderHeaderKey), true).toBool();
}

void KalLogos::setUnderHeader(bool under)
{
    QSettings().setValue(QLatin1String(UnderHeaderKey), under);
}
