#include "KalLogoDialog.h"
#include "ui_KalLogoDialog.h"

#include "core/project/KalProject.h"

#include <QSettings>

namespace {
const char *const GeometryKey = "LogoDialog/Geometry";
const char *const TooltipHelpKey = "TooltipHelpActive";
} // namespace

KalLogoDialog::KalLogoDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_logos(project->database())
    , m_ui(std::make_unique<Ui::KalLogoDialog>())
{
    m_ui->setupUi(this);
    m_ui->wFirstLogo->load(&m_logos, KalLogos::First, tr("Erstes Logo"));
    m_ui->wSecondLogo->load(&m_logos, KalLogos::Second, tr("Zweites Logo"));
    m_ui->sbPrintHeight->setValue(KalLogos::printHeight());
    m_ui->cbUnderHeader->setChecked(KalLogos::underHeader());
    connect(m_ui->pbOk, &QPushButton::clicked, this, &KalLogoDialog::slotAcceptClicked);
    connect(m_ui->pbCancel, &QPushButton::clicked, this, &QDialog::reject);
    // The buttons explain themselves only while the help texts are on.
    if (!QSettings().value(QLatin1String(TooltipHelpKey), true).toBool()) {
        for (QWidget *widget : findChildren<QWidget *>())
            widget->setToolTip(QString());
    }
    restoreGeometry(QSettings().value(QLatin1String(GeometryKey)).toByteArray());
}

KalLogoDialog::~KalLogoDialog() = default;

void KalLogoDialog::slotAcceptClicked()
{
    // Both logos change together or not at all.
    if (!m_project->beginTransaction())
        return;
    if (!m_ui->wFirstLogo->commit() || !m_ui->wSecondLogo->commit()) {
        m_project->rollbackTransaction();
        return;
    }
    if (!m_project->commitTransaction())
        return;
    m_ui->wFirstLogo->settle();
    m_ui->wSecondLogo->settle();
    KalLogos::setPrintHeight(m_ui->sbPrintHeight->value());
    KalLogos::setUnderHeader(m_ui->cbUnderHeader->isChecked());
    m_project->markModified();
    accept();
}

void KalLogoDialog::done(int result)
{
    if (result != QDialog::Accepted) {
        m_ui->wFirstLogo->rollback();
        m_ui->wSecondLogo->rollback();
    }
    QSettings().setValue(QLatin1String(GeometryKey), saveGeometry());
    QDialog::done(result);
}
