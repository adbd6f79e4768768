#pragma once

#include <QDialog>

class QRadioButton;

// Chooses the language of the user interface. The choice is stored at once
// and takes effect at the next start; with restart enabled the dialog offers
// to restart now.
class KalLanguageDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KalLanguageDialog(bool restartEnabled, QWidget *parent = nullptr);

    // Qt language and country of a choice.
    struct Choice
    {
        int language;
        int country;
    };
    enum Button { German, Spanish, English, EnglishUsa };
    static Choice choiceOf(Button button);
    // Which button a stored pair checks; -1 for none.
    static int buttonFor(int language, int country);
    // The stored pair, defaults from the system locale.
    static Choice storedChoice();

    Button checkedButton() const;
    void setCheckedButton(Button button);
    // After exec(): the user changed the language and wants to restart now.
    bool restartRequested() const { return m_restartRequested; }
    bool languageChanged() const { return m_changed; }

public slots:
    void accept() override;

private:
    bool m_restartEnabled;
    bool m_restartRequested = false;
    bool m_changed = false;
    QRadioButton *m_rbGerman;
    QRadioButton *m_rbSpanish;
    QRadioButton *m_rbEnglish;
    QRadioButton *m_rbEnglishUsa;
};
