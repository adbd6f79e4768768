#pragma once

#include <QString>
#include <QStringList>

// "import-companies FILE.pwp ADDRESSES.csv [--dry-run] [--separator C]
// [--encoding utf-8|windows-1252|utf-16]": companies from an address file,
// with the mapping the dialog would guess. `args` starts with the address
// file. Returns a KalCli::ExitCode.
int kalCliImportCompanies(const QString &projectFile, const QStringList &args);
