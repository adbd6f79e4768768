#include "tst_guiseams.h"

#include "core/project/KalSettings.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalMessageBoxPrompt.h"
#include "gui/widgets/KalProgressDialog.h"
#include "support/KalScriptedPrompt.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QtTest>
#include <functional>

namespace {
QMessageBox *visibleMessageBox()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *box = qobject_cast<QMessageBox *>(w); box && box->isVisible())
            return box;
    }
    return nullptr;
}

// Runs `act` on the first message box that shows up (polling, because the
// box runs its own event loop).
QTimer *whenBoxShows(const std::function<void(QMessageBox *)> &act)
{
    auto *timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, act] {
        if (QMessageBox *box = visibleMessageBox()) {
            timer->stop();
            timer->deleteLater();
            act(box);
        }
    });
    timer->start();
    return timer;
}

KalPrompt::Button parseButton(const QString &code)
{
    if (code.startsWith(QLatin1String("+")))
        return {KalPrompt::AcceptCustom, code.mid(1)};
    if (code.startsWith(QLatin1String("-")))
        return {KalPrompt::RejectCustom, code.mid(1)};
    static const QHash<QString, KalPrompt::ButtonRole> roles{
        {"Ok", KalPrompt::Ok},         {"Yes", KalPrompt::Yes},   {"No", KalPrompt::No},
        {"Cancel", KalPrompt::Cancel}, {"Save", KalPrompt::Save}, {"Discard", KalPrompt::Discard},
        {"Abort", KalPrompt::Abort}};
    return {roles.value(code), QString()};
}

QMessageBox::StandardButton standardOf(KalPrompt::ButtonRole role)
{
    switch (role) {
    case KalPrompt::Ok:
        return QMessageBox::Ok;
    case KalPrompt::Yes:
        return QMessageBox::Yes;
    case KalPrompt::No:
        return QMessageBox::No;
    case KalPrompt::Cancel:
        return QMessageBox::Cancel;
    case KalPrompt::Save:
        return QMessageBox::Save;
    case KalPrompt::Discard:
        return QMessageBox::Discard;
    case KalPrompt::Abort:
        return QMessageBox::Abort;
    default:
        return QMessageBox::NoButton;
    }
}

QAbstractButton *buttonFor(QMessageBox *box, const KalPrompt::Button &b)
{
    const QMessageBox::StandardButton standard = standardOf(b.role);
    if (standard != QMessageBox::NoButton)
        return box->button(standard);
    for (QAbstractButton *button : box->buttons()) {
        if (button->text() == b.text)
            return button;
    }
    return nullptr;
}
} // namespace

void TstGuiSeams::initTestCase()
{
    KalPrompt::install(new KalMessageBoxPrompt);
}

void TstGuiSeams::cleanupTestCase()
{
    KalScriptedPrompt::install();
    KalFileDialog::clearQueue();
}

// --- file dialogs --------------------------------------------------------------------

void TstGuiSeams::fileDialogRemembersFolderPerKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<int>("untouchedKind");

    QTest::newRow("photos") << int(KalSettings::ImageFiles) << "files" << int(KalSettings::PlanFiles);
    QTest::newRow("plans") << int(KalSettings::PlanFiles) << "files" << int(KalSettings::ImageFiles);
    QTest::newRow("project open") << int(KalSettings::ProjectOpen) << "open" << int(KalSettings::ProjectSave);
    QTest::newRow("project save") << int(KalSettings::ProjectSave) << "save" << int(KalSettings::ProjectOpen);
    QTest::newRow("logo") << int(KalSettings::LogoFile) << "open" << int(KalSettings::PdfExport);
    QTest::newRow("pdf") << int(KalSettings::PdfExport) << "save" << int(KalSettings::LogoFile);
    QTest::newRow("photo folder") << int(KalSettings::ImageDirectory) << "folder" << int(KalSettings::ImageFiles);
}

void TstGuiSeams::fileDialogRemembersFolderPerKind()
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
        QCOMPARE(KalFileDialog::getOpenFileNames(nullptr, kind, QStringLiteral("Fotos auswählen"), QString()).size(),
                 2);
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

void TstGuiSeams::fileDialogCancelRemembersNothing()
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
    QVERIFY(
        KalFileDialog::getOpenFileName(nullptr, KalSettings::ProjectOpen, QStringLiteral("Projekt öffnen"), QString())
            .isEmpty());
    QCOMPARE(KalSettings::filePathForDialog(KalSettings::ProjectOpen), remembered);
}

void TstGuiSeams::fileDialogStartsWithProposedName()
{
    QTemporaryDir dir;
    KalFileDialog::queueChoice(dir.path() + QStringLiteral("/alt.pdf"));
    KalFileDialog::getSaveFileName(nullptr, KalSettings::PdfExport, QString(), QString());

    KalFileDialog::queueCancel();
    KalFileDialog::getSaveFileName(nullptr, KalSettings::PdfExport, QStringLiteral("PDF"), QString(),
                                   QStringLiteral("Mängelliste.pdf"));
    QCOMPARE(KalFileDialog::lastStartPath(), QDir::toNativeSeparators(dir.path() + QStringLiteral("/Mängelliste.pdf")));
}

// --- message boxes -------------------------------------------------------------------

