#include "KalPrintLayout.h"

#include "core/project/KalProgress.h"
#include "core/reports/KalPrintTexts.h"

#include <QPaintDevice>
#include <QRegularExpression>
#include <QTextLayout>

KalPrintLayout::KalPrintLayout(QPaintDevice *device, const KalPrintOptions &options, const KalPrintData &data,
                               KalPrintDocument &document)
    : m_device(device)
    , m_options(options)
    , m_data(data)
    , m_document(document)
{
    m_dpi = qMax(1, device->logicalDpiY());
    m_width = device->width();
    m_height = device->height();
}

qreal KalPrintLayout::mm(qreal millimetres) const
{
    return millimetres * m_dpi / 25.4;
}

QFontMetricsF KalPrintLayout::metrics(int font) const
{
    return QFontMetricsF(m_options.fonts.value(font), m_device);
}

QStringList KalPrintLayout::wrap(const QString &text, int font, qreal width) const
{
    QString prepared = text;
    prepared.remove(QLatin1Char('\r'));
    prepared.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QStringList lines;
    if (prepared.isEmpty())
        return lines;
    QTextLayout layout(prepared, m_options.fonts.value(font), m_device);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(qMax<qreal>(1, width));
        QString part = prepared.mid(line.textStart(), line.textLength());
        while (!part.isEmpty() && (part.back() == QChar::LineSeparator || part.back().isSpace()))
            part.chop(1);
        lines << part;
    }
    layout.endLayout();
    return lines;
}

QStringList KalPrintLayout::cut(const QString &text, int font, qreal width, int maxLines) const
{
    QStringList lines = wrap(text, font, width);
    if (lines.size() <= maxLines)
        return lines;
    // Ends of the words; the longest prefix that fits with the marker is
    // found by bisection (trying word by word costs a measurement per word).
    QVector<int> ends;
    const QRegularExpression word(QStringLiteral("\\S+"));
    for (auto it = word.globalMatch(text); it.hasNext();)
        ends << it.next().capturedEnd();
    const QString marker = QLatin1Char(' ') + KalPrintTexts::andSoOn();
    auto fits = [&](int words) { return wrap(text.left(ends.at(words - 1)) + marker, font, width).size() <= maxLines; };
    int good = 0;
    int bad = ends.size();
    while (bad - good > 1) {
        const int middle = (good + bad) / 2;
        if (fits(middle))
            good = middle;
        else
            bad = middle;
    }
    if (good == 0)
        return wrap(KalPrintTexts::andSoOn(), font, width).mid(0, maxLines);
    return wrap(text.left(ends.at(good - 1)) + marker, font, width);
}

QString KalPrintLayout::elide(const QString &text, int font, qreal width) const
{
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    if (textWidth(line, font) <= width)
        return line;
    const QString ending = KalPrintTexts::text(KalPrintTexts::Ellipsis);
    int good = 0;
    int bad = line.size();
    while (bad - good > 1) {
        const int middle = (good + bad) / 2;
        if (textWidth(line.left(middle) + ending, font) <= width)
            good = middle;
        else
            bad = middle;
    }
    return line.left(good).trimmed() + ending;
}

// The widest line of a frame text as printed on a page of four-digit numbers.
qreal KalPrintLayout::frameTextWidth(const QString &text) const
{
    qreal width = 0;
    for (const QString &line : KalPrintTexts::pageText(text, 9999, 9999).split(QLatin1Char('\n')))
        width = qMax(width, textWidth(line, Font7));
    return width;
}

// Left, centre and right text share the width without overlapping: each
// keeps its own width while all three fit on a line; otherwise the centre
// stays centred with at least a third of the page (or what it needs) and the
// sides share the rest, and texts wrap inside their slot.
QVector<QPair<qreal, qreal>> KalPrintLayout::frameSlots(const QStringList &texts) const
{
    const qreal gap = mm(4);
    const qreal w = m_width;
    qreal need[3];
    // A little slack: the line breaker must not find a text that was measured
    // to fit a hair too wide for its own width.
    for (int i = 0; i < 3; ++i)
        need[i] = texts.value(i).isEmpty() ? 0 : frameTextWidth(texts.value(i)) + mm(0.5);
    if (need[1] <= 0) {
        qreal left = need[0];
        qreal right = need[2];
        const qreal half = (w - gap) / 2;
        if (left + right + gap > w) {
            left = right <= half ? w - gap - right : qMin(left, half);
            right = w - gap - left;
        } else if (right > 0) {
            left = w - gap - right;
        } else {
            left = w;
        }
        return {{0, left}, {0, 0}, {w - right, right}};
    }
    const qreal side = qMax(need[0], need[2]);
    qreal centre = need[1];
    if (side <= 0)
        centre = w;
    else if (centre + 2 * (side + gap) > w)
        centre = qMin(centre, qMax(w / 3, w - 2 * (side + gap)));
    const qreal rest = qMax<qreal>(0, (w - centre) / 2 - gap);
    return {{0, rest}, {(w - centre) / 2, centre}, {w - rest, rest}};
}

