#include "KalDialogKeys.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace KalDialogKeys {

bool handleReturn(QDialog *dialog, QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return false;
    event->accept();
    QWidget *focus = dialog->focusWidget();
    if (!focus)
        return true;
    // A check box moves on like a field; only a push button is pressed.
    if (auto *button = qobject_cast<QPushButton *>(focus)) {
        if (button->isEnabled())
            button->click();
        return true;
    }
    // In a grid the cell editor has committed its text; the grid stays.
    for (QWidget *w = focus; w && w != dialog; w = w->parentWidget()) {
        if (qobject_cast<QAbstractItemView *>(w))
            return true;
    }
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(focus, &tab);
    return true;
}

} // namespace KalDialogKeys
