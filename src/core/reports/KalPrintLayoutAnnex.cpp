// What follows the list in KalPrintLayout: the photo annex, the plan annex
// and the reduction summary, each starting on a page of its own.
#include "KalPrintLayout.h"

#include "core/reports/KalPrintTexts.h"

#include <QMap>

void KalPrintLayout::photoAnnex()
{
    bool any = false;
    for (const KalPrintDefect &d : m_data.defects)
        any = any || !d.photos.isEmpty();
    if (!any)
        return;
    newPage();
    title(KalPrintTexts::text(KalPrintTexts::PhotoAnnexTitle), m_data.projectName);
    for (int i = 0; i < m_data.defects.size(); ++i) {
        if (canceled(i))
            return;
        const KalPrintDefect &d = m_data.defects.at(i);
        for (int p = 0; p < d.photos.size(); ++p)
            annexPhoto(d, p);
    }
}

void KalPrintLayout::annexPhoto(const KalPrintDefect &d, int index)
{
    using T = KalPrintTexts;
    const KalPrintPhoto &photo = d.photos.at(index);
    // The count is the rows actually there: a stale `image_cnt` must not
    // print "Foto 3 von 2".
    QStringList lines{T::text(T::PhotoOfDefect).arg(index + 1).arg(d.photos.size()).arg(d.number)};
    QStringList text;
    if (!photo.caption.isEmpty())
        text << T::text(T::PhotoCaption) + photo.caption;
    if (photo.date.isValid())
        text << T::text(T::DateOf).arg(T::date(photo.date));
    if (!photo.comment.isEmpty())
        text << photo.comment;
    if (d.companyId > 0 && m_data.companyAddress.contains(d.companyId))
        text << T::text(T::Company) + m_data.companyAddress.value(d.companyId).join(QStringLiteral(", "));
    QStringList wrapped;
    for (const QString &t : qAsConst(text))
        wrapped << wrap(t, Font9, m_width);
    const qreal line = lineHeight(Font9);
    const QSize stored = photo.size.isEmpty() ? QSize(4, 3) : photo.size;
    // Two photos a page; a picture never gets taller than that, so it always
    // fits on a fresh page.
    QSizeF box(m_width, m_body.height() * 0.42);
    const QSizeF shown = QSizeF(stored).scaled(box, Qt::KeepAspectRatio);
    need(qMin(m_body.height(), lineHeight(Font9Bold) + wrapped.size() * line + shown.height() + mm(2)));
    addLines(lines, Font9Bold, 0, m_width);
    addLines(wrapped, Font9, 0, m_width);
    m_y += mm(1);
    need(shown.height());
    KalPrintItem item;
    item.kind = KalPrintItem::Picture;
    item.source = KalPrintItem::Photo;
    item.id = photo.imageId;
    item.storedSize = stored;
    item.rect = QRectF(QPointF(0, m_y), shown);
    m_document.pages.last().items << item;
    m_y += shown.height() + mm(5);
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
