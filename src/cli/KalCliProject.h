#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class KalProject;
class QSqlDatabase;

// The pellwick-cli commands on a project file as a whole. Each takes the
// file and the arguments after it and returns a KalCli::ExitCode.

// "new": creates a project file; an existing file is refused.
int kalCliNew(const QString &file, const QStringList &options);
// "info [--json]": file version, integrity, rows per table, project name (read-only).
int kalCliInfo(const QString &file, const QStringList &options);
// "check": integrity of the file and of each backup; 0 only when the file is sound.
int kalCliCheck(const QString &file, const QStringList &options);
// "vacuum": compacts the project and saves it.
int kalCliVacuum(const QString &file, const QStringList &options);

// Runs `read` on a connection that shows every committed row of `file`
// (closed when it returns; check isOpen()): info, check and export never
// create, change or remove a file in the project's folder.
void kalCliReadOnly(const QString &file, const std::function<void(QSqlDatabase &db)> &read);
// Opens through the whole lifecycle; false (reason shown) when it cannot be
// opened or is write-protected and so cannot take changes.
bool kalCliOpenForWriting(KalProject &project, const QString &file);

// The id of the one defect numbered `number` (numbers are text and need not
// be unique); -1 with the reason shown when none or several have it.
qint64 kalCliFindDefect(const QSqlDatabase &db, const QString &number);
