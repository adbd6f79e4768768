#pragma once

#include <QCoreApplication>
#include <QFont>
#include <QSqlDatabase>
#include <QString>
#include <QVector>
#include <memory>

class QIODevice;
class QPagedPaintDevice;
class KalPrintDocument;

// What a printed list contains and how it looks.
struct KalPrintOptions
{
    enum Layout { Compact, Detailed };
    Layout layout = Compact;
    bool photosInList = false; // thumbnails with each defect
    bool photoAnnex = false;   // "Mängelliste - Anhang Fotos"
    bool planAnnex = false;    // "Mängelliste - Anhang Pläne"
    // A page counting the listed defects with a reduction per company and
    // status; only printed when some listed defect carries one.
    bool reductionSummary = true;

    // Logo height in millimetres (0: no logos) and their place on the page.
    int logoHeightMm = 25;
    bool logosUnderHeader = true;
    // The six print fonts, indexed by KalConfig::FontIndex.
    QVector<QFont> fonts;
    // Left, top, right, bottom in millimetres.
    QVector<int> marginsMm;

    // Layout and flags from the caller, the rest from the settings
    // ("Logo/LogoPrintHeight", "Logo/printLogosUnderHeader") and KalConfig.
    static KalPrintOptions fromSettings();
};

// Turns an ordered list of defect ids into paged output: the compact or the
// detailed list, the annexes and the reduction summary, with the project's
// header, footer and logos on every page. Paints on any QPagedPaintDevice
// (QPdfWriter here, QPrinter in the GUI), measuring text on that device.
//
// A run lays out the whole document first without painting (so that
// "${page.count}" is known and the preview counts the same pages as the PDF),
// then paints one page at a time. Long runs report through KalProgress and
// stop when it is canceled.
class KalPrintDefects
{
    Q_DECLARE_TR_FUNCTIONS(KalPrintDefects)

public:
    KalPrintDefects(QSqlDatabase db, const QVector<qint64> &defectIds, const KalPrintOptions &options);
    ~KalPrintDefects();
    KalPrintDefects(const KalPrintDefects &) = delete;
    KalPrintDefects &operator=(const KalPrintDefects &) = delete;

    // Every defect of the project, ordered by number as numbers ("9" before
    // "10"); empty with `error` set on a database error.
    static QVector<qint64> allByNumber(QSqlDatabase db, QString *error);

    // The paper a list is laid out on: A4 portrait at 600 dpi (our PDF
    // files), or the paper and orientation the device has already been given
    // (a printer set up in its dialog).
    enum class Paper { A4, Device };
    // The margins of the options on the chosen paper; the device's own
    // minimum margins win where they are wider.
    void setupPage(QPagedPaintDevice *device, Paper paper) const;

    // Lays out for `device` (page set up already) without painting. False with
    // `error` set on a database error or when the device has no page area.
    bool layout(QPagedPaintDevice *device, QString *error);
    // Pages of the last layout(); 0 before.
    int pageCount() const;

    // layout() and then every page. False with `error` set when the painter
    // cannot begin on the device (a failed printer), on a database error, or
    // when canceled (then `error` stays empty; see wasCanceled()).
    bool paint(QPagedPaintDevice *device, QString *error);
    bool wasCanceled() const { return m_canceled; }

    // The document as a PDF at `path`: written to a temporary file in the
    // target folder and renamed over `path` only when complete, so a failure
    // leaves an existing file untouched and nothing partial. False with a
    // user-readable `error` (not shown here) or when canceled.
    bool writePdf(const QString &path, QString *error);
    // The document as PDF into an open device (the caller commits or discards
    // it). False with `error` set when writing failed.
    bool writePdf(QIODevice *out, QString *error);

    // Pictures that could not be read and were printed as a placeholder.
    int placeholderCount() const;
    // How often plan sheets were decoded for the excerpts of the last run:
    // once per sheet while the decoded sheets fit their memory budget.
    int sheetDecodeCount() const;

private:
    QSqlDatabase m_db;
    QVector<qint64> m_ids;
    KalPrintOptions m_options;
    std::unique_ptr<KalPrintDocument> m_document;
    bool m_canceled = false;
};
