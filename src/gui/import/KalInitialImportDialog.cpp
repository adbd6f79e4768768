#include "KalInitialImportDialog.h"
#include "ui_KalInitialImportDialog.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QPushButton>
#include <QSettings>

namespace {
const char *const kGeometryKey = "InitialImportDialog/Geometry";
} // namespace

KalInitialImportDialog::KalInitialImportDialog(const QString &siteJournalPath, int automaticImportMode, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalInitialImportDialog>())
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-datenimport.ico")));
    m_ui->lblText->setText(tr("\nEs werden alle Mängel und Firmen aus dem Bautagebuch %1 importiert.\n\n"
                              "Wenn Sie einen automatischen Import aus dem Bautagebuch bei jedem Öffnen des "
                              "Projekts wünschen,\nsetzen Sie unten das entsprechende Häkchen.\n\n")
                               .arg(QDir::toNativeSeparators(QFileInfo(siteJournalPath).absoluteFilePath())));

    QPushButton *ok = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("pbOk"));
    ok->setText(tr("Importieren"));
    ok->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-ok.png")));
    QPushButton *cancel = m_ui->buttonBox->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("pbCancel"));
    cancel->setText(tr("Abbrechen"));
    cancel->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-cancel.png")));

    m_ui->cbAutomaticImport->setChecked(automaticImportMode >= 1);
    m_ui->cbAutomaticUpdate->setChecked(automaticImportMode == 2);
    slotAutomaticImportStateChanged(m_ui->cbAutomaticImport->checkState());
    connect(m_ui->cbAutomaticImport, &QCheckBox::stateChanged, this,
            &KalInitialImportDialog::slotAutomaticImportStateChanged);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    restoreGeometry(QSettings().value(QLatin1String(kGeometryKey)).toByteArray());
}

KalInitialImportDialog::~KalInitialImportDialog() = default;

void KalInitialImportDialog::slotAutomaticImportStateChanged(int state)
{
    // Updating at opening only makes sense on top of importing at opening;
    // the second tick is kept while disabled, so that ticking the first box
    // again brings back what the user chose.
    m_ui->cbAutomaticUpdate->setEnabled(state == Qt::Checked);
}

int KalInitialImportDialog::automaticImportMode() const
{
    if (!m_ui->cbAutomaticImport->isChecked())
        return 0;
    return m_ui->cbAutomaticUpdate->isChecked() ? 2 : 1;
}

void KalInitialImportDialog::done(int result)
{
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    QDialog::done(result);
}
