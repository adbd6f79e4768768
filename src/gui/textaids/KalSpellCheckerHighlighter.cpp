#include "KalSpellCheckerHighlighter.h"

#include "core/textaids/KalSpellChecker.h"

#include <QRegularExpression>
#include <QSet>

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
    if (!checker || !checker->isValid() || !checker->isActive())
        return;
    const QTextCharFormat format = errorFormat();
    QSet<QString> done;
    for (const KalSpellChecker::Word &word : KalSpellChecker::words(text)) {
        if (done.contains(word.text))
            continue;
        done.insert(word.text);
        if (!checker->isMisspelled(word.text))
            continue;
        // Every whole-word occurrence, so "Hasu" is marked twice but not
        // inside "Hasuweg".
        const QRegularExpression whole(QStringLiteral("\\b") + QRegularExpression::escape(word.text) +
                                           QStringLiteral("\\b"),
                                       QRegularExpression::UseUnicodePropertiesOption);
        QRegularExpressionMatchIterator it = whole.globalMatch(text);
        while (it.hasNext()) {
            const QRegularExpressionMatch match = it.next();
            setFormat(match.capturedStart(), word.text.size(), format);
        }
    }
}
