#pragma once

#include <QGraphicsView>

class KalGraphicsViewZoom;

// Shows the photo editor's scene: fitted to the window until the user zooms
// with Ctrl and the wheel; the Delete key asks to remove the selection.
class KalPhotoEditorGraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit KalPhotoEditorGraphicsView(QWidget *parent = nullptr);

    KalGraphicsViewZoom *zoom() const { return m_zoom; }
    // Shows the whole picture and keeps doing so when the window changes
    // size, until the next zoom.
    void fitToWindow();

signals:
    void deleteRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    KalGraphicsViewZoom *m_zoom;
    bool m_fitted = true;
};
