// The detailed defect list with thumbnails, photo annex and plan annex as PDF,
// against img2pdf (pass-through, no re-encoding) over the same photos, in the
// same run: time, file size against the stored JPEG bytes, and the peak
// memory of the printing process (a child of its own, so that generating the
// data does not count).
//
//   bench_print [--defects N]                (default 1,000, 3 photos each, 20 plans)
//   bench_print --phase print PROJECT OUT.pdf
#include "KalBenchSupport.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/reports/KalPrintDefects.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImageWriter>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <sys/resource.h>

using namespace KalBench;

namespace {

const int PhotosPerDefect = 3;
const int Plans = 20;
const int DistinctPhotos = 60;

// A photo as the store keeps it: 1000 x 750, smooth light, edges and some
// sensor noise, quality 100 (about 300 KB, as stored camera photos are).
QByteArray storedPhoto(int seed, const QSize &size, int quality = 100)
{
    QImage picture(size, QImage::Format_RGB32);
    QRandomGenerator random(seed);
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int noise = int(random.bounded(6u)) - 3;
            const int base = (x * 255 / picture.width() + seed * 37) % 256;
            line[x] = qRgb(qBound(0, base + noise, 255), qBound(0, (y * 255 / picture.height()) + noise, 255),
                           qBound(0, 128 + noise + ((x / 40 + y / 40) % 2) * 60, 255));
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    writer.write(picture);
    return bytes;
}

// A plan as the store keeps it: 5000 x 3500, walls and grid lines on white.
QByteArray storedPlan()
{
    QImage picture(5000, 3500, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::black, 12));
    for (int x = 100; x < 5000; x += 450)
        painter.drawLine(x, 100, x + 200, 3400);
    for (int y = 100; y < 3500; y += 380)
        painter.drawLine(100, y, 4900, y + 60);
    painter.setPen(QPen(Qt::gray, 3));
    for (int x = 0; x < 5000; x += 250)
        painter.drawLine(x, 0, x, 3500);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(100);
    writer.write(picture);
    return bytes;
}

// Returns the photo files (one per photo row, as img2pdf gets them) and the
// sum of the stored picture bytes the list prints.
bool generate(KalProject &project, int defects, const QString &photoDir, QStringList *photoFiles, qint64 *storedBytes)
{
    QVector<QByteArray> photos;
    QVector<QString> files;
    const QByteArray thumbnail = storedPhoto(1, QSize(240, 180), 90);
    for (int i = 0; i < DistinctPhotos; ++i) {
        photos << storedPhoto(i, QSize(1000, 750));
        files << QDir(photoDir).filePath(QStringLiteral("photo%1.jpg").arg(i));
        QFile f(files.last());
        if (!f.open(QIODevice::WriteOnly) || f.write(photos.last()) != photos.last().size())
            return false;
    }
    const QByteArray plan = storedPlan();
    project.beginTransaction();
    QSqlQuery q(project.database());
    q.prepare(QStringLiteral("INSERT INTO plan (id, plan, plan_ct, plan_width, plan_height, thumbnail, thumbnail_ct, "
                             "thumbnail_width, thumbnail_height) VALUES (:id, :p, 'image/jpeg', 5000, 3500, :t, "
                             "'image/jpeg', 240, 168)"));
    for (int i = 1; i <= Plans; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":p"), plan);
        q.bindValue(QStringLiteral(":t"), thumbnail);
        if (!exec(q))
            return false;
        *storedBytes += plan.size();
    }
    q.prepare(QStringLiteral("INSERT INTO plan_info (id, plan_name, plan_index, date, plan_id, pos) VALUES (:id, "
                             ":name, 'A', '2026-01-01', :id, :id)"));
    for (int i = 1; i <= Plans; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":name"), QStringLiteral("Geschoss %1").arg(i));
        if (!exec(q))
            return false;
    }
    QSqlQuery d(project.database());
    d.prepare(QStringLiteral("INSERT INTO defect (id, number, description, roomname, plan_info_id, image_cnt, "
                             "status_id, reduction, creation_date) VALUES (:id, :n, :text, 'Raum', :plan, 3, 1, "
                             ":red, '2026-02-03')"));
    QSqlQuery m(project.database());
    m.prepare(QStringLiteral("INSERT INTO marker (type, pos_x, pos_y, scale_factor, rotation_angle, color1, color2, "
                             "linewidth, transform_point_x, transform_point_y, plan_info_id, defect_id) VALUES (1, :x, "
                             ":y, 1, 0, '#ffff00', '#000000', 2, 0, 0, :plan, :id)"));
    QSqlQuery img(project.database());
    img.prepare(QStringLiteral("INSERT INTO image (id, image, image_ct, image_width, image_height, thumbnail, "
                               "thumbnail_ct, thumbnail_width, thumbnail_height) VALUES (:id, :i, 'image/jpeg', "
                               "1000, 750, :t, 'image/jpeg', 240, 180)"));
    QSqlQuery info(project.database());
    info.prepare(QStringLiteral("INSERT INTO photo_info (id, caption, comment, date, defect_id, image_id, pos) "
                                "VALUES (:id, :caption, '', '2026-02-03', :defect, :id, :pos)"));
    int photoId = 0;
    for (int i = 1; i <= defects; ++i) {
        const int planId = 1 + i % Plans;
        d.bindValue(QStringLiteral(":id"), i);
        d.bindValue(QStringLiteral(":n"), QString::number(i));
        d.bindValue(QStringLiteral(":text"),
                    QStringLiteral("Putzriss an der Nordwand neben dem Fenster, Breite etwa %1 mm").arg(i % 5 + 1));
        d.bindValue(QStringLiteral(":plan"), planId);
        d.bindValue(QStringLiteral(":red"), i % 7 == 0 ? 1 : 0);
        m.bindValue(QStringLiteral(":x"), 200 + (i * 397) % 4600);
        m.bindValue(QStringLiteral(":y"), 200 + (i * 211) % 3100);
        m.bindValue(QStringLiteral(":plan"), planId);
        m.bindValue(QStringLiteral(":id"), i);
        if (!exec(d) || !exec(m))
            return false;
        for (int p = 0; p < PhotosPerDefect; ++p) {
            ++photoId;
            const int which = photoId % DistinctPhotos;
            img.bindValue(QStringLiteral(":id"), photoId);
            img.bindValue(QStringLiteral(":i"), photos.at(which));
            img.bindValue(QStringLiteral(":t"), thumbnail);
            info.bindValue(QStringLiteral(":id"), photoId);
            info.bindValue(QStringLiteral(":caption"), QStringLiteral("Foto %1").arg(p + 1));
            info.bindValue(QStringLiteral(":defect"), i);
            info.bindValue(QStringLiteral(":pos"), p);
            if (!exec(img) || !exec(info))
                return false;
            *photoFiles << files.at(which);
            *storedBytes += photos.at(which).size() + thumbnail.size();
        }
    }
    return project.commitTransaction();
}

