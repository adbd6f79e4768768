#include "KalPrintData.h"

#include "core/photos/KalPictureStore.h"
#include "core/plans/KalMarkerShapes.h"
#include "core/project/KalCompanyFormat.h"

#include <QBuffer>
#include <QImageReader>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <limits>

namespace {

bool run(QSqlQuery &query, const QString &sql, QString *error)
{
    query.setForwardOnly(true);
    if (query.exec(sql))
        return true;
    *error = query.lastError().text();
    return false;
}

QString joined(const QStringList &parts, const QString &separator)
{
    QStringList kept;
    for (const QString &part : parts)
        if (!part.trimmed().isEmpty())
            kept << part.trimmed();
    return kept.join(separator);
}

} // namespace

bool KalPrintData::read(QSqlDatabase db, const QVector<qint64> &ids, bool withPhotos, QString *error)
{
    return readPageInfo(db, error) && readDefects(db, ids, error) && (!withPhotos || readPhotos(db, error)) &&
           readCompanies(db, error) && readSheets(db, error) && readMarkers(db, error);
}

QRect KalPrintData::excerpt(const QSize &plan, const QRectF &markers)
{
    if (markers.isNull() || plan.isEmpty())
        return QRect();
    const int shorter = qMin(plan.width(), plan.height());
    // Room around the markers, so that the reader sees where they stand.
    const qreal wanted = qMax<qreal>(shorter / 5.0, qMax(markers.width(), markers.height()) * 1.5);
    const int side = qBound(1, qRound(wanted), shorter);
    QRect rect(0, 0, side, side);
    rect.moveCenter(markers.center().toPoint());
    rect.moveLeft(qBound(0, rect.left(), plan.width() - side));
    rect.moveTop(qBound(0, rect.top(), plan.height() - side));
    return rect;
}

// One pass over all marker rows (no index on defect_id); a marker counts
// only on the sheet its defect is placed on, as the plan editor shows it.
bool KalPrintData::readMarkers(QSqlDatabase db, QString *error)
{
    if (sheets.isEmpty())
        return true;
    QSqlQuery q(db);
    if (!run(q,
             QStringLiteral("SELECT defect_id, plan_info_id, type, pos_x, pos_y, scale_factor, rotation_angle, "
                            "transform_point_x, transform_point_y FROM marker"),
             error))
        return false;
    QHash<qint64, int> index;
    for (int i = 0; i < defects.size(); ++i)
        if (defects.at(i).planInfoId > 0)
            index.insert(defects.at(i).id, i);
    auto real = [&q](int i) {
        return q.value(i).isNull() ? std::numeric_limits<double>::quiet_NaN() : q.value(i).toDouble();
    };
    while (q.next()) {
        const auto at = index.constFind(q.value(0).toLongLong());
        if (at == index.constEnd())
            continue;
        KalPrintDefect &d = defects[at.value()];
        if (q.value(1).toLongLong() != d.planInfoId)
            continue;
        KalPlanGeometry g;
        g.pos = QPointF(real(3), real(4));
        g.scale = real(5);
        g.rotation = q.value(6).isNull() ? 0.0 : q.value(6).toDouble();
        g.transformPoint = QPointF(q.value(7).toDouble(), q.value(8).toDouble());
        const int type = q.value(2).toInt();
        if (!KalMarkerShapes::isKnownType(type) || !KalPlanTransform::isDrawable(g))
            continue;
        const QRectF bounds = KalPlanTransform::toPlan(g).map(KalMarkerShapes::paths(type).body).boundingRect();
        d.markerBounds = d.markerBounds.isNull() ? bounds : d.markerBounds.united(bounds);
    }
    return true;
}

