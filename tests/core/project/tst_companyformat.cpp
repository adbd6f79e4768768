// The company output format: the text builder's bracket rules and the
// settings it is kept in.
#include "core/project/KalCompanyFormat.h"
#include "support/KalTestSettings.h"

#include <QSettings>
#include <QSqlField>
#include <QtTest>

namespace {

using F = KalCompanyFormat;

QSqlRecord company(const QStringList &emptyColumns = {})
{
    const QList<QPair<QString, QString>> values = {
        {"type", "Maler"},        {"firstname", "Eva"},      {"lastname", "Roth"},
        {"company", "Roth GmbH"}, {"street", "Hauptstr. 1"}, {"city", "Bonn"},
        {"telephone", "0228 11"}, {"mobile", "0170 22"},     {"email", ""},
    };
    QSqlRecord record;
    for (const auto &pair : values) {
        QSqlField field(pair.first, QVariant::String);
        field.setValue(emptyColumns.contains(pair.first) ? QString() : pair.second);
        record.append(field);
    }
    return record;
}

KalCompanyFormat format(int f1, int f2, int f3, bool brackets2, bool brackets3)
{
    KalCompanyFormat format;
    format.field1 = f1;
    format.field2 = f2;
    format.field3 = f3;
    format.field2InBrackets = brackets2;
    format.field3InBrackets = brackets3;
    return format;
}

} // namespace

Q_DECLARE_METATYPE(KalCompanyFormat)

class TstCompanyFormat : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { KalTestSettings::isolate(); }
    void init() { QSettings().clear(); }

    void builder_data()
    {
        QTest::addColumn<KalCompanyFormat>("format");
        QTest::addColumn<QStringList>("emptyColumns");
        QTest::addColumn<QString>("separator");
        QTest::addColumn<QString>("expected");

        const QString two = QStringLiteral("  ");
        QTest::newRow("factory: name, trade in brackets")
            << F::factoryDefaults() << QStringList() << two << "Roth GmbH  (Maler)";
        QTest::newRow("all fields empty choice")
            << format(F::Empty, F::Empty, F::Empty, false, false) << QStringList() << two << "";
        QTest::newRow("three plain fields")
            << format(F::FirstName, F::LastName, F::Company, false, false) << QStringList() << " "
            << "Eva Roth Roth GmbH";
        QTest::newRow("field 2 in brackets closes at once")
            << format(F::Company, F::Type, F::City, true, false) << QStringList() << two << "Roth GmbH  (Maler)  Bonn";
        QTest::newRow("field 3 in brackets")
            << format(F::Company, F::Type, F::City, false, true) << QStringList() << two << "Roth GmbH  Maler  (Bonn)";
        QTest::newRow("both in brackets share one pair, two blanks")
            << format(F::Company, F::Type, F::City, true, true) << QStringList() << two << "Roth GmbH  (Maler,  Bonn)";
        QTest::newRow("both in brackets, other separator: no comma")
            << format(F::Company, F::Type, F::City, true, true) << QStringList() << ", "
            << "Roth GmbH, (Maler, Bonn)";
        QTest::newRow("both in brackets, line break separator")
            << format(F::Company, F::Type, F::City, true, true) << QStringList() << "\n"
            << "Roth GmbH\n(Maler\nBonn)";
        QTest::newRow("both in brackets, field 3 '- leer -' leaves the bracket open")
            << format(F::Company, F::Type, F::Empty, true, true) << QStringList() << two << "Roth GmbH  (Maler";
        QTest::newRow("both in brackets, field 3 value empty closes the bracket")
            << format(F::Company, F::Type, F::Email, true, true) << QStringList() << two << "Roth GmbH  (Maler)";
        QTest::newRow("both in brackets, field 2 value empty")
            << format(F::Company, F::Type, F::City, true, true) << QStringList{"type"} << two << "Roth GmbH  (Bonn)";
        QTest::newRow("bracketed field 2 empty adds no bracket")
            << format(F::Company, F::Street, F::City, true, false) << QStringList{"street"} << two << "Roth GmbH  Bonn";
        QTest::newRow("field 1 empty: no leading separator")
            << format(F::Email, F::Company, F::Type, true, false) << QStringList() << two << "(Roth GmbH)  Maler";
        QTest::newRow("field 1 empty, both bracketed")
            << format(F::Empty, F::Company, F::Type, true, true) << QStringList() << two << "(Roth GmbH,  Maler)";
        QTest::newRow("only field 3, bracketed")
            << format(F::Empty, F::Empty, F::Type, false, true) << QStringList() << two << "(Maler)";
        QTest::newRow("every value empty") << F::factoryDefaults() << QStringList{"company", "type"} << two << "";
        QTest::newRow("field index out of range counts as no field")
            << format(F::Company, 42, F::Type, false, true) << QStringList() << two << "Roth GmbH  (Maler)";
    }

    void builder()
    {
        QFETCH(KalCompanyFormat, format);
        QFETCH(QStringList, emptyColumns);
        QFETCH(QString, separator);
        QFETCH(QString, expected);
        QCOMPARE(format.text(company(emptyColumns), separator), expected);
    }

    void unusableStoredValues_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<KalCompanyFormat>("expected");
        const KalCompanyFormat d = F::factoryDefaults();
        QTest::newRow("nothing stored") << QString() << QVariant() << d;
        QTest::newRow("field not a number") << "FormatField1" << QVariant("Firma") << d;
        QTest::newRow("field too large") << "FormatField2" << QVariant(10) << d;
        QTest::newRow("field negative") << "FormatField3" << QVariant(-1) << d;
        QTest::newRow("flag not a flag") << "FormatField3InBrackets" << QVariant("vielleicht") << d;
        QTest::newRow("valid field is kept")
            << "FormatField1" << QVariant("9") << format(F::Email, F::Company, F::Type, false, true);
        QTest::newRow("valid flag text is kept")
            << "FormatField2InBrackets" << QVariant("true") << format(F::Empty, F::Company, F::Type, true, true);
    }

    void unusableStoredValues()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, stored);
        QFETCH(KalCompanyFormat, expected);
        if (!key.isEmpty())
            QSettings().setValue("MasterDataDialog/CompanyOutputFormats/" + key, stored);
        QCOMPARE(F::load(), expected);
    }
};

QTEST_GUILESS_MAIN(TstCompanyFormat)
#include "tst_companyformat.moc"
