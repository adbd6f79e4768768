#include "KalDefectEditor.h"
#include "ui_KalDefectEditor.h"

#include "core/plans/KalPlans.h"
#include "core/project/KalDefects.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalCompanyDialog.h"
#include "gui/photos/KalPhotoInfoDialog.h"
#include "gui/plans/KalPlanEditor.h"
#include "gui/plans/KalPlanInfoDialog.h"
#include "gui/textaids/KalCompleter.h"
#include "gui/textaids/KalCompleterLineEdit.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalDateEdit.h"
#include "gui/widgets/KalDialogKeys.h"
#include "gui/widgets/KalFileDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDataWidgetMapper>
#include <QDate>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSettings>
#include <QSqlRecord>
#include <QStandardItemModel>
#include <QToolTip>

#include <algorithm>

namespace {

const char *const kGeometryKey = "DefectDialog/Geometry";
const QString kNewUserStatusColor = QStringLiteral("#859FAF");

QString res(const char *name)
{
    return QStringLiteral(":/KalMainWindow/Resources/") + QLatin1String(name);
}

// Rows of a model in the order of their `pos`, ties by id.
QVector<int> rowsByPos(KalSqlTableModel *model)
{
    QVector<int> rows;
    if (!model)
        return rows;
    const int posColumn = model->fieldIndex(QStringLiteral("pos"));
    const int idColumn = model->idColumn();
    for (int row = 0; row < model->rowCount(); ++row)
        rows.append(row);
    auto key = [&](int row) {
        const qint64 pos = posColumn < 0 ? 0 : model->data(model->index(row, posColumn), Qt::EditRole).toLongLong();
        const qint64 id = model->data(model->index(row, idColumn), Qt::EditRole).toLongLong();
        return qMakePair(pos, id);
    };
    std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) { return key(a) < key(b); });
    return rows;
}

QIcon colorIcon(const QString &colorName)
{
    QPixmap pixmap(12, 12);
    pixmap.fill(Qt::transparent);
    const QColor color(colorName);
    if (color.isValid()) {
        QPainter painter(&pixmap);
        painter.setPen(QColor(0, 0, 0, 90));
        painter.setBrush(color);
        painter.drawRect(0, 0, 11, 11);
    }
    return QIcon(pixmap);
}

bool isEmptyValue(const QVariant &v)
{
    if (v.isNull() || !v.isValid())
        return true;
    if (v.type() == QVariant::Date)
        return !v.toDate().isValid();
    return v.toString().isEmpty();
}

} // namespace

