// Importing a large site journal with pellwick-cli against the least any
// import must do, measured in the same run: the journal ATTACHed to a copy
// of the project and its rows and pictures copied with INSERT ... SELECT in
// one committed transaction. Also the peak memory of the CLI (its own
// process, so nothing of this program counts) and an update after 1 % of
// the journal changed against the full import.
//
// The journal is generated once into a cache folder and reused; its size
// follows the options, and it is scaled down (with a note) when the disk
// has no room for it and the copies the run makes.
//
//   bench_import [--defects N] [--reports N] [--photos N] [--photo-kb N]
//                [--cache DIR] [--keep DIR]
// The cache defaults to $PELLWICK_BENCH_CACHE or ~/.cache/pellwick-bench.
#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QVariant>
#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace {

struct Size
{
    int defects = 20000;
    int reports = 500;
    int photos = 30000;
    int photoKb = 66;
};

double seconds(const QElapsedTimer &t)
{
    return t.nsecsElapsed() / 1e9;
}

void syncDisk()
{
    // Every measurement starts with no dirty pages of the previous one.
    ::sync();
}

bool exec(QSqlQuery &query, const QString &sql)
{
    if (query.exec(sql))
        return true;
    std::fprintf(stderr, "%s: %s\n", qPrintable(sql.left(120)), qPrintable(query.lastError().text()));
    return false;
}

// The journal's tables as the site-diary program writes them.
const char *const kJournalSchema[] = {
    "CREATE TABLE id_generator (id_table TEXT PRIMARY KEY, id_counter INTEGER NOT NULL)",
    "CREATE TABLE meta (key TEXT PRIMARY KEY, value TEXT NOT NULL)",
    "CREATE TABLE company (id INTEGER NOT NULL PRIMARY KEY, type TEXT NOT NULL DEFAULT '', firstname TEXT NOT NULL "
    "DEFAULT '', lastname TEXT NOT NULL DEFAULT '', company TEXT NOT NULL DEFAULT '', street TEXT NOT NULL DEFAULT "
    "'', plz TEXT NOT NULL DEFAULT '', city TEXT NOT NULL DEFAULT '', telephone TEXT NOT NULL DEFAULT '', telefax "
    "TEXT NOT NULL DEFAULT '', mobile TEXT NOT NULL DEFAULT '', email TEXT NOT NULL DEFAULT '', category TEXT NOT "
    "NULL DEFAULT '2', modified INTEGER NOT NULL DEFAULT 0)",
    "CREATE TABLE entry (id INTEGER NOT NULL PRIMARY KEY, number TEXT, locked TEXT DEFAULT '0', user_id TEXT, "
    "creation_date DATETIME, inspection_date DATE, exported_by_app INTEGER DEFAULT -1, import_version DATETIME)",
    "CREATE TABLE entry_progress (id INTEGER NOT NULL PRIMARY KEY, entry_id INTEGER NOT NULL, type INTEGER NOT NULL, "
    "relation_id INTEGER DEFAULT -1, photo_id INTEGER DEFAULT -1, number TEXT, description TEXT, company_id INTEGER "
    "DEFAULT -1, roomname TEXT, roombook_number TEXT, date DATE, image_cnt INTEGER DEFAULT 0, correction_date DATE, "
    "modified INTEGER NOT NULL DEFAULT 0)",
    "CREATE TABLE entry_photo (id INTEGER NOT NULL PRIMARY KEY, caption TEXT, date DATE, photo_image_id INTEGER)",
    "CREATE TABLE image (id INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT, image BLOB NOT NULL, image_ct TEXT NOT NULL, "
    "image_width INT NOT NULL, image_height INT NOT NULL, thumbnail BLOB NOT NULL, thumbnail_ct TEXT NOT NULL, "
    "thumbnail_width INT NOT NULL, thumbnail_height INT NOT NULL)",
};

QByteArray encode(const QImage &image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    writer.write(image);
    return bytes;
}

// A camera-like picture within the photo size limit (1000 x 750, no
// orientation tag), JPEG-encoded at the quality that comes closest to `kb`.
struct Picture
{
    QByteArray image;
    QByteArray thumbnail;
};

