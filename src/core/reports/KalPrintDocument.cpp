#include "KalPrintDocument.h"

#include "core/photos/KalPictureStore.h"
#include "core/plans/KalMarkerShapes.h"
#include "core/reports/KalPrintTexts.h"

#include <QBuffer>
#include <QImageReader>
#include <QPaintDevice>
#include <QPainter>
#include <QSqlQuery>
#include <QVariant>
#include <limits>

namespace {

// Pictures are drawn at this resolution whatever the device: sharp on paper,
// small in the PDF.
constexpr int pictureDpi = 200;

double real(const QVariant &value)
{
    return value.isNull() ? std::numeric_limits<double>::quiet_NaN() : value.toDouble();
}

KalPlanGeometry geometry(const QSqlQuery &q)
{
    KalPlanGeometry g;
    g.pos = QPointF(real(q.value(0)), real(q.value(1)));
    g.scale = real(q.value(2));
    g.rotation = q.value(3).isNull() ? 0.0 : q.value(3).toDouble();
    g.transformPoint = QPointF(q.value(4).toDouble(), q.value(5).toDouble());
    return g;
}

} // namespace

KalPrintDocument::KalPrintDocument(QSqlDatabase db, const QVector<QFont> &fonts, const QSet<qint64> &listed)
    : m_db(db)
    , m_fonts(fonts)
    , m_listed(listed)
{
}

QSize KalPrintDocument::printSize(const QSizeF &rect, int dpi)
{
    const double factor = double(pictureDpi) / qMax(1, dpi);
    return QSize(qMax(1, qRound(rect.width() * factor)), qMax(1, qRound(rect.height() * factor)));
}

