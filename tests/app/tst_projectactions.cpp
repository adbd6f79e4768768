#include "core/project/KalProject.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalResources.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QAction>
#include <QSettings>
#include <QtTest>

// Commands that work on the open project cannot be started while none is
// open (for a moment during a restart or after a failed open).
class TestProjectActions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void followTheOpenProject_data();
    void followTheOpenProject();
};

void TestProjectActions::initTestCase()
{
    KalTestSettings::isolate();
    kalInitGuiResources();
    KalScriptedPrompt::install();
    QSettings().clear();
}

void TestProjectActions::followTheOpenProject_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("withoutProject");

    QTest::newRow("save") << "actionSaveFile" << false;
    QTest::newRow("save as") << "actionFileSaveAs" << false;
    QTest::newRow("compact") << "actionCompactDB" << false;
    QTest::newRow("add defect") << "actionAddDefect" << false;
    QTest::newRow("new") << "actionCreateFile" << true;
    QTest::newRow("open") << "actionOpenFile" << true;
    QTest::newRow("not built stays off") << "actionPrintPreview" << false;
}

void TestProjectActions::followTheOpenProject()
{
    QFETCH(QString, action);
    QFETCH(bool, withoutProject);

    KalMainWindow window;
    QAction *a = window.findChild<QAction *>(action);
    QVERIFY(a);
    const bool withProject = a->isEnabled();
    QVERIFY(window.closeProject(false));
    QCOMPARE(a->isEnabled(), withoutProject);
    QVERIFY(window.newProject());
    QCOMPARE(a->isEnabled(), withProject);
    window.project()->setModified(false);
}

QTEST_MAIN(TestProjectActions)
#include "tst_projectactions.moc"
