// Photo import and shrinking against libjpeg's own tools, in the same run:
// one import of a 12-megapixel camera photo (EXIF orientation 6) against
// "djpeg -scale 1/4 | cjpeg -quality 100", the peak memory of adding 200
// such photos to one defect, and time and memory of shrinking 2,000 photos.
// Each memory figure comes from a child process of its own.
//
//   bench_photos [--runs N] [--photos N] [--shrink N]
//   bench_photos --phase write FILE.jpg     (only writes the camera photo)
#include "KalBenchSupport.h"
#include "core/photos/KalPhotos.h"
#include "core/photos/KalPictureStore.h"
#include "core/project/KalDefects.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <sys/resource.h>

using namespace KalBench;

namespace {

double milliseconds(const QElapsedTimer &t)
{
    return t.nsecsElapsed() / 1e6;
}

// CPU time is steadier than wall time on a shared machine: other programs'
// load slows both sides alike, but waiting for the processor counts in neither.
double processCpuMs()
{
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return ts.tv_sec * 1e3 + ts.tv_nsec / 1e6;
}

// A camera-like 4000 x 3000 picture: smooth light, edges and sensor noise,
// so the JPEG has the size and the decoding cost of a real photo.
QByteArray cameraJpeg()
{
    QImage picture(4000, 3000, QImage::Format_RGB32);
    auto *random = QRandomGenerator::global();
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int noise = int(random->bounded(24u)) - 12;
            const int r = qBound(0, 90 + x / 40 + noise, 255);
            const int g = qBound(0, 80 + y / 30 + noise, 255);
            const int b = qBound(0, 60 + (x + y) / 60 + noise, 255);
            line[x] = qRgb(r, g, b);
        }
    }
    QPainter painter(&picture);
    for (int i = 0; i < 300; ++i) {
        painter.setPen(QPen(QColor::fromHsv(int(random->bounded(360u)), 180, 200), 1 + random->bounded(12u)));
        painter.drawLine(int(random->bounded(4000u)), int(random->bounded(3000u)), int(random->bounded(4000u)),
                         int(random->bounded(3000u)));
    }
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(92);
    writer.write(picture);
    // An EXIF block with orientation 6 (the camera held upright), big-endian
    // as many cameras write it.
    const QByteArray tiff("MM\x00\x2A\x00\x00\x00\x08"
                          "\x00\x01"
                          "\x01\x12\x00\x03\x00\x00\x00\x01\x00\x06\x00\x00"
                          "\x00\x00\x00\x00",
                          8 + 2 + 12 + 4);
    const QByteArray body = QByteArray("Exif\0\0", 6) + tiff;
    QByteArray app1("\xFF\xE1");
    app1.append(char((body.size() + 2) >> 8)).append(char((body.size() + 2) & 0xFF)).append(body);
    return bytes.left(2) + app1 + bytes.mid(2);
}

// Wall and CPU milliseconds of the floor pipeline; wall -1 when it failed.
QPair<double, double> floorRun(const QString &file, const QString &out)
{
    QElapsedTimer t;
    t.start();
    const double cpu = childrenCpuMs();
    const int code = QProcess::execute(
        QStringLiteral("sh"),
        {QStringLiteral("-c"), QStringLiteral("djpeg -scale 1/4 '%1' | cjpeg -quality 100 > '%2'").arg(file, out)});
    return {code == 0 ? milliseconds(t) : -1, childrenCpuMs() - cpu};
}

int importOnce(const QString &file, int runs)
{
    KalProject project;
    if (!project.newProject())
        return 1;
    // The whole import, and its parts: read and decode (with orientation and
    // fit), encode picture and thumbnail, write the row.
    QVector<double> times, cpuTimes, decode, encode, insert;
    for (int i = 0; i < runs; ++i) {
        KalPictureStore store(project.database(), KalPictureStore::Kind::Photo);
        QElapsedTimer t;
        t.start();
        const double cpu = processCpuMs();
        QString error;
        if (store.insertFromFile(file, &error) < 0) {
            std::fprintf(stderr, "import failed: %s\n", qPrintable(error));
            return 1;
        }
        times << milliseconds(t);
        cpuTimes << processCpuMs() - cpu;
        t.restart();
        QFile in(file);
        in.open(QIODevice::ReadOnly);
        const QImage picture = KalPictureStore::decodeFitted(in.readAll(), 1000, &error);
        decode << milliseconds(t);
        t.restart();
        KalStoredPicture stored;
        KalPictureStore::prepare(picture, &stored, &error);
        encode << milliseconds(t);
        t.restart();
        store.insertPrepared(stored, &error);
        insert << milliseconds(t);
    }
    std::printf("%.2f %.2f %.2f %.2f %.2f\n", median(times), median(decode), median(encode), median(insert),
                median(cpuTimes));
    project.closeProject();
    return 0;
}

int importMany(const QString &file, int photos)
{
    KalProject project;
    if (!project.newProject())
        return 1;
    const qint64 defect = KalDefects(project).add();
    QElapsedTimer t;
    t.start();
    const KalPhotoImport result =
        KalPhotos(&project).addFiles(defect, QStringList(QVector<QString>(photos, file).toList()));
    const double ms = milliseconds(t);
    std::printf("%d %.0f %ld\n", int(result.photoInfoIds.size()), ms, peakRssKb());
    project.closeProject();
    return result.failedFiles.isEmpty() ? 0 : 1;
}

