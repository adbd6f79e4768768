#pragma once

#include <QString>
#include <QStringList>

// "export-plan --plan ID --output OUT.png": the plan sheet at its stored
// size with its markers and texts, read-only, written via a temporary name.
int kalCliExportPlan(const QString &file, const QStringList &options);
