#include "KalPhotoEditorShapeItem.h"

#include "gui/plans/KalGraphicsTextItem.h"

#include <QPainter>
#include <QPainterPathStroker>
#include <QStyleOptionGraphicsItem>

KalPhotoEditorShapeItem::KalPhotoEditorShapeItem(const KalPhotoEditorShapes::Paths &paths, const QColor &color,
                                                 qreal lineWidth)
    : m_paths(paths)
    , m_color(color)
    , m_width(lineWidth)
{
    setFlags(ItemIsSelectable | ItemIsMovable);
}

void KalPhotoEditorShapeItem::setPaths(const KalPhotoEditorShapes::Paths &paths)
{
    prepareGeometryChange();
    m_paths = paths;
}

void KalPhotoEditorShapeItem::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void KalPhotoEditorShapeItem::setLineWidth(qreal width)
{
    prepareGeometryChange();
    m_width = width;
}

void KalPhotoEditorShapeItem::centreOrigin()
{
    const QPointF centre = m_paths.stroked.boundingRect().united(m_paths.filled.boundingRect()).center();
    if (m_paths.stroked.isEmpty())
        setPaths({m_paths.stroked, m_paths.filled.translated(-centre)});
    else if (m_paths.filled.isEmpty())
        setPaths({m_paths.stroked.translated(-centre), m_paths.filled});
    else
        setPaths({m_paths.stroked.translated(-centre), m_paths.filled.translated(-centre)});
    setPos(pos() + centre);
    setTransformOriginPoint(0, 0);
}

QPen KalPhotoEditorShapeItem::pen() const
{
    QPen pen(m_color, m_width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    pen.setCosmetic(false);
    return pen;
}

QRectF KalPhotoEditorShapeItem::boundingRect() const
{
    QRectF rect = m_paths.stroked.controlPointRect().united(m_paths.filled.controlPointRect());
    const qreal margin = m_width / 2 + 1;
    return rect.adjusted(-margin, -margin, margin, margin);
}

QPainterPath KalPhotoEditorShapeItem::shape() const
{
    QPainterPathStroker stroker;
    // Thin lines stay easy to hit.
    stroker.setWidth(qMax<qreal>(m_width, 6));
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    QPainterPath hit = stroker.createStroke(m_paths.stroked);
    hit.addPath(stroker.createStroke(m_paths.filled));
    hit.addPath(m_paths.filled);
    return hit;
}

void KalPhotoEditorShapeItem::paintContent(QPainter *painter) const
{
    painter->setPen(pen());
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(m_paths.stroked);
    painter->setBrush(m_color);
    painter->drawPath(m_paths.filled);
}

void KalPhotoEditorShapeItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintContent(painter);
    painter->restore();
    if (option->state & QStyle::State_Selected)
        KalGraphicsTextItem::paintHandles(painter, boundingRect());
}
