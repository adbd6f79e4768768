#include "KalPrompt.h"

#include "core/project/KalProgress.h"

#include <QCoreApplication>
#include <QSettings>
#include <cstdio>
#include <memory>

namespace {
std::unique_ptr<KalPrompt> &current()
{
    static std::unique_ptr<KalPrompt> prompt;
    return prompt;
}
} // namespace

KalPrompt::~KalPrompt() = default;

KalPrompt *KalPrompt::instance()
{
    if (!current())
        current().reset(new KalStderrPrompt(false));
    return current().get();
}

void KalPrompt::install(KalPrompt *prompt)
{
    current().reset(prompt);
}

int KalPrompt::ask(const Message &message)
{
    if (!message.dontShowAgainKey.isEmpty()) {
        QSettings settings;
        if (settings.value(message.dontShowAgainKey, false).toBool())
            return message.defaultButton;
    }
    // A busy window left open would cover the box and its buttons.
    KalProgress::instance()->yieldToMessage();
    return instance()->show(message);
}

namespace {
// A message with only an OK button.
void notify(KalPrompt::Icon icon, const QString &title, const QString &text)
{
    KalPrompt::Message m;
    m.icon = icon;
    m.title = title;
    m.text = text;
    KalPrompt::ask(m);
}
} // namespace

void KalPrompt::information(const QString &title, const QString &text)
{
    notify(Information, title, text);
}

void KalPrompt::warning(const QString &title, const QString &text)
{
    notify(Warning, title, text);
}

void KalPrompt::critical(const QString &title, const QString &text)
{
    notify(Critical, title, text);
}

bool KalPrompt::yesNo(const QString &title, const QString &text)
{
    Message m;
    m.icon = Question;
    m.title = title;
    m.text = text;
    m.buttons = {{Yes, {}}, {No, {}}};
    m.defaultButton = 0;
    m.escapeButton = 1;
    return ask(m) == 0;
}

QString KalPrompt::buttonText(const Button &button)
{
    switch (button.role) {
    case Ok:
        return QStringLiteral("OK");
    case Yes:
        return QCoreApplication::translate("KalPrompt", "Ja");
    case No:
        return QCoreApplication::translate("KalPrompt", "Nein");
    case Cancel:
        return QCoreApplication::translate("KalPrompt", "Abbrechen");
    case Save:
        return QCoreApplication::translate("KalPrompt", "Speichern");
    case Discard:
        return QCoreApplication::translate("KalPrompt", "Verwerfen");
    case Abort:
        return QCoreApplication::translate("KalPrompt", "Abbrechen");
    case AcceptCustom:
    case RejectCustom:
        return button.text;
    }
    return button.text;
}

int KalPrompt::escapeIndex(const Message &message)
{
    if (message.buttons.isEmpty())
        return 0;
    if (message.escapeButton >= 0 && message.escapeButton < message.buttons.size())
        return message.escapeButton;
    return message.buttons.size() - 1;
}

KalStderrPrompt::KalStderrPrompt(bool assumeYes)
    : m_assumeYes(assumeYes)
{
}

int KalStderrPrompt::show(const Message &message)
{
    QString line = message.title + QStringLiteral(": ") + message.text;
    while (line.endsWith(QLatin1Char('\n')))
        line.chop(1);
    if (!message.detailText.isEmpty())
        line += QStringLiteral("\n  ") + message.detailText;
    int answer = 0;
    if (message.buttons.size() > 1) {
        answer = m_assumeYes ? message.defaultButton : escapeIndex(message);
        QStringList names;
        for (const Button &b : message.buttons)
            names << buttonText(b);
        line += QStringLiteral("\n  [") + names.join(QStringLiteral(" | ")) + QStringLiteral("] -> ") +
                buttonText(message.buttons.value(answer));
    }
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stderr);
    return answer;
}

void KalStderrPrompt::notice(const QString &title, const QString &text, int)
{
    QString line = title + QStringLiteral(": ") + text.trimmed();
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stderr);
}
