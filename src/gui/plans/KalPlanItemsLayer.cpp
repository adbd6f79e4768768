#include "KalPlanItemsLayer.h"

#include <QPainter>

KalPlanItemsLayer::KalPlanItemsLayer(const QPicture &picture, const QRectF &bounds, QGraphicsItem *parent)
    : QGraphicsItem(parent)
    , m_picture(picture)
    , m_bounds(bounds)
{
}

void KalPlanItemsLayer::setPicture(const QPicture &picture)
{
    m_picture = picture;
    update();
}

void KalPlanItemsLayer::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->drawPicture(0, 0, m_picture);
}
