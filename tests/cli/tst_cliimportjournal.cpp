// pellwick-cli import-journal as a script would use it: real processes, real
// journals, journals somebody has open and files that are no journal at all.
#include "support/KalCliRun.h"
#include "support/KalTestFiles.h"
#include "support/KalTestJournal.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>

using namespace KalTestFiles;

namespace {

const char *const kDefects = "SELECT group_concat(number || ':' || description, ' ') FROM (SELECT * FROM defect "
                             "ORDER BY number)";

// Holds the journal's working copy the way the site-diary program does
// while it has the journal open: an exclusive SQLite lock, and the user and
// computer named in the ".udf" file beside it. The lock lives in another
// process: POSIX drops a process's locks when it closes any descriptor of
// the file, and the test reads every file to prove nothing changed.
class OpenJournal
{
public:
    OpenJournal(const QString &journal, const QString &user, const QString &computer, bool hold)
    {
        KalTestFiles::writeFile(journal + ".udf", (user + "\n" + computer + "\n23.11.2026\n08:15\n").toUtf8());
        m_sqlite.start(QStringLiteral("sqlite3"), {journal + ".workingcopy"});
        if (!m_sqlite.waitForStarted())
            return;
        m_sqlite.write("CREATE TABLE IF NOT EXISTS entry (id INTEGER);\n");
        if (hold)
            m_sqlite.write("PRAGMA locking_mode = EXCLUSIVE;\nINSERT INTO entry VALUES (1);\n");
        m_ok = true;
        if (!hold) {
            m_sqlite.closeWriteChannel();
            m_ok = m_sqlite.waitForFinished(10000) && m_sqlite.exitCode() == 0;
        }
    }
    ~OpenJournal()
    {
        m_sqlite.closeWriteChannel();
        if (!m_sqlite.waitForFinished(10000))
            m_sqlite.kill();
    }
    bool ok() const { return m_ok; }

    // Whether a reader is locked out of the working copy now.
    static bool held(const QString &journal)
    {
        const QString name = QStringLiteral("probe");
        bool locked = false;
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            db.setDatabaseName(journal + ".workingcopy");
            db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=0"));
            QSqlQuery query(db);
            locked = db.open() && !query.exec(QStringLiteral("SELECT COUNT(*) FROM sqlite_master"));
        }
        QSqlDatabase::removeDatabase(name);
        return locked;
    }

private:
    QProcess m_sqlite;
    bool m_ok = false;
};

} // namespace

class TstCliImportJournal : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_project;
    QString m_journal;

    QString path(const QString &name) const { return m_dir->filePath(name); }

    // Two defects of report 7, one with a photo and the painter's company.
    static bool writeJournal(const QString &file)
    {
        KalTestJournal j(file);
        const qint64 company = j.addCompany(QStringLiteral("Roth GmbH"), QStringLiteral("Maler"));
        const qint64 report = j.addReport(QStringLiteral("7"));
        const qint64 d1 = j.addDefect(report, QStringLiteral("1"), QStringLiteral("Riss"), {{"company_id", company}});
        j.addDefect(report, QStringLiteral("2"), QStringLiteral("Fleck"));
        j.addPhoto(d1, KalTestJournal::jpeg(), QStringLiteral("Ostwand"));
        const bool ok = j.ok();
        j.close();
        return ok;
    }

    KalCliRun import(const QStringList &extra = {})
    {
        return kalCli(QStringList{"import-journal", m_project, m_journal} + extra);
    }

    // The project and the journal folder as they are now.
    struct Disk
    {
        QByteArray project;
        QByteArray journal;
        QStringList folder;
        bool operator==(const Disk &o) const
        {
            return project == o.project && journal == o.journal && folder == o.folder;
        }
    };
    // The site-diary program's working copy (and its rollback journal) is its
    // own business: it may still be writing them while it holds the lock.
    Disk disk() const
    {
        QStringList folder = folderState(m_dir->path());
        folder.erase(std::remove_if(folder.begin(), folder.end(),
                                    [](const QString &line) {
                                        return line.section(QLatin1Char(' '), 0, 0).contains(".workingcopy");
                                    }),
                     folder.end());
        return {fileHash(m_project), fileHash(m_journal), folder};
    }

