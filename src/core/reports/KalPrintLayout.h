#pragma once

#include "core/reports/KalPrintData.h"
#include "core/reports/KalPrintDefects.h"
#include "core/reports/KalPrintDocument.h"

#include <QFontMetricsF>
#include <QStringList>
#include <functional>

class QPaintDevice;

// Places a list's pages for one device: page frame (header, footer, logos),
// the compact or detailed list, the annexes and the reduction summary. Text is
// measured on the device; pictures are planned from their stored sizes.
class KalPrintLayout
{
    Q_DECLARE_TR_FUNCTIONS(KalPrintLayout)

public:
    KalPrintLayout(QPaintDevice *device, const KalPrintOptions &options, const KalPrintData &data,
                   KalPrintDocument &document);
    // False when the user canceled.
    bool build();

    // The lines `text` breaks into at `width`, breaking inside words only
    // where a word alone is wider.
    QStringList wrap(const QString &text, int font, qreal width) const;
    // At most `maxLines` lines; a longer text is cut after the last word with
    // which it and "usw..." still fit, found by bisection over the words.
    QStringList cut(const QString &text, int font, qreal width, int maxLines) const;
    // One line; a longer text ends in " ...".
    QString elide(const QString &text, int font, qreal width) const;

private:
    enum Font { Font10Bold = 0, Font17Bold = 1, Font9 = 2, Font9Bold = 3, Font7 = 4, Font5 = 5 };

    qreal mm(qreal millimetres) const;
    QFontMetricsF metrics(int font) const;
    qreal lineHeight(int font) const { return metrics(font).lineSpacing(); }
    qreal textWidth(const QString &text, int font) const { return metrics(font).horizontalAdvance(text); }

    void planFrame();
    qreal frameTextWidth(const QString &text) const;
    QVector<QPair<qreal, qreal>> frameSlots(const QStringList &texts) const;
    qreal frameTextHeight(const QStringList &texts, const QVector<QPair<qreal, qreal>> &spans) const;
    void addFrame(KalPrintPage &page) const;
    void addLogos(KalPrintPage &page, qreal top) const;

    void newPage();
    void need(qreal height);
    KalPrintItem &addText(const QRectF &rect, const QString &text, int font, int flags = Qt::AlignLeft | Qt::AlignTop);
    void addFill(const QRectF &rect, const QColor &color);
    void addRule();
    void addLines(const QStringList &lines, int font, qreal x, qreal width, const QString &label = QString());
    void title(const QString &text, const QString &subtitle = QString());
    bool canceled(int done) const;

    void compactList();
    void compactHeading();
    void compactRow(const KalPrintDefect &defect);
    void detailedList();
    void detailedBlock(const KalPrintDefect &defect);
    void thumbnails(const KalPrintDefect &defect, qreal x);
    void planExcerpt(const KalPrintDefect &defect, qreal x);
    void photoAnnex();
    struct AnnexCell
    {
        QStringList head;  // bold
        QStringList lines; // wrapped to the column
        KalPrintItem picture;
        qreal height = 0;
    };
    AnnexCell annexCell(const KalPrintDefect &defect, int index, qreal width) const;
    void placeCell(const AnnexCell &cell, qreal x, qreal width);
    void planAnnex();
    void reductionSummary();

    QPaintDevice *m_device;
    const KalPrintOptions &m_options;
    const KalPrintData &m_data;
    KalPrintDocument &m_document;
    int m_dpi = 600;
    qreal m_width = 0;
    qreal m_height = 0;
    // Left edge and width of the left, centre and right frame texts.
    QVector<QPair<qreal, qreal>> m_headerSlots;
    QVector<QPair<qreal, qreal>> m_footerSlots;
    qreal m_headerHeight = 0;
    qreal m_footerHeight = 0;
    qreal m_logoHeight = 0;
    QRectF m_body;
    qreal m_y = 0;
    qreal m_labelWidth = 0;
    std::function<void()> m_onNewPage;
    // Compact columns: left edge and width, in order number, description,
    // room, company, deadline, status.
    QVector<qreal> m_columnX;
    QVector<qreal> m_columnWidth;
};
