#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QRectF>
#include <QSet>
#include <QSize>
#include <QSqlDatabase>
#include <QString>
#include <QVector>
#include <future>
#include <memory>

class QPainter;
class QThreadPool;

// One thing drawn on a page, placed in device pixels of the page's paint area.
struct KalPrintItem
{
    enum Kind { Text, Fill, Line, Picture };
    // Where a picture's bytes are stored.
    enum Source { Photo, Thumbnail, PlanPicture, Logo };

    Kind kind = Text;
    QRectF rect;
    // Text: drawn with `flags` (Qt::AlignmentFlag | Qt::TextFlag) in `font`
    // (index into the run's fonts); `pageText` replaces "${page.cur}" and
    // "${page.count}" when the page is painted. Fill: `color` fills `rect`.
    // Line: from top left to bottom right in `color`.
    QString text;
    int font = 0;
    int flags = 0;
    bool pageText = false;
    QColor color;
    // Picture: the stored row and its stored size; `clip` (stored pixels,
    // null: all) is the part shown. Plan pictures get the markers and texts
    // of the defects in the run's list over them (`planInfoId`), or those of
    // `defectId` alone when it is set (the excerpt beside a defect).
    Source source = Photo;
    qint64 id = -1;
    QSize storedSize;
    QRect clip;
    qint64 planInfoId = -1;
    qint64 defectId = -1;
};
Q_DECLARE_TYPEINFO(KalPrintItem, Q_MOVABLE_TYPE);

struct KalPrintPage
{
    QVector<KalPrintItem> items;
};

// A laid-out document: the pages with everything on them, and the painting
// of one page at a time. Pictures are decoded only when their page is
// painted, at about 200 dpi of their printed size, and dropped afterwards;
// logos, which stand on every page, are decoded once per run so that the
// PDF holds each of them once. Plan excerpts are cut from one decoded copy
// of their sheet kept for the run: the list visits the sheets in the order
// of its defects, so a sheet decoded per excerpt would be decoded again and
// again. While a page is painted, the photos of the next pages are decoded
// on the other cores: decoding is most of a long list's time.
class KalPrintDocument
{
    Q_DECLARE_TR_FUNCTIONS(KalPrintDocument)

public:
    KalPrintDocument(QSqlDatabase db, const QVector<QFont> &fonts, const QSet<qint64> &listed);
    ~KalPrintDocument();

    QVector<KalPrintPage> pages;

    // Paints page `index` (0-based) with the painter's origin at the paint area.
    void paintPage(QPainter &painter, int index);
    int placeholderCount() const { return m_placeholders; }
    int sheetDecodeCount() const { return m_sheetDecodes; }

    // Decodes stored picture bytes scaled to about `target` pixels (never
    // enlarged; a JPEG to the nearest size its decoder reaches cheaply unless
    // `exact`), cut to `clip` first when it is not null. Refuses more than
    // 100 megapixels and truncated JPEGs without decoding them; null then.
    static QImage decode(const QByteArray &data, const QSize &target, const QRect &clip = QRect(), bool exact = false);
    // Pixel size of a picture printed in `rect` of a device with `dpi`.
    static QSize printSize(const QSizeF &rect, int dpi);

private:
    QImage picture(const KalPrintItem &item, const QSize &target);
    QImage excerpt(const KalPrintItem &item, const QSize &target);
    QByteArray storedBytes(const KalPrintItem &item);
    void paintPicture(QPainter &painter, const KalPrintItem &item, const QImage &image);
    void paintPlanItems(QPainter &painter, const KalPrintItem &item);
    void paintPlaceholder(QPainter &painter, const QRectF &rect);
    void decodeAhead(int page, int dpi);
    static bool decodesAhead(const KalPrintItem &item);
    void paintWrapped(QPainter &painter, const KalPrintItem &item, const QString &text);

    QSqlDatabase m_db;
    QVector<QFont> m_fonts;
    QSet<qint64> m_listed;
    QHash<qint64, QImage> m_logos;
    // Decoded sheets for excerpts by plan id, with the eighths of the stored
    // size they were decoded at; least recently used first. Bounded in bytes.
    struct Sheet
    {
        qint64 planId = -1;
        int eighths = 0;
        QImage image;
    };
    QVector<Sheet> m_sheets;
    int m_placeholders = 0;
    int m_sheetDecodes = 0;
    // Decodes started ahead, by page and item index; the next item to start.
    std::unique_ptr<QThreadPool> m_pool;
    QHash<QPair<int, int>, std::shared_future<QImage>> m_ahead;
    int m_aheadPage = 0;
    int m_aheadItem = 0;
};
