#include "KalSpellCheckerHighlighter.h"

#include "core/textaids/KalSpellChecker.h"

KalSpellCheckerHighlighter::KalSpellCheckerHighlighter(QTextDocument *document)
    : QSyntaxHighlighter(document)
{
}

QTextCharFormat KalSpellCheckerHighlighter::errorFormat()
{
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    format.setUnderlineColor(Qt::red);
    return format;
}

void KalSpellCheckerHighlighter::highlightBlock(const QString &text)
{
    const KalSpellChecker *checker = KalSpellChecker::instance();
    if (!checker)
        return;
    // A description is one block, highlighted again on every keystroke: the
    // words are marked where the split found them, never searched again.
    const QTextCharFormat format = errorFormat();
    for (const KalSpellChecker::Word &word : checker->misspelledWords(text))
        setFormat(word.position, word.text.size(), format);
}
