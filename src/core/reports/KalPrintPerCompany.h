#pragma once

#include "core/reports/KalPrintDefects.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVector>

// One PDF per company of a list: each file holds only that company's defects
// (in the list's order) with its own page numbers, annexes and summary;
// defects without a company get a file of their own.
class KalPrintPerCompany
{
    Q_DECLARE_TR_FUNCTIONS(KalPrintPerCompany)

public:
    struct Part
    {
        qint64 companyId = 0; // 0: defects without a company
        QString companyText;  // as the list shows the company; "ohne Firma" for none
        QString fileName;     // "<project> Mängelliste - <company>.pdf", safe and unique
        QVector<qint64> defectIds;
    };

    // Groups `defectIds` by company (order of first appearance) and names the
    // files; false with `error` set on a database error.
    static bool plan(QSqlDatabase db, const QVector<qint64> &defectIds, QVector<Part> *parts, QString *error);

    // Writes every part into `folder` (each through its own temporary file).
    // Names already taken in the folder or by an earlier part get " (2)",
    // " (3)", ... before ".pdf". `written` receives the paths written.
    // Stops at the first failure with `error` set; files written before stay.
    static bool write(QSqlDatabase db, const QVector<qint64> &defectIds, const KalPrintOptions &options,
                      const QString &folder, QStringList *written, QString *error);

    // `text` as part of a file name on every platform: no / \ : * ? " < > |
    // or control characters, no trailing dots or blanks, no reserved Windows
    // device name, at most `maxLength` characters; "_" for nothing left.
    static QString safeName(const QString &text, int maxLength = 120);
};