bool KalPrintData::readDefects(QSqlDatabase db, const QVector<qint64> &ids, QString *error)
{
    QSqlQuery q(db);
    if (!run(q,
             QStringLiteral("SELECT d.id, d.number, d.description, d.company_id, d.type, d.user_id, d.creation_date, "
                            "d.roomname, d.roombook_number, d.plan_info_id, d.correction_instruction, d.priority, "
                            "d.correction_date, d.deadline_1, d.deadline_2, d.status_id, d.reduction, s.status, "
                            "s.color FROM defect d LEFT JOIN status s ON s.id = d.status_id"),
             error))
        return false;
    QHash<qint64, int> position;
    for (int i = 0; i < ids.size(); ++i)
        position.insert(ids.at(i), i);
    QVector<KalPrintDefect> byPosition(ids.size());
    QVector<bool> found(ids.size(), false);
    while (q.next()) {
        const auto at = position.constFind(q.value(0).toLongLong());
        if (at == position.constEnd())
            continue;
        KalPrintDefect &d = byPosition[at.value()];
        found[at.value()] = true;
        d.id = q.value(0).toLongLong();
        d.number = q.value(1).toString();
        d.description = q.value(2).toString();
        d.companyId = q.value(3).toLongLong();
        d.type = q.value(4).toString();
        d.userId = q.value(5).toString();
        d.creationDate = q.value(6).toDate();
        d.roomname = q.value(7).toString();
        d.roombookNumber = q.value(8).toString();
        d.planInfoId = q.value(9).isNull() ? -1 : q.value(9).toLongLong();
        d.instruction = q.value(10).toString();
        d.priority = q.value(11).toString();
        d.correctionDate = q.value(12).toDate();
        d.deadline1 = q.value(13).toDate();
        d.deadline2 = q.value(14).toDate();
        d.statusId = q.value(15).toLongLong();
        d.reduction = q.value(16).toInt() == 1;
        d.status = q.value(17).toString();
        d.statusColor = QColor(q.value(18).toString());
    }
    defects.clear();
    for (int i = 0; i < ids.size(); ++i)
        if (found.at(i))
            defects << byPosition.at(i);
    return true;
}

// One pass over all photo rows: the table has no index on defect_id.
bool KalPrintData::readPhotos(QSqlDatabase db, QString *error)
{
    QSqlQuery q(db);
    if (!run(q,
             QStringLiteral("SELECT p.id, p.defect_id, p.caption, p.comment, p.date, i.id, i.image_width, "
                            "i.image_height, i.thumbnail_width, i.thumbnail_height FROM photo_info p LEFT JOIN image "
                            "i ON i.id = p.image_id ORDER BY p.defect_id, p.pos, p.id"),
             error))
        return false;
    QHash<qint64, int> index;
    for (int i = 0; i < defects.size(); ++i)
        index.insert(defects.at(i).id, i);
    while (q.next()) {
        const auto at = index.constFind(q.value(1).toLongLong());
        if (at == index.constEnd())
            continue;
        KalPrintPhoto p;
        p.id = q.value(0).toLongLong();
        p.caption = q.value(2).toString();
        p.comment = q.value(3).toString();
        p.date = q.value(4).toDate();
        p.imageId = q.value(5).isNull() ? -1 : q.value(5).toLongLong();
        p.size = QSize(q.value(6).toInt(), q.value(7).toInt());
        p.thumbnailSize = QSize(q.value(8).toInt(), q.value(9).toInt());
        defects[at.value()].photos << p;
    }
    return true;
}

bool KalPrintData::readCompanies(QSqlDatabase db, QString *error)
{
    QSqlQuery q(db);
    if (!run(q, QStringLiteral("SELECT * FROM company"), error))
        return false;
    const KalCompanyFormat format = KalCompanyFormat::load();
    while (q.next()) {
        const QSqlRecord r = q.record();
        const qint64 id = r.value(QStringLiteral("id")).toLongLong();
        auto v = [&r](const char *name) { return r.value(QLatin1String(name)).toString(); };
        companyText.insert(id, format.text(r, KalCompanyFormat::gridSeparator()).trimmed());
        QStringList lines{v("company"),   joined({v("firstname"), v("lastname")}, QStringLiteral(" ")),
                          v("street"),    joined({v("plz"), v("city")}, QStringLiteral(" ")),
                          v("telephone"), v("telefax"),
                          v("mobile"),    v("email")};
        lines.removeAll(QString());
        companyAddress.insert(id, lines);
    }
    return true;
}

