// A save that fails while the busy window is up: the message must not open
// under that window, and the window does not come back for the same save.
#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "gui/widgets/KalProgressDialog.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QtTest>

namespace {

bool progressWindowVisible()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (qobject_cast<QProgressDialog *>(w) && w->isVisible())
            return true;
    }
    return false;
}

// Records, for every message, whether a busy window was visible then.
class WatchingPrompt : public KalScriptedPrompt
{
public:
    int show(const Message &message) override
    {
        coveredTitles << (progressWindowVisible() ? message.title : QString());
        return KalScriptedPrompt::show(message);
    }
    QStringList coveredTitles;
};

} // namespace

class TstSaveMessage : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { KalFileOps::setFaultHook(nullptr); }

    void failedSaveMessageIsNotCovered_data()
    {
        QTest::addColumn<QString>("fault");  // failing file operation, empty: none
        QTest::addColumn<QString>("target"); // in a temporary folder; empty: in place
        QTest::newRow("save as, snapshot fails") << "snapshot"
                                                 << "a.pwp";
        QTest::newRow("save as, folder missing") << QString() << "missing/a.pwp";
        QTest::newRow("in place, replace fails") << "replace" << QString();
    }

    void failedSaveMessageIsNotCovered()
    {
        QFETCH(QString, fault);
        QFETCH(QString, target);

        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        auto *prompt = new WatchingPrompt;
        KalPrompt::install(prompt);
        auto *progress = new KalProgressDialog;
        KalProgress::install(progress);
        KalProject project;
        QVERIFY(project.newProject());
        if (target.isEmpty())
            QCOMPARE(project.saveProject(dir.filePath(QStringLiteral("p.pwp"))), int(KalProject::Saved));
        else
            target = dir.filePath(target);
        if (!fault.isEmpty())
            KalFileOps::setFaultHook([fault](const QString &operation, const QString &) { return operation == fault; });

        int result = KalProject::Saved;
        {
            // The save has been running long enough for the busy window.
            KalBusyScope busy;
            QTRY_VERIFY(progress->isShowing());
            result = project.saveProject(target);
            QVERIFY(!progress->isShowing());
            progress->setProgress(1, 2);
            QVERIFY2(!progress->isShowing(), "the window came back after the message");
        }
        QCOMPARE(result, int(KalProject::SaveFailed));
        QVERIFY(!prompt->shown().isEmpty());
        QCOMPARE(prompt->coveredTitles.join(QString()), QString());
        QVERIFY(!QApplication::overrideCursor());

        // The next operation has its window again.
        {
            KalBusyScope busy;
            QTRY_VERIFY(progress->isShowing());
        }
        QVERIFY(!progress->isShowing());
        project.closeProject();
        KalProgress::install(nullptr);
    }
};

KAL_WIDGET_TEST_MAIN(TstSaveMessage)
#include "tst_savemessage.moc"
