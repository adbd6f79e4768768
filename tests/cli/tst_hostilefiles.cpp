// Project files that other tools, links and damaged data hand to
// pellwick-cli: nothing on disk is lost, nothing aborts, nothing hangs.
#include "support/KalCliRun.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// SQL for a text of `count` double quotes, made inside SQLite.
QString quotes(int count)
{
    return QStringLiteral("replace(hex(zeroblob(%1)), '00', '\"')").arg(count);
}

} // namespace

class TstHostileFiles : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString path(const QString &name) const { return m_dir->filePath(name); }

private slots:
    void initTestCase() { KalTestSettings::isolate(); }
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void exportNeverWritesThroughALink_data()
    {
        QTest::addColumn<QString>("output"); // link name
        QTest::addColumn<QString>("target"); // where it points, relative to the folder
        auto row = [](const char *name, const char *output, const char *target) {
            QTest::newRow(name) << QString(output) << QString(target);
        };
        row("link to the project", "liste.csv", "bau.pwp");
        row("link to a link to the project", "liste.csv", "zwischen.csv");
        row("link to a journal not yet there", "liste.csv", "bau.pwp-journal");
        row("link to the first backup", "liste.csv", "bau.pwp.bak");
        row("link to the user data", "liste.csv", "bau.pwp.udf");
        row("project through a folder link", "ordner/bau.pwp", ".");
    }

    void exportNeverWritesThroughALink()
    {
        QFETCH(QString, output);
        QFETCH(QString, target);
        QVERIFY(createProject(path("bau.pwp"), 2));
        QVERIFY(QFile::copy(path("bau.pwp"), path("bau.pwp.bak")));
        QVERIFY(QFile::link("bau.pwp", path("zwischen.csv")));
        const QString link = output.contains('/') ? path(output.section('/', 0, 0)) : path(output);
        QVERIFY(QFile::link(target, link));
        const QStringList before = folderState(m_dir->path());
        const QByteArray project = fileHash(path("bau.pwp"));

        const KalCliRun run = kalCli({"export-defects", path("bau.pwp"), "--output", path(output)});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.err.startsWith("Dateifehler: "), qPrintable(run.err));
        QCOMPARE(fileHash(path("bau.pwp")), project);
        QCOMPARE(folderState(m_dir->path()), before);
        QVERIFY(!QFileInfo::exists(path("bau.pwp-journal")));
    }

    void exportWritesOtherFiles_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("written"); // the file that gets the CSV
        QTest::newRow("through a link into another folder") << QString("liste.csv") << QString("ablage/liste.csv");
        QTest::newRow("a name that begins like the project") << QString("bau.pwp.csv") << QString("bau.pwp.csv");
        QTest::newRow("a backup-like name of another kind") << QString("bau.pwp.bak.csv") << QString("bau.pwp.bak.csv");
    }

    void exportWritesOtherFiles()
    {
        QFETCH(QString, output);
        QFETCH(QString, written);
        QVERIFY(createProject(path("bau.pwp"), 2));
        QVERIFY(QDir().mkpath(path("ablage")));
        if (output != written)
            QVERIFY(QFile::link(written, path(output)));
        const QByteArray project = fileHash(path("bau.pwp"));
        const KalCliRun run = kalCli({"export-defects", path("bau.pwp"), "--output", path(output)});
        QCOMPARE(run.code, 0);
        QVERIFY(readAll(path(written)).contains("defect 2"));
        QCOMPARE(QFileInfo(path(output)).isSymLink(), output != written);
        QCOMPARE(fileHash(path("bau.pwp")), project);
    }

    // Texts of millions of quotes, each doubled in the CSV. Quoting that is
    // not linear takes minutes here and runs into the runner's time limit.
    void hugeQuotedTextsExport_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::newRow("description") << QStringLiteral("UPDATE defect SET description = %1 WHERE id = 1");
        QTest::newRow("number") << QStringLiteral("UPDATE defect SET number = %1 WHERE id = 1");
        QTest::newRow("company") << QStringLiteral("UPDATE company SET company = %1; UPDATE defect SET company_id = "
                                                   "(SELECT id FROM company LIMIT 1) WHERE id = 1");
        QTest::newRow("status") << QStringLiteral("UPDATE status SET status = %1; UPDATE defect SET status_id = "
                                                  "(SELECT id FROM status LIMIT 1) WHERE id = 1");
    }

    void hugeQuotedTextsExport()
    {
        QFETCH(QString, sql);
        const int size = 8 * 1024 * 1024;
        QVERIFY(createProject(path("bau.pwp"), 2));
        QStringList statements;
        if (sql.contains("company"))
            statements << "INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, "
                          "telephone, telefax, mobile, email, pos) VALUES (7, '', '', '', '', '', '', '', '', '', "
                          "'', '', 1)";
        for (const QString &statement : sql.arg(quotes(size)).split("; "))
            statements << statement;
        QVERIFY(execute(path("bau.pwp"), statements));

        const KalCliRun run = kalCli({"export-defects", path("bau.pwp"), "--output", path("liste.csv")});
        QCOMPARE(run.code, 0);
        const QByteArray csv = readAll(path("liste.csv"));
        const QByteArray cell = '"' + QByteArray(2 * size, '"') + '"';
        QVERIFY(csv.contains(';' + cell) || csv.contains('\n' + cell + ';'));
    }

    // A text too large for the memory the process may use: a message and
    // exit code 1 instead of an abort; no half-written CSV.
    void memoryExhaustedExport()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("AddressSanitizer needs more address space than the limit leaves");
