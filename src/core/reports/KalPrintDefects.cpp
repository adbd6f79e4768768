#include "KalPrintDefects.h"

#include "core/project/KalConfig.h"
#include "core/project/KalProgress.h"
#include "core/reports/KalDefectFilter.h"
#include "core/reports/KalPrintData.h"
#include "core/reports/KalPrintDocument.h"
#include "core/reports/KalPrintLayout.h"
#include "core/reports/KalPrintTexts.h"

#include <QDir>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>

namespace {

constexpr int pdfDpi = 600;

// Passes the PDF engine's output on and remembers whether every byte was
// taken: the engine itself ignores write errors.
class WriteCheck : public QIODevice
{
public:
    explicit WriteCheck(QIODevice *target)
        : m_target(target)
    {
        open(QIODevice::WriteOnly);
    }
    bool failed() const { return m_failed; }
    QString reason() const { return m_target->errorString(); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        if (m_failed)
            return -1;
        if (m_target->write(data, size) != size) {
            m_failed = true;
            return -1;
        }
        return size;
    }

private:
    QIODevice *m_target;
    bool m_failed = false;
};

} // namespace

KalPrintOptions KalPrintOptions::fromSettings()
{
    KalPrintOptions options;
    const QSettings settings;
    bool ok = false;
    const int height = settings.value(QStringLiteral("Logo/LogoPrintHeight"), 25).toInt(&ok);
    options.logoHeightMm = ok ? qMax(0, height) : 25;
    options.logosUnderHeader = settings.value(QStringLiteral("Logo/printLogosUnderHeader"), true).toBool();
    const KalConfig &config = KalConfig::instance();
    for (int i = 0; i < config.fontCount(); ++i)
        options.fonts << config.font(KalConfig::FontIndex(i));
    options.marginsMm = config.margins();
    return options;
}

KalPrintDefects::KalPrintDefects(QSqlDatabase db, const QVector<qint64> &defectIds, const KalPrintOptions &options)
    : m_db(db)
    , m_ids(defectIds)
    , m_options(options)
{
    // Options built by hand get the configured fonts and margins.
    const KalPrintOptions defaults = KalPrintOptions::fromSettings();
    if (m_options.fonts.size() < defaults.fonts.size())
        m_options.fonts = defaults.fonts;
    if (m_options.marginsMm.size() != 4)
        m_options.marginsMm = defaults.marginsMm;
}

KalPrintDefects::~KalPrintDefects() = default;

QVector<qint64> KalPrintDefects::allByNumber(QSqlDatabase db, QString *error)
{
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.exec(QStringLiteral("SELECT id, number FROM defect"))) {
        *error = q.lastError().text();
        return {};
    }
    QVector<KalFilteredDefect> defects;
    while (q.next()) {
        KalFilteredDefect d;
        d.id = q.value(0).toLongLong();
        d.number = q.value(1).toString();
        defects << d;
    }
    KalDefectFilter::sort(defects, KalDefectFilterState::SortByNumber, true);
    QVector<qint64> ids;
    ids.reserve(defects.size());
    for (const KalFilteredDefect &d : qAsConst(defects))
        ids << d.id;
    return ids;
}

void KalPrintDefects::setupPage(QPagedPaintDevice *device, Paper paper) const
{
    const QVector<int> &m = m_options.marginsMm;
    const QMarginsF margins(m[0], m[1], m[2], m[3]);
    QPageLayout layout = device->pageLayout();
    if (paper == Paper::A4 || !layout.isValid()) {
        if (auto *pdf = dynamic_cast<QPdfWriter *>(device))
            pdf->setResolution(pdfDpi);
        layout = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, margins, QPageLayout::Millimeter);
    } else {
        layout.setUnits(QPageLayout::Millimeter);
        const QMarginsF least = layout.minimumMargins();
        layout.setMargins(QMarginsF(qMax(margins.left(), least.left()), qMax(margins.top(), least.top()),
                                    qMax(margins.right(), least.right()), qMax(margins.bottom(), least.bottom())));
    }
    device->setPageLayout(layout);
}