KalDefectEditor::KalDefectEditor(KalProject *project, int row, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_row(row)
    , m_ui(std::make_unique<Ui::KalDefectEditor>())
{
    setObjectName(QStringLiteral("KalDefectEditor"));
    m_defects = project->model(QStringLiteral("defect"));
    m_companies = project->model(QStringLiteral("company"));
    m_statuses = project->model(QStringLiteral("status"));
    m_plans = project->model(QStringLiteral("plan_info"));

    setUpUi();

    if (m_defects && row >= 0 && row < m_defects->rowCount()) {
        m_defectId = value(QStringLiteral("id")).toLongLong();
        for (const QString &field : comparedFields())
            m_openValues.append(qMakePair(field, value(field)));
        m_openValues.append(qMakePair(QStringLiteral("deadline_3"), value(QStringLiteral("deadline_3"))));
        m_companyBefore = value(QStringLiteral("company_id"));
        m_statusBefore = value(QStringLiteral("status_id"));
        m_planBefore = value(QStringLiteral("plan_info_id"));

        m_mapper = new QDataWidgetMapper(this);
        m_mapper->setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
        m_mapper->setModel(m_defects);
        auto map = [this](QWidget *w, const char *field, const QByteArray &property = QByteArray()) {
            const int column = m_defects->fieldIndex(QLatin1String(field));
            if (column < 0)
                return;
            if (property.isEmpty())
                m_mapper->addMapping(w, column);
            else
                m_mapper->addMapping(w, column, property);
        };
        map(m_ui->leNumber, "number");
        map(m_ui->teDescription, "description", "plainText");
        map(m_ui->leType, "type");
        map(m_ui->leUserId, "user_id");
        map(m_ui->leRoomName, "roomname");
        map(m_ui->leRoomBookNo, "roombook_number");
        map(m_ui->lePhotos, "image_cnt");
        map(m_ui->leCorrectionInstruction, "correction_instruction");
        map(m_ui->lePriority, "priority");
        map(m_ui->cbReduction, "reduction", "checked");
        // The mapper's own key handling would take Escape to put back one
        // field; here Escape cancels the dialog. Filters installed later run first.
        for (int column = 0; column < m_defects->columnCount(); ++column) {
            if (QWidget *w = m_mapper->mappedWidgetAt(column))
                w->installEventFilter(this);
        }
        m_mapper->setCurrentIndex(row);
        // The date fields are free-text widgets; they take and give dates.
        readDates();
    } else {
        setEnabled(false);
    }

    fillCompanyCombo();
    fillStatusCombo();
    fillPlanCombo();
    updatePhotoButton();
    applyReductionRule(false);

    const QByteArray geometry = QSettings().value(QLatin1String(kGeometryKey)).toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
}

KalDefectEditor::~KalDefectEditor() = default;

QStringList KalDefectEditor::comparedFields()
{
    return {
        QStringLiteral("description"),   QStringLiteral("company_id"),      QStringLiteral("user_id"),
        QStringLiteral("creation_date"), QStringLiteral("roomname"),        QStringLiteral("roombook_number"),
        QStringLiteral("image_cnt"),     QStringLiteral("correction_date"), QStringLiteral("number"),
        QStringLiteral("type"),          QStringLiteral("plan_info_id"),    QStringLiteral("correction_instruction"),
        QStringLiteral("priority"),      QStringLiteral("deadline_1"),      QStringLiteral("deadline_2"),
        QStringLiteral("deadline_3"),    QStringLiteral("status_id"),       QStringLiteral("reduction"),
        QStringLiteral("plan_id")};
}

QString KalDefectEditor::userIdHelpText()
{
    return tr("Tragen Sie hier die Initialen der Person ein, die den Mangel erfasst hat\n"
              "(höchstens zwei Buchstaben, z. B. \"KM\" für Karl Mustermann).\n"
              "Kleinbuchstaben werden automatisch in Großbuchstaben umgewandelt.");
}

void KalDefectEditor::setUpUi()
{
    m_ui->setupUi(this);
    // Each text field offers the auto-texts of its own field.
    const QPair<KalCompleterLineEdit *, const char *> lineFields[] = {
        {m_ui->leType, "type"},
        {m_ui->leUserId, "user_id"},
        {m_ui->leRoomName, "roomname"},
        {m_ui->leRoomBookNo, "roombook_number"},
        {m_ui->leCorrectionInstruction, "correction_instruction"},
        {m_ui->lePriority, "priority"}};
    for (const auto &field : lineFields)
        field.first->setField(QStringLiteral("defect"), QLatin1String(field.second));
    m_ui->teDescription->setField(QStringLiteral("defect"), QStringLiteral("description"));
    m_ui->leUserId->setValidator(
        new QRegularExpressionValidator(QRegularExpression(KalDefects::authorInputPattern()), m_ui->leUserId));
    // The third deadline is kept in the row but not edited here.
    m_ui->lblDeadline3->hide();

    QPushButton *ok = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    QPushButton *cancel = m_ui->buttonBox->button(QDialogButtonBox::Cancel);
    ok->setIcon(QIcon(res("icon-allgemein-ok.png")));
    cancel->setIcon(QIcon(res("icon-allgemein-cancel.png")));
    // Return in a line edit must not close the dialog by accident.
    ok->setAutoDefault(false);
    cancel->setAutoDefault(false);

    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &KalDefectEditor::slotAccepted);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->pbPhotoEditor, &QPushButton::clicked, this, &KalDefectEditor::slotImageEditorButtonClicked);
    connect(m_ui->pbPlanDialog, &QPushButton::clicked, this, &KalDefectEditor::slotPlanDialogButtonClicked);
    connect(m_ui->pbPlanEditor, &QPushButton::clicked, this, &KalDefectEditor::slotPlanEditorButtonClicked);
    connect(m_ui->cbxStatus, QOverload<int>::of(&QComboBox::activated), this,
            &KalDefectEditor::slotSelectedStatusChanged);
    connect(m_ui->cbxCompany, QOverload<int>::of(&QComboBox::activated), this,
            &KalDefectEditor::slotSelectedCompanyChanged);
    connect(m_ui->cbxPlan, QOverload<int>::of(&QComboBox::activated), this, &KalDefectEditor::slotSelectedPlanChanged);
    connect(m_ui->leType, &QLineEdit::editingFinished, this, &KalDefectEditor::slotTypeEditingFinished);
    connect(m_ui->leRoomName, &QLineEdit::editingFinished, this, &KalDefectEditor::slotRoomNameEditingFinished);
    connect(m_ui->leRoomBookNo, &QLineEdit::editingFinished, this, &KalDefectEditor::slotRoomBookNoEditingFinished);
    connect(m_ui->lePriority, &QLineEdit::editingFinished, this, &KalDefectEditor::slotPriorityEditingFinished);
    connect(m_ui->pbUserIdInfo, &QPushButton::clicked, this, &KalDefectEditor::slotUserIdInfoClicked);
    connect(m_ui->leUserId, &QLineEdit::textEdited, this, &KalDefectEditor::slotUserIdTextEdited);
}

