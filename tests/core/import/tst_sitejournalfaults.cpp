// The site-journal import when things go wrong: hostile journal files, a
// failing write at every step, a cancel, the lock while reading, and a
// journal held by the site-diary program in another process.
#include "core/import/KalDataImportConflictResolver.h"
#include "core/import/KalSiteJournalDataImport.h"
#include "core/import/KalSiteJournalLockMarker.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalHolderProcess.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFaults.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestJournal.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

using Mode = KalSiteJournalDataImport::Mode;
using Outcome = KalDataImportResult::Outcome;

namespace {

// Tries to write the journal from another connection while the import asks.
class WritingResolver : public KalDataImportConflictResolver
{
public:
    QString journal;
    bool asked = false;
    bool writeFailed = false;
    qint64 assign(const JournalDefect &, const QList<qint64> &) override
    {
        asked = true;
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("intruder"));
            db.setDatabaseName(journal);
            db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
            QSqlQuery query(db);
            writeFailed = !db.open() || !query.exec(QStringLiteral("UPDATE entry SET number = 'x'"));
            db.close();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("intruder"));
        return -1;
    }
};

// Everything the project holds, for "exactly as before".
QString projectState(KalTestProject &fx)
{
    QStringList parts;
    for (const char *table : {"defect", "company", "photo_info", "image", "imported_report", "meta", "id_generator",
                              "imported_closed_report_company", "deleted_site_journal_defect"}) {
        QSqlQuery query(fx.project()->database());
        query.exec(QStringLiteral("SELECT * FROM %1 ORDER BY 1").arg(QLatin1String(table)));
        while (query.next()) {
            QStringList row;
            for (int i = 0; i < query.record().count(); ++i)
                row << query.value(i).toString();
            parts << QLatin1String(table) + QLatin1Char(':') + row.join(QLatin1Char('|'));
        }
    }
    return parts.join(QLatin1Char('\n'));
}

// From the `failAt`-th row written into the project on, every write fails
// as on a broken disk. Temporary triggers live on this connection only.
void failWritesFrom(KalTestProject &fx, int failAt)
{
    QVERIFY(fx.exec(QStringLiteral("CREATE TEMP TABLE fault_count (n INTEGER)")));
    QVERIFY(fx.exec(QStringLiteral("INSERT INTO temp.fault_count VALUES (0)")));
    for (const char *table : {"company", "imported_report", "defect", "photo_info", "image", "meta", "id_generator",
                              "imported_closed_report_company", "deleted_site_journal_company"}) {
        for (const char *op : {"INSERT", "UPDATE", "DELETE"}) {
            QVERIFY(fx.exec(QStringLiteral("CREATE TEMP TRIGGER fault_%1_%2 BEFORE %2 ON main.%1 BEGIN UPDATE "
                                           "fault_count SET n = n + 1; SELECT RAISE(ABORT, 'disk I/O error') "
                                           "WHERE (SELECT n FROM temp.fault_count) >= %3; END")
                                .arg(QLatin1String(table), QLatin1String(op))
                                .arg(failAt)));
        }
    }
}

} // namespace

