#include "KalScriptedPrompt.h"

KalScriptedPrompt *KalScriptedPrompt::install()
{
    auto *prompt = new KalScriptedPrompt;
    KalPrompt::install(prompt);
    return prompt;
}

void KalScriptedPrompt::queueAnswer(const QString &buttonText)
{
    m_answers.enqueue(buttonText);
}

void KalScriptedPrompt::queueAnswerIndex(int index)
{
    m_answers.enqueue(QStringLiteral("#%1").arg(index));
}

void KalScriptedPrompt::queueCheckBox(bool checked)
{
    m_checkBoxes.enqueue(checked);
}

int KalScriptedPrompt::show(const Message &message)
{
    Shown s{message.icon,     message.title,        message.text,      {}, 0,
            message.iconPath, message.checkBoxText, message.detailText};
    if (!message.checkBoxText.isEmpty() && message.checkBoxChecked && !m_checkBoxes.isEmpty())
        *message.checkBoxChecked = m_checkBoxes.dequeue();
    for (const Button &b : message.buttons)
        s.buttons << buttonText(b);
    int answer = 0;
    if (message.buttons.size() > 1) {
        answer = escapeIndex(message);
        if (!m_answers.isEmpty()) {
            const QString wanted = m_answers.dequeue();
            if (wanted.startsWith(QLatin1Char('#')))
                answer = wanted.mid(1).toInt();
            else if (s.buttons.contains(wanted))
                answer = s.buttons.indexOf(wanted);
            else
                qWarning("KalScriptedPrompt: no button '%s' in '%s'", qPrintable(wanted), qPrintable(message.text));
        }
    }
    s.answer = answer;
    m_shown.append(s);
    return answer;
}

void KalScriptedPrompt::notice(const QString &title, const QString &text, int)
{
    m_shown.append(Shown{Information, title, text, {}, 0, {}, {}, {}});
}

QStringList KalScriptedPrompt::titles() const
{
    QStringList list;
    for (const Shown &s : m_shown)
        list << s.title;
    return list;
}

QStringList KalScriptedPrompt::texts() const
{
    QStringList list;
    for (const Shown &s : m_shown)
        list << s.text;
    return list;
}

bool KalScriptedPrompt::hasTitle(const QString &title) const
{
    return titles().contains(title);
}
