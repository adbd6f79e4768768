#include "KalPlanInfoEditor.h"
#include "ui_KalPlanInfoEditor.h"

#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QSqlQuery>

KalPlanInfoEditor::KalPlanInfoEditor(KalProject *project, qint64 planInfoId, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_planInfoId(planInfoId)
    , m_ui(std::make_unique<Ui::KalPlanInfoEditor>())
{
    m_ui->setupUi(this);
    QSqlQuery query(project->database());
    query.prepare(QStringLiteral("SELECT plan_name, plan_index, date FROM plan_info WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), planInfoId);
    if (query.exec() && query.next()) {
        m_ui->lePlanName->setText(query.value(0).toString());
        m_ui->lePlanIndex->setText(query.value(1).toString());
        m_ui->deDate->setDate(query.value(2).toDate());
    }
    connect(m_ui->pbOk, &QPushButton::clicked, this, &KalPlanInfoEditor::slotAccepted);
    connect(m_ui->pbCancel, &QPushButton::clicked, this, &QDialog::reject);
}

KalPlanInfoEditor::~KalPlanInfoEditor() = default;

void KalPlanInfoEditor::slotAccepted()
{
    // A text that is not a date keeps the dialog open with the field's warning.
    if (!m_ui->deDate->checkInput())
        return;
    QString error;
    if (!KalPlans(m_project).setInfo(m_planInfoId, m_ui->lePlanName->text(), m_ui->lePlanIndex->text(),
                                     m_ui->deDate->date(), &error)) {
        KalPrompt::critical(tr("Datenbankfehler"), error);
        return;
    }
    accept();
}
