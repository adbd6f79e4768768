#pragma once

#include <QObject>
#include <QPoint>
#include <QPointF>

class QGraphicsView;

// Mouse-wheel zoom for a graphics view, installed on its viewport. Only a
// single notch with exactly Ctrl held zooms, so touch pads and Ctrl+Shift do
// not; the scene point under the mouse stays where it is.
class KalGraphicsViewZoom : public QObject
{
    Q_OBJECT

public:
    explicit KalGraphicsViewZoom(QGraphicsView *view);

    // 1.001 to the power of the wheel's angle delta: about 1.1274 per notch.
    static double factorForDelta(int angleDelta);

    // Scales the view and keeps the remembered scene point under the mouse.
    void gentleZoom(double factor);
    // Shows the whole scene, aspect ratio kept.
    void fitToWindow();

signals:
    // After a wheel zoom (not after fitting).
    void zoomed();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void rememberMouse(const QPoint &viewportPos);

    QGraphicsView *m_view;
    QPoint m_targetViewportPos;
    QPointF m_targetScenePos;
};
