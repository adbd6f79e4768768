#pragma once

#include <QSqlDatabase>
#include <QString>

// Writes a consistent copy of an open database to a new file through the
// connection that holds it (never by reading the locked file directly),
// syncs it and checks it.
namespace KalSnapshot {

// `sourceFd`, when not -1, is a descriptor of the database file that stays
// open at least as long as the connection (so closing it can never drop
// SQLite's locks); it lets the kernel copy the file.
bool write(const QSqlDatabase &source, const QString &target, QString *errorText, int sourceFd = -1);

// Page count times page size of the open database: the bytes SQLite uses,
// however large the file is. -1 when unknown.
qint64 databaseBytes(const QSqlDatabase &db);

// True while the connection has a transaction open (BEGIN without COMMIT).
bool inTransaction(const QSqlDatabase &db);

// "ok" when the file at `path` opens read-only and passes the quick check.
QString verify(const QString &path);

} // namespace KalSnapshot
