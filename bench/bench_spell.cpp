// Spell highlighting of one long description against asking Hunspell once
// per word of the same text, same run. The text is one block of 5,000 or
// 20,000 words drawn from the dictionary's own stems, with 0, 10 or 30 %
// unknown words (typos of those stems). "first": the first highlight by a
// checker just loaded against a Hunspell just loaded; "again": the same text
// once more (as after every keystroke) against the same Hunspell once more.
#include "KalBenchSupport.h"
#include "core/project/KalPrompt.h"
#include "core/textaids/KalSpellChecker.h"
#include "gui/textaids/KalSpellCheckerHighlighter.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cstdio>
#include <hunspell/hunspell.hxx>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace KalBench;

namespace {

struct Sample
{
    QString text;
    int unknown = 0;
};

// Every step-th stem of the dictionary file that the dictionary accepts as
// it stands: a vocabulary as varied as real descriptions.
QStringList knownWords(Hunspell &hunspell, const QString &dicPath, int wanted)
{
    QFile file(dicPath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList stems;
    while (!file.atEnd()) {
        const QString stem = QString::fromUtf8(file.readLine()).trimmed().section(QLatin1Char('/'), 0, 0);
        if (stem.size() >= 3 && std::all_of(stem.cbegin(), stem.cend(), [](QChar c) { return c.isLetter(); }))
            stems << stem;
    }
    QStringList known;
    const int step = qMax(1, int(stems.size()) / (wanted * 2));
    for (int i = 0; i < stems.size() && known.size() < wanted; i += step) {
        if (hunspell.spell(stems.at(i).toUtf8().toStdString()))
            known << stems.at(i);
    }
    return known;
}

// The unknown words: one typo of each known word (two letters swapped or one
// dropped) that the dictionary does not know, as many distinct ones as a
// long description with names and slips holds.
QStringList unknownWords(Hunspell &hunspell, const QStringList &known, int wanted)
{
    QStringList unknown;
    QSet<QString> seen;
    for (int i = 0; i < known.size() && unknown.size() < wanted; ++i) {
        QString typo = known.at(i);
        const int at = 1 + i % (typo.size() - 2);
        if (i % 2) {
            const QChar first = typo.at(at);
            typo[at] = typo.at(at + 1);
            typo[at + 1] = first;
        } else {
            typo.remove(at, 1);
        }
        if (seen.contains(typo) || hunspell.spell(typo.toUtf8().toStdString()))
            continue;
        seen.insert(typo);
        unknown << typo;
    }
    return unknown;
}

Sample makeSample(int words, int unknownPercent, const QStringList &known, const QStringList &typos)
{
    std::mt19937 random(words * 100 + unknownPercent);
    std::uniform_int_distribution<int> percent(0, 99);
    std::uniform_int_distribution<int> knownPick(0, known.size() - 1);
    std::uniform_int_distribution<int> typoPick(0, typos.size() - 1);
    Sample sample;
    QStringList parts;
    for (int i = 0; i < words; ++i) {
        const bool unknown = percent(random) < unknownPercent;
        QString word = unknown ? typos.at(typoPick(random)) : known.at(knownPick(random));
        if (i % 11 == 10)
            word += QLatin1Char(',');
        else if (i % 17 == 16)
            word += QLatin1Char('.');
        parts << word;
        sample.unknown += unknown ? 1 : 0;
    }
    sample.text = parts.join(QLatin1Char(' '));
    return sample;
}

int markedWords(QTextDocument &document)
{
    int marks = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange &range : block.layout()->formats())
            marks += range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline ? 1 : 0;
    }
    return marks;
}

struct Dictionary
{
    QString base;
    QByteArray aff;
    QByteArray dic;
};

// Hunspell once per word of the text, in milliseconds; the number of unknown
// words goes to `unknown`.
double hunspellPerWord(Hunspell &hunspell, const std::vector<std::string> &words, int *unknown)
{
    QElapsedTimer timer;
    timer.start();
    int count = 0;
    for (const std::string &word : words)
        count += hunspell.spell(word) ? 0 : 1;
    const double elapsed = double(timer.nsecsElapsed()) / 1e6;
    *unknown = count;
    return elapsed;
}

