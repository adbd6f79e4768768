#include "KalStatusDialog.h"

#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/widgets/KalTableView.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QPushButton>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QSqlRecord>
#include <QVBoxLayout>

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
{
    setObjectName(QStringLiteral("KalStatusDialog"));
    setWindowTitle(tr("Statusverwaltung"));
    setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-status-editor.ico")));

    tvStatus = new KalTableView(this);
    tvStatus->setObjectName(QStringLiteral("tvStatus"));
    pbDefaultStatus = new QPushButton(tr("Werkseinstellung"), this);
    pbDefaultStatus->setObjectName(QStringLiteral("pbDefaultStatus"));
    pbRemoveUserStatus = new QPushButton(tr("Alle User-Status entfernen"), this);
    pbRemoveUserStatus->setObjectName(QStringLiteral("pbRemoveUserStatus"));
    pbClose = new QPushButton(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-ok.png")), tr("Schließen"),
                              this);
    pbClose->setObjectName(QStringLiteral("pbClose"));
    pbClose->setAutoDefault(false);
    pbDefaultStatus->setAutoDefault(false);
    pbRemoveUserStatus->setAutoDefault(false);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(pbDefaultStatus);
    buttons->addWidget(pbRemoveUserStatus);
    buttons->addStretch(1);
    buttons->addWidget(pbClose);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tvStatus, 1);
    layout->addLayout(buttons);

    if (m_model) {
        // Sorting happens in a proxy, so the shared model keeps its rows.
        m_proxy = new QSortFilterProxyModel(this);
        m_proxy->setSourceModel(m_model);
        m_proxy->setSortRole(Qt::EditRole);
        tvStatus->setModel(m_proxy);
        for (const char *hidden : {"id", "reduction_option", "pos"})
            tvStatus->setColumnHidden(m_model->fieldIndex(QLatin1String(hidden)), true);
        // Enabling sorting sorts by the header's indicator: point it at `pos`.
        tvStatus->horizontalHeader()->setSortIndicator(m_model->fieldIndex(QStringLiteral("pos")), Qt::AscendingOrder);
        tvStatus->setSortingEnabled(true);
        m_proxy->sort(m_model->fieldIndex(QStringLiteral("pos")), Qt::AscendingOrder);
        tvStatus->horizontalHeader()->setSortIndicatorShown(false);
        if (!tvStatus->restoreColumnWidths()) {
            tvStatus->setColumnWidth(m_model->fieldIndex(QStringLiteral("status")), 260);
            tvStatus->setColumnWidth(m_model->fieldIndex(QStringLiteral("color")), 60);
            tvStatus->setColumnWidth(m_model->fieldIndex(QStringLiteral("type")), 130);
        }
        tvStatus->horizontalHeader()->setStretchLastSection(true);

        connect(tvStatus, &KalTableView::signalAddButtonClicked, this, &KalStatusDialog::slotAddStatus);
        connect(tvStatus, &KalTableView::mouseClickOnStatusColorField, this,
                [this](const QModelIndex &, qint64 id) { colorEditorForId(id); });
        connect(tvStatus->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
                &KalStatusDialog::slotSaveSelectionBeforeSorting);
        connect(tvStatus->horizontalHeader(), &QHeaderView::sectionClicked, this,
                &KalStatusDialog::slotRestoreSelectionAfterSorting);
        connect(tvStatus->horizontalHeader(), &QHeaderView::sectionResized, this, &KalStatusDialog::saveResizedSizes);
        connect(m_model, &KalSqlTableModel::beforeSubmit, this,
                [this] { m_idsBeforeSubmit = tvStatus->selectedIds(); });
        connect(m_model, &KalSqlTableModel::afterSubmit, this, [this] {
            const int row = m_idsBeforeSubmit.isEmpty() ? -1 : proxyRowOfId(m_idsBeforeSubmit.first());
            slotReselectRows(row, row);
        });
    } else {
        setEnabled(false);
    }

    connect(pbDefaultStatus, &QPushButton::clicked, this, &KalStatusDialog::on_pbDefaultStatus_clicked);
    connect(pbRemoveUserStatus, &QPushButton::clicked, this, &KalStatusDialog::on_pbRemoveUserStatus_clicked);
    connect(pbClose, &QPushButton::clicked, this, &QDialog::accept);

    resize(560, 420);
    const QByteArray geometry = QSettings().value(QLatin1String(kGeometryKey)).toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
}

KalStatusDialog::~KalStatusDialog() = default;

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
    tvStatus->selectId(id);
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

void KalStatusDialog::on_pbDefaultStatus_clicked()
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

void KalStatusDialog::on_pbRemoveUserStatus_clicked()
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
    m_idsBeforeSorting = tvStatus->selectedIds();
}

void KalStatusDialog::slotRestoreSelectionAfterSorting(int logicalIndex)
{
    Q_UNUSED(logicalIndex)
    tvStatus->horizontalHeader()->setSortIndicatorShown(true);
    if (!m_idsBeforeSorting.isEmpty() && tvStatus->selectIds(m_idsBeforeSorting) > 0)
        tvStatus->scrollTo(tvStatus->currentIndex());
    m_idsBeforeSorting.clear();
}

void KalStatusDialog::slotSetItemFocus(int row, int column)
{
    if (row < 0 || !m_proxy)
        return;
    const QModelIndex index = m_proxy->index(row, column);
    tvStatus->setFocus();
    tvStatus->setCurrentIndex(index);
}

void KalStatusDialog::slotScroll2Row(int row, int column)
{
    if (row < 0 || !m_proxy)
        return;
    tvStatus->scrollTo(m_proxy->index(row, column), QAbstractItemView::EnsureVisible);
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
        tvStatus->saveColumnWidths();
}

void KalStatusDialog::done(int result)
{
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    QDialog::done(result);
}
