#pragma once

#include "core/import/KalCompanyImport.h"
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDefectCsv.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class KalProject;

namespace CompanyTestData {

KalCompanyRecord company(const QString &name, const QString &trade, const QString &city = QString());

// "field=value" for every non-empty field, in field order.
QStringList describe(const KalCompanyRecord &record);

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

// The defect list of the project file, exported read-only as the command
// line does it; empty on failure.
QByteArray exportDefects(const QString &project, KalDefectCsv::Columns columns,
                         const KalCompanyFormat &format = KalCompanyFormat::factoryDefaults());

QByteArray readFile(const QString &path);

} // namespace CompanyTestData
