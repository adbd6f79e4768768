#pragma once

#include "core/project/KalCompanyFormat.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class KalSqlTableModel;

// The defect list as a CSV file for spreadsheets: UTF-8 with BOM, ";" as
// separator, RFC 4180 quoting, CRLF line ends, the column captions as the
// first row, one row per defect in number order. Each cell holds the text the
// defect grid shows (company in the output format, status with its
// reduction suffix, plan name); dates in the program's notation.
class KalDefectCsv
{
    Q_DECLARE_TR_FUNCTIONS(KalDefectCsv)

public:
    // Compact: the columns of the short grid layout; All: those of the long one.
    enum Columns { Compact = 1, All = 2 };

    // `defect` field names of a column set, in grid order.
    static QStringList columnFields(Columns columns);

    // From the defect model of the open project (what the grid shows).
    static QByteArray fromModel(const KalSqlTableModel *defects, Columns columns);

    // From a project file's connection (may be read-only): same texts, same
    // order, read with plain queries. False with a reason on failure.
    static bool fromDatabase(const QSqlDatabase &db, Columns columns, const KalCompanyFormat &format, QByteArray *csv,
                             QString *errorText);

    // Writes `csv` to `path` atomically: either the complete new file or the
    // old state stays. False with a reason on failure.
    static bool writeFile(const QString &path, const QByteArray &csv, QString *errorText);

    // fromModel() + writeFile(); a failure is shown through KalPrompt.
    static bool exportModel(const KalSqlTableModel *defects, Columns columns, const QString &path);

    // One cell quoted as RFC 4180 asks (only when needed).
    static QString quoted(const QString &cell);

    // Number order: numbers that are both numeric compare as numbers,
    // otherwise as text; ties by id. Returns true when a comes first.
    static bool numberLess(const QString &a, qint64 idA, const QString &b, qint64 idB);
};
