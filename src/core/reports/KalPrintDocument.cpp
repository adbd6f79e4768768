#include "KalPrintDocument.h"

#include "core/photos/KalPictureStore.h"
#include "core/plans/KalMarkerShapes.h"
#include "core/reports/KalPrintTexts.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QImageReader>
#include <QPaintDevice>
#include <QPainter>
#include <QSqlQuery>
#include <QTextLayout>
#include <QThread>
#include <QThreadPool>
#include <QVariant>
#include <cmath>
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

// libjpeg decodes at n/8 of the stored size at a fraction of the full cost,
// and any size in between costs a second, smoothing pass. The step just
// below `wanted` (a fraction of the stored size) is taken while it keeps four
// fifths of the wanted pixels (160 dpi on paper), else the one above.
int dctEighths(double wanted)
{
    const int above = qBound(1, int(std::ceil(wanted * 8 - 1e-9)), 8);
    return above > 1 && (above - 1) / 8.0 >= wanted * 0.8 ? above - 1 : above;
}

// The PDF engine turns every other format into ARGB32 and scans it for
// alpha; opaque pictures go in as RGB32.
QImage opaque(QImage image)
{
    if (image.format() == QImage::Format_RGB32 || image.hasAlphaChannel())
        return image;
    return image.convertToFormat(QImage::Format_RGB32);
}

} // namespace

KalPrintDocument::KalPrintDocument(QSqlDatabase db, const QVector<QFont> &fonts, const QSet<qint64> &listed)
    : m_db(db)
    , m_fonts(fonts)
    , m_listed(listed)
{
    // The painting thread encodes each picture again for the PDF; with two
    // or more cores the decoders keep ahead of it.
    if (QThread::idealThreadCount() > 1) {
        m_pool = std::make_unique<QThreadPool>();
        m_pool->setMaxThreadCount(QThread::idealThreadCount());
    }
}

KalPrintDocument::~KalPrintDocument()
{
    // Decodes not started are dropped; running ones finish before the pool goes.
    if (m_pool)
        m_pool->clear();
}

bool KalPrintDocument::decodesAhead(const KalPrintItem &item)
{
    // Logos are decoded once for the run, excerpts are cut from a shared sheet.
    return item.kind == KalPrintItem::Picture && item.source != KalPrintItem::Logo &&
           !(item.source == KalPrintItem::PlanPicture && !item.clip.isNull());
}

// Starts decoding the pictures after the last one started, from `page` on,
// until a few per core are under way or ready. The bytes are read here: the
// database connection belongs to this thread.
void KalPrintDocument::decodeAhead(int page, int dpi)
{
    if (!m_pool)
        return;
    if (m_aheadPage < page) {
        m_aheadPage = page;
        m_aheadItem = 0;
    }
    const int limit = 4 * m_pool->maxThreadCount();
    while (m_ahead.size() < limit && m_aheadPage < pages.size()) {
        const QVector<KalPrintItem> &items = pages.at(m_aheadPage).items;
        if (m_aheadItem >= items.size()) {
            ++m_aheadPage;
            m_aheadItem = 0;
            continue;
        }
        const int index = m_aheadItem++;
        const KalPrintItem &item = items.at(index);
        if (!decodesAhead(item))
            continue;
        auto task = std::make_shared<std::packaged_task<QImage()>>(
            [data = storedBytes(item), target = printSize(item.rect.size(), dpi), clip = item.clip] {
                return decode(data, target, clip);
            });
        m_ahead.insert(qMakePair(m_aheadPage, index), task->get_future().share());
        m_pool->start(QRunnable::create([task] { (*task)(); }));
    }
}

QSize KalPrintDocument::printSize(const QSizeF &rect, int dpi)
{
    const double factor = double(pictureDpi) / qMax(1, dpi);
    return QSize(qMax(1, qRound(rect.width() * factor)), qMax(1, qRound(rect.height() * factor)));
}

