#include "KalStatusDialog.h"
#include "ui_KalStatusDialog.h"

#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/widgets/KalTableView.h"

#include <QColorDialog>
#include <QHeaderView>
#include <QIcon>
#include <QPushButton>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QSqlRecord>

namespace {

const char *const kGeometryKey = "StatusDialog/Geometry";

KalStatusDialog::ColorChooser &colorChooser()
{
    static KalStatusDialog::ColorChooser chooser;
    return chooser;
}

} // namespace

KalStatusDialog::KalStatusDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_model(project ? project->model(QStringLiteral("status")) : nullptr)
    , m_ui(std::make_unique<Ui::KalStatusDialog>())
{
    m_ui->setupUi(this);

    if (m_model) {
        // Sorting happens in a proxy, so the shared model keeps its rows.
        m_proxy = new QSortFilterProxyModel(this);
        m_proxy->setSourceModel(m_model);
        m_proxy->setSortRole(Qt::EditRole);
        m_ui->tvStatus->setModel(m_proxy);
        for (const char *hidden : {"id", "reduction_option", "pos"})
            m_ui->tvStatus->setColumnHidden(m_model->fieldIndex(QLatin1String(hidden)), true);
        // Enabling sorting sorts by the header's indicator: point it at `pos`.
        m_ui->tvStatus->horizontalHeader()->setSortIndicator(m_model->fieldIndex(QStringLiteral("pos")),
                                                             Qt::AscendingOrder);
        m_ui->tvStatus->setSortingEnabled(true);
        m_proxy->sort(m_model->fieldIndex(QStringLiteral("pos")), Qt::AscendingOrder);
        m_ui->tvStatus->horizontalHeader()->setSortIndicatorShown(false);
        if (!m_ui->tvStatus->restoreColumnWidths()) {
            m_ui->tvStatus->setColumnWidth(m_model->fieldIndex(QStringLiteral("status")), 260);
            m_ui->tvStatus->setColumnWidth(m_model->fieldIndex(QStringLiteral("color")), 60);
            m_ui->tvStatus->setColumnWidth(m_model->fieldIndex(QStringLiteral("type")), 130);
        }
        m_ui->tvStatus->horizontalHeader()->setStretchLastSection(true);

        connect(m_ui->tvStatus, &KalTableView::signalAddButtonClicked, this, &KalStatusDialog::slotAddStatus);
        connect(m_ui->tvStatus, &KalTableView::mouseClickOnStatusColorField, this,
                [this](const QModelIndex &, qint64 id) { colorEditorForId(id); });
        connect(m_ui->tvStatus->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
                &KalStatusDialog::slotSaveSelectionBeforeSorting);
        connect(m_ui->tvStatus->horizontalHeader(), &QHeaderView::sectionClicked, this,
                &KalStatusDialog::slotRestoreSelectionAfterSorting);
        connect(m_ui->tvStatus->horizontalHeader(), &QHeaderView::sectionResized, this,
                &KalStatusDialog::saveResizedSizes);
        connect(m_model, &KalSqlTableModel::beforeSubmit, this,
                [this] { m_idsBeforeSubmit = m_ui->tvStatus->selectedIds(); });
        connect(m_model, &KalSqlTableModel::afterSubmit, this, [this] {
            const int row = m_idsBeforeSubmit.isEmpty() ? -1 : proxyRowOfId(m_idsBeforeSubmit.first());
            slotReselectRows(row, row);
        });
    } else {
        setEnabled(false);
    }

    connect(m_ui->pbDefaultStatus, &QPushButton::clicked, this, &KalStatusDialog::slotDefaultStatusClicked);
    connect(m_ui->pbRemoveUserStatus, &QPushButton::clicked, this, &KalStatusDialog::slotRemoveUserStatusClicked);
    connect(m_ui->pbClose, &QPushButton::clicked, this, &QDialog::accept);

    const QByteArray geometry = QSettings().value(QLatin1String(kGeometryKey)).toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
}

KalStatusDialog::~KalStatusDialog() = default;

KalTableView *KalStatusDialog::tableView() const
{
    return m_ui->tvStatus;
}

