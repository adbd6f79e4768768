#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

// The program's date notation: one pattern per language/country, used for
// showing dates in grids and lists and for parsing what the user types.
namespace KalDateFormat {

// Qt pattern for showing a date, e.g. "dd.MM.yyyy".
QString displayPattern(const QLocale &locale = QLocale());
// The pattern as the user reads it, e.g. "TT.MM.JJJJ".
QString userPattern(const QLocale &locale = QLocale());

QString toText(const QDate &date, const QLocale &locale = QLocale());

// Parses the locale's notation and the short forms people type
// ("1.2.24", "01.02.2024", "2024-02-01", "1.2." for this year). Invalid date
// when it does not parse.
QDate parse(const QString &text, const QLocale &locale = QLocale());

} // namespace KalDateFormat
