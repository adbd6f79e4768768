#include "KalSnapshot.h"

#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDriver>
#include <QVariant>
#include <sqlite3.h>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace KalSnapshot {

namespace {
sqlite3 *handleOf(const QSqlDatabase &db)
{
    const QVariant v = db.driver() ? db.driver()->handle() : QVariant();
    if (!v.isValid() || qstrcmp(v.typeName(), "sqlite3*") != 0)
        return nullptr;
    return *static_cast<sqlite3 *const *>(v.constData());
}

QString message(sqlite3 *db)
{
    return db ? QString::fromUtf8(sqlite3_errmsg(db)) : QStringLiteral("out of memory");
}

qint64 pragmaValue(sqlite3 *db, const char *pragma)
{
    sqlite3_stmt *stmt = nullptr;
    qint64 value = -1;
    if (sqlite3_prepare_v2(db, pragma, -1, &stmt, nullptr) == SQLITE_OK && sqlite3_step(stmt) == SQLITE_ROW)
        value = sqlite3_column_int64(stmt, 0);
    sqlite3_finalize(stmt);
    return value;
}

qint64 databaseBytes(sqlite3 *db)
{
    const qint64 pages = pragmaValue(db, "PRAGMA main.page_count");
    const qint64 pageSize = pragmaValue(db, "PRAGMA main.page_size");
    return pages > 0 && pageSize > 0 ? pages * pageSize : -1;
}
} // namespace

qint64 databaseBytes(const QSqlDatabase &db)
{
    sqlite3 *handle = handleOf(db);
    return handle ? databaseBytes(handle) : -1;
}

