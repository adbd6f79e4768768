#include "KalPlanTransform.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <cmath>
#include <cstring>

namespace KalPlanTransform {

bool isDrawable(const KalPlanGeometry &g)
{
    return std::isfinite(g.pos.x()) && std::isfinite(g.pos.y()) && std::isfinite(g.scale) && g.scale > 0.0 &&
           std::isfinite(g.rotation) && std::isfinite(g.transformPoint.x()) && std::isfinite(g.transformPoint.y());
}

QTransform toPlan(const KalPlanGeometry &g)
{
    // QTransform applies the last call first.
    QTransform t;
    t.translate(g.pos.x() + g.transformPoint.x(), g.pos.y() + g.transformPoint.y());
    t.rotate(g.rotation);
    t.scale(g.scale, g.scale);
    t.translate(-g.transformPoint.x(), -g.transformPoint.y());
    return t;
}

KalPlanGeometry rescaled(const KalPlanGeometry &g, double rx, double ry)
{
    KalPlanGeometry r = g;
    if (rx != 1.0)
        r.pos.setX((g.pos.x() + g.transformPoint.x()) * rx - g.transformPoint.x());
    if (ry != 1.0) {
        r.pos.setY((g.pos.y() + g.transformPoint.y()) * ry - g.transformPoint.y());
        r.scale = g.scale * ry;
    }
    return r;
}

bool rescaleRows(QSqlDatabase db, qint64 planInfoId, double rx, double ry, QString *error)
{
    if (!std::isfinite(rx) || !std::isfinite(ry) || rx <= 0.0 || ry <= 0.0) {
        if (error)
            *error = QStringLiteral("Unusable scale ratios %1 / %2").arg(rx).arg(ry);
        return false;
    }
    // The same arithmetic as rescaled(), on all rows at once (SQLite REAL is
    // a double); a missing transform point counts as the origin.
    struct Step
    {
        double ratio;
        const char *assignment;
    };
    const Step steps[] = {
        {rx, "pos_x = (pos_x + IFNULL(transform_point_x, 0)) * :ratio - IFNULL(transform_point_x, 0)"},
        {ry, "pos_y = (pos_y + IFNULL(transform_point_y, 0)) * :ratio - IFNULL(transform_point_y, 0),"
             " scale_factor = scale_factor * :factor"},
    };
    for (const char *table : {"marker", "marker_text"}) {
        for (const Step &step : steps) {
            if (step.ratio == 1.0)
                continue;
            QSqlQuery query(db);
            query.prepare(QStringLiteral("UPDATE %1 SET %2 WHERE plan_info_id = :id")
                              .arg(QLatin1String(table), QLatin1String(step.assignment)));
            query.bindValue(QStringLiteral(":ratio"), step.ratio);
            if (std::strstr(step.assignment, ":factor"))
                query.bindValue(QStringLiteral(":factor"), step.ratio);
            query.bindValue(QStringLiteral(":id"), planInfoId);
            if (!query.exec()) {
                if (error)
                    *error = query.lastError().text();
                return false;
            }
        }
    }
    return true;
}

} // namespace KalPlanTransform
