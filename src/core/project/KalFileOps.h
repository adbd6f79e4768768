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
