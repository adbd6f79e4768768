#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QString>

// The translated texts of a printed defect list: labels, titles and the page
// counter. Built once per process (after the translators are installed) and
// fetched by position.
class KalPrintTexts
{
    Q_DECLARE_TR_FUNCTIONS(KalPrintTexts)

public:
    enum Text {
        Owner,           // the product's owner line
        PageCounter,     // "Seite ${page.cur}/${page.count}"
        Ellipsis,        // " ..." ending a cut single-line cell
        Dash,            // " - "
        Description,     // "Beschreibung: "
        IndexShort,      // "Index "
        RoombookNumber,  // "Raumbuch-Nr: "
        CreatedOn,       // "Erfasst am: "
        CreatedBy,       // "Erfasst von: "
        Type,            // "Typ: "
        Instruction,     // "Beseitigungsanweisung: "
        Date,            // "Datum: "
        Index,           // "Index: "
        Plan,            // "Plan: "
        PlanAnnexTitle,  // "Mängelliste - Anhang Pläne"
        PhotoAnnexTitle, // "Mängelliste - Anhang Fotos"
        ListTitle,       // "Mängelliste"
        Company,         // "Firma: "
        PhotoCaption,    // "Fototitel: "
        DateOf,          // "Datum: %1"
        PhotoOfDefect,   // "Foto %1 von %2 zu Mangel %3:"
        Deadline2,       // "2. Nachfrist: "
        Deadline1,       // "1. Nachfrist: "
        Deadline,        // "Frist: "
        Priority,        // "Priorität: "
        Status,          // "Status: "
        Room,            // "Raum: "
        Defect,          // "Mangel"
        // Texts of the reduction summary page.
        ReductionTitle, // "Mängelliste - Minderungen"
        ReductionCount, // "Anzahl"
        ReductionTotal, // "Summe"
        WithoutCompany, // "ohne Firma"
        Count
    };

    static const QString &text(Text which);
    // The cut-off marker of a description that does not fit: "usw...".
    static QString andSoOn();
    // A label as a column heading: without its colon and trailing blank.
    static QString heading(Text which);

    // A date as the running locale writes it (German "31.12.2024", US English
    // "12/31/2024"); empty for an invalid date.
    static QString date(const QDate &date, const QLocale &locale = QLocale());

    // "${page.cur}" and "${page.count}" replaced.
    static QString pageText(QString text, int current, int count);
};
