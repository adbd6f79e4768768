#include "KalPhotoEditorGraphicsView.h"

#include "gui/plans/KalGraphicsViewZoom.h"

#include <QKeyEvent>

KalPhotoEditorGraphicsView::KalPhotoEditorGraphicsView(QWidget *parent)
    : QGraphicsView(parent)
    , m_zoom(new KalGraphicsViewZoom(this))
{
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::NoAnchor);
    connect(m_zoom, &KalGraphicsViewZoom::zoomed, this, [this] { m_fitted = false; });
}

void KalPhotoEditorGraphicsView::fitToWindow()
{
    m_zoom->fitToWindow();
    m_fitted = true;
}

void KalPhotoEditorGraphicsView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        emit deleteRequested();
        event->accept();
        return;
    }
    QGraphicsView::keyPressEvent(event);
}

void KalPhotoEditorGraphicsView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    if (m_fitted)
        fitToWindow();
}
