// pellwick-cli export-defects: refusals that change nothing, the export to
// stdout or a file, and the user's date notation and company format.
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDefectCsv.h"
#include "support/KalCliRun.h"
#include "support/KalCompanyTestData.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QtTest>

using namespace CompanyTestData;

namespace {
QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

Q_DECLARE_METATYPE(KalDefectCsv::Columns)

class TstCliExport : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_project;

    QByteArray exportFromFile(KalDefectCsv::Columns columns, const KalCompanyFormat &format)
    {
        QByteArray csv;
        {
            QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "csvtest");
            db.setDatabaseName(m_project);
            db.setConnectOptions("QSQLITE_OPEN_READONLY");
            if (db.open()) {
                QString error;
                if (!KalDefectCsv::fromDatabase(db, columns, format, &csv, &error))
                    qWarning() << error;
            }
            db.close();
        }
        QSqlDatabase::removeDatabase("csvtest");
        return csv;
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_project = m_dir.filePath("liste.pwp");
        QVERIFY(createDefectProject(m_project));
    }

    void cliUsage_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("code");
        QTest::newRow("no file") << QStringList{"export-defects"} << 2;
        QTest::newRow("option instead of file") << QStringList{"export-defects", "--output", "x.csv"} << 2;
        QTest::newRow("unknown columns") << QStringList{"export-defects", "%p", "--columns", "wide"} << 2;
        QTest::newRow("output without value") << QStringList{"export-defects", "%p", "--output"} << 2;
        QTest::newRow("unknown option") << QStringList{"export-defects", "%p", "--json"} << 2;
        QTest::newRow("missing file") << QStringList{"export-defects", "/nirgends/x.pwp"} << 1;
        QTest::newRow("not a project") << QStringList{"export-defects", "%junk"} << 1;
        QTest::newRow("output into the project") << QStringList{"export-defects", "%p", "--output", "%p"} << 1;
        QTest::newRow("output folder missing")
            << QStringList{"export-defects", "%p", "--output", "%d/fehlt/x.csv"} << 1;
    }

    void cliUsage()
    {
        QFETCH(QStringList, args);
        QFETCH(int, code);
        QTemporaryDir dir;
        const QString project = dir.filePath("p.pwp");
        QVERIFY(QFile::copy(m_project, project));
        {
            QFile junk(dir.filePath("junk.pwp"));
            QVERIFY(junk.open(QIODevice::WriteOnly));
            junk.write(QByteArray(3000, '\x07') + "keine Datenbank");
        }
        for (QString &arg : args) {
            arg.replace("%p", project);
            arg.replace("%junk", dir.filePath("junk.pwp"));
            arg.replace("%d", dir.path());
        }
        const QByteArray hash = KalTestFiles::fileHash(project);
        const QStringList before = KalTestFiles::folderState(dir.path());
        const KalCliRun run = kalCli(args);
        QCOMPARE(run.code, code);
        QVERIFY(!run.err.isEmpty());
        QVERIFY(run.out.isEmpty());
        QCOMPARE(KalTestFiles::folderState(dir.path()), before);
        QCOMPARE(KalTestFiles::fileHash(project), hash);
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
        QCOMPARE(readAll(output), toStdout.out);
        QCOMPARE(KalTestFiles::fileHash(project), hash);

        QCOMPARE(toStdout.out, exportFromFile(columns, KalCompanyFormat::factoryDefaults()));
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
