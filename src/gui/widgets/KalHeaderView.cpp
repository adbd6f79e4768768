#include "KalHeaderView.h"

KalHeaderView::KalHeaderView(Qt::Orientation orientation, QWidget *parent)
    : QHeaderView(orientation, parent)
{
    setStyleSheet(styleSheetText());
}

QString KalHeaderView::styleSheetText()
{
    return QStringLiteral("border: 1px solid lightgrey;border-left: 0px;border-right: 0px;border-top: 0px;");
}
