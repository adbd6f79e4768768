// The word logic of the spell checker: real Hunspell dictionaries, the
// user's word list and dictionaries that cannot be used.
#include "core/textaids/KalSpellChecker.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

using Range = QPair<int, int>;
Q_DECLARE_METATYPE(QVector<Range>)

using KalTestFiles::writeFile;

namespace {
KalScriptedPrompt *prompt()
{
    return static_cast<KalScriptedPrompt *>(KalPrompt::instance());
}

QString germanBase()
{
    return QStringLiteral(KAL_TEST_DICTIONARIES_DIR "/pym_DE");
}

QVector<Range> ranges(const QVector<KalSpellChecker::Word> &words)
{
    QVector<Range> list;
    for (const KalSpellChecker::Word &word : words)
        list.append({word.position, word.text.size()});
    return list;
}

} // namespace

class TestSpellChecker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        KalScriptedPrompt::install();
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

    // Which words of a text are marked as unknown, and where.
    void positions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVector<Range>>("expected");
        QTest::newRow("empty") << "" << QVector<Range>();
        QTest::newRow("correct text") << "Der Riss in der Straße ist 1,5 m lang." << QVector<Range>();
        QTest::newRow("repeated, not inside a longer word")
            << "Fenst am Fenster, Fenst und Fenst" << QVector<Range>{{0, 5}, {18, 5}, {28, 5}};
        QTest::newRow("whole text") << "Fenstr" << QVector<Range>{{0, 6}};
        QTest::newRow("block end with stop") << "Das Fenstr." << QVector<Range>{{4, 6}};
        QTest::newRow("umlauts") << "Küche Kühce Mängel Mängle" << QVector<Range>{{6, 5}, {19, 6}};
        QTest::newRow("hyphen splits") << "Hasu-Fenster Fenster-Hasu" << QVector<Range>{{0, 4}, {21, 4}};
        QTest::newRow("apostrophe splits") << "Hasu's Haus" << QVector<Range>{{0, 4}};
        QTest::newRow("comma inside a word") << "Hasu,Haus, Haus" << QVector<Range>{{0, 9}};
        QTest::newRow("escape sequence beside the same word") << "\\Hasu Hasu" << QVector<Range>{{6, 4}};
        QTest::newRow("one-letter words") << "z x q Haus" << QVector<Range>();
        QTest::newRow("second line") << "Haus\nDas Fenstr" << QVector<Range>{{9, 6}};
    }

    void positions()
    {
        QFETCH(QString, text);
        QFETCH(QVector<Range>, expected);
        QCOMPARE(checker()->encoding(), QStringLiteral("UTF-8"));
        QCOMPARE(ranges(checker()->misspelledWords(text)), expected);
        // The second pass answers from the words already checked.
        QCOMPARE(ranges(checker()->misspelledWords(text)), expected);
        checker()->setActive(false, false);
        QVERIFY(checker()->misspelledWords(text).isEmpty());
    }

    void switchingWithoutChecker()
    {
        KalSpellChecker::setInstance(nullptr);
        QVERIFY(!KalSpellChecker::switchSpellChecking(true));
        QCOMPARE(prompt()->titles(), QStringList{QStringLiteral("Fehler")});
        QCOMPARE(prompt()->texts(), QStringList{QStringLiteral("Das Modul Rechtschreibprüfung ist nicht geladen!")});
    }

    void userDictionary()
    {
        // Created empty on first use.
        QVERIFY(QFile::exists(m_userDict));
        QCOMPARE(QFileInfo(m_userDict).size(), 0);

        const QString word = QStringLiteral("Pellwickmängelwort");
        const QString text = word + QStringLiteral(" und Fenstr");
        QCOMPARE(ranges(checker()->misspelledWords(text)), (QVector<Range>{{0, 18}, {23, 6}}));
        QVERIFY(checker()->addToUserDict(word));
        QCOMPARE(ranges(checker()->misspelledWords(text)), (QVector<Range>{{23, 6}}));
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
        const QString text = QStringLiteral("Das Fenstr");
        QCOMPARE(checker()->misspelledWords(text).size(), 1);
        checker()->ignoreWord(QStringLiteral("Fenstr"));
        QVERIFY(checker()->misspelledWords(text).isEmpty());
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

private:
    static KalSpellChecker *checker() { return KalSpellChecker::instance(); }

    QTemporaryDir m_dir;
    QString m_userDict;
    int m_counter = 0;
};

QTEST_GUILESS_MAIN(TestSpellChecker)
#include "tst_spellchecker.moc"
