#include "KalPrintTargets.h"

#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/reports/KalPrintPerCompany.h"
#include "gui/widgets/KalFileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QSqlQuery>

namespace {
constexpr int PdfResolution = 600;
}

KalPrintTargets::KalPrintTargets(QSqlDatabase db, const QVector<qint64> &defectIds, const KalPrintOptions &options)
    : m_db(std::move(db))
    , m_ids(defectIds)
    , m_options(options)
{
}

bool KalPrintTargets::run(QWidget *parent, Target target)
{
    switch (target) {
    case Print:
        return print(parent);
    case Preview:
        return preview(parent);
    case Pdf:
        return pdf(parent);
    }
    return false;
}

void KalPrintTargets::preparePrinter(QPrinter *printer) const
{
    // The resolution of the PDF, so that the preview measures text and
    // breaks pages exactly as the file will.
    printer->setResolution(PdfResolution);
    printer->setFullPage(false);
    KalPrintDefects(m_db, m_ids, m_options).setupPage(printer, KalPrintDefects::Paper::Device);
}

bool KalPrintTargets::printOn(QPrinter *printer)
{
    KalPrintDefects document(m_db, m_ids, m_options);
    document.setupPage(printer, KalPrintDefects::Paper::Device);
    QString error;
    const bool painted = document.paint(printer, &error);
    if (document.wasCanceled())
        return false;
    if (!painted || printer->printerState() == QPrinter::Error) {
        KalPrompt::critical(tr("Druckfehler"),
                            tr("Die Mängelliste konnte nicht gedruckt werden.\n%1")
                                .arg(error.isEmpty() ? tr("Der Drucker meldet einen Fehler.") : error));
        return false;
    }
    return true;
}

bool KalPrintTargets::print(QWidget *parent)
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    return printOn(&printer);
}

bool KalPrintTargets::preview(QWidget *parent)
{
    QPrinter printer(QPrinter::HighResolution);
    preparePrinter(&printer);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-druckvorschau.ico")));
    // The preview asks again whenever it needs its pages; a failure is
    // shown once, not on every repaint.
    bool reported = false;
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, [this, &reported](QPrinter *target) {
        KalPrintDefects document(m_db, m_ids, m_options);
        QString error;
        if (!document.paint(target, &error) && !document.wasCanceled() && !reported) {
            reported = true;
            KalPrompt::critical(tr("Druckfehler"),
                                tr("Die Druckvorschau konnte nicht erstellt werden.\n%1").arg(error));
        }
    });
    dialog.exec();
    return !reported;
}

QString KalPrintTargets::projectName() const
{
    QSqlQuery query(m_db);
    if (query.exec(QStringLiteral("SELECT projectname FROM kal")) && query.next())
        return query.value(0).toString();
    return QString();
}

QString KalPrintTargets::askPdfPath(QWidget *parent) const
{
    const QString proposed =
        KalPrintPerCompany::safeName(projectName() + tr(" Mängelliste"), 200) + QStringLiteral(".pdf");
    for (;;) {
        QString path = KalFileDialog::getSaveFileName(parent, KalSettings::PdfExport, tr("Speichern als PDF-Dokument"),
                                                      tr("Pdf files (*.pdf)"), proposed);
        if (path.isEmpty())
            return QString();
        if (QFileInfo(path).suffix().toLower() != QLatin1String("pdf"))
            path += QStringLiteral(".pdf");
        const QFileInfo file(path);
        const QFileInfo folder(file.absolutePath());
        // The new file replaces the old one by a rename in its folder: both
        // must be writable, or the old file could not be replaced.
        if (!file.exists() || (file.isWritable() && folder.isWritable()))
            return path;
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Datei\n%1\nexistiert bereits und kann nicht überschrieben werden.\nÜberprüfen "
                               "Sie\n- ob die Datei bereits geöffnet ist\n- Ihre Schreibrechte für die Datei.")
                                .arg(QDir::toNativeSeparators(path)));
    }
}

bool KalPrintTargets::pdf(QWidget *parent)
{
    for (;;) {
        const QString path = askPdfPath(parent);
        if (path.isEmpty())
            return false;
        KalPrintDefects document(m_db, m_ids, m_options);
        QString error;
        if (document.writePdf(path, &error))
            return true;
        if (document.wasCanceled())
            return false;
        KalPrompt::critical(
            tr("Dateifehler"),
            tr("Die Datei\n%1\nkonnte nicht geschrieben werden.\n%2").arg(QDir::toNativeSeparators(path), error));
    }
}

bool KalPrintTargets::runPerCompany(QWidget *parent)
{
    const QString folder = KalFileDialog::getExistingDirectory(parent, KalSettings::PdfExport,
                                                               tr("Ordner für die PDF-Dateien je Firma wählen"));
    if (folder.isEmpty())
        return false;
    QStringList written;
    QString error;
    const bool ok = KalPrintPerCompany::write(m_db, m_ids, m_options, folder, &written, &error);
    if (!ok && error.isEmpty())
        return false; // cancelled
    if (!ok) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die PDF-Dateien je Firma konnten nicht vollständig geschrieben werden.\n%1\n"
                               "Bereits geschrieben: %2")
                                .arg(error)
                                .arg(written.size()));
        return false;
    }
    KalPrompt::information(tr("PDF je Firma"), tr("%1 PDF-Dateien wurden im Ordner\n%2\ngespeichert.")
                                                   .arg(written.size())
                                                   .arg(QDir::toNativeSeparators(folder)));
    return true;
}
