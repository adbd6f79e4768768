#pragma once

#include <QLineEdit>

class KalCompleter;
class KalFieldButton;

// A line edit that offers the auto-texts of its field while the user types.
// Without an (enabled) completer it behaves like a plain line edit.
class KalCompleterLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit KalCompleterLineEdit(QWidget *parent = nullptr);
    // With the completer of a known field (e.g. "defect", "roomname").
    KalCompleterLineEdit(const QString &tableId, const QString &columnId, QWidget *parent = nullptr);

    // Gives the field the completer of a known field (a form creates the
    // widget first).
    void setField(const QString &tableId, const QString &columnId);
    // Takes ownership; null removes the completer.
    void setKalCompleter(KalCompleter *completer);
    KalCompleter *kalCompleter() const { return m_completer; }
    KalFieldButton *fieldButton() const { return m_button; }

public slots:
    // The in-field button: every value in the popup.
    void slotShowAllValues();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    KalCompleter *m_completer = nullptr;
    KalFieldButton *m_button = nullptr;
};
