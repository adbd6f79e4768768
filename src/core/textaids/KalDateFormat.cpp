#include "KalDateFormat.h"

#include "core/project/KalEnvironment.h"

#include <QRegularExpression>
#include <QStringList>

namespace KalDateFormat {

namespace {
enum class Order { DayMonthYear, MonthDayYear };

Order orderFor(const QLocale &locale)
{
    if (locale.language() == QLocale::English && locale.country() == QLocale::UnitedStates)
        return Order::MonthDayYear;
    return Order::DayMonthYear;
}

QChar separatorFor(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::Spanish:
    case QLocale::English:
        return QLatin1Char('/');
    default:
        return QLatin1Char('.');
    }
}
} // namespace

QString displayPattern(const QLocale &locale)
{
    const QChar sep = separatorFor(locale);
    if (orderFor(locale) == Order::MonthDayYear)
        return QStringLiteral("MM%1dd%1yyyy").arg(sep);
    return QStringLiteral("dd%1MM%1yyyy").arg(sep);
}

QString userPattern(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::German:
        return QStringLiteral("TT.MM.JJJJ");
    case QLocale::Spanish:
        return QStringLiteral("DD/MM/AAAA");
    case QLocale::English:
        return locale.country() == QLocale::UnitedStates ? QStringLiteral("MM/DD/YYYY") : QStringLiteral("DD/MM/YYYY");
    default:
        return QStringLiteral("TT.MM.JJJJ");
    }
}

QString toText(const QDate &date, const QLocale &locale)
{
    if (!date.isValid())
        return QString();
    return date.toString(displayPattern(locale));
}

QDate parse(const QString &text, const QLocale &locale)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return QDate();

    static const QRegularExpression iso(QStringLiteral("^(\\d{4})-(\\d{1,2})-(\\d{1,2})$"));
    const QRegularExpressionMatch isoMatch = iso.match(trimmed);
    if (isoMatch.hasMatch())
        return QDate(isoMatch.captured(1).toInt(), isoMatch.captured(2).toInt(), isoMatch.captured(3).toInt());

    // Any of the usual separators, one or two digits for day and month,
    // two or four for the year.
    // The year may also be left out ("1.2." or "1.2"): this year.
    static const QRegularExpression local(QStringLiteral("^(\\d{1,2})[./-](\\d{1,2})(?:[./-](\\d{2}|\\d{4})?)?$"));
    const QRegularExpressionMatch m = local.match(trimmed);
    if (!m.hasMatch())
        return QDate();
    int first = m.captured(1).toInt();
    int second = m.captured(2).toInt();
    int year = m.captured(3).toInt();
    if (m.captured(3).isEmpty())
        year = KalEnvironment::now().date().year();
    else if (m.captured(3).size() == 2)
        year += 2000;
    const int day = orderFor(locale) == Order::MonthDayYear ? second : first;
    const int month = orderFor(locale) == Order::MonthDayYear ? first : second;
    return QDate(year, month, day); // invalid for 31.02. and the like
}

} // namespace KalDateFormat
