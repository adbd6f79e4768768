#include "KalPlanPainter.h"

#include "core/photos/KalPictureStore.h"
#include "core/plans/KalMarkerShapes.h"
#include "core/plans/KalPlanReference.h"

#include <QCoreApplication>
#include <QPainter>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <limits>

namespace KalPlanPainter {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("KalPlanPainter", text);
}

// NULL (SQLite's stand-in for NaN) must not become 0, which would be drawable.
double real(const QVariant &value)
{
    return value.isNull() ? std::numeric_limits<double>::quiet_NaN() : value.toDouble();
}

KalPlanGeometry geometry(const QSqlQuery &q, int first)
{
    KalPlanGeometry g;
    g.pos = QPointF(real(q.value(first)), real(q.value(first + 1)));
    g.scale = real(q.value(first + 2));
    g.rotation = q.value(first + 3).isNull() ? 0.0 : q.value(first + 3).toDouble();
    g.transformPoint = QPointF(q.value(first + 4).toDouble(), q.value(first + 5).toDouble());
    return g;
}

bool select(QSqlQuery &query, const QString &sql, qint64 planInfoId, QString *error)
{
    query.prepare(sql);
    query.bindValue(QStringLiteral(":id"), planInfoId);
    if (query.exec())
        return true;
    *error = query.lastError().text();
    return false;
}

} // namespace

bool paintItems(QPainter &painter, QSqlDatabase db, qint64 planInfoId, qint64 current, QString *error,
                const QTransform &moved)
{
    auto place = [&moved](const QSqlQuery &q) {
        const KalPlanGeometry g = geometry(q, 0);
        return moved.isIdentity() ? g : KalPlanReference::mapped(g, moved);
    };
    QSqlQuery markers(db);
    markers.setForwardOnly(true);
    if (!select(markers,
                QStringLiteral("SELECT m.pos_x, m.pos_y, m.scale_factor, m.rotation_angle, m.transform_point_x, "
                               "m.transform_point_y, m.type, m.color1, m.color2, m.linewidth, s.color, m.defect_id "
                               "FROM marker m JOIN defect d ON d.id = m.defect_id AND d.plan_info_id = m.plan_info_id "
                               "LEFT JOIN status s ON s.id = d.status_id WHERE m.plan_info_id = :id ORDER BY m.id"),
                planInfoId, error))
        return false;
    while (markers.next()) {
        KalMarkerRow row;
        row.geometry = place(markers);
        row.type = markers.value(6).toInt();
        row.color1 = markers.value(7).toString();
        row.color2 = markers.value(8).toString();
        row.lineWidth = markers.value(9).toDouble();
        KalMarkerShapes::PaintOptions options;
        options.statusColor = QColor(markers.value(10).toString());
        options.highlighted = current >= 0 && markers.value(11).toLongLong() == current;
        KalMarkerShapes::paintMarker(painter, row, options);
    }
    QSqlQuery texts(db);
    texts.setForwardOnly(true);
    if (!select(texts,
                QStringLiteral("SELECT t.pos_x, t.pos_y, t.scale_factor, t.rotation_angle, t.transform_point_x, "
                               "t.transform_point_y, t.text, t.color, t.text_properties, t.font_family, t.font_size, "
                               "t.defect_id FROM marker_text t JOIN defect d ON d.id = t.defect_id AND "
                               "d.plan_info_id = t.plan_info_id WHERE t.plan_info_id = :id ORDER BY t.id"),
                planInfoId, error))
        return false;
    while (texts.next()) {
        KalMarkerTextRow row;
        row.geometry = place(texts);
        row.text = texts.value(6).toString();
        row.color = texts.value(7).toString();
        row.properties = texts.value(8).toInt();
        row.fontFamily = texts.value(9).toString();
        row.fontSize = texts.value(10).toInt();
        KalMarkerShapes::paintText(painter, row, current >= 0 && texts.value(11).toLongLong() == current);
    }
    return true;
}

QImage render(QSqlDatabase db, qint64 planInfoId, QString *error)
{
    QSqlQuery sheet(db);
    if (!select(sheet, QStringLiteral("SELECT plan_id FROM plan_info WHERE id = :id"), planInfoId, error))
        return QImage();
    if (!sheet.next()) {
        *error = tr("Der Plan %1 existiert nicht.").arg(planInfoId);
        return QImage();
    }
    const qint64 planId = sheet.value(0).toLongLong();
    sheet.finish();
    const KalPictureStore store(db, KalPictureStore::Kind::Plan);
    QImage picture = store.load(planId, error);
    if (picture.isNull()) {
        if (error->isEmpty())
            *error = tr("Das Planbild ist nicht lesbar.");
        return QImage();
    }
    picture = picture.convertToFormat(QImage::Format_RGB32);
    QPainter painter(&picture);
    if (!paintItems(painter, db, planInfoId, -1, error))
        return QImage();
    painter.end();
    return picture;
}

} // namespace KalPlanPainter
