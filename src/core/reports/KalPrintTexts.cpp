#include "KalPrintTexts.h"

#include "core/textaids/KalDateFormat.h"

#include <QVector>

const QString &KalPrintTexts::text(Text which)
{
    // Translated on first use, after main() has installed the translators.
    static const QVector<QString> texts{
        tr("Pellwick - Mängelmanagement für Bauprojekte"),
        tr("Seite ${page.cur}/${page.count}"),
        tr(" ..."),
        tr(" - "),
        tr("Beschreibung: "),
        tr("Index "),
        tr("Raumbuch-Nr: "),
        tr("Erfasst am: "),
        tr("Erfasst von: "),
        tr("Typ: "),
        tr("Beseitigungsanweisung: "),
        tr("Datum: "),
        tr("Index: "),
        tr("Plan: "),
        tr("Mängelliste - Anhang Pläne"),
        tr("Mängelliste - Anhang Fotos"),
        tr("Mängelliste"),
        tr("Firma: "),
        tr("Fototitel: "),
        tr("Datum: %1"),
        tr("Foto %1 von %2 zu Mangel %3:"),
        tr("2. Nachfrist: "),
        tr("1. Nachfrist: "),
        tr("Frist: "),
        tr("Priorität: "),
        tr("Status: "),
        tr("Raum: "),
        tr("Mangel"),
        tr("Mängelliste - Minderungen"),
        tr("Anzahl"),
        tr("Summe"),
        tr("ohne Firma"),
    };
    static_assert(Count == 32, "one text per entry");
    return texts.at(which);
}

QString KalPrintTexts::andSoOn()
{
    return tr("usw...");
}

QString KalPrintTexts::heading(Text which)
{
    QString label = text(which).trimmed();
    if (label.endsWith(QLatin1Char(':')))
        label.chop(1);
    return label;
}

QString KalPrintTexts::date(const QDate &date, const QLocale &locale)
{
    return date.isValid() ? KalDateFormat::toText(date, locale) : QString();
}

QString KalPrintTexts::pageText(QString text, int current, int count)
{
    text.replace(QLatin1String("${page.cur}"), QString::number(current));
    text.replace(QLatin1String("${page.count}"), QString::number(count));
    return text;
}