qreal KalPrintLayout::frameTextHeight(const QStringList &texts, const QVector<QPair<qreal, qreal>> &spans) const
{
    qreal height = 0;
    for (int i = 0; i < 3; ++i) {
        const QString text = texts.value(i);
        if (text.isEmpty())
            continue;
        const QString sample = KalPrintTexts::pageText(text, 9999, 9999);
        height = qMax(height, wrap(sample, Font7, spans.at(i).second).size() * lineHeight(Font7));
    }
    return height;
}

void KalPrintLayout::planFrame()
{
    m_headerSlots = frameSlots(m_data.header);
    m_footerSlots = frameSlots(m_data.footer);
    m_headerHeight = frameTextHeight(m_data.header, m_headerSlots);
    m_footerHeight = frameTextHeight(m_data.footer, m_footerSlots);
    // The body keeps at least half the page, whatever height the logos ask for.
    m_logoHeight = m_data.logos.isEmpty() ? 0 : qBound<qreal>(0, mm(m_options.logoHeightMm), m_height / 4);
    const qreal gap = mm(3);
    qreal top = m_headerHeight + (m_headerHeight > 0 ? gap : 0) + m_logoHeight + (m_logoHeight > 0 ? gap : 0);
    qreal bottom = m_height - m_footerHeight - (m_footerHeight > 0 ? gap : 0);
    top = qMin(top, m_height / 2);
    bottom = qMax(bottom, m_height * 3 / 4);
    m_body = QRectF(0, top, m_width, bottom - top);
}

void KalPrintLayout::addLogos(KalPrintPage &page, qreal top) const
{
    if (m_logoHeight <= 0)
        return;
    const qreal gap = mm(4);
    // Logos of one alignment stand side by side; all of them shrink together
    // when they would not fit across the page.
    qreal total = 0;
    for (const KalPrintLogo &logo : m_data.logos)
        total += m_logoHeight * logo.size.width() / qMax(1, logo.size.height()) + gap;
    const qreal factor = total > m_width ? m_width / total : 1.0;
    const qreal height = m_logoHeight * factor;
    QVector<qreal> groupWidth(3, 0);
    for (const KalPrintLogo &logo : m_data.logos)
        groupWidth[logo.align] += height * logo.size.width() / qMax(1, logo.size.height()) + gap;
    for (qreal &w : groupWidth)
        w = qMax<qreal>(0, w - gap);
    QVector<qreal> x{0, (m_width - groupWidth[1]) / 2, m_width - groupWidth[2]};
    x[1] = qBound(groupWidth[0] > 0 ? groupWidth[0] + gap : 0, x[1], m_width - groupWidth[2] - groupWidth[1]);
    for (const KalPrintLogo &logo : m_data.logos) {
        KalPrintItem item;
        item.kind = KalPrintItem::Picture;
        item.source = KalPrintItem::Logo;
        item.id = logo.imageId;
        item.storedSize = logo.size;
        const qreal w = height * logo.size.width() / qMax(1, logo.size.height());
        item.rect = QRectF(x[logo.align], top, w, height);
        x[logo.align] += w + gap;
        page.items << item;
    }
}