void KalStatusDialog::setColorChooser(const ColorChooser &chooser)
{
    colorChooser() = chooser;
}

int KalStatusDialog::proxyRowOfId(qint64 id) const
{
    if (!m_model || !m_proxy)
        return -1;
    const int row = m_model->findRowById(id);
    if (row < 0)
        return -1;
    return m_proxy->mapFromSource(m_model->index(row, 0)).row();
}

void KalStatusDialog::slotAddStatus()
{
    if (!m_model)
        return;
    const qint64 id = m_project->nextId(QStringLiteral("status"));
    if (id < 0)
        return;
    const int posColumn = m_model->fieldIndex(QStringLiteral("pos"));
    qint64 pos = 0;
    for (int row = 0; row < m_model->rowCount(); ++row)
        pos = qMax(pos, m_model->data(m_model->index(row, posColumn), Qt::EditRole).toLongLong());
    QSqlRecord record = m_model->record();
    record.setValue(QStringLiteral("id"), id);
    record.setValue(QStringLiteral("status"), tr("Neuer Status"));
    record.setValue(QStringLiteral("color"), newStatusColor());
    record.setValue(QStringLiteral("type"), 2);
    record.setValue(QStringLiteral("reduction_option"), 0);
    record.setValue(QStringLiteral("pos"), pos + 1);
    if (!m_model->insertRecord(-1, record) || !m_model->submitWithNotification(true)) {
        m_model->revertAll();
        return;
    }
    m_ui->tvStatus->selectId(id);
    const int row = proxyRowOfId(id);
    slotSetItemFocus(row, m_model->fieldIndex(QStringLiteral("status")));
}

void KalStatusDialog::slotColorEditor(const QModelIndex &index)
{
    if (!index.isValid() || !m_model)
        return;
    const QModelIndex source = index.model() == m_proxy ? m_proxy->mapToSource(index) : index;
    colorEditorForId(m_model->data(m_model->index(source.row(), m_model->idColumn()), Qt::EditRole).toLongLong());
}

void KalStatusDialog::colorEditorForId(qint64 statusId)
{
    const int row = m_model ? m_model->findRowById(statusId) : -1;
    if (row < 0)
        return;
    const QModelIndex colorIndex = m_model->index(row, m_model->fieldIndex(QStringLiteral("color")));
    const QColor current(m_model->data(colorIndex, Qt::EditRole).toString());
    const QString title = tr("Statusfarbe wählen");
    const QColor chosen =
        colorChooser() ? colorChooser()(current, this, title) : QColorDialog::getColor(current, this, title);
    if (!chosen.isValid())
        return;
    const QString name = chosen.name(QColor::HexRgb);
    if (name == m_model->data(colorIndex, Qt::EditRole).toString())
        return;
    m_model->setData(colorIndex, name, Qt::EditRole);
    m_model->submitWithNotification(true);
}

bool KalStatusDialog::restoreDefaultStatuses()
{
    if (!m_model)
        return false;
    const QList<DefaultStatus> defaults = defaultStatuses();
    const int nameColumn = m_model->fieldIndex(QStringLiteral("status"));
    const int colorColumn = m_model->fieldIndex(QStringLiteral("color"));
    for (const DefaultStatus &d : defaults) {
        const int row = m_model->findRowById(d.id);
        if (row >= 0) {
            if (m_model->data(m_model->index(row, nameColumn), Qt::EditRole).toString() != d.name)
                m_model->setData(m_model->index(row, nameColumn), d.name, Qt::EditRole);
            if (m_model->data(m_model->index(row, colorColumn), Qt::EditRole).toString() != d.color)
                m_model->setData(m_model->index(row, colorColumn), d.color, Qt::EditRole);
            continue;
        }
        // A default status deleted earlier comes back with its own id.
        QSqlRecord record = m_model->record();
        record.setValue(QStringLiteral("id"), d.id);
        record.setValue(QStringLiteral("status"), d.name);
        record.setValue(QStringLiteral("color"), d.color);
        record.setValue(QStringLiteral("type"), 1);
        record.setValue(QStringLiteral("reduction_option"), d.reductionOption);
        record.setValue(QStringLiteral("pos"), d.id);
        if (!m_model->insertRecord(-1, record)) {
            m_model->revertAll();
            return false;
        }
    }
    if (!m_model->isDirty())
        return true;
    if (!m_model->submitWithNotification(true)) {
        m_model->revertAll();
        return false;
    }
    return true;
}