bool KalPrintData::readSheets(QSqlDatabase db, QString *error)
{
    QSet<qint64> used;
    for (const KalPrintDefect &d : qAsConst(defects))
        if (d.planInfoId > 0)
            used.insert(d.planInfoId);
    if (used.isEmpty())
        return true;
    QSqlQuery q(db);
    if (!run(q,
             QStringLiteral("SELECT pi.id, pi.plan_name, pi.plan_index, pi.date, pi.plan_id, p.plan_width, "
                            "p.plan_height FROM plan_info pi LEFT JOIN plan p ON p.id = pi.plan_id"),
             error))
        return false;
    while (q.next()) {
        KalPrintSheet s;
        s.planInfoId = q.value(0).toLongLong();
        if (!used.contains(s.planInfoId))
            continue;
        s.name = q.value(1).toString();
        s.index = q.value(2).toString();
        s.date = q.value(3).toDate();
        s.planId = q.value(4).isNull() || q.value(5).isNull() ? -1 : q.value(4).toLongLong();
        s.size = QSize(q.value(5).toInt(), q.value(6).toInt());
        sheets.insert(s.planInfoId, s);
    }
    return true;
}

bool KalPrintData::readPageInfo(QSqlDatabase db, QString *error)
{
    QSqlQuery q(db);
    if (!run(q, QStringLiteral("SELECT * FROM kal"), error))
        return false;
    header = QStringList{QString(), QString(), QString()};
    footer = header;
    if (!q.next())
        return true;
    const QSqlRecord r = q.record();
    auto v = [&r](const char *name) { return r.value(QLatin1String(name)); };
    projectName = v("projectname").toString();
    header =
        QStringList{v("headline_left").toString(), v("headline_center").toString(), v("headline_right").toString()};
    footer = QStringList{v("footer_left").toString(), v("footer_center").toString(), v("footer_right").toString()};
    const QVariant first = v("logo_image_id");
    const QVariant second = v("logo2_image_id");
    const int firstAlign = v("logo_align").toInt();
    const int secondAlign = v("logo2_align").toInt();
    q.finish();
    logos = readLogos(db, first, firstAlign, second, secondAlign);
    return true;
}

QVector<KalPrintLogo> KalPrintData::readLogos(QSqlDatabase db, const QVariant &first, int firstAlign,
                                              const QVariant &second, int secondAlign)
{
    QVector<KalPrintLogo> result;
    const QVector<QPair<QVariant, int>> rows{{first, firstAlign}, {second, secondAlign}};
    for (const auto &row : rows) {
        // NULL, 0 and -1 all mean "no logo".
        const qint64 id = row.first.isNull() ? -1 : row.first.toLongLong();
        if (id <= 0)
            continue;
        QSqlQuery q(db);
        q.prepare(QStringLiteral("SELECT image FROM image WHERE id=:id"));
        q.bindValue(QStringLiteral(":id"), id);
        if (!q.exec() || !q.next())
            continue;
        const QByteArray data = q.value(0).toByteArray();
        if (KalPictureStore::isTruncatedJpeg(data))
            continue;
        QBuffer buffer;
        buffer.setData(data);
        buffer.open(QIODevice::ReadOnly);
        QImageReader reader(&buffer);
        const QSize size = reader.size();
        if (!reader.canRead() || size.isEmpty() ||
            qint64(size.width()) * size.height() > KalPictureStore::maximumPixels)
            continue;
        KalPrintLogo logo;
        logo.imageId = id;
        logo.size = size;
        logo.align = qBound(0, row.second, 2);
        result << logo;
    }
    return result;
}