void KalPrintLayout::addFrame(KalPrintPage &page) const
{
    const int aligns[3] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    const qreal gap = mm(3);
    const bool under = m_options.logosUnderHeader;
    const qreal headerTop = under ? 0 : m_logoHeight + (m_logoHeight > 0 ? gap : 0);
    addLogos(page, under ? m_headerHeight + (m_headerHeight > 0 ? gap : 0) : 0);
    for (int i = 0; i < 3; ++i) {
        KalPrintItem item;
        item.font = Font7;
        item.pageText = true;
        item.text = m_data.header.value(i);
        item.flags = aligns[i] | Qt::AlignTop | Qt::TextWordWrap;
        item.rect = QRectF(m_headerSlots.at(i).first, headerTop, m_headerSlots.at(i).second, m_headerHeight);
        if (!item.text.isEmpty())
            page.items << item;
        item.text = m_data.footer.value(i);
        item.flags = aligns[i] | Qt::AlignBottom | Qt::TextWordWrap;
        item.rect =
            QRectF(m_footerSlots.at(i).first, m_height - m_footerHeight, m_footerSlots.at(i).second, m_footerHeight);
        if (!item.text.isEmpty())
            page.items << item;
    }
}

void KalPrintLayout::newPage()
{
    m_document.pages.append(KalPrintPage());
    addFrame(m_document.pages.last());
    m_y = m_body.top();
    if (m_onNewPage)
        m_onNewPage();
}

// Starts a new page when `height` does not fit below what stands on this
// one. At the top of a page nothing moves on, so nothing can loop.
void KalPrintLayout::need(qreal height)
{
    if (m_y + height > m_body.bottom() && m_y > m_body.top() + 0.5)
        newPage();
}

KalPrintItem &KalPrintLayout::addText(const QRectF &rect, const QString &text, int font, int flags)
{
    KalPrintItem item;
    item.rect = rect;
    item.text = text;
    item.font = font;
    item.flags = flags;
    m_document.pages.last().items << item;
    return m_document.pages.last().items.last();
}

void KalPrintLayout::addFill(const QRectF &rect, const QColor &color)
{
    KalPrintItem item;
    item.kind = KalPrintItem::Fill;
    item.rect = rect;
    item.color = color;
    m_document.pages.last().items << item;
}

void KalPrintLayout::addRule()
{
    KalPrintItem item;
    item.kind = KalPrintItem::Line;
    item.rect = QRectF(0, m_y, m_width, 0);
    item.color = Qt::gray;
    m_document.pages.last().items << item;
}

// Lines flow down the page one at a time, so a block of any length continues
// on the next page; the label stands before its first line.
void KalPrintLayout::addLines(const QStringList &lines, int font, qreal x, qreal width, const QString &label)
{
    const qreal h = lineHeight(font);
    for (int i = 0; i < lines.size(); ++i) {
        need(h);
        if (i == 0 && !label.isEmpty())
            addText(QRectF(0, m_y, x, h), label, Font9Bold);
        addText(QRectF(x, m_y, width, h), lines.at(i), font);
        m_y += h;
    }
}

void KalPrintLayout::title(const QString &text, const QString &subtitle)
{
    const qreal h = lineHeight(Font17Bold);
    need(h * 3);
    addText(QRectF(0, m_y, m_width, h), text, Font17Bold);
    m_y += h;
    if (!subtitle.isEmpty()) {
        addLines(wrap(subtitle, Font10Bold, m_width), Font10Bold, 0, m_width);
    }
    m_y += mm(3);
}

bool KalPrintLayout::canceled(int done) const
{
    KalProgress *progress = KalProgress::instance();
    progress->setProgress(done, m_data.defects.size());
    return progress->wasCanceled();
}

bool KalPrintLayout::build()
{
    m_document.pages.clear();
    planFrame();
    using T = KalPrintTexts;
    for (T::Text label : {T::Description, T::RoombookNumber, T::Room, T::Company, T::Status, T::Priority, T::Type,
                          T::CreatedOn, T::CreatedBy, T::Deadline, T::Deadline1, T::Deadline2, T::Instruction, T::Plan})
        m_labelWidth = qMax(m_labelWidth, textWidth(T::text(label), Font9Bold));
    m_labelWidth = qMin(m_labelWidth + mm(2), m_width / 3);
    newPage();
    title(T::text(T::ListTitle), m_data.projectName);
    if (m_options.layout == KalPrintOptions::Compact)
        compactList();
    else
        detailedList();
    m_onNewPage = nullptr;
    if (KalProgress::instance()->wasCanceled())
        return false;
    if (m_options.photoAnnex)
        photoAnnex();
    if (m_options.planAnnex)
        planAnnex();
    if (m_options.reductionSummary)
        reductionSummary();
    return !KalProgress::instance()->wasCanceled();
}
