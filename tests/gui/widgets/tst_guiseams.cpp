#include "core/project/KalSettings.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalMessageBoxPrompt.h"
#include "gui/widgets/KalProgressDialog.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QApplication>
#include <QCheckBox>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

Q_DECLARE_METATYPE(QVector<KalPrompt::Button>)

class TstGuiSeams : public QObject
{
    Q_OBJECT

private:
private slots:
    void initTestCase() { KalPrompt::install(new KalMessageBoxPrompt); }

    void cleanupTestCase()
    {
        KalScriptedPrompt::install();
        KalFileDialog::clearQueue();
    }

    void fileDialogRemembersFolderPerKind_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("dialog");
        QTest::addColumn<int>("untouchedKind");

        QTest::newRow("photos") << int(KalSettings::ImageFiles) << "files" << int(KalSettings::PlanFiles);
        QTest::newRow("project open") << int(KalSettings::ProjectOpen) << "open" << int(KalSettings::ProjectSave);
        QTest::newRow("project save") << int(KalSettings::ProjectSave) << "save" << int(KalSettings::ProjectOpen);
        QTest::newRow("photo folder") << int(KalSettings::ImageDirectory) << "folder" << int(KalSettings::ImageFiles);
    }

    void fileDialogRemembersFolderPerKind()
    {
        QFETCH(int, kind);
        QFETCH(QString, dialog);
        QFETCH(int, untouchedKind);

        QSettings().remove(QStringLiteral("FileDialogPaths"));
        const QString untouchedBefore = KalSettings::filePathForDialog(untouchedKind);
        QCOMPARE(KalFileDialog::startPath(kind), untouchedBefore); // both start at the default

        QTemporaryDir dir;
        const QString folder = dir.path() + QStringLiteral("/Baustelle ") + QString::number(kind);
        QVERIFY(QDir().mkpath(folder));
        const QString file = folder + QStringLiteral("/a.jpg");

        if (dialog == QLatin1String("files")) {
            KalFileDialog::queueChoices({file, dir.path() + QStringLiteral("/elsewhere.jpg")});
            QCOMPARE(
                KalFileDialog::getOpenFileNames(nullptr, kind, QStringLiteral("Fotos auswählen"), QString()).size(), 2);
        } else if (dialog == QLatin1String("open")) {
            KalFileDialog::queueChoice(file);
            QCOMPARE(KalFileDialog::getOpenFileName(nullptr, kind, QStringLiteral("Projekt öffnen"), QString()), file);
        } else if (dialog == QLatin1String("save")) {
            KalFileDialog::queueChoice(file);
            QCOMPARE(KalFileDialog::getSaveFileName(nullptr, kind, QStringLiteral("Datei speichern"), QString()), file);
        } else {
            KalFileDialog::queueChoice(folder);
            QCOMPARE(KalFileDialog::getExistingDirectory(nullptr, kind, QStringLiteral("Ordner")), folder);
        }
        QCOMPARE(KalFileDialog::queuedChoices(), 0);

        // The next dialog of this kind starts in the chosen folder (the first
        // entry's), the other kind where it started before.
        QCOMPARE(KalSettings::filePathForDialog(kind), QDir::toNativeSeparators(folder));
        KalFileDialog::queueCancel();
        KalFileDialog::getOpenFileName(nullptr, kind, QStringLiteral("nochmal"), QString());
        QCOMPARE(KalFileDialog::lastStartPath(), QDir::toNativeSeparators(folder));
        QCOMPARE(KalFileDialog::lastCaption(), QStringLiteral("nochmal"));
        QCOMPARE(KalSettings::filePathForDialog(untouchedKind), untouchedBefore);
    }

    void fileDialogCancelRemembersNothing()
    {
        QTemporaryDir dir;
        KalFileDialog::queueChoice(dir.path() + QStringLiteral("/p.pwp"));
        KalFileDialog::getOpenFileName(nullptr, KalSettings::ProjectOpen, QString(), QString());
        const QString remembered = KalSettings::filePathForDialog(KalSettings::ProjectOpen);
        QCOMPARE(remembered, QDir::toNativeSeparators(dir.path()));

        KalFileDialog::queueCancel();
        QVERIFY(KalFileDialog::getOpenFileName(nullptr, KalSettings::ProjectOpen, QString(), QString()).isEmpty());
        KalFileDialog::queueCancel();
        QVERIFY(KalFileDialog::getOpenFileNames(nullptr, KalSettings::ProjectOpen, QString(), QString()).isEmpty());
        KalFileDialog::queueCancel();
        QVERIFY(KalFileDialog::getSaveFileName(nullptr, KalSettings::ProjectOpen, QString(), QString()).isEmpty());
        KalFileDialog::queueCancel();
        QVERIFY(KalFileDialog::getExistingDirectory(nullptr, KalSettings::ProjectOpen, QString()).isEmpty());
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::ProjectOpen), remembered);

        // Nothing queued and no screen: cancelled with a warning instead of waiting forever.
        QCOMPARE(KalFileDialog::queuedChoices(), 0);
        QTest::ignoreMessage(QtWarningMsg, "KalFileDialog: no answer queued for \"Projekt öffnen\", cancelled");
        QVERIFY(KalFileDialog::getOpenFileName(nullptr, KalSettings::ProjectOpen, QStringLiteral("Projekt öffnen"),
                                               QString())
                    .isEmpty());
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::ProjectOpen), remembered);
    }

    void fileDialogStartsWithProposedName()
    {
        QTemporaryDir dir;
        KalFileDialog::queueChoice(dir.path() + QStringLiteral("/alt.pdf"));
        KalFileDialog::getSaveFileName(nullptr, KalSettings::PdfExport, QString(), QString());

        KalFileDialog::queueCancel();
        KalFileDialog::getSaveFileName(nullptr, KalSettings::PdfExport, QStringLiteral("PDF"), QString(),
                                       QStringLiteral("Mängelliste.pdf"));
        QCOMPARE(KalFileDialog::lastStartPath(),
                 QDir::toNativeSeparators(dir.path() + QStringLiteral("/Mängelliste.pdf")));
    }

    // What the user sees and presses: the buttons by their texts, Escape, and
    // which answer the program gets back.
    void messageBoxAnswers_data()
    {
        QTest::addColumn<QVector<KalPrompt::Button>>("buttons");
        QTest::addColumn<int>("escapeButton");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QString>("pressed"); // empty: Escape
        QTest::addColumn<int>("answer");

        using P = KalPrompt;
        const QVector<P::Button> yesNo{{P::Yes, {}}, {P::No, {}}};
        const QVector<P::Button> saveDiscardCancel{{P::Save, {}}, {P::Discard, {}}, {P::Cancel, {}}};
        const QVector<P::Button> custom{{P::AcceptCustom, "Speichern unter"}, {P::RejectCustom, "Abbrechen"}};
        const QStringList sdc{"Save", "Discard", "Cancel"};
        QTest::newRow("yes") << yesNo << 1 << QStringList{"Yes", "No"} << "Yes" << 0;
        QTest::newRow("no") << yesNo << 1 << QStringList{"Yes", "No"} << "No" << 1;
        QTest::newRow("yes/no escape") << yesNo << 1 << QStringList{"Yes", "No"} << "" << 1;
        QTest::newRow("discard") << saveDiscardCancel << 2 << sdc << "Discard" << 1;
        QTest::newRow("save/discard/cancel escape") << saveDiscardCancel << 2 << sdc << "" << 2;
        QTest::newRow("custom accept") << custom << 1 << QStringList{"Speichern unter", "Abbrechen"}
                                       << "Speichern unter" << 0;
        QTest::newRow("custom escape") << custom << 1 << QStringList{"Speichern unter", "Abbrechen"} << "" << 1;
        QTest::newRow("single ok") << QVector<P::Button>() << -1 << QStringList{"OK"} << "OK" << 0;
        QTest::newRow("ok/abort, escape takes the last")
            << QVector<P::Button>{{P::Ok, {}}, {P::Abort, {}}} << -1 << QStringList{"OK", "Abort"} << "" << 1;
    }

    void messageBoxAnswers()
    {
        QFETCH(QVector<KalPrompt::Button>, buttons);
        QFETCH(int, escapeButton);
        QFETCH(QStringList, shown);
        QFETCH(QString, pressed);
        QFETCH(int, answer);

        KalPrompt::Message message;
        message.icon = KalPrompt::Question;
        message.title = QStringLiteral("Projekt geändert");
        message.text = QStringLiteral("Das Projekt wurde geändert. Möchten Sie die Änderungen speichern?");
        message.buttons = buttons;
        message.escapeButton = escapeButton;

        QStringList texts;
        QString title;
        KalDialogAnswer<QMessageBox> box([&](QMessageBox *box) {
            title = box->windowTitle() + '|' + box->text();
            QAbstractButton *press = nullptr;
            for (QAbstractButton *button : box->buttons()) {
                texts << button->text().remove('&');
                if (texts.last() == pressed)
                    press = button;
            }
            if (press)
                press->click();
            else
                QTest::keyClick(box, Qt::Key_Escape);
        });
        const int result = KalPrompt::instance()->show(message);
        QVERIFY(box.seen());
        QCOMPARE(title, message.title + '|' + message.text);
        texts.sort();
        shown.sort();
        QCOMPARE(texts, shown);
        QCOMPARE(result, answer);
    }

    void messageBoxDontShowAgain()
    {
        const QString key = QStringLiteral("Messages/DontShowTestMsg");
        QSettings().remove(key);
        KalPrompt::Message message;
        message.title = QStringLiteral("Hilfe zum Datenimport");
        message.text = QStringLiteral("Hinweis");
        message.dontShowAgainKey = key;

        for (bool tick : {false, true}) {
            bool hadCheckBox = false;
            QString boxText;
            KalDialogAnswer<QMessageBox> answer([&](QMessageBox *box) {
                hadCheckBox = box->checkBox() != nullptr;
                if (box->checkBox()) {
                    boxText = box->checkBox()->text();
                    box->checkBox()->setChecked(tick);
                }
                box->button(QMessageBox::Ok)->click();
            });
            QCOMPARE(KalPrompt::ask(message), 0);
            QVERIFY(hadCheckBox);
            QCOMPARE(boxText, QStringLiteral("Diese Meldung nicht mehr anzeigen"));
            QCOMPARE(QSettings().value(key, false).toBool(), tick);
        }

        // Ticked once: the message does not come again.
        KalDialogAnswer<QMessageBox> never([](QMessageBox *box) { box->button(QMessageBox::Ok)->click(); });
        QCOMPARE(KalPrompt::ask(message), 0);
        QCoreApplication::processEvents();
        QVERIFY(!never.seen());
    }

    // A returned check box comes back in the state the user left it, with
    // either answer; a cancelable busy window's Cancel reaches the operation.
    void checkBoxAndCancelReachTheCaller_data()
    {
        QTest::addColumn<bool>("initial");
        QTest::addColumn<bool>("click"); // the user clicks the box once
        QTest::addColumn<QString>("pressed");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("checked");

        QTest::newRow("ticked, go on") << false << true << "Bestehende Fotos verkleinern" << 0 << true;
        QTest::newRow("left ticked, go on") << true << false << "Bestehende Fotos verkleinern" << 0 << true;
        QTest::newRow("unticked, go on") << true << true << "Bestehende Fotos verkleinern" << 0 << false;
        QTest::newRow("ticked, cancel") << false << true << "Cancel" << 1 << true;
        QTest::newRow("escape keeps state") << true << false << "" << 1 << true;
    }

    void checkBoxAndCancelReachTheCaller()
    {
        QFETCH(bool, initial);
        QFETCH(bool, click);
        QFETCH(QString, pressed);
        QFETCH(int, answer);
        QFETCH(bool, checked);

        bool state = initial;
        KalPrompt::Message message;
        message.icon = KalPrompt::Question;
        message.title = QStringLiteral("Fotogröße");
        message.text = QStringLiteral("3 bestehende Fotos sind größer als die aktuelle Einstellung.");
        message.checkBoxText = QStringLiteral("Backup der Datei mit bisheriger Auflösung erstellen");
        message.checkBoxChecked = &state;
        message.buttons = {{KalPrompt::AcceptCustom, QStringLiteral("Bestehende Fotos verkleinern")},
                           {KalPrompt::Cancel, {}}};
        message.defaultButton = -1;
        message.escapeButton = 1;

        QString boxText;
        bool shownState = !initial;
        KalDialogAnswer<QMessageBox> box([&](QMessageBox *box) {
            QVERIFY(box->checkBox());
            boxText = box->checkBox()->text();
            shownState = box->checkBox()->isChecked();
            if (click)
                QTest::mouseClick(box->checkBox(), Qt::LeftButton, {}, QPoint(5, box->checkBox()->height() / 2));
            // Without a recommended answer Return chooses nothing.
            QTest::keyClick(box, Qt::Key_Return);
            QVERIFY(box->isVisible());
            for (QAbstractButton *button : box->buttons()) {
                if (button->text().remove('&') == pressed) {
                    button->click();
                    return;
                }
            }
            QTest::keyClick(box, Qt::Key_Escape);
        });
        QCOMPARE(KalPrompt::ask(message), answer);
        QVERIFY(box.seen());
        QCOMPARE(boxText, message.checkBoxText);
        QCOMPARE(shownState, initial);
        QCOMPARE(state, checked);

        // The busy window of a cancelable operation: Cancel is the only way out.
        KalProgressDialog progress;
        progress.beginCancelable(QStringLiteral("Die Fotos werden bearbeitet."));
        QVERIFY(!progress.wasCanceled());
        for (QDeadlineTimer deadline(10000); !progress.isShowing() && !deadline.hasExpired();)
            progress.setProgress(1, 4);
        QVERIFY(progress.isShowing());
        QProgressDialog *window = KalDialogAnswer<QProgressDialog>::find();
        QVERIFY(window);
        QPushButton *cancel = window->findChild<QPushButton *>();
        QVERIFY(cancel);
        QCOMPARE(cancel->text(), QStringLiteral("Abbrechen"));
        // The click arrives while the operation works: it polls between steps.
        QTimer::singleShot(0, cancel, [cancel] { cancel->click(); });
        for (QDeadlineTimer deadline(10000); !progress.wasCanceled() && !deadline.hasExpired();)
            progress.setProgress(2, 4);
        QVERIFY(progress.wasCanceled());
        progress.end();
        QVERIFY(!progress.isShowing());
        // The next operation starts uncanceled and, without asking for it, has no Cancel.
        progress.begin(QStringLiteral("Projekt wird gespeichert..."));
        QVERIFY(!progress.wasCanceled());
        for (QDeadlineTimer deadline(10000); !progress.isShowing() && !deadline.hasExpired();)
            progress.setProgress(1, 4);
        QVERIFY(KalDialogAnswer<QProgressDialog>::find());
        QVERIFY(!KalDialogAnswer<QProgressDialog>::find()->findChild<QPushButton *>() ||
                !KalDialogAnswer<QProgressDialog>::find()->findChild<QPushButton *>()->isVisible());
        progress.end();
    }

    void noticeHasNoButtonsAndCloses()
    {
        int buttonCount = -1;
        bool modal = true;
        QString text;
        KalDialogAnswer<QMessageBox> notice([&](QMessageBox *box) {
            buttonCount = box->buttons().size();
            modal = box->isModal();
            text = box->text();
        });
        KalPrompt::instance()->notice(QStringLiteral("Datenbank bereinigen"),
                                      QStringLiteral("Die Datenbank wird jetzt bereinigt."), 200);
        QVERIFY(notice.seen());
        QCOMPARE(text, QStringLiteral("Die Datenbank wird jetzt bereinigt."));
        QCOMPARE(buttonCount, 0);
        QVERIFY(!modal);
        QTRY_VERIFY(!KalDialogAnswer<QMessageBox>::find());
    }

    // Work shorter than the delay, followed by a message whose loop runs while
    // the finished window waits for deletion: the window never comes up.
    void busyWindowStaysAwayAfterShortWork()
    {
        KalProgressDialog progress;
        bool appeared = false;
        QEventLoop outer;
        QTimer::singleShot(0, &outer, [&] {
            progress.begin(QStringLiteral("Die Fotos werden importiert."));
            progress.setProgress(0, 2);
            progress.setProgress(2, 2);
            progress.end();
            QEventLoop message;
            QTimer poll;
            connect(&poll, &QTimer::timeout, [&] { appeared = appeared || KalDialogAnswer<QProgressDialog>::find(); });
            poll.start(20);
            QTimer::singleShot(KalProgressDialog::showDelay() * 4, &message, &QEventLoop::quit);
            message.exec();
            outer.quit();
        });
        outer.exec();
        QVERIFY(!appeared);
        QVERIFY(!QApplication::overrideCursor());
    }

    // A long operation names itself in the title and its phase below.
    void busyWindowShowsThePhase()
    {
        KalProgressDialog progress;
        progress.beginCancelable(QStringLiteral("Datenimport aus dem Bautagebuch"));
        QTRY_VERIFY_WITH_TIMEOUT(progress.isShowing(), 3000);
        progress.setText(QStringLiteral("Mängel werden importiert ...\nMangel 3 von 50"));
        QProgressDialog *window = nullptr;
        for (QWidget *w : QApplication::topLevelWidgets()) {
            if (auto *p = qobject_cast<QProgressDialog *>(w); p && p->isVisible())
                window = p;
        }
        QVERIFY(window);
        QCOMPARE(window->windowTitle(), QStringLiteral("Datenimport aus dem Bautagebuch"));
        QCOMPARE(window->labelText(), QStringLiteral("Mängel werden importiert ...\nMangel 3 von 50"));
        progress.end();
        QVERIFY(!progress.isShowing());
    }

    // A question during a long operation (a conflict to resolve, say): the
    // window goes and stays away while the question's own loop runs, also
    // after progress had been reported; it returns once the work goes on.
    void busyWindowStaysAwayAfterYielding()
    {
        KalProgressDialog progress;
        progress.beginCancelable(QStringLiteral("Datenimport aus dem Bautagebuch"));
        progress.setProgress(0, 100);
        progress.yieldToMessage();
        QVERIFY(!progress.isShowing());
        bool appeared = false;
        QEventLoop question;
        QTimer poll;
        connect(&poll, &QTimer::timeout, [&] { appeared = appeared || KalDialogAnswer<QProgressDialog>::find(); });
        poll.start(20);
        QTimer::singleShot(KalProgressDialog::showDelay() * 4, &question, &QEventLoop::quit);
        question.exec();
        QVERIFY(!appeared);
        // Once the work goes on, the cancelable window comes back.
        progress.setProgress(50, 100);
        QTRY_VERIFY_WITH_TIMEOUT(progress.isShowing(), 3000);
        progress.end();
    }

    void busyWindowAppearsAfterDelay()
    {
        auto progressWindow = [] {
            for (QWidget *w : QApplication::topLevelWidgets()) {
                if (auto *p = qobject_cast<QProgressDialog *>(w); p && p->isVisible())
                    return p;
            }
            return static_cast<QProgressDialog *>(nullptr);
        };

        KalProgressDialog progress;
        progress.begin(QStringLiteral("Projekt wird gespeichert..."));
        QVERIFY(progress.isBusy());
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QVERIFY(!progress.isShowing()); // short work shows nothing
        QTRY_VERIFY_WITH_TIMEOUT(progress.isShowing(), 3000);
        QProgressDialog *window = progressWindow();
        QVERIFY(window);
        QCOMPARE(window->labelText(), QStringLiteral("Projekt wird gespeichert..."));
        QVERIFY(window->isModal());

        // Nested work keeps the one window.
        progress.begin(QString());
        progress.end();
        QVERIFY(progress.isShowing());
        progress.end();
        QVERIFY(!progress.isShowing());
        QVERIFY(!QApplication::overrideCursor());
        QTRY_VERIFY(!progressWindow());

        // Work that never returns to the event loop: reporting progress after
        // the delay shows the window and paints it.
        progress.begin(QStringLiteral("Bilder werden importiert..."));
        progress.setProgress(1, 10);
        QVERIFY(!progress.isShowing());
        for (QDeadlineTimer deadline(10000); !progress.isShowing() && !deadline.hasExpired();)
            progress.setProgress(5, 10);
        QVERIFY(progress.isShowing());
        QCOMPARE(progressWindow()->value(), 500);
        progress.end();
        QVERIFY(!progress.isShowing());
    }
};

KAL_WIDGET_TEST_MAIN(TstGuiSeams)
#include "tst_guiseams.moc"
