#pragma once

#include <QPointF>
#include <QSqlDatabase>
#include <QTransform>

// Where a marker or text row sits on its plan: position, scale and rotation
// about the transform point, as a graphics item places its children.
struct KalPlanGeometry
{
    QPointF pos;
    double scale = 1.0;
    double rotation = 0.0; // degrees
    QPointF transformPoint;
};

namespace KalPlanTransform {

// False for rows that cannot be placed (scale not positive, any value not finite).
bool isDrawable(const KalPlanGeometry &geometry);
// Item coordinates to plan pixels: pos + t + R(rotation)·S(scale)·(x − t).
QTransform toPlan(const KalPlanGeometry &geometry);
// The geometry for a picture whose width and height changed by rx and ry:
// the transform point moves with the picture, the item keeps its shape
// except that its scale follows the height. A ratio of exactly 1.0 leaves
// its axis untouched.
KalPlanGeometry rescaled(const KalPlanGeometry &geometry, double rx, double ry);
// The same for every marker and text of a plan sheet, in the caller's
// transaction. False with a reason on a database error or unusable ratios.
bool rescaleRows(QSqlDatabase db, qint64 planInfoId, double rx, double ry, QString *error);

} // namespace KalPlanTransform