// --- values of the edited row ---------------------------------------------

QVariant KalDefectEditor::value(const QString &field) const
{
    if (!m_defects)
        return QVariant();
    const int column = m_defects->fieldIndex(field);
    if (column < 0)
        return QVariant();
    return m_defects->data(m_defects->index(m_row, column), Qt::EditRole);
}

bool KalDefectEditor::writeValue(const QString &field, const QVariant &v)
{
    if (!m_defects)
        return false;
    const int column = m_defects->fieldIndex(field);
    if (column < 0)
        return false;
    if (sameValue(value(field), v))
        return true;
    return m_defects->setData(m_defects->index(m_row, column), v, Qt::EditRole);
}

bool KalDefectEditor::sameValue(const QVariant &a, const QVariant &b)
{
    const bool emptyA = isEmptyValue(a);
    const bool emptyB = isEmptyValue(b);
    if (emptyA || emptyB)
        return emptyA == emptyB;
    if (a.type() == QVariant::Date || b.type() == QVariant::Date) {
        const QDate da = a.type() == QVariant::Date ? a.toDate() : QDate::fromString(a.toString(), Qt::ISODate);
        const QDate db = b.type() == QVariant::Date ? b.toDate() : QDate::fromString(b.toString(), Qt::ISODate);
        return da == db;
    }
    if (a.type() == QVariant::Bool || b.type() == QVariant::Bool)
        return a.toBool() == b.toBool();
    return a.toString() == b.toString();
}

void KalDefectEditor::readDates()
{
    m_ui->deCreationDate->setDate(value(QStringLiteral("creation_date")).toDate());
    m_ui->deCorrectionDate->setDate(value(QStringLiteral("correction_date")).toDate());
    m_ui->deDeadline1->setDate(value(QStringLiteral("deadline_1")).toDate());
    m_ui->deDeadline2->setDate(value(QStringLiteral("deadline_2")).toDate());
}

void KalDefectEditor::writeDates()
{
    const QPair<KalDateEdit *, const char *> dates[] = {{m_ui->deCreationDate, "creation_date"},
                                                        {m_ui->deCorrectionDate, "correction_date"},
                                                        {m_ui->deDeadline1, "deadline_1"},
                                                        {m_ui->deDeadline2, "deadline_2"}};
    for (const auto &d : dates) {
        const QDate date = d.first->date();
        writeValue(QLatin1String(d.second), date.isValid() ? QVariant(date) : QVariant(QVariant::Date));
    }
}

// --- combo boxes --------------------------------------------------------------

void KalDefectEditor::selectComboId(QComboBox *combo, const QVariant &id)
{
    int found = -1;
    if (!isEmptyValue(id)) {
        for (int i = 0; i < combo->count(); ++i) {
            const QVariant data = combo->itemData(i);
            if (data.toLongLong() >= 0 && data.toLongLong() == id.toLongLong()) {
                found = i;
                break;
            }
        }
    }
    combo->setCurrentIndex(found);
}

void KalDefectEditor::fillCompanyCombo()
{
    m_ui->cbxCompany->clear();
    if (m_companies) {
        const int idColumn = m_companies->idColumn();
        for (int row : rowsByPos(m_companies)) {
            const qint64 id = m_companies->data(m_companies->index(row, idColumn), Qt::EditRole).toLongLong();
            m_ui->cbxCompany->addItem(KalSqlTableModel::companyText(m_companies->record(row)), id);
        }
    }
    m_ui->cbxCompany->addItem(QIcon(res("tableview-plus.png")), tr("Neu..."), int(NewEntry));
    selectComboId(m_ui->cbxCompany, value(QStringLiteral("company_id")));
}

