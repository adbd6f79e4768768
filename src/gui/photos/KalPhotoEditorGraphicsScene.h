#pragma once

#include "KalPhotoEditorCommands.h"
#include "KalPhotoEditorShapes.h"

#include <QColor>
#include <QGraphicsScene>
#include <QImage>

class KalGraphicsTextItem;
class KalPhotoEditorShapeItem;
class QGraphicsPixmapItem;

// The photo at the bottom and the objects drawn on it. A tool sets a mode;
// the next drag or click creates the object, then the scene selects it and
// goes back to selecting. Scene coordinates are picture pixels.
class KalPhotoEditorGraphicsScene : public QGraphicsScene
{
    Q_OBJECT

public:
    enum Mode {
        Select = 0,
        // Symbol tools: the four symbols, then the four text-symbol buttons.
        SymbolX = 31,
        SymbolFilledCircle = 32,
        SymbolAsterisk = 33,
        SymbolDiamond = 34,
        TextSymbol1 = 35,
        TextSymbol4 = 38,
        // A number symbol or a further text symbol chosen from a pop-up.
        ChosenSymbol = 39,
        Arrow = 40,
        Triangle = 41,
        Text = 65,
        Line = 66,
        Square = 67,
        Rect = 68,
        Circle = 69,
        Ellipse = 70,
        Polyline = 71,
        Freehand = 72
    };

    explicit KalPhotoEditorGraphicsScene(QObject *parent = nullptr);

    void setPicture(const QImage &picture);
    QImage picture() const { return m_picture; }
    // Turns the picture by 90 or -90 degrees; the objects turn with it.
    void turnBackground(int degrees);

    int mode() const { return m_mode; }
    // Ends a polyline in progress and sets the mode.
    void setMode(int mode);
    void setArrow(int number, KalPhotoEditorShapes::Direction direction);
    void setTriangle(KalPhotoEditorShapes::Direction direction);
    // The text and font the chosen-symbol mode places; without a size or
    // colour it gets those of symbols.
    void setChosenSymbol(const QString &text, const QString &family, int pointSize = 0, const QColor &color = QColor(),
                         int properties = 0);

    void setColor(const QColor &color) { m_color = color; }
    QColor color() const { return m_color; }
    void setLineWidth(qreal width) { m_lineWidth = width; }
    qreal lineWidth() const { return m_lineWidth; }
    // Sizes of new objects, in picture pixels and points.
    void setDefaultSizes(qreal arrowLength, int symbolPointSize);

    // The drawn objects, bottom first.
    QList<QGraphicsItem *> objects() const;
    void addObject(QGraphicsItem *item);

    // The picture with every object painted in as shown, without selection
    // handles.
    QImage render() const;

signals:
    void objectCreated(QGraphicsItem *item);
    void objectsMoved(const QList<QGraphicsItem *> &items, const QList<KalItemPlacement> &before,
                      const QList<KalItemPlacement> &after);
    void textRequested(const QPointF &scenePos);
    void textEditRequested(KalGraphicsTextItem *item);
    void modeChanged(int mode);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;

private:
    bool startResize(QGraphicsSceneMouseEvent *event);
    KalPhotoEditorShapes::Paths dragPaths(const QPointF &end) const;
    void place(const QPointF &scenePos);
    QString symbolForMode() const;
    void finishDrawing();
    void created(QGraphicsItem *item);

    QImage m_picture;
    QGraphicsPixmapItem *m_pixmapItem = nullptr;
    int m_mode = Select;
    int m_arrow = 1;
    KalPhotoEditorShapes::Direction m_arrowDirection = KalPhotoEditorShapes::Right;
    KalPhotoEditorShapes::Direction m_triangleDirection = KalPhotoEditorShapes::Right;
    QString m_chosenSymbol;
    QString m_chosenFamily;
    int m_chosenPointSize = 0;
    QColor m_chosenColor;
    int m_chosenProperties = 0;
    QColor m_color = Qt::red;
    qreal m_lineWidth = 4;
    qreal m_arrowLength = 150;
    int m_symbolPointSize = 30;
    qreal m_nextZ = 1;

    KalPhotoEditorShapeItem *m_drawing = nullptr;
    QPointF m_start;
    QVector<QPointF> m_points;
    // Scaling an object by one of its corner handles.
    QGraphicsItem *m_resizing = nullptr;
    KalItemPlacement m_resizeBefore;
    qreal m_resizeStartDistance = 1;
    QList<QGraphicsItem *> m_pressed;
    QList<KalItemPlacement> m_pressedPlacements;
};
