#include "KalPlanGraphicsScene.h"

#include "KalMarkerItem.h"
#include "KalMarkerTextItem.h"

#include <QGraphicsSceneMouseEvent>

KalPlanGraphicsScene::KalPlanGraphicsScene(QObject *parent)
    : QGraphicsScene(parent)
{
}

bool KalPlanGraphicsScene::isEditable(const QGraphicsItem *item)
{
    return item && (item->type() == KalMarkerItem::Type || item->type() == KalMarkerTextItem::Type) &&
           (item->flags() & QGraphicsItem::ItemIsSelectable);
}

void KalPlanGraphicsScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsScene::mousePressEvent(event);
    m_pressed.clear();
    m_before.clear();
    for (QGraphicsItem *item : selectedItems()) {
        if (isEditable(item)) {
            m_pressed.append(item);
            m_before.append(KalItemPlacement::of(item));
        }
    }
}

void KalPlanGraphicsScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsScene::mouseReleaseEvent(event);
    QList<KalItemPlacement> after;
    bool moved = false;
    for (int i = 0; i < m_pressed.size(); ++i) {
        after.append(KalItemPlacement::of(m_pressed[i]));
        moved = moved || !(after[i] == m_before[i]);
    }
    if (moved)
        emit objectsMoved(m_pressed, m_before, after);
    m_pressed.clear();
    m_before.clear();
}

void KalPlanGraphicsScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    for (QGraphicsItem *item : items(event->scenePos())) {
        if (item->type() == KalMarkerTextItem::Type && isEditable(item)) {
            emit textEditRequested(static_cast<KalMarkerTextItem *>(item));
            return;
        }
        if (item->type() == KalMarkerItem::Type)
            return;
    }
    if (sceneRect().contains(event->scenePos()))
        emit markerRequested(event->scenePos());
}
