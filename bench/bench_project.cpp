// Opening and saving a large project against copying the file with the
// system's tools, measured in the same run, plus the peak memory of a
// process that has the project open.
//
//   bench_project [--defects N] [--photos N] [--photo-kb N] [--runs N] [--keep DIR]
#include "KalBenchSupport.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>
#include <algorithm>
#include <cstdio>

using namespace KalBench;

namespace {

double seconds(const QElapsedTimer &t)
{
    return t.nsecsElapsed() / 1e9;
}

double shell(const QString &command)
{
    QElapsedTimer t;
    t.start();
    if (QProcess::execute(QStringLiteral("sh"), {QStringLiteral("-c"), command}) != 0)
        std::fprintf(stderr, "command failed: %s\n", qPrintable(command));
    return seconds(t);
}

void dropCaches()
{
    // Keep the runs comparable: every measurement starts from the page cache
    // state the previous one left, so flush dirty pages first.
    QProcess::execute(QStringLiteral("sync"), {});
}

bool generate(const QString &file, int defects, int photos, int photoKb)
{
    KalProject project;
    if (!project.newProject())
        return false;
    QSqlDatabase db = project.database();
    auto *random = QRandomGenerator::global();
    project.beginTransaction();
    QSqlQuery company(db);
    company.prepare(QStringLiteral("INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, "
                                   "telephone, telefax, mobile, email, pos) VALUES (:id, :type, '', '', :name, '', '', "
                                   "'', '', '', '', '', :id)"));
    for (int i = 1; i <= 60; ++i) {
        company.bindValue(QStringLiteral(":id"), i);
        company.bindValue(QStringLiteral(":type"), QStringLiteral("Gewerk %1").arg(i));
        company.bindValue(QStringLiteral(":name"), QStringLiteral("Firma %1 GmbH").arg(i));
        company.exec();
    }
    QSqlQuery defect(db);
    defect.prepare(QStringLiteral(
        "INSERT INTO defect (id, number, description, company_id, type, user_id, creation_date, roomname, "
        "roombook_number, plan_info_id, image_cnt, correction_instruction, priority, correction_date, status_id, "
        "reduction) VALUES (:id, :number, :description, :company, 'Mangel vor Abnahme', 'AB', '2026-03-01', :room, "
        ":rb, -1, 0, 'Nachbessern', 'Normal', '2026-06-01', :status, 0)"));
    for (int i = 1; i <= defects; ++i) {
        defect.bindValue(QStringLiteral(":id"), i);
        defect.bindValue(QStringLiteral(":number"), QString::number(i));
        defect.bindValue(QStringLiteral(":description"),
                         QStringLiteral("Putzriss an der Wand neben der Tür, Länge ca. %1 cm").arg(i % 97));
        defect.bindValue(QStringLiteral(":company"), 1 + i % 60);
        defect.bindValue(QStringLiteral(":room"), QStringLiteral("Raum %1").arg(i % 400));
        defect.bindValue(QStringLiteral(":rb"), QStringLiteral("RB-%1").arg(i % 400));
        defect.bindValue(QStringLiteral(":status"), 1 + i % 8);
        defect.exec();
    }
    project.setIdCounter(QStringLiteral("defect"), defects);
    project.setIdCounter(QStringLiteral("company"), 60);
    QSqlQuery image(db);
    image.prepare(QStringLiteral("INSERT INTO image (image, image_ct, image_width, image_height, thumbnail, "
                                 "thumbnail_ct, thumbnail_width, thumbnail_height) VALUES (:image, 'image/jpeg', 1000, "
                                 "750, :thumb, 'image/jpeg', 240, 180)"));
    QSqlQuery photo(db);
    photo.prepare(QStringLiteral("INSERT INTO photo_info (id, caption, comment, date, defect_id, image_id, pos) "
                                 "VALUES (:id, 'Foto', '', '2026-03-01', :defect, :image, 1)"));
    QByteArray bytes(photoKb * 1024, Qt::Uninitialized);
    QByteArray thumb(12 * 1024, Qt::Uninitialized);
    for (int i = 1; i <= photos; ++i) {
        // Incompressible bytes, like JPEG data.
        random->fillRange(reinterpret_cast<quint32 *>(bytes.data()), bytes.size() / 4);
        random->fillRange(reinterpret_cast<quint32 *>(thumb.data()), thumb.size() / 4);
        image.bindValue(QStringLiteral(":image"), bytes);
        image.bindValue(QStringLiteral(":thumb"), thumb);
        image.exec();
        photo.bindValue(QStringLiteral(":id"), i);
        photo.bindValue(QStringLiteral(":defect"), 1 + (i * 13) % defects);
        photo.bindValue(QStringLiteral(":image"), image.lastInsertId());
        photo.exec();
        if (i % 200 == 0) {
            project.commitTransaction();
            project.beginTransaction();
        }
    }
    project.setIdCounter(QStringLiteral("photo_info"), photos);
    project.commitTransaction();
    const bool ok = project.saveProject(file) == KalProject::Saved;
    return project.closeProject() && ok;
}

// Child process: open, change one defect, save, report the peak memory.
int measureMemory(const QString &file)
{
    KalProject project;
    if (!project.openProject(file))
        return 1;
    QSqlQuery(project.database()).exec(QStringLiteral("UPDATE defect SET roomname = 'Flur' WHERE id = 1"));
    if (project.saveProject() != KalProject::Saved)
        return 1;
    std::printf("%ld\n", peakRssKb());
    project.closeProject();
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick Bench"));
    KalPrompt::install(new KalStderrPrompt(false));
    const QStringList args = app.arguments();
    if (args.size() == 3 && args.at(1) == QLatin1String("--measure-memory"))
        return measureMemory(args.at(2));

    int defects = 20000, photos = 1500, photoKb = 700, runs = 3;
    QString keep;
    for (int i = 1; i + 1 < args.size(); i += 2) {
        const QString &name = args.at(i);
        const QString &value = args.at(i + 1);
        if (name == QLatin1String("--defects"))
            defects = value.toInt();
        else if (name == QLatin1String("--photos"))
            photos = value.toInt();
        else if (name == QLatin1String("--photo-kb"))
            photoKb = value.toInt();
        else if (name == QLatin1String("--runs"))
            runs = value.toInt();
        else if (name == QLatin1String("--keep"))
            keep = value;
    }

    QTemporaryDir tmp(keep.isEmpty() ? QDir::tempPath() + QStringLiteral("/pellwick-bench-XXXXXX")
                                     : keep + QStringLiteral("/XXXXXX"));
    tmp.setAutoRemove(keep.isEmpty());
    const QString file = tmp.filePath(QStringLiteral("gross.pwp"));
    const QString copy = tmp.filePath(QStringLiteral("kopie.pwp"));
    QElapsedTimer t;
    t.start();
    if (!generate(file, defects, photos, photoKb)) {
        std::fprintf(stderr, "could not generate the project\n");
        return 1;
    }
    std::printf("generated: %d defects, %d photos, %.0f MB in %.1f s\n", defects, photos, QFileInfo(file).size() / 1e6,
                seconds(t));

    QVector<double> openTimes, openPeers, saveTimes, savePeers;
    for (int run = 0; run < runs; ++run) {
        dropCaches();
        openPeers << shell(
            QStringLiteral("cp '%1' '%2' && sync && sqlite3 '%2' 'PRAGMA quick_check' >/dev/null && rm '%2'")
                .arg(file, copy));
        dropCaches();
        KalProject project;
        t.restart();
        if (!project.openProject(file))
            return 1;
        openTimes << seconds(t);

        dropCaches();
        savePeers << shell(QStringLiteral("cp '%1' '%2' && sync && rm '%2'").arg(file, copy));
        dropCaches();
        QSqlQuery(project.database()).exec(QStringLiteral("UPDATE defect SET roomname = 'Flur' WHERE id = 1"));
        t.restart();
        if (project.saveProject() != KalProject::Saved)
            return 1;
        saveTimes << seconds(t);
        project.closeProject();
    }
    auto best = [](QVector<double> v) { return *std::min_element(v.begin(), v.end()); };
    const double open = best(openTimes), openPeer = best(openPeers);
    const double save = best(saveTimes), savePeer = best(savePeers);
    std::printf("open_seconds: %.3f (peer cp+sync+quick_check %.3f)\n", open, openPeer);
    std::printf("open_ratio: %.2f (goal: <= 1.3)\n", open / openPeer);
    std::printf("save_seconds: %.3f (peer cp+sync %.3f)\n", save, savePeer);
    std::printf("save_ratio: %.2f (goal: <= 1.5)\n", save / savePeer);

    QProcess child;
    child.start(app.applicationFilePath(), {QStringLiteral("--measure-memory"), file});
    child.waitForFinished(-1);
    const long peakKb = QString::fromUtf8(child.readAllStandardOutput()).trimmed().toLong();
    std::printf("peak_memory_mb: %.1f (goal: < 150)\n", peakKb / 1024.0);
    return 0;
}
