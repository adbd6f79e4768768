#pragma once

#include "gui/photos/KalPhotoEditorCommands.h"

#include <QGraphicsScene>

class KalMarkerTextItem;

// The plan editor's scene: the plan as background, markers and texts on it.
// A double click on free plan asks for a new marker there, one on a text
// asks to edit it; moving objects with the mouse is told as one step.
class KalPlanGraphicsScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit KalPlanGraphicsScene(QObject *parent = nullptr);

    // The objects the user may change: selectable markers and texts.
    static bool isEditable(const QGraphicsItem *item);

signals:
    void markerRequested(const QPointF &scenePos);
    void textEditRequested(KalMarkerTextItem *item);
    void objectsMoved(const QList<QGraphicsItem *> &items, const QList<KalItemPlacement> &before,
                      const QList<KalItemPlacement> &after);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;

private:
    QList<QGraphicsItem *> m_pressed;
    QList<KalItemPlacement> m_before;
};
