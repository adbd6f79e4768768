#include "TextAidsTests.h"
#include "core/textaids/KalSpellChecker.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalSpellCheckerDialog.h"
#include "gui/textaids/KalSpellCheckerHighlighter.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCodec>
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

// The spelling marks of the first block of a document.
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

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}
} // namespace

class TestSpellChecker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY2(QFile::exists(germanBase() + QStringLiteral(".DIC")), "build the kal_dictionaries target");
    }

    void init()
    {
        QSettings().clear();
        prompt()->clear();
        QVERIFY(m_dir.isValid());
        m_userDict = m_dir.filePath(QStringLiteral("user-%1.txt").arg(++m_counter));
        KalSpellChecker::setInstance(new KalSpellChecker(germanBase(), m_userDict));
        QVERIFY(checker()->isValid());
        checker()->setActive(true, false);
    }

    void cleanupTestCase() { KalSpellChecker::setInstance(nullptr); }

    void germanWords_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<bool>("known");
        QTest::newRow("Haus") << "Haus" << true;
        QTest::newRow("umlaut") << "Küche" << true;
        QTest::newRow("sharp s") << "Straße" << true;
        QTest::newRow("plural") << "Mängel" << true;
        QTest::newRow("typo") << "Fenstr" << false;
        QTest::newRow("swapped letters") << "Kühce" << false;
    }

    void germanWords()
    {
        QFETCH(QString, word);
        QFETCH(bool, known);
        QCOMPARE(checker()->encoding(), QStringLiteral("UTF-8"));
        QCOMPARE(checker()->spell(word), known);
    }

    void suggestions()
    {
        QVERIFY(checker()->suggest(QStringLiteral("Fenstr")).contains(QStringLiteral("Fenster")));
        QVERIFY(checker()->suggest(QStringLiteral("Kühce")).contains(QStringLiteral("Küche")));
    }

    void highlighting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVector<Range>>("expected");

        QTest::newRow("twice, not inside a longer word")
            << "Die Fenst am Fenster und Fenst." << QVector<Range>{{4, 5}, {25, 5}};
        QTest::newRow("one-letter words") << "z x q Haus" << QVector<Range>();
        QTest::newRow("correct text") << "Der Riss in der Wand ist 1,5 m lang." << QVector<Range>();
        QTest::newRow("comma after a word") << "Hasu, Haus" << QVector<Range>{{0, 4}};
        QTest::newRow("umlauts") << "Küche Kühce" << QVector<Range>{{6, 5}};
        QTest::newRow("escape sequence") << "\\Hasu Haus" << QVector<Range>();
        QTest::newRow("escape sequence beside the same word") << "\\Hasu Hasu" << QVector<Range>{{6, 4}};
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
        QCOMPARE(KalSpellChecker::toggleActionText(true), QStringLiteral("Rechtschreibprüfung aus"));
    }

    void switchingWithoutChecker()
    {
        KalSpellChecker::setInstance(nullptr);
        QVERIFY(!KalSpellChecker::switchSpellChecking(true));
        QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Fehler")});
        QCOMPARE(prompt()->texts(), QStringList{QStringLiteral("Das Modul Rechtschreibprüfung ist nicht geladen!")});
        KalCompleterTextEdit edit;
        edit.setPlainText(QStringLiteral("Das Fenstr klemmt"));
        QVERIFY(markedRanges(edit.document()).isEmpty());
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
        QVERIFY(KalSpellChecker::switchSpellChecking(false));
        QVERIFY(markedRanges(edit.document()).isEmpty());
    }

    void userDictionary()
    {
        // Created empty on first use.
        QVERIFY(QFile::exists(m_userDict));
        QCOMPARE(QFileInfo(m_userDict).size(), 0);

        const QString word = QStringLiteral("Pellwickmängelwort");
        QVERIFY(!checker()->spell(word));
        QVERIFY(checker()->addToUserDict(word));
        QVERIFY(checker()->spell(word));
        QFile file(m_userDict);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), word.toUtf8() + '\n');
        file.close();

        // After a restart.
        KalSpellChecker::setInstance(new KalSpellChecker(germanBase(), m_userDict));
        QVERIFY(checker()->spell(word));
        QVERIFY(prompt()->shown().isEmpty());
    }

    void ignoredWordsLastOneRun()
    {
        checker()->ignoreWord(QStringLiteral("Fenstr"));
        QVERIFY(checker()->spell(QStringLiteral("Fenstr")));
        KalSpellChecker::setInstance(new KalSpellChecker(germanBase(), m_userDict));
        QVERIFY(!checker()->spell(QStringLiteral("Fenstr")));
    }

    void unwritableUserDictionary()
    {
        // A folder that is a file cannot hold the word list, not even for root.
        const QString blocker = m_dir.filePath(QStringLiteral("blocker"));
        QVERIFY(writeFile(blocker, "x"));
        const QString path = blocker + QStringLiteral("/kal_userDict_DE.txt");
        KalSpellChecker::setInstance(new KalSpellChecker(germanBase(), path));
        QVERIFY(checker()->isValid());
        QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Dateifehler")});
        QCOMPARE(prompt()->texts().first(), QStringLiteral("Anwender-Wörterbuch in %1 konnte nicht geöffnet werden")
                                                .arg(QDir::toNativeSeparators(path)));
        prompt()->clear();

        QVERIFY(!checker()->addToUserDict(QStringLiteral("Pellwickwort")));
        QVERIFY(checker()->spell(QStringLiteral("Pellwickwort"))); // accepted for this run
        QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Dateifehler")});
        QCOMPARE(prompt()->texts().first(),
                 QStringLiteral("Anwender-Wörterbuch in %1 konnte nicht geöffnet werden.\n(Evtl. fehlende "
                                "Schreibrechte)\nHinzufügen des Wortes nicht möglich!")
                     .arg(QDir::toNativeSeparators(path)));
        QVERIFY(QFileInfo(blocker).isFile());
    }

    void encodings_data()
    {
        QTest::addColumn<QByteArray>("setLine");
        QTest::addColumn<QByteArray>("codecName");
        QTest::addColumn<QString>("encoding");

        QTest::newRow("no SET line") << QByteArray() << QByteArray("ISO-8859-1") << "ISO8859-1";
        QTest::newRow("ISO 8859-1") << QByteArray("SET ISO8859-1\n") << QByteArray("ISO-8859-1") << "ISO8859-1";
        QTest::newRow("UTF-8") << QByteArray("SET UTF-8\n") << QByteArray("UTF-8") << "UTF-8";
        QTest::newRow("lower case, indented") << QByteArray("  set utf-8\n") << QByteArray("UTF-8") << "utf-8";
    }

    void encodings()
    {
        QFETCH(QByteArray, setLine);
        QFETCH(QByteArray, codecName);
        QFETCH(QString, encoding);
        QTextCodec *codec = QTextCodec::codecForName(codecName);
        QVERIFY(codec);
        const QString base = m_dir.filePath(QStringLiteral("small-%1").arg(++m_counter));
        QVERIFY(writeFile(base + QStringLiteral(".aff"), "# small test dictionary\n" + setLine + "TRY esianrt\n"));
        QVERIFY(
            writeFile(base + QStringLiteral(".dic"), codec->fromUnicode(QStringLiteral("3\nMöhre\nGrüße\nÄpfel\n"))));
        const QString userDict = base + QStringLiteral("-user.txt");
        QVERIFY(writeFile(userDict, codec->fromUnicode(QStringLiteral("Übermaß\n"))));

        KalSpellChecker small(base, userDict);
        QVERIFY(small.isValid());
        QCOMPARE(small.encoding(), encoding);
        QVERIFY(small.spell(QStringLiteral("Möhre")));
        QVERIFY(small.spell(QStringLiteral("Grüße")));
        QVERIFY(small.spell(QStringLiteral("Übermaß")));
        QVERIFY(!small.spell(QStringLiteral("Mohre")));
        QVERIFY(small.suggest(QStringLiteral("Möhr")).contains(QStringLiteral("Möhre")));

        QVERIFY(small.addToUserDict(QStringLiteral("Größe")));
        QFile file(userDict);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), codec->fromUnicode(QStringLiteral("Übermaß\nGröße\n")));
    }

    void brokenDictionaries_data()
    {
        QTest::addColumn<QByteArray>("aff");
        QTest::addColumn<QByteArray>("dic");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");

        QTest::newRow("no .dic") << QByteArray("SET UTF-8\n") << QByteArray() << int(KalSpellChecker::MissingFile)
                                 << "Wörterbuch-Datei %1.DIC existiert nicht.";
        QTest::newRow("no .aff") << QByteArray() << QByteArray("1\nHaus\n") << int(KalSpellChecker::MissingFile)
                                 << "Wörterbuch-Datei %1.AFF existiert nicht.";
        QTest::newRow("not a dictionary")
            << QByteArray("SET UTF-8\n") << QByteArray("<html>no words</html>\n") << int(KalSpellChecker::InitFailed)
            << "Fehler beim Initialisieren des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den "
               "Softwarehersteller.";
    }

    void brokenDictionaries()
    {
        QFETCH(QByteArray, aff);
        QFETCH(QByteArray, dic);
        QFETCH(int, status);
        QFETCH(QString, message);
        const QString base = m_dir.filePath(QStringLiteral("broken-%1").arg(++m_counter));
        if (!aff.isEmpty())
            QVERIFY(writeFile(base + QStringLiteral(".AFF"), aff));
        if (!dic.isEmpty())
            QVERIFY(writeFile(base + QStringLiteral(".DIC"), dic));
        KalSpellChecker broken(base, m_userDict);
        QCOMPARE(int(broken.status()), status);
        QVERIFY(!broken.isValid());
        QCOMPARE(broken.errorText(),
                 message.contains(QLatin1String("%1")) ? message.arg(QDir::toNativeSeparators(base)) : message);
        QVERIFY(broken.spell(QStringLiteral("Fenstr"))); // nothing is marked by an unusable checker
        QVERIFY(broken.suggest(QStringLiteral("Fenstr")).isEmpty());
    }

    void startUp()
    {
        // A program folder without dictionaries beside it.
        const QString lonely = m_dir.filePath(QStringLiteral("nowhere/bin"));
        QVERIFY(QDir().mkpath(lonely));
        QVERIFY(!KalSpellChecker::startUp(lonely, QLocale(QLocale::German, QLocale::Germany)));
        QVERIFY(!KalSpellChecker::instance());
        QCOMPARE(KalSpellChecker::pendingStartUpProblems().size(), 2);
        QVERIFY(prompt()->shown().isEmpty()); // reported later
        KalSpellChecker::reportStartUpProblems();
        const QString base = QDir::toNativeSeparators(m_dir.filePath(QStringLiteral("nowhere/Dictionaries/pym_DE")));
        QCOMPARE(prompt()->texts(),
                 (QStringList{QStringLiteral("Wörterbuch-Datei %1.DIC existiert nicht.").arg(base),
                              QStringLiteral("Wörterbuch-Datei %1.AFF existiert nicht.").arg(base)}));
        QCOMPARE(prompt()->titles(), (QStringList{QStringLiteral("Fehler"), QStringLiteral("Fehler")}));

        // The build tree: bin/ beside Dictionaries/.
        prompt()->clear();
        QSettings().setValue(QStringLiteral("SpellCheckerActive"), false);
        const QString bin = QStringLiteral(KAL_TEST_DICTIONARIES_DIR "/../bin");
        KalSpellChecker *started = KalSpellChecker::startUp(bin, QLocale(QLocale::English, QLocale::UnitedStates));
        QVERIFY(started);
        QCOMPARE(KalSpellChecker::instance(), started);
        QVERIFY(!started->isActive());
        QVERIFY(started->spell(QStringLiteral("color")));
        QVERIFY(started->userDictionary().endsWith(QStringLiteral("/Dictionaries/kal_userDict_USA.txt")));
        QVERIFY(QFile::exists(started->userDictionary()));
        QVERIFY(KalSpellChecker::pendingStartUpProblems().isEmpty());
        QVERIFY(prompt()->shown().isEmpty());
    }

    void languageCodes_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("code");
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Austria) << "DE";
        QTest::newRow("Spanish") << QLocale(QLocale::Spanish, QLocale::Spain) << "ES";
        QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom) << "EN";
        QTest::newRow("English USA") << QLocale(QLocale::English, QLocale::UnitedStates) << "USA";
        QTest::newRow("other") << QLocale(QLocale::French, QLocale::France) << "DE";
    }

    void languageCodes()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, code);
        QCOMPARE(KalSpellChecker::dictionaryBase(QStringLiteral("/opt/p/bin"), locale),
                 QStringLiteral("/opt/p/Dictionaries/pym_") + code);
        QVERIFY(KalSpellChecker::userDictionaryPath(locale).endsWith(QStringLiteral("/kal_userDict_%1.txt").arg(code)));
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
        QCOMPARE(actions.first()->text(), QStringLiteral("Fenster"));
        QVERIFY(actions.first()->font().bold());
        QVERIFY(actions.at(actions.size() - 2)->isSeparator());
        QCOMPARE(actions.last()->text(), QStringLiteral("Zum Wörterbuch hinzufügen"));

        actions.first()->trigger();
        QCOMPARE(edit.toPlainText(), QStringLiteral("Das Fenster klemmt"));
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
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Rechtschreibprüfung"));
        QVERIFY(dialog.start());
        dialog.show();
        QCOMPARE(dialog.currentWord(), QStringLiteral("Fenstr"));
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("lblWord"))->text(), QStringLiteral("<b>Fenstr</b>"));
        const QList<QTextEdit::ExtraSelection> marks = edit.extraSelections();
        QCOMPARE(marks.size(), 1);
        QCOMPARE(marks.first().cursor.selectedText(), QStringLiteral("Fenstr"));
        QCOMPARE(marks.first().format.background().color(), QColor(QStringLiteral("#ff6060")));
        QCOMPARE(marks.first().format.foreground().color(), QColor(QStringLiteral("#000000")));

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
        QVERIFY(QSettings().contains(QStringLiteral("SpellCheckerDialogY")));
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

int runSpellCheckerTests(int argc, char **argv)
{
    TestSpellChecker test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_spellchecker.moc"
