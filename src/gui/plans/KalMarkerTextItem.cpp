#include "KalMarkerTextItem.h"

KalMarkerTextItem::KalMarkerTextItem(QGraphicsItem *parent)
    : KalGraphicsTextItem(parent)
{
    setTextInteractionFlags(Qt::NoTextInteraction);
}
