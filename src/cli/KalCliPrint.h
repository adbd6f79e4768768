#pragma once

#include <QString>
#include <QStringList>

// "print --output OUT.pdf [--layout compact|detailed] [--filter-from-project]
// [--per-company DIR]": the defect list of a project file as PDF, read
// without a working copy. Without --filter-from-project every defect by
// number, without pictures. Returns a KalCli::ExitCode.
int kalCliPrint(const QString &file, const QStringList &options);
