#include "core/textaids/KalSpellChecker.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QTemporaryDir>
#include <QtTest>

using Range = QPair<int, int>;
Q_DECLARE_METATYPE(QVector<Range>)

namespace {
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

// Which words of a text are marked as unknown, and where.
class TstSpellWords : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    std::unique_ptr<KalSpellChecker> m_checker;
    int m_counter = 0;

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        KalScriptedPrompt::install();
        QVERIFY2(QFile::exists(germanBase() + QStringLiteral(".DIC")), "build the kal_dictionaries target");
    }

    void init()
    {
        const QString userDict = m_dir.filePath(QStringLiteral("user-%1.txt").arg(++m_counter));
        m_checker.reset(new KalSpellChecker(germanBase(), userDict));
        QVERIFY(m_checker->isValid());
        m_checker->setActive(true, false);
    }

    void positions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVector<Range>>("expected");
        QTest::newRow("empty") << "" << QVector<Range>();
        QTest::newRow("correct text") << "Der Riss in der Wand ist 1,5 m lang." << QVector<Range>();
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
        QCOMPARE(ranges(m_checker->misspelledWords(text)), expected);
        // The second pass answers from the words already checked.
        QCOMPARE(ranges(m_checker->misspelledWords(text)), expected);
    }

    void switchedOffMarksNothing()
    {
        m_checker->setActive(false, false);
        QVERIFY(m_checker->misspelledWords(QStringLiteral("Das Fenstr")).isEmpty());
        m_checker->setActive(true, false);
        QCOMPARE(m_checker->misspelledWords(QStringLiteral("Das Fenstr")).size(), 1);
    }

    void checkedWordsFollowTheWordList_data()
    {
        QTest::addColumn<bool>("userDictionary");
        QTest::newRow("ignored for this run") << false;
        QTest::newRow("added to the user dictionary") << true;
    }

    void checkedWordsFollowTheWordList()
    {
        QFETCH(bool, userDictionary);
        const QString text = QStringLiteral("Pellwickwand und Fenstr");
        QCOMPARE(ranges(m_checker->misspelledWords(text)), (QVector<Range>{{0, 12}, {17, 6}}));
        if (userDictionary)
            QVERIFY(m_checker->addToUserDict(QStringLiteral("Pellwickwand")));
        else
            m_checker->ignoreWord(QStringLiteral("Pellwickwand"));
        QCOMPARE(ranges(m_checker->misspelledWords(text)), (QVector<Range>{{17, 6}}));
        QVERIFY(m_checker->spell(QStringLiteral("Pellwickwand")));
    }
};

QTEST_GUILESS_MAIN(TstSpellWords)
#include "tst_spellwords.moc"