void KalDefectEditor::fillStatusCombo()
{
    m_ui->cbxStatus->clear();
    if (m_statuses) {
        const int idColumn = m_statuses->idColumn();
        const int nameColumn = m_statuses->fieldIndex(QStringLiteral("status"));
        const int colorColumn = m_statuses->fieldIndex(QStringLiteral("color"));
        for (int row : rowsByPos(m_statuses)) {
            const qint64 id = m_statuses->data(m_statuses->index(row, idColumn), Qt::EditRole).toLongLong();
            const QString name = m_statuses->data(m_statuses->index(row, nameColumn), Qt::EditRole).toString();
            const QString color = m_statuses->data(m_statuses->index(row, colorColumn), Qt::EditRole).toString();
            m_ui->cbxStatus->addItem(colorIcon(color), name, id);
        }
    }
    m_ui->cbxStatus->addItem(QIcon(res("tableview-plus.png")), tr("Neu..."), int(NewEntry));
    selectComboId(m_ui->cbxStatus, value(QStringLiteral("status_id")));
}

void KalDefectEditor::fillPlanCombo()
{
    m_ui->cbxPlan->clear();
    if (m_plans) {
        const int idColumn = m_plans->idColumn();
        const int nameColumn = m_plans->fieldIndex(QStringLiteral("plan_name"));
        const int indexColumn = m_plans->fieldIndex(QStringLiteral("plan_index"));
        for (int row : rowsByPos(m_plans)) {
            const qint64 id = m_plans->data(m_plans->index(row, idColumn), Qt::EditRole).toLongLong();
            QString text = m_plans->data(m_plans->index(row, nameColumn), Qt::EditRole).toString();
            const QString planIndex =
                indexColumn < 0 ? QString() : m_plans->data(m_plans->index(row, indexColumn), Qt::EditRole).toString();
            if (!planIndex.isEmpty())
                text = tr("%1 (Index %2)").arg(text, planIndex);
            m_ui->cbxPlan->addItem(text, id);
        }
    }
    m_ui->cbxPlan->addItem(QIcon(res("tableview-plus.png")), tr("Neu..."), int(NewEntry));
    m_ui->cbxPlan->addItem(QIcon(res("tableview-minus.png")), tr("Planzuordnung aufheben"), int(ClearPlanEntry));
    const QVariant plan = value(QStringLiteral("plan_info_id"));
    selectComboId(m_ui->cbxPlan, plan.toLongLong() > 0 ? plan : QVariant());
}

bool KalDefectEditor::statusAllowsReduction(const QVariant &statusId) const
{
    if (!m_statuses || isEmptyValue(statusId))
        return false;
    const int row = m_statuses->findRowById(statusId.toLongLong());
    if (row < 0)
        return false;
    const int column = m_statuses->fieldIndex(QStringLiteral("reduction_option"));
    return m_statuses->data(m_statuses->index(row, column), Qt::EditRole).toInt() != 0;
}

void KalDefectEditor::applyReductionRule(bool clearWhenNotAllowed)
{
    const bool allowed = statusAllowsReduction(value(QStringLiteral("status_id")));
    m_ui->cbReduction->setEnabled(allowed);
    if (!allowed && clearWhenNotAllowed && m_ui->cbReduction->isChecked()) {
        m_ui->cbReduction->setChecked(false);
        writeValue(QStringLiteral("reduction"), 0);
    }
}

void KalDefectEditor::slotSelectedCompanyChanged(int index)
{
    if (index < 0)
        return;
    qint64 id = m_ui->cbxCompany->itemData(index).toLongLong();
    if (id == NewEntry) {
        KalCompanyDialog dialog(m_project, this);
        if (dialog.exec() != QDialog::Accepted || dialog.companyId() < 0) {
            selectComboId(m_ui->cbxCompany, value(QStringLiteral("company_id")));
            return;
        }
        id = dialog.companyId();
        writeValue(QStringLiteral("company_id"), id);
        fillCompanyCombo();
        return;
    }
    writeValue(QStringLiteral("company_id"), id);
}

