#pragma once

#include <QColor>
#include <QGraphicsItem>

// A marker on a plan: the shared marker shapes of one type, moved, scaled
// and turned as one about its transform point (the spot it locates).
class KalMarkerItem : public QGraphicsItem
{
public:
    enum { Type = UserType + 30 };

    explicit KalMarkerItem(int markerType, QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }

    // The point of a type's shape that locates the defect: the lowest point
    // of the body (the tip) for pin, needle and flag, the centre for the target.
    static QPointF anchor(int markerType);

    int markerType() const { return m_markerType; }
    // Changes the shape and keeps the located spot where it is on the plan.
    void exchangeType(int markerType);

    qint64 rowId() const { return m_rowId; }
    void setRowId(qint64 id) { m_rowId = id; }
    QColor fillColor() const { return m_fill; }
    void setFillColor(const QColor &color);
    QColor outlineColor() const { return m_outline; }
    double lineWidth() const { return m_lineWidth; }
    void setOutline(const QColor &color, double width);
    void setStatusColor(const QColor &color);
    // The current defect's markers are drawn with red outlines.
    void setHighlighted(bool on);

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    int m_markerType;
    qint64 m_rowId = -1;
    QColor m_fill = Qt::yellow;
    QColor m_outline = Qt::black;
    double m_lineWidth = 0;
    QColor m_status;
    bool m_highlighted = false;
};
