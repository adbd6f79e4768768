// Company imports: address files as people have them, other project files,
// site journals, and appending to the open project.
#include "core/import/KalAddressFile.h"
#include "core/import/KalCompanyImport.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalCompanyTestData.h"
#include "support/KalTestFiles.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

using namespace CompanyTestData;
using KalTestFiles::writeFile;
using R = KalCompanyRecord;

namespace {

QByteArray cp1252(const QString &text)
{
    return QTextCodec::codecForName("Windows-1252")->fromUnicode(text);
}

} // namespace

class TstCompanyImport : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    KalTestProject m_fx;

private slots:
    void initTestCase() { KalTestSettings::isolate(); }
    void cleanup() { m_fx.close(); }

    void addressFiles_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("separator");
        QTest::addColumn<int>("encoding");
        QTest::addColumn<bool>("header");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("first"); // "field=value|..."
        QTest::addColumn<QString>("last");  // empty: as the first

        QTest::newRow("semicolon, UTF-8, German captions")
            << QString("Firma;Gewerk;Straße;PLZ;Ort;Telefon;Telefax;E-Mail\n"
                       "Roth GmbH;Maler;Hauptstr. 12;53111;Bonn;0228 123;0228 124;info@roth.de\n"
                       "Fliesen Kaya;Fliesenleger;Am Markt 3;50667;Köln;0221 9;;kaya@example.org\n")
                   .toUtf8()
            << ";" << int(KalAddressFile::Utf8) << true << 2
            << QString("type=Maler|company=Roth GmbH|street=Hauptstr. 12|plz=53111|city=Bonn|telephone=0228 "
                       "123|telefax=0228 124|email=info@roth.de")
            << QString("type=Fliesenleger|company=Fliesen Kaya|street=Am Markt 3|plz=50667|city=Köln|telephone=0221 "
                       "9|email=kaya@example.org");
        QTest::newRow("comma, quoted separators and quotes, CRLF")
            << QByteArray("Company,Trade,City,Phone\r\n"
                          "\"M\xC3\xBCller, Maier & Co\",Maler,\"Bonn\",\"0228, Zentrale\"\r\n"
                          "\"Der \"\"Fliesen\"\" Profi\",Fliesen,K\xC3\xB6ln,\r\n")
            << "," << int(KalAddressFile::Utf8) << true << 2
            << QString("type=Maler|company=Müller, Maier & Co|city=Bonn|telephone=0228, Zentrale")
            << QString("type=Fliesen|company=Der \"Fliesen\" Profi|city=Köln");
        QTest::newRow("Windows-1252 umlauts")
            << cp1252("Firma;Straße;Ort;Handy\r\nBäcker Bau;Gartenstraße 5;Münster;0171 555\r\n"
                      "Übel & Söhne;Weg 1;Öhringen;\r\n")
            << ";" << int(KalAddressFile::Windows1252) << true << 2
            << QString("company=Bäcker Bau|street=Gartenstraße 5|city=Münster|mobile=0171 555")
            << QString("company=Übel & Söhne|street=Weg 1|city=Öhringen");
        QTest::newRow("no captions: columns by their contents")
            << QByteArray("Roth GmbH;Hauptstr. 12;53111;Bonn;0228 123456;0171 2345678;info@roth.de\n"
                          "Kaya Fliesen;Am Markt 3a;50667;K\xC3\xB6ln;0221 98765;0160 111222;kaya@example.org\n")
            << ";" << int(KalAddressFile::Utf8) << false << 2
            << QString("company=Roth GmbH|street=Hauptstr. 12|plz=53111|city=Bonn|telephone=0228 123456|mobile=0171 "
                       "2345678|email=info@roth.de")
            << QString("company=Kaya Fliesen|street=Am Markt 3a|plz=50667|city=Köln|telephone=0221 98765|mobile=0160 "
                       "111222|email=kaya@example.org");
        QTest::newRow("BOM and tabs") << QByteArray(
                                             "\xEF\xBB\xBF"
                                             "Firma\tHandy\tE-Mail-Adresse\nStein AG\t0172 1\tstein@example.org\n")
                                      << "\t" << int(KalAddressFile::Utf8) << true << 1
                                      << QString("company=Stein AG|mobile=0172 1|email=stein@example.org") << QString();
        QTest::newRow("line break inside a quoted field")
            << QByteArray("Firma;Gewerk\n\"Holz\nund Bau GmbH\";Zimmerer\nDach KG;Dachdecker\n") << ";"
            << int(KalAddressFile::Utf8) << true << 2 << QString("type=Zimmerer|company=Holz und Bau GmbH")
            << QString("type=Dachdecker|company=Dach KG");
        QTest::newRow("pipes, postcode and city in one column")
            << QByteArray("Firma|PLZ Ort|Tel.\nBau AG|12345 Musterstadt|030 1234\n") << "|" << int(KalAddressFile::Utf8)
            << true << 1 << QString("company=Bau AG|plz=12345|city=Musterstadt|telephone=030 1234") << QString();
        QTest::newRow("street and house number, name beside first name")
            << QByteArray("Vorname;Name;Strasse;Hausnummer;Firma\nKarl;Berg;Lindenweg;7;Berg Sanit\xC3\xA4r\n") << ";"
            << int(KalAddressFile::Utf8) << true << 1
            << QString("firstname=Karl|lastname=Berg|company=Berg Sanitär|street=Lindenweg 7") << QString();
        QTest::newRow("name alone is the person, empty lines skipped")
            << QByteArray("NAME;ORT\n\nGlas Klar;Aachen\n;\n") << ";" << int(KalAddressFile::Utf8) << true << 1
            << QString("firstname=Glas|lastname=Klar|company=Glas Klar|city=Aachen") << QString();
        QTest::newRow("semicolons win over commas in names")
            << QByteArray("Firma;Ort\nM\xC3\xBCller, Hans;Bonn\nSchmidt, Eva;K\xC3\xB6ln\n") << ";"
            << int(KalAddressFile::Utf8) << true << 2 << QString("company=Müller, Hans|city=Bonn")
            << QString("company=Schmidt, Eva|city=Köln");
        QTest::newRow("spreadsheet's sep= line, trailing separators")
            << QByteArray("sep=,\r\nFirma,Ort,\r\nA;B GmbH,Trier,\r\n") << "," << int(KalAddressFile::Utf8) << true << 1
            << QString("company=A;B GmbH|city=Trier") << QString();
        QTest::newRow("old Mac line ends")
            << QByteArray("Firma;Ort\rA GmbH;Bonn\rB KG;Trier\r") << ";" << int(KalAddressFile::Utf8) << true << 2
            << QString("company=A GmbH|city=Bonn") << QString("company=B KG|city=Trier");
        QTest::newRow("UTF-16 with BOM")
            << QByteArray("\xFF\xFE") +
                   QTextCodec::codecForName("UTF-16LE")->fromUnicode(QString("Firma;Ort\nA\u00c4 GmbH;Trier\n"))
            << ";" << int(KalAddressFile::Utf16) << true << 1 << QString("company=A\u00c4 GmbH|city=Trier")
            << QString();
    }

    void addressFiles()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, separator);
        QFETCH(int, encoding);
        QFETCH(bool, header);
        QFETCH(int, count);
        QFETCH(QString, first);
        QFETCH(QString, last);
        const QString path = m_dir.filePath("adressen.csv");
        QVERIFY(writeFile(path, data));
        KalAddressFile file;
        QString error;
        QVERIFY2(file.load(path, &error), qPrintable(error));
        QCOMPARE(QString(file.separator()), separator);
        QCOMPARE(int(file.encoding()), encoding);
        QCOMPARE(file.hasHeader(), header);
        const QVector<KalCompanyRecord> companies = file.companies();
        QCOMPARE(companies.size(), count);
        QCOMPARE(describe(companies.first()).join('|'), first);
        QCOMPARE(describe(companies.last()).join('|'), last.isEmpty() ? first : last);
    }

    void userCorrectsTheGuesses()
    {
        KalAddressFile file;
        QString error;
        QVERIFY(file.loadData("Maler;Roth GmbH;Bonn\nFliesen;Kaya;K\xC3\xB6ln\n", &error));
        QCOMPARE(file.hasHeader(), false);
        QCOMPARE(file.columnCount(), 3);
        QCOMPARE(file.columnCaptions(), (QStringList{"Spalte 1", "Spalte 2", "Spalte 3"}));
        QCOMPARE(file.rows().size(), 2);
        // The first text column was taken for the company; the user knows better.
        QCOMPARE(file.companies().first().value(R::Company), QStringLiteral("Maler"));
        file.setMapping(0, R::Type);
        file.setMapping(1, R::Company);
        file.setMapping(2, R::City);
        QCOMPARE(describe(file.companies().last()), (QStringList{"type=Fliesen", "company=Kaya", "city=Köln"}));

        file.setHasHeader(true);
        QCOMPARE(file.rows().size(), 1);
        QCOMPARE(file.columnCaptions(), (QStringList{"Maler", "Roth GmbH", "Bonn"}));

        file.setSeparator(QLatin1Char(','));
        QCOMPARE(file.columnCount(), 1);
        file.setEncoding(KalAddressFile::Windows1252);
        QCOMPARE(file.rows().first().first(), QStringLiteral("Fliesen;Kaya;K\u00c3\u00b6ln"));
    }

    void badAddressFiles_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("reason");
        QByteArray junk;
        for (int i = 0; i < 4000; ++i)
            junk += char((i * 7919 + 13) % 256);
        QByteArray controls;
        for (int i = 0; i < 2000; ++i)
            controls += char(1 + i % 8) + QByteArray("ab");
        QTest::newRow("empty") << QByteArray() << "leer";
        QTest::newRow("blanks and line breaks") << QByteArray(" \r\n\t\n ;; \n") << "";
        QTest::newRow("binary with zero bytes") << junk << "keine Textdatei";
        QTest::newRow("control characters") << controls << "keine Textdatei";
    }

    void badAddressFiles()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, reason);
        const QString path = m_dir.filePath("kaputt.csv");
        QVERIFY(writeFile(path, data));
        KalAddressFile file;
        QString error;
        QVERIFY(!file.load(path, &error));
        QVERIFY2(error.contains("kaputt.csv") && error.contains(reason), qPrintable(error));
        QVERIFY(!file.load(m_dir.filePath("fehlt.csv"), &error));
        QVERIFY(error.contains("fehlt.csv"));
    }

    // Whatever a file holds: a clear refusal, or rows of equal width.
    void garbledFiles()
    {
        const QByteArray alphabet("ab;,\t|\"\r\n 1@\xC3\xA4\xE4");
        for (int seed = 1; seed <= 300; ++seed) {
            QByteArray data;
            quint32 x = quint32(seed) * 2654435761u;
            const int size = 1 + seed % 97;
            for (int i = 0; i < size; ++i) {
                x = x * 1103515245u + 12345u;
                data += alphabet.at(int((x >> 16) % quint32(alphabet.size())));
            }
            KalAddressFile file;
            QString error;
            if (!file.loadData(data, &error)) {
                QVERIFY2(!error.isEmpty(), data.toHex().constData());
                continue;
            }
            QVERIFY(file.columnCount() > 0);
            QCOMPARE(file.mapping().size(), file.columnCount());
            QCOMPARE(file.columnCaptions().size(), file.columnCount());
            for (const QStringList &row : file.rows())
                QCOMPARE(row.size(), file.columnCount());
            QVERIFY(file.companies().size() <= file.rows().size());
        }
    }

    // Another project's companies, and the site journal's companies that are
    // neither deleted (-2) nor the client (1); the source file is only read.
    void sources_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QStringList>("expected"); // the first and the last company read
        QTest::newRow("project") << "project"
                                 << QStringList{"type=Maler|company=Roth; Söhne GmbH",
                                                "type=Elektro|company=Volt \"&\" Co|city=Bonn"};
        QTest::newRow("site journal") << "journal"
                                      << QStringList{"type=Maler|company=Roth GmbH|street=Weg 1",
                                                     "type=Fliesen|company=Kaya|street=Weg 1"};
    }

    void sources()
    {
        QFETCH(QString, kind);
        QFETCH(QStringList, expected);
        QTemporaryDir dir;
        const QString file = dir.filePath(kind == "project" ? "anderes.pwp" : "bautagebuch.sjd");
        QVERIFY(kind == "project" ? createDefectProject(file)
                                  : createSiteJournal(file, {{"Roth GmbH", "Maler", "2"},
                                                             {"Weg AG", "Abbruch", "-2"},
                                                             {"Bauherr Meier", "", "1"},
                                                             {"Kaya", "Fliesen", "2"}}));
        const QByteArray hash = KalTestFiles::fileHash(file);
        const QStringList state = KalTestFiles::folderState(dir.path());
        QVector<KalCompanyRecord> companies;
        QString error;
        QVERIFY2(kind == "project" ? KalCompanyImport::readProjectFile(file, &companies, &error)
                                   : KalCompanyImport::readSiteJournal(file, &companies, &error),
                 qPrintable(error));
        QCOMPARE(companies.size(), 2);
        QCOMPARE(QStringList({describe(companies.first()).join('|'), describe(companies.last()).join('|')}), expected);
        QCOMPARE(KalTestFiles::folderState(dir.path()), state); // no working copy, no user file
        QCOMPARE(KalTestFiles::fileHash(file), hash);
    }

    void badSources_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("reason");
        auto row = [](const char *kind, const char *file, const char *reason) {
            QTest::newRow(qPrintable(QStringLiteral("%1: %2").arg(kind, file))) << kind << file << reason;
        };
        row("project", "fehlt.pwp", "existiert nicht");
        row("project", "leer.pwp", "keine Pellwick-Projektdatei");
        row("project", "junk.pwp", "");
        row("project", "journal.sjd", "keine Pellwick-Projektdatei"); // a site journal
        row("project", "ohne.pwp", "enthält keine Firmen");
        row("journal", "fehlt.sjd", "existiert nicht");
        row("journal", "junk.pwp", "");
        row("journal", "ohne.pwp", "keine Bautagebuch-Datei"); // a project
        row("journal", "journal.sjd", "enthält keine Firmen"); // only deleted companies
    }

    void badSources()
    {
        QFETCH(QString, kind);
        QFETCH(QString, file);
        QFETCH(QString, reason);
        QTemporaryDir dir;
        QVERIFY(writeFile(dir.filePath("leer.pwp"), QByteArray()));
        QVERIFY(writeFile(dir.filePath("junk.pwp"), QByteArray(5000, '\x5a')));
        QVERIFY(createSiteJournal(dir.filePath("journal.sjd"), {{"Weg AG", "Abbruch", "-2"}}));
        QVERIFY(KalTestFiles::createProject(dir.filePath("ohne.pwp")));
        const QStringList state = KalTestFiles::folderState(dir.path());
        QVector<KalCompanyRecord> companies;
        QString error;
        const bool read = kind == "project" ? KalCompanyImport::readProjectFile(dir.filePath(file), &companies, &error)
                                            : KalCompanyImport::readSiteJournal(dir.filePath(file), &companies, &error);
        QVERIFY(!read);
        QVERIFY(companies.isEmpty());
        QVERIFY2(error.contains(file) && error.contains(reason), qPrintable(error));
        QCOMPARE(KalTestFiles::folderState(dir.path()), state);
    }

    void insertWithDuplicates()
    {
        QVERIFY(m_fx.open());
        KalProject &project = *m_fx.project();
        KalCompanyImport::Result first =
            KalCompanyImport::insertCompanies(project, {company("Roth GmbH", "Maler"), company("Kaya", "Fliesen")});
        QVERIFY2(first.ok, qPrintable(first.errorText));
        QCOMPARE(first.insertedIds.size(), 2);
        project.setModified(false);

        const QVector<KalCompanyRecord> candidates = {
            company("  roth   gmbh ", "MALER"), // same name and trade
            company("Roth GmbH", "Elektro"),    // other trade: a company of its own
            company("Stein AG", "Maurer"),
            KalCompanyRecord(),            // nothing to import
            company("stein ag", "maurer"), // twice in the file
        };
        QCOMPARE(KalCompanyImport::findDuplicates(project, candidates), (QVector<int>{0, 4}));

        const KalCompanyImport::Result second = KalCompanyImport::insertCompanies(project, candidates);
        QVERIFY(second.ok);
        QCOMPARE(second.duplicates.size(), 2);
        QCOMPARE(second.duplicates.at(0).value(R::Company), QStringLiteral("  roth   gmbh "));
        QCOMPARE(second.insertedIds.size(), 2);
        QVERIFY(second.insertedIds.at(0) > first.insertedIds.at(1));
        QCOMPARE(m_fx.count("company"), 4);
        QVERIFY(project.isModified());
        // New rows show up in the model at once.
        KalSqlTableModel *model = project.model("company");
        QCOMPARE(model->rowCount(), 4);

        // The user confirms the duplicates: they are inserted after all.
        const KalCompanyImport::Result third = KalCompanyImport::insertCompanies(project, second.duplicates, true);
        QVERIFY(third.ok);
        QCOMPARE(third.insertedIds.size(), 2);
        QCOMPARE(third.duplicates.size(), 2);
        QCOMPARE(m_fx.count("company"), 6);
    }

    void failedInsertLeavesNothing()
    {
        QVERIFY(m_fx.open());
        KalProject &project = *m_fx.project();
        QVERIFY(KalCompanyImport::insertCompanies(project, {company("Roth GmbH", "Maler")}).ok);
        QSqlQuery q(project.database());
        QVERIFY(q.exec("CREATE TRIGGER refuse BEFORE INSERT ON company WHEN NEW.company = 'Kaputt' "
                       "BEGIN SELECT RAISE(ABORT, 'refused'); END"));
        const QString counter = "SELECT id_counter FROM id_generator WHERE id_table = 'company'";
        QVERIFY(q.exec(counter) && q.next());
        const qint64 before = q.value(0).toLongLong();

        const KalCompanyImport::Result result = KalCompanyImport::insertCompanies(
            project, {company("Stein AG", "Maurer"), company("Kaputt", "Maler"), company("Kaya", "Fliesen")});
        QVERIFY(!result.ok);
        QVERIFY(result.insertedIds.isEmpty());
        QVERIFY(result.errorText.contains("refused"));
        QCOMPARE(m_fx.count("company"), 1);
        QVERIFY(q.exec(counter) && q.next());
        QCOMPARE(q.value(0).toLongLong(), before);
        QCOMPARE(project.transactions().depth(), 0);
        // The connection is usable again afterwards.
        QVERIFY(KalCompanyImport::insertCompanies(project, {company("Stein AG", "Maurer")}).ok);
        QCOMPARE(m_fx.count("company"), 2);
    }

    void pendingEditsSurviveTheImport()
    {
        QVERIFY(m_fx.open());
        KalProject &project = *m_fx.project();
        QVERIFY(KalCompanyImport::insertCompanies(project, {company("Roth GmbH", "Maler")}).ok);
        KalSqlTableModel *model = project.model("company");
        QVERIFY(model->setData(model->index(0, model->fieldIndex("city")), "Bonn"));
        QVERIFY(model->isDirty());
        QVERIFY(KalCompanyImport::insertCompanies(project, {company("Kaya", "Fliesen")}).ok);
        QCOMPARE(m_fx.value("SELECT city FROM company WHERE company = 'Roth GmbH'").toString(), QStringLiteral("Bonn"));
        QCOMPARE(model->rowCount(), 2);
    }
};

QTEST_GUILESS_MAIN(TstCompanyImport)
#include "tst_companyimport.moc"