Picture makePicture(int seed, int kb)
{
    QImage image(1000, 750, QImage::Format_RGB32);
    QRandomGenerator random(quint32(seed + 1));
    {
        QPainter painter(&image);
        QLinearGradient gradient(0, 0, 1000, 750);
        gradient.setColorAt(0, QColor::fromHsv(seed * 37 % 360, 60, 200));
        gradient.setColorAt(1, QColor::fromHsv(seed * 71 % 360, 120, 90));
        painter.fillRect(image.rect(), gradient);
        for (int i = 0; i < 120; ++i) {
            painter.setBrush(QColor::fromHsv(random.bounded(360), random.bounded(256), random.bounded(256)));
            painter.drawEllipse(random.bounded(1000), random.bounded(750), 10 + random.bounded(160),
                                10 + random.bounded(160));
        }
    }
    // Fine grain, like a real photo's texture: it is what makes JPEGs large.
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int n = int(random.bounded(40)) - 20;
            const QRgb p = line[x];
            line[x] = qRgb(qBound(0, qRed(p) + n, 255), qBound(0, qGreen(p) + n, 255), qBound(0, qBlue(p) + n, 255));
        }
    }
    int low = 5;
    int high = 95;
    QByteArray best = encode(image, 50);
    while (low <= high) {
        const int quality = (low + high) / 2;
        const QByteArray bytes = encode(image, quality);
        if (qAbs(bytes.size() - kb * 1024) < qAbs(best.size() - kb * 1024))
            best = bytes;
        if (bytes.size() > kb * 1024)
            high = quality - 1;
        else
            low = quality + 1;
    }
    return {best, encode(image.scaled(240, 180, Qt::KeepAspectRatio, Qt::SmoothTransformation), 75)};
}

bool addPhotos(QSqlDatabase &db, const Size &size, const QVector<Picture> &pictures, int first, int count,
               qint64 firstItemId)
{
    QSqlQuery image(db), photo(db), item(db);
    image.prepare(QStringLiteral("INSERT INTO image (image, image_ct, image_width, image_height, thumbnail, "
                                 "thumbnail_ct, thumbnail_width, thumbnail_height) VALUES (:image, 'image/jpeg', 1000, "
                                 "750, :thumb, 'image/jpeg', 240, 180)"));
    photo.prepare(QStringLiteral("INSERT INTO entry_photo (id, caption, date, photo_image_id) VALUES (:id, :caption, "
                                 "'2026-03-02', :image)"));
    item.prepare(QStringLiteral("INSERT INTO entry_progress (id, entry_id, type, relation_id, photo_id) VALUES (:id, "
                                "(SELECT entry_id FROM entry_progress WHERE id = :defect), 2, :defect, :photo)"));
    for (int i = first; i < first + count; ++i) {
        const Picture &picture = pictures.at(i % pictures.size());
        image.bindValue(QStringLiteral(":image"), picture.image);
        image.bindValue(QStringLiteral(":thumb"), picture.thumbnail);
        photo.bindValue(QStringLiteral(":id"), i + 1);
        photo.bindValue(QStringLiteral(":caption"), QStringLiteral("Foto %1").arg(i + 1));
        if (!image.exec())
            return false;
        photo.bindValue(QStringLiteral(":image"), image.lastInsertId());
        item.bindValue(QStringLiteral(":id"), firstItemId + i - first);
        item.bindValue(QStringLiteral(":defect"), 1 + (qint64(i) * 7) % size.defects);
        item.bindValue(QStringLiteral(":photo"), i + 1);
        if (!photo.exec() || !item.exec())
            return false;
    }
    return true;
}