int shrinkMany(const QString &file, int photos)
{
    KalProject project;
    if (!project.newProject())
        return 1;
    QFile in(file);
    in.open(QIODevice::ReadOnly);
    QString error;
    KalStoredPicture stored;
    if (!KalPictureStore::prepare(KalPictureStore::decodeFitted(in.readAll(), 1000, &error), &stored, &error))
        return 1;
    project.beginTransaction();
    for (int i = 0; i < photos; ++i)
        KalPictureStore(project.database(), KalPictureStore::Kind::Photo).insertPrepared(stored, &error);
    project.commitTransaction();
    QElapsedTimer t;
    t.start();
    const KalShrinkResult result = project.shrinkImages(500);
    const double ms = milliseconds(t);
    std::printf("%d %.0f %ld\n", result.done, ms, peakRssKb());
    project.closeProject();
    return result.done == photos ? 0 : 1;
}

QStringList child(const QStringList &args)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p.start(QCoreApplication::applicationFilePath(), args);
    if (!p.waitForFinished(-1) || p.exitCode() != 0)
        return {};
    return QString::fromLatin1(p.readAllStandardOutput()).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick Bench"));
    KalPrompt::install(new KalStderrPrompt(true));
    const QStringList args = app.arguments();
    const auto option = [&](const char *name, int fallback) {
        const int at = args.indexOf(QLatin1String(name));
        return at > 0 && at + 1 < args.size() ? args.at(at + 1).toInt() : fallback;
    };
    const int runs = option("--runs", 9);
    const int photos = option("--photos", 200);
    const int shrinkCount = option("--shrink", 2000);
    const int phase = args.indexOf(QStringLiteral("--phase"));
    if (phase > 0 && phase + 2 < args.size()) {
        const QString name = args.at(phase + 1);
        const QString file = args.at(phase + 2);
        if (name == QLatin1String("write")) {
            QFile out(file);
            return out.open(QIODevice::WriteOnly) && out.write(cameraJpeg()) > 0 ? 0 : 1;
        }
        if (name == QLatin1String("one"))
            return importOnce(file, runs);
        if (name == QLatin1String("many"))
            return importMany(file, photos);
        return shrinkMany(file, shrinkCount);
    }

    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("camera.jpg"));
    {
        QFile out(file);
        out.open(QIODevice::WriteOnly);
        out.write(cameraJpeg());
    }
    std::printf("photo: 4000 x 3000, %lld KB, EXIF orientation 6\n", QFile(file).size() / 1024);

    // Interleave floor and import runs so load from other processes hits both alike.
    QVector<double> floorTimes;
    QVector<double> importTimes;
    QVector<double> parts[3];
    QVector<double> floorCpu;
    QVector<double> importCpu;
    for (int i = 0; i < runs; ++i) {
        const QPair<double, double> floor = floorRun(file, dir.filePath(QStringLiteral("floor.jpg")));
        floorTimes << floor.first;
        floorCpu << floor.second;
        const QStringList one = child(
            {QStringLiteral("--runs"), QStringLiteral("3"), QStringLiteral("--phase"), QStringLiteral("one"), file});
        if (one.isEmpty() || floorTimes.last() < 0) {
            std::fprintf(stderr, "a run failed (djpeg/cjpeg from libjpeg-turbo-progs installed?)\n");
            return 1;
        }
        importTimes << one.first().toDouble();
        for (int k = 0; k < 3; ++k)
            parts[k] << one.value(k + 1).toDouble();
        importCpu << one.value(4).toDouble();
    }
    const double floorMs = median(floorTimes);
    const double importMs = median(importTimes);
    std::printf("floor djpeg -scale 1/4 | cjpeg -quality 100: %.1f ms\n", floorMs);
    std::printf("one import (decode, orient, fit, encode, thumbnail, insert): %.1f ms\n", importMs);
    std::printf("  of which read and decode %.1f ms, encode %.1f ms, write the row %.1f ms\n", median(parts[0]),
                median(parts[1]), median(parts[2]));
    std::printf("import_ratio: %.2f (goal: <= 1.3)\n", importMs / floorMs);
    std::printf("import_cpu_ratio: %.2f (%.1f ms against %.1f ms of processor time; goal: <= 1.3)\n",
                median(importCpu) / median(floorCpu), median(importCpu), median(floorCpu));

    const QStringList many = child(
        {QStringLiteral("--photos"), QString::number(photos), QStringLiteral("--phase"), QStringLiteral("many"), file});
    if (many.size() == 3)
        std::printf("import_%d_photos: %s ms, peak_rss: %.0f MB (goal: < 300 MB)\n", photos, qPrintable(many.at(1)),
                    many.at(2).toDouble() / 1024);
    const QStringList shrunk = child({QStringLiteral("--shrink"), QString::number(shrinkCount),
                                      QStringLiteral("--phase"), QStringLiteral("shrink"), file});
    if (shrunk.size() == 3)
        std::printf("shrink_%d_photos 1000 -> 500: %s ms (%.1f ms each), peak_rss: %.0f MB (goal: < 300 MB)\n",
                    shrunk.at(0).toInt(), qPrintable(shrunk.at(1)), shrunk.at(1).toDouble() / qMax(1, shrinkCount),
                    shrunk.at(2).toDouble() / 1024);
    return many.size() == 3 && shrunk.size() == 3 ? 0 : 1;
}
