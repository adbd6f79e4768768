#include "app/KalStartup.h"
#include "core/project/KalCommandLine.h"
#include "core/project/KalProject.h"
#include "gui/import/KalInitialImportDialog.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalResources.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestJournal.h"
#include "support/KalTestSettings.h"

#include <QSettings>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using KalTestFiles::countRows;

namespace {
// The link as the project file itself holds it (not the session's working copy).
QString linkOnDisk(const QString &file)
{
    return KalTestFiles::scalar(file, QStringLiteral("SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'"));
}
} // namespace

// What the site-journal program's calls do to project files on disk: an
// existing project is never replaced, and the link to the site journal is
// in the saved file, not only in the session.
class TestStartupFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        kalInitGuiResources();
        m_prompt = KalScriptedPrompt::install();
    }

    void init()
    {
        QSettings().clear();
        KalFileDialog::clearQueue();
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(KalTestFiles::writeFile(path("b.sjd"), QByteArray()));
        m_window = std::make_unique<KalMainWindow>();
        m_prompt->clear();
    }

    void cleanup()
    {
        if (m_window && m_window->project()->isOpen()) {
            m_window->project()->setModified(false);
            m_window->closeProject(false);
        }
        m_window.reset();
        KalFileDialog::clearQueue();
        m_dir.reset();
    }

    void createNeverReplacesExistingProject_data()
    {
        QTest::addColumn<QString>("answer"); // to the question, empty: the safe one
        QTest::addColumn<bool>("opened");
        QTest::newRow("cancelled") << "Abbrechen" << false;
        QTest::newRow("unanswered") << "" << false;
        QTest::newRow("opened instead") << "Öffnen" << true;
    }

    void createNeverReplacesExistingProject()
    {
        QFETCH(QString, answer);
        QFETCH(bool, opened);
        makeProject("p.pwp", 3, QString());
        if (!answer.isEmpty())
            m_prompt->queueAnswer(answer);
        KalDialogAnswer<KalInitialImportDialog> cancel([](KalInitialImportDialog *d) { d->reject(); });
        carryOut({"-connectmode", "101", "-file", "P:p.pwp", "-sitejournalfile", "P:b.sjd"});

        // Opened instead, the project is offered the import (cancelled here).
        QCOMPARE(cancel.seen(), opened);
        QCOMPARE(countRows(path("p.pwp"), "defect"), 3);
        QVERIFY(!m_prompt->shown().isEmpty());
        QCOMPARE(m_prompt->shown().first().icon, KalPrompt::Question);
        QVERIFY(m_prompt->texts().first().contains(QStringLiteral("existiert bereits")));
        QCOMPARE(m_window->project()->projectPath(), opened ? path("p.pwp") : QString());
        QCOMPARE(linkOnDisk(path("p.pwp")), QString());
    }

    void createProjectAtRefusesExistingFile()
    {
        makeProject("p.pwp", 2, QString());
        QVERIFY(!m_window->createProjectAt(path("p.pwp")));
        QCOMPARE(countRows(path("p.pwp"), "defect"), 2);
        QCOMPARE(m_prompt->titles(), QStringList{"Dateifehler"});
        QVERIFY(m_prompt->texts().first().contains(QStringLiteral("existiert bereits")));
        // The window keeps what it had.
        QVERIFY(m_window->project()->isOpen());
        QCOMPARE(m_window->project()->projectPath(), QString());
    }

    // The journal handed over is imported for real; what the user accepts
    // (and saves at once) is in the file, what he refuses leaves it alone.
    void handedOverJournalIsImported_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("link");        // of the existing project p.pwp; "-": none exists
        QTest::addColumn<QStringList>("answers"); // to the questions, in order
        QTest::addColumn<bool>("firstImportDialog");
        QTest::addColumn<QString>("linkAfter");
        QTest::addColumn<int>("defectsAfter"); // in the file on disk
        const QStringList saveNow{"Jetzt speichern"};
        QTest::newRow("101 new project") << "101"
                                         << "-" << saveNow << true << "b.sjd" << 1;
        QTest::newRow("102 unlinked project") << "102"
                                              << "" << saveNow << true << "b.sjd" << 2;
        QTest::newRow("102 linked elsewhere, moved")
            << "102"
            << "alt.sjd" << QStringList{"Neu verknüpfen und importieren", "Jetzt speichern"} << true << "b.sjd" << 2;
        QTest::newRow("102 linked elsewhere, kept") << "102"
                                                    << "alt.sjd" << QStringList{"Abbrechen"} << false << "alt.sjd" << 1;
        QTest::newRow("102 already linked")
            << "102"
            << "b.sjd" << QStringList{"Mängel und Firmen aktualisieren", "Jetzt speichern"} << false << "b.sjd" << 2;
    }

    void handedOverJournalIsImported()
    {
        QFETCH(QString, mode);
        QFETCH(QString, link);
        QFETCH(QStringList, answers);
        QFETCH(bool, firstImportDialog);
        QFETCH(QString, linkAfter);
        QFETCH(int, defectsAfter);
        {
            KalTestJournal journal(path("b.sjd"));
            const qint64 report = journal.addReport(QStringLiteral("3"));
            journal.addDefect(report, QStringLiteral("1"), QStringLiteral("Riss im Putz"));
            QVERIFY(journal.ok());
        }
        if (link != QLatin1String("-"))
            makeProject("p.pwp", 1, link.isEmpty() ? QString() : path(link));
        for (const QString &answer : answers)
            m_prompt->queueAnswer(answer);
        KalDialogAnswer<KalInitialImportDialog> ok(
            [](KalInitialImportDialog *d) { kalPress(d, QDialogButtonBox::Ok); });
        carryOut({"-connectmode", mode, "-file", "P:p.pwp", "-sitejournalfile", "P:b.sjd"});

        QCOMPARE(ok.seen(), firstImportDialog);
        QCOMPARE(m_window->project()->projectPath(), path("p.pwp"));
        QCOMPARE(linkOnDisk(path("p.pwp")), path(linkAfter));
        QCOMPARE(countRows(path("p.pwp"), "defect"), defectsAfter);
        QVERIFY2(!m_window->project()->isModified(), qPrintable(m_prompt->texts().join('|')));
        m_prompt->clear();
        QVERIFY(m_window->closeProject(true));
        QCOMPARE(m_prompt->titles(), QStringList());
    }

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    // A saved project with `defects` defects, linked to `link` when given;
    // the window is left on a new untitled project.
    void makeProject(const QString &name, int defects, const QString &link)
    {
        for (int i = 0; i < defects; ++i)
            QVERIFY(m_window->addDefect() > 0);
        if (!link.isEmpty()) {
            QSqlQuery q(m_window->project()->database());
            q.prepare(
                QStringLiteral("INSERT OR REPLACE INTO meta (key, value) VALUES ('siteJournalDatabasePath', :v)"));
            q.bindValue(QStringLiteral(":v"), link);
            QVERIFY(q.exec());
        }
        KalFileDialog::queueChoice(path(name));
        QCOMPARE(m_window->maybeSave(true, true), int(KalMainWindow::GoOn));
        QVERIFY(m_window->newProject());
        QCOMPARE(countRows(path(name), "defect"), defects);
        m_prompt->clear();
    }

    void carryOut(const QStringList &args)
    {
        QStringList full{"pellwick"};
        for (const QString &a : args)
            full << (a.startsWith("P:") ? path(a.mid(2)) : a);
        KalStartup::carryOut(m_window.get(), KalCommandLine::parse(full));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<KalMainWindow> m_window;
    KalScriptedPrompt *m_prompt = nullptr;
};

QTEST_MAIN(TestStartupFaults)
#include "tst_startupfaults.moc"