qint64 KalDefectEditor::createStatus(const QString &name)
{
    if (!m_statuses || !m_project)
        return -1;
    const qint64 id = m_project->nextId(QStringLiteral("status"));
    if (id < 0)
        return -1;
    qint64 pos = 0;
    const int posColumn = m_statuses->fieldIndex(QStringLiteral("pos"));
    for (int row = 0; row < m_statuses->rowCount(); ++row)
        pos = qMax(pos, m_statuses->data(m_statuses->index(row, posColumn), Qt::EditRole).toLongLong());
    QSqlRecord record = m_statuses->record();
    record.setValue(QStringLiteral("id"), id);
    record.setValue(QStringLiteral("status"), name);
    record.setValue(QStringLiteral("color"), kNewUserStatusColor);
    record.setValue(QStringLiteral("type"), 2);
    record.setValue(QStringLiteral("reduction_option"), 0);
    record.setValue(QStringLiteral("pos"), pos + 1);
    if (!m_statuses->insertRecord(-1, record) || !m_statuses->submitWithNotification(true)) {
        m_statuses->revertAll();
        return -1;
    }
    return id;
}

void KalDefectEditor::slotSelectedStatusChanged(int index)
{
    if (index < 0)
        return;
    qint64 id = m_ui->cbxStatus->itemData(index).toLongLong();
    if (id == NewEntry) {
        QInputDialog input(this);
        input.setObjectName(QStringLiteral("NewStatusInput"));
        input.setWindowTitle(tr("Neuen Status anlegen"));
        input.setWindowIcon(QIcon(res("icon-status-editor.ico")));
        // The hint is read before typing, so it is text, not a tool tip.
        input.setLabelText(tr("Sie können hier einen neuen Status für dieses Projekt anlegen") +
                           QStringLiteral("\n\n") + tr("Status:"));
        input.setMinimumWidth(input.fontMetrics().averageCharWidth() * 60);
        input.setInputMode(QInputDialog::TextInput);
        const bool ok = input.exec() == QDialog::Accepted;
        const QString name = input.textValue().trimmed();
        if (!ok || name.isEmpty()) {
            selectComboId(m_ui->cbxStatus, value(QStringLiteral("status_id")));
            return;
        }
        id = createStatus(name);
        if (id < 0) {
            selectComboId(m_ui->cbxStatus, value(QStringLiteral("status_id")));
            return;
        }
        writeValue(QStringLiteral("status_id"), id);
        fillStatusCombo();
        applyReductionRule(true);
        return;
    }
    writeValue(QStringLiteral("status_id"), id);
    applyReductionRule(true);
}

void KalDefectEditor::slotSelectedPlanChanged(int index)
{
    if (index < 0)
        return;
    const qint64 id = m_ui->cbxPlan->itemData(index).toLongLong();
    if (id == NewEntry) {
        importNewPlan();
        const QVariant plan = value(QStringLiteral("plan_info_id"));
        selectComboId(m_ui->cbxPlan, plan.toLongLong() > 0 ? plan : QVariant());
        return;
    }
    if (id == ClearPlanEntry) {
        // NULL and -1 both mean "no plan"; only a real assignment is undone.
        if (value(QStringLiteral("plan_info_id")).toLongLong() > 0)
            writeValue(QStringLiteral("plan_info_id"), -1);
        m_ui->cbxPlan->setCurrentIndex(-1);
        return;
    }
    writeValue(QStringLiteral("plan_info_id"), id);
    if (m_plans) {
        const int row = m_plans->findRowById(id);
        const int column = m_plans->fieldIndex(QStringLiteral("plan_id"));
        if (row >= 0 && column >= 0)
            writeValue(QStringLiteral("plan_id"), m_plans->data(m_plans->index(row, column), Qt::EditRole));
    }
}

// --- buttons and fields ---------------------------------------------------------

void KalDefectEditor::slotImageEditorButtonClicked()
{
    if (!m_defects || m_defectId < 0)
        return;
    int count;
    {
        KalPhotoInfoDialog dialog(m_project, m_defectId, this);
        dialog.exec();
        count = dialog.photoCount();
    }
    // The photos are stored already and image_cnt with them. The row keeps
    // the new count too: OK compares and writes it (equal to the file), and
    // Cancel's revert re-reads the file after submitting.
    writeValue(QStringLiteral("image_cnt"), count);
    m_ui->lePhotos->setText(QString::number(count));
    updatePhotoButton();
}

