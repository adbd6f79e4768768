#pragma once

#include "core/project/KalPrompt.h"

#include <QQueue>
#include <QStringList>
#include <QVector>

// Records every message and answers questions from a queue. Install it with
// KalScriptedPrompt::install(); it stays until another prompt is installed.
class KalScriptedPrompt : public KalPrompt
{
public:
    struct Shown
    {
        Icon icon;
        QString title;
        QString text;
        QStringList buttons;
        int answer;
        QString iconPath;
        QString checkBoxText;
        QString detailText;
    };

    static KalScriptedPrompt *install();

    // Next question is answered with the button whose text is `buttonText`
    // (or whose role text matches). Unqueued questions get the safe answer.
    void queueAnswer(const QString &buttonText);
    void queueAnswerIndex(int index);
    // State the next message with a returned check box closes with;
    // unqueued, the box keeps its initial state.
    void queueCheckBox(bool checked);

    int show(const Message &message) override;
    void notice(const QString &title, const QString &text, int milliseconds) override;

    const QVector<Shown> &shown() const { return m_shown; }
    QStringList titles() const;
    QStringList texts() const;
    bool hasTitle(const QString &title) const;
    void clear() { m_shown.clear(); }

private:
    QQueue<QString> m_answers;
    QQueue<bool> m_checkBoxes;
    QVector<Shown> m_shown;
};
