// The program's date notation: what people type in each language and the
// pattern a warning names.
#include "core/project/KalEnvironment.h"
#include "core/textaids/KalDateFormat.h"

#include <QtTest>

class TstDateFormat : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { KalEnvironment::setNowOverride(QDateTime()); }

    void parse_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("expected");
        QTest::addColumn<QString>("pattern");

        const QLocale de(QLocale::German, QLocale::Germany);
        const QLocale us(QLocale::English, QLocale::UnitedStates);
        const QLocale gb(QLocale::English, QLocale::UnitedKingdom);
        const QLocale es(QLocale::Spanish, QLocale::Spain);
        const QLocale fr(QLocale::French, QLocale::France);
        auto row = [](const char *name, const QLocale &locale, const char *text, QDate date, const char *pattern) {
            QTest::newRow(name) << locale << QString(text) << date << QString(pattern);
        };
        row("German full", de, "01.02.2024", QDate(2024, 2, 1), "TT.MM.JJJJ");
        row("German short", de, "1.2.24", QDate(2024, 2, 1), "TT.MM.JJJJ");
        row("German without year", de, "1.2.", QDate(2025, 2, 1), "TT.MM.JJJJ");
        row("ISO", de, "2024-02-01", QDate(2024, 2, 1), "TT.MM.JJJJ");
        row("German no such day", de, "31.02.2020", QDate(), "TT.MM.JJJJ");
        row("German words", de, "morgen", QDate(), "TT.MM.JJJJ");
        row("USA", us, "02/01/2024", QDate(2024, 2, 1), "MM/DD/YYYY");
        row("USA without year", us, "2/1", QDate(2025, 2, 1), "MM/DD/YYYY");
        row("USA day first is wrong", us, "31/01/2024", QDate(), "MM/DD/YYYY");
        row("UK", gb, "31/01/2024", QDate(2024, 1, 31), "DD/MM/YYYY");
        row("Spain", es, "31/02/2020", QDate(), "DD/MM/AAAA");
        row("other language reads German", fr, "1.12.2020", QDate(2020, 12, 1), "TT.MM.JJJJ");
        row("other language, no such month", fr, "1.13.2020", QDate(), "TT.MM.JJJJ");
    }

    void parse()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, text);
        QFETCH(QDate, expected);
        QFETCH(QString, pattern);
        KalEnvironment::setNowOverride(QDateTime(QDate(2025, 6, 1), QTime(12, 0)));
        QCOMPARE(KalDateFormat::parse(text, locale), expected);
        QCOMPARE(KalDateFormat::userPattern(locale), pattern);
        // What the program writes, it reads back.
        if (expected.isValid())
            QCOMPARE(KalDateFormat::parse(KalDateFormat::toText(expected, locale), locale), expected);
    }
};

QTEST_GUILESS_MAIN(TstDateFormat)
#include "tst_dateformat.moc"
