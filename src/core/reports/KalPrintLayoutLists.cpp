// The two list layouts of KalPrintLayout: one row per defect, or one block
// with every labelled field.
#include "KalPrintLayout.h"

#include "core/reports/KalPrintTexts.h"

namespace {

// Rows stay short: a longer description is cut with "usw...".
constexpr int compactDescriptionLines = 6;

// Plan excerpts in a block: large enough to find the place again on site,
// small enough to keep a block short.
constexpr qreal excerptMm = 45;

enum Column { NumberColumn, DescriptionColumn, RoomColumn, CompanyColumn, DeadlineColumn, StatusColumn, ColumnCount };

QDate currentDeadline(const KalPrintDefect &d)
{
    return d.deadline2.isValid() ? d.deadline2 : d.deadline1.isValid() ? d.deadline1 : d.correctionDate;
}

QColor statusColor(const QColor &color)
{
    return color.isValid() ? color : QColor(Qt::white);
}

// Text on a status cell: white on dark colours, black otherwise.
QColor textOn(const QColor &color)
{
    return statusColor(color).lightness() < 128 ? QColor(Qt::white) : QColor(Qt::black);
}

} // namespace

void KalPrintLayout::compactList()
{
    using T = KalPrintTexts;
    const qreal pad = mm(1.5);
    // Fixed columns are as wide as their heading, or as a typical value where
    // that is wider; the description takes the rest.
    const QVector<QPair<QString, QString>> fixed{
        {KalPrintTexts::heading(T::Defect), QStringLiteral("9999")},
        {KalPrintTexts::heading(T::Description), QString()},
        {KalPrintTexts::heading(T::Room), QStringLiteral("Wohnzimmer 1.OG")},
        {KalPrintTexts::heading(T::Company), QStringLiteral("Musterfirma GmbH")},
        {KalPrintTexts::heading(T::Deadline), T::date(QDate(2028, 12, 28))},
        {KalPrintTexts::heading(T::Status), QStringLiteral("Offen, unzureichend")},
    };
    m_columnWidth = QVector<qreal>(ColumnCount, 0);
    qreal used = 0;
    for (int c = 0; c < ColumnCount; ++c) {
        if (c == DescriptionColumn)
            continue;
        m_columnWidth[c] = qMax(textWidth(fixed.at(c).first, Font9Bold), textWidth(fixed.at(c).second, Font9)) + pad;
        used += m_columnWidth.at(c);
    }
    if (used > m_width * 0.7) {
        for (qreal &w : m_columnWidth)
            w *= m_width * 0.7 / used;
        used = m_width * 0.7;
    }
    m_columnWidth[DescriptionColumn] = m_width - used;
    m_columnX = QVector<qreal>(ColumnCount, 0);
    for (int c = 1; c < ColumnCount; ++c)
        m_columnX[c] = m_columnX.at(c - 1) + m_columnWidth.at(c - 1);

    compactHeading();
    m_onNewPage = [this] { compactHeading(); };
    for (int i = 0; i < m_data.defects.size(); ++i) {
        if (i % 50 == 0 && canceled(i))
            return;
        compactRow(m_data.defects.at(i));
    }
}

void KalPrintLayout::compactHeading()
{
    using T = KalPrintTexts;
    const qreal h = lineHeight(Font9Bold) + mm(1);
    const T::Text labels[ColumnCount] = {T::Defect, T::Description, T::Room, T::Company, T::Deadline, T::Status};
    addFill(QRectF(0, m_y, m_width, h), QColor(225, 225, 225));
    for (int c = 0; c < ColumnCount; ++c)
        addText(QRectF(m_columnX.at(c), m_y, m_columnWidth.at(c), h), KalPrintTexts::heading(labels[c]), Font9Bold,
                Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine);
    m_y += h;
}

void KalPrintLayout::compactRow(const KalPrintDefect &d)
{
    const qreal pad = mm(1.5);
    const qreal line = lineHeight(Font9);
    const QStringList description =
        cut(d.description, Font9, m_columnWidth.at(DescriptionColumn) - pad, compactDescriptionLines);
    const qreal h = qMax<qreal>(1, description.size()) * line + mm(1);
    need(h);
    const QString company = d.companyId > 0 ? m_data.companyText.value(d.companyId) : QString();
    const QString cells[ColumnCount] = {
        d.number, QString(), d.roomname, company, KalPrintTexts::date(currentDeadline(d)), d.status};
    // The fill starts just below the rule above it, which it would cover.
    const qreal ruleGap = mm(0.3);
    addFill(QRectF(m_columnX.at(StatusColumn), m_y + ruleGap, m_columnWidth.at(StatusColumn), h - ruleGap),
            statusColor(d.statusColor));
    for (int c = 0; c < ColumnCount; ++c) {
        if (c == DescriptionColumn)
            continue;
        const qreal w = m_columnWidth.at(c) - pad;
        KalPrintItem &text = addText(QRectF(m_columnX.at(c), m_y, w, line), elide(cells[c], Font9, w), Font9,
                                     Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine);
        if (c == StatusColumn)
            text.color = textOn(d.statusColor);
    }
    for (int i = 0; i < description.size(); ++i)
        addText(QRectF(m_columnX.at(DescriptionColumn), m_y + i * line, m_columnWidth.at(DescriptionColumn), line),
                description.at(i), Font9, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine);
    m_y += h;
    if (m_options.photosInList && !d.photos.isEmpty())
        thumbnails(d, m_columnX.at(DescriptionColumn));
    addRule();
}

