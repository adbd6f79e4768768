#include "KalCompanyDialog.h"
#include "ui_KalCompanyDialog.h"

#include "core/project/KalCompanies.h"
#include "core/project/KalPrivacyNotice.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"

#include <QDialogButtonBox>
#include <QIcon>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlField>
#include <QSqlRecord>
#include <QTimer>

KalCompanyDialog::KalCompanyDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_ui(std::make_unique<Ui::KalCompanyDialog>())
{
    m_ui->setupUi(this);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)
        ->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-ok.png")));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)
        ->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-cancel.png")));
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &KalCompanyDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

KalCompanyDialog::~KalCompanyDialog() = default;

void KalCompanyDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!m_noticeShown) {
        m_noticeShown = true;
        // After the dialog is on screen, so the notice sits above it.
        QTimer::singleShot(0, this, [] { KalPrivacyNotice::showIfWanted(); });
    }
}

void KalCompanyDialog::accept()
{
    const QString type = m_ui->leType->text().trimmed();
    const QString first = m_ui->leFirstName->text().trimmed();
    const QString last = m_ui->leName->text().trimmed();
    const QString company = m_ui->leCompany->text().trimmed();
    if (type.isEmpty() && first.isEmpty() && last.isEmpty() && company.isEmpty()) {
        KalPrompt::warning(tr("Info"), tr("Bitte geben Sie mindestens ein Gewerk, einen Namen oder eine Firma ein."));
        return;
    }
    m_companyId = insertCompany(m_project, type, first, last, company);
    if (m_companyId < 0) {
        KalPrompt::critical(tr("Datenbankfehler"), tr("Die Firma konnte nicht gespeichert werden."));
        return;
    }
    QDialog::accept();
}

qint64 KalCompanyDialog::insertCompany(KalProject *project, const QString &type, const QString &firstName,
                                       const QString &lastName, const QString &company)
{
    if (!project)
        return -1;
    return KalCompanies(*project).add({{QStringLiteral("type"), type},
                                       {QStringLiteral("firstname"), firstName},
                                       {QStringLiteral("lastname"), lastName},
                                       {QStringLiteral("company"), company}});
}
