#pragma once

#include <QDialog>
#include <QPointer>
#include <QTextEdit>

#include "core/textaids/KalSpellChecker.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

// Walks through a text field word by word and stops at every unknown word.
class KalSpellCheckerDialog : public QDialog
{
    Q_OBJECT
public:
    KalSpellCheckerDialog(KalSpellChecker *checker, QTextEdit *edit, QWidget *parent = nullptr);

    // Checks the whole field with the program's checker: the dialog while
    // there are unknown words, then the closing message.
    static void checkTextEdit(QTextEdit *edit);

    // Looks for the first unknown word; false when the text has none (then
    // the dialog need not be shown).
    bool start();
    QString currentWord() const { return m_word; }
    int foundCount() const { return m_found; }

public slots:
    void slotIgnoreClicked();
    void slotIgnoreAllClicked();
    void slotChangeClicked();
    void slotChangeAllClicked();
    void slotAddToDictClicked();
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;
    void done(int result) override;

private:
    bool findNext();
    bool fieldGone();
    void goOn(int fromPosition);
    void markWord();
    void clearMarking();

    // Either may go away while the dialog is open (a grid editor closes when
    // the focus leaves it); the check then simply ends.
    QPointer<KalSpellChecker> m_checker;
    QPointer<QTextEdit> m_edit;
    QLabel *m_lblWord;
    QListWidget *m_lwSuggestions;
    QLineEdit *m_leReplace;
    int m_position = 0;
    int m_wordStart = -1;
    QString m_word;
    int m_found = 0;
};
