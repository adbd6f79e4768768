#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>

// Project files for tests, made through the real lifecycle.
namespace KalTestFiles {

// Creates a saved project file at `path` (with `defects` defects whose
// descriptions are "defect 1", ...). False on any failure.
bool createProject(const QString &path, int defects = 0);

// Reads the file itself, read-only.
int countRows(const QString &file, const QString &table);
QString scalar(const QString &file, const QString &sql);
// Every column of the first row the query gives, empty when none.
QVariantMap row(const QString &file, const QString &sql);
QString integrity(const QString &file);
bool execute(const QString &file, const QStringList &statements);
// Copies `file` to `copy` as another SQLite writer leaves it in the middle of
// its work: with `wal`, in WAL mode with `statements` committed only to the
// "-wal" file; otherwise with `statements` run in a transaction still open,
// their old pages in the hot "-journal" file. `file` itself ends unchanged.
bool copyWhileWriting(const QString &file, const QString &copy, const QStringList &statements, bool wal);

// Replaces the file's content; false when it cannot be written in full.
bool writeFile(const QString &path, const QByteArray &bytes);
QByteArray fileHash(const QString &path);
// Names of the files in a folder, sorted, with size and modification time:
// equal listings mean nothing on disk changed.
QStringList folderState(const QString &folder);

} // namespace KalTestFiles
