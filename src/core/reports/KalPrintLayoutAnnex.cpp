// What follows the list in KalPrintLayout: the photo annex, the plan annex
// and the reduction summary, each starting on a page of its own.
#include "KalPrintLayout.h"

#include "core/reports/KalPrintTexts.h"

#include <QMap>

// Photos stand three side by side (a defect's usual three in one row), each
// under its own lines: small enough on paper to need few pixels, large
// enough to show the defect.
void KalPrintLayout::photoAnnex()
{
    bool any = false;
    for (const KalPrintDefect &d : m_data.defects)
        any = any || !d.photos.isEmpty();
    if (!any)
        return;
    newPage();
    title(KalPrintTexts::text(KalPrintTexts::PhotoAnnexTitle), m_data.projectName);
    const int columns = 3;
    const qreal gap = mm(5);
    const qreal column = (m_width - (columns - 1) * gap) / columns;
    QVector<AnnexCell> row;
    auto flush = [&] {
        qreal height = 0;
        for (const AnnexCell &cell : qAsConst(row))
            height = qMax(height, cell.height);
        if (height <= m_body.height()) {
            need(height);
            const qreal top = m_y;
            for (int i = 0; i < row.size(); ++i) {
                m_y = top;
                placeCell(row.at(i), i * (column + gap), column);
            }
            m_y = top + height + mm(5);
        } else {
            // Lines taller than a page (a hostile comment): one cell after
            // the other, continuing over pages.
            for (const AnnexCell &cell : qAsConst(row)) {
                placeCell(cell, 0, column);
                m_y += mm(5);
            }
        }
        row.clear();
    };
    for (int i = 0; i < m_data.defects.size(); ++i) {
        if (canceled(i))
            return;
        const KalPrintDefect &d = m_data.defects.at(i);
        for (int p = 0; p < d.photos.size(); ++p) {
            row << annexCell(d, p, column);
            if (row.size() == columns)
                flush();
        }
    }
    if (!row.isEmpty())
        flush();
}

KalPrintLayout::AnnexCell KalPrintLayout::annexCell(const KalPrintDefect &d, int index, qreal width) const
{
    using T = KalPrintTexts;
    const KalPrintPhoto &photo = d.photos.at(index);
    AnnexCell cell;
    // The count is the rows actually there: a stale `image_cnt` must not
    // print "Foto 3 von 2".
    cell.head = wrap(T::text(T::PhotoOfDefect).arg(index + 1).arg(d.photos.size()).arg(d.number), Font9Bold, width);
    QStringList text;
    if (!photo.caption.isEmpty())
        text << T::text(T::PhotoCaption) + photo.caption;
    if (photo.date.isValid())
        text << T::text(T::DateOf).arg(T::date(photo.date));
    if (!photo.comment.isEmpty())
        text << photo.comment;
    if (d.companyId > 0 && m_data.companyAddress.contains(d.companyId))
        text << T::text(T::Company) + m_data.companyAddress.value(d.companyId).join(QStringLiteral(", "));
    for (const QString &t : qAsConst(text))
        cell.lines << wrap(t, Font9, width);
    const QSize stored = photo.size.isEmpty() ? QSize(4, 3) : photo.size;
    // Never taller than a third of the page, so a picture always fits on a fresh one.
    const QSizeF shown = QSizeF(stored).scaled(QSizeF(width, m_body.height() / 3), Qt::KeepAspectRatio);
    cell.picture.kind = KalPrintItem::Picture;
    cell.picture.source = KalPrintItem::Photo;
    cell.picture.id = photo.imageId;
    cell.picture.storedSize = stored;
    cell.picture.rect = QRectF(QPointF(0, 0), shown);
    cell.height =
        cell.head.size() * lineHeight(Font9Bold) + cell.lines.size() * lineHeight(Font9) + mm(1) + shown.height();
    return cell;
}

void KalPrintLayout::placeCell(const AnnexCell &cell, qreal x, qreal width)
{
    addLines(cell.head, Font9Bold, x, width);
    addLines(cell.lines, Font9, x, width);
    m_y += mm(1);
    need(cell.picture.rect.height());
    KalPrintItem item = cell.picture;
    item.rect.moveTopLeft(QPointF(x, m_y));
    m_document.pages.last().items << item;
    m_y += item.rect.height();
}

