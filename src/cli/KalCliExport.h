#pragma once

#include <QString>
#include <QStringList>

// "export-defects [--output OUT.csv] [--columns compact|all]": the defect
// list of a project file as CSV, read without a working copy. Returns a
// KalCli::ExitCode.
int kalCliExportDefects(const QString &file, const QStringList &options);
