#include "KalCompleterKeys.h"

#include "gui/textaids/KalCompleter.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace KalCompleterKeys {

QString endOfWordCharacters()
{
    return QStringLiteral("~!@#$%^&*()_+{}|:\"<>?,./;'[]\\-=");
}

bool popupKeyIgnored(KalCompleter *completer, QKeyEvent *event)
{
    if (!completer || !completer->isEnabled() || !completer->popup()->isVisible())
        return false;
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->ignore();
        return true;
    default:
        return false;
    }
}

bool isShortcut(QKeyEvent *event)
{
    return (event->modifiers() & Qt::ControlModifier) && event->key() == Qt::Key_E;
}

void afterKey(KalCompleter *completer, QKeyEvent *event, const QString &prefix, const QRect &popupRect)
{
    if (!completer || !completer->isEnabled())
        return;
    const bool shortcut = isShortcut(event);
    const Qt::KeyboardModifiers ctrlOrShift = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    if (ctrlOrShift && event->text().isEmpty() && !shortcut)
        return;

    const bool otherModifier = event->modifiers() != Qt::NoModifier && !ctrlOrShift;
    if (!shortcut && (otherModifier || event->text().isEmpty() || prefix.isEmpty() ||
                      endOfWordCharacters().contains(event->text().right(1)))) {
        completer->popup()->hide();
        return;
    }

    if (prefix != completer->completionPrefix()) {
        completer->setCompletionPrefix(prefix);
        completer->popup()->setCurrentIndex(completer->completionModel()->index(0, 0));
    }
    if (completer->completionCount() == 1 && completer->completionModel()->index(0, 0).data().toString() == prefix) {
        completer->popup()->hide();
        return;
    }
    completer->complete(popupRect);
}

} // namespace KalCompleterKeys