namespace {
// Copies the database file through the handle SQLite already has open.
// Opening a second descriptor of a locked file and closing it would drop
// the lock on POSIX systems; SQLite's own file object does not. Only valid
// while no transaction is active: then the file holds exactly the
// committed state. Returns false when this way is not available.
bool copyThroughOpenHandle(sqlite3 *src, int sourceFd, const QString &target, bool *available, qint64 *copied,
                           QString *errorText)
{
    *available = false;
    if (!sqlite3_get_autocommit(src))
        return false;
    sqlite3_file *file = nullptr;
    if (sqlite3_file_control(src, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || !file || !file->pMethods)
        return false;
    sqlite3_int64 size = 0;
    if (file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        return false;
    // SQLite reads only the pages its header counts; whatever lies beyond
    // (a sparse hole, another tool's leftovers) is no part of the project.
    const qint64 pages = databaseBytes(src);
    if (pages <= 0)
        return false;
    size = qMin<sqlite3_int64>(size, pages);
    *available = true;
    *copied = size;

#ifdef Q_OS_LINUX
    if (sourceFd >= 0) {
        // Past the page cache: the new file is synced right after, and a
        // large project reaches the disk in one pass instead of two.
        KalBusyScope busy;
        int code = 0;
        const KalFileOps::DirectCopy direct = KalFileOps::copyDirect(
            sourceFd, target, size, &code, [&](qint64 done, qint64 total) { busy.setProgress(done, total); });
        if (direct == KalFileOps::DirectCopy::Done)
            return true;
        if (direct == KalFileOps::DirectCopy::Failed) {
            *errorText = QString::fromLocal8Bit(strerror(code));
            return false;
        }
    }
    if (sourceFd >= 0) {
        const int out = ::open(QFile::encodeName(target).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        if (out < 0) {
            *errorText = QString::fromLocal8Bit(strerror(errno));
            return false;
        }
        KalBusyScope busy;
        loff_t in = 0;
        bool kernelCopy = true;
        while (in < size) {
            const ssize_t n =
                ::copy_file_range(sourceFd, &in, out, nullptr, size_t(qMin<qint64>(size - in, 64 << 20)), 0);
            if (n < 0 && in == 0 && (errno == ENOSYS || errno == EXDEV || errno == EINVAL || errno == EOPNOTSUPP)) {
                kernelCopy = false; // not on this file system: copy below
                break;
            }
            if (n <= 0) {
                *errorText = QString::fromLocal8Bit(strerror(n < 0 ? errno : EIO));
                ::close(out);
                return false;
            }
            busy.setProgress(in, size);
        }
        if (::close(out) != 0 && kernelCopy) {
            *errorText = QString::fromLocal8Bit(strerror(errno));
            return false;
        }
        if (kernelCopy)
            return true;
    }
#else
    Q_UNUSED(sourceFd)
#endif

    QFile out(target);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        *errorText = out.errorString();
        return false;
    }
    KalBusyScope busy;
    const int chunk = 4 << 20;
    QByteArray buffer(chunk, Qt::Uninitialized);
    for (sqlite3_int64 offset = 0; offset < size; offset += chunk) {
        const int n = int(qMin<sqlite3_int64>(chunk, size - offset));
        const int rc = file->pMethods->xRead(file, buffer.data(), n, offset);
        if (rc != SQLITE_OK) {
            *errorText = QString::fromUtf8(sqlite3_errstr(rc));
            return false;
        }
        if (out.write(buffer.constData(), n) != n) {
            *errorText = out.errorString();
            return false;
        }
        busy.setProgress(offset + n, size);
    }
    if (!out.flush()) {
        *errorText = out.errorString();
        return false;
    }
    out.close();
    if (out.error() != QFile::NoError) {
        *errorText = out.errorString();
        return false;
    }
    return true;
}

// A byte copy is checked by what can go wrong with it: the size, and a
// header that SQLite accepts with a readable schema.
QString verifyCopy(const QString &path, qint64 expectedSize)
{
    if (QFileInfo(path).size() != expectedSize)
        return QStringLiteral("incomplete copy");
    sqlite3 *db = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    if (rc == SQLITE_OK)
        rc = sqlite3_exec(db, "SELECT COUNT(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    const QString result = rc == SQLITE_OK ? QStringLiteral("ok") : message(db);
    sqlite3_close(db);
    return result;
}
} // namespace

bool write(const QSqlDatabase &source, const QString &target, QString *errorText, int sourceFd)
{
    auto fail = [&](const QString &text) {
        if (errorText)
            *errorText = text;
        KalFileOps::removeDatabaseFile(target);
        return false;
    };
    if (KalFileOps::injectedFault(QStringLiteral("snapshot"), target))
        return fail(QStringLiteral("disk I/O error"));
    sqlite3 *src = handleOf(source);
    if (!src)
        return fail(QStringLiteral("no open database"));
    KalFileOps::removeDatabaseFile(target);

    bool available = false;
    QString copyError;
    qint64 size = -1;
    if (copyThroughOpenHandle(src, sourceFd, target, &available, &size, &copyError)) {
        if (!KalFileOps::syncFile(target))
            return fail(QStringLiteral("disk I/O error"));
        const QString check = verifyCopy(target, size);
        if (check != QLatin1String("ok"))
            return fail(check);
        return true;
    }
    if (available)
        return fail(copyError);

    sqlite3 *dst = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(target).constData(), &dst, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                             nullptr);
    if (rc != SQLITE_OK) {
        const QString text = message(dst);
        sqlite3_close(dst);
        return fail(text);
    }
    // The file is new and private until it is renamed into place, and it is
    // synced explicitly below: no journal, no syncs of its own.
    sqlite3_exec(dst, "PRAGMA journal_mode=OFF", nullptr, nullptr, nullptr);
    sqlite3_exec(dst, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);

    sqlite3_backup *backup = sqlite3_backup_init(dst, "main", src, "main");
    if (!backup) {
        const QString text = message(dst);
        sqlite3_close(dst);
        return fail(text);
    }
    KalBusyScope busy;
    // A lock that does not go away (the source connection itself writing)
    // must end in an error, never in an endless loop.
    int waits = 0;
    do {
        rc = sqlite3_backup_step(backup, 2048);
        const int total = sqlite3_backup_pagecount(backup);
        busy.setProgress(total - sqlite3_backup_remaining(backup), total);
        if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
            sqlite3_sleep(10);
    } while (rc == SQLITE_OK || ((rc == SQLITE_BUSY || rc == SQLITE_LOCKED) && ++waits < 200));
    sqlite3_backup_finish(backup);
    const QString stepError = rc == SQLITE_DONE ? QString() : QString::fromUtf8(sqlite3_errstr(rc));
    const int closeRc = sqlite3_close(dst);
    if (!stepError.isEmpty())
        return fail(stepError);
    if (closeRc != SQLITE_OK)
        return fail(QString::fromUtf8(sqlite3_errstr(closeRc)));
    if (!KalFileOps::syncFile(target))
        return fail(QStringLiteral("disk I/O error"));
    const QString check = verify(target);
    if (check != QLatin1String("ok"))
        return fail(check);
    return true;
}

bool inTransaction(const QSqlDatabase &db)
{
    sqlite3 *handle = handleOf(db);
    return handle && !sqlite3_get_autocommit(handle);
}

QString verify(const QString &path)
{
    sqlite3 *db = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    if (rc != SQLITE_OK) {
        const QString text = message(db);
        sqlite3_close(db);
        return text;
    }
    sqlite3_stmt *stmt = nullptr;
    QString result;
    rc = sqlite3_prepare_v2(db, "PRAGMA quick_check", -1, &stmt, nullptr);
    if (rc == SQLITE_OK) {
        while (sqlite3_step(stmt) == SQLITE_ROW) {
            if (!result.isEmpty())
                result += QLatin1Char('\n');
            result += QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 0)));
        }
    }
    if (rc != SQLITE_OK || result.isEmpty())
        result = message(db);
    sqlite3_finalize(stmt);
    sqlite3_close(db);
    return result;
}

} // namespace KalSnapshot