void KalPrintLayout::planAnnex()
{
    using T = KalPrintTexts;
    QVector<qint64> order;
    for (const KalPrintDefect &d : m_data.defects)
        if (m_data.sheets.contains(d.planInfoId) && !order.contains(d.planInfoId))
            order << d.planInfoId;
    if (order.isEmpty())
        return;
    newPage();
    title(T::text(T::PlanAnnexTitle), m_data.projectName);
    for (int i = 0; i < order.size(); ++i) {
        const KalPrintSheet &sheet = m_data.sheets[order.at(i)];
        if (i > 0)
            newPage();
        QString label = T::text(T::Plan) + sheet.name;
        if (!sheet.index.isEmpty())
            label += QStringLiteral("   ") + T::text(T::Index) + sheet.index;
        if (sheet.date.isValid())
            label += QStringLiteral("   ") + T::text(T::Date) + T::date(sheet.date);
        addLines(wrap(label, Font10Bold, m_width), Font10Bold, 0, m_width);
        m_y += mm(2);
        const QSize stored = sheet.size.isEmpty() ? QSize(4, 3) : sheet.size;
        const QSizeF shown = QSizeF(stored).scaled(QSizeF(m_width, m_body.bottom() - m_y), Qt::KeepAspectRatio);
        KalPrintItem item;
        item.kind = KalPrintItem::Picture;
        item.source = KalPrintItem::PlanPicture;
        item.id = sheet.planId;
        item.storedSize = stored;
        item.planInfoId = sheet.planInfoId;
        item.rect = QRectF(QPointF((m_width - shown.width()) / 2, m_y), shown);
        m_document.pages.last().items << item;
        m_y += shown.height();
    }
}

// Defects with a reduction counted per company and status. `reduction` is a
// flag, so there is nothing to add up but the defects themselves.
void KalPrintLayout::reductionSummary()
{
    using T = KalPrintTexts;
    QVector<QString> companies;
    QHash<QString, QVector<QPair<QString, int>>> counts;
    int total = 0;
    for (const KalPrintDefect &d : m_data.defects) {
        if (!d.reduction)
            continue;
        QString company = d.companyId > 0 ? m_data.companyText.value(d.companyId) : QString();
        if (company.isEmpty())
            company = T::text(T::WithoutCompany);
        if (!counts.contains(company))
            companies << company;
        auto &statuses = counts[company];
        auto it = std::find_if(statuses.begin(), statuses.end(), [&](const auto &s) { return s.first == d.status; });
        if (it == statuses.end())
            statuses.append({d.status, 1});
        else
            ++it->second;
        ++total;
    }
    if (total == 0)
        return;
    newPage();
    title(T::text(T::ReductionTitle), m_data.projectName);
    const qreal line = lineHeight(Font9Bold) + mm(1);
    const qreal xs[3] = {0, m_width * 0.5, m_width * 0.85};
    const qreal ws[3] = {m_width * 0.5, m_width * 0.35, m_width * 0.15};
    auto row = [&](const QString &a, const QString &b, const QString &c, int font) {
        need(line);
        const QString cells[3] = {a, b, c};
        for (int i = 0; i < 3; ++i)
            addText(QRectF(xs[i], m_y, ws[i] - mm(2), line), elide(cells[i], font, ws[i] - mm(2)), font,
                    (i == 2 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter | Qt::TextSingleLine);
        m_y += line;
    };
    row(T::heading(T::Company), T::heading(T::Status), T::text(T::ReductionCount), Font9Bold);
    addRule();
    for (const QString &company : qAsConst(companies)) {
        int sum = 0;
        bool first = true;
        for (const auto &status : counts.value(company)) {
            row(first ? company : QString(), status.first, QString::number(status.second), Font9);
            sum += status.second;
            first = false;
        }
        row(QString(), T::text(T::ReductionTotal), QString::number(sum), Font9Bold);
        addRule();
    }
    row(T::text(T::ReductionTotal), QString(), QString::number(total), Font10Bold);
}