bool fillJournal(QSqlDatabase &db, const Size &size, const QVector<Picture> &pictures)
{
    QSqlQuery q(db);
    for (const char *sql : kJournalSchema) {
        if (!exec(q, QLatin1String(sql)))
            return false;
    }
    if (!exec(q, QStringLiteral("BEGIN")))
        return false;
    QSqlQuery company(db), report(db), defect(db);
    company.prepare(QStringLiteral("INSERT INTO company (id, type, company, city) VALUES (:id, :type, :name, 'Köln')"));
    for (int i = 1; i <= 60; ++i) {
        company.bindValue(QStringLiteral(":id"), i);
        company.bindValue(QStringLiteral(":type"), QStringLiteral("Gewerk %1").arg(i));
        company.bindValue(QStringLiteral(":name"), QStringLiteral("Firma %1 GmbH").arg(i));
        if (!company.exec())
            return false;
    }
    report.prepare(QStringLiteral("INSERT INTO entry (id, number, user_id, creation_date, inspection_date) VALUES "
                                  "(:id, :id, 'MB', '2026-03-01T08:00:00', '2026-03-01')"));
    for (int i = 1; i <= size.reports; ++i) {
        report.bindValue(QStringLiteral(":id"), i);
        if (!report.exec())
            return false;
    }
    defect.prepare(QStringLiteral(
        "INSERT INTO entry_progress (id, entry_id, type, number, description, company_id, roomname, roombook_number, "
        "date, image_cnt, correction_date) VALUES (:id, :report, 4, :number, :description, :company, :room, :rb, "
        "'2026-03-01', :images, '2026-06-01')"));
    for (int i = 1; i <= size.defects; ++i) {
        defect.bindValue(QStringLiteral(":id"), i);
        defect.bindValue(QStringLiteral(":report"), 1 + (i - 1) % size.reports);
        defect.bindValue(QStringLiteral(":number"), QString::number(i));
        defect.bindValue(QStringLiteral(":description"),
                         QStringLiteral("Putzriss an der Wand neben der Tür, Länge ca. %1 cm").arg(i % 97));
        defect.bindValue(QStringLiteral(":company"), 1 + i % 60);
        defect.bindValue(QStringLiteral(":room"), QStringLiteral("Raum %1").arg(i % 400));
        defect.bindValue(QStringLiteral(":rb"), QStringLiteral("RB-%1").arg(i % 400));
        defect.bindValue(QStringLiteral(":images"), 0);
        if (!defect.exec())
            return false;
    }
    if (!addPhotos(db, size, pictures, 0, size.photos, size.defects + 1))
        return false;
    return exec(q, QStringLiteral("UPDATE entry_progress SET image_cnt = (SELECT COUNT(*) FROM entry_progress p "
                                  "WHERE p.type = 2 AND p.relation_id = entry_progress.id) WHERE type = 4")) &&
           exec(q, QStringLiteral("INSERT INTO id_generator VALUES ('entry', %1)").arg(size.reports)) &&
           exec(q, QStringLiteral("COMMIT"));
}

QVector<Picture> makePictures(int kb)
{
    QVector<Picture> pictures;
    for (int i = 0; i < 24; ++i)
        pictures << makePicture(i, kb);
    return pictures;
}

// Written under a temporary name and renamed when complete, so an
// interrupted run never leaves a half journal in the cache.
bool generateJournal(const QString &file, const Size &size, const QVector<Picture> &pictures)
{
    const QString partial = file + QStringLiteral(".partial");
    QFile::remove(partial);
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("generate"));
        db.setDatabaseName(partial);
        ok = db.open() && fillJournal(db, size, pictures);
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("generate"));
    return ok && QFile::rename(partial, file);
}

struct ChildRun
{
    int exitCode = -1;
    double seconds = 0;
    long maxRssKb = 0;
    // When the CLI's progress reached the import (after opening the project)
    // and its last step (the records are written; commit and saving follow),
    // in seconds from the start; negative when not seen.
    double importStarted = -1;
    double recordsWritten = -1;
};

