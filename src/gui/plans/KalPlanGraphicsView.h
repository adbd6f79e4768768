#pragma once

#include <QGraphicsView>

class KalGraphicsViewZoom;

// Shows the plan editor's scene with Ctrl+wheel zoom; the Delete key asks to
// remove the selection. The plan is drawn from the pixmap's cached scaled
// copies, never decoded again while zooming and panning.
class KalPlanGraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit KalPlanGraphicsView(QWidget *parent = nullptr);

    KalGraphicsViewZoom *zoom() const { return m_zoom; }
    // Shows the whole plan and keeps doing so when the window changes size,
    // until the next zoom.
    void fitToWindow();

signals:
    void deleteRequested();
    void painted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    KalGraphicsViewZoom *m_zoom;
    bool m_fitted = true;
};
