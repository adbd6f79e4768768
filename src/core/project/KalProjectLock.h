#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>
#include <functional>

// Who holds a project: the write test on a working copy, the message that
// names the holder, and the probe connections used to find out.
namespace KalProjectLock {

// What the write test found on an existing working copy.
enum class State {
    Free,        // nobody holds it: a crashed run left it behind
    Held,        // another instance keeps its lock
    NotDatabase, // demonstrably no SQLite file
    DiskFull,
    ReadOnly,
    Failed // any other failure (I/O error, damaged file, ...)
};

// Inserts and deletes a dummy meta row; on a connection in exclusive
// locking mode this takes the lock and keeps it.
bool writeTest(const QString &connection, QString *errorText, QSqlError *sqlError = nullptr);
// SQLITE_BUSY or SQLITE_LOCKED: another connection holds the file.
bool isLockError(const QSqlError &error);
// Opens `workingCopy` as "BTBLOCK" and runs the write test.
State probe(const QString &workingCopy, QString *errorText);
// "Datenbank in Bearbeitung" with the holder named in `userDataPath`.
void reportHeld(const QString &userDataPath);
// Lines 1 and 2 of a user data file: user and computer.
QStringList holder(const QString &userDataPath);
// True when the user data file names somebody else than this user on this
// computer (the rule for discarding a crashed run's working copy).
bool belongsToSomebodyElse(const QString &userDataPath);

// A temporary name beside `path` that belongs to this process on this
// computer: `path` + `kind` + ".<computer>.<process id>". Instances on other
// computers sharing the folder never take (or delete) each other's.
QString privateName(const QString &path, const QString &kind);
// Removes such files of processes on this computer that no longer run.
void removeStalePrivateFiles(const QString &path, const QString &kind);

QSqlDatabase addProbeConnection(const QString &name, const QString &file, bool readOnly);
// Runs `read` on a connection `name` that shows every committed row of
// `file` and leaves its folder exactly as it was; the connection is removed
// afterwards. `db` is not open when the file could not be opened.
void readFile(const QString &name, const QString &file, const std::function<void(QSqlDatabase &db)> &read);
void removeConnection(const QString &name);

} // namespace KalProjectLock
