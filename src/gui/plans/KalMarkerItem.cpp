#include "KalMarkerItem.h"

#include "core/plans/KalMarkerShapes.h"
#include "gui/plans/KalGraphicsTextItem.h"

#include <QPainter>

namespace {

// The shapes of each type, built once: scenes ask for bounds and shapes of
// thousands of markers on every paint.
struct TypeShapes
{
    KalMarkerPaths paths;
    QRectF bounds;
    QPainterPath outline;
};

const TypeShapes &shapesOf(int markerType)
{
    static TypeShapes shapes[5];
    static bool built[5] = {};
    const int index = KalMarkerShapes::isKnownType(markerType) ? markerType : 0;
    if (!built[index]) {
        TypeShapes &s = shapes[index];
        s.paths = KalMarkerShapes::paths(markerType);
        s.bounds =
            s.paths.body.boundingRect().united(s.paths.status.boundingRect()).united(s.paths.cross.boundingRect());
        s.outline = s.paths.body;
        s.outline.addPath(s.paths.status);
        s.outline.setFillRule(Qt::WindingFill);
        built[index] = true;
    }
    return shapes[index];
}

} // namespace

KalMarkerItem::KalMarkerItem(int markerType, QGraphicsItem *parent)
    : QGraphicsItem(parent)
    , m_markerType(KalMarkerShapes::isKnownType(markerType) ? markerType : 1)
{
    setTransformOriginPoint(anchor(m_markerType));
}

QPointF KalMarkerItem::anchor(int markerType)
{
    const KalMarkerPaths &paths = shapesOf(markerType).paths;
    if (markerType == 4)
        return paths.body.boundingRect().center();
    // Only end points lie on the outline; the control points of a curve may not.
    QPointF lowest(0, -1e300);
    const QPainterPath &body = paths.body;
    for (int i = 0; i < body.elementCount(); ++i) {
        const QPainterPath::Element e = body.elementAt(i);
        const bool endPoint = e.isMoveTo() || e.isLineTo() ||
                              (e.type == QPainterPath::CurveToDataElement &&
                               body.elementAt(i - 1).type == QPainterPath::CurveToDataElement);
        if (endPoint && e.y > lowest.y())
            lowest = QPointF(e.x, e.y);
    }
    return lowest;
}

void KalMarkerItem::exchangeType(int markerType)
{
    if (!KalMarkerShapes::isKnownType(markerType) || markerType == m_markerType)
        return;
    const QPointF located = mapToParent(transformOriginPoint());
    prepareGeometryChange();
    m_markerType = markerType;
    const QPointF origin = anchor(markerType);
    setTransformOriginPoint(origin);
    // The item maps its transform point to pos + origin whatever its scale
    // and rotation, so this puts the new spot on the old one.
    setPos(located - origin);
}

void KalMarkerItem::setFillColor(const QColor &color)
{
    m_fill = color;
    update();
}

void KalMarkerItem::setOutline(const QColor &color, double width)
{
    prepareGeometryChange();
    m_outline = color;
    m_lineWidth = width;
}

void KalMarkerItem::setStatusColor(const QColor &color)
{
    m_status = color;
    update();
}

void KalMarkerItem::setHighlighted(bool on)
{
    m_highlighted = on;
    update();
}

QRectF KalMarkerItem::boundingRect() const
{
    const double margin = m_lineWidth / 2 + 20;
    return shapesOf(m_markerType).bounds.adjusted(-margin, -margin, margin, margin);
}

QPainterPath KalMarkerItem::shape() const
{
    return shapesOf(m_markerType).outline;
}

void KalMarkerItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    KalMarkerRow row;
    row.type = m_markerType;
    row.color1 = m_fill.name();
    row.color2 = m_outline.name();
    row.lineWidth = m_lineWidth;
    KalMarkerShapes::PaintOptions options;
    options.statusColor = m_status;
    options.highlighted = m_highlighted;
    painter->save();
    KalMarkerShapes::paintMarker(*painter, row, options);
    painter->restore();
    if (isSelected()) {
        const KalMarkerPaths &paths = shapesOf(m_markerType).paths;
        KalGraphicsTextItem::paintHandles(painter, paths.body.boundingRect().united(paths.status.boundingRect()));
    }
}
