// The main window when opening another project is refused: one message,
// and the project it had stays open as it was.
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalResources.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace KalTestFiles;

class TstMainWindowOpen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        kalInitGuiResources();
        m_prompt = KalScriptedPrompt::install();
    }

    void refusedOpenKeepsTheOpenProject_data()
    {
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QString>("title");
        QTest::newRow("held by another instance") << "held"
                                                  << "Datenbank in Bearbeitung";
        QTest::newRow("made by a newer version") << "newer"
                                                 << "Dateifehler";
    }

    void refusedOpenKeepsTheOpenProject()
    {
        QFETCH(QString, refusal);
        QFETCH(QString, title);
        QTemporaryDir dir;
        const QString own = dir.filePath("eigen.pwp");
        const QString other = dir.filePath("anderes.pwp");
        QVERIFY(createProject(own, 2) && createProject(other, 1));
        QProcess holder;
        if (refusal == "held") {
            holder.start(KalTestSettings::testBinDir() + "/kal_test_holder", {"hold", other});
            QVERIFY(holder.waitForReadyRead(30000));
        } else {
            QVERIFY(execute(other, {"UPDATE meta SET value = '9.0' WHERE key = 'fileversion'"}));
        }
        KalMainWindow window;
        QVERIFY(window.openProject(own));
        m_prompt->clear();

        QVERIFY(!window.openProject(other));
        QCOMPARE(m_prompt->titles(), QStringList{title});
        QVERIFY(window.project()->isOpen());
        QCOMPARE(window.project()->projectPath(), QFileInfo(own).absoluteFilePath());
        QCOMPARE(window.project()->model("defect")->rowCount(), 2);
        QVERIFY(KalDefects(*window.project()).add() > 0);
        QCOMPARE(window.project()->saveProject(), int(KalProject::Saved));
        QCOMPARE(countRows(own, "defect"), 3);
        holder.kill();
        holder.waitForFinished(5000);
    }

    // The recovered state of a crashed run was never saved: giving it up asks.
    void recoveredProjectAsksBeforeClosing()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath("absturz.pwp");
        QVERIFY(createProject(file, 1));
        QVERIFY(QFile::copy(file, file + ".workingcopy"));
        QVERIFY(execute(file + ".workingcopy", {"INSERT INTO defect (id, description) VALUES (77, 'ungesichert')"}));
        QFile udf(file + ".udf");
        QVERIFY(udf.open(QIODevice::WriteOnly));
        udf.write("erika\nBAUBUERO\n01.02.26\n10:15\n4711\n");
        udf.close();
        qputenv("USERNAME", "erika");
        qputenv("COMPUTERNAME", "BAUBUERO");
        KalMainWindow window;
        QVERIFY(window.openProject(file));
        QCOMPARE(window.project()->model("defect")->rowCount(), 2);
        m_prompt->clear();
        QVERIFY(!window.closeProject(true)); // the unqueued question is cancelled
        QCOMPARE(m_prompt->titles(), QStringList{"Projekt geändert"});
        QVERIFY(window.project()->isOpen());
        window.project()->setModified(false);
    }

private:
    KalScriptedPrompt *m_prompt = nullptr;
};

QTEST_MAIN(TstMainWindowOpen)
#include "tst_mainwindow_open.moc"