QImage KalPrintDocument::decode(const QByteArray &data, const QSize &target, const QRect &clip)
{
    if (data.isEmpty() || KalPictureStore::isTruncatedJpeg(data))
        return QImage();
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QSize full = reader.size();
    if (!full.isValid() || qint64(full.width()) * full.height() > KalPictureStore::maximumPixels)
        return QImage();
    const QRect part = clip.isNull() ? QRect(QPoint(0, 0), full) : clip.intersected(QRect(QPoint(0, 0), full));
    if (part.isEmpty())
        return QImage();
    if (!clip.isNull())
        reader.setClipRect(part);
    const QSize wanted = part.size().scaled(target, Qt::KeepAspectRatio);
    if (wanted.width() < part.width())
        reader.setScaledSize(wanted.expandedTo(QSize(1, 1)));
    QImage image = reader.read();
    if (image.isNull())
        return image;
    // Formats without scaling in the decoder arrive at full size.
    if (image.width() > wanted.width() * 1.1)
        image = image.scaled(wanted.expandedTo(QSize(1, 1)), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

QByteArray KalPrintDocument::storedBytes(const KalPrintItem &item)
{
    QString sql;
    switch (item.source) {
    case KalPrintItem::Photo:
    case KalPrintItem::Logo:
        sql = QStringLiteral("SELECT image FROM image WHERE id=:id");
        break;
    case KalPrintItem::Thumbnail:
        sql = QStringLiteral("SELECT thumbnail FROM image WHERE id=:id");
        break;
    case KalPrintItem::PlanPicture:
        sql = QStringLiteral("SELECT plan FROM plan WHERE id=:id");
        break;
    }
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(sql);
    query.bindValue(QStringLiteral(":id"), item.id);
    if (!query.exec() || !query.next())
        return QByteArray();
    return query.value(0).toByteArray();
}

QImage KalPrintDocument::picture(const KalPrintItem &item, const QSize &target)
{
    if (item.source != KalPrintItem::Logo)
        return decode(storedBytes(item), target, item.clip);
    // One image object per logo for the whole run: the PDF engine stores an
    // image once per cacheKey, however many pages draw it.
    auto found = m_logos.constFind(item.id);
    if (found != m_logos.constEnd())
        return found.value();
    const QImage logo = decode(storedBytes(item), target);
    m_logos.insert(item.id, logo);
    return logo;
}

void KalPrintDocument::paintPlaceholder(QPainter &painter, const QRectF &rect)
{
    ++m_placeholders;
    painter.save();
    painter.setPen(QPen(Qt::gray, 0));
    painter.setBrush(QColor(235, 235, 235));
    painter.drawRect(rect);
    painter.setPen(Qt::darkGray);
    painter.setFont(m_fonts.value(4));
    painter.drawText(rect, Qt::AlignCenter | Qt::TextWordWrap, tr("Bild nicht lesbar"));
    painter.restore();
}

void KalPrintDocument::paintPicture(QPainter &painter, const KalPrintItem &item)
{
    const QImage image = picture(item, printSize(item.rect.size(), painter.device()->logicalDpiX()));
    if (image.isNull()) {
        paintPlaceholder(painter, item.rect);
        return;
    }
    painter.drawImage(item.rect, image);
    if (item.planInfoId >= 0)
        paintPlanItems(painter, item);
}

// Markers and texts of the listed defects only, as vectors over the picture.
void KalPrintDocument::paintPlanItems(QPainter &painter, const KalPrintItem &item)
{
    const QRectF shown = item.clip.isNull() ? QRectF(QPointF(0, 0), QSizeF(item.storedSize)) : QRectF(item.clip);
    if (shown.isEmpty())
        return;
    painter.save();
    painter.setClipRect(item.rect, Qt::IntersectClip);
    painter.translate(item.rect.topLeft());
    painter.scale(item.rect.width() / shown.width(), item.rect.height() / shown.height());
    painter.translate(-shown.topLeft());
    QSqlQuery markers(m_db);
    markers.setForwardOnly(true);
    markers.prepare(QStringLiteral(
        "SELECT m.pos_x, m.pos_y, m.scale_factor, m.rotation_angle, m.transform_point_x, m.transform_point_y, "
        "m.type, m.color1, m.color2, m.linewidth, s.color, m.defect_id FROM marker m JOIN defect d ON d.id = "
        "m.defect_id AND d.plan_info_id = m.plan_info_id LEFT JOIN status s ON s.id = d.status_id "
        "WHERE m.plan_info_id = :id ORDER BY m.id"));
    markers.bindValue(QStringLiteral(":id"), item.planInfoId);
    if (markers.exec()) {
        while (markers.next()) {
            if (!m_listed.contains(markers.value(11).toLongLong()))
                continue;
            KalMarkerRow row;
            row.geometry = geometry(markers);
            row.type = markers.value(6).toInt();
            row.color1 = markers.value(7).toString();
            row.color2 = markers.value(8).toString();
            row.lineWidth = markers.value(9).toDouble();
            KalMarkerShapes::PaintOptions options;
            options.statusColor = QColor(markers.value(10).toString());
            KalMarkerShapes::paintMarker(painter, row, options);
        }
    }
    QSqlQuery texts(m_db);
    texts.setForwardOnly(true);
    texts.prepare(QStringLiteral(
        "SELECT t.pos_x, t.pos_y, t.scale_factor, t.rotation_angle, t.transform_point_x, t.transform_point_y, "
        "t.text, t.color, t.text_properties, t.font_family, t.font_size, t.defect_id FROM marker_text t "
        "JOIN defect d ON d.id = t.defect_id AND d.plan_info_id = t.plan_info_id WHERE t.plan_info_id = :id "
        "ORDER BY t.id"));
    texts.bindValue(QStringLiteral(":id"), item.planInfoId);
    if (texts.exec()) {
        while (texts.next()) {
            if (!m_listed.contains(texts.value(11).toLongLong()))
                continue;
            KalMarkerTextRow row;
            row.geometry = geometry(texts);
            row.text = texts.value(6).toString();
            row.color = texts.value(7).toString();
            row.properties = texts.value(8).toInt();
            row.fontFamily = texts.value(9).toString();
            row.fontSize = texts.value(10).toInt();
            KalMarkerShapes::paintText(painter, row);
        }
    }
    painter.restore();
}

void KalPrintDocument::paintPage(QPainter &painter, int index)
{
    const int count = pages.size();
    for (const KalPrintItem &item : pages.at(index).items) {
        switch (item.kind) {
        case KalPrintItem::Text:
            painter.setFont(m_fonts.value(item.font));
            painter.setPen(item.color.isValid() ? item.color : QColor(Qt::black));
            painter.drawText(item.rect, item.flags,
                             item.pageText ? KalPrintTexts::pageText(item.text, index + 1, count) : item.text);
            break;
        case KalPrintItem::Fill:
            painter.fillRect(item.rect, item.color);
            break;
        case KalPrintItem::Line:
            painter.setPen(QPen(item.color.isValid() ? item.color : QColor(Qt::black), 0));
            painter.drawLine(item.rect.topLeft(), item.rect.bottomRight());
            break;
        case KalPrintItem::Picture:
            paintPicture(painter, item);
            break;
        }
    }
}