void KalDefectEditor::assignPlan(qint64 planInfoId, qint64 planId)
{
    // Kept in the pending row like every other choice here: OK writes it,
    // Cancel takes it back.
    writeValue(QStringLiteral("plan_info_id"), planInfoId);
    writeValue(QStringLiteral("plan_id"), planId);
}

void KalDefectEditor::slotPlanDialogButtonClicked()
{
    if (!m_project || m_defectId < 0)
        return;
    {
        KalPlanInfoDialog dialog(m_project, m_defectId, this);
        KalPlanInfoDialog::AssignTarget target;
        target.currentPlanInfoId = [this] { return value(QStringLiteral("plan_info_id")).toLongLong(); };
        target.assign = [this](qint64 planInfoId, qint64 planId) { assignPlan(planInfoId, planId); };
        dialog.setAssignTarget(target);
        // Everything done from here is kept or dropped with this dialog.
        connect(&dialog, &KalPlanInfoDialog::planEditorRequested, this, [this](qint64 planInfoId, qint64 defectId) {
            KalPlanEditor(m_project, planInfoId, defectId, this, KalPlanEditor::WriteModels).exec();
        });
        dialog.exec();
    }
    // A sheet removed in the library no longer locates this defect.
    const qint64 plan = value(QStringLiteral("plan_info_id")).toLongLong();
    if (plan > 0 && KalPlans(m_project).planIdOf(plan) < 0)
        assignPlan(-1, -1);
    fillPlanCombo();
}

void KalDefectEditor::importNewPlan()
{
    if (value(QStringLiteral("plan_info_id")).toLongLong() > 0 &&
        !KalPrompt::yesNo(tr("Plan austauschen"),
                          tr("Dem Mangel ist bereits ein Plan zugeordnet.\nSoll der Plan tatsächlich ausgetauscht "
                             "werden?")))
        return;
    const QString file = KalFileDialog::getOpenFileName(this, KalSettings::PlanFiles, tr("Plan auswählen"),
                                                        KalPlanInfoDialog::fileFilter());
    if (file.isEmpty())
        return;
    KalPlans plans(m_project);
    // The failure message comes from the import; the defect keeps its plan.
    const qint64 planInfoId = plans.addFile(file, QString(), KalEnvironment::now().date());
    if (planInfoId <= 0)
        return;
    assignPlan(planInfoId, plans.planIdOf(planInfoId));
    fillPlanCombo();
}

void KalDefectEditor::slotPlanEditorButtonClicked()
{
    qint64 plan = value(QStringLiteral("plan_info_id")).toLongLong();
    if (plan <= 0) {
        // Markers need a plan: let the user assign one first.
        slotPlanDialogButtonClicked();
        plan = value(QStringLiteral("plan_info_id")).toLongLong();
        if (plan <= 0)
            return;
    }
    // The markers stay pending in the models until this dialog's OK or Cancel.
    KalPlanEditor editor(m_project, plan, m_defectId, this, KalPlanEditor::WriteModels);
    editor.exec();
}

void KalDefectEditor::updatePhotoButton()
{
    const int count = value(QStringLiteral("image_cnt")).toInt();
    m_ui->pbPhotoEditor->setText(count < 1 ? tr("Fotos hinzufügen") : tr("Fotos bearbeiten"));
}

void KalDefectEditor::slotTypeEditingFinished()
{
    if (KalCompleter *c = m_ui->leType->kalCompleter())
        c->appendEntry(m_ui->leType->text());
}

void KalDefectEditor::slotRoomNameEditingFinished()
{
    if (KalCompleter *c = m_ui->leRoomName->kalCompleter())
        c->appendEntry(m_ui->leRoomName->text());
}

void KalDefectEditor::slotRoomBookNoEditingFinished()
{
    if (KalCompleter *c = m_ui->leRoomBookNo->kalCompleter())
        c->appendEntry(m_ui->leRoomBookNo->text());
}

void KalDefectEditor::slotPriorityEditingFinished()
{
    if (KalCompleter *c = m_ui->lePriority->kalCompleter())
        c->appendEntry(m_ui->lePriority->text());
}

void KalDefectEditor::slotUserIdInfoClicked()
{
    QToolTip::showText(m_ui->pbUserIdInfo->mapToGlobal(QPoint(0, m_ui->pbUserIdInfo->height())), userIdHelpText(),
                       m_ui->pbUserIdInfo);
}

