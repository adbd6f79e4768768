#include "KalTestImages.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QtEndian>
#include <cstdio>
#include <jpeglib.h>

namespace {

// Little helpers to write TIFF values in the chosen byte order.
struct TiffWriter
{
    bool big;
    QByteArray bytes;
    template <typename T> void put(T v)
    {
        char b[sizeof(T)];
        big ? qToBigEndian(v, b) : qToLittleEndian(v, b);
        bytes.append(b, sizeof(T));
    }
    void u16(quint16 v) { put(v); }
    void u32(quint32 v) { put(v); }
    void entry(quint16 tag, quint16 type, quint32 count, quint32 valueOrOffset, bool shortValue = false)
    {
        u16(tag);
        u16(type);
        u32(count);
        if (shortValue) {
            u16(quint16(valueOrOffset));
            u16(0);
        } else {
            u32(valueOrOffset);
        }
    }
};

quint32 crc32(const QByteArray &data)
{
    quint32 crc = 0xFFFFFFFFu;
    for (const char c : data) {
        crc ^= quint8(c);
        for (int k = 0; k < 8; ++k)
            crc = (crc & 1) ? (crc >> 1) ^ 0xEDB88320u : crc >> 1;
    }
    return crc ^ 0xFFFFFFFFu;
}

} // namespace

namespace KalTestImages {

QImage marked(const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor(128, 128, 128));
    QPainter painter(&picture);
    painter.fillRect(0, 0, qMax(1, size.width() / 10), qMax(1, size.height() / 10), Qt::red);
    return picture;
}

int redCorner(const QImage &picture)
{
    const int w = picture.width();
    const int h = picture.height();
    const int dx = qMax(0, w / 40);
    const int dy = qMax(0, h / 40);
    const QPoint corners[] = {{dx, dy}, {w - 1 - dx, dy}, {w - 1 - dx, h - 1 - dy}, {dx, h - 1 - dy}};
    for (int i = 0; i < 4; ++i) {
        const QColor c = picture.pixelColor(corners[i]);
        if (c.red() > 200 && c.green() < 60 && c.blue() < 60)
            return i;
    }
    return -1;
}

// A bare EXIF APP1 segment (marker and length included).
static QByteArray exifSegment(const Exif &exif)
{
    TiffWriter tiff{exif.bigEndian, {}};
    tiff.bytes.append(exif.bigEndian ? "MM" : "II");
    tiff.u16(42);
    tiff.u32(8);
    const bool hasDate = !exif.dateTaken.isEmpty();
    const quint16 count = quint16((exif.orientation >= 0 ? 1 : 0) + (hasDate ? 1 : 0));
    // IFD0 at 8: count, entries, next IFD; the EXIF IFD and the date follow.
    const quint32 exifIfd = 8 + 2 + 12 * count + 4;
    const quint32 dateAt = exifIfd + 2 + 12 + 4;
    const quint32 bad = exif.brokenOffsets ? 0x7FFFFFF0u : 0;
    tiff.u16(count);
    if (exif.orientation >= 0) {
        // A broken block claims a run of shorts stored far beyond its end.
        if (exif.brokenOffsets)
            tiff.entry(0x0112, 3, 4000, bad);
        else
            tiff.entry(0x0112, 3, 1, quint32(exif.orientation), true);
    }
    if (hasDate)
        tiff.entry(0x8769, 4, 1, bad ? bad : exifIfd);
    tiff.u32(0);
    if (hasDate) {
        const QByteArray date = exif.dateTaken.toLatin1() + '\0';
        tiff.u16(1);
        tiff.entry(0x9003, 2, quint32(date.size()), bad ? bad : dateAt);
        tiff.u32(0);
        tiff.bytes.append(date);
    }
    const QByteArray body = QByteArray("Exif\0\0", 6) + tiff.bytes;
    QByteArray segment("\xFF\xE1");
    const quint16 length = quint16(body.size() + 2);
    segment.append(char(length >> 8)).append(char(length & 0xFF));
    return segment + body;
}

