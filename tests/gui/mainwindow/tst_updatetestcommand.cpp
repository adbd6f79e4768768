#include "core/project/KalUpdateCheck.h"
#include "gui/mainwindow/KalUpdateTestCommand.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QAction>
#include <QDesktopServices>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// Catches the pages the command hands to the desktop instead of a browser.
class UrlCatcher : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> opened;
public slots:
    void open(const QUrl &url) { opened << url; }
};

// What the user sees after "Auf Updates prüfen": the answer titled
// "Update Test" and, for a newer version, the offer to open its page.
class TstUpdateTestCommand : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    UrlCatcher m_catcher;

    KalScriptedPrompt *prompt() { return static_cast<KalScriptedPrompt *>(KalPrompt::instance()); }

    QString versionFile(const QByteArray &content)
    {
        QFile file(m_dir.filePath(QStringLiteral("version.json")));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size())
            return QString();
        return QUrl::fromLocalFile(file.fileName()).toString();
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        for (const char *scheme : {"http", "https", "file"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), &m_catcher, "open");
    }
    void init()
    {
        prompt()->clear();
        m_catcher.opened.clear();
    }
    void cleanupTestCase()
    {
        for (const char *scheme : {"http", "https", "file"})
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }

    void answers_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QByteArray>("versionFile");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("icon");
        QTest::addColumn<QString>("textPart");
        QTest::addColumn<QString>("openedUrl");
        const QByteArray newer = "{\"version\":\"99.1\",\"url\":\"https://example.org/dl\"}";
        QTest::newRow("no source configured")
            << "" << QByteArray() << "" << int(KalPrompt::Information) << "keine Update-Quelle"
            << "";
        QTest::newRow("up to date") << "file" << QByteArray("{\"version\":\"0.0.1\"}") << ""
                                    << int(KalPrompt::Information) << "aktuelle Version"
                                    << "";
        QTest::newRow("newer, page opened")
            << "file" << newer << "Ja" << int(KalPrompt::Question) << "Download-Seite öffnen?"
            << "https://example.org/dl";
        QTest::newRow("newer, declined") << "file" << newer << "Nein" << int(KalPrompt::Question)
                                         << "99.1 ist verfügbar"
                                         << "";
        QTest::newRow("newer, unanswered is no") << "file" << newer << "" << int(KalPrompt::Question) << "99.1"
                                                 << "";
        QTest::newRow("newer with a local page is refused")
            << "file" << QByteArray("{\"version\":\"99.1\",\"url\":\"file:///bin/sh\"}") << "Ja"
            << int(KalPrompt::Warning) << "keine gültige Download-Seite"
            << "";
        QTest::newRow("unreadable") << "file" << QByteArray("<html>") << "" << int(KalPrompt::Warning) << "nicht lesbar"
                                    << "";
        QTest::newRow("missing file") << "missing" << QByteArray() << "" << int(KalPrompt::Warning) << "nicht vorhanden"
                                      << "";
    }
    void answers()
    {
        QFETCH(QString, setting);
        QFETCH(QByteArray, versionFile);
        QFETCH(QString, answer);
        QFETCH(int, icon);
        QFETCH(QString, textPart);
        QFETCH(QString, openedUrl);
        QString url = setting;
        if (setting == QLatin1String("file"))
            url = this->versionFile(versionFile);
        else if (setting == QLatin1String("missing"))
            url = QUrl::fromLocalFile(m_dir.filePath(QStringLiteral("nothing.json"))).toString();
        QSettings().setValue(KalUpdateCheck::urlSettingKey(), url);
        if (!answer.isEmpty())
            prompt()->queueAnswer(answer);

        QAction action(QStringLiteral("Auf Updates prüfen"), nullptr);
        KalUpdateTestCommand command(&action);
        QSignalSpy done(&command, &KalUpdateTestCommand::done);
        action.trigger();
        QVERIFY(done.wait(10000));

        QCOMPARE(prompt()->shown().size(), 1);
        const KalScriptedPrompt::Shown &shown = prompt()->shown().first();
        QCOMPARE(shown.title, QStringLiteral("Update Test"));
        QCOMPARE(int(shown.icon), icon);
        QVERIFY2(shown.text.contains(textPart), qPrintable(shown.text));
        QCOMPARE(m_catcher.opened.size(), openedUrl.isEmpty() ? 0 : 1);
        if (!openedUrl.isEmpty())
            QCOMPARE(m_catcher.opened.first().toString(), openedUrl);
        QVERIFY(action.isEnabled());
    }

    // While one check waits for its answer the action cannot start another.
    void actionDisabledWhileChecking()
    {
        QSettings().setValue(KalUpdateCheck::urlSettingKey(), versionFile("{\"version\":\"0.0.1\"}"));
        QAction action(QStringLiteral("Auf Updates prüfen"), nullptr);
        KalUpdateTestCommand command(&action);
        QSignalSpy done(&command, &KalUpdateTestCommand::done);
        action.trigger();
        QVERIFY(!action.isEnabled());
        action.trigger();
        QVERIFY(done.wait(10000));
        QCoreApplication::processEvents();
        QCOMPARE(done.count(), 1);
        QCOMPARE(prompt()->shown().size(), 1);
        QVERIFY(action.isEnabled());
    }
};

KAL_WIDGET_TEST_MAIN(TstUpdateTestCommand)
#include "tst_updatetestcommand.moc"
