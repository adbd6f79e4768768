#include "KalFieldButton.h"

#include "gui/textaids/KalTextAidsResources.h"

#include <QStyle>

KalFieldButton::KalFieldButton(QWidget *field, int iconSize)
    : QToolButton(field)
{
    setIcon(kalCompleterButtonIcon());
    setIconSize(QSize(iconSize, iconSize));
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus);
    setAutoRaise(true);
    setStyleSheet(QStringLiteral("QToolButton { border: none; padding: 0px; }"));
    setFixedSize(iconSize + 6, iconSize + 6);
}

int KalFieldButton::reservedWidth() const
{
    return width() + 2;
}

QString KalFieldButton::paddingStyle() const
{
    return QStringLiteral(":focus { padding-right: %1; }").arg(QStringLiteral("%1px").arg(reservedWidth()));
}

void KalFieldButton::reposition(int rightInset)
{
    QWidget *field = parentWidget();
    if (!field)
        return;
    const int frame = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const int x = field->width() - frame - rightInset - width() - 1;
    const int y = qMin((field->height() - height()) / 2, frame + 2);
    move(x, qMax(0, y));
}
