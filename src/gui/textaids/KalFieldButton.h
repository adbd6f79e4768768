#pragma once

#include <QToolButton>

// The small button inside the right edge of an entry field (auto-texts,
// calendar). It never takes the focus, so the field keeps it.
class KalFieldButton : public QToolButton
{
    Q_OBJECT
public:
    explicit KalFieldButton(QWidget *field, int iconSize = 8);

    // Moves the button to the field's right edge; call from resizeEvent().
    // `rightInset` leaves room for a scroll bar.
    void reposition(int rightInset = 0);
    // Room the field has to keep free on its right for the button.
    int reservedWidth() const;
    // ":focus { padding-right: <n>px; }", the style that keeps typed text
    // clear of the button while the field has the focus.
    QString paddingStyle() const;
};
