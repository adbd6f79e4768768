#pragma once

#include "core/import/KalCompanyImport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class KalProject;

namespace CompanyTestData {

KalCompanyRecord company(const QString &name, const QString &trade, const QString &city = QString());

// Saved project at `path` with two companies, a plan and four defects
// (numbers "10", "2", "1", "B7") whose texts exercise quoting, the status
// suffix and dates. False on failure.
bool createDefectProject(const QString &path);

// A site-journal file with the companion program's layout and these company
// rows: (name, trade, category).
bool createSiteJournal(const QString &path, const QList<QStringList> &companies);

// RFC 4180 reading of an exported CSV (BOM dropped), independent of the
// import code.
QList<QStringList> parseCsv(const QByteArray &csv);

} // namespace CompanyTestData
