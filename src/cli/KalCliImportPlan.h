#pragma once

#include <QString>
#include <QStringList>

// "import-plan PLAN.(pdf|jpg|png|...) [--name TEXT]": imports a plan by the
// program's own rules (a PDF's first page), saves with backups and prints
// the new sheet's id.
int kalCliImportPlan(const QString &file, const QStringList &options);
