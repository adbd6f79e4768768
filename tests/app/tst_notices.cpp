#include "app/KalStartup.h"
#include "core/project/KalProject.h"
#include "core/textaids/KalSpellChecker.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalResources.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QAction>
#include <QFile>
#include <QIcon>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

// What the main window offers around spelling and its notices.
class TstNotices : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;

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
        m_prompt->clear();
    }

    void cleanup() { KalSpellChecker::setInstance(nullptr); }

    void spellToggleNeedsDictionary_data()
    {
        QTest::addColumn<QString>("dictionary");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("none") << "none" << false;
        QTest::newRow("unreadable") << "broken" << false;
        QTest::newRow("German") << "German" << true;
    }

    void spellToggleNeedsDictionary()
    {
        QFETCH(QString, dictionary);
        QFETCH(bool, enabled);
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        QString base = QStringLiteral(KAL_TEST_DICTIONARIES_DIR "/pym_DE");
        if (dictionary == QLatin1String("broken")) {
            base = dir.filePath(QStringLiteral("pym_DE"));
            for (const char *extension : {".aff", ".dic"}) {
                QFile file(base + QLatin1String(extension));
                QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no word count\n") > 0);
            }
        }
        if (dictionary != QLatin1String("none"))
            KalSpellChecker::setInstance(new KalSpellChecker(base, QString()));
        KalMainWindow window;
        auto *toggle = window.findChild<QAction *>(QStringLiteral("actionStartSpellChecking"));
        QVERIFY(toggle);
        QCOMPARE(toggle->isEnabled(), enabled);
        const QString before = toggle->text();
        toggle->trigger();
        QVERIFY2(m_prompt->shown().isEmpty(), qPrintable(m_prompt->texts().join(QLatin1Char('|'))));
        QCOMPARE(toggle->text() != before, enabled);
        window.project()->setModified(false);
    }

    void noticeIcons_data()
    {
        QTest::addColumn<QString>("notice");
        QTest::addColumn<QString>("icon");
        QTest::newRow("data import help") << "import help"
                                          << ":/KalMainWindow/Resources/icon-help.ico";
        QTest::newRow("compaction") << "compaction"
                                    << ":/KalMainWindow/Resources/icon-datei-datenbank.ico";
    }

    void noticeIcons()
    {
        QFETCH(QString, notice);
        QFETCH(QString, icon);
        KalMainWindow window;
        if (notice == QLatin1String("import help"))
            KalStartup::showDataImportHelp();
        else
            window.findChild<QAction *>(QStringLiteral("actionCompactDB"))->trigger();
        QVERIFY(!m_prompt->shown().isEmpty());
        QCOMPARE(m_prompt->shown().first().iconPath, icon);
        QVERIFY(!QIcon(icon).pixmap(48, 48).isNull());
        window.project()->setModified(false);
    }
};

QTEST_MAIN(TstNotices)
#include "tst_notices.moc"
