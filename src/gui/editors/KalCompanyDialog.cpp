#include "KalCompanyDialog.h"

#include "core/project/KalCompanies.h"
#include "core/project/KalPrivacyNotice.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlField>
#include <QSqlRecord>
#include <QTimer>
#include <QVBoxLayout>

KalCompanyDialog::KalCompanyDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
{
    setObjectName(QStringLiteral("KalCompanyDialog"));
    setWindowTitle(tr("Gewerk / Baufirma anlegen"));
    setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-firmen.ico")));

    auto *group = new QGroupBox(tr("Ansprechpartner"), this);
    group->setObjectName(QStringLiteral("gbContact"));
    auto *form = new QFormLayout(group);
    auto field = [this, form](const QString &name, const QString &label) {
        auto *edit = new QLineEdit(this);
        edit->setObjectName(name);
        edit->setMinimumWidth(260);
        form->addRow(label, edit);
        return edit;
    };
    leType = field(QStringLiteral("leType"), tr("Gewerk:"));
    leFirstName = field(QStringLiteral("leFirstName"), tr("Vorname:"));
    leName = field(QStringLiteral("leName"), tr("Nachname:"));
    leCompany = field(QStringLiteral("leCompany"), tr("Firma:"));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    buttons->button(QDialogButtonBox::Ok)
        ->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-ok.png")));
    buttons->button(QDialogButtonBox::Cancel)
        ->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-cancel.png")));
    connect(buttons, &QDialogButtonBox::accepted, this, &KalCompanyDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(group);
    layout->addWidget(buttons);
}

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
    const QString type = leType->text().trimmed();
    const QString first = leFirstName->text().trimmed();
    const QString last = leName->text().trimmed();
    const QString company = leCompany->text().trimmed();
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
