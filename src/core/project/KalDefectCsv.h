#pragma once

#include "core/project/KalCompanyFormat.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <functional>

class QIODevice;

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
    // The same, row by row into `out`; false when `out` refuses a write.
    static bool writeModel(const KalSqlTableModel *defects, Columns columns, QIODevice *out);

    // From a project file's connection (may be read-only): same texts, same
    // order, read with plain queries. False with a reason on failure.
    static bool fromDatabase(const QSqlDatabase &db, Columns columns, const KalCompanyFormat &format, QByteArray *csv,
                             QString *errorText);
    // The same, row by row into `out`; false without a reason when `out`
    // refuses a write (its errorString() tells why).
    static bool writeDatabase(const QSqlDatabase &db, Columns columns, const KalCompanyFormat &format, QIODevice *out,
                              QString *errorText);

    // Writes `csv` to `path` atomically: either the complete new file or the
    // old state stays. False with a reason on failure.
    static bool writeFile(const QString &path, const QByteArray &csv, QString *errorText);
    // The same for content that `write` streams into the temporary file; its
    // reason (if it gives one) is the reason of the failure.
    static bool writeFile(const QString &path, const std::function<bool(QIODevice *, QString *)> &write,
                          QString *errorText);

    // `path` with every link followed, also a dangling last one: the file a
    // write to `path` would change.
    static QString resolvedPath(const QString &path);
    // True when writing to `target` would change the project file or one of
    // the files beside it that belong to it (journal, backups, user data).
    static bool belongsToProject(const QString &target, const QString &projectPath);

    // fromModel() + writeFile(); a failure is shown through KalPrompt. With
    // the project's path, a target that belongs to the project is refused.
    static bool exportModel(const KalSqlTableModel *defects, Columns columns, const QString &path,
                            const QString &projectPath = QString());

    // One cell quoted as RFC 4180 asks (only when needed), in linear time.
    static QString quoted(const QString &cell);

    // Number order: numbers that are both numeric compare as numbers,
    // otherwise as text; ties by id. Returns true when a comes first.
    static bool numberLess(const QString &a, qint64 idA, const QString &b, qint64 idB);
};
