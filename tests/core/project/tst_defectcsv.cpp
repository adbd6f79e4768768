// The defect list as CSV: layout, cells, quoting and order, the same from
// the grid's model and from the file.
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDefectCsv.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalCompanyTestData.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace CompanyTestData;

Q_DECLARE_METATYPE(KalDefectCsv::Columns)
Q_DECLARE_METATYPE(KalCompanyFormat)

class TstDefectCsv : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_project;
    QString m_status2; // text of status 2 in a new project

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        m_project = m_dir.filePath("liste.pwp");
        QVERIFY(createDefectProject(m_project));
        m_status2 = KalTestFiles::scalar(m_project, "SELECT status FROM status WHERE id = 2");
        QVERIFY(!m_status2.isEmpty());
    }

    // The compact list is a shorter view of the full one: the same columns
    // in the same order, each row as wide as the captions.
    void layout()
    {
        QList<QStringList> captions;
        for (KalDefectCsv::Columns columns : {KalDefectCsv::Compact, KalDefectCsv::All}) {
            const QByteArray csv = exportDefects(m_project, columns);
            QVERIFY(csv.startsWith("\xEF\xBB\xBF"));
            QVERIFY(csv.endsWith("\r\n"));
            const QList<QStringList> rows = parseCsv(csv);
            QCOMPARE(rows.size(), 5);
            QStringList numbers;
            for (const QStringList &row : rows.mid(1)) {
                QCOMPARE(row.size(), rows.first().size());
                numbers << row.first();
            }
            // Numeric numbers in numeric order (2 before 10), others after them.
            QCOMPARE(numbers, (QStringList{"1", "2", "10", "B7"}));
            captions << rows.first();
        }
        const QStringList compact = captions.first();
        QStringList all = captions.last();
        QVERIFY(compact.size() < all.size());
        all.erase(std::remove_if(all.begin(), all.end(), [&](const QString &c) { return !compact.contains(c); }),
                  all.end());
        QCOMPARE(all, compact);
    }

    void cells_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("expected");
        auto row = [](const char *name, const char *number, const char *caption, const char *expected) {
            QTest::newRow(name) << QString(number) << QString(caption) << QString(expected);
        };
        row("text with separator, quotes and line break", "10", "Beschreibung", "Riss; tief\n\"Haarriss\" im Putz");
        row("company through the output format", "10", "Firma", "Roth; Söhne GmbH  (Maler)");
        row("company with quotes", "2", "Firma", "Volt \"&\" Co  (Elektro)");
        row("no company", "1", "Firma", "");
        row("status with reduction", "10", "Status", "%status - mit Minderung");
        row("status without reduction", "2", "Status", "%status");
        row("unknown status", "1", "Status", "");
        row("deadline in German notation", "10", "Frist", "05.03.2024");
        row("recorded on, also as date", "10", "Erfasst am", "01.02.2024");
        row("empty date", "2", "Frist", "");
        row("plan name", "10", "Plan", "EG Grundriss");
        row("photo count", "10", "Fotos", "0");
    }

    void cells()
    {
        QFETCH(QString, number);
        QFETCH(QString, caption);
        QFETCH(QString, expected);
        expected.replace("%status", m_status2);
        const QList<QStringList> rows = parseCsv(exportDefects(m_project, KalDefectCsv::All));
        const int column = rows.first().indexOf(caption);
        QVERIFY(column >= 0);
        for (const QStringList &row : rows) {
            if (row.first() == number) {
                QCOMPARE(row.at(column), expected);
                return;
            }
        }
        QFAIL("number not exported");
    }

    void quoted_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<QString>("expected");
        auto row = [](const char *name, const char *cell, const char *expected) {
            QTest::newRow(name) << QString(cell) << QString(expected);
        };
        row("plain", "Flur 1, links", "Flur 1, links");
        row("empty", "", "");
        row("separator", "a;b", "\"a;b\"");
        row("quote", "19\" Schrank", "\"19\"\" Schrank\"");
        row("line feed", "a\nb", "\"a\nb\"");
        row("carriage return", "a\rb", "\"a\rb\"");
    }

    void quoted()
    {
        QFETCH(QString, cell);
        QFETCH(QString, expected);
        QCOMPARE(KalDefectCsv::quoted(cell), expected);
    }

    void numberOrder_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("aFirst");
        auto row = [](const char *name, const char *a, const char *b, bool aFirst) {
            QTest::newRow(name) << QString(a) << QString(b) << aFirst;
        };
        row("2 before 10", "2", "10", true);
        row("10 after 9", "10", "9", false);
        row("blanks around a number", " 3", "20 ", true);
        row("numbers before texts", "100", "A1", true);
        row("texts as text", "A10", "A2", true);
        row("texts ignore case", "b", "C", true);
        row("same number: lower id first", "5", "05", true);
    }

    void numberOrder()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(bool, aFirst);
        QCOMPARE(KalDefectCsv::numberLess(a, 1, b, 2), aFirst);
        QCOMPARE(KalDefectCsv::numberLess(b, 2, a, 1), !aFirst);
    }

    // The program exports from its grid model, the command line from the
    // file: both must give the same bytes, in every company format.
    void modelAndFileAgree_data()
    {
        QTest::addColumn<KalDefectCsv::Columns>("columns");
        QTest::addColumn<KalCompanyFormat>("format");
        KalCompanyFormat both;
        both.field1 = KalCompanyFormat::City;
        both.field2InBrackets = true;
        both.field3InBrackets = true;
        QTest::newRow("compact, factory format") << KalDefectCsv::Compact << KalCompanyFormat::factoryDefaults();
        QTest::newRow("all, factory format") << KalDefectCsv::All << KalCompanyFormat::factoryDefaults();
        QTest::newRow("all, city and shared brackets") << KalDefectCsv::All << both;
    }

    void modelAndFileAgree()
    {
        QFETCH(KalDefectCsv::Columns, columns);
        QFETCH(KalCompanyFormat, format);
        const QByteArray fromFile = exportDefects(m_project, columns, format);
        QVERIFY(!fromFile.isEmpty());

        const QString copy = m_dir.filePath("kopie.pwp");
        QFile::remove(copy);
        QVERIFY(QFile::copy(m_project, copy));
        KalProject project;
        QVERIFY(project.openProject(copy));
        format.installInModels();
        const QByteArray fromModel = KalDefectCsv::fromModel(project.model("defect"), columns);
        KalCompanyFormat::factoryDefaults().installInModels();
        QVERIFY(project.closeProject());
        QCOMPARE(QString::fromUtf8(fromModel), QString::fromUtf8(fromFile));
    }

    void writeFileIsAtomic()
    {
        const QString target = m_dir.filePath("vorhanden.csv");
        {
            QFile file(target);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("alt");
        }
        QString error;
        // A folder in the way of the target: the write fails and leaves no temporary file.
        const QString blocked = m_dir.filePath("ordner.csv");
        QVERIFY(QDir().mkpath(blocked));
        const QStringList before = KalTestFiles::folderState(m_dir.path());
        QVERIFY(!KalDefectCsv::writeFile(blocked, "neu", &error));
        QVERIFY(error.contains("ordner.csv"));
        QVERIFY(!KalDefectCsv::writeFile(m_dir.filePath("fehlt/x.csv"), "neu", &error));
        QCOMPARE(KalTestFiles::folderState(m_dir.path()), before);
        QVERIFY(KalDefectCsv::writeFile(target, "neu", &error));
        QCOMPARE(readFile(target), QByteArray("neu"));
    }
};

QTEST_GUILESS_MAIN(TstDefectCsv)
#include "tst_defectcsv.moc"
