#include "KalPlanInfoDialog.h"
#include "ui_KalPlanInfoDialog.h"

#include "core/photos/KalPictureStore.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/photos/KalSettingsImageSizeDialog.h"
#include "gui/plans/KalPlanInfoEditor.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalTableView.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QHeaderView>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QToolButton>

namespace {
const char *const kGeometryKey = "PlanInfoDialog/Geometry";
}

KalPlanInfoDialog::KalPlanInfoDialog(KalProject *project, qint64 defectId, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_defectId(defectId)
    , m_model(project ? project->model(QStringLiteral("plan_info")) : nullptr)
    , m_ui(std::make_unique<Ui::KalPlanInfoDialog>())
{
    m_ui->setupUi(this);
    m_scene = new QGraphicsScene(this);
    m_pixmapItem = m_scene->addPixmap(QPixmap());
    m_pixmapItem->setTransformationMode(Qt::SmoothTransformation);
    m_ui->gvPlan->setScene(m_scene);
    m_ui->gvPlan->setRenderHint(QPainter::SmoothPixmapTransform);
    if (m_model)
        setUpList();
    else
        setEnabled(false);

    connect(m_ui->pbAddPlans, &QPushButton::clicked, this, &KalPlanInfoDialog::slotAddPlans);
    connect(m_ui->pbRemovePlans, &QPushButton::clicked, this, &KalPlanInfoDialog::slotRemovePlans);
    connect(m_ui->pbNewPlanVersion, &QPushButton::clicked, this, &KalPlanInfoDialog::slotNewPlanVersion);
    connect(m_ui->pbPlanSize, &QPushButton::clicked, this, &KalPlanInfoDialog::slotPlanSize);
    connect(m_ui->pbAssignPlanToDefect, &QPushButton::clicked, this, &KalPlanInfoDialog::slotAssignPlanToDefect);
    connect(m_ui->pbClose, &QPushButton::clicked, this, &QDialog::accept);

    const QByteArray geometry = QSettings().value(QLatin1String(kGeometryKey)).toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
    updateButtons();
}

KalPlanInfoDialog::~KalPlanInfoDialog()
{
    restoreModel();
}

QString KalPlanInfoDialog::fileFilter()
{
    // The two blanks after *.jpg are the established text of this filter.
    return tr("Pläne (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)");
}

void KalPlanInfoDialog::setUpList()
{
    // The library shows every sheet, whatever another view filtered before.
    m_previousFilter = m_model->filter();
    m_model->setFilter(QString());
    m_proxy = new QSortFilterProxyModel(this);
    m_proxy->setSourceModel(m_model);
    m_proxy->setSortRole(Qt::EditRole);
    m_proxy->sort(m_model->fieldIndex(QStringLiteral("pos")), Qt::AscendingOrder);
    m_proxy->setDynamicSortFilter(true);

    KalTableView *view = m_ui->tvPlanInfo;
    view->setModel(m_proxy);
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const QString name = m_model->record().fieldName(column);
        const bool shown =
            name == QLatin1String("plan_name") || name == QLatin1String("plan_index") || name == QLatin1String("date");
        view->setColumnHidden(column, !shown);
    }
    // Names and dates change through "Plandaten eingeben", rows through the buttons.
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->horizontalHeader()->setStretchLastSection(true);
    for (QToolButton *button : {view->addButton(), view->deleteButton(), view->copyButton()})
        button->hide();
    if (!view->restoreColumnWidths())
        view->setColumnWidth(m_model->fieldIndex(QStringLiteral("plan_name")), 260);
    connect(view, &QAbstractItemView::doubleClicked, this, &KalPlanInfoDialog::slotEditPlanInfo);
    connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &KalPlanInfoDialog::slotCurrentChanged);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &KalPlanInfoDialog::updateButtons);

    // Open on the defect's own sheet when it has one.
    const qint64 own = m_defectId >= 0 ? KalPlans(m_project).planInfoIdOfDefect(m_defectId) : -1;
    if (own < 0 || view->selectIds({own}) == 0) {
        if (m_proxy->rowCount() > 0)
            view->selectRow(0);
    }
    showPreview();
}

qint64 KalPlanInfoDialog::currentId() const
{
    const QModelIndex current = m_ui->tvPlanInfo->currentIndex();
    if (!m_proxy || !current.isValid())
        return -1;
    const QModelIndex source = m_proxy->mapToSource(current);
    return m_model->data(m_model->index(source.row(), m_model->idColumn()), Qt::EditRole).toLongLong();
}

void KalPlanInfoDialog::reload(const QList<qint64> &selectIds)
{
    m_model->select();
    if (!selectIds.isEmpty())
        m_ui->tvPlanInfo->selectIds(selectIds);
    showPreview();
    updateButtons();
}

void KalPlanInfoDialog::updateButtons()
{
    const int selected = m_ui->tvPlanInfo->selectionModel() ? m_ui->tvPlanInfo->selectedIds().size() : 0;
    const bool writable = m_project && m_project->isOpen() && !m_project->isWriteProtected();
    m_ui->pbAddPlans->setEnabled(writable);
    m_ui->pbRemovePlans->setEnabled(writable && selected > 0);
    m_ui->pbNewPlanVersion->setEnabled(writable);
    m_ui->pbAssignPlanToDefect->setEnabled(writable && m_defectId >= 0);
}

// --- adding ---------------------------------------------------------------------

void KalPlanInfoDialog::slotAddPlans()
{
    const QStringList files =
        KalFileDialog::getOpenFileNames(this, KalSettings::PlanFiles, tr("Plan auswählen"), fileFilter());
    if (!files.isEmpty())
        addFiles(files);
}

