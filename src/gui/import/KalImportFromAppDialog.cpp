#include "KalImportFromAppDialog.h"
#include "ui_KalImportFromAppDialog.h"

#include "core/project/KalSettings.h"
#include "gui/widgets/KalFileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QPushButton>
#include <QSettings>

namespace {
const char *const kGeometryKey = "ImportFromAppDialog/Geometry";
} // namespace

KalImportFromAppDialog::KalImportFromAppDialog(const QString &lastImportPath, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalImportFromAppDialog>())
    , m_lastImportPath(lastImportPath)
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-datenimport-app.ico")));
    m_ui->lblExplanation->setText(
        tr("<h3>Mängel mit der Quellor App erfassen</h3>"
           "<p>Mit der Quellor App erfassen Sie Mängel direkt auf der Baustelle: Beschreibung, Raum, Firma und "
           "Frist, dazu Fotos mit der Kamera Ihres Smartphones oder Tablets.</p>"
           "<p>Exportieren Sie die erfassten Daten in der App und übertragen Sie die Export-Datei (*.sjd) auf "
           "diesen Computer, zum Beispiel per USB-Kabel, E-Mail oder über einen Cloud-Speicher.</p>"
           "<p>Klicken Sie dann auf <b>Datei importieren</b> und wählen Sie die Export-Datei aus. Neue Mängel, "
           "ihre Fotos und die Firmen werden in das Projekt übernommen; Mängel, die Sie hier bereits geändert "
           "haben, werden nicht überschrieben.</p>"
           "<p>Die Verknüpfung des Projekts mit einem Bautagebuch bleibt dabei unverändert.</p>"));
    m_ui->pbImport->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-datenimport-app.ico")));
    m_ui->pbCancel->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-cancel.png")));
    connect(m_ui->pbImport, &QPushButton::clicked, this, &KalImportFromAppDialog::slotImportClicked);
    connect(m_ui->pbCancel, &QPushButton::clicked, this, &KalImportFromAppDialog::slotCancelClicked);
    restoreGeometry(QSettings().value(QLatin1String(kGeometryKey)).toByteArray());
}

KalImportFromAppDialog::~KalImportFromAppDialog() = default;

QString KalImportFromAppDialog::fileDialogTitle()
{
    return tr("Export-Datei der Quellor App auswählen");
}

QString KalImportFromAppDialog::fileDialogFilter()
{
    return tr("Export-Dateien der Quellor App (*.sjd)");
}

void KalImportFromAppDialog::slotImportClicked()
{
    // Start beside the file imported last time, when its folder is still there.
    QString proposed;
    if (!m_lastImportPath.isEmpty() && QFileInfo(m_lastImportPath).absoluteDir().exists())
        proposed = QFileInfo(m_lastImportPath).absoluteFilePath();
    const QString file =
        KalFileDialog::getOpenFileName(this, KalSettings::ProjectOpen, fileDialogTitle(), fileDialogFilter(), proposed);
    // A cancelled file dialog leaves the user here to choose again or cancel.
    if (file.isEmpty())
        return;
    m_chosenFile = QFileInfo(file).absoluteFilePath();
    accept();
}

void KalImportFromAppDialog::slotCancelClicked()
{
    reject();
}

void KalImportFromAppDialog::done(int result)
{
    if (result != QDialog::Accepted)
        m_chosenFile.clear();
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    QDialog::done(result);
}
