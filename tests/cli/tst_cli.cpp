// pellwick-cli driven as a user's script would: real processes, real files.
#include "core/project/KalProject.h"
#include "support/KalCliRun.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

class TstCli : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString path(const QString &name) { return m_dir->filePath(name); }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        QVERIFY(QFileInfo::exists(KalTestSettings::binDir() + "/pellwick-cli"));
    }

    void init() { m_dir.reset(new QTemporaryDir); }

    void usage_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("code");
        QTest::newRow("help") << QStringList{"--help"} << 0;
        QTest::newRow("version") << QStringList{"--version"} << 0;
        QTest::newRow("nothing") << QStringList{} << 2;
        QTest::newRow("unknown command") << QStringList{"frobnicate", "x.pwp"} << 2;
        QTest::newRow("no file") << QStringList{"info"} << 2;
        QTest::newRow("unknown option") << QStringList{"info", "x.pwp", "--xml"} << 2;
        QTest::newRow("description missing") << QStringList{"add-defect", "x.pwp", "--room", "Flur"} << 2;
        QTest::newRow("option without value") << QStringList{"add-defect", "x.pwp", "--description"} << 2;
        QTest::newRow("company not a number")
            << QStringList{"add-defect", "x.pwp", "--description", "d", "--company", "Maler"} << 2;
        QTest::newRow("missing file") << QStringList{"info", "/nirgends/x.pwp"} << 1;
    }

    void usage()
    {
        QFETCH(QStringList, args);
        QFETCH(int, code);
        const KalCliRun run = kalCli(args);
        QCOMPARE(run.code, code);
        if (args == QStringList{"--help"})
            QVERIFY(run.text().contains("add-defect FILE.pwp --description TEXT"));
        if (args == QStringList{"--version"})
            QVERIFY(run.text().startsWith("pellwick-cli "));
        if (code == 1)
            QVERIFY2(run.err.startsWith("Dateifehler: Die Datei"), qPrintable(run.err));
    }

    void newRefusesExistingFile()
    {
        const QString file = path("bau.pwp");
        QCOMPARE(kalCli({"new", file}).code, 0);
        QVERIFY(QFileInfo::exists(file));
        QVERIFY(!QFileInfo::exists(file + ".workingcopy"));
        QCOMPARE(countRows(file, "status"), 8);
        const QByteArray hash = fileHash(file);
        const KalCliRun again = kalCli({"new", file});
        QCOMPARE(again.code, 1);
        QVERIFY(again.err.startsWith("Dateifehler: "));
        QCOMPARE(fileHash(file), hash);
    }

    void infoIsReadOnly()
    {
        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 4));
        const QStringList before = folderState(m_dir->path());
        const KalCliRun run = kalCli({"info", file, "--json"});
        QCOMPARE(run.code, 0);
        const QJsonObject info = QJsonDocument::fromJson(run.out).object();
        QCOMPARE(info.value("fileversion").toString(), QStringLiteral("0.1"));
        QCOMPARE(info.value("integrity").toString(), QStringLiteral("ok"));
        QCOMPARE(info.value("projectname").toString(), QStringLiteral("Neues Projekt"));
        QCOMPARE(info.value("tables").toObject().value("defect").toInt(), 4);
        QCOMPARE(info.value("tables").toObject().value("status").toInt(), 8);
        QCOMPARE(folderState(m_dir->path()), before);

        const KalCliRun text = kalCli({"info", file});
        QCOMPARE(text.code, 0);
        QVERIFY(text.text().contains("Integrity:    ok"));
        QCOMPARE(folderState(m_dir->path()), before);
    }

    void addDefectGoesThroughTheLifecycle()
    {
        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 2));
        const KalCliRun run = kalCli({"add-defect", file, "--description", "Riss im Putz", "--number", "17", "--room",
                                      "Küche", "--status", "3"});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.text().trimmed(), QStringLiteral("3"));
        QCOMPARE(countRows(file, "defect"), 3);
        QCOMPARE(scalar(file, "SELECT description || '|' || number || '|' || roomname || '|' || status_id || '|' || "
                              "priority || '|' || creation_date FROM defect WHERE id = 3"),
                 QStringLiteral("Riss im Putz|17|Küche|3|Normal|%1").arg(QDate::currentDate().toString(Qt::ISODate)));
        QVERIFY(QFileInfo::exists(file + ".bak"));
        QCOMPARE(countRows(file + ".bak", "defect"), 2);
        QVERIFY(!QFileInfo::exists(file + ".workingcopy"));
        QVERIFY(!QFileInfo::exists(file + ".udf"));
        // Ids come from the allocator, also after a deletion.
        QVERIFY(execute(file, {"DELETE FROM defect WHERE id = 3"}));
        QCOMPARE(kalCli({"add-defect", file, "--description", "danach"}).text().trimmed(), QStringLiteral("4"));
    }

    void addDefectRefusesUnknownReferences_data()
    {
        QTest::addColumn<QStringList>("extra");
        QTest::newRow("company") << QStringList{"--company", "99"};
        QTest::newRow("status") << QStringList{"--status", "99"};
    }

    void addDefectRefusesUnknownReferences()
    {
        QFETCH(QStringList, extra);
        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 1));
        const QByteArray hash = fileHash(file);
        const KalCliRun run = kalCli(QStringList{"add-defect", file, "--description", "x"} + extra);
        QCOMPARE(run.code, 1);
        QVERIFY(run.err.startsWith("Fehler: "));
        QCOMPARE(fileHash(file), hash);
        QVERIFY(!QFileInfo::exists(file + ".workingcopy"));
    }

    void checkReportsFileAndBackups()
    {
        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 300));
        QCOMPARE(kalCli({"add-defect", file, "--description", "x"}).code, 0);
        KalCliRun run = kalCli({"check", file});
        QCOMPARE(run.code, 0);
        QVERIFY(run.text().contains(QDir::toNativeSeparators(file) + ": ok"));
        QVERIFY(run.text().contains(QDir::toNativeSeparators(file + ".bak") + ": ok"));
        QFile f(file);
        QVERIFY(f.resize(f.size() / 2));
        run = kalCli({"check", file});
        QCOMPARE(run.code, 1);
        QVERIFY(run.text().contains(QDir::toNativeSeparators(file + ".bak") + ": ok"));
    }

    void damagedFileAnswers_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::addColumn<int>("code");
        QTest::newRow("safe answer cancels") << false << 1;
        QTest::newRow("--yes restores the backup") << true << 0;
    }

    void damagedFileAnswers()
    {
        QFETCH(bool, yes);
        QFETCH(int, code);
        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 300));
        QCOMPARE(kalCli({"add-defect", file, "--description", "x"}).code, 0);
        QFile f(file);
        QVERIFY(f.resize(f.size() / 2));
        QStringList args{"add-defect", file, "--description", "nach Wiederherstellung"};
        if (yes)
            args.prepend("--yes");
        const KalCliRun run = kalCli(args);
        QCOMPARE(run.code, code);
        QVERIFY(run.err.contains("Beschädigte Datenbank-Datei: Die interne Struktur"));
        QVERIFY(run.err.contains(yes ? "-> Backup wiederherstellen" : "-> Abbrechen"));
        if (yes) {
            QVERIFY(QFileInfo::exists(path("bau.ERROR.pwp")));
            QCOMPARE(countRows(file, "defect"), 301);
        } else {
            QVERIFY(!QFileInfo::exists(path("bau.ERROR.pwp")));
        }
    }

    void vacuumCompacts()
    {
        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 0));
        QStringList ballast;
        for (int i = 1; i <= 40; ++i)
            ballast << QStringLiteral("INSERT INTO filter_state (id, key, value) VALUES (%1, 'x', '%2')")
                           .arg(i)
                           .arg(QString(40000, 'y'));
        ballast << "DELETE FROM filter_state";
        QVERIFY(execute(file, ballast));
        const qint64 before = QFileInfo(file).size();
        const KalCliRun run = kalCli({"vacuum", file});
        QCOMPARE(run.code, 0);
        QVERIFY(run.err.contains("Datenbank bereinigen: Die Datenbank wurde erfolgreich bereinigt."));
        QVERIFY(QFileInfo(file).size() < before);
        QCOMPARE(integrity(file), QStringLiteral("ok"));
    }

    void lockedProjectIsRefused()
    {
        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 1));
        KalProject holder; // this test process holds it open
        qputenv("USERNAME", "alice");
        QVERIFY(holder.openProject(file));
        const KalCliRun run = kalCli({"add-defect", file, "--description", "x"});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.err.startsWith("Datenbank in Bearbeitung: Die Datei konnte nicht geöffnet werden, da sie in "
                                    "Bearbeitung ist von\nUser: alice"),
                 qPrintable(run.err));
        QVERIFY(holder.closeProject());
        qunsetenv("USERNAME");
    }
};

QTEST_GUILESS_MAIN(TstCli)
#include "tst_cli.moc"
