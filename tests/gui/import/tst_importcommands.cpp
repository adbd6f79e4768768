// The site-journal import as the main window runs it: the checks before
// any import with their exact questions, a conflict answered in the
// dialog, the automatic import at opening (whose failure never keeps the
// project closed) and the automatic-import toggles of the menu.
#include "core/project/KalEnvironment.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/import/KalDataImportDefectAssignDialog.h"
#include "gui/import/KalImportFromAppDialog.h"
#include "gui/import/KalInitialImportDialog.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalFileDialog.h"
#include "support/KalCompanyTestData.h"
#include "support/KalDialogAnswer.h"
#include "support/KalHolderProcess.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFaults.h"
#include "support/KalTestFiles.h"
#include "support/KalWidgetTestMain.h"

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QPushButton>
#include <QSqlQuery>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

namespace {
// One report "12" (journal id 300) with these defects (journal id, number,
// description), no photos, one trade company.
bool writeJournal(const QString &path, const QList<QStringList> &defects)
{
    if (!CompanyTestData::createSiteJournal(path, {{"Putz Meier", "Putzer", "2"}}))
        return false;
    QStringList sql{"INSERT INTO entry (id, number, locked, user_id, creation_date, inspection_date) "
                    "VALUES (300, '12', '0', 'EM', '2024-05-02T08:00:00', '2024-05-02')",
                    "INSERT INTO id_generator (id_table, id_counter) VALUES ('entry', 300)"};
    for (const QStringList &d : defects)
        sql << QStringLiteral("INSERT INTO entry_progress (id, entry_id, type, number, description, company_id, "
                              "roomname, date) VALUES (%1, 300, 4, '%2', '%3', 100, 'Flur', '2024-05-02')")
                   .arg(d.value(0), d.value(1), d.value(2));
    return KalTestFiles::execute(path, sql);
}
} // namespace

class TstImportCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Who "this user" is must not depend on the machine the test runs on.
        qputenv("USERNAME", "bauleiter");
        qputenv("COMPUTERNAME", "BUERO-1");
    }

    void init()
    {
        // A fresh prompt: no answer left over from an earlier case.
        m_prompt = KalScriptedPrompt::install();
        m_dir = std::make_unique<QTemporaryDir>();
        KalFileDialog::clearQueue();
        m_window = std::make_unique<KalMainWindow>();
        m_prompt->clear();
    }

    void cleanup()
    {
        kalFillVolumes(false);
        if (m_window && m_window->project()->isOpen()) {
            m_window->project()->setModified(false);
            m_window->closeProject(false);
        }
        m_window.reset();
        KalFileDialog::clearQueue();
        m_dir.reset();
    }

    // Each row stops before the import (the initial dialog is cancelled when
    // it comes) and must leave the project file as it was.
    void stepsBeforeImport_data()
    {
        QTest::addColumn<QString>("project"); // "new", "saved", "modified", "linked-missing"
        QTest::addColumn<QString>("journal"); // "", "free", "leftover", "mine", "theirs"
        QTest::addColumn<bool>("diskFull");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<QString>("firstText");
        QTest::addColumn<bool>("dialogShown");

        const QString neverSaved = "Das Projekt wurde noch nicht gespeichert.\nSie müssen das Projekt vor dem Import "
                                   "speichern.";
        const QString changed = "Das Projekt wurde geändert.\nVor dem Datenimport werden die Änderungen gespeichert.\n";
        const QString noLink = "Zu diesem Projekt ist kein zugehöriges Bautagebuch gespeichert.\nBitte wählen Sie im "
                               "folgenden Dateidialog das Bautagebuch aus.\n";
        const QString title = "Datenimport aus Bautagebuch";
        const QStringList none;
        QTest::newRow("never saved, no name given") << "new"
                                                    << "" << false << none << QStringList{title} << neverSaved << false;
        QTest::newRow("never saved, save fails")
            << "new"
            << "" << true << none << QStringList{title, "Speicherplatz nicht ausreichend", "Fehler"} << neverSaved
            << false;
        QTest::newRow("changed, not saved")
            << "modified"
            << "" << false << QStringList{"Abbrechen"} << QStringList{title} << changed << false;
        QTest::newRow("changed, save fails")
            << "modified"
            << "" << true << QStringList{"Speichern und Starten des Imports"}
            << QStringList{title, "Speicherplatz nicht ausreichend", "Fehler"} << changed << false;
        QTest::newRow("no journal chosen") << "saved"
                                           << "" << false << none << QStringList{title} << noLink << false;
        QTest::newRow("linked journal gone")
            << "linked-missing"
            << "" << false << none << QStringList{"Mängel und Firmen aus dem Bautagebuch aktualisieren"}
            << "Die Bautagebuch-Datei %1 existiert nicht.\nBitte wählen Sie im folgenden Dateidialog das Bautagebuch "
               "aus.\n"
            << false;
        QTest::newRow("journal free") << "saved"
                                      << "free" << false << none << QStringList{title} << noLink << true;
        QTest::newRow("crash leftover: go on") << "saved"
                                               << "leftover" << false << none << QStringList{title} << noLink << true;
        QTest::newRow("open here, import cancelled")
            << "saved"
            << "mine" << false << QStringList{"Import abbrechen"} << QStringList{title, "?"} << noLink << false;
        QTest::newRow("open here, go on")
            << "saved"
            << "mine" << false << QStringList{"Fortfahren"} << QStringList{title, "?"} << noLink << true;
        QTest::newRow("open elsewhere") << "saved"
                                        << "theirs" << false << none << QStringList{title, "?"} << noLink << false;
    }

    void stepsBeforeImport()
    {
        QFETCH(QString, project);
        QFETCH(QString, journal);
        QFETCH(bool, diskFull);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, titles);
        QFETCH(QString, firstText);
        QFETCH(bool, dialogShown);

        const QString projectFile = path("p.pwp");
        const QString journalFile = path("j.sjd");
        if (project != QLatin1String("new")) {
            createProjectFile(projectFile, 2);
            if (project == QLatin1String("linked-missing"))
                QVERIFY(KalTestFiles::execute(projectFile, {QStringLiteral("INSERT INTO meta (key, value) VALUES "
                                                                           "('siteJournalDatabasePath', '%1')")
                                                                .arg(path("fort.sjd"))}));
            QVERIFY(m_window->openProject(projectFile));
            if (project == QLatin1String("modified"))
                QVERIFY(m_window->addDefect() > 0);
        }
        std::unique_ptr<KalHolderProcess> holder;
        if (!journal.isEmpty())
            QVERIFY(prepareJournal(journal, journalFile, &holder));
        const QByteArray before = QFileInfo::exists(projectFile) ? KalTestFiles::fileHash(projectFile) : QByteArray();
        const QByteArray journalBefore = KalTestFiles::fileHash(journalFile);
        if (project == QLatin1String("new") && diskFull)
            KalFileDialog::queueChoice(projectFile);
        if (!journal.isEmpty())
            KalFileDialog::queueChoice(journalFile);
        for (const QString &answer : answers)
            m_prompt->queueAnswer(answer);
        kalFillVolumes(diskFull);
        m_prompt->clear();

        KalDialogAnswer<KalInitialImportDialog> cancel(
            [](KalInitialImportDialog *d) { kalPress(d, QDialogButtonBox::Cancel); });
        QAction *import = m_window->findChild<QAction *>(project == QLatin1String("linked-missing")
                                                             ? QStringLiteral("actionUpdateDataImport")
                                                             : QStringLiteral("actionInitialDataImport"));
        QVERIFY(import && import->isVisible() && import->isEnabled());
        import->trigger();

        QCOMPARE(cancel.seen(), dialogShown);
        QCOMPARE(m_prompt->titles().size(), titles.size());
        for (int i = 0; i < titles.size(); ++i) {
            if (titles.at(i) != QLatin1String("?"))
                QCOMPARE(m_prompt->titles().at(i), titles.at(i));
        }
        QCOMPARE(m_prompt->texts().first(), firstText.contains(QLatin1String("%1"))
                                                ? firstText.arg(QDir::toNativeSeparators(path("fort.sjd")))
                                                : firstText);
        if (journal == QLatin1String("mine")) {
            QCOMPARE(m_prompt->shown().at(1).buttons, (QStringList{"Fortfahren", "Import abbrechen"}));
        } else if (journal == QLatin1String("theirs")) {
            QVERIFY(m_prompt->texts().at(1).contains(QStringLiteral("User: alice\nComputer: PC-17")));
        }
        // Nothing reached the project file or the journal; the session has no link.
        QCOMPARE(KalTestFiles::fileHash(projectFile), before);
        QCOMPARE(KalTestFiles::fileHash(journalFile), journalBefore);
        QSqlQuery q(m_window->project()->database());
        QVERIFY(q.exec(QStringLiteral("SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'")));
        QCOMPARE(q.next() ? q.value(0).toString() : QString(),
                 project == QLatin1String("linked-missing") ? path("fort.sjd") : QString());
        QCOMPARE(m_window->project()->isModified(), project == QLatin1String("modified"));
    }

    // A defect of the imported report whose journal counterpart is gone,
    // and a journal defect nobody knows: the user assigns one to the other.
    void conflictAnsweredInTheDialog()
    {
        const QString journal = path("j.sjd");
        QVERIFY(writeJournal(journal, {{"501", "1", "Riss im Putz"}, {"502", "2", "Tür klemmt"}}));
        openSavedProject();
        importInitially(journal);
        QCOMPARE(defectCount(), 2);
        const qint64 orphan = scalar("SELECT id FROM defect WHERE site_journal_id = 501").toLongLong();

        QVERIFY(KalTestFiles::execute(journal, {"DELETE FROM entry_progress WHERE id = 501",
                                                "INSERT INTO entry_progress (id, entry_id, type, number, description, "
                                                "roomname) VALUES (503, 300, 4, '7', 'Riss im Flur', 'Flur')"}));
        QList<qint64> offered;
        KalDialogAnswer<KalDataImportDefectAssignDialog> user([&offered](KalDataImportDefectAssignDialog *d) {
            auto *table = d->findChild<QTableWidget *>(QStringLiteral("twDefects"));
            for (int row = 0; row < table->rowCount(); ++row)
                offered << table->item(row, 0)->data(Qt::UserRole).toLongLong();
            table->selectRow(0);
            d->findChild<QPushButton *>(QStringLiteral("pbAssignDefect"))->click();
        });
        m_prompt->queueAnswer(QStringLiteral("Mängel und Firmen aktualisieren"));
        m_prompt->queueAnswer(QStringLiteral("Später speichern"));
        m_window->findChild<QAction *>(QStringLiteral("actionUpdateDataImport"))->trigger();

        QVERIFY(user.seen());
        QCOMPARE(offered, QList<qint64>{orphan});
        // The project defect now follows the new journal defect: no new row.
        QCOMPARE(defectCount(), 2);
        QCOMPARE(scalar("SELECT site_journal_id FROM defect WHERE id = :id", orphan).toLongLong(), qint64(503));
        QCOMPARE(scalar("SELECT description FROM defect WHERE id = :id", orphan).toString(),
                 QStringLiteral("Riss im Flur"));
        QVERIFY(m_window->project()->isModified());
        QCOMPARE(m_window->defectModel()->rowCount(), 2);
    }

    // An export of the mobile app comes in by the same rules; the project
    // stays linked to its journal and remembers the export for next time.
    void appExportLeavesTheLinkAlone()
    {
        const QString journal = path("j.sjd");
        const QString app = path("handy.sjd");
        QVERIFY(writeJournal(journal, {{"501", "1", "Riss im Putz"}}));
        QVERIFY(writeJournal(app, {{"9001", "A1", "Kratzer Tür"}}));
        QVERIFY(KalTestFiles::execute(
            app, {"UPDATE entry SET id = 900, exported_by_app = 1", "UPDATE entry_progress SET entry_id = 900"}));
        openSavedProject();
        importInitially(journal);

        KalDialogAnswer<KalImportFromAppDialog> user([app](KalImportFromAppDialog *d) {
            KalFileDialog::queueChoice(app);
            d->findChild<QPushButton *>(QStringLiteral("pbImport"))->click();
        });
        m_prompt->queueAnswer(QStringLiteral("Jetzt speichern"));
        m_window->findChild<QAction *>(QStringLiteral("actionImportFromApp"))->trigger();

        QVERIFY(user.seen());
        QCOMPARE(defectCount(), 2);
        const QString projectFile = m_window->project()->projectPath();
        QCOMPARE(KalTestFiles::scalar(projectFile, "SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'"),
                 journal);
        QCOMPARE(KalTestFiles::scalar(projectFile, "SELECT value FROM meta WHERE key = 'appImportlDatabasePath'"), app);
        QVERIFY(!m_window->project()->isModified());
    }

    void automaticImportNeverKeepsTheProjectClosed_data()
    {
        QTest::addColumn<QString>("journal"); // what the linked journal is at opening
        QTest::addColumn<int>("defectsAfter");
        QTest::addColumn<bool>("messageShown");
        QTest::newRow("new defect comes in") << "grown" << 2 << true;
        QTest::newRow("journal gone") << "missing" << 1 << true;
        QTest::newRow("journal is no database") << "garbage" << 1 << true;
        QTest::newRow("journal open elsewhere") << "theirs" << 1 << true;
    }

    void automaticImportNeverKeepsTheProjectClosed()
    {
        QFETCH(QString, journal);
        QFETCH(int, defectsAfter);
        QFETCH(bool, messageShown);
        const QString journalFile = path("j.sjd");
        QVERIFY(writeJournal(journalFile, {{"501", "1", "Riss im Putz"}}));
        openSavedProject();
        KalDialogAnswer<KalInitialImportDialog> automatic([](KalInitialImportDialog *d) {
            d->findChild<QCheckBox *>(QStringLiteral("cbAutomaticImport"))->setChecked(true);
            kalPress(d, QDialogButtonBox::Ok);
        });
        importInitially(journalFile, false);
        QVERIFY(automatic.seen());
        QCOMPARE(m_window->project()->readAutomaticImportMode(), 1);
        const QString projectFile = m_window->project()->projectPath();
        QVERIFY(m_window->newProject());

        std::unique_ptr<KalHolderProcess> holder;
        if (journal == QLatin1String("grown"))
            QVERIFY(KalTestFiles::execute(journalFile, {"INSERT INTO entry_progress (id, entry_id, type, number, "
                                                        "description) VALUES (502, 300, 4, '2', 'Neu')"}));
        else if (journal == QLatin1String("missing"))
            QVERIFY(QFile::remove(journalFile));
        else if (journal == QLatin1String("garbage"))
            QVERIFY(KalTestFiles::writeFile(journalFile, QByteArray(4096, 'x')));
        else
            QVERIFY(prepareJournal(journal, journalFile, &holder));
        m_prompt->clear();

        QVERIFY(m_window->openProject(projectFile));
        QVERIFY(m_window->project()->isOpen());
        QCOMPARE(m_window->project()->projectPath(), projectFile);
        QCOMPARE(defectCount(), defectsAfter);
        QCOMPARE(m_window->defectModel()->rowCount(), defectsAfter);
        QCOMPARE(!m_prompt->shown().isEmpty(), messageShown);
        QCOMPARE(m_window->project()->isModified(), defectsAfter == 2);
    }

    // The two toggles of the menu and what the menu shows afterwards.
    void automaticImportToggles_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<QString>("toggle");
        QTest::addColumn<int>("after");
        QTest::addColumn<bool>("newRecordsVisible");
        QTest::addColumn<QString>("updateText");
        const QString updateOn = "Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten";
        const QString updateOff = "Automatischen Import und Aktualisierung vorhandener Mängel und Firmen ausschalten";
        QTest::newRow("off, new records on") << 0 << "actionAutomaticNewRecordsImport" << 1 << true << updateOn;
        QTest::newRow("new records off") << 1 << "actionAutomaticNewRecordsImport" << 0 << true << updateOn;
        QTest::newRow("off, updates on") << 0 << "actionAutomaticUpdateImport" << 2 << false << updateOff;
        QTest::newRow("new records, updates on") << 1 << "actionAutomaticUpdateImport" << 2 << false << updateOff;
        QTest::newRow("updates off") << 2 << "actionAutomaticUpdateImport" << 0 << true << updateOn;
    }

    void automaticImportToggles()
    {
        QFETCH(int, before);
        QFETCH(QString, toggle);
        QFETCH(int, after);
        QFETCH(bool, newRecordsVisible);
        QFETCH(QString, updateText);
        createProjectFile(path("p.pwp"), 1);
        QVERIFY(KalTestFiles::execute(path("p.pwp"), {QStringLiteral("INSERT INTO meta (key, value) VALUES "
                                                                     "('siteJournalDatabasePath', '%1')")
                                                          .arg(path("fort.sjd")),
                                                      QStringLiteral("INSERT OR REPLACE INTO meta (key, value) VALUES "
                                                                     "('automaticImportMode', '%1')")
                                                          .arg(before)}));
        QVERIFY(m_window->openProject(path("p.pwp"), false));
        QVERIFY(!m_window->findChild<QAction *>(QStringLiteral("actionInitialDataImport"))->isVisible());

        m_window->findChild<QAction *>(toggle)->trigger();

        QCOMPARE(m_window->project()->readAutomaticImportMode(), after);
        QVERIFY(m_window->project()->isModified());
        auto *newRecords = m_window->findChild<QAction *>(QStringLiteral("actionAutomaticNewRecordsImport"));
        auto *update = m_window->findChild<QAction *>(QStringLiteral("actionAutomaticUpdateImport"));
        QCOMPARE(newRecords->isVisible(), newRecordsVisible);
        QCOMPARE(newRecords->text().endsWith(QLatin1String("ausschalten")), after == 1);
        QCOMPARE(update->text(), updateText);
        // Saved with the project like any other change.
        QCOMPARE(m_window->maybeSave(false, true), int(KalMainWindow::GoOn));
        QCOMPARE(KalTestFiles::scalar(path("p.pwp"), "SELECT value FROM meta WHERE key = 'automaticImportMode'"),
                 QString::number(after));
    }

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    // Project files are made through the program's one connection: the
    // window gives it up meanwhile and comes back with a new project.
    void createProjectFile(const QString &file, int defects)
    {
        m_window.reset();
        QVERIFY(KalTestFiles::createProject(file, defects));
        m_window = std::make_unique<KalMainWindow>();
        m_prompt->clear();
    }

    int defectCount() { return scalar("SELECT COUNT(*) FROM defect").toInt(); }

    QVariant scalar(const QString &sql, qint64 id = -1)
    {
        QSqlQuery q(m_window->project()->database());
        q.prepare(sql);
        if (id >= 0)
            q.bindValue(QStringLiteral(":id"), id);
        return q.exec() && q.next() ? q.value(0) : QVariant();
    }

    // A saved, unlinked project with one unrelated defect... none: empty.
    void openSavedProject()
    {
        createProjectFile(path("p.pwp"), 0);
        QVERIFY(m_window->openProject(path("p.pwp")));
        m_prompt->clear();
    }

    // Links and imports `journal` through the menu, saving afterwards.
    void importInitially(const QString &journal, bool answerDialog = true)
    {
        std::unique_ptr<KalDialogAnswer<KalInitialImportDialog>> ok;
        if (answerDialog)
            ok = std::make_unique<KalDialogAnswer<KalInitialImportDialog>>(
                [](KalInitialImportDialog *d) { kalPress(d, QDialogButtonBox::Ok); });
        KalFileDialog::queueChoice(journal);
        m_prompt->queueAnswer(QStringLiteral("Jetzt speichern"));
        m_window->findChild<QAction *>(QStringLiteral("actionInitialDataImport"))->trigger();
        QVERIFY2(!m_window->project()->isModified(), qPrintable(m_prompt->texts().join("|")));
        QVERIFY(m_window->findChild<QAction *>(QStringLiteral("actionUpdateDataImport"))->isVisible());
        m_prompt->clear();
    }

    // "free": a journal; "leftover": with a working copy nobody holds;
    // "mine"/"theirs": held by the site-diary program of this user / another.
    bool prepareJournal(const QString &kind, const QString &file, std::unique_ptr<KalHolderProcess> *holder)
    {
        if (!QFileInfo::exists(file) && !writeJournal(file, {{"501", "1", "Riss"}}))
            return false;
        if (kind == QLatin1String("leftover")) {
            return QFile::copy(file, file + QStringLiteral(".workingcopy")) &&
                   KalTestFiles::writeFile(file + QStringLiteral(".udf"), "alice\nPC-17\n01.01.2024\n10:00\n");
        }
        if (kind == QLatin1String("mine") || kind == QLatin1String("theirs")) {
            // The stand-in for the site-diary program holds a working copy
            // beside the journal and names its user, as that program does.
            const QString stand = path("stand-in.pwp");
            if (!QFile::copy(path("p.pwp"), stand))
                return false;
            const bool mine = kind == QLatin1String("mine");
            *holder = std::make_unique<KalHolderProcess>(
                QStringLiteral("hold"), stand, mine ? KalEnvironment::userName() : QStringLiteral("alice"),
                mine ? KalEnvironment::computerName() : QStringLiteral("PC-17"));
            if ((*holder)->waitFor(QStringLiteral("ready")) < 0)
                return false;
            return QFile::rename(stand + QStringLiteral(".workingcopy"), file + QStringLiteral(".workingcopy")) &&
                   QFile::rename(stand + QStringLiteral(".udf"), file + QStringLiteral(".udf"));
        }
        return true;
    }

    KalScriptedPrompt *m_prompt = nullptr;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<KalMainWindow> m_window;
};

KAL_WIDGET_TEST_MAIN(TstImportCommands)
#include "tst_importcommands.moc"
