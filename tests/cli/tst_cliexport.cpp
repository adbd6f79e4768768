// pellwick-cli export-defects: the export to stdout or a file, and the user's date notation and company format.
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDefectCsv.h"
#include "support/KalCliRun.h"
#include "support/KalCompanyTestData.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace CompanyTestData;

Q_DECLARE_METATYPE(KalDefectCsv::Columns)

class TstCliExport : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_project;

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_project = m_dir.filePath("liste.pwp");
        QVERIFY(createDefectProject(m_project));
    }

    void cliExport_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<KalDefectCsv::Columns>("columns");
        QTest::newRow("default is compact") << QStringList() << KalDefectCsv::Compact;
        QTest::newRow("compact") << QStringList{"--columns", "compact"} << KalDefectCsv::Compact;
        QTest::newRow("all") << QStringList{"--columns", "all"} << KalDefectCsv::All;
    }

    void cliExport()
    {
        QFETCH(QStringList, options);
        QFETCH(KalDefectCsv::Columns, columns);
        QTemporaryDir dir;
        const QString project = dir.filePath("p.pwp");
        QVERIFY(QFile::copy(m_project, project));
        const QByteArray hash = KalTestFiles::fileHash(project);
        const QStringList before = KalTestFiles::folderState(dir.path());

        const KalCliRun toStdout = kalCli(QStringList{"export-defects", project} + options);
        QCOMPARE(toStdout.code, 0);
        // Read-only: no working copy, no user file, no byte changed.
        QCOMPARE(KalTestFiles::folderState(dir.path()), before);
        QCOMPARE(KalTestFiles::fileHash(project), hash);

        const QString output = dir.filePath("liste.csv");
        const KalCliRun toFile = kalCli(QStringList{"export-defects", project, "--output", output} + options);
        QCOMPARE(toFile.code, 0);
        QVERIFY(toFile.out.isEmpty());
        QCOMPARE(readFile(output), toStdout.out);
        QCOMPARE(KalTestFiles::fileHash(project), hash);

        QCOMPARE(toStdout.out, exportDefects(m_project, columns));
    }

    void cliFollowsSettings_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<int>("country");
        QTest::addColumn<QString>("deadline");
        QTest::newRow("German") << int(QLocale::German) << int(QLocale::Germany) << "05.03.2024";
        QTest::newRow("English (US)") << int(QLocale::English) << int(QLocale::UnitedStates) << "03/05/2024";
    }

    // Dates in the program's notation and companies in the user's format.
    void cliFollowsSettings()
    {
        QFETCH(int, language);
        QFETCH(int, country);
        QFETCH(QString, deadline);
        QSettings settings;
        settings.setValue("Language", language);
        settings.setValue("Country", country);
        KalCompanyFormat format;
        format.field1 = KalCompanyFormat::Empty;
        format.field2 = KalCompanyFormat::Type;
        format.field3 = KalCompanyFormat::Empty;
        format.field2InBrackets = true;
        format.save();
        settings.sync();
        const KalCliRun run = kalCli({"export-defects", m_project});
        settings.clear();
        settings.sync();
        QCOMPARE(run.code, 0);
        const QList<QStringList> rows = parseCsv(run.out);
        QCOMPARE(rows.size(), 5);
        const QStringList ten = rows.at(3);
        QCOMPARE(ten.first(), QStringLiteral("10"));
        QCOMPARE(ten.at(rows.first().indexOf("Frist")), deadline);
        QCOMPARE(ten.at(rows.first().indexOf("Firma")), QStringLiteral("(Maler"));
    }
};

QTEST_GUILESS_MAIN(TstCliExport)
#include "tst_cliexport.moc"
