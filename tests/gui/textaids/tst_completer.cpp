#include "core/textaids/KalCompleterModel.h"
#include "core/textaids/KalCompleterStore.h"
#include "core/textaids/KalCompleterStringListModel.h"
#include "gui/textaids/KalCompleter.h"
#include "gui/textaids/KalCompleterDialog.h"
#include "gui/textaids/KalCompleterLineEdit.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalFieldButton.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QAbstractItemView>
#include <QListView>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTableView>
#include <QVBoxLayout>
#include <QtTest>

namespace {
KalScriptedPrompt *prompt()
{
    return static_cast<KalScriptedPrompt *>(KalPrompt::instance());
}

// What the settings hold for a field, read the way every field reads it.
QStringList storedValues(const char *table, const char *column)
{
    return KalCompleterStore::read(QString::fromLatin1(table), QString::fromLatin1(column)).values;
}

void storeValues(const char *table, const char *column, const QStringList &values)
{
    KalCompleterStore::write(KalCompleterStore::info(QString::fromLatin1(table), QString::fromLatin1(column)),
                             {true, true, values});
}

} // namespace

class TestCompleter : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings().clear();
        QSettings().setValue(QStringLiteral("Language"), 42);
        prompt()->clear();
        m_window.reset(new QWidget);
        auto *layout = new QVBoxLayout(m_window.get());
        m_edit = new KalCompleterLineEdit(QStringLiteral("defect"), QStringLiteral("roomname"), m_window.get());
        m_other = new QLineEdit(m_window.get());
        layout->addWidget(m_edit);
        layout->addWidget(m_other);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_edit->setFocus();
        m_roomDefaults = m_edit->kalCompleter()->values();
        QVERIFY(m_roomDefaults.contains(QStringLiteral("Zimmer")));
    }

    void cleanup() { m_window.reset(); }

    // Keys as the user presses them: "^E" is Ctrl+E, "<BS>" Backspace, "<Left>"
    // the arrow key, "<Ret>" Return in the open popup, anything else is typed.
    void keys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("popupVisible");
        QTest::addColumn<QString>("firstOffer"); // empty: not checked
        QTest::addColumn<int>("offers");         // -1: not checked, 0: the whole list

        auto row = [](const char *name, const char *keys, const char *text, bool popup, const char *first, int offers) {
            QTest::newRow(name) << QString(keys) << QString(text) << popup << QString(first) << offers;
        };
        row("prefix offers", "Zi", "Zi", true, "Zimmer", -1);
        row("case-insensitive", "fl", "fl", true, "Flur", -1);
        row("complete word hides", "Zimmer", "Zimmer", false, "", -1);
        row("comma ends the word", "Flur,", "Flur,", false, "", -1);
        row("dash ends the word", "WC-", "WC-", false, "", -1);
        row("nothing matches", "Keller", "Keller", false, "", -1);
        row("whole text is the prefix", "Treppenh", "Treppenh", true, "Treppenhaus", -1);
        row("backspace reopens after an exact match", "Zimmer<BS>", "Zimme", true, "", -1);
        row("arrow keys close", "Zimmer<BS><Left>", "Zimme", false, "", -1);
        row("Ctrl+E offers everything and is not typed", "^E", "", true, "", 0);
        row("Ctrl+E on a prefix", "Fl^E", "Fl", true, "", 1);
        row("Return in the popup chooses", "Tr<Ret>", "Treppenhaus", false, "", -1);
    }

    void keys()
    {
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QFETCH(bool, popupVisible);
        QFETCH(QString, firstOffer);
        QFETCH(int, offers);

        KalCompleter *completer = m_edit->kalCompleter();
        static const QRegularExpression token(QStringLiteral("\\^E|<BS>|<Left>|<Ret>|[^<^]+"));
        for (auto it = token.globalMatch(keys); it.hasNext();) {
            const QString key = it.next().captured();
            if (key == QLatin1String("^E"))
                QTest::keyClick(m_edit, Qt::Key_E, Qt::ControlModifier);
            else if (key == QLatin1String("<BS>"))
                QTest::keyClick(m_edit, Qt::Key_Backspace);
            else if (key == QLatin1String("<Left>"))
                QTest::keyClick(m_edit, Qt::Key_Left);
            else if (key == QLatin1String("<Ret>"))
                QTest::keyClick(completer->popup(), Qt::Key_Return);
            else
                QTest::keyClicks(m_edit, key);
        }
        QCOMPARE(m_edit->text(), text);
        QCOMPARE(completer->popup()->isVisible(), popupVisible);
        if (!firstOffer.isEmpty()) {
            QCOMPARE(completer->completionPrefix(), text);
            QCOMPARE(completer->popup()->currentIndex().data().toString(), firstOffer);
        }
        if (offers >= 0)
            QCOMPARE(completer->completionCount(), offers ? offers : m_roomDefaults.size());
    }

    void disabledCompleterNeverPopsUp()
    {
        m_window.reset();
        QSettings().remove(QStringLiteral("Completer_42"));
        QSettings().setValue(QStringLiteral("Completer_42/defect/roomname/Enabled"), false);
        QWidget window;
        auto *edit = new KalCompleterLineEdit(QStringLiteral("defect"), QStringLiteral("roomname"), &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        edit->setFocus();
        QTest::keyClicks(edit, QStringLiteral("Zi"));
        QVERIFY(!edit->kalCompleter()->popup()->isVisible());
        QTest::keyClick(edit, Qt::Key_E, Qt::ControlModifier);
        QVERIFY(!edit->kalCompleter()->popup()->isVisible());
        // A disabled field collects nothing.
        edit->setText(QStringLiteral("Keller"));
        emit edit->editingFinished();
        QVERIFY(edit->kalCompleter()->values().isEmpty());
    }

    // Leaving a field stores its text once, cleaned, for every field of the column.
    void leavingAppends()
    {
        QCOMPARE(storedValues("defect", "roomname"), m_roomDefaults);
        m_edit->setText(QStringLiteral("  Abstell   raum "));
        emit m_edit->editingFinished();
        QCOMPARE(storedValues("defect", "roomname"), m_roomDefaults + QStringList{QStringLiteral("Abstell raum")});

        m_edit->setText(QStringLiteral("Abstell raum"));
        emit m_edit->editingFinished();
        QVERIFY(!m_edit->kalCompleter()->appendEntry(QStringLiteral("Flur")));
        QCOMPARE(storedValues("defect", "roomname").size(), m_roomDefaults.size() + 1);

        // A second field of the same column sees the new value at once.
        KalCompleterLineEdit second(QStringLiteral("defect"), QStringLiteral("roomname"));
        QVERIFY(m_edit->kalCompleter()->appendEntry(QStringLiteral("Keller")));
        QVERIFY(second.kalCompleter()->values().contains(QStringLiteral("Keller")));
    }

    // A multi-line value chosen in a single-line field has its lines joined.
    void lineEditJoinsLines()
    {
        storeValues("photo_info", "comment", {QStringLiteral("A\nB")});
        QLineEdit field;
        KalCompleter completer(QStringLiteral("photo_info"), 2, QStringLiteral("comment"), -1, &field);
        QCOMPARE(completer.displayList(), QStringList{QStringLiteral("A | B")});
        completer.insertCompletion(QStringLiteral("A | B"));
        QCOMPARE(field.text(), QStringLiteral("A B"));
    }

    void textEditInsertsMultiLineValue()
    {
        storeValues("defect", "description", {QStringLiteral("Riss\nim Putz")});
        KalCompleterTextEdit edit(QStringLiteral("defect"), QStringLiteral("description"));
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        edit.setFocus();
        QTest::keyClicks(&edit, QStringLiteral("Ri"));
        QVERIFY(edit.kalCompleter()->popup()->isVisible());
        QTest::keyClick(edit.kalCompleter()->popup(), Qt::Key_Return);
        QCOMPARE(edit.toPlainText(), QStringLiteral("Riss\nim Putz"));
        // Leaving the field stores nothing; its owner stores the final text.
        edit.setPlainText(QStringLiteral("Fuge offen"));
        emit edit.editingFinished();
        QVERIFY(!edit.kalCompleter()->values().contains(QStringLiteral("Fuge offen")));
        edit.rememberText();
        QVERIFY(edit.kalCompleter()->values().contains(QStringLiteral("Fuge offen")));
    }

    void buttonExplainsEmptyField()
    {
        KalCompleterLineEdit plans(QStringLiteral("plan_info"), QStringLiteral("plan_name"));
        QVERIFY(plans.fieldButton());
        prompt()->queueAnswer(QStringLiteral("Schließen"));
        plans.fieldButton()->click();
        QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Autotexte")});
        QVERIFY(prompt()->texts().first().startsWith(
            QStringLiteral("Diese Funktion erlaubt das automatische Einfügen der Texte, die bisher in dieses Feld "
                           "eingetragen wurden.")));
        QCOMPARE(prompt()->shown().first().buttons,
                 (QStringList{QStringLiteral("Autotexte bearbeiten"), QStringLiteral("Schließen")}));

        prompt()->clear();
        QSettings().setValue(QStringLiteral("Messages/DontShowCompleterMsg"), true);
        plans.fieldButton()->click();
        QVERIFY(prompt()->shown().isEmpty());

        // With values, the button opens the list instead.
        m_edit->fieldButton()->click();
        QVERIFY(m_edit->kalCompleter()->popup()->isVisible());
        QCOMPARE(m_edit->kalCompleter()->completionCount(), m_roomDefaults.size());
        QVERIFY(prompt()->shown().isEmpty());
    }

    void dialogEditsAndSaves()
    {
        KalCompleterDialog dialog;
        QVERIFY(dialog.selectCompleter(QStringLiteral("defect"), QStringLiteral("roomname")));
        QCOMPARE(dialog.valuesModel()->rowCount(), m_roomDefaults.size());

        dialog.findChild<QPushButton *>(QStringLiteral("pbAddEntry"))->click();
        QCOMPARE(dialog.valuesModel()->index(m_roomDefaults.size()).data().toString(),
                 QStringLiteral("<Neuer Eintrag>"));
        dialog.valuesModel()->setData(dialog.valuesModel()->index(m_roomDefaults.size()), QStringLiteral("Bad | oben"));
        dialog.valuesView()->setCurrentIndex(dialog.valuesModel()->index(0));
        dialog.findChild<QPushButton *>(QStringLiteral("pbDeleteEntry"))->click();
        dialog.findChild<QPushButton *>(QStringLiteral("pbNone"))->click();
        QVERIFY(dialog.isModified());

        // Nothing is written before OK.
        QCOMPARE(storedValues("defect", "roomname"), m_roomDefaults);
        kalPress(&dialog, QDialogButtonBox::Ok);
        QCOMPARE(storedValues("defect", "roomname"), m_roomDefaults.mid(1) + QStringList{QStringLiteral("Bad\noben")});
        // The live field follows: switched off.
        QVERIFY(!m_edit->kalCompleter()->isEnabled());
        QTest::keyClicks(m_edit, QStringLiteral("Fl"));
        QVERIFY(!m_edit->kalCompleter()->popup()->isVisible());
    }

    // The dialog opens large enough to read every field, even after it was shrunk.
    void dialogShowsEveryField_data()
    {
        QTest::addColumn<bool>("tinyGeometryStored");
        QTest::newRow("first opening") << false;
        QTest::newRow("after being shrunk") << true;
    }

    void dialogShowsEveryField()
    {
        QFETCH(bool, tinyGeometryStored);
        if (tinyGeometryStored) {
            QDialog tiny;
            tiny.resize(120, 80);
            QSettings().setValue(QStringLiteral("CompleterDialog/Geometry"), tiny.saveGeometry());
        }
        KalCompleterDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTableView *fields = dialog.completerView();
        const QFontMetrics metrics(fields->font());
        QVERIFY(fields->model()->rowCount() > 5);
        for (int row = 0; row < fields->model()->rowCount(); ++row) {
            const QModelIndex index = fields->model()->index(row, 0);
            const QString text = index.data().toString();
            QVERIFY2(fields->visualRect(index).width() >= metrics.horizontalAdvance(text) + 8, qPrintable(text));
        }
        QVERIFY(dialog.valuesView()->width() >= metrics.averageCharWidth() * 30);
        QVERIFY(fields->viewport()->height() >= metrics.height() * 8);
        dialog.reject();
    }

    void dialogAsksBeforeDiscarding_data()
    {
        QTest::addColumn<bool>("changed");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closed");
        QTest::newRow("keep editing") << true << "Nein" << false;
        QTest::newRow("discard") << true << "Ja" << true;
        QTest::newRow("nothing changed: no question") << false << QString() << true;
    }

    void dialogAsksBeforeDiscarding()
    {
        QFETCH(bool, changed);
        QFETCH(QString, answer);
        QFETCH(bool, closed);
        KalCompleterDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.selectCompleter(QStringLiteral("defect"), QStringLiteral("roomname"));
        if (changed) {
            dialog.findChild<QPushButton *>(QStringLiteral("pbDeleteAll"))->click();
            prompt()->queueAnswer(answer);
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(prompt()->texts(),
                 changed ? QStringList{QStringLiteral("Sollen die Änderungen verworfen werden?")} : QStringList());
        QCOMPARE(dialog.isVisible(), !closed);
        QCOMPARE(storedValues("defect", "roomname"), m_roomDefaults);
    }

    void resetToFactoryLists_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("reset");
        QTest::newRow("confirmed") << "OK" << true;
        QTest::newRow("cancelled") << "Abbrechen" << false;
    }

    void resetToFactoryLists()
    {
        QFETCH(QString, answer);
        QFETCH(bool, reset);
        QVERIFY(m_edit->kalCompleter()->appendEntry(QStringLiteral("Keller")));
        QSettings().setValue(QStringLiteral("Completer_42/defect/priority/Enabled"), false);
        storeValues("photo_info", "comment", {QStringLiteral("Foto vom Riss")});

        KalCompleterDialog dialog;
        prompt()->queueAnswer(answer);
        dialog.findChild<QPushButton *>(QStringLiteral("pbReset"))->click();
        QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Alle Completer zurücksetzen")});
        QCOMPARE(prompt()->texts().first(),
                 QStringLiteral("Alle Completer werden auf den Auslieferungszustand zurückgesetzt.\nAlle "
                                "eingegebenen Textvorschläge werden dabei gelöscht!"));

        const int priority = dialog.completerModel()->rowOf(QStringLiteral("defect"), QStringLiteral("priority"));
        const int comment = dialog.completerModel()->rowOf(QStringLiteral("photo_info"), QStringLiteral("comment"));
        if (reset) {
            QCOMPARE(m_edit->kalCompleter()->values(), m_roomDefaults);
            QVERIFY(dialog.completerModel()->isEnabled(priority));
            QVERIFY(!dialog.completerModel()->values(priority).isEmpty());
            QVERIFY(dialog.completerModel()->values(comment).isEmpty());
            QVERIFY(storedValues("photo_info", "comment").isEmpty());
        } else {
            QVERIFY(m_edit->kalCompleter()->values().contains(QStringLiteral("Keller")));
            QVERIFY(!dialog.completerModel()->isEnabled(priority));
            QCOMPARE(dialog.completerModel()->values(comment), QStringList{QStringLiteral("Foto vom Riss")});
        }
    }

private:
    std::unique_ptr<QWidget> m_window;
    KalCompleterLineEdit *m_edit = nullptr;
    QLineEdit *m_other = nullptr;
    QStringList m_roomDefaults; // the factory list, as a new field offers it
};

KAL_WIDGET_TEST_MAIN(TestCompleter)
#include "tst_completer.moc"
