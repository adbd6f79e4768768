#include "KalPlanGraphicsView.h"

#include "gui/plans/KalGraphicsViewZoom.h"

#include <QKeyEvent>

KalPlanGraphicsView::KalPlanGraphicsView(QWidget *parent)
    : QGraphicsView(parent)
    , m_zoom(new KalGraphicsViewZoom(this))
{
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::NoAnchor);
    setViewportUpdateMode(QGraphicsView::SmartViewportUpdate);
    connect(m_zoom, &KalGraphicsViewZoom::zoomed, this, [this] { m_fitted = false; });
}

void KalPlanGraphicsView::fitToWindow()
{
    m_zoom->fitToWindow();
    m_fitted = true;
}

void KalPlanGraphicsView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    if (m_fitted)
        fitToWindow();
}

void KalPlanGraphicsView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        emit deleteRequested();
        event->accept();
        return;
    }
    QGraphicsView::keyPressEvent(event);
}

void KalPlanGraphicsView::paintEvent(QPaintEvent *event)
{
    QGraphicsView::paintEvent(event);
    emit painted();
}