bool KalPrintDefects::layout(QPagedPaintDevice *device, QString *error)
{
    m_canceled = false;
    if (device->width() <= 0 || device->height() <= 0) {
        *error = tr("Die Seite hat keinen bedruckbaren Bereich.");
        return false;
    }
    KalPrintData data;
    const bool withPhotos = m_options.photosInList || m_options.photoAnnex;
    if (!data.read(m_db, m_ids, withPhotos, error)) {
        *error = tr("Die Mängel konnten nicht gelesen werden.") + QLatin1Char('\n') + *error;
        return false;
    }
    QSet<qint64> listed;
    for (const KalPrintDefect &d : qAsConst(data.defects))
        listed.insert(d.id);
    m_document = std::make_unique<KalPrintDocument>(m_db, m_options.fonts, listed);
    KalPrintLayout layout(device, m_options, data, *m_document);
    if (!layout.build()) {
        m_canceled = true;
        m_document->pages.clear();
        return false;
    }
    return true;
}

int KalPrintDefects::pageCount() const
{
    return m_document ? m_document->pages.size() : 0;
}

int KalPrintDefects::placeholderCount() const
{
    return m_document ? m_document->placeholderCount() : 0;
}

int KalPrintDefects::sheetDecodeCount() const
{
    return m_document ? m_document->sheetDecodeCount() : 0;
}

bool KalPrintDefects::paint(QPagedPaintDevice *device, QString *error)
{
    KalProgress *progress = KalProgress::instance();
    progress->beginCancelable(tr("Mängelliste wird erstellt ..."));
    struct End
    {
        KalProgress *p;
        ~End() { p->end(); }
    } end{progress};
    if (!layout(device, error))
        return false;
    QPainter painter;
    if (!painter.begin(device)) {
        *error = tr("Der Druck kann nicht beginnen: das Ausgabegerät ist nicht bereit.");
        return false;
    }
    const int count = m_document->pages.size();
    for (int i = 0; i < count; ++i) {
        if (i > 0 && !device->newPage()) {
            *error = tr("Eine neue Seite kann nicht begonnen werden.");
            painter.end();
            return false;
        }
        m_document->paintPage(painter, i);
        progress->setProgress(i + 1, count);
        if (progress->wasCanceled()) {
            m_canceled = true;
            painter.end();
            return false;
        }
    }
    return painter.end();
}

bool KalPrintDefects::writePdf(QIODevice *out, QString *error)
{
    WriteCheck check(out);
    QPdfWriter writer(&check);
    writer.setCreator(QStringLiteral("Pellwick"));
    writer.setTitle(KalPrintTexts::text(KalPrintTexts::ListTitle));
    setupPage(&writer, Paper::A4);
    if (!paint(&writer, error))
        return false;
    if (check.failed()) {
        *error = check.reason();
        return false;
    }
    return true;
}

bool KalPrintDefects::writePdf(const QString &path, QString *error)
{
    const QString shown = QDir::toNativeSeparators(path);
    // A temporary file beside the target, renamed over it only when complete.
    QSaveFile file(path);
    QString reason;
    if (!file.open(QIODevice::WriteOnly)) {
        *error = tr("Die Datei\n%1\nkann nicht geschrieben werden.\n%2").arg(shown, file.errorString());
        return false;
    }
    if (!writePdf(&file, &reason)) {
        file.cancelWriting();
        if (!m_canceled)
            *error = tr("Die Datei\n%1\nkann nicht geschrieben werden.\n%2").arg(shown, reason);
        return false;
    }
    if (!file.commit()) {
        *error = tr("Die Datei\n%1\nkann nicht geschrieben werden.\n%2").arg(shown, file.errorString());
        return false;
    }
    return true;
}
