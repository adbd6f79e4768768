#include "gui/textaids/KalCompleterLineEdit.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalDateEdit.h"
#include "gui/textaids/KalTextAidsEditors.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QCalendarWidget>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {
KalScriptedPrompt *prompt()
{
    return static_cast<KalScriptedPrompt *>(KalPrompt::instance());
}
} // namespace

class TestDateEdit : public QObject
{
    Q_OBJECT

private slots:
    void init() { prompt()->clear(); }

    // The notation itself is the date format's business; the field warns
    // once, after the current event, and keeps what was typed.
    void leavingWarnsAndKeepsInvalidText()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *edit = new KalDateEdit(&window);
        auto *other = new QLineEdit(&window);
        layout->addWidget(edit);
        layout->addWidget(other);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        edit->setFocus();
        QSignalSpy finished(edit, &QLineEdit::editingFinished);
        QTest::keyClicks(edit, QStringLiteral("31.02.2020"));
        other->setFocus();
        QCOMPARE(edit->text(), QStringLiteral("31.02.2020"));
        QCOMPARE(finished.count(), 1);
        QVERIFY(prompt()->shown().isEmpty());
        QTRY_COMPARE(prompt()->titles(), QStringList{QStringLiteral("Format-Fehler")});
        QCOMPARE(prompt()->texts().first(), QStringLiteral("Das eingegebene Datum ist nicht korrekt.\nBitte verwenden "
                                                           "Sie das Format TT.MM.JJJJ!"));

        // Asking before the pending warning came shows it once, at once.
        prompt()->clear();
        edit->setFocus();
        other->setFocus();
        QVERIFY(!edit->checkInput());
        QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Format-Fehler")});
        QCoreApplication::processEvents();
        QCOMPARE(prompt()->titles().size(), 1);
        edit->setText(QStringLiteral("   ")); // blanks are no date and no fault
        QVERIFY(edit->checkInput());
        edit->clear();

        // A valid date stays.
        prompt()->clear();
        edit->setFocus();
        QTest::keyClicks(edit, QStringLiteral("1.2.24"));
        other->setFocus();
        QCOMPARE(edit->text(), QStringLiteral("1.2.24"));
        QCOMPARE(edit->date(), QDate(2024, 2, 1));
        QCoreApplication::processEvents();
        QVERIFY(prompt()->shown().isEmpty());

        // A grid closes its editor as soon as the focus leaves it: the warning still comes.
        edit->setFocus();
        edit->clear();
        QTest::keyClicks(edit, QStringLiteral("32.1.2024"));
        other->setFocus();
        delete edit;
        QTRY_COMPARE(prompt()->titles(), QStringList{QStringLiteral("Format-Fehler")});
    }

    void calendar()
    {
        KalDateEdit edit;
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        QSignalSpy finished(&edit, &QLineEdit::editingFinished);
        edit.setDate(QDate(2024, 3, 10));
        QCOMPARE(edit.text(), QStringLiteral("10.03.2024"));

        edit.toolButtonPopup()->click();
        QCalendarWidget *calendar = edit.calendarWidget();
        QVERIFY(calendar && calendar->isVisible());
        QCOMPARE(calendar->windowTitle(), QStringLiteral("Datum auswählen"));
        QCOMPARE(calendar->selectedDate(), QDate(2024, 3, 10));

        emit calendar->clicked(QDate(2024, 3, 15));
        QCOMPARE(edit.text(), QStringLiteral("15.03.2024"));
        QCOMPARE(edit.date(), QDate(2024, 3, 15));
        QVERIFY(!calendar->isVisible());
        QCOMPARE(finished.count(), 1);

        edit.setToolTip(QStringLiteral("Frist"));
        edit.toolButtonPopup()->click();
        QCOMPARE(calendar->windowTitle(), QStringLiteral("Frist"));
    }

    void gridEditors_data()
    {
        QTest::addColumn<int>("editorNumber");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("read");

        QTest::newRow("completer line") << 2 << "KalCompleterLineEdit" << QVariant("Flur") << QVariant("Flur");
        QTest::newRow("spelling text") << 3 << "KalCompleterTextEdit" << QVariant("Riss\nPutz")
                                       << QVariant("Riss\nPutz");
        QTest::newRow("date from text") << 4 << "KalDateEdit" << QVariant("2024-03-05") << QVariant(QDate(2024, 3, 5));
        QTest::newRow("date value") << 7 << "KalDateEdit" << QVariant(QDate(2024, 12, 31))
                                    << QVariant(QDate(2024, 12, 31));
        QTest::newRow("empty date") << 4 << "KalDateEdit" << QVariant() << QVariant(QDate());
        QTest::newRow("not ours") << 1 << "" << QVariant() << QVariant();
    }

    void gridEditors()
    {
        QFETCH(int, editorNumber);
        QFETCH(QString, className);
        QFETCH(QVariant, stored);
        QFETCH(QVariant, read);

        QWidget parent;
        QWidget *editor =
            KalTextAidsEditors::create(editorNumber, QStringLiteral("defect"), QStringLiteral("roomname"), &parent);
        QCOMPARE(KalTextAidsEditors::handles(editorNumber), !className.isEmpty());
        if (className.isEmpty()) {
            QVERIFY(!editor);
            return;
        }
        QVERIFY(editor);
        QCOMPARE(QString::fromLatin1(editor->metaObject()->className()), className);
        QVERIFY(KalTextAidsEditors::setEditorData(editor, stored));
        bool handled = false;
        QCOMPARE(KalTextAidsEditors::editorData(editor, &handled), read);
        QVERIFY(handled);

        int finished = 0;
        KalTextAidsEditors::onEditingFinished(editor, &parent, [&finished] { ++finished; });
        QMetaObject::invokeMethod(editor, "editingFinished");
        QCOMPARE(finished, 1);
        QCoreApplication::processEvents();
        QVERIFY(prompt()->shown().isEmpty());
    }
};

KAL_WIDGET_TEST_MAIN(TestDateEdit)
#include "tst_dateedit.moc"
