#pragma once

#include <QString>

// The copy of the project file a user may ask for before stored pictures
// are shrunk: "<project file>.Backup", the pictures at their old size.
namespace KalShrinkBackup {

// The backup's name for a project file.
QString fileName(const QString &projectPath);
// Copies the last saved project file (not the working copy) to fileName(),
// synced, through a temporary file in the same folder so no partial backup
// is ever left. Refuses an untitled project, an existing backup (never
// replaced) and a volume without room. False with the reason in `error`.
bool create(const QString &projectPath, QString *error);

} // namespace KalShrinkBackup
