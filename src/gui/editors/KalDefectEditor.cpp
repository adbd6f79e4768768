#include "KalDefectEditor.h"

#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalCompanyDialog.h"
#include "gui/textaids/KalCompleter.h"
#include "gui/textaids/KalCompleterLineEdit.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalDateEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDataWidgetMapper>
#include <QDate>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QInputDialog>
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
#include <QVBoxLayout>

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
{
    setObjectName(QStringLiteral("KalDefectEditor"));
    m_defects = project->model(QStringLiteral("defect"));
    m_companies = project->model(QStringLiteral("company"));
    m_statuses = project->model(QStringLiteral("status"));
    m_plans = project->model(QStringLiteral("plan_info"));

    buildUi();

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
        map(leNumber, "number");
        map(teDescription, "description", "plainText");
        map(leType, "type");
        map(leUserId, "user_id");
        map(leRoomName, "roomname");
        map(leRoomBookNo, "roombook_number");
        map(lePhotos, "image_cnt");
        map(leCorrectionInstruction, "correction_instruction");
        map(lePriority, "priority");
        map(cbReduction, "reduction", "checked");
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

void KalDefectEditor::buildUi()
{
    setWindowTitle(tr("Mangel bearbeiten"));
    setWindowIcon(QIcon(res("icon-defect-editor.ico")));

    // --- Erfassung ---
    gbCollection = new QGroupBox(tr("Erfassung"), this);
    gbCollection->setObjectName(QStringLiteral("gbCollection"));
    auto *collection = new QGridLayout(gbCollection);
    leNumber = new QLineEdit(this);
    leNumber->setObjectName(QStringLiteral("leNumber"));
    teDescription = new KalCompleterTextEdit(QStringLiteral("defect"), QStringLiteral("description"), this);
    teDescription->setObjectName(QStringLiteral("teDescription"));
    teDescription->setAcceptRichText(false);
    teDescription->setTabChangesFocus(true);
    teDescription->setMinimumHeight(90);
    cbxCompany = new QComboBox(this);
    cbxCompany->setObjectName(QStringLiteral("cbxCompany"));
    cbxCompany->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbxCompany->setMinimumContentsLength(24);
    leType = new KalCompleterLineEdit(QStringLiteral("defect"), QStringLiteral("type"), this);
    leType->setObjectName(QStringLiteral("leType"));
    leUserId = new KalCompleterLineEdit(QStringLiteral("defect"), QStringLiteral("user_id"), this);
    leUserId->setObjectName(QStringLiteral("leUserId"));
    leUserId->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("([a-z]|[A-Z]|){2}")), leUserId));
    leUserId->setMaximumWidth(90);
    pbUserIdInfo = new QPushButton(this);
    pbUserIdInfo->setObjectName(QStringLiteral("pbUserIdInfo"));
    pbUserIdInfo->setIcon(QIcon(res("icon-info.ico")));
    pbUserIdInfo->setFlat(true);
    pbUserIdInfo->setToolTip(tr("Hinweis zum Feld \"Erfasst von\""));
    deCreationDate = new KalDateEdit(this);
    deCreationDate->setObjectName(QStringLiteral("deCreationDate"));
    deCreationDate->setMaximumWidth(130);

    int r = 0;
    collection->addWidget(new QLabel(tr("Nummer"), this), r, 0);
    collection->addWidget(leNumber, r, 1, 1, 4);
    ++r;
    auto *descriptionLabel = new QLabel(tr("Beschreibung"), this);
    descriptionLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    collection->addWidget(descriptionLabel, r, 0);
    collection->addWidget(teDescription, r, 1, 1, 4);
    ++r;
    collection->addWidget(new QLabel(tr("Firma"), this), r, 0);
    collection->addWidget(cbxCompany, r, 1, 1, 4);
    ++r;
    collection->addWidget(new QLabel(tr("Typ"), this), r, 0);
    collection->addWidget(leType, r, 1, 1, 4);
    ++r;
    collection->addWidget(new QLabel(tr("Erfasst von"), this), r, 0);
    auto *userRow = new QHBoxLayout;
    userRow->addWidget(leUserId);
    userRow->addWidget(pbUserIdInfo);
    userRow->addSpacing(16);
    userRow->addWidget(new QLabel(tr("Erfasst am"), this));
    userRow->addWidget(deCreationDate);
    userRow->addStretch(1);
    collection->addLayout(userRow, r, 1, 1, 4);
    collection->setColumnStretch(1, 1);

    // --- Lokalisierung ---
    gbLocalization = new QGroupBox(tr("Lokalisierung"), this);
    gbLocalization->setObjectName(QStringLiteral("gbLocalization"));
    auto *localization = new QGridLayout(gbLocalization);
    leRoomName = new KalCompleterLineEdit(QStringLiteral("defect"), QStringLiteral("roomname"), this);
    leRoomName->setObjectName(QStringLiteral("leRoomName"));
    leRoomBookNo = new KalCompleterLineEdit(QStringLiteral("defect"), QStringLiteral("roombook_number"), this);
    leRoomBookNo->setObjectName(QStringLiteral("leRoomBookNo"));
    cbxPlan = new QComboBox(this);
    cbxPlan->setObjectName(QStringLiteral("cbxPlan"));
    cbxPlan->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbxPlan->setMinimumContentsLength(20);
    pbPlanDialog = new QPushButton(tr("Plan austauschen"), this);
    pbPlanDialog->setObjectName(QStringLiteral("pbPlanDialog"));
    pbPlanEditor = new QPushButton(tr("Marker bearbeiten"), this);
    pbPlanEditor->setObjectName(QStringLiteral("pbPlanEditor"));
    lePhotos = new QLineEdit(this);
    lePhotos->setObjectName(QStringLiteral("lePhotos"));
    lePhotos->setReadOnly(true);
    lePhotos->setMaximumWidth(60);
    pbPhotoEditor = new QPushButton(tr("Fotos hinzufügen"), this);
    pbPhotoEditor->setObjectName(QStringLiteral("pbPhotoEditor"));
    pbPhotoEditor->setIcon(QIcon(res("icon-camera.png")));
    // The plan library, plan editor and photo list are not part of the
    // program yet; their buttons stay visible but cannot be used.
    pbPlanDialog->setEnabled(false);
    pbPlanEditor->setEnabled(false);
    pbPhotoEditor->setEnabled(false);

    r = 0;
    localization->addWidget(new QLabel(tr("Raumname"), this), r, 0);
    localization->addWidget(leRoomName, r, 1);
    localization->addWidget(new QLabel(tr("Raumbuch-Nr."), this), r, 2);
    localization->addWidget(leRoomBookNo, r, 3);
    ++r;
    localization->addWidget(new QLabel(tr("Plan"), this), r, 0);
    localization->addWidget(cbxPlan, r, 1);
    auto *planButtons = new QHBoxLayout;
    planButtons->addWidget(pbPlanDialog);
    planButtons->addWidget(pbPlanEditor);
    planButtons->addStretch(1);
    localization->addLayout(planButtons, r, 2, 1, 2);
    ++r;
    localization->addWidget(new QLabel(tr("Fotos"), this), r, 0);
    auto *photoRow = new QHBoxLayout;
    photoRow->addWidget(lePhotos);
    photoRow->addWidget(pbPhotoEditor);
    photoRow->addStretch(1);
    localization->addLayout(photoRow, r, 1, 1, 3);
    localization->setColumnStretch(1, 1);
    localization->setColumnStretch(3, 1);

    // --- Management ---
    gbManagement = new QGroupBox(tr("Management"), this);
    gbManagement->setObjectName(QStringLiteral("gbManagement"));
    auto *management = new QGridLayout(gbManagement);
    leCorrectionInstruction =
        new KalCompleterLineEdit(QStringLiteral("defect"), QStringLiteral("correction_instruction"), this);
    leCorrectionInstruction->setObjectName(QStringLiteral("leCorrectionInstruction"));
    lePriority = new KalCompleterLineEdit(QStringLiteral("defect"), QStringLiteral("priority"), this);
    lePriority->setObjectName(QStringLiteral("lePriority"));
    deCorrectionDate = new KalDateEdit(this);
    deCorrectionDate->setObjectName(QStringLiteral("deCorrectionDate"));
    deDeadline1 = new KalDateEdit(this);
    deDeadline1->setObjectName(QStringLiteral("deDeadline1"));
    deDeadline2 = new KalDateEdit(this);
    deDeadline2->setObjectName(QStringLiteral("deDeadline2"));
    lblDeadline3 = new QLabel(tr("3. Nachfrist"), this);
    lblDeadline3->setObjectName(QStringLiteral("lblDeadline3"));
    // The third deadline is kept in the row but not edited here.
    lblDeadline3->hide();
    cbxStatus = new QComboBox(this);
    cbxStatus->setObjectName(QStringLiteral("cbxStatus"));
    cbxStatus->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbxStatus->setMinimumContentsLength(24);
    cbReduction = new QCheckBox(tr("Minderung"), this);
    cbReduction->setObjectName(QStringLiteral("cbReduction"));

    r = 0;
    management->addWidget(new QLabel(tr("Beseitigungsanweisung"), this), r, 0);
    management->addWidget(leCorrectionInstruction, r, 1, 1, 5);
    ++r;
    management->addWidget(new QLabel(tr("Priorität"), this), r, 0);
    management->addWidget(lePriority, r, 1);
    management->addWidget(new QLabel(tr("Frist"), this), r, 2);
    management->addWidget(deCorrectionDate, r, 3);
    ++r;
    management->addWidget(new QLabel(tr("1. Nachfrist"), this), r, 0);
    management->addWidget(deDeadline1, r, 1);
    management->addWidget(new QLabel(tr("2. Nachfrist"), this), r, 2);
    management->addWidget(deDeadline2, r, 3);
    management->addWidget(lblDeadline3, r, 4);
    ++r;
    management->addWidget(new QLabel(tr("Status"), this), r, 0);
    management->addWidget(cbxStatus, r, 1, 1, 3);
    management->addWidget(cbReduction, r, 4);
    management->setColumnStretch(1, 1);
    management->setColumnStretch(3, 1);

    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_buttons->setObjectName(QStringLiteral("buttonBox"));
    m_buttons->button(QDialogButtonBox::Ok)->setIcon(QIcon(res("icon-allgemein-ok.png")));
    m_buttons->button(QDialogButtonBox::Cancel)->setIcon(QIcon(res("icon-allgemein-cancel.png")));
    // Return in a line edit must not close the dialog by accident.
    m_buttons->button(QDialogButtonBox::Ok)->setAutoDefault(false);
    m_buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(gbCollection, 1);
    layout->addWidget(gbLocalization);
    layout->addWidget(gbManagement);
    layout->addWidget(m_buttons);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &KalDefectEditor::slotAccepted);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(pbPhotoEditor, &QPushButton::clicked, this, &KalDefectEditor::slotImageEditorButtonClicked);
    connect(pbPlanDialog, &QPushButton::clicked, this, &KalDefectEditor::slotPlanDialogButtonClicked);
    connect(pbPlanEditor, &QPushButton::clicked, this, &KalDefectEditor::slotPlanEditorButtonClicked);
    connect(cbxStatus, QOverload<int>::of(&QComboBox::activated), this, &KalDefectEditor::slotSelectedStatusChanged);
    connect(cbxCompany, QOverload<int>::of(&QComboBox::activated), this, &KalDefectEditor::slotSelectedCompanyChanged);
    connect(cbxPlan, QOverload<int>::of(&QComboBox::activated), this, &KalDefectEditor::slotSelectedPlanChanged);
    connect(leType, &QLineEdit::editingFinished, this, &KalDefectEditor::slotTypeEditingFinished);
    connect(leRoomName, &QLineEdit::editingFinished, this, &KalDefectEditor::slotRoomNameEditingFinished);
    connect(leRoomBookNo, &QLineEdit::editingFinished, this, &KalDefectEditor::slotRoomBookNoEditingFinished);
    connect(lePriority, &QLineEdit::editingFinished, this, &KalDefectEditor::slotPriorityEditingFinished);
    connect(pbUserIdInfo, &QPushButton::clicked, this, &KalDefectEditor::on_pbUserIdInfo_clicked);
    connect(leUserId, &QLineEdit::textEdited, this, &KalDefectEditor::on_leUserId_textEdited);
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
    deCreationDate->setDate(value(QStringLiteral("creation_date")).toDate());
    deCorrectionDate->setDate(value(QStringLiteral("correction_date")).toDate());
    deDeadline1->setDate(value(QStringLiteral("deadline_1")).toDate());
    deDeadline2->setDate(value(QStringLiteral("deadline_2")).toDate());
}

