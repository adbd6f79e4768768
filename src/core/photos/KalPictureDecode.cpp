// The picture pipeline of KalPictureStore that needs no database.
#include "KalPictureStore.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QTransform>
#include <libexif/exif-data.h>
#include <memory>

namespace {

struct ExifDataDeleter
{
    void operator()(ExifData *data) const { exif_data_unref(data); }
};
using ExifPtr = std::unique_ptr<ExifData, ExifDataDeleter>;

// The EXIF block of a JPEG (or a bare "Exif" block), loaded as found: the
// library's "follow the standard" option would invent entries.
ExifPtr loadExif(const QByteArray &data)
{
    if (data.size() < 4)
        return nullptr;
    ExifPtr exif(exif_data_new());
    if (!exif)
        return nullptr;
    exif_data_unset_option(exif.get(), EXIF_DATA_OPTION_FOLLOW_SPECIFICATION);
    exif_data_load_data(exif.get(), reinterpret_cast<const unsigned char *>(data.constData()),
                        static_cast<unsigned int>(data.size()));
    return exif;
}

} // namespace

int KalPictureStore::exifOrientation(const QByteArray &data)
{
    // Only JPEGs carry the block where cameras put it.
    if (!data.startsWith("\xFF\xD8"))
        return 0;
    const ExifPtr exif = loadExif(data);
    if (!exif)
        return 0;
    ExifEntry *entry = exif_content_get_entry(exif->ifd[EXIF_IFD_0], EXIF_TAG_ORIENTATION);
    if (!entry || entry->format != EXIF_FORMAT_SHORT || entry->components < 1 || entry->size < 2 || !entry->data)
        return 0;
    return exif_get_short(entry->data, exif_data_get_byte_order(exif.get()));
}

QDateTime KalPictureStore::exifDateTaken(const QByteArray &data)
{
    if (!data.startsWith("\xFF\xD8"))
        return QDateTime();
    const ExifPtr exif = loadExif(data);
    if (!exif)
        return QDateTime();
    ExifEntry *entry = exif_content_get_entry(exif->ifd[EXIF_IFD_EXIF], EXIF_TAG_DATE_TIME_ORIGINAL);
    if (!entry)
        return QDateTime();
    char text[33] = {};
    exif_entry_get_value(entry, text, 32);
    return QDateTime::fromString(QString::fromLatin1(text).trimmed(), QStringLiteral("yyyy:MM:dd hh:mm:ss"));
}

int KalPictureStore::rotationFor(int orientation)
{
    switch (orientation) {
    case 6:
        return 90;
    case 8:
        return 270;
    case 3:
        return 180;
    default:
        return 0; // mirrored and unknown values are left alone on purpose
    }
}

QSize KalPictureStore::fittedSize(const QSize &size, int limit)
{
    if (size.isEmpty() || (size.width() <= limit && size.height() <= limit))
        return size;
    const double scale = double(limit) / qMax(size.width(), size.height());
    // A sliver of 4000 x 2 still keeps one pixel.
    return QSize(qMax(1, qRound(size.width() * scale)), qMax(1, qRound(size.height() * scale)));
}

QImage KalPictureStore::fitted(const QImage &picture, int limit)
{
    if (picture.isNull())
        return QImage();
    QImage result = picture;
    const QSize target = fittedSize(picture.size(), limit);
    if (target != picture.size())
        result = picture.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (result.hasAlphaChannel()) {
        // JPEG has no transparency: lay it on white, as a page would show it.
        QImage flat(result.size(), QImage::Format_RGB32);
        flat.fill(Qt::white);
        QPainter painter(&flat);
        painter.drawImage(0, 0, result);
        painter.end();
        return flat;
    }
    // The JPEG writer reads any other format (16-bit, indexed) as 32-bit rows.
    if (result.format() != QImage::Format_RGB32 && result.format() != QImage::Format_Grayscale8)
        result = result.convertToFormat(QImage::Format_RGB32);
    return result;
}

QByteArray KalPictureStore::encodeJpeg(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(100);
    if (picture.isNull() || !writer.write(picture))
        return QByteArray();
    return bytes;
}

bool KalPictureStore::prepare(const QImage &fittedPicture, KalStoredPicture *out, QString *error)
{
    const QImage thumb = fitted(fittedPicture, thumbnailSize);
    if (fittedPicture.isNull() || thumb.isNull()) {
        *error = tr("Das Bild ist leer.");
        return false;
    }
    out->picture = encodeJpeg(fittedPicture);
    out->thumbnail = encodeJpeg(thumb);
    if (out->picture.isEmpty() || out->thumbnail.isEmpty()) {
        *error = tr("Das Bild konnte nicht als JPEG gespeichert werden.");
        return false;
    }
    out->size = fittedPicture.size();
    out->thumbnailSize = thumb.size();
    return true;
}

bool KalPictureStore::isTruncatedJpeg(const QByteArray &data)
{
    if (!data.startsWith("\xFF\xD8"))
        return false;
    // Inside entropy-coded data 0xFF is always stuffed, so a start of scan
    // after the last end marker means the last scan was cut off; a
    // thumbnail's end marker in the EXIF block comes before every scan.
    // Searching from the end keeps this cheap for the usual complete file.
    const int lastEnd = data.lastIndexOf("\xFF\xD9");
    return lastEnd < 0 || data.indexOf("\xFF\xDA", lastEnd) >= 0;
}

QImage KalPictureStore::decodeFitted(const QByteArray &data, int limit, QString *error)
{
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    // The EXIF orientation is applied below by its value only.
    reader.setAutoTransform(false);
    const QSize size = reader.size();
    if (!size.isValid() || size.isEmpty()) {
        *error = tr("Unbekanntes Bildformat oder unbekannte Bildgröße.");
        return QImage();
    }
    if (qint64(size.width()) * size.height() > maximumPixels) {
        *error = tr("Das Bild ist mit %1 × %2 Pixeln zu groß.").arg(size.width()).arg(size.height());
        return QImage();
    }
    const bool jpeg = reader.format() == "jpeg";
    if (jpeg && isTruncatedJpeg(data)) {
        *error = tr("Die JPEG-Datei ist unvollständig.");
        return QImage();
    }
    const int rotation = jpeg ? rotationFor(exifOrientation(data)) : 0;
    const bool turned = rotation == 90 || rotation == 270;
    // The target is fitted as the picture will stand, then decoded unturned
    // at that size: libjpeg scales while decoding, far cheaper than after.
    const QSize standing = turned ? size.transposed() : size;
    const QSize fit = fittedSize(standing, limit);
    const QSize target = turned ? fit.transposed() : fit;
    if (target != size)
        reader.setScaledSize(target);
    QImage image;
    if (!reader.read(&image) || image.isNull()) {
        *error = reader.errorString();
        return QImage();
    }
    if (rotation != 0)
        image = image.transformed(QTransform().rotate(rotation));
    // fitted() also catches readers that ignored the scaled size.
    return fitted(image, limit);
}
