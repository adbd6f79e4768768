#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

// Real picture files for the picture pipeline: JPEGs carrying an EXIF block
// written byte by byte, so each test controls exactly what a camera would write.
namespace KalTestImages {

// Mid-grey picture with a red block in its top-left corner (a tenth of each side).
QImage marked(const QSize &size);
// The corner (0 top-left, 1 top-right, 2 bottom-right, 3 bottom-left) in
// which `picture` has its red block; -1 when no corner is red.
int redCorner(const QImage &picture);

struct Exif
{
    int orientation = -1; // -1: no orientation entry
    QString dateTaken;    // empty: no date entry; written as given
    bool bigEndian = false;
    bool brokenOffsets = false; // entries point far outside the block
};

// `picture` as JPEG with the EXIF block right after the start marker.
QByteArray jpeg(const QImage &picture, const Exif &exif = Exif(), int quality = 90);
// Picture data as Qt writes it in `format` ("png", "bmp").
QByteArray encoded(const QImage &picture, const char *format, int quality = -1);
// A GIF of a grey-and-red picture such as marked() makes.
QByteArray gif(const QImage &picture);
// A CMYK JPEG (Adobe inverted, as cameras and print tools write it).
QByteArray cmykJpeg(const QSize &size);
// A PNG header claiming `size` with no picture data behind it.
QByteArray pngHeaderOnly(const QSize &size);

} // namespace KalTestImages