QImage KalPrintDocument::decode(const QByteArray &data, const QSize &target, const QRect &clip, bool exact)
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
    QSize wanted = part.size().scaled(target, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    if (!exact && clip.isNull() && wanted.width() < part.width() && reader.format() == "jpeg") {
        // Rounded down, so that the decoder picks exactly this step.
        const int n = dctEighths(double(wanted.width()) / part.width());
        wanted = QSize(qMax(1, part.width() * n / 8), qMax(1, part.height() * n / 8));
    }
    if (wanted.width() < part.width())
        reader.setScaledSize(wanted);
    QImage image = reader.read();
    if (image.isNull())
        return image;
    // Formats without scaling in the decoder arrive at full size.
    if (image.width() > wanted.width() * 1.1)
        image = image.scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return opaque(image);
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

// Sheets decoded for excerpts stay within this many bytes: twenty plans of
// 5000 pixels at half size.
namespace {
constexpr qint64 sheetBudget = 192 * 1024 * 1024;
}

QImage KalPrintDocument::excerpt(const KalPrintItem &item, const QSize &target)
{
    const QRect clip = item.clip.intersected(QRect(QPoint(0, 0), item.storedSize));
    if (clip.isEmpty())
        return QImage();
    const int eighths = dctEighths(double(target.width()) / clip.width());
    auto found = std::find_if(m_sheets.begin(), m_sheets.end(), [&](const Sheet &s) { return s.planId == item.id; });
    Sheet sheet;
    if (found != m_sheets.end() && found->eighths >= eighths) {
        sheet = *found;
        m_sheets.erase(found);
    } else {
        if (found != m_sheets.end())
            m_sheets.erase(found);
        const QSize size(item.storedSize.width() * eighths / 8, item.storedSize.height() * eighths / 8);
        sheet.planId = item.id;
        sheet.eighths = eighths;
        sheet.image = decode(storedBytes(item), size, QRect(), true);
        ++m_sheetDecodes;
        if (sheet.image.isNull())
            return QImage();
        // Plans are drawings: 16 bits a pixel halve the memory and do not
        // show on paper.
        if (!sheet.image.hasAlphaChannel())
            sheet.image = sheet.image.convertToFormat(QImage::Format_RGB16);
    }
    m_sheets.append(sheet);
    qint64 bytes = 0;
    for (const Sheet &s : qAsConst(m_sheets))
        bytes += s.image.sizeInBytes();
    while (bytes > sheetBudget && m_sheets.size() > 1) {
        bytes -= m_sheets.first().image.sizeInBytes();
        m_sheets.removeFirst();
    }
    const double scale = double(sheet.image.width()) / item.storedSize.width();
    const QRectF cut(clip.x() * scale, clip.y() * scale, clip.width() * scale, clip.height() * scale);
    QImage part = sheet.image.copy(cut.toAlignedRect().intersected(sheet.image.rect()));
    if (part.width() > target.width() * 1.1)
        part = part.scaled(target, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return opaque(part);
}

QImage KalPrintDocument::picture(const KalPrintItem &item, const QSize &target)
{
    if (item.source == KalPrintItem::PlanPicture && !item.clip.isNull())
        return excerpt(item, target);
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

void KalPrintDocument::paintPicture(QPainter &painter, const KalPrintItem &item, const QImage &image)
{
    if (image.isNull()) {
        paintPlaceholder(painter, item.rect);
        return;
    }
    painter.drawImage(item.rect, image);
    if (item.planInfoId >= 0)
        paintPlanItems(painter, item);
    if (item.defectId >= 0) {
        painter.save();
        painter.setPen(QPen(Qt::gray, 0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(item.rect);
        painter.restore();
    }
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
    auto shows = [&](qint64 defect) {
        return item.defectId >= 0 ? defect == item.defectId : m_listed.contains(defect);
    };
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
            if (!shows(markers.value(11).toLongLong()))
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
            if (!shows(texts.value(11).toLongLong()))
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

// Wrapped as the layout measured it: at word boundaries, and inside a word
// only where the word alone is wider than the box, so nothing runs into the
// text beside it.
void KalPrintDocument::paintWrapped(QPainter &painter, const KalPrintItem &item, const QString &text)
{
    QString prepared = text;
    prepared.remove(QLatin1Char('\r'));
    prepared.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(prepared, m_fonts.value(item.font), painter.device());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setAlignment(Qt::Alignment(item.flags & Qt::AlignHorizontal_Mask));
    layout.setTextOption(option);
    const qreal spacing = QFontMetricsF(m_fonts.value(item.font), painter.device()).lineSpacing();
    qreal y = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(qMax<qreal>(1, item.rect.width()));
        line.setPosition(QPointF(0, y));
        y += spacing;
    }
    layout.endLayout();
    const qreal top = item.flags & Qt::AlignBottom ? item.rect.bottom() - y : item.rect.top();
    layout.draw(&painter, QPointF(item.rect.left(), top));
}

void KalPrintDocument::paintPage(QPainter &painter, int index)
{
    const int count = pages.size();
    const int dpi = painter.device()->logicalDpiX();
    for (auto it = m_ahead.begin(); it != m_ahead.end();)
        it = it.key().first < index ? m_ahead.erase(it) : std::next(it);
    decodeAhead(index, dpi);
    const QVector<KalPrintItem> &items = pages.at(index).items;
    for (int i = 0; i < items.size(); ++i) {
        const KalPrintItem &item = items.at(i);
        switch (item.kind) {
        case KalPrintItem::Text: {
            painter.setFont(m_fonts.value(item.font));
            painter.setPen(item.color.isValid() ? item.color : QColor(Qt::black));
            const QString text = item.pageText ? KalPrintTexts::pageText(item.text, index + 1, count) : item.text;
            if (item.flags & Qt::TextWordWrap)
                paintWrapped(painter, item, text);
            else
                painter.drawText(item.rect, item.flags, text);
            break;
        }
        case KalPrintItem::Fill:
            painter.fillRect(item.rect, item.color);
            break;
        case KalPrintItem::Line:
            painter.setPen(QPen(item.color.isValid() ? item.color : QColor(Qt::black), 0));
            painter.drawLine(item.rect.topLeft(), item.rect.bottomRight());
            break;
        case KalPrintItem::Picture: {
            const auto ahead = m_ahead.find(qMakePair(index, i));
            if (ahead == m_ahead.end()) {
                paintPicture(painter, item, picture(item, printSize(item.rect.size(), dpi)));
                break;
            }
            const QImage image = ahead->get();
            m_ahead.erase(ahead);
            decodeAhead(index, dpi);
            paintPicture(painter, item, image);
            break;
        }
        }
    }
}
