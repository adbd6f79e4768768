#pragma once

#include "KalPhotoEditorShapes.h"

#include <QColor>
#include <QGraphicsItem>

// A drawn object of the photo editor: lines, polylines, rectangles,
// ellipses, freehand strokes, arrows and triangles. Its pen width is in
// item units, so scaling the item thickens the line as the picture shows.
class KalPhotoEditorShapeItem : public QGraphicsItem
{
public:
    enum { Type = UserType + 30 };

    KalPhotoEditorShapeItem(const KalPhotoEditorShapes::Paths &paths, const QColor &color, qreal lineWidth);

    int type() const override { return Type; }

    void setPaths(const KalPhotoEditorShapes::Paths &paths);
    KalPhotoEditorShapes::Paths paths() const { return m_paths; }
    void setColor(const QColor &color);
    QColor color() const { return m_color; }
    void setLineWidth(qreal width);
    qreal lineWidth() const { return m_width; }

    // Moves the paths so that their centre is the item's origin, about which
    // it turns and scales; the picture does not move.
    void centreOrigin();

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    // The object alone, without selection handles.
    void paintContent(QPainter *painter) const;

private:
    QPen pen() const;

    KalPhotoEditorShapes::Paths m_paths;
    QColor m_color;
    qreal m_width;
};