int printPhase(const QString &projectFile, const QString &out)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("bench"));
    db.setDatabaseName(projectFile);
    db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!db.open())
        return 1;
    QString error;
    const QVector<qint64> ids = KalPrintDefects::allByNumber(db, &error);
    KalPrintOptions options = KalPrintOptions::fromSettings();
    options.layout = KalPrintOptions::Detailed;
    options.photosInList = true;
    options.photoAnnex = true;
    options.planAnnex = true;
    KalPrintDefects job(db, ids, options);
    if (!job.writePdf(out, &error)) {
        std::fprintf(stderr, "print: %s\n", qPrintable(error));
        return 1;
    }
    std::printf("%d %ld\n", job.pageCount(), peakRssKb());
    return 0;
}

// Wall time of a child; its processor time in `cpuMs` (steadier on a shared
// machine: waiting for a core counts in neither).
double runTimed(const QString &program, const QStringList &args, QByteArray *output, double *cpuMs)
{
    QElapsedTimer timer;
    timer.start();
    const double cpuBefore = childrenCpuMs();
    QProcess p;
    p.start(program, args);
    p.waitForFinished(-1);
    *cpuMs = childrenCpuMs() - cpuBefore;
    if (output)
        *output = p.readAllStandardOutput();
    if (p.exitCode() != 0)
        std::fprintf(stderr, "%s failed: %s\n", qPrintable(program), p.readAllStandardError().constData());
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    KalPrompt::install(new KalBenchPrompt(KalBenchPrompt::LastButton, KalBenchPrompt::Everything));
    const QStringList args = app.arguments();
    if (args.size() == 5 && args.at(1) == QLatin1String("--phase"))
        return printPhase(args.at(3), args.at(4));
    const int at = args.indexOf(QStringLiteral("--defects"));
    const int defects = at > 0 && at + 1 < args.size() ? args.at(at + 1).toInt() : 1000;

    QTemporaryDir dir;
    dir.setAutoRemove(qEnvironmentVariableIsEmpty("BENCH_KEEP"));
    QStringList photoFiles;
    qint64 storedBytes = 0;
    const QString projectFile = dir.filePath(QStringLiteral("bench.pwp"));
    {
        KalProject project;
        if (!project.newProject() || !generate(project, defects, dir.path(), &photoFiles, &storedBytes) ||
            project.saveProject(projectFile) != 0) {
            std::fprintf(stderr, "could not generate the project\n");
            return 1;
        }
        project.closeProject();
    }
    const QString ours = dir.filePath(QStringLiteral("list.pdf"));
    QByteArray childOut;
    double printCpu = 0;
    double peerCpu = 0;
    const double printMs =
        runTimed(app.applicationFilePath(), {"--phase", "print", projectFile, ours}, &childOut, &printCpu);
    const QStringList figures = QString::fromLatin1(childOut).split(QLatin1Char(' '));
    const QString peer = dir.filePath(QStringLiteral("img2pdf.pdf"));
    const double peerMs = runTimed(QStringLiteral("img2pdf"), QStringList{"-o", peer} + photoFiles, nullptr, &peerCpu);
    const double pdfBytes = QFileInfo(ours).size();

    std::printf("defects: %d, photos: %d, plans: %d, pages: %s\n", defects, int(photoFiles.size()), Plans,
                qPrintable(figures.value(0)));
    std::printf("print detailed with photos and annexes: %.0f ms wall, %.0f ms cpu\n", printMs, printCpu);
    std::printf("img2pdf over the same photos: %.0f ms wall, %.0f ms cpu\n", peerMs, peerCpu);
    std::printf("print / img2pdf (wall): %.2f (goal: <= 3)\n", printMs / qMax(1.0, peerMs));
    std::printf(
        "print / img2pdf (cpu, all cores): %.2f (the goal is on wall time; this shows the work the decoders share)\n",
        printCpu / qMax(1.0, peerCpu));
    std::printf("pdf size: %.1f MB, stored JPEG bytes: %.1f MB\n", pdfBytes / 1e6, storedBytes / 1e6);
    std::printf("pdf size / stored JPEG bytes: %.2f (goal: <= 1.2)\n", pdfBytes / qMax<qint64>(1, storedBytes));
    std::printf("peak RSS of printing: %.0f MB (goal: < 400 MB for 1,000+ pages)\n",
                figures.value(1).trimmed().toDouble() / 1024);
    return 0;
}
