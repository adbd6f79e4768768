// pellwick-cli import-companies as a script would use it: real processes,
// real files, and address files that are not what they claim to be.
#include "support/KalCliRun.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

namespace {

const QByteArray outlookExport("\"First Name\",\"Last Name\",\"Company\",\"Business Street\",\"Business City\","
                               "\"Business Postal Code\",\"Home Phone\",\"Business Phone\",\"E-mail Address\"\r\n"
                               "\"Eva\",\"Roth\",\"Roth GmbH\",\"Hauptstr. 1\",\"Bonn\",\"53111\",\"0221 1\","
                               "\"0228 2\",\"eva@roth.de\"\r\n"
                               "\"Hans\",\"Berg\",\"\",\"\",\"\",\"\",\"030 9\",\"\",\"\"\r\n");

} // namespace

class TstCliImport : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_project;
    int m_companiesBefore = 0;
    QString path(const QString &name) { return m_dir->filePath(name); }

private slots:
    void initTestCase() { KalTestSettings::isolate(); }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        m_project = path("bau.pwp");
        QVERIFY(createProject(m_project));
        m_companiesBefore = countRows(m_project, "company");
    }

    void dryRunShowsThePlanAndChangesNothing()
    {
        QVERIFY(writeFile(path("outlook.csv"), outlookExport));
        const QStringList before = folderState(m_dir->path());
        const QByteArray hash = fileHash(m_project);
        const KalCliRun run = kalCli({"import-companies", m_project, path("outlook.csv"), "--dry-run"});
        QCOMPARE(run.code, 0);
        for (const char *line : {"Separator: \",\"", "Encoding:  UTF-8", "Header:    yes",
                                 "4 \"Business Street\" -> Straße", "8 \"Business Phone\" -> Telefon",
                                 "Records: 2, already in the project: 0", "  Roth GmbH, Bonn", "  Hans Berg"})
            QVERIFY2(run.text().contains(QString::fromUtf8(line)), qPrintable(run.text()));
        QCOMPARE(fileHash(m_project), hash);
        QCOMPARE(folderState(m_dir->path()), before);

        const KalCliRun given = kalCli({"import-companies", m_project, path("outlook.csv"), "--dry-run", "--encoding",
                                        "windows-1252", "--separator", ";"});
        QCOMPARE(given.code, 0);
        QVERIFY2(given.text().contains("Encoding:  WINDOWS-1252") && given.text().contains("Separator: \";\""),
                 qPrintable(given.text()));
        QCOMPARE(folderState(m_dir->path()), before);
    }

    void importThenReimportAddsNothing()
    {
        QVERIFY(writeFile(path("outlook.csv"), outlookExport));
        const KalCliRun first = kalCli({"import-companies", m_project, path("outlook.csv")});
        QCOMPARE(first.code, 0);
        QVERIFY2(first.text().contains("Added: 2"), qPrintable(first.text() + first.err));
        QCOMPARE(countRows(m_project, "company"), m_companiesBefore + 2);
        QCOMPARE(scalar(m_project, "SELECT street || '|' || plz || '|' || city || '|' || telephone FROM company "
                                   "WHERE company = 'Roth GmbH'"),
                 QStringLiteral("Hauptstr. 1|53111|Bonn|0228 2"));
        QCOMPARE(scalar(m_project, "SELECT telephone FROM company WHERE company = 'Hans Berg'"),
                 QStringLiteral("030 9"));
        QVERIFY(QFileInfo::exists(m_project + ".bak"));
        QCOMPARE(integrity(m_project), QStringLiteral("ok"));

        const QByteArray hash = fileHash(m_project);
        const KalCliRun again = kalCli({"import-companies", m_project, path("outlook.csv")});
        QCOMPARE(again.code, 0);
        QVERIFY(again.text().contains("Added: 0"));
        QVERIFY(again.text().contains("Skipped (already in the project): 2"));
        QCOMPARE(countRows(m_project, "company"), m_companiesBefore + 2);
        QCOMPARE(fileHash(m_project), hash);
    }

    void addressFiles_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("expected"); // in stderr on failure, the company added on success
        QTest::newRow("caption row only")
            << QByteArray("Firma;Ort\n") << QStringList() << 1 << "nur Spaltenüberschriften";
        QTest::newRow("quote never closed")
            << QByteArray("Firma;Ort\n\"Roth;Bonn\nBerg;Trier\n") << QStringList() << 1 << "Zeile 2";
        QTest::newRow("nothing in a mapped column")
            << QByteArray("Firma;Bemerkung\n;nur Text\n") << QStringList() << 1 << "keine Adressen";
        // Guessed alone, ";" would split the file as well as a tab does.
        QTest::newRow("separator given") << QByteArray("Firma\tOrt;Nr\nRoth\tBonn;1\n")
                                         << QStringList{"--separator", "tab"} << 0 << "Roth";
    }

    void addressFiles()
    {
        QFETCH(QByteArray, data);
        QFETCH(QStringList, options);
        QFETCH(int, code);
        QFETCH(QString, expected);
        QVERIFY(writeFile(path("adressen.csv"), data));
        const QStringList before = folderState(m_dir->path());
        const KalCliRun run = kalCli(QStringList{"import-companies", m_project, path("adressen.csv")} + options);
        QVERIFY2(run.code == code, qPrintable(run.text() + run.err));
        if (code != 0) {
            QVERIFY2(run.err.contains(expected), qPrintable(run.err));
            QCOMPARE(folderState(m_dir->path()), before);
        } else {
            QCOMPARE(countRows(m_project, "company"), m_companiesBefore + 1);
            QCOMPARE(scalar(m_project, "SELECT company FROM company ORDER BY pos DESC LIMIT 1"), expected);
        }
    }

    void bigAddressBookIsRead()
    {
        QByteArray data("\"Company\",\"Business City\",\"Notes\"\r\n");
        const QByteArray notes(1500, 'x');
        int rows = 0;
        while (data.size() < 50 * 1024 * 1024)
            data += "\"Firma " + QByteArray::number(++rows) + "\",\"Bonn\",\"" + notes + "\"\r\n";
        QVERIFY(writeFile(path("gross.csv"), data));
        const KalCliRun run = kalCli({"import-companies", m_project, path("gross.csv"), "--dry-run"});
        QCOMPARE(run.code, 0);
        QVERIFY(run.text().contains(QStringLiteral("Records: %1,").arg(rows)));
        QVERIFY(run.text().contains(QStringLiteral("  Firma %1, Bonn").arg(rows)));
    }

    void oversizedFileIsRefused()
    {
        QFile big(path("riesig.csv"));
        QVERIFY(big.open(QIODevice::WriteOnly) && big.resize(65 * 1024 * 1024));
        big.close();
        const QStringList before = folderState(m_dir->path());
        const KalCliRun run = kalCli({"import-companies", m_project, path("riesig.csv")});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.err.contains("65 MB"), qPrintable(run.err));
        QCOMPARE(folderState(m_dir->path()), before);
    }
};

QTEST_GUILESS_MAIN(TstCliImport)
#include "tst_cliimport.moc"