// Runs the CLI as a child of its own and reads its peak memory from the
// kernel's accounting of exactly that child. Its progress on stderr is read
// through a pipe, copied to the log and timed.
ChildRun runCli(const QString &cli, const QStringList &args, const QString &log)
{
    QList<QByteArray> storage{QFile::encodeName(cli)};
    for (const QString &arg : args)
        storage << QFile::encodeName(arg);
    QVector<char *> argv;
    for (QByteArray &arg : storage)
        argv << arg.data();
    argv << nullptr;
    ChildRun run;
    int pipeFds[2];
    if (::pipe(pipeFds) != 0)
        return run;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const QByteArray logName = QFile::encodeName(log);
    posix_spawn_file_actions_addopen(&actions, 1, logName.constData(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 2);
    posix_spawn_file_actions_addclose(&actions, pipeFds[0]);
    QElapsedTimer t;
    t.start();
    pid_t pid = 0;
    const int spawned = posix_spawn(&pid, argv.first(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(pipeFds[1]);
    if (spawned != 0) {
        ::close(pipeFds[0]);
        return run;
    }
    QFile logFile(log);
    logFile.open(QIODevice::WriteOnly | QIODevice::Append);
    QByteArray pending;
    char buffer[4096];
    for (ssize_t n; (n = ::read(pipeFds[0], buffer, sizeof buffer)) > 0;) {
        pending.append(buffer, int(n));
        logFile.write(buffer, n);
        for (int end; (end = pending.indexOf('\n')) >= 0; pending.remove(0, end + 1)) {
            const QByteArray line = pending.left(end);
            if (run.importStarted < 0 && line.contains("Datenimport aus dem Bautagebuch"))
                run.importStarted = seconds(t);
            if (run.recordsWritten < 0 && line.contains("Datenbank wird aktualisiert"))
                run.recordsWritten = seconds(t);
        }
    }
    ::close(pipeFds[0]);
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) == pid) {
        run.seconds = seconds(t);
        run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -2;
        run.maxRssKb = usage.ru_maxrss;
    }
    return run;
}

// Where the CLI's time went, from its progress lines (German texts).
void printPhases(const char *name, const ChildRun &run)
{
    if (run.importStarted < 0 || run.recordsWritten < run.importStarted) {
        std::printf("%s_phases: not recognised in the progress output\n", name);
        return;
    }
    std::printf("%s_phases: open %.2f s, import %.2f s, commit and save %.2f s\n", name, run.importStarted,
                run.recordsWritten - run.importStarted, run.seconds - run.recordsWritten);
}

// The floor: what copying the journal's records into the project costs
// without any rule, check or picture handling.
double floorSeconds(const QString &emptyProject, const QString &journal, const QString &target)
{
    QFile::remove(target);
    syncDisk();
    QElapsedTimer t;
    t.start();
    if (!QFile::copy(emptyProject, target))
        return -1;
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("floor"));
        db.setDatabaseName(target);
        QSqlQuery q(db);
        ok = db.open() && exec(q, QStringLiteral("ATTACH DATABASE '%1' AS j").arg(journal)) &&
             exec(q, QStringLiteral("BEGIN")) &&
             exec(q, QStringLiteral("INSERT INTO company (type, firstname, lastname, company, street, plz, city, "
                                    "telephone, telefax, mobile, email, pos, site_journal_id) SELECT type, firstname, "
                                    "lastname, company, street, plz, city, telephone, telefax, mobile, email, id, id "
                                    "FROM j.company WHERE category = '2'")) &&
             exec(q, QStringLiteral("INSERT INTO imported_report (id, site_journal_id, number, locked, user_id, "
                                    "creation_date) SELECT id, id, number, 0, user_id, creation_date FROM j.entry")) &&
             exec(q, QStringLiteral("INSERT INTO defect (id, number, description, company_id, user_id, "
                                    "creation_date, roomname, roombook_number, image_cnt, priority, correction_date, "
                                    "site_journal_id, imported_report_id) SELECT id, number, description, company_id, "
                                    "'MB', date, roomname, roombook_number, image_cnt, 'Normal', correction_date, id, "
                                    "entry_id FROM j.entry_progress WHERE type = 4")) &&
             exec(q, QStringLiteral("INSERT INTO image SELECT * FROM j.image")) &&
             exec(q, QStringLiteral("INSERT INTO photo_info (id, caption, comment, date, defect_id, image_id, pos, "
                                    "site_journal_id) SELECT p.id, f.caption, '', f.date, p.relation_id, "
                                    "f.photo_image_id, 1, p.id FROM j.entry_progress p JOIN j.entry_photo f ON f.id = "
                                    "p.photo_id WHERE p.type = 2")) &&
             exec(q, QStringLiteral("COMMIT"));
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("floor"));
    syncDisk();
    return ok ? seconds(t) : -1;
}

