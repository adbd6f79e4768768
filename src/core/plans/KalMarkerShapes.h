#pragma once

#include "core/plans/KalPlanTransform.h"

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QString>

class QPainter;

// One `marker` row as the painter needs it.
struct KalMarkerRow
{
    int type = 1;
    KalPlanGeometry geometry;
    QString color1; // fill of the body
    QString color2; // outline of the body
    double lineWidth = 0.0;
};

// One `marker_text` row as the painter needs it.
struct KalMarkerTextRow
{
    KalPlanGeometry geometry;
    QString text;
    QString color;
    int properties = 0; // 1 bold, 2 italic, 4 underline
    QString fontFamily;
    int fontSize = 8; // points
};

// The parts of a marker in its design frame (units are plan pixels at scale 1).
struct KalMarkerPaths
{
    QPainterPath body;   // filled with color1, outlined with color2
    QPainterPath status; // filled with the status colour, no outline
    QPainterPath cross;  // stroked black (type 4 only)
};

// The marker shapes shared by the plan editor, printing and the command
// line, and the painting of marker and text rows onto a plan.
namespace KalMarkerShapes {

// Status colour of a defect without a status (or with an unusable one).
QColor noStatusColor();
bool isKnownType(int type);
// Empty paths for an unknown type.
const KalMarkerPaths &paths(int type);
// The body's outline pen: square caps, bevel joins; no pen for width 0
// (a Qt pen of width 0 would still draw a hair line).
QPen bodyPen(const QColor &color, double width);

struct PaintOptions
{
    QColor statusColor;       // invalid: noStatusColor()
    bool highlighted = false; // the current defect: red outlines
};
// Paints the row in plan coordinates; false (nothing painted) for a row that
// cannot be placed or has an unknown type.
bool paintMarker(QPainter &painter, const KalMarkerRow &row, const PaintOptions &options = PaintOptions());

// Plan texts are sized at one fixed resolution, whatever the device: a
// point is 96/72 plan pixels, so screen, print and export agree.
double textPixelSize(double points);
QFont textFont(const KalMarkerTextRow &row);
// The text's box in item coordinates (top left at the item's origin).
QRectF textRect(const KalMarkerTextRow &row);
bool paintText(QPainter &painter, const KalMarkerTextRow &row, bool highlighted = false);

} // namespace KalMarkerShapes
