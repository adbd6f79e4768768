#pragma once

#include <QStringList>

// "import-companies FILE.pwp ADDRESSES.csv [--dry-run] [--separator C]
// [--encoding utf-8|windows-1252|utf-16]": companies from an address file,
// with the mapping the dialog would guess. `args` starts with the project
// file. Returns 0, 1 (refused or failed) or 2 (usage).
int kalCliImportCompanies(const QStringList &args);
