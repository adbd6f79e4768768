// Locking and crash safety with real second processes: a holder program
// opens the project and is killed with SIGKILL at random moments.
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalHolderProcess.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace KalTestFiles;

class TstProcesses : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;
    std::unique_ptr<QTemporaryDir> m_dir;

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
        QVERIFY2(QFileInfo::exists(KalTestSettings::testBinDir() + "/kal_test_holder"), "holder program missing");
    }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        m_prompt->clear();
        qputenv("USERNAME", "erika");
        qputenv("COMPUTERNAME", "BAUBUERO");
    }

    // The message names who holds the project since when, as far as the
    // holder's user file tells; nothing on disk changes.
    void openWhileAnotherProcessHoldsIt_data()
    {
        QTest::addColumn<bool>("withUdf");
        QTest::newRow("with user file") << true;
        QTest::newRow("user file gone") << false;
    }

    void openWhileAnotherProcessHoldsIt()
    {
        QFETCH(bool, withUdf);
        const QString file = m_dir->filePath("belegt.pwp");
        QVERIFY(createProject(file, 3));
        KalHolderProcess holder("hold", file, "alice", "PC-17");
        QVERIFY(holder.waitFor("ready") >= 0);
        QFile udf(file + ".udf");
        QVERIFY(udf.open(QIODevice::ReadOnly | QIODevice::Text));
        const QStringList lines = QString::fromUtf8(udf.readAll()).split('\n');
        udf.close();
        if (!withUdf)
            QVERIFY(udf.remove());
        const QStringList before = folderState(m_dir->path());

        KalProject project;
        QVERIFY(!project.openProject(file));
        QCOMPARE(m_prompt->titles(), QStringList{"Datenbank in Bearbeitung"});
        const QString who =
            QStringLiteral(" von\nUser: alice\nComputer: PC-17\nseit dem %1 %2 Uhr").arg(lines.at(2), lines.at(3));
        QCOMPARE(m_prompt->texts().first(),
                 QStringLiteral("Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist%1.")
                     .arg(withUdf ? who : QString()));
        QCOMPARE(folderState(m_dir->path()), before);
        QVERIFY(!project.isOpen());
    }

    void crashRecovery_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("computer");
        QTest::addColumn<bool>("withUdf");
        QTest::addColumn<bool>("recovered");
        auto row = [](const char *name, const char *user, const char *computer, bool withUdf, bool recovered) {
            QTest::newRow(name) << user << computer << withUdf << recovered;
        };
        row("same user, same computer", "erika", "BAUBUERO", true, true);
        row("other user", "max", "BAUBUERO", true, false);
        row("other computer", "erika", "LAPTOP", true, false);
        row("no user data file", "erika", "BAUBUERO", false, false);
    }

    void crashRecovery()
    {
        QFETCH(QString, user);
        QFETCH(QString, computer);
        QFETCH(bool, withUdf);
        QFETCH(bool, recovered);
        const QString file = m_dir->filePath("absturz.pwp");
        QVERIFY(createProject(file, 2));
        {
            KalHolderProcess holder("edit", file, user, computer, 3);
            QCOMPARE(holder.waitFor("committed"), qint64(1));
            QVERIFY(holder.waitFor("ready") >= 0);
            holder.kill();
        }
        QVERIFY(QFileInfo::exists(file + ".workingcopy"));
        if (!withUdf)
            QVERIFY(QFile::remove(file + ".udf"));
        KalProject project;
        QVERIFY(project.openProject(file));
        QCOMPARE(project.model("defect")->rowCount(), recovered ? 5 : 2);
        QCOMPARE(project.isModified(), recovered); // the recovered state is not in the file yet
        if (recovered) {
            QCOMPARE(m_prompt->titles(), QStringList{"Datei öffnen"});
            QVERIFY(m_prompt->texts().first().startsWith(
                "Die letzte Bearbeitung der Mängel-Datei wurde nicht ordnungsgemäß abgeschlossen."));
        } else {
            QVERIFY(m_prompt->shown().isEmpty());
        }
        QVERIFY(project.closeProject());
        QCOMPARE(countRows(file, "defect"), 2); // nothing reached the file without saving
    }

    void killedDuringSaves()
    {
        const int kills = qEnvironmentVariableIntValue("PELLWICK_SOAK_KILLS") > 0
                              ? qEnvironmentVariableIntValue("PELLWICK_SOAK_KILLS")
                              : 30;
        const QString file = m_dir->filePath("dauerlauf.pwp");
        QVERIFY(createProject(file, 5));
        qint64 leftoverCommitted = -1; // committed rows the killed run left in its working copy
        // PELLWICK_KILL_SEED replays the kill moments of an earlier run.
        const quint32 seed = qEnvironmentVariableIsSet("PELLWICK_KILL_SEED") ? qgetenv("PELLWICK_KILL_SEED").toUInt()
                                                                             : QRandomGenerator::global()->generate();
        qInfo("kill moments: PELLWICK_KILL_SEED=%u", seed);
        QRandomGenerator random(seed);
        for (int round = 0; round < kills; ++round) {
            const int before = countRows(file, "defect");
            KalHolderProcess holder("saveloop", file, "erika", "BAUBUERO");
            const qint64 start = holder.waitFor("opened");
            QVERIFY2(start >= 0, qPrintable(holder.errors()));
            // Every committed edit of the killed run is there again.
            if (leftoverCommitted >= 0)
                QVERIFY2(start >= leftoverCommitted,
                         qPrintable(QStringLiteral("%1 < %2").arg(start).arg(leftoverCommitted)));
            QThread::msleep(random.bounded(5, 400)); // the kill moment, not a bound
            holder.kill();
            const qint64 saved = holder.last("saved");
            const qint64 committed = holder.last("committed");
            leftoverCommitted = start + committed;

            QVERIFY2(QFileInfo::exists(file), qPrintable(QStringLiteral("round %1").arg(round)));
            QCOMPARE(integrity(file), QStringLiteral("ok"));
            const int now = countRows(file, "defect");
            if (saved == 0)
                QVERIFY2(now == before || now == start + 1,
                         qPrintable(QStringLiteral("round %1: %2 rows, before %3").arg(round).arg(now).arg(before)));
            else
                QVERIFY2(
                    now == start + saved || now == start + saved + 1,
                    qPrintable(QStringLiteral("round %1: %2 rows, saved %3").arg(round).arg(now).arg(start + saved)));
        }
        // The backups are intact too.
        for (int slot = 0; slot < 5; ++slot) {
            const QString backup = KalProject::backupFileName(file, slot);
            if (QFileInfo::exists(backup))
                QCOMPARE(integrity(backup), QStringLiteral("ok"));
        }
        // And the last state opens normally.
        KalProject project;
        QVERIFY(project.openProject(file));
        QVERIFY(project.model("defect")->rowCount() >= leftoverCommitted);
        QVERIFY(project.closeProject());
        QVERIFY(QDir(m_dir->path()).entryList({"*.saving.*"}, QDir::Files).size() <= 1);
    }

    void neverGetsInWhileOtherSaves()
    {
        const QString file = m_dir->filePath("umkaempft.pwp");
        QVERIFY(createProject(file, 1));
        KalHolderProcess holder("saveloop", file, "alice", "PC-17");
        QVERIFY(holder.waitFor("saved") >= 1);
        for (int attempt = 0; attempt < 25; ++attempt) {
            m_prompt->clear();
            KalProject project;
            QVERIFY2(!project.openProject(file), qPrintable(QStringLiteral("attempt %1 got in").arg(attempt)));
            QCOMPARE(m_prompt->titles(), QStringList{"Datenbank in Bearbeitung"});
            QThread::msleep(QRandomGenerator::global()->bounded(0, 40));
        }
        QVERIFY(holder.waitFor("saved") > 1); // it kept saving all the while
    }
};

QTEST_GUILESS_MAIN(TstProcesses)
#include "tst_processes.moc"
