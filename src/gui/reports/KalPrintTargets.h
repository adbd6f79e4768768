#pragma once

#include "core/reports/KalPrintDefects.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QVector>

class QPrinter;
class QWidget;

// Sends a prepared list to the printer, the print preview or a PDF file.
// The preview and the PDF are laid out the same way, so they count the same
// pages. Cancelling any of the dialogs ends a run without output or message;
// every failure has been shown through KalPrompt when a call returns.
class KalPrintTargets
{
    Q_DECLARE_TR_FUNCTIONS(KalPrintTargets)

public:
    enum Target { Print = 0, Preview = 1, Pdf = 2 };

    KalPrintTargets(QSqlDatabase db, const QVector<qint64> &defectIds, const KalPrintOptions &options);

    // True when output was made (or the preview was shown).
    bool run(QWidget *parent, Target target);
    // One PDF per company into a folder the user chooses.
    bool runPerCompany(QWidget *parent);

    // Paints the list on a printer that is set up; a printer that fails is
    // reported. False on failure or cancel.
    bool printOn(QPrinter *printer);
    // Asks for the PDF file until one can be written or the user cancels;
    // empty when cancelled.
    QString askPdfPath(QWidget *parent) const;

private:
    bool print(QWidget *parent);
    bool preview(QWidget *parent);
    bool pdf(QWidget *parent);
    void preparePrinter(QPrinter *printer) const;
    QString projectName() const;

    QSqlDatabase m_db;
    QVector<qint64> m_ids;
    KalPrintOptions m_options;
};
