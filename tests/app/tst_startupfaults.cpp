#include "app/KalStartup.h"
#include "core/project/KalCommandLine.h"
#include "core/project/KalProject.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalResources.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
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
        carryOut({"-connectmode", "101", "-file", "P:p.pwp", "-sitejournalfile", "P:b.sjd"});

        QCOMPARE(countRows(path("p.pwp"), "defect"), 3);
        QVERIFY(!m_prompt->shown().isEmpty());
        QCOMPARE(m_prompt->shown().first().icon, KalPrompt::Question);
        QVERIFY(m_prompt->texts().first().contains(QStringLiteral("existiert bereits")));
        QCOMPARE(m_window->project()->projectPath(), opened ? path("p.pwp") : QString());
        QCOMPARE(linkOnDisk(path("p.pwp")), opened ? path("b.sjd") : QString());
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

    void siteJournalLinkIsSaved_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("link"); // of the existing project p.pwp; "-": none exists
        QTest::newRow("101 new project") << QString("101") << QString("-");
        QTest::newRow("102 unlinked project") << QString("102") << QString();
        QTest::newRow("102 linked elsewhere") << QString("102") << QString("alt.sjd");
        QTest::newRow("102 already linked") << QString("102") << QString("b.sjd");
    }

    void siteJournalLinkIsSaved()
    {
        QFETCH(QString, mode);
        QFETCH(QString, link);
        if (link != QLatin1String("-"))
            makeProject("p.pwp", 1, link.isEmpty() ? QString() : path(link));
        carryOut({"-connectmode", mode, "-file", "P:p.pwp", "-sitejournalfile", "P:b.sjd"});

        QCOMPARE(m_window->project()->projectPath(), path("p.pwp"));
        QCOMPARE(linkOnDisk(path("p.pwp")), path("b.sjd"));
        QVERIFY(!m_window->project()->isModified());
        m_prompt->clear();
        QVERIFY(m_window->closeProject(true));
        QCOMPARE(m_prompt->titles(), QStringList());
        QCOMPARE(linkOnDisk(path("p.pwp")), path("b.sjd"));
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
