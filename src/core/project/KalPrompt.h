#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// The one way the program shows a message or asks a question. The GUI
// installs a message-box implementation, the command-line tool one that
// prints to stderr, tests a scripted one that records what was shown.
class KalPrompt
{
public:
    enum Icon { Information, Warning, Critical, Question };

    // Standard roles map to the platform's translated buttons; Custom uses
    // the given text.
    enum ButtonRole { Ok, Yes, No, Cancel, Save, Discard, Abort, AcceptCustom, RejectCustom };

    struct Button
    {
        ButtonRole role = Ok;
        QString text; // only for AcceptCustom / RejectCustom
    };

    struct Message
    {
        Icon icon = Information;
        QString title;
        QString text;
        QVector<Button> buttons;   // empty: a single OK button
        int defaultButton = 0;     // index of the recommended choice
        int escapeButton = -1;     // index of the safe answer; -1: the last button
        QString dontShowAgainKey;  // settings key for a "don't show again" box
        QString dontShowAgainText; // its text
        QString iconPath;          // own picture instead of the standard icon
        // A check box whose state the caller reads back (not remembered):
        // shown when the text is set; in: initial state, out: state on close.
        QString checkBoxText;
        bool *checkBoxChecked = nullptr;
        // The technical reason behind the text, shown on request.
        QString detailText;
    };

    virtual ~KalPrompt();

    // Shows the message and returns the index of the chosen button.
    virtual int show(const Message &message) = 0;

    // A notice without usable buttons that stays visible while the user
    // interface keeps running for the given time. Returns when it is gone.
    virtual void notice(const QString &title, const QString &text, int milliseconds) = 0;

    static KalPrompt *instance();
    // Takes ownership; the previous prompt is deleted.
    static void install(KalPrompt *prompt);

    static int ask(const Message &message);
    static void information(const QString &title, const QString &text);
    static void warning(const QString &title, const QString &text);
    static void critical(const QString &title, const QString &text);
    // Yes/No question; true for Yes. The safe answer is No.
    static bool yesNo(const QString &title, const QString &text);

    static QString buttonText(const Button &button);
    static int escapeIndex(const Message &message);
};

// Prints "Title: text" to stderr and answers with the safe choice, or with
// the recommended one when told to assume yes.
class KalStderrPrompt : public KalPrompt
{
public:
    explicit KalStderrPrompt(bool assumeYes = false);
    int show(const Message &message) override;
    void notice(const QString &title, const QString &text, int milliseconds) override;
    bool assumesYes() const { return m_assumeYes; }

private:
    bool m_assumeYes;
};