// 1 % of the defects rewritten and 1 % more photos, as a day on site does.
bool changeOnePercent(const QString &journal, const Size &size, const QVector<Picture> &pictures)
{
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("change"));
        db.setDatabaseName(journal);
        QSqlQuery q(db);
        const int step = 100;
        ok = db.open() && exec(q, QStringLiteral("BEGIN")) &&
             exec(q, QStringLiteral("UPDATE entry_progress SET description = description || ' - nachgebessert', "
                                    "modified = 1 WHERE type = 4 AND id % %1 = 0")
                         .arg(step)) &&
             addPhotos(db, size, pictures, size.photos, qMax(1, size.photos / step), size.defects + size.photos + 1) &&
             exec(q, QStringLiteral("COMMIT"));
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("change"));
    return ok;
}

QString projectScalar(const QString &file, const QString &sql)
{
    QString value;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("count"));
        db.setDatabaseName(file);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        QSqlQuery q(db);
        if (db.open() && q.exec(sql) && q.next())
            value = q.value(0).toString();
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("count"));
    return value;
}

// Scales the journal down when the disk cannot hold it and the copies made
// from it (the project, its working copy, its backup and the floor's copy).
Size fitToDisk(Size size, const QString &cacheDir, const QString &workDir, bool cached)
{
    const double journalBytes = double(size.photos) * (size.photoKb + 10) * 1024.0 + size.defects * 400.0;
    const double needed = journalBytes * (cached ? 5.0 : 6.0) + 512e6;
    const double free = qMin(QStorageInfo(cacheDir).bytesAvailable(), QStorageInfo(workDir).bytesAvailable());
    if (free >= needed)
        return size;
    const double scale = qMax(0.01, (free - 512e6) / (needed - 512e6));
    std::printf("NOTE: %.1f GB free, %.1f GB needed: scaled down to %.0f %% of the requested journal\n", free / 1e9,
                needed / 1e9, scale * 100);
    size.defects = qMax(100, int(size.defects * scale));
    size.reports = qMax(1, int(size.reports * scale));
    size.photos = qMax(100, int(size.photos * scale));
    return size;
}

