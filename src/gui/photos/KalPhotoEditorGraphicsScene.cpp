#include "KalPhotoEditorGraphicsScene.h"

#include "KalPhotoEditorShapeItem.h"
#include "core/plans/KalFontCheck.h"
#include "gui/plans/KalGraphicsTextItem.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QHash>
#include <QPainter>
#include <QtMath>

namespace {

// Objects smaller than this (in picture pixels) were a slip of the mouse.
const qreal kMinimumSize = 2;
// How near (in screen pixels) a press must be to a corner handle.
const qreal kHandleReach = 6;

QString symbolFamily(const QString &symbol)
{
    static QHash<QString, QString> cache;
    auto found = cache.find(symbol);
    if (found == cache.end())
        found = cache.insert(symbol, KalFontCheck::familyFor(symbol, KalPhotoEditorShapes::symbolFonts()));
    return found.value();
}

QPointF squared(const QPointF &start, const QPointF &end)
{
    const QPointF d = end - start;
    const qreal side = qMax(qAbs(d.x()), qAbs(d.y()));
    return start + QPointF(d.x() < 0 ? -side : side, d.y() < 0 ? -side : side);
}

} // namespace

KalPhotoEditorGraphicsScene::KalPhotoEditorGraphicsScene(QObject *parent)
    : QGraphicsScene(parent)
{
}

void KalPhotoEditorGraphicsScene::setPicture(const QImage &picture)
{
    m_picture = picture;
    if (!m_pixmapItem) {
        m_pixmapItem = addPixmap(QPixmap());
        m_pixmapItem->setZValue(-1);
        m_pixmapItem->setTransformationMode(Qt::SmoothTransformation);
    }
    m_pixmapItem->setPixmap(QPixmap::fromImage(picture));
    setSceneRect(QRectF(QPointF(0, 0), QSizeF(picture.size())));
}

void KalPhotoEditorGraphicsScene::turnBackground(int degrees)
{
    const qreal w = m_picture.width();
    const qreal h = m_picture.height();
    // Right: (x, y) -> (h - y, x); left: (x, y) -> (y, w - x).
    const QTransform map =
        QTransform().rotate(degrees) * QTransform::fromTranslate(degrees > 0 ? h : 0, degrees > 0 ? 0 : w);
    for (QGraphicsItem *item : objects()) {
        const QPointF origin = item->transformOriginPoint();
        item->setPos(map.map(item->pos() + origin) - origin);
        item->setRotation(std::fmod(item->rotation() + degrees + 360.0, 360.0));
    }
    setPicture(m_picture.transformed(QTransform().rotate(degrees)));
}

void KalPhotoEditorGraphicsScene::setMode(int mode)
{
    if (m_drawing)
        finishDrawing();
    m_mode = mode;
    emit modeChanged(mode);
}

void KalPhotoEditorGraphicsScene::setArrow(int number, KalPhotoEditorShapes::Direction direction)
{
    m_arrow = number;
    m_arrowDirection = direction;
}

void KalPhotoEditorGraphicsScene::setTriangle(KalPhotoEditorShapes::Direction direction)
{
    m_triangleDirection = direction;
}

void KalPhotoEditorGraphicsScene::setChosenSymbol(const QString &text, const QString &family, int pointSize,
                                                  const QColor &color, int properties)
{
    m_chosenSymbol = text;
    m_chosenFamily = family;
    m_chosenPointSize = pointSize;
    m_chosenColor = color;
    m_chosenProperties = properties;
}

void KalPhotoEditorGraphicsScene::setDefaultSizes(qreal arrowLength, int symbolPointSize)
{
    m_arrowLength = arrowLength;
    m_symbolPointSize = symbolPointSize;
}

QList<QGraphicsItem *> KalPhotoEditorGraphicsScene::objects() const
{
    QList<QGraphicsItem *> found;
    const QList<QGraphicsItem *> all = items(Qt::AscendingOrder);
    for (QGraphicsItem *item : all) {
        if (item != m_pixmapItem && !item->parentItem())
            found.append(item);
    }
    return found;
}

void KalPhotoEditorGraphicsScene::addObject(QGraphicsItem *item)
{
    item->setZValue(m_nextZ++);
    addItem(item);
}

