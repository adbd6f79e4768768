#pragma once

#include <QSyntaxHighlighter>

// Underlines unknown words of a text field with a red wavy line while the
// program's spell checker exists and is switched on.
class KalSpellCheckerHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT
public:
    explicit KalSpellCheckerHighlighter(QTextDocument *document);

    // The format of a marked word.
    static QTextCharFormat errorFormat();

protected:
    void highlightBlock(const QString &text) override;
};