private slots:
    void initTestCase() { KalTestSettings::isolate(); }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
        m_project = path("bau.pwp");
        m_journal = path("Bautagebuch.sjd");
        QVERIFY(createProject(m_project));
        QVERIFY(writeJournal(m_journal));
    }

    void importLinksSavesAndLeavesTheJournalAlone()
    {
        const QByteArray journalBefore = fileHash(m_journal);
        const KalCliRun run = import();
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QCOMPARE(scalar(m_project, kDefects), QStringLiteral("1:Riss 2:Fleck"));
        QCOMPARE(scalar(m_project, "SELECT c.company FROM defect d JOIN company c ON c.id = d.company_id"),
                 QStringLiteral("Roth GmbH"));
        QCOMPARE(scalar(m_project, "SELECT caption || '|' || (SELECT image_cnt FROM defect WHERE number = '1') "
                                   "FROM photo_info"),
                 QStringLiteral("Ostwand|1"));
        QCOMPARE(QDir::fromNativeSeparators(
                     scalar(m_project, "SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'")),
                 m_journal);
        QVERIFY2(run.text().contains(QStringLiteral("Mängel")), qPrintable(run.text()));
        QVERIFY2(run.err.contains(QStringLiteral("Datenimport aus dem Bautagebuch")), qPrintable(run.err));
        QCOMPARE(integrity(m_project), QStringLiteral("ok"));
        QVERIFY(QFileInfo::exists(m_project + ".bak"));
        // Nothing beside the journal: no working copy, no lock file, no journal.
        QCOMPARE(fileHash(m_journal), journalBefore);
        QStringList names;
        for (const QString &line : folderState(m_dir->path()))
            names << line.section(QLatin1Char(' '), 0, 0);
        for (const QString &name : qAsConst(names))
            QVERIFY2(!name.startsWith(QLatin1String("Bautagebuch.sjd")) || name == QLatin1String("Bautagebuch.sjd"),
                     qPrintable(names.join(' ')));
    }

    void unchangedReimportChangesNoByte()
    {
        QCOMPARE(import().code, 0);
        const Disk before = disk();
        for (const QStringList &extra : {QStringList(), QStringList{"--new-only"}, QStringList{"--yes"}}) {
            const KalCliRun again = import(extra);
            QVERIFY2(again.code == 0, qPrintable(again.err));
            QVERIFY2(disk() == before, qPrintable(extra.join(' ')));
        }
    }

    // Without --yes records deleted on one side are left alone and nothing
    // is asked or remembered; with it the recommended answer is taken. The
    // journal is never touched either way.
    void answers_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("expected");
        const QString deleted = "Der Mangel 2 wurde im Bautagebuch gelöscht.";
        const QString restored = "Der Mangel 2 wurde im Pellwick gelöscht.";
        QTest::newRow("deleted in the journal, kept") << "journal" << false << deleted << "1:Riss 2:Fleck";
        QTest::newRow("deleted in the journal, deleted with --yes") << "journal" << true << deleted << "1:Riss";
        QTest::newRow("deleted here, stays deleted") << "project" << false << restored << "1:Riss";
        QTest::newRow("deleted here, restored with --yes") << "project" << true << restored << "1:Riss 2:Fleck";
    }
    void answers()
    {
        QFETCH(QString, change);
        QFETCH(bool, yes);
        QFETCH(QString, question);
        QFETCH(QString, expected);
        QCOMPARE(import().code, 0);
        if (change == QLatin1String("journal")) {
            KalTestJournal j = KalTestJournal::reopen(m_journal);
            QVERIFY(j.exec("DELETE FROM entry_progress WHERE number = '2'"));
        } else {
            // As the program deletes an imported defect: it leaves a tombstone.
            QVERIFY(execute(m_project, {"INSERT INTO deleted_site_journal_defect (site_journal_id, number, "
                                        "imported_report_id) SELECT site_journal_id, number, imported_report_id "
                                        "FROM defect WHERE number = '2'",
                                        "DELETE FROM defect WHERE number = '2'"}));
        }
        const QByteArray journal = fileHash(m_journal);
        const KalCliRun run = import(yes ? QStringList{"--yes"} : QStringList());
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QVERIFY2(run.err.contains(question) == yes, qPrintable(run.err));
        QCOMPARE(scalar(m_project, kDefects), expected);
        QCOMPARE(fileHash(m_journal), journal);
        if (!yes) {
            // Nothing was decided on the user's behalf: the next run still asks.
            const KalCliRun again = import({"--yes"});
            QVERIFY2(again.err.contains(question), qPrintable(again.err));
        }
    }

    // A rebuilt journal (new ids, one number changed) leaves a project
    // defect without its counterpart: the CLI never guesses, the journal
    // defect it cannot match becomes a new one.
    void conflictBecomesNewDefect()
    {
        QCOMPARE(import().code, 0);
        {
            KalTestJournal j = KalTestJournal::reopen(m_journal);
            QVERIFY(j.exec("UPDATE entry_progress SET id = id + 100 WHERE type = 4"));
            QVERIFY(j.exec("UPDATE entry_progress SET relation_id = relation_id + 100 WHERE type = 2"));
            QVERIFY(j.exec("UPDATE entry_progress SET number = '2a' WHERE number = '2'"));
        }
        const KalCliRun run = import();
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QCOMPARE(scalar(m_project, kDefects), QStringLiteral("1:Riss 2:Fleck 2a:Fleck"));
        QCOMPARE(countRows(m_project, "photo_info"), 1);
    }

    void openJournal_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<bool>("held");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("somebody else has it open") << "hans" << true << true << 1 << "User: hans\nComputer: PC-7";
        QTest::newRow("open here, safe answer stops") << "erika" << true << false << 1 << "Bautagebuch geöffnet";
        QTest::newRow("open here, --yes goes on") << "erika" << true << true << 0 << "Bautagebuch geöffnet";
        QTest::newRow("crash leftover") << "hans" << false << false << 0 << "";
    }
    void openJournal()
    {
        QFETCH(QString, user);
        QFETCH(bool, held);
        QFETCH(bool, yes);
        QFETCH(int, code);
        QFETCH(QString, message);
        const QString computer = user == QLatin1String("erika") ? QStringLiteral("BAUBUERO") : QStringLiteral("PC-7");
        OpenJournal open(m_journal, user, computer, held);
        QVERIFY(open.ok());
        QTRY_COMPARE_WITH_TIMEOUT(OpenJournal::held(m_journal), held, 10000);
        const Disk before = disk();
        const KalCliRun run = import(yes ? QStringList{"--yes"} : QStringList());
        QVERIFY2(run.code == code, qPrintable(run.err));
        if (!message.isEmpty())
            QVERIFY2(run.err.contains(message), qPrintable(run.err));
        if (code != 0) {
            QVERIFY(disk() == before);
        } else {
            QCOMPARE(scalar(m_project, kDefects), QStringLiteral("1:Riss 2:Fleck"));
            QCOMPARE(fileHash(m_journal), before.journal);
        }
    }

    // Whatever the journal file holds: a clear message, exit 1, and no byte
    // of the project, the journal or the folder changed.
    void hostileJournal_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("message");
        // Each kind of damage is the engine's business and tested there; here
        // the CLI must end the same way for all of them.
        QByteArray random(64 * 1024, '\0');
        for (int i = 0; i < random.size(); ++i)
            random[i] = char((i * 7919 + 13) % 251);
        QTest::newRow("random bytes") << random << "ist keine Bautagebuch-Datei";
        QTest::newRow("truncated journal") << QByteArray("truncate") << "Bautagebuch-Datei";
        QTest::newRow("the project itself") << QByteArray("self") << "ist die Projektdatei selbst";
    }
    void hostileJournal()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, message);
        if (content == "truncate") {
            QFile journal(m_journal);
            QVERIFY(journal.open(QIODevice::ReadOnly));
            content = journal.read(journal.size() / 2);
        }
        if (content == "self")
            m_journal = m_project;
        else
            QVERIFY(writeFile(m_journal, content));
        const Disk before = disk();
        const KalCliRun run = import({"--yes"});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QVERIFY(disk() == before);
    }

    void otherLinkedJournal_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("linked");
        QTest::newRow("safe answer keeps the link") << false << 1 << "Bautagebuch.sjd";
        QTest::newRow("--yes relinks") << true << 0 << "Zweites.sjd";
    }
    void otherLinkedJournal()
    {
        QFETCH(bool, yes);
        QFETCH(int, code);
        QFETCH(QString, linked);
        QCOMPARE(import().code, 0);
        const QString second = path("Zweites.sjd");
        {
            KalTestJournal j(second);
            j.addDefect(j.addReport(QStringLiteral("1")), QStringLiteral("9"), QStringLiteral("Putz"));
        }
        const QByteArray before = fileHash(m_project);
        const KalCliRun run =
            kalCli(QStringList{"import-journal", m_project, second} + (yes ? QStringList{"--yes"} : QStringList()));
        QVERIFY2(run.code == code, qPrintable(run.err));
        QVERIFY2(run.err.contains(QStringLiteral("Soll es stattdessen mit")), qPrintable(run.err));
        QCOMPARE(
            QFileInfo(scalar(m_project, "SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'")).fileName(),
            linked);
        if (code != 0)
            QCOMPARE(fileHash(m_project), before);
        else
            QVERIFY(scalar(m_project, kDefects).contains(QStringLiteral("9:Putz")));
    }

    void usage_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("no journal") << QStringList{"import-journal", "bau.pwp"} << 2 << "one journal file";
        QTest::newRow("two journals") << QStringList{"import-journal", "bau.pwp", "a.sjd", "b.sjd"} << 2
                                      << "one journal file";
        QTest::newRow("unknown option") << QStringList{"import-journal", "bau.pwp", "Bautagebuch.sjd", "--all"} << 2
                                        << "unknown argument '--all'";
        QTest::newRow("journal missing") << QStringList{"import-journal", "bau.pwp", "fehlt.sjd"} << 1
                                         << "existiert nicht";
        QTest::newRow("project missing") << QStringList{"import-journal", "fehlt.pwp", "Bautagebuch.sjd"} << 1
                                         << "existiert nicht";
    }
    void usage()
    {
        QFETCH(QStringList, args);
        QFETCH(int, code);
        QFETCH(QString, message);
        for (int i = 1; i < args.size(); ++i) {
            if (!args.at(i).startsWith(QLatin1String("--")))
                args[i] = path(args.at(i));
        }
        const Disk before = disk();
        const KalCliRun run = kalCli(args);
        QCOMPARE(run.code, code);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QVERIFY(disk() == before);
    }
};

QTEST_GUILESS_MAIN(TstCliImportJournal)
#include "tst_cliimportjournal.moc"