void KalDefectEditor::writeDates()
{
    const QPair<KalDateEdit *, const char *> dates[] = {{deCreationDate, "creation_date"},
                                                        {deCorrectionDate, "correction_date"},
                                                        {deDeadline1, "deadline_1"},
                                                        {deDeadline2, "deadline_2"}};
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
    cbxCompany->clear();
    if (m_companies) {
        const int idColumn = m_companies->idColumn();
        for (int row : rowsByPos(m_companies)) {
            const qint64 id = m_companies->data(m_companies->index(row, idColumn), Qt::EditRole).toLongLong();
            cbxCompany->addItem(KalSqlTableModel::companyText(m_companies->record(row)), id);
        }
    }
    cbxCompany->addItem(QIcon(res("tableview-plus.png")), tr("Neu..."), int(NewEntry));
    selectComboId(cbxCompany, value(QStringLiteral("company_id")));
}

void KalDefectEditor::fillStatusCombo()
{
    cbxStatus->clear();
    if (m_statuses) {
        const int idColumn = m_statuses->idColumn();
        const int nameColumn = m_statuses->fieldIndex(QStringLiteral("status"));
        const int colorColumn = m_statuses->fieldIndex(QStringLiteral("color"));
        for (int row : rowsByPos(m_statuses)) {
            const qint64 id = m_statuses->data(m_statuses->index(row, idColumn), Qt::EditRole).toLongLong();
            const QString name = m_statuses->data(m_statuses->index(row, nameColumn), Qt::EditRole).toString();
            const QString color = m_statuses->data(m_statuses->index(row, colorColumn), Qt::EditRole).toString();
            cbxStatus->addItem(colorIcon(color), name, id);
        }
    }
    cbxStatus->addItem(QIcon(res("tableview-plus.png")), tr("Neu..."), int(NewEntry));
    selectComboId(cbxStatus, value(QStringLiteral("status_id")));
}

