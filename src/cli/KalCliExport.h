#pragma once

#include <QStringList>

// "export-defects FILE.pwp [--output OUT.csv] [--columns compact|all]":
// the defect list of a project file as CSV, read without a working copy.
// `args` starts with the project file. Returns 0, 1 (failed) or 2 (usage).
int kalCliExportDefects(const QStringList &args);