QByteArray encoded(const QImage &picture, const char *format, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    writer.write(picture);
    return bytes;
}

QByteArray jpeg(const QImage &picture, const Exif &exif, int quality)
{
    const QByteArray bytes = encoded(picture, "jpeg", quality);
    if (exif.orientation < 0 && exif.dateTaken.isEmpty())
        return bytes;
    // Qt writes a JFIF APP0 first; cameras put APP1 right after the start marker.
    return bytes.left(2) + exifSegment(exif) + bytes.mid(2);
}

QByteArray cmykJpeg(const QSize &size)
{
    jpeg_compress_struct cinfo;
    jpeg_error_mgr jerr;
    cinfo.err = jpeg_std_error(&jerr);
    jpeg_create_compress(&cinfo);
    unsigned char *out = nullptr;
    unsigned long outSize = 0;
    jpeg_mem_dest(&cinfo, &out, &outSize);
    cinfo.image_width = JDIMENSION(size.width());
    cinfo.image_height = JDIMENSION(size.height());
    cinfo.input_components = 4;
    cinfo.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&cinfo);
    cinfo.write_Adobe_marker = TRUE;
    jpeg_start_compress(&cinfo, TRUE);
    // Adobe CMYK is stored inverted: 255 = no ink. Cyan ink only.
    QByteArray row = QByteArray("\0\xFF\xFF\xFF", 4).repeated(size.width());
    while (cinfo.next_scanline < cinfo.image_height) {
        JSAMPROW line = reinterpret_cast<JSAMPROW>(row.data());
        jpeg_write_scanlines(&cinfo, &line, 1);
    }
    jpeg_finish_compress(&cinfo);
    jpeg_destroy_compress(&cinfo);
    const QByteArray result(reinterpret_cast<const char *>(out), int(outSize));
    free(out);
    return result;
}

QByteArray gif(const QImage &picture)
{
    // Qt reads GIF but cannot write it. Two colours, grey and red; with a
    // minimum code size of 7 every code is one byte, and a clear code every
    // hundred pixels keeps the decoder's table from growing wider.
    const auto u16 = [](QByteArray &b, int v) { b.append(char(v & 0xFF)).append(char(v >> 8)); };
    QByteArray out("GIF89a");
    u16(out, picture.width());
    u16(out, picture.height());
    out.append(char(0xF6)).append('\0').append('\0');
    QByteArray palette(128 * 3, '\0');
    palette[0] = palette[1] = palette[2] = char(128);
    palette[3] = char(255);
    out.append(palette);
    out.append(char(0x2C));
    u16(out, 0);
    u16(out, 0);
    u16(out, picture.width());
    u16(out, picture.height());
    out.append('\0').append(char(7));
    QByteArray codes;
    int run = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (run++ % 100 == 0)
                codes.append(char(128));
            const QColor c = picture.pixelColor(x, y);
            codes.append(char(c.red() > 200 && c.green() < 60 ? 1 : 0));
        }
    }
    codes.append(char(129));
    for (int at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        out.append(char(block.size())).append(block);
    }
    out.append('\0').append(char(0x3B));
    return out;
}

QByteArray pngHeaderOnly(const QSize &size)
{
    QByteArray ihdr("IHDR");
    char b[4];
    qToBigEndian(quint32(size.width()), b);
    ihdr.append(b, 4);
    qToBigEndian(quint32(size.height()), b);
    ihdr.append(b, 4);
    ihdr.append("\x08\x02\x00\x00\x00", 5); // 8-bit RGB
    QByteArray png("\x89PNG\r\n\x1a\n", 8);
    qToBigEndian(quint32(13), b);
    png.append(b, 4).append(ihdr);
    qToBigEndian(crc32(ihdr), b);
    png.append(b, 4);
    return png;
}

} // namespace KalTestImages
