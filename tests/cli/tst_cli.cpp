// pellwick-cli driven as a user's script would: real processes, real files.
// A defect it adds is the defect the program's list adds.
#include "core/project/KalDefectCsv.h"
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "support/KalCliRun.h"
#include "support/KalCompanyTestData.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;
using namespace CompanyTestData;

Q_DECLARE_METATYPE(KalDefectCsv::Columns)

namespace {

// The login name is set on purpose: it must never become the author.
const char *const kLogin = "mueller";

KalCliRun cli(const QStringList &args)
{
    return kalCli(args, kLogin);
}

} // namespace

class TstCli : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QTemporaryDir m_listDir;
    QString m_list; // a saved project with a defect list, shared by the export runs
    QString path(const QString &name) { return m_dir->filePath(name); }

    // A saved project with defects numbered as given and company 1.
    bool makeBase(const QString &file, const QStringList &numbers)
    {
        QStringList sql{"INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, telephone, "
                        "telefax, mobile, email, pos) VALUES (1, 'Maler', '', '', 'Farbe & Co', '', '', '', '', '', "
                        "'', '', 1)"};
        for (int i = 0; i < numbers.size(); ++i)
            sql << QStringLiteral("UPDATE defect SET number = '%1' WHERE id = %2").arg(numbers.at(i)).arg(i + 1);
        return createProject(file, numbers.size()) && execute(file, sql);
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        KalScriptedPrompt::install();
        QVERIFY(QFileInfo::exists(KalTestSettings::binDir() + "/pellwick-cli"));
        m_list = m_listDir.filePath("liste.pwp");
        QVERIFY(createDefectProject(m_list));
    }

    void init() { m_dir.reset(new QTemporaryDir); }

    // Every run that is refused leaves the folder as it was. "%p" is a
    // project, "%junk" a file that is none, "%d" their folder.
    void usage_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message"); // in stdout for code 0, stderr otherwise
        const QString addresses = "import-companies FILE.pwp ADDRESSES.csv";
        auto row = [](const char *name, const QStringList &args, int code, const QString &message = QString()) {
            QTest::newRow(name) << args << code << message;
        };
        row("help", {"--help"}, 0, "add-defect FILE.pwp --description TEXT");
        row("version", {"--version"}, 0, "pellwick-cli ");
        row("nothing", {}, 2);
        row("unknown command", {"frobnicate", "%p"}, 2);
        row("unknown option", {"info", "%p", "--xml"}, 2);
        row("missing file", {"info", "/nirgends/x.pwp"}, 1, "Dateifehler: Die Datei");
        row("description missing", {"add-defect", "%p", "--room", "Flur"}, 2);
        row("option without value", {"add-defect", "%p", "--description"}, 2);
        row("company not a number", {"add-defect", "%p", "--description", "d", "--company", "Maler"}, 2);
        row("unknown company", {"add-defect", "%p", "--description", "x", "--company", "99"}, 1, "Fehler: ");
        row("unknown status", {"add-defect", "%p", "--description", "x", "--status", "99"}, 1, "Fehler: ");
        row("export: unknown columns", {"export-defects", "%p", "--columns", "wide"}, 2);
        row("export: not a project", {"export-defects", "%junk"}, 1);
        row("export: output into the project", {"export-defects", "%p", "--output", "%p"}, 1);
        row("export: output folder missing", {"export-defects", "%p", "--output", "%d/fehlt/x.csv"}, 1);
        row("import: no address file", {"import-companies", "%p"}, 2, addresses);
        row("import: long separator", {"import-companies", "%p", "a.csv", "--separator", ";;"}, 2, addresses);
    }

    void usage()
    {
        QFETCH(QStringList, args);
        QFETCH(int, code);
        QFETCH(QString, message);
        const QString project = path("p.pwp");
        QVERIFY(createProject(project, 1));
        {
            QFile junk(path("junk.pwp"));
            QVERIFY(junk.open(QIODevice::WriteOnly));
            junk.write(QByteArray(3000, '\x07') + "keine Datenbank");
        }
        for (QString &arg : args) {
            arg.replace("%p", project);
            arg.replace("%junk", path("junk.pwp"));
            arg.replace("%d", m_dir->path());
        }
        const QByteArray hash = fileHash(project);
        const QStringList before = folderState(m_dir->path());
        const KalCliRun run = kalCli(args);
        QCOMPARE(run.code, code);
        QVERIFY2((code == 0 ? run.text() : run.err).contains(message), qPrintable(run.err));
        if (code != 0) {
            QVERIFY(!run.err.isEmpty());
            QVERIFY(run.out.isEmpty());
        }
        QCOMPARE(folderState(m_dir->path()), before);
        QCOMPARE(fileHash(project), hash);
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

    // The JSON answer; the text form is checked with the other reading commands.
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
        QCOMPARE(scalar(file, "SELECT creation_date FROM defect WHERE id = 3"),
                 QDate::currentDate().toString(Qt::ISODate));
        QVERIFY(QFileInfo::exists(file + ".bak"));
        QCOMPARE(countRows(file + ".bak", "defect"), 2);
        QVERIFY(!QFileInfo::exists(file + ".workingcopy"));
        QVERIFY(!QFileInfo::exists(file + ".udf"));
        // Ids come from the allocator, also after a deletion.
        QVERIFY(execute(file, {"DELETE FROM defect WHERE id = 3"}));
        QCOMPARE(kalCli({"add-defect", file, "--description", "danach"}).text().trimmed(), QStringLiteral("4"));
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

    void sameRowFromListAndCommandLine_data()
    {
        QTest::addColumn<QStringList>("numbers"); // numbers of the defects already there
        QTest::addColumn<QString>("remembered");  // initials last entered in the program
        QTest::addColumn<QStringList>("options"); // pellwick-cli options after the file
        QTest::addColumn<QString>("number");      // expected number of the new defect
        QTest::addColumn<QString>("author");      // expected author

        const QStringList text{"--description", "Riss im Putz"};
        auto row = [&](const char *name, const QStringList &numbers, const char *remembered, const QStringList &more,
                       const char *number, const char *author) {
            QTest::newRow(name) << numbers << QString(remembered) << text + more << QString(number) << QString(author);
        };
        row("first defect, nobody remembered", {}, "", {}, "0001", "");
        row("numbers go on after the highest", {"0007", "12", "B3"}, "KM", {}, "0013", "KM");
        row("remembered initials in capitals", {"1"}, "km", {}, "0002", "KM");
        row("a login name is no author", {}, "mueller", {}, "0001", "");
        row("given number, room, company, status, priority", {"3"}, "AB",
            {"--number", "A-1", "--room", "Küche", "--company", "1", "--status", "3", "--priority", "Hoch"}, "A-1",
            "AB");
    }

    void sameRowFromListAndCommandLine()
    {
        QFETCH(QStringList, numbers);
        QFETCH(QString, remembered);
        QFETCH(QStringList, options);
        QFETCH(QString, number);
        QFETCH(QString, author);

        qputenv("USERNAME", kLogin);
        QSettings settings;
        settings.setValue("DefectDialog/LastAuthorInitials", remembered);
        settings.sync();
        const QString base = path("base.pwp");
        QVERIFY(makeBase(base, numbers));
        QVERIFY(QFile::copy(base, path("list.pwp")));
        QVERIFY(QFile::copy(base, path("cli.pwp")));

        // The list's way: the core rules with the values the options name.
        const QMap<QString, QString> fieldOf{{"--description", "description"}, {"--number", "number"},
                                             {"--room", "roomname"},           {"--company", "company_id"},
                                             {"--status", "status_id"},        {"--priority", "priority"}};
        QVariantMap values;
        for (int i = 0; i + 1 < options.size(); i += 2)
            values.insert(fieldOf.value(options.at(i)), options.at(i + 1));
        qint64 listId = -1;
        {
            KalProject project;
            QVERIFY(project.openProject(path("list.pwp")));
            listId = KalDefects(project).add(values);
            QCOMPARE(project.saveProject(), int(KalProject::Saved));
            QVERIFY(project.closeProject());
        }

        const KalCliRun run = cli(QStringList{"add-defect", path("cli.pwp")} + options);
        QCOMPARE(run.code, 0);
        QCOMPARE(run.text().trimmed().toLongLong(), listId);

        const QVariantMap fromList =
            row(path("list.pwp"), QStringLiteral("SELECT * FROM defect WHERE id = %1").arg(listId));
        const QVariantMap fromCli =
            row(path("cli.pwp"), QStringLiteral("SELECT * FROM defect WHERE id = %1").arg(listId));
        QCOMPARE(fromList.value("number").toString(), number);
        QCOMPARE(fromList.value("user_id").toString(), author);
        QCOMPARE(fromCli.keys(), fromList.keys());
        for (auto it = fromList.constBegin(); it != fromList.constEnd(); ++it)
            QVERIFY2(fromCli.value(it.key()) == it.value(), qPrintable(it.key()));
    }

    void laggingIdCounter_data()
    {
        QTest::addColumn<QStringList>("damage");
        QTest::addColumn<QList<qint64>>("ids"); // ids of two adds in a row; empty: refused

        QTest::newRow("counter behind the rows")
            << QStringList{"UPDATE id_generator SET id_counter = 1 WHERE id_table = 'defect'"} << QList<qint64>{4, 5};
        QTest::newRow("counter missing") << QStringList{"DELETE FROM id_generator WHERE id_table = 'defect'"}
                                         << QList<qint64>{4, 5};
        QTest::newRow("a free id below a row at the end of the range")
            << QStringList{"UPDATE defect SET id = 9223372036854775807 WHERE id = 3"} << QList<qint64>{4, 5};
        QTest::newRow("counter behind, a row at the end of the range")
            << QStringList{"UPDATE defect SET id = 9223372036854775807 WHERE id = 3",
                           "UPDATE id_generator SET id_counter = 1 WHERE id_table = 'defect'"}
            << QList<qint64>{};
    }

    void laggingIdCounter()
    {
        QFETCH(QStringList, damage);
        QFETCH(QList<qint64>, ids);

        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 3));
        QVERIFY(execute(file, damage));
        const QByteArray before = fileHash(file);
        for (int attempt = 0; attempt < 2; ++attempt) {
            const KalCliRun run = cli({"add-defect", file, "--description", "neu"});
            if (ids.isEmpty()) {
                QCOMPARE(run.code, 1);
                QVERIFY2(run.err.startsWith("Datenbankfehler: "), qPrintable(run.err));
                QCOMPARE(fileHash(file), before);
            } else {
                QCOMPARE(run.code, 0);
                QCOMPARE(run.text().trimmed().toLongLong(), ids.at(attempt));
            }
        }
        QCOMPARE(countRows(file, "defect"), ids.isEmpty() ? 3 : 5);
    }

    // export-defects: read-only, to stdout or a file, in the user's date
    // notation and company format.
    void cliExport_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<KalDefectCsv::Columns>("columns");
        QTest::newRow("default is compact") << QStringList() << KalDefectCsv::Compact;
        QTest::newRow("all") << QStringList{"--columns", "all"} << KalDefectCsv::All;
    }

    void cliExport()
    {
        QFETCH(QStringList, options);
        QFETCH(KalDefectCsv::Columns, columns);
        const QString project = path("p.pwp");
        QVERIFY(QFile::copy(m_list, project));
        const QByteArray hash = fileHash(project);
        const QStringList before = folderState(m_dir->path());

        const KalCliRun toStdout = kalCli(QStringList{"export-defects", project} + options);
        QCOMPARE(toStdout.code, 0);
        // Read-only: no working copy, no user file, no byte changed.
        QCOMPARE(folderState(m_dir->path()), before);
        QCOMPARE(fileHash(project), hash);

        const QString output = path("liste.csv");
        const KalCliRun toFile = kalCli(QStringList{"export-defects", project, "--output", output} + options);
        QCOMPARE(toFile.code, 0);
        QVERIFY(toFile.out.isEmpty());
        QCOMPARE(readFile(output), toStdout.out);
        QCOMPARE(fileHash(project), hash);

        QCOMPARE(toStdout.out, exportDefects(m_list, columns));
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
        const KalCliRun run = kalCli({"export-defects", m_list});
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

QTEST_GUILESS_MAIN(TstCli)
#include "tst_cli.moc"
