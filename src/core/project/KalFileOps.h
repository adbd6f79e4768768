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
// Copies and syncs; removes a partial target on failure.
bool copyFile(const QString &from, const QString &to);
// Removes a file and, for SQLite files, its rollback journal.
bool removeDatabaseFile(const QString &path);
bool processAlive(qint64 pid);
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