#endif
        QVERIFY(createProject(path("bau.pwp"), 1));
        QVERIFY(execute(path("bau.pwp"),
                        {QStringLiteral("UPDATE defect SET description = %1").arg(quotes(120 * 1024 * 1024))}));
        QProcess p;
        p.start("/bin/sh", {"-c", "ulimit -v 900000; exec \"$0\" \"$@\"", KalTestSettings::binDir() + "/pellwick-cli",
                            "export-defects", path("bau.pwp"), "--output", path("liste.csv")});
        QVERIFY(p.waitForFinished(120000));
        const QString err = QString::fromLocal8Bit(p.readAllStandardError());
        QCOMPARE(p.exitStatus(), QProcess::NormalExit);
        QCOMPARE(p.exitCode(), 1);
        QVERIFY2(err.startsWith("Speicherfehler: "), qPrintable(err));
        QVERIFY(!QFileInfo::exists(path("liste.csv")));
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden), QStringList{"bau.pwp"});
    }

    // Ids at the end of the signed 64-bit range: refused with a message,
    // never wrapped around (the sanitizer build traps any overflow).
    void idAllocationAtTheTop_data()
    {
        QTest::addColumn<QString>("counter");
        QTest::addColumn<qint64>("id"); // 0: refused
        QTest::newRow("2^62") << "4611686018427387904" << Q_INT64_C(4611686018427387905);
        QTest::newRow("one below the top") << "9223372036854775806" << Q_INT64_C(9223372036854775807);
        QTest::newRow("at the top") << "9223372036854775807" << Q_INT64_C(0);
    }

    void idAllocationAtTheTop()
    {
        QFETCH(QString, counter);
        QFETCH(qint64, id);
        QVERIFY(createProject(path("bau.pwp"), 2));
        QVERIFY(execute(
            path("bau.pwp"),
            {QStringLiteral("UPDATE id_generator SET id_counter = %1 WHERE id_table = 'defect'").arg(counter)}));
        const QByteArray before = fileHash(path("bau.pwp"));
        const KalCliRun run = kalCli({"add-defect", path("bau.pwp"), "--description", "oben"});
        if (id == 0) {
            QCOMPARE(run.code, 1);
            QVERIFY2(run.err.startsWith("Datenbankfehler: "), qPrintable(run.err));
            QCOMPARE(fileHash(path("bau.pwp")), before);
        } else {
            QCOMPARE(run.code, 0);
            QCOMPARE(run.text().trimmed().toLongLong(), id);
        }
    }

    // A release build tells the user through its messages only; no
    // developer diagnostics in front of them on stderr.
    void failuresPrintOnlyMessages_data()
    {
        QTest::addColumn<QStringList>("damage");
        QTest::addColumn<QString>("title");
        QTest::newRow("id table gone") << QStringList{"DROP TABLE id_generator"} << "Datenbankfehler: ";
        QTest::newRow("defect table read-only view")
            << QStringList{"ALTER TABLE defect RENAME TO defect_old", "CREATE VIEW defect AS SELECT * FROM defect_old"}
            << "Datenbankfehler: ";
    }

    void failuresPrintOnlyMessages()
    {
        QFETCH(QStringList, damage);
        QFETCH(QString, title);
        QVERIFY(createProject(path("bau.pwp"), 1));
        QVERIFY(execute(path("bau.pwp"), damage));
        const KalCliRun run = kalCli({"add-defect", path("bau.pwp"), "--description", "neu"});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.err.startsWith(title), qPrintable(run.err));
    }
};

QTEST_GUILESS_MAIN(TstHostileFiles)
#include "tst_hostilefiles.moc"
