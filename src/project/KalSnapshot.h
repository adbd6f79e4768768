#pragma once

#include <QSqlDatabase>
#include <QString>

// Writes a consistent copy of an open database to a new file through the
// connection that holds it (never by reading the locked file directly),
// syncs it and checks it.
namespace KalSnapshot {

bool write(const QSqlDatabase &source, const QString &target, QString *errorText);

// "ok" when the file at `path` opens read-only and passes the quick check.
QString verify(const QString &path);

} // namespace KalSnapshot
