#pragma once

#include <QString>
#include <functional>

// Durable file operations used when saving: every step reports failure, so
// a save can stop before the project file is touched.
namespace KalFileOps {

bool syncFile(const QString &path);
bool syncDirectory(const QString &dir);
// Atomically replaces `to` with `from` (same folder).
bool replaceFile(const QString &from, const QString &to);
// Makes `to` name the same file as `from`; falls back to a synced copy on
// file systems without hard links.
bool linkOrCopy(const QString &from, const QString &to);
// Copies and syncs; removes a partial target on failure. With `maxBytes`
// set, only the first `maxBytes` bytes are copied.
bool copyFile(const QString &from, const QString &to, qint64 maxBytes = -1);
enum class DirectCopy { Done, NotAvailable, Failed };
// Copies the first `size` bytes of the open descriptor `in` (read with
// pread, so its offset and any lock on it stay as they are) into a new file
// `to`, written past the page cache: a file that is synced right after
// reaches the disk in one pass instead of filling the cache first.
// NotAvailable where the file system or device takes no such writes (then
// nothing is left at `to`; copy another way); Failed with `errno` in
// `error`, `to` removed. Not synced.
DirectCopy copyDirect(int in, const QString &to, qint64 size, int *error,
                      const std::function<void(qint64 done, qint64 total)> &progress = {});
// Reads the whole file once, front to back, so that it is in the system's
// cache before a check reads it page by page in the order of its tree.
// Call only while this process holds no lock on the file: closing the
// descriptor used here drops such locks on POSIX systems.
void readAhead(const QString &path);
// Removes a file and, for SQLite files, its rollback journal.
bool removeDatabaseFile(const QString &path);
bool processAlive(qint64 pid);

enum InstallResult { Installed, AlreadyExists, InstallFailed };
// Gives `from` the name `to` only when no file has that name yet (hard link
// or a rename that never replaces); `from` is gone afterwards on success.
InstallResult installNew(const QString &from, const QString &to);
// Gives `onto` the permission bits and, where allowed, the group of
// `original`, so that replacing a shared file does not lock colleagues out.
void keepModeAndGroup(const QString &original, const QString &onto);
// A regular file (not a pipe, device or folder), links followed.
bool isRegularFile(const QString &path);
// True when `path` still names the file open as `fd` (always true where
// descriptors are not available).
bool namesOpenFile(const QString &path, int fd);
// Not writable for us, or marked read-only for everybody (which also counts
// for an administrator, who could write it anyway).
bool isReadOnly(const QString &path);

// Test hook: called before each operation with its name ("snapshot",
// "sync", "replace", "link", "copy", "rename", "remove") and path; return
// true to make it fail.
using FaultHook = std::function<bool(const QString &operation, const QString &path)>;
void setFaultHook(FaultHook hook);
bool injectedFault(const QString &operation, const QString &path);

} // namespace KalFileOps