bool KalStatusDialog::removeUserStatuses()
{
    if (!m_model)
        return false;
    const int typeColumn = m_model->fieldIndex(QStringLiteral("type"));
    QList<qint64> ids;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_model->data(m_model->index(row, typeColumn), Qt::EditRole).toInt() == 2)
            ids.append(m_model->data(m_model->index(row, m_model->idColumn()), Qt::EditRole).toLongLong());
    }
    if (ids.isEmpty())
        return true;
    return m_model->removeRowsById(ids);
}

void KalStatusDialog::slotDefaultStatusClicked()
{
    KalPrompt::Message m;
    m.icon = KalPrompt::Question;
    m.title = tr("Standard Status wiederherstellen");
    m.text = tr("Die Standard Status werden auf die Werkseinstellungen zurückgesetzt.");
    m.buttons = {{KalPrompt::Ok, QString()}, {KalPrompt::Cancel, QString()}};
    m.defaultButton = 0;
    m.escapeButton = 1;
    if (KalPrompt::ask(m) != 0)
        return;
    restoreDefaultStatuses();
}

void KalStatusDialog::slotRemoveUserStatusClicked()
{
    KalPrompt::Message m;
    m.icon = KalPrompt::Question;
    m.title = tr("Benutzerstatus löschen");
    m.text = tr("Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel ihren "
                "Status!\nWollen Sie wirklich alle Benutzerstatus löschen?");
    m.buttons = {{KalPrompt::Ok, QString()}, {KalPrompt::Cancel, QString()}};
    m.defaultButton = 1;
    m.escapeButton = 1;
    if (KalPrompt::ask(m) != 0)
        return;
    removeUserStatuses();
}

void KalStatusDialog::slotSaveSelectionBeforeSorting(int logicalIndex, Qt::SortOrder order)
{
    Q_UNUSED(logicalIndex)
    Q_UNUSED(order)
    m_idsBeforeSorting = m_ui->tvStatus->selectedIds();
}

void KalStatusDialog::slotRestoreSelectionAfterSorting(int logicalIndex)
{
    Q_UNUSED(logicalIndex)
    m_ui->tvStatus->horizontalHeader()->setSortIndicatorShown(true);
    if (!m_idsBeforeSorting.isEmpty() && m_ui->tvStatus->selectIds(m_idsBeforeSorting) > 0)
        m_ui->tvStatus->scrollTo(m_ui->tvStatus->currentIndex());
    m_idsBeforeSorting.clear();
}

void KalStatusDialog::slotSetItemFocus(int row, int column)
{
    if (row < 0 || !m_proxy)
        return;
    const QModelIndex index = m_proxy->index(row, column);
    m_ui->tvStatus->setFocus();
    m_ui->tvStatus->setCurrentIndex(index);
}

void KalStatusDialog::slotScroll2Row(int row, int column)
{
    if (row < 0 || !m_proxy)
        return;
    m_ui->tvStatus->scrollTo(m_proxy->index(row, column), QAbstractItemView::EnsureVisible);
}

void KalStatusDialog::slotReselectRows(int first, int last)
{
    Q_UNUSED(last)
    // The grid itself selects the stored ids again after a submit; here the
    // first of them gets the focus and is scrolled into view.
    if (first < 0 || !m_model)
        return;
    const int column = m_model->fieldIndex(QStringLiteral("status"));
    slotScroll2Row(first, column);
}

void KalStatusDialog::saveResizedSizes(int logicalIndex, int oldSize, int newSize)
{
    Q_UNUSED(logicalIndex)
    Q_UNUSED(oldSize)
    Q_UNUSED(newSize)
    if (isVisible())
        m_ui->tvStatus->saveColumnWidths();
}

void KalStatusDialog::done(int result)
{
    // Every change here is written as it is made, whichever way the dialog closes.
    m_ui->tvStatus->finishEditing();
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    QDialog::done(result);
}