void TstGuiSeams::messageBoxMapsButtons_data()
{
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("defaultButton");
    QTest::addColumn<int>("escapeButton");
    QTest::addColumn<int>("click"); // -1: press Escape
    QTest::addColumn<int>("answer");

    const QStringList yesNo{"Yes", "No"};
    const QStringList saveDiscardCancel{"Save", "Discard", "Cancel"};
    const QStringList custom{"+Speichern unter", "-Abbrechen"};
    QTest::newRow("yes") << yesNo << 0 << 1 << 0 << 0;
    QTest::newRow("no") << yesNo << 0 << 1 << 1 << 1;
    QTest::newRow("yes/no escape") << yesNo << 0 << 1 << -1 << 1;
    QTest::newRow("discard") << saveDiscardCancel << -1 << 2 << 1 << 1;
    QTest::newRow("save/discard/cancel escape") << saveDiscardCancel << -1 << 2 << -1 << 2;
    QTest::newRow("custom accept") << custom << 0 << 1 << 0 << 0;
    QTest::newRow("custom reject") << custom << 0 << 1 << 1 << 1;
    QTest::newRow("custom escape") << custom << 0 << 1 << -1 << 1;
    QTest::newRow("single ok") << QStringList() << 0 << -1 << 0 << 0;
    QTest::newRow("ok/abort, escape defaults to last") << QStringList{"Ok", "Abort"} << 0 << -1 << -1 << 1;
}

void TstGuiSeams::messageBoxMapsButtons()
{
    QFETCH(QStringList, buttons);
    QFETCH(int, defaultButton);
    QFETCH(int, escapeButton);
    QFETCH(int, click);
    QFETCH(int, answer);

    KalPrompt::Message message;
    message.icon = KalPrompt::Question;
    message.title = QStringLiteral("Projekt geändert");
    message.text = QStringLiteral("Das Projekt wurde geändert. Möchten Sie die Änderungen speichern?");
    for (const QString &code : buttons)
        message.buttons << parseButton(code);
    message.defaultButton = defaultButton;
    message.escapeButton = escapeButton;

    QVector<KalPrompt::Button> expected = message.buttons;
    if (expected.isEmpty())
        expected << KalPrompt::Button{KalPrompt::Ok, QString()};

    bool seen = false;
    QString problem;
    whenBoxShows([&](QMessageBox *box) {
        seen = true;
        if (box->windowTitle() != message.title || box->text() != message.text)
            problem = QStringLiteral("title or text differ");
        if (box->icon() != QMessageBox::Question)
            problem = QStringLiteral("icon");
        if (box->buttons().size() != expected.size())
            problem = QStringLiteral("button count %1").arg(box->buttons().size());
        for (const KalPrompt::Button &b : expected) {
            QAbstractButton *button = buttonFor(box, b);
            if (!button)
                problem = QStringLiteral("missing button ") + b.text;
            else if (b.role == KalPrompt::AcceptCustom && box->buttonRole(button) != QMessageBox::AcceptRole)
                problem = QStringLiteral("accept role");
            else if (b.role == KalPrompt::RejectCustom && box->buttonRole(button) != QMessageBox::RejectRole)
                problem = QStringLiteral("reject role");
        }
        QAbstractButton *wantedDefault = defaultButton >= 0 ? buttonFor(box, expected.value(defaultButton)) : nullptr;
        if (!buttons.isEmpty() && box->defaultButton() != wantedDefault)
            problem = QStringLiteral("default button");
        if (click < 0)
            QTest::keyClick(box, Qt::Key_Escape);
        else if (QAbstractButton *button = buttonFor(box, expected.value(click)))
            button->click();
        else
            box->reject();
    });
    const int result = KalPrompt::instance()->show(message);
    QVERIFY(seen);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    QCOMPARE(result, answer);
}

void TstGuiSeams::messageBoxDontShowAgain()
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
        whenBoxShows([&](QMessageBox *box) {
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
    bool shown = false;
    QTimer *poller = whenBoxShows([&](QMessageBox *box) {
        shown = true;
        box->button(QMessageBox::Ok)->click();
    });
    QCOMPARE(KalPrompt::ask(message), 0);
    QTest::qWait(50);
    const bool wasShown = shown;
    delete poller; // never fired: no box came
    QVERIFY(!wasShown);
}

void TstGuiSeams::noticeHasNoButtonsAndCloses()
{
    int buttonCount = -1;
    bool modal = true;
    QString text;
    whenBoxShows([&](QMessageBox *box) {
        buttonCount = box->buttons().size();
        modal = box->isModal();
        text = box->text();
    });
    QElapsedTimer clock;
    clock.start();
    KalPrompt::instance()->notice(QStringLiteral("Datenbank bereinigen"),
                                  QStringLiteral("Die Datenbank wird jetzt bereinigt."), 400);
    const qint64 elapsed = clock.elapsed();
    QVERIFY(elapsed >= 390);
    QVERIFY(elapsed < 5000);
    QCOMPARE(text, QStringLiteral("Die Datenbank wird jetzt bereinigt."));
    QCOMPARE(buttonCount, 0);
    QVERIFY(!modal);
    QTRY_VERIFY(!visibleMessageBox());
}

// --- busy window ---------------------------------------------------------------------

void TstGuiSeams::busyWindowAppearsAfterDelay()
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
    QTest::qWait(100);
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
    QThread::msleep(KalProgressDialog::showDelay() + 50);
    progress.setProgress(5, 10);
    QVERIFY(progress.isShowing());
    QCOMPARE(progressWindow()->value(), 500);
    progress.end();
    QVERIFY(!progress.isShowing());
}