void KalDefectEditor::slotUserIdTextEdited(const QString &text)
{
    const QString upper = text.toUpper();
    if (upper == text)
        return;
    const int cursor = m_ui->leUserId->cursorPosition();
    m_ui->leUserId->setText(upper);
    m_ui->leUserId->setCursorPosition(cursor);
}

// --- closing ------------------------------------------------------------------------

void KalDefectEditor::slotAccepted()
{
    if (!m_defects || m_finished) {
        QDialog::accept();
        return;
    }
    // A date that cannot be read keeps the dialog open with the warning;
    // writing it would replace the stored date by none.
    for (KalDateEdit *edit : {m_ui->deCreationDate, m_ui->deCorrectionDate, m_ui->deDeadline1, m_ui->deDeadline2}) {
        if (!edit->checkInput()) {
            edit->setFocus();
            edit->selectAll();
            return;
        }
    }
    // The completer can put any text into the author field: only initials pass.
    const QString author = m_ui->leUserId->text().toUpper();
    if (!KalDefects::isValidAuthor(author)) {
        KalPrompt::warning(tr("Erfasst von"),
                           tr("Als Autor können Sie nur Initialen eingeben: höchstens zwei Buchstaben."));
        m_ui->leUserId->setFocus();
        return;
    }
    m_ui->leUserId->setText(author);
    m_finished = true;
    m_ui->teDescription->rememberText();
    // The mapper's values, written only where they differ, so an unchanged
    // field keeps its stored form (NULL stays NULL).
    for (int column = 0; column < m_defects->columnCount(); ++column) {
        QWidget *widget = m_mapper->mappedWidgetAt(column);
        if (!widget || widget == m_ui->lePhotos)
            continue;
        QVariant v = widget->property(m_mapper->mappedPropertyName(widget));
        if (v.type() == QVariant::Bool)
            v = v.toBool() ? 1 : 0;
        writeValue(m_defects->record().fieldName(column), v);
    }
    writeDates();

    bool changed = false;
    for (const auto &entry : qAsConst(m_openValues)) {
        if (!sameValue(entry.second, value(entry.first))) {
            changed = true;
            break;
        }
    }
    if (changed) {
        m_defects->markUserEdited(m_row);
        // New defects start with the initials last entered here.
        for (const auto &entry : qAsConst(m_openValues)) {
            if (entry.first == QLatin1String("user_id") && !sameValue(entry.second, author))
                KalDefects::rememberAuthor(author);
        }
    } else {
        // Nothing differs from the opening state: drop the cache entries the
        // mapper wrote, so nothing reaches the file.
        m_defects->revertRow(m_row);
    }
    m_defects->submitWithNotification(true);
    for (const char *table : {"marker", "marker_text"}) {
        if (KalSqlTableModel *markers = m_project->model(QLatin1String(table)))
            markers->submitWithNotification(true);
    }
    saveGeometrySetting();
    QDialog::accept();
}

void KalDefectEditor::slotRejected()
{
    if (m_finished)
        return;
    m_finished = true;
    // Leaving a wrong date for Cancel is not a mistake to warn about.
    for (KalDateEdit *edit : {m_ui->deCreationDate, m_ui->deCorrectionDate, m_ui->deDeadline1, m_ui->deDeadline2})
        edit->discardWarning();
    if (m_defects) {
        m_defects->revertAll();
        m_defects->submitWithNotification(true);
    }
    for (const char *table : {"marker", "marker_text"}) {
        if (KalSqlTableModel *markers = m_project->model(QLatin1String(table)))
            markers->revertAll();
    }
    saveGeometrySetting();
}

void KalDefectEditor::done(int result)
{
    if (result == QDialog::Rejected)
        slotRejected();
    QDialog::done(result);
}

void KalDefectEditor::keyPressEvent(QKeyEvent *event)
{
    if (KalDialogKeys::handleReturn(this, event))
        return;
    QDialog::keyPressEvent(event);
}

bool KalDefectEditor::eventFilter(QObject *watched, QEvent *event)
{
    // An open auto-text list takes Escape first: it only closes the list.
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape &&
        static_cast<QKeyEvent *>(event)->modifiers() == Qt::NoModifier && !QApplication::activePopupWidget()) {
        reject();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void KalDefectEditor::saveGeometrySetting()
{
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
}