class TstSiteJournalFaults : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;
    int m_files = 0;

    QString newPath() { return m_dir.filePath(QStringLiteral("j%1/journal.sjd").arg(++m_files)); }

    // One trade, a closed report with two defects, one with a photo.
    QString smallJournal()
    {
        const QString path = newPath();
        QDir().mkpath(QFileInfo(path).absolutePath());
        KalTestJournal j(path);
        const qint64 company = j.addCompany(QStringLiteral("Roth GmbH"), QStringLiteral("Maler"));
        const qint64 report = j.addReport(QStringLiteral("1"), {{"locked", "1"}});
        const qint64 d1 = j.addDefect(report, QStringLiteral("1"), QStringLiteral("Riss"), {{"company_id", company}});
        j.addDefect(report, QStringLiteral("2"), QStringLiteral("Fleck"));
        j.addPhoto(d1, KalTestJournal::jpeg(), QStringLiteral("Nord"));
        return path;
    }

    KalDataImportResult import(const QString &path, Mode mode, KalProgress *progress = nullptr,
                               KalDataImportConflictResolver *resolver = nullptr)
    {
        KalSiteJournalDataImport engine(m_fx.project(), m_prompt, progress, resolver);
        engine.setAutomaticImportMode(1);
        return engine.run(path, mode);
    }

    // A journal file of the given kind of trouble at `path`.
    void writeHostileJournal(const QString &kind, const QString &path)
    {
        const QString tableSql = QStringLiteral(
            "CREATE TABLE entry_progress (id INTEGER, entry_id INTEGER, type INTEGER, relation_id INTEGER, photo_id "
            "INTEGER, number TEXT, description TEXT, company_id INTEGER, roomname TEXT, roombook_number TEXT, date "
            "DATE, correction_date DATE)");
        if (kind == QLatin1String("empty")) {
            QVERIFY(KalTestFiles::writeFile(path, QByteArray()));
        } else if (kind == QLatin1String("random")) {
            QByteArray bytes;
            for (int i = 0; i < 8192; ++i)
                bytes.append(char((i * 7919) % 251));
            QVERIFY(KalTestFiles::writeFile(path, bytes));
        } else if (kind == QLatin1String("project")) {
            // One project per process: the test's own is closed meanwhile.
            m_fx.close();
            QVERIFY(KalTestFiles::createProject(path, 2));
            QVERIFY(m_fx.open());
        } else if (kind != QLatin1String("missing")) {
            KalTestJournal j(path);
            const qint64 report = j.addReport(QStringLiteral("1"));
            if (kind == QLatin1String("noColumn")) {
                QVERIFY(j.exec(QStringLiteral("DROP TABLE entry_progress")));
                QVERIFY(j.exec(QString(tableSql).remove(QStringLiteral("roomname TEXT, "))));
            } else if (kind == QLatin1String("duplicates")) {
                QVERIFY(j.exec(QStringLiteral("DROP TABLE entry_progress")));
                QVERIFY(j.exec(tableSql));
                j.addDefect(report, QStringLiteral("1"), QStringLiteral("erste"), {{"id", 5}});
                j.addDefect(report, QStringLiteral("1"), QStringLiteral("zweite"), {{"id", 5}});
                j.addDefect(report, QStringLiteral("x"), QStringLiteral("ohne Zahl"), {{"id", "abc"}});
            } else if (kind == QLatin1String("newer")) {
                QVERIFY(j.exec(QStringLiteral("CREATE TABLE weather (id INTEGER, text TEXT)")));
                QVERIFY(j.exec(QStringLiteral("ALTER TABLE entry_progress ADD COLUMN gps TEXT")));
                j.addDefect(report, QStringLiteral("1"), QStringLiteral("x"), {{"gps", "50.7,7.1"}});
            } else if (kind == QLatin1String("dangling")) {
                const qint64 defect = j.addDefect(report, QStringLiteral("1"), QStringLiteral("x"));
                j.addDefect(777, QStringLiteral("2"), QStringLiteral("ohne Bericht"));
                j.addPhoto(defect, KalTestJournal::jpeg(), QStringLiteral("weg"));
                QVERIFY(j.exec(QStringLiteral("DELETE FROM image")));
                QVERIFY(j.exec(QStringLiteral("INSERT INTO entry_progress (id, entry_id, type, relation_id, photo_id) "
                                              "VALUES (90, 1, 2, 4242, 4343)")));
            } else if (kind == QLatin1String("huge") || kind == QLatin1String("truncated")) {
                j.addDefect(report, QStringLiteral("1"), QString(10 * 1024 * 1024, QLatin1Char('x')));
            } else {
                j.addDefect(report, QStringLiteral("1"), QStringLiteral("x"));
            }
            if (kind == QLatin1String("wal"))
                QVERIFY(j.exec(QStringLiteral("PRAGMA journal_mode = WAL")));
            j.close();
            if (kind == QLatin1String("truncated")) {
                QFile file(path);
                QVERIFY(file.resize(file.size() / 2));
            }
            if (kind == QLatin1String("hotJournal"))
                QVERIFY(KalTestFiles::writeFile(path + QStringLiteral("-journal"), QByteArray(1024, '\x01')));
        }
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        // The machine may run tests without any user name set.
        qputenv("USERNAME", "bauleitung");
        QVERIFY(m_dir.isValid());
    }
    void init()
    {
        QVERIFY(m_fx.open());
        m_prompt = KalScriptedPrompt::install();
    }
    void cleanup() { m_fx.close(); }

    void hostileJournals_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("message"); // part of the message; empty: imports
        QTest::addColumn<int>("defects");

        QTest::newRow("missing file") << "missing"
                                      << "existiert nicht" << 0;
        QTest::newRow("empty file") << "empty"
                                    << "ist keine Bautagebuch-Datei" << 0;
        QTest::newRow("random bytes") << "random"
                                      << "ist keine Bautagebuch-Datei" << 0;
        QTest::newRow("a project file") << "project"
                                        << "Tabelle \"entry\"" << 0;
        QTest::newRow("missing column") << "noColumn"
                                        << "Spalte \"roomname\" der Tabelle \"entry_progress\"" << 0;
        QTest::newRow("truncated") << "truncated"
                                   << "(Aufbau)" << 0;
        QTest::newRow("rollback journal beside it") << "hotJournal"
                                                    << "nicht abgeschlossene Änderung" << 0;
        QTest::newRow("WAL mode") << "wal"
                                  << "WAL" << 0;
        QTest::newRow("newer: extra tables and columns") << "newer"
                                                         << "" << 1;
        QTest::newRow("duplicate ids without primary key") << "duplicates"
                                                           << "" << 1;
        QTest::newRow("dangling report, photo and image ids") << "dangling"
                                                              << "" << 1;
        QTest::newRow("10 MB description") << "huge"
                                           << "" << 1;
    }
    void hostileJournals()
    {
        QFETCH(QString, kind);
        QFETCH(QString, message);
        QFETCH(int, defects);
        const QString path = newPath();
        const QString folder = QFileInfo(path).absolutePath();
        QDir().mkpath(folder);
        writeHostileJournal(kind, path);
        if (QTest::currentTestFailed())
            return;
        const QByteArray journalBefore = KalTestFiles::fileHash(path);
        const QStringList folderBefore = KalTestFiles::folderState(folder);
        const QString projectBefore = projectState(m_fx);

        const KalDataImportResult result = import(path, Mode::Initial);
        if (message.isEmpty()) {
            QCOMPARE(int(result.outcome), int(Outcome::Done));
            QCOMPARE(m_fx.count(QStringLiteral("defect")), defects);
        } else {
            QCOMPARE(int(result.outcome), int(Outcome::Failed));
            QVERIFY2(m_prompt->texts().join(QString()).contains(message), qPrintable(m_prompt->texts().join('\n')));
            QCOMPARE(projectState(m_fx), projectBefore);
        }
        if (kind == QLatin1String("huge"))
            QCOMPARE(m_fx.value(QStringLiteral("SELECT length(description) FROM defect")).toInt(), 10 * 1024 * 1024);
        if (kind == QLatin1String("duplicates"))
            QCOMPARE(m_fx.value(QStringLiteral("SELECT description FROM defect")).toString(), QStringLiteral("erste"));
        if (kind == QLatin1String("dangling"))
            QCOMPARE(result.skippedPhotos.size(), 1);
        // The journal is read, never written, and nothing is left beside it.
        QCOMPARE(KalTestFiles::fileHash(path), journalBefore);
        QCOMPARE(KalTestFiles::folderState(folder), folderBefore);
    }

    void failingWriteAtEachStep_data()
    {
        QTest::addColumn<bool>("update");
        QTest::newRow("first import") << false;
        QTest::newRow("update with deletions and restores") << true;
    }
    void failingWriteAtEachStep()
    {
        QFETCH(bool, update);
        const QString path = smallJournal();
        // The update reads a changed copy: deletions, changes, new rows.
        const QString changed = QFileInfo(path).absolutePath() + QStringLiteral("/changed.sjd");
        QVERIFY(QFile::copy(path, changed));
        {
            KalTestJournal j = KalTestJournal::reopen(changed);
            QVERIFY(j.exec(QStringLiteral("DELETE FROM entry_progress WHERE number = '2'")));
            QVERIFY(j.exec(QStringLiteral("UPDATE entry_progress SET description = 'neu' WHERE type = 4")));
            QVERIFY(j.exec(QStringLiteral("UPDATE company SET company = 'Roth AG'")));
            const qint64 report = j.addReport(QStringLiteral("2"));
            j.addPhoto(j.addDefect(report, QStringLiteral("3"), QStringLiteral("neu")), KalTestJournal::jpeg());
        }
        const QString target = update ? changed : path;
        int failures = 0;
        for (int failAt = 1; failAt < 100; ++failAt) {
            QVERIFY(m_fx.open());
            m_prompt = KalScriptedPrompt::install();
            if (update) {
                QCOMPARE(int(import(path, Mode::Initial).outcome), int(Outcome::Done));
                m_fx.project()->setModified(false);
            }
            const QString before = projectState(m_fx);
            const QByteArray hashBefore = KalTestFiles::fileHash(m_fx.project()->workingCopyPath());
            failWritesFrom(m_fx, failAt);
            m_prompt->queueAnswer(QStringLiteral("Mangel im Pellwick löschen"));
            const KalDataImportResult result = import(target, update ? Mode::Update : Mode::Initial);
            if (result.outcome == Outcome::Done) {
                QVERIFY2(failAt > 3, qPrintable(result.text())); // it got through: every write step was tried
                break;
            }
            ++failures;
            QCOMPARE(int(result.outcome), int(Outcome::Failed));
            QVERIFY(m_prompt->hasTitle(QStringLiteral("Datenbankfehler")));
            QCOMPARE(projectState(m_fx), before);
            QCOMPARE(KalTestFiles::fileHash(m_fx.project()->workingCopyPath()), hashBefore);
            QCOMPARE(m_fx.project()->isModified(), false);
            // The models still work: the next import without the fault succeeds.
            QVERIFY(m_fx.exec(QStringLiteral("DELETE FROM temp.fault_count")));
            QVERIFY(m_fx.exec(QStringLiteral("INSERT INTO temp.fault_count VALUES (-1000000)")));
            m_prompt->queueAnswer(QStringLiteral("Mangel im Pellwick löschen"));
            QCOMPARE(int(import(target, update ? Mode::Update : Mode::Initial).outcome), int(Outcome::Done));
            QCOMPARE(m_fx.model(QStringLiteral("defect"))->rowCount(), m_fx.count(QStringLiteral("defect")));
        }
        QVERIFY(failures > 5);
    }

    void cancelMidway_data()
    {
        QTest::addColumn<int>("after");
        QTest::newRow("at once") << -1;
        QTest::newRow("at the first defect") << 0;
        QTest::newRow("at the second defect") << 1;
    }
    void cancelMidway()
    {
        QFETCH(int, after);
        const QString path = smallJournal();
        const QString before = projectState(m_fx);
        const QByteArray hashBefore = KalTestFiles::fileHash(m_fx.project()->workingCopyPath());
        KalCancelingProgress progress(after);
        const KalDataImportResult result = import(path, Mode::Initial, &progress);
        QVERIFY(progress.cancelable);
        QCOMPARE(int(result.outcome), int(Outcome::Canceled));
        QCOMPARE(projectState(m_fx), before);
        QCOMPARE(KalTestFiles::fileHash(m_fx.project()->workingCopyPath()), hashBefore);
        QVERIFY(!m_fx.project()->isModified());
        QCOMPARE(m_fx.model(QStringLiteral("defect"))->rowCount(), 0);
    }

    void nobodyWritesWhileImporting()
    {
        const QString path = smallJournal();
        QCOMPARE(int(import(path, Mode::Initial).outcome), int(Outcome::Done));
        {
            KalTestJournal j = KalTestJournal::reopen(path);
            QVERIFY(j.exec(QStringLiteral("UPDATE entry_progress SET id = id + 50 WHERE number = '2'")));
            QVERIFY(j.exec(QStringLiteral("UPDATE entry_progress SET number = '2b' WHERE number = '2'")));
        }
        WritingResolver resolver;
        resolver.journal = path;
        const KalDataImportResult result = import(path, Mode::Update, nullptr, &resolver);
        QCOMPARE(int(result.outcome), int(Outcome::Done));
        QVERIFY(resolver.asked);
        QVERIFY(resolver.writeFailed);
        // After the import the journal is free again.
        KalTestJournal j = KalTestJournal::reopen(path);
        QVERIFY(j.exec(QStringLiteral("UPDATE entry SET number = 'y'")));
    }

    void lockMarker_data()
    {
        QTest::addColumn<QString>("holder"); // "other", "self", "killed", "none"
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("message");
        QTest::newRow("another user") << "other" << int(KalSiteJournalLockMarker::State::OtherUser) << ""
                                      << int(Outcome::Stopped)
                                      << "Die Bautagebuch-Datei konnte nicht geöffnet werden, da sie in Bearbeitung "
                                         "ist von\nUser: alice\nComputer: PC-17.";
        QTest::newRow("this user, stop") << "self" << int(KalSiteJournalLockMarker::State::ThisUser)
                                         << "Import abbrechen" << int(Outcome::Stopped)
                                         << "Die Bautagebuch-Datei ist im Bautagebuch-Programm zur Bearbeitung "
                                            "geöffnet.\nSpeichern Sie Ihre Änderungen im Bautagebuch-Programm, bevor "
                                            "Sie fortfahren.\nWährend des Import-Vorgangs ist kein Speichern des "
                                            "Bautagebuchs möglich!";
        QTest::newRow("this user, go on") << "self" << int(KalSiteJournalLockMarker::State::ThisUser) << "Fortfahren"
                                          << int(Outcome::Done) << "Die Bautagebuch-Datei ist im";
        QTest::newRow("left over by a crash")
            << "killed" << int(KalSiteJournalLockMarker::State::LeftOver) << "" << int(Outcome::Done) << "";
        QTest::newRow("closed") << "none" << int(KalSiteJournalLockMarker::State::Free) << "" << int(Outcome::Done)
                                << "";
    }
    void lockMarker()
    {
        QFETCH(QString, holder);
        QFETCH(int, state);
        QFETCH(QString, answer);
        QFETCH(int, outcome);
        QFETCH(QString, message);
        const QString path = smallJournal();
        // The site-diary program keeps its working copy and marker as our
        // own program does: a second instance holding a file of that name
        // beside the journal stands in for it.
        const QString standIn = m_dir.filePath(QStringLiteral("standin%1/journal.sjd").arg(m_files));
        QDir().mkpath(QFileInfo(standIn).absolutePath());
        m_fx.close();
        QVERIFY(KalTestFiles::createProject(standIn));
        QVERIFY(m_fx.open());
        std::unique_ptr<KalHolderProcess> process;
        if (holder != QLatin1String("none")) {
            const bool self = holder == QLatin1String("self");
            process = std::make_unique<KalHolderProcess>(
                QStringLiteral("hold"), standIn, self ? KalEnvironment::userName() : QStringLiteral("alice"),
                self ? KalEnvironment::computerName() : QStringLiteral("PC-17"));
            QVERIFY2(process->waitFor(QStringLiteral("ready")) >= 0, qPrintable(process->errors()));
            for (const QString &suffix : {QStringLiteral(".workingcopy"), QStringLiteral(".udf")})
                QVERIFY(QFile::link(standIn + suffix, path + suffix));
            if (holder == QLatin1String("killed"))
                process->kill();
        }
        const KalSiteJournalLockMarker::Verdict verdict = KalSiteJournalLockMarker::check(path);
        QVERIFY2(int(verdict.state) == state,
                 qPrintable(verdict.user + "@" + verdict.computer + " vs " + KalEnvironment::userName() + "@" +
                            KalEnvironment::computerName()));
        if (!answer.isEmpty())
            m_prompt->queueAnswer(answer);
        const KalDataImportResult result = import(path, Mode::Initial);
        QCOMPARE(int(result.outcome), outcome);
        QCOMPARE(m_fx.count(QStringLiteral("defect")), outcome == int(Outcome::Done) ? 2 : 0);
        if (message.isEmpty())
            QCOMPARE(m_prompt->texts(), QStringList());
        else
            QVERIFY2(m_prompt->texts().value(0).startsWith(message), qPrintable(m_prompt->texts().join('\n')));
    }
};

QTEST_GUILESS_MAIN(TstSiteJournalFaults)
#include "tst_sitejournalfaults.moc"
