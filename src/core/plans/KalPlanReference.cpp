#include "KalPlanReference.h"

#include <QLineF>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <cmath>

namespace {

double cross(const QPointF &a, const QPointF &b, const QPointF &c)
{
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

KalPlanReference::Verdict check(const QVector<QPointF> &p)
{
    for (int i = 0; i < p.size(); ++i) {
        for (int j = i + 1; j < p.size(); ++j) {
            if (QLineF(p[i], p[j]).length() < KalPlanReference::tolerance)
                return KalPlanReference::Coincident;
        }
    }
    if (p.size() == 3) {
        // Distance of the third point from the line through the first two.
        const double base = QLineF(p[0], p[1]).length();
        if (std::fabs(cross(p[0], p[1], p[2])) / base < KalPlanReference::tolerance)
            return KalPlanReference::Collinear;
    }
    return KalPlanReference::Usable;
}

// z' = a·z + b with complex a, b: shift, turn and uniform scale.
QTransform similarity(const QVector<QPointF> &o, const QVector<QPointF> &n)
{
    const double ox = o[1].x() - o[0].x(), oy = o[1].y() - o[0].y();
    const double nx = n[1].x() - n[0].x(), ny = n[1].y() - n[0].y();
    const double d = ox * ox + oy * oy;
    const double c = (nx * ox + ny * oy) / d;
    const double s = (ny * ox - nx * oy) / d;
    const double dx = n[0].x() - (c * o[0].x() - s * o[0].y());
    const double dy = n[0].y() - (s * o[0].x() + c * o[0].y());
    return QTransform(c, s, -s, c, dx, dy);
}

// Solves x' = m11·x + m21·y + dx (and the same for y') by Cramer's rule.
QTransform affine(const QVector<QPointF> &o, const QVector<QPointF> &n)
{
    const double det = cross(o[0], o[1], o[2]);
    auto solve = [&](double v0, double v1, double v2, double *a, double *b, double *c) {
        *a = ((v1 - v0) * (o[2].y() - o[0].y()) - (v2 - v0) * (o[1].y() - o[0].y())) / det;
        *b = ((o[1].x() - o[0].x()) * (v2 - v0) - (o[2].x() - o[0].x()) * (v1 - v0)) / det;
        *c = v0 - *a * o[0].x() - *b * o[0].y();
    };
    double m11, m21, dx, m12, m22, dy;
    solve(n[0].x(), n[1].x(), n[2].x(), &m11, &m21, &dx);
    solve(n[0].y(), n[1].y(), n[2].y(), &m12, &m22, &dy);
    return QTransform(m11, m12, m21, m22, dx, dy);
}

} // namespace

KalPlanReference::Fit KalPlanReference::fit(const QVector<QPointF> &oldPoints, const QVector<QPointF> &newPoints)
{
    Fit result;
    if (oldPoints.size() != newPoints.size() || oldPoints.size() < 2 || oldPoints.size() > 3)
        return result;
    for (const QVector<QPointF> *set : {&oldPoints, &newPoints}) {
        for (const QPointF &p : *set) {
            if (!std::isfinite(p.x()) || !std::isfinite(p.y()))
                return result;
        }
        result.verdict = check(*set);
        if (result.verdict != Usable)
            return result;
    }
    result.transform = oldPoints.size() == 2 ? similarity(oldPoints, newPoints) : affine(oldPoints, newPoints);
    return result;
}

QString KalPlanReference::refusalText(Verdict verdict)
{
    switch (verdict) {
    case Usable:
        return QString();
    case WrongCount:
        return tr("Wählen Sie auf dem alten und dem neuen Plan je zwei oder je drei Referenzpunkte.");
    case Coincident:
        return tr("Zwei Referenzpunkte liegen aufeinander. Wählen Sie weiter auseinanderliegende Punkte.");
    case Collinear:
        return tr("Die drei Referenzpunkte liegen auf einer Linie. Wählen Sie Punkte, die ein Dreieck bilden.");
    }
    return QString();
}

double KalPlanReference::scaleOf(const QTransform &t)
{
    return std::sqrt(std::fabs(t.m11() * t.m22() - t.m12() * t.m21()));
}

KalPlanGeometry KalPlanReference::mapped(const KalPlanGeometry &g, const QTransform &t)
{
    KalPlanGeometry r = g;
    r.pos = t.map(g.pos + g.transformPoint) - g.transformPoint;
    r.scale = g.scale * scaleOf(t);
    return r;
}

bool KalPlanReference::mapRows(QSqlDatabase db, qint64 planInfoId, const QTransform &t, QString *error)
{
    for (const char *table : {"marker", "marker_text"}) {
        QSqlQuery read(db);
        read.prepare(QStringLiteral("SELECT id, pos_x, pos_y, scale_factor, rotation_angle, transform_point_x, "
                                    "transform_point_y FROM %1 WHERE plan_info_id = :plan")
                         .arg(QLatin1String(table)));
        read.bindValue(QStringLiteral(":plan"), planInfoId);
        if (!read.exec()) {
            *error = read.lastError().text();
            return false;
        }
        QSqlQuery write(db);
        write.prepare(QStringLiteral("UPDATE %1 SET pos_x = :x, pos_y = :y, scale_factor = :s WHERE id = :id")
                          .arg(QLatin1String(table)));
        while (read.next()) {
            KalPlanGeometry g;
            g.pos = QPointF(read.value(1).toDouble(), read.value(2).toDouble());
            g.scale = read.value(3).toDouble();
            g.rotation = read.value(4).toDouble();
            g.transformPoint = QPointF(read.value(5).toDouble(), read.value(6).toDouble());
            // Rows that cannot be drawn stay as they are rather than gaining NaNs.
            if (!KalPlanTransform::isDrawable(g))
                continue;
            const KalPlanGeometry m = mapped(g, t);
            write.bindValue(QStringLiteral(":x"), m.pos.x());
            write.bindValue(QStringLiteral(":y"), m.pos.y());
            write.bindValue(QStringLiteral(":s"), m.scale);
            write.bindValue(QStringLiteral(":id"), read.value(0));
            if (!write.exec()) {
                *error = write.lastError().text();
                return false;
            }
        }
    }
    return true;
}
