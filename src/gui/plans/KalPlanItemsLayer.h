#pragma once

#include <QGraphicsItem>
#include <QPicture>

// Markers and texts of a plan recorded once by the core plan painter (the
// one printing and export use) and replayed over the plan in plan pixels:
// views that only show them need no item per marker.
class KalPlanItemsLayer : public QGraphicsItem
{
public:
    KalPlanItemsLayer(const QPicture &picture, const QRectF &bounds, QGraphicsItem *parent = nullptr);

    void setPicture(const QPicture &picture);

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QPicture m_picture;
    QRectF m_bounds;
};