int parse(const QStringList &args, Size *size, QString *cache, QString *keep)
{
    for (int i = 1; i + 1 < args.size(); i += 2) {
        const QString &name = args.at(i);
        const QString &value = args.at(i + 1);
        if (name == QLatin1String("--defects"))
            size->defects = qMax(1, value.toInt());
        else if (name == QLatin1String("--reports"))
            size->reports = qMax(1, value.toInt());
        else if (name == QLatin1String("--photos"))
            size->photos = qMax(1, value.toInt());
        else if (name == QLatin1String("--photo-kb"))
            size->photoKb = qBound(8, value.toInt(), 400);
        else if (name == QLatin1String("--cache"))
            *cache = value;
        else if (name == QLatin1String("--keep"))
            *keep = value;
        else
            return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    Size size;
    QString cache =
        qEnvironmentVariable("PELLWICK_BENCH_CACHE", QDir::homePath() + QStringLiteral("/.cache/pellwick-bench"));
    QString keep;
    if (parse(app.arguments(), &size, &cache, &keep) != 0) {
        std::fprintf(stderr, "usage: bench_import [--defects N] [--reports N] [--photos N] [--photo-kb N] "
                             "[--cache DIR] [--keep DIR]\n");
        return 2;
    }
    const QString cli = QDir(app.applicationDirPath()).filePath(QStringLiteral("../bin/pellwick-cli"));
    if (!QFileInfo(cli).isExecutable()) {
        std::fprintf(stderr, "pellwick-cli not found at %s: build it first\n", qPrintable(cli));
        return 1;
    }
    QDir().mkpath(cache);
    QTemporaryDir tmp(keep.isEmpty() ? QDir::tempPath() + QStringLiteral("/pellwick-bench-XXXXXX")
                                     : keep + QStringLiteral("/XXXXXX"));
    tmp.setAutoRemove(keep.isEmpty());
    auto cachedName = [&](const Size &s) {
        return QDir(cache).filePath(
            QStringLiteral("journal-%1-%2-%3-%4.sjd").arg(s.defects).arg(s.reports).arg(s.photos).arg(s.photoKb));
    };
    size = fitToDisk(size, cache, tmp.path(), QFileInfo::exists(cachedName(size)));
    const QString cached = cachedName(size);
    QElapsedTimer t;
    t.start();
    const QVector<Picture> pictures = makePictures(size.photoKb);
    if (!QFileInfo::exists(cached)) {
        if (!generateJournal(cached, size, pictures)) {
            std::fprintf(stderr, "could not generate the journal\n");
            return 1;
        }
        std::printf("generated %s in %.1f s\n", qPrintable(cached), seconds(t));
    }
    std::printf("journal: %d defects in %d reports, %d photos (%.0f KB each), %.2f GB\n", size.defects, size.reports,
                size.photos, pictures.first().image.size() / 1024.0, QFileInfo(cached).size() / 1e9);

    const QString log = tmp.filePath(QStringLiteral("cli.log"));
    const QString empty = tmp.filePath(QStringLiteral("leer.pwp"));
    const QString journal = tmp.filePath(QStringLiteral("Bautagebuch.sjd"));
    const QString project = tmp.filePath(QStringLiteral("Projekt.pwp"));
    if (runCli(cli, {QStringLiteral("new"), empty}, log).exitCode != 0 || !QFile::copy(cached, journal)) {
        std::fprintf(stderr, "could not prepare the project and the journal (see %s)\n", qPrintable(log));
        return 1;
    }

    const double floor = floorSeconds(empty, journal, tmp.filePath(QStringLiteral("boden.pwp")));
    QFile::remove(tmp.filePath(QStringLiteral("boden.pwp")));
    if (floor <= 0)
        return 1;
    QFile::copy(empty, project);
    syncDisk();
    const ChildRun full = runCli(cli, {QStringLiteral("import-journal"), project, journal}, log);
    syncDisk();
    if (full.exitCode != 0) {
        std::fprintf(stderr, "the import failed (exit %d, see %s)\n", full.exitCode, qPrintable(log));
        return 1;
    }
    std::printf("imported: %s defects, %s photos\n",
                qPrintable(projectScalar(project, QStringLiteral("SELECT COUNT(*) FROM defect"))),
                qPrintable(projectScalar(project, QStringLiteral("SELECT COUNT(*) FROM photo_info"))));
    std::printf("floor_seconds: %.2f (ATTACH + INSERT ... SELECT + COMMIT into a project copy)\n", floor);
    std::printf("import_seconds: %.2f (pellwick-cli import-journal, start to exit, saved)\n", full.seconds);
    std::printf("import_ratio: %.2f (goal: <= 2)\n", full.seconds / floor);
    std::printf("import_peak_memory_mb: %.1f (goal: < 300)\n", full.maxRssKb / 1024.0);
    printPhases("import", full);

    if (!changeOnePercent(journal, size, pictures))
        return 1;
    syncDisk();
    const ChildRun update = runCli(cli, {QStringLiteral("import-journal"), project, journal}, log);
    if (update.exitCode != 0) {
        std::fprintf(stderr, "the update failed (exit %d, see %s)\n", update.exitCode, qPrintable(log));
        return 1;
    }
    std::printf("update_seconds: %.2f (1 %% of the defects changed, 1 %% more photos)\n", update.seconds);
    std::printf("update_ratio: %.2f (goal: <= 0.2)\n", update.seconds / full.seconds);
    std::printf("update_peak_memory_mb: %.1f\n", update.maxRssKb / 1024.0);
    printPhases("update", update);
    // Opening copies the project to its working copy and saving writes the
    // whole file anew, however little changed; the import itself is what
    // the user waits for in the progress window.
    if (update.recordsWritten > 0 && full.recordsWritten > 0)
        std::printf("update_import_step_ratio: %.3f (import step of the update / import step of the full import)\n",
                    (update.recordsWritten - update.importStarted) / (full.recordsWritten - full.importStarted));
    return 0;
}
