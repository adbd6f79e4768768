#include "KalGraphicsViewZoom.h"

#include <QGraphicsView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtMath>

namespace {
// Small mouse jitter does not move the zoom's anchor.
const int kMoveThreshold = 5;
const int kNotch = 120;
} // namespace

KalGraphicsViewZoom::KalGraphicsViewZoom(QGraphicsView *view)
    : QObject(view)
    , m_view(view)
{
    m_view->viewport()->installEventFilter(this);
    m_view->setMouseTracking(true);
}

double KalGraphicsViewZoom::factorForDelta(int angleDelta)
{
    return qPow(1.001, angleDelta);
}

void KalGraphicsViewZoom::gentleZoom(double factor)
{
    m_view->scale(factor, factor);
    m_view->centerOn(m_targetScenePos);
    const QPointF deltaViewportPos =
        m_targetViewportPos - QPointF(m_view->viewport()->width() / 2.0, m_view->viewport()->height() / 2.0);
    const QPointF viewportCenter = m_view->mapFromScene(m_targetScenePos) - deltaViewportPos;
    m_view->centerOn(m_view->mapToScene(viewportCenter.toPoint()));
    emit zoomed();
}

void KalGraphicsViewZoom::fitToWindow()
{
    if (!m_view->scene())
        return;
    m_view->fitInView(m_view->sceneRect(), Qt::KeepAspectRatio);
}

void KalGraphicsViewZoom::rememberMouse(const QPoint &viewportPos)
{
    const QPoint delta = m_targetViewportPos - viewportPos;
    if (qAbs(delta.x()) <= kMoveThreshold && qAbs(delta.y()) <= kMoveThreshold)
        return;
    m_targetViewportPos = viewportPos;
    m_targetScenePos = m_view->mapToScene(viewportPos);
}

bool KalGraphicsViewZoom::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        rememberMouse(static_cast<QMouseEvent *>(event)->pos());
        break;
    case QEvent::Wheel: {
        auto *wheel = static_cast<QWheelEvent *>(event);
        const QPoint angle = wheel->angleDelta();
        if (wheel->modifiers() == Qt::ControlModifier && angle.x() == 0 && qAbs(angle.y()) == kNotch) {
            // The wheel may arrive without a move first; jitter below the
            // threshold keeps the anchor as it is.
            rememberMouse(wheel->position().toPoint());
            gentleZoom(factorForDelta(angle.y()));
            return true;
        }
        break;
    }
    case QEvent::Paint: {
        // Hand dragging only makes sense when there is something to scroll.
        const bool scrollable = m_view->horizontalScrollBar()->isVisible() || m_view->verticalScrollBar()->isVisible();
        const auto mode = scrollable ? QGraphicsView::ScrollHandDrag : QGraphicsView::NoDrag;
        if (m_view->dragMode() != mode)
            m_view->setDragMode(mode);
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}