void KalDefectEditor::fillPlanCombo()
{
    cbxPlan->clear();
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
            cbxPlan->addItem(text, id);
        }
    }
    cbxPlan->addItem(QIcon(res("tableview-plus.png")), tr("Neu..."), int(NewEntry));
    cbxPlan->addItem(QIcon(res("tableview-minus.png")), tr("Planzuordnung aufheben"), int(ClearPlanEntry));
    // A plan can only be imported once the plan library is part of the program.
    if (auto *items = qobject_cast<QStandardItemModel *>(cbxPlan->model())) {
        if (QStandardItem *item = items->item(cbxPlan->count() - 2))
            item->setEnabled(false);
    }
    const QVariant plan = value(QStringLiteral("plan_info_id"));
    selectComboId(cbxPlan, plan.toLongLong() > 0 ? plan : QVariant());
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
    cbReduction->setEnabled(allowed);
    if (!allowed && clearWhenNotAllowed && cbReduction->isChecked()) {
        cbReduction->setChecked(false);
        writeValue(QStringLiteral("reduction"), 0);
    }
}

void KalDefectEditor::slotSelectedCompanyChanged(int index)
{
    if (index < 0)
        return;
    qint64 id = cbxCompany->itemData(index).toLongLong();
    if (id == NewEntry) {
        KalCompanyDialog dialog(m_project, this);
        if (dialog.exec() != QDialog::Accepted || dialog.companyId() < 0) {
            selectComboId(cbxCompany, value(QStringLiteral("company_id")));
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
    qint64 id = cbxStatus->itemData(index).toLongLong();
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
            selectComboId(cbxStatus, value(QStringLiteral("status_id")));
            return;
        }
        id = createStatus(name);
        if (id < 0) {
            selectComboId(cbxStatus, value(QStringLiteral("status_id")));
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
    const qint64 id = cbxPlan->itemData(index).toLongLong();
    if (id == NewEntry) {
        // Importing a plan needs the plan library.
        slotPlanDialogButtonClicked();
        const QVariant plan = value(QStringLiteral("plan_info_id"));
        selectComboId(cbxPlan, plan.toLongLong() > 0 ? plan : QVariant());
        return;
    }
    if (id == ClearPlanEntry) {
        // NULL and -1 both mean "no plan"; only a real assignment is undone.
        if (value(QStringLiteral("plan_info_id")).toLongLong() > 0)
            writeValue(QStringLiteral("plan_info_id"), -1);
        cbxPlan->setCurrentIndex(-1);
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
    // The photo list is not part of the program yet (the button is disabled).
    updatePhotoButton();
}

void KalDefectEditor::slotPlanDialogButtonClicked()
{
    // The plan library is not part of the program yet (the button is disabled).
}

void KalDefectEditor::slotPlanEditorButtonClicked()
{
    // The plan editor is not part of the program yet (the button is disabled).
}

void KalDefectEditor::updatePhotoButton()
{
    const int count = value(QStringLiteral("image_cnt")).toInt();
    pbPhotoEditor->setText(count < 1 ? tr("Fotos hinzufügen") : tr("Fotos bearbeiten"));
}

void KalDefectEditor::slotTypeEditingFinished()
{
    if (KalCompleter *c = leType->kalCompleter())
        c->appendEntry(leType->text());
}

void KalDefectEditor::slotRoomNameEditingFinished()
{
    if (KalCompleter *c = leRoomName->kalCompleter())
        c->appendEntry(leRoomName->text());
}

void KalDefectEditor::slotRoomBookNoEditingFinished()
{
    if (KalCompleter *c = leRoomBookNo->kalCompleter())
        c->appendEntry(leRoomBookNo->text());
}

void KalDefectEditor::slotPriorityEditingFinished()
{
    if (KalCompleter *c = lePriority->kalCompleter())
        c->appendEntry(lePriority->text());
}

void KalDefectEditor::on_pbUserIdInfo_clicked()
{
    QToolTip::showText(pbUserIdInfo->mapToGlobal(QPoint(0, pbUserIdInfo->height())), userIdHelpText(), pbUserIdInfo);
}

void KalDefectEditor::on_leUserId_textEdited(const QString &text)
{
    const QString upper = text.toUpper();
    if (upper == text)
        return;
    const int cursor = leUserId->cursorPosition();
    leUserId->setText(upper);
    leUserId->setCursorPosition(cursor);
}

// --- closing ------------------------------------------------------------------------

void KalDefectEditor::slotAccepted()
{
    if (!m_defects || m_finished) {
        QDialog::accept();
        return;
    }
    // A date that cannot be read keeps the dialog open (the field warns).
    for (KalDateEdit *edit : {deCreationDate, deCorrectionDate, deDeadline1, deDeadline2}) {
        if (!edit->text().trimmed().isEmpty() && !edit->date().isValid()) {
            edit->setFocus();
            return;
        }
    }
    m_finished = true;
    teDescription->rememberText();
    // The mapper's values, written only where they differ, so an unchanged
    // field keeps its stored form (NULL stays NULL).
    for (int column = 0; column < m_defects->columnCount(); ++column) {
        QWidget *widget = m_mapper->mappedWidgetAt(column);
        if (!widget || widget == lePhotos)
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
        writeValue(QStringLiteral("site_journal_data_modified"), 1);
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

void KalDefectEditor::saveGeometrySetting()
{
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
}