void KalPlanInfoDialog::addFiles(const QStringList &files)
{
    if (!m_model || files.isEmpty())
        return;
    // Each file fails alone with its message; a PDF runs under the cancelable progress.
    const KalPlans::Import result = KalPlans(m_project).addFiles(files);
    reload(result.planInfoIds.isEmpty() ? QList<qint64>() : QList<qint64>{result.planInfoIds.last()});
}

// --- removing, new version, size -------------------------------------------------

void KalPlanInfoDialog::slotRemovePlans()
{
    const QList<qint64> ids = m_ui->tvPlanInfo->selectedIds();
    if (ids.isEmpty())
        return;
    KalPlans(m_project).removeAsked(ids);
    reload({});
}

void KalPlanInfoDialog::slotNewPlanVersion()
{
    const QString title = tr("Neue Planversion laden");
    const QList<qint64> ids = m_ui->tvPlanInfo->selectedIds();
    if (!KalPlans::checkOneSelected(ids.size(), title))
        return;
    const QString file =
        KalFileDialog::getOpenFileName(this, KalSettings::PlanFiles, tr("neue Planversion auswählen"), fileFilter());
    if (file.isEmpty())
        return;
    const qint64 id = ids.first();
    const bool stored = KalPlans(m_project).newVersion(id, file);
    reload({id});
    if (!stored || !KalPlans::askOpenEditor())
        return;
    const qint64 defectId = defectOnSheet(id);
    if (defectId >= 0)
        emit planEditorRequested(id, defectId);
}

qint64 KalPlanInfoDialog::defectOnSheet(qint64 planInfoId) const
{
    // The current defect when it is located here, else the first one that is.
    const qint64 own = m_assignTarget.currentPlanInfoId ? m_assignTarget.currentPlanInfoId()
                       : m_defectId >= 0                ? KalPlans(m_project).planInfoIdOfDefect(m_defectId)
                                                        : -1;
    if (m_defectId >= 0 && own == planInfoId)
        return m_defectId;
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT id FROM defect WHERE plan_info_id = :id ORDER BY number, id LIMIT 1"));
    query.bindValue(QStringLiteral(":id"), planInfoId);
    return query.exec() && query.next() ? query.value(0).toLongLong() : -1;
}

void KalPlanInfoDialog::slotPlanSize()
{
    KalSettingsImageSizeDialog dialog(KalPictureStore::Kind::Plan, m_project, this);
    dialog.exec();
    showPreview();
}

// --- assigning ----------------------------------------------------------------------

void KalPlanInfoDialog::slotAssignPlanToDefect()
{
    const QList<qint64> ids = m_ui->tvPlanInfo->selectedIds();
    if (m_defectId < 0 || !KalPlans::checkOneSelected(ids.size(), tr("Planauswahl")))
        return;
    const qint64 planInfoId = ids.first();
    KalPlans plans(m_project);
    const qint64 current =
        m_assignTarget.currentPlanInfoId ? m_assignTarget.currentPlanInfoId() : plans.planInfoIdOfDefect(m_defectId);
    if (current > 0) {
        KalPrompt::Message question;
        question.icon = KalPrompt::Question;
        question.title = tr("Plan austauschen");
        question.text = tr("Dem Mangel ist bereits ein Plan zugeordnet.\nSoll dem Mangel tatsächlich ein neuer Plan "
                           "zugeordnet werden?");
        question.buttons = {{KalPrompt::Ok, {}}, {KalPrompt::Abort, {}}};
        question.defaultButton = -1;
        question.escapeButton = 1;
        if (KalPrompt::ask(question) != 0)
            return;
    }
    if (m_assignTarget.assign) {
        m_assignTarget.assign(planInfoId, plans.planIdOf(planInfoId));
        return;
    }
    QString error;
    if (!plans.assign(m_defectId, planInfoId, &error))
        KalPrompt::critical(tr("Datenbankfehler"), error);
}

// --- plan data and preview -------------------------------------------------------

void KalPlanInfoDialog::slotEditPlanInfo(const QModelIndex &index)
{
    if (!index.isValid() || m_project->isWriteProtected())
        return;
    const qint64 id = currentId();
    if (id < 0)
        return;
    KalPlanInfoEditor editor(m_project, id, this);
    if (editor.exec() == QDialog::Accepted)
        reload({id});
}

void KalPlanInfoDialog::slotCurrentChanged()
{
    showPreview();
    updateButtons();
}

void KalPlanInfoDialog::showPreview()
{
    const qint64 id = currentId();
    const qint64 planId = id >= 0 ? KalPlans(m_project).planIdOf(id) : -1;
    QImage picture;
    if (planId >= 0) {
        QString error;
        picture = KalPictureStore(m_project->database(), KalPictureStore::Kind::Plan).load(planId, &error);
    }
    m_pixmapItem->setPixmap(QPixmap::fromImage(picture));
    m_scene->setSceneRect(m_pixmapItem->boundingRect());
    fitPreview();
}

void KalPlanInfoDialog::fitPreview()
{
    if (m_pixmapItem->pixmap().isNull())
        m_ui->gvPlan->resetTransform();
    else
        m_ui->gvPlan->fitInView(m_pixmapItem, Qt::KeepAspectRatio);
}

void KalPlanInfoDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    fitPreview();
}

void KalPlanInfoDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    fitPreview();
}

// --- closing ---------------------------------------------------------------------

void KalPlanInfoDialog::restoreModel()
{
    if (m_restored || !m_model)
        return;
    m_restored = true;
    m_ui->tvPlanInfo->saveColumnWidths();
    m_ui->tvPlanInfo->setModel(nullptr);
    m_model->setFilter(m_previousFilter);
}

void KalPlanInfoDialog::done(int result)
{
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    restoreModel();
    QDialog::done(result);
}
