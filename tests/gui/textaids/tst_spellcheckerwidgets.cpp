// The spell checker as the user meets it: marks in text fields, the
// context menu of a misspelt word and the check dialog.
#include "core/textaids/KalSpellChecker.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalSpellCheckerDialog.h"
#include "gui/textaids/KalSpellCheckerHighlighter.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

using Range = QPair<int, int>;
Q_DECLARE_METATYPE(QVector<Range>)

namespace {
KalScriptedPrompt *prompt()
{
    return static_cast<KalScriptedPrompt *>(KalPrompt::instance());
}

QString germanBase()
{
    return QStringLiteral(KAL_TEST_DICTIONARIES_DIR "/pym_DE");
}

// The spelling marks of a document, as (position, length).
QVector<Range> markedRanges(QTextDocument *document)
{
    QVector<Range> ranges;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
            if (range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline &&
                range.format.underlineColor() == QColor(Qt::red))
                ranges.append({block.position() + range.start, range.length});
        }
    }
    std::sort(ranges.begin(), ranges.end());
    return ranges;
}
} // namespace

class TstSpellCheckerWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings().clear();
        prompt()->clear();
        m_userDict = m_dir.filePath(QStringLiteral("user-%1.txt").arg(++m_counter));
        KalSpellChecker::setInstance(new KalSpellChecker(germanBase(), m_userDict));
        QVERIFY(checker()->isValid());
        checker()->setActive(true, false);
    }

    void cleanupTestCase() { KalSpellChecker::setInstance(nullptr); }

    void highlighting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVector<Range>>("expected");

        QTest::newRow("twice, not inside a longer word")
            << "Die Fenst am Fenster und Fenst." << QVector<Range>{{4, 5}, {25, 5}};
        QTest::newRow("second paragraph") << "Haus\nDas Fenstr" << QVector<Range>{{9, 6}};
    }

    void highlighting()
    {
        QFETCH(QString, text);
        QFETCH(QVector<Range>, expected);
        QTextDocument document;
        document.setPlainText(text);
        KalSpellCheckerHighlighter highlighter(&document);
        highlighter.rehighlight();
        QCOMPARE(markedRanges(&document), expected);
    }

    void switchingOffRemovesMarks()
    {
        KalCompleterTextEdit edit;
        edit.setPlainText(QStringLiteral("Das Fenstr klemmt"));
        QCOMPARE(markedRanges(edit.document()).size(), 1);

        QSignalSpy spy(checker(), &KalSpellChecker::rehighlightAllSpellCheckerWidgets);
        QVERIFY(KalSpellChecker::switchSpellChecking(false));
        QCOMPARE(spy.count(), 1);
        QVERIFY(markedRanges(edit.document()).isEmpty());
        QCOMPARE(QSettings().value(QStringLiteral("SpellCheckerActive")).toBool(), false);

        QVERIFY(KalSpellChecker::switchSpellChecking(true));
        QCOMPARE(markedRanges(edit.document()).size(), 1);
    }

    void fieldFollowsLaterChecker()
    {
        KalSpellChecker::setInstance(nullptr);
        KalCompleterTextEdit edit;
        edit.setPlainText(QStringLiteral("Das Fenstr klemmt"));
        QVERIFY(markedRanges(edit.document()).isEmpty());
        KalSpellChecker::setInstance(new KalSpellChecker(germanBase(), m_userDict));
        QFocusEvent focusIn(QEvent::FocusIn);
        QApplication::sendEvent(&edit, &focusIn);
        QCOMPARE(markedRanges(edit.document()), (QVector<Range>{{4, 6}}));
    }

    void contextMenu()
    {
        KalCompleterTextEdit edit;
        edit.resize(400, 200);
        edit.setPlainText(QStringLiteral("Das Fenstr klemmt"));
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        QTextCursor cursor(edit.document());
        cursor.setPosition(6);
        const QPoint onTypo = edit.cursorRect(cursor).center();

        std::unique_ptr<QMenu> menu(edit.createSpellingMenu(onTypo));
        const QList<QAction *> actions = menu->actions();
        QVERIFY(actions.size() >= 3);
        // The checker's suggestions first (their order is the dictionary's), in bold.
        const QString suggestion = checker()->suggest(QStringLiteral("Fenstr")).value(0);
        QVERIFY(checker()->spell(suggestion));
        QCOMPARE(actions.first()->text(), suggestion);
        QVERIFY(actions.first()->font().bold());
        QVERIFY(actions.at(actions.size() - 2)->isSeparator());
        QCOMPARE(actions.last()->text(), QStringLiteral("Zum Wörterbuch hinzufügen"));

        actions.first()->trigger();
        QCOMPARE(edit.toPlainText(), QStringLiteral("Das %1 klemmt").arg(suggestion));
        QVERIFY(markedRanges(edit.document()).isEmpty());

        // A correct word, or checking switched off: the standard menu.
        cursor.setPosition(1);
        menu.reset(edit.createSpellingMenu(edit.cursorRect(cursor).center()));
        QCOMPARE(menu->actions().last()->text(), QStringLiteral("Rechtschreibung prüfen"));
        QVERIFY(menu->actions().size() > 3);

        edit.setPlainText(QStringLiteral("Das Fenstr klemmt"));
        checker()->setActive(false, false);
        menu.reset(edit.createSpellingMenu(onTypo));
        QCOMPARE(menu->actions().last()->text(), QStringLiteral("Rechtschreibung prüfen"));
    }

    void contextMenuAddsToUserDictionary()
    {
        KalCompleterTextEdit edit;
        edit.resize(400, 200);
        edit.setPlainText(QStringLiteral("Ein Pellwickwort hier"));
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        QCOMPARE(markedRanges(edit.document()), (QVector<Range>{{4, 12}}));
        QTextCursor cursor(edit.document());
        cursor.setPosition(7);
        std::unique_ptr<QMenu> menu(edit.createSpellingMenu(edit.cursorRect(cursor).center()));
        menu->actions().last()->trigger();
        QVERIFY(markedRanges(edit.document()).isEmpty());
        QFile file(m_userDict);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("Pellwickwort\n"));
    }

    void checkDialog()
    {
        QTextEdit edit;
        edit.setPlainText(QStringLiteral("Das Fenstr und das Fenstr, Tühr zu. Pellwickwort."));
        KalSpellCheckerDialog dialog(checker(), &edit);
        QVERIFY(dialog.start());
        dialog.show();
        QCOMPARE(dialog.currentWord(), QStringLiteral("Fenstr"));
        const QList<QTextEdit::ExtraSelection> marks = edit.extraSelections();
        QCOMPARE(marks.size(), 1);
        QCOMPARE(marks.first().cursor.selectedText(), QStringLiteral("Fenstr"));

        dialog.findChild<QLineEdit *>(QStringLiteral("leReplace"))->setText(QStringLiteral("Fenster"));
        dialog.findChild<QPushButton *>(QStringLiteral("pbChangeAll"))->click();
        QCOMPARE(edit.toPlainText(), QStringLiteral("Das Fenster und das Fenster, Tühr zu. Pellwickwort."));
        // One edit step for all replacements.
        edit.undo();
        QCOMPARE(edit.toPlainText(), QStringLiteral("Das Fenstr und das Fenstr, Tühr zu. Pellwickwort."));
        edit.redo();

        QCOMPARE(dialog.currentWord(), QStringLiteral("Tühr"));
        dialog.findChild<QLineEdit *>(QStringLiteral("leReplace"))->setText(QStringLiteral("Tür"));
        dialog.findChild<QPushButton *>(QStringLiteral("pbChange"))->click();
        QCOMPARE(edit.toPlainText(), QStringLiteral("Das Fenster und das Fenster, Tür zu. Pellwickwort."));

        QCOMPARE(dialog.currentWord(), QStringLiteral("Pellwickwort"));
        dialog.move(123, 87);
        dialog.findChild<QPushButton *>(QStringLiteral("pbAddToDict"))->click();
        QVERIFY(checker()->spell(QStringLiteral("Pellwickwort")));
        QVERIFY(!dialog.isVisible());
        QVERIFY(edit.extraSelections().isEmpty());
        QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Rechtschreibprüfung")});
        QCOMPARE(prompt()->texts(), QStringList{QStringLiteral("Die Rechtschreibprüfung ist beendet.")});
        QCOMPARE(dialog.foundCount(), 3);
        QVERIFY(QSettings().contains(QStringLiteral("SpellCheckerDialogX")));
    }

    void checkDialogIgnoreAndCancel()
    {
        QTextEdit edit;
        edit.setPlainText(QStringLiteral("Fenstr Tühr Fenstr Tühr"));
        KalSpellCheckerDialog dialog(checker(), &edit);
        QVERIFY(dialog.start());
        dialog.show();
        dialog.findChild<QPushButton *>(QStringLiteral("pbIgnore"))->click();
        QCOMPARE(dialog.currentWord(), QStringLiteral("Tühr"));
        dialog.findChild<QPushButton *>(QStringLiteral("pbIgnoreAll"))->click();
        QCOMPARE(dialog.currentWord(), QStringLiteral("Fenstr")); // ignored once only
        QVERIFY(checker()->spell(QStringLiteral("Tühr")));
        dialog.findChild<QPushButton *>(QStringLiteral("pbCancel"))->click();
        QVERIFY(!dialog.isVisible());
        QVERIFY(edit.extraSelections().isEmpty());
        QVERIFY(prompt()->shown().isEmpty()); // cancelling says nothing
        QCOMPARE(edit.toPlainText(), QStringLiteral("Fenstr Tühr Fenstr Tühr"));
    }

    void checkDialogFieldGone()
    {
        auto *edit = new QTextEdit;
        edit->setPlainText(QStringLiteral("Fenstr Tühr"));
        KalSpellCheckerDialog dialog(checker(), edit);
        QVERIFY(dialog.start());
        dialog.show();
        delete edit;
        dialog.findChild<QPushButton *>(QStringLiteral("pbChangeAll"))->click();
        QVERIFY(!dialog.isVisible());
        QVERIFY(prompt()->shown().isEmpty());
    }

    void checkDialogWithoutErrors()
    {
        QTextEdit edit;
        edit.setPlainText(QStringLiteral("Das Fenster klemmt."));
        KalSpellCheckerDialog::checkTextEdit(&edit);
        QCOMPARE(prompt()->texts(),
                 QStringList{QStringLiteral("Die Rechtschreibprüfung konnte keinen Fehler finden.")});
    }

private:
    static KalSpellChecker *checker() { return KalSpellChecker::instance(); }

    QTemporaryDir m_dir;
    QString m_userDict;
    int m_counter = 0;
};

KAL_WIDGET_TEST_MAIN(TstSpellCheckerWidgets)
#include "tst_spellcheckerwidgets.moc"
