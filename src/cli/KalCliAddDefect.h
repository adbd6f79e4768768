#pragma once

#include <QString>
#include <QStringList>

// "add-defect --description TEXT [--number N] [--room TEXT] [--company ID]
// [--status ID] [--priority TEXT]": adds a defect by the same rules as the
// program's defect list, saves with backups and prints its id.
int kalCliAddDefect(const QString &file, const QStringList &options);
