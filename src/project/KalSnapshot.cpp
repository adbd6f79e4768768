#include "KalSnapshot.h"

#include "KalFileOps.h"
#include "KalProgress.h"

#include <QFile>
#include <QSqlDriver>
#include <QVariant>
#include <sqlite3.h>

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
} // namespace

bool write(const QSqlDatabase &source, const QString &target, QString *errorText)
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

    sqlite3 *dst = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(target).constData(), &dst,
                             SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
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
    do {
        rc = sqlite3_backup_step(backup, 2048);
        const int total = sqlite3_backup_pagecount(backup);
        busy.setProgress(total - sqlite3_backup_remaining(backup), total);
    } while (rc == SQLITE_OK || rc == SQLITE_BUSY || rc == SQLITE_LOCKED);
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