QImage KalPhotoEditorGraphicsScene::render() const
{
    QImage image = m_picture.convertToFormat(QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    for (QGraphicsItem *item : objects()) {
        if (!item->isVisible())
            continue;
        painter.save();
        painter.setTransform(item->sceneTransform());
        if (auto *shape = qgraphicsitem_cast<KalPhotoEditorShapeItem *>(item))
            shape->paintContent(&painter);
        else if (auto *text = qgraphicsitem_cast<KalGraphicsTextItem *>(item))
            text->paintContent(&painter);
        painter.restore();
    }
    painter.end();
    return image;
}

KalPhotoEditorShapes::Paths KalPhotoEditorGraphicsScene::dragPaths(const QPointF &end) const
{
    QPainterPath path;
    switch (m_mode) {
    case Line:
        path.moveTo(m_start);
        path.lineTo(end);
        break;
    case Square:
        path.addRect(QRectF(m_start, squared(m_start, end)).normalized());
        break;
    case Rect:
        path.addRect(QRectF(m_start, end).normalized());
        break;
    case Circle:
        path.addEllipse(QRectF(m_start, squared(m_start, end)).normalized());
        break;
    case Ellipse:
        path.addEllipse(QRectF(m_start, end).normalized());
        break;
    default: // polyline and freehand follow their points
        path.addPolygon(QPolygonF(m_points));
        break;
    }
    return {path, QPainterPath()};
}

QString KalPhotoEditorGraphicsScene::symbolForMode() const
{
    if (m_mode >= SymbolX && m_mode <= SymbolDiamond)
        return KalPhotoEditorShapes::symbol(m_mode - SymbolX);
    if (m_mode >= TextSymbol1 && m_mode <= TextSymbol4)
        return KalPhotoEditorShapes::textSymbol(m_mode - TextSymbol1);
    return m_chosenSymbol;
}

void KalPhotoEditorGraphicsScene::place(const QPointF &scenePos)
{
    if (m_mode == Arrow || m_mode == Triangle) {
        const auto paths = m_mode == Arrow ? KalPhotoEditorShapes::arrow(m_arrow, m_arrowDirection, m_arrowLength)
                                           : KalPhotoEditorShapes::triangle(m_triangleDirection, m_arrowLength / 3);
        auto *item = new KalPhotoEditorShapeItem(paths, m_color, m_lineWidth);
        item->setPos(scenePos);
        created(item);
        return;
    }
    const QString symbol = symbolForMode();
    if (symbol.isEmpty())
        return;
    auto *item = new KalGraphicsTextItem;
    item->setPlainText(symbol);
    const bool chosen = m_mode == ChosenSymbol;
    item->setFontFamily(chosen && !m_chosenFamily.isEmpty() ? m_chosenFamily : symbolFamily(symbol));
    item->setFontSize(chosen && m_chosenPointSize > 0 ? m_chosenPointSize : m_symbolPointSize);
    item->setTextColor(chosen && m_chosenColor.isValid() ? m_chosenColor : m_color);
    if (chosen)
        item->setTextProperties(m_chosenProperties);
    const QPointF centre = item->boundingRect().center();
    item->setTransformOriginPoint(centre);
    item->setPos(scenePos - centre);
    created(item);
}

void KalPhotoEditorGraphicsScene::created(QGraphicsItem *item)
{
    clearSelection();
    addObject(item);
    item->setSelected(true);
    m_mode = Select;
    emit modeChanged(m_mode);
    emit objectCreated(item);
}

void KalPhotoEditorGraphicsScene::finishDrawing()
{
    KalPhotoEditorShapeItem *item = m_drawing;
    m_drawing = nullptr;
    if (m_mode == Polyline && m_points.size() > 2) {
        m_points.removeLast(); // the point that followed the mouse
        item->setPaths(dragPaths(m_points.last()));
    }
    const QRectF extent = item->paths().stroked.boundingRect();
    removeItem(item);
    if (qMax(extent.width(), extent.height()) < kMinimumSize) {
        delete item;
        return;
    }
    item->centreOrigin();
    created(item);
}

bool KalPhotoEditorGraphicsScene::startResize(QGraphicsSceneMouseEvent *event)
{
    const auto *view = event->widget() ? qobject_cast<QGraphicsView *>(event->widget()->parentWidget()) : nullptr;
    const qreal zoom = view ? qSqrt(qAbs(view->transform().determinant())) : 1.0;
    const QList<QGraphicsItem *> selected = selectedItems();
    for (QGraphicsItem *item : selected) {
        const QRectF frame = item->boundingRect();
        for (const QPointF &corner : {frame.topLeft(), frame.topRight(), frame.bottomLeft(), frame.bottomRight()}) {
            const QPointF handle = item->mapToScene(corner);
            if (QLineF(handle, event->scenePos()).length() * zoom > kHandleReach)
                continue;
            const QPointF origin = item->mapToScene(item->transformOriginPoint());
            m_resizeStartDistance = QLineF(origin, event->scenePos()).length();
            if (m_resizeStartDistance < 1)
                return false;
            m_resizing = item;
            m_resizeBefore = KalItemPlacement::of(item);
            return true;
        }
    }
    return false;
}

void KalPhotoEditorGraphicsScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const QPointF point = event->scenePos();
    if (m_mode == Select && event->button() == Qt::LeftButton && startResize(event)) {
        event->accept();
        return;
    }
    if (m_mode == Select || event->button() != Qt::LeftButton) {
        if (m_drawing && event->button() == Qt::RightButton) {
            finishDrawing();
            event->accept();
            return;
        }
        QGraphicsScene::mousePressEvent(event);
        m_pressed = selectedItems();
        m_pressedPlacements.clear();
        for (QGraphicsItem *item : qAsConst(m_pressed))
            m_pressedPlacements.append(KalItemPlacement::of(item));
        return;
    }
    event->accept();
    if (m_mode == Text) {
        setMode(Select);
        emit textRequested(point);
        return;
    }
    if (m_mode >= Line) {
        if (m_drawing) { // the next corner of a polyline
            m_points.last() = point;
            m_points.append(point);
            m_drawing->setPaths(dragPaths(point));
            return;
        }
        m_start = point;
        m_points = {point, point};
        m_drawing = new KalPhotoEditorShapeItem(dragPaths(point), m_color, m_lineWidth);
        m_drawing->setZValue(m_nextZ);
        addItem(m_drawing);
        return;
    }
    place(point);
}

void KalPhotoEditorGraphicsScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_resizing) {
        // Scaled about its origin, which stays where it is.
        const QPointF origin = m_resizing->mapToScene(m_resizing->transformOriginPoint());
        const qreal factor = QLineF(origin, event->scenePos()).length() / m_resizeStartDistance;
        m_resizing->setScale(qMax(0.05, m_resizeBefore.scale * factor));
        return;
    }
    if (!m_drawing) {
        QGraphicsScene::mouseMoveEvent(event);
        return;
    }
    if (m_mode == Freehand)
        m_points.append(event->scenePos());
    else
        m_points.last() = event->scenePos();
    m_drawing->setPaths(dragPaths(event->scenePos()));
}

void KalPhotoEditorGraphicsScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_resizing) {
        QGraphicsItem *item = m_resizing;
        m_resizing = nullptr;
        const KalItemPlacement after = KalItemPlacement::of(item);
        if (!(after == m_resizeBefore))
            emit objectsMoved({item}, {m_resizeBefore}, {after});
        return;
    }
    if (m_drawing) {
        if (m_mode != Polyline) {
            m_points.last() = event->scenePos();
            m_drawing->setPaths(dragPaths(event->scenePos()));
            finishDrawing();
        }
        return;
    }
    QGraphicsScene::mouseReleaseEvent(event);
    QList<KalItemPlacement> after;
    bool moved = false;
    for (int i = 0; i < m_pressed.size(); ++i) {
        after.append(KalItemPlacement::of(m_pressed.at(i)));
        moved = moved || !(after.last() == m_pressedPlacements.at(i));
    }
    if (moved)
        emit objectsMoved(m_pressed, m_pressedPlacements, after);
    m_pressed.clear();
}

void KalPhotoEditorGraphicsScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_drawing && m_mode == Polyline) {
        // The double-clicked point ends the line, however many presses came
        // before the double click.
        m_points.last() = event->scenePos();
        m_points.append(event->scenePos());
        finishDrawing();
        event->accept();
        return;
    }
    if (m_mode == Select) {
        if (auto *text = qgraphicsitem_cast<KalGraphicsTextItem *>(itemAt(event->scenePos(), QTransform()))) {
            emit textEditRequested(text);
            event->accept();
            return;
        }
    }
    QGraphicsScene::mouseDoubleClickEvent(event);
}
