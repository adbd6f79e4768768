#pragma once

#include <QPointer>
#include <QTextEdit>

class KalSpellChecker;

class KalCompleter;
class KalFieldButton;
class KalSpellCheckerHighlighter;
class QMenu;

// Multi-line text field with the auto-texts of its field (in-field button,
// Ctrl+E, popup while typing the current paragraph) and spell checking
// (marked words, suggestions in the context menu, the check dialog).
class KalCompleterTextEdit : public QTextEdit
{
    Q_OBJECT
public:
    explicit KalCompleterTextEdit(QWidget *parent = nullptr);
    // With the completer of a known field (e.g. "defect", "description").
    KalCompleterTextEdit(const QString &tableId, const QString &columnId, QWidget *parent = nullptr);

    // Gives the field the completer of a known field (a form creates the
    // widget first).
    void setField(const QString &tableId, const QString &columnId);
    // Takes ownership; null removes the completer.
    void setKalCompleter(KalCompleter *completer);
    KalCompleter *kalCompleter() const { return m_completer; }
    // Adds the field's text to its auto-text list. Called by the owner once
    // the text is final (OK of a dialog, a committed grid cell), so drafts
    // and cancelled texts never reach the list.
    void rememberText();
    KalFieldButton *fieldButton() const { return m_button; }

    // Spell checking is on by default; off removes the marking for good.
    void setSpellChecking(bool on);
    bool hasSpellChecking() const { return m_highlighter != nullptr; }
    KalSpellCheckerHighlighter *highlighter() const { return m_highlighter; }

    // The context menu for a point of the viewport: suggestions for a
    // misspelled word under it, else the standard menu plus
    // "Rechtschreibung prüfen". The caller owns the menu.
    QMenu *createSpellingMenu(const QPoint &viewportPos);

signals:
    // Emitted when the field loses the focus (like QLineEdit's).
    void editingFinished();

public slots:
    void slot_rehighlight();
    void slotShowAllValues();
    void slotStartSpellCheck();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void insertValue(const QString &value);
    QString paragraphPrefix() const;
    void repositionButton();
    void followChecker();

    KalCompleter *m_completer = nullptr;
    KalFieldButton *m_button = nullptr;
    KalSpellCheckerHighlighter *m_highlighter = nullptr;
    QPointer<KalSpellChecker> m_followedChecker;
};