void KalPrintLayout::detailedList()
{
    for (int i = 0; i < m_data.defects.size(); ++i) {
        if (i % 20 == 0 && canceled(i))
            return;
        detailedBlock(m_data.defects.at(i));
    }
}

void KalPrintLayout::detailedBlock(const KalPrintDefect &d)
{
    using T = KalPrintTexts;
    const qreal head = lineHeight(Font10Bold);
    const qreal line = lineHeight(Font9);
    need(head + 3 * line);
    m_y += mm(1.5);
    addText(QRectF(0, m_y, m_width, head), T::text(T::Defect) + QLatin1Char(' ') + d.number, Font10Bold);
    m_y += head;
    const qreal x = m_labelWidth;
    const qreal width = m_width - x;
    QString plan;
    if (d.planInfoId > 0 && m_data.sheets.contains(d.planInfoId)) {
        const KalPrintSheet &sheet = m_data.sheets[d.planInfoId];
        plan = sheet.name;
        if (!sheet.index.isEmpty())
            plan += T::text(T::Dash) + T::text(T::Index) + sheet.index;
    }
    const QString company = d.companyId > 0 ? m_data.companyText.value(d.companyId) : QString();
    const QVector<QPair<T::Text, QString>> fields{
        {T::Description, d.description},
        {T::RoombookNumber, d.roombookNumber},
        {T::Room, d.roomname},
        {T::Company, company},
        {T::Status, d.status},
        {T::Priority, d.priority},
        {T::Type, d.type},
        {T::CreatedOn, T::date(d.creationDate)},
        {T::CreatedBy, d.userId},
        {T::Deadline, T::date(d.correctionDate)},
        {T::Deadline1, T::date(d.deadline1)},
        {T::Deadline2, T::date(d.deadline2)},
        {T::Instruction, d.instruction},
        {T::Plan, plan},
    };
    for (const auto &field : fields) {
        if (field.second.trimmed().isEmpty())
            continue;
        if (field.first == T::Status) {
            need(line);
            addFill(QRectF(x, m_y + line * 0.15, line * 0.7, line * 0.7), statusColor(d.statusColor));
            addText(QRectF(0, m_y, x, line), T::text(T::Status), Font9Bold);
            addLines(wrap(field.second, Font9, width - line), Font9, x + line, width - line);
            continue;
        }
        addLines(wrap(field.second, Font9, width), Font9, x, width, T::text(field.first));
    }
    planExcerpt(d, x);
    if (m_options.photosInList && !d.photos.isEmpty())
        thumbnails(d, x);
    m_y += mm(1.5);
    addRule();
}

// The part of the defect's sheet around its markers, planned from the
// stored plan size; the picture is decoded only when its page is painted.
void KalPrintLayout::planExcerpt(const KalPrintDefect &d, qreal x)
{
    const auto sheet = m_data.sheets.constFind(d.planInfoId);
    if (sheet == m_data.sheets.constEnd() || sheet->planId < 0)
        return;
    const QRect clip = KalPrintData::excerpt(sheet->size, d.markerBounds);
    if (clip.isEmpty())
        return;
    const qreal side = qMin(mm(excerptMm), m_width - x);
    const QSizeF shown = QSizeF(clip.size()).scaled(QSizeF(side, side), Qt::KeepAspectRatio);
    m_y += mm(1);
    need(shown.height());
    KalPrintItem item;
    item.kind = KalPrintItem::Picture;
    item.source = KalPrintItem::PlanPicture;
    item.id = sheet->planId;
    item.storedSize = sheet->size;
    item.clip = clip;
    item.planInfoId = sheet->planInfoId;
    item.defectId = d.id;
    item.rect = QRectF(QPointF(x, m_y), shown);
    m_document.pages.last().items << item;
    m_y += shown.height() + mm(1);
}

// Thumbnails in `pos` order, in rows from `x` to the right edge.
void KalPrintLayout::thumbnails(const KalPrintDefect &d, qreal x)
{
    const qreal height = mm(25);
    const qreal gap = mm(2);
    qreal left = x;
    m_y += gap / 2;
    need(height);
    for (const KalPrintPhoto &photo : d.photos) {
        const QSize stored = photo.thumbnailSize.isEmpty() ? QSize(240, 180) : photo.thumbnailSize;
        const qreal width = qMin(m_width - x, height * stored.width() / stored.height());
        if (left + width > m_width + 0.5 && left > x) {
            left = x;
            m_y += height + gap;
            need(height);
        }
        KalPrintItem item;
        item.kind = KalPrintItem::Picture;
        item.source = KalPrintItem::Thumbnail;
        item.id = photo.imageId;
        item.storedSize = stored;
        item.rect = QRectF(left, m_y, width,
                           height * qMin<qreal>(1, (m_width - x) / (height * stored.width() / stored.height())));
        m_document.pages.last().items << item;
        left += width + gap;
    }
    m_y += height + gap / 2;
}