void report(const char *name, const char *when, double highlight, double perWord)
{
    std::printf("%s_%s_vs_hunspell_per_word: %.2f (goal: <= 1.5; highlight %.1f ms, Hunspell %.1f ms)\n", name, when,
                highlight / perWord, highlight, perWord);
    std::fflush(stdout);
}

// Both sides cold (a checker and a Hunspell just loaded), then both warm
// (the same text again). False when the marks are not the unknown words.
bool measure(const Dictionary &dictionary, const Sample &sample, const QByteArray &name)
{
    std::vector<std::string> encoded;
    for (const KalSpellChecker::Word &word : KalSpellChecker::words(sample.text))
        encoded.push_back(word.text.toUtf8().toStdString());
    QTextDocument document;
    document.setPlainText(sample.text);
    KalSpellCheckerHighlighter highlighter(&document);

    const double infinity = std::numeric_limits<double>::max();
    double firstHighlight = infinity, firstPerWord = infinity, againHighlight = infinity, againPerWord = infinity;
    int unknown = 0;
    // Best of five: the machine may be busy with other work.
    for (int i = 0; i < 5; ++i) {
        // Both loaded after the last ones were freed, so neither side pays
        // for the other's clean-up.
        KalSpellChecker::setInstance(nullptr);
        Hunspell fresh(dictionary.aff.constData(), dictionary.dic.constData());
        KalSpellChecker::setInstance(new KalSpellChecker(dictionary.base, QString()));
        firstPerWord = qMin(firstPerWord, hunspellPerWord(fresh, encoded, &unknown));
        QElapsedTimer timer;
        timer.start();
        highlighter.rehighlight();
        firstHighlight = qMin(firstHighlight, double(timer.nsecsElapsed()) / 1e6);
        for (int j = 0; j < 3; ++j) {
            againPerWord = qMin(againPerWord, hunspellPerWord(fresh, encoded, &unknown));
            timer.restart();
            highlighter.rehighlight();
            againHighlight = qMin(againHighlight, double(timer.nsecsElapsed()) / 1e6);
        }
    }
    report(name.constData(), "first", firstHighlight, firstPerWord);
    report(name.constData(), "again", againHighlight, againPerWord);
    const int marks = markedWords(document);
    if (marks == sample.unknown && unknown == sample.unknown)
        return true;
    std::fprintf(stderr, "%s: %d unknown words written, %d marked, Hunspell: %d\n", name.constData(), sample.unknown,
                 marks, unknown);
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    KalPrompt::install(new KalBenchPrompt(KalBenchPrompt::SafeAnswer, KalBenchPrompt::Everything));
    Dictionary dictionary;
    dictionary.base = QStringLiteral(KAL_BENCH_DICTIONARIES_DIR "/pym_DE");
    const QString dic = KalSpellChecker::dictionaryFile(dictionary.base, QStringLiteral("dic"));
    dictionary.aff = QFile::encodeName(KalSpellChecker::dictionaryFile(dictionary.base, QStringLiteral("aff")));
    dictionary.dic = QFile::encodeName(dic);
    Hunspell hunspell(dictionary.aff.constData(), dictionary.dic.constData());

    const QStringList known = knownWords(hunspell, dic, 4000);
    const QStringList typos = unknownWords(hunspell, known, 3000);
    if (known.size() < 3000 || typos.size() < 2000) {
        std::fprintf(stderr, "dictionary %s: %d known words, %d typos\n", qPrintable(dictionary.base),
                     int(known.size()), int(typos.size()));
        return 1;
    }
    {
        // Fonts and text formats are set up once per program, not per text.
        KalSpellChecker::setInstance(new KalSpellChecker(dictionary.base, QString()));
        QTextDocument document(QStringLiteral("Das Fenstr klemmt."));
        KalSpellCheckerHighlighter(&document).rehighlight();
    }
    bool ok = true;
    for (int words : {5000, 20000}) {
        for (int unknownPercent : {0, 10, 30}) {
            const QByteArray name =
                QStringLiteral("spell_highlight_%1_words_%2pct_unknown").arg(words).arg(unknownPercent).toLatin1();
            ok = measure(dictionary, makeSample(words, unknownPercent, known, typos), name) && ok;
        }
    }
    KalSpellChecker::setInstance(nullptr);
    return ok ? 0 : 1;
}
