#include "core/project/KalEnvironment.h"
#include "gui/textaids/KalDateEdit.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QCalendarWidget>
#include <QLineEdit>
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
    void init()
    {
        prompt()->clear();
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }

    void cleanupTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }

    // The notation itself is the date format's business; the field warns
    // once, after the current event, and keeps what was typed.
    void parsing_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("expected");
        QTest::addColumn<QString>("pattern"); // empty: no warning is due
        const QLocale de(QLocale::German, QLocale::Germany);
        QTest::newRow("blank is an empty date") << de << "   " << QDate() << "";
        QTest::newRow("German short") << de << "1.2.24" << QDate(2024, 2, 1) << "";
        QTest::newRow("German no such day") << de << "31.02.2020" << QDate() << "TT.MM.JJJJ";
        QTest::newRow("USA day first is wrong")
            << QLocale(QLocale::English, QLocale::UnitedStates) << "31/01/2024" << QDate() << "MM/DD/YYYY";
    }

    void parsing()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, text);
        QFETCH(QDate, expected);
        QFETCH(QString, pattern);
        QLocale::setDefault(locale);
        KalEnvironment::setNowOverride(QDateTime(QDate(2025, 6, 1), QTime(12, 0)));
        KalDateEdit edit;
        edit.setText(text);
        const QDate parsed = edit.date();
        KalEnvironment::setNowOverride(QDateTime());
        QCOMPARE(parsed, expected);
        // The warning comes after the current event, once.
        edit.date();
        QVERIFY(prompt()->shown().isEmpty());
        QCoreApplication::processEvents();
        if (pattern.isEmpty()) {
            QVERIFY(prompt()->shown().isEmpty());
        } else {
            QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Format-Fehler")});
            QCOMPARE(prompt()->texts().first(),
                     QStringLiteral("Das eingegebene Datum ist nicht korrekt.\nBitte verwenden Sie das Format %1!")
                         .arg(pattern));
            QCOMPARE(edit.text(), text); // asking does not clear
        }
    }

    // Leaving the field clears an invalid date and warns once; a valid one stays.
    void leavingTheField_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QDate>("date"); // invalid: cleared with a warning
        QTest::newRow("no such day") << "31.02.2020" << QDate();
        QTest::newRow("valid date") << "1.2.24" << QDate(2024, 2, 1);
    }

    void leavingTheField()
    {
        QFETCH(QString, typed);
        QFETCH(QDate, date);
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
        QTest::keyClicks(edit, typed);
        other->setFocus();
        QCOMPARE(edit->text(), date.isValid() ? typed : QString());
        QCOMPARE(edit->date(), date);
        QCOMPARE(finished.count(), 1);
        QVERIFY(prompt()->shown().isEmpty());
        if (date.isValid()) {
            QCoreApplication::processEvents();
            QVERIFY(prompt()->shown().isEmpty());
        } else {
            QTRY_COMPARE(prompt()->titles(), QStringList{QStringLiteral("Format-Fehler")});
            QVERIFY(prompt()->texts().first().contains(QStringLiteral("TT.MM.JJJJ")));
        }
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
};

KAL_WIDGET_TEST_MAIN(TestDateEdit)
#include "tst_dateedit.moc"
