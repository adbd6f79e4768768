#include "KalTableView.h"

#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/widgets/KalHeaderView.h"
#include "gui/widgets/KalItemDelegate.h"

#include <QAbstractProxyModel>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaMethod>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSettings>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <algorithm>

namespace {
const char *const kDefectFormatKey = "TableView/Defect/DefectTableFormat";
}

KalTableView::KalTableView(QWidget *parent)
    : QTableView(parent)
{
    auto *horizontal = new KalHeaderView(Qt::Horizontal, this);
    horizontal->setSectionsClickable(true);
    horizontal->setHighlightSections(true);
    setHorizontalHeader(horizontal);
    auto *vertical = new KalHeaderView(Qt::Vertical, this);
    vertical->setSectionsClickable(true);
    vertical->setHighlightSections(true);
    setVerticalHeader(vertical);

    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);

    // The buttons sit at the left end of the horizontal scroll bar, which is
    // therefore always shown.
    auto *bar = new QWidget(this);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_addButton =
        makeButton(QStringLiteral(":/KalMainWindow/Resources/tableview-plus.png"), tr("Neue Zeile hinzufügen"));
    m_deleteButton =
        makeButton(QStringLiteral(":/KalMainWindow/Resources/tableview-minus.png"), tr("Gewählte Zeilen entfernen"));
    m_copyButton =
        makeButton(QStringLiteral(":/KalMainWindow/Resources/icon-tableview-copy.png"), tr("Gewählte Zeilen kopieren"));
    m_addButton->setObjectName(QStringLiteral("tbAdd"));
    m_deleteButton->setObjectName(QStringLiteral("tbDelete"));
    m_copyButton->setObjectName(QStringLiteral("tbCopy"));
    layout->addWidget(m_addButton);
    layout->addWidget(m_deleteButton);
    layout->addWidget(m_copyButton);
    bar->setFixedSize(layout->sizeHint());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    addScrollBarWidget(bar, Qt::AlignLeft);

    connect(m_addButton, &QToolButton::clicked, this, &KalTableView::slotAddButtonClicked);
    connect(m_deleteButton, &QToolButton::clicked, this, &KalTableView::slotDeleteButtonClicked);
    connect(m_copyButton, &QToolButton::clicked, this, &KalTableView::slotCopyButtonClicked);

    m_hintLabel = new QLabel(emptyHintText(), viewport());
    m_hintLabel->setObjectName(QStringLiteral("lblEmptyTableHint"));
    m_hintLabel->setStyleSheet(QStringLiteral("QLabel {color:rgb(154,152,150);}"));
    m_hintLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_hintLabel->hide();
    connect(verticalHeader(), &QHeaderView::sectionCountChanged, this, &KalTableView::slotHideMsgLabel);

    // Sorting re-selects the model: keep the selection by id. The header
    // changes the sort indicator (and the model sorts) before it reports the click.
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, [this] {
        if (!isSortingEnabled())
            return;
        slotStoreSelection();
        m_restoreAfterSort = true;
    });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this] {
        if (!m_restoreAfterSort)
            return;
        m_restoreAfterSort = false;
        slotResetSelection();
    });

    updateButtons();
}

KalTableView::~KalTableView() = default;

QString KalTableView::emptyHintText()
{
    return tr("Doppelklick für neue Zeile");
}

QToolButton *KalTableView::makeButton(const QString &icon, const QString &toolTip)
{
    auto *button = new QToolButton;
    const int extent = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    button->setIcon(QIcon(icon));
    button->setIconSize(QSize(extent - 2, extent - 2));
    button->setFixedSize(extent + 4, extent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(toolTip);
    return button;
}

void KalTableView::setModel(QAbstractItemModel *model)
{
    if (m_sqlModel) {
        saveColumnWidths();
        disconnect(m_sqlModel, &KalSqlTableModel::beforeSubmit, this, &KalTableView::slotStoreSelection);
        disconnect(m_sqlModel, &KalSqlTableModel::afterSubmit, this, &KalTableView::slotResetSelection);
    }
    m_storedIds.clear();
    m_storedCurrentId = -1;

    QTableView::setModel(model);
    m_sqlModel = KalItemDelegate::sqlModel(model);

    if (m_delegate) {
        if (itemDelegate() == m_delegate)
            setItemDelegate(nullptr);
        delete m_delegate;
    }
    if (m_sqlModel) {
        m_delegate = KalItemDelegate::createFor(m_sqlModel, this);
        setItemDelegate(m_delegate);
        // After the editor has closed (never while it is still on the
        // stack): a submit re-selects the model.
        connect(m_delegate, &QAbstractItemDelegate::closeEditor, this, [this] {
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (m_submitEdits && m_sqlModel && m_sqlModel->isDirty())
                        m_sqlModel->submitWithNotification(true);
                },
                Qt::QueuedConnection);
        });
        connect(m_sqlModel, &KalSqlTableModel::beforeSubmit, this, &KalTableView::slotStoreSelection);
        connect(m_sqlModel, &KalSqlTableModel::afterSubmit, this, &KalTableView::slotResetSelection);
        restoreColumnWidths();
    }
    updateButtons();
    slotHideMsgLabel();
}

bool KalTableView::finishEditing(bool commit)
{
    if (state() == EditingState) {
        if (QWidget *editor = indexWidget(currentIndex())) {
            if (commit)
                commitData(editor);
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    }
    // The submit queued for a closed editor would die with a closing window.
    if (commit && m_submitEdits && m_sqlModel && m_sqlModel->isDirty())
        return m_sqlModel->submitWithNotification(true);
    return true;
}

KalItemDelegate *KalTableView::kalDelegate() const
{
    return m_delegate;
}

KalSqlTableModel *KalTableView::sqlModel() const
{
    return m_sqlModel;
}

QString KalTableView::tableName() const
{
    return m_sqlModel ? m_sqlModel->tableName() : QString();
}

qint64 KalTableView::idOfRow(int viewRow) const
{
    if (!m_sqlModel || !model() || viewRow < 0)
        return -1;
    const QModelIndex source = KalItemDelegate::sourceIndex(model()->index(viewRow, 0));
    if (!source.isValid() || m_sqlModel->idColumn() < 0)
        return -1;
    bool ok = false;
    const qint64 id = m_sqlModel->index(source.row(), m_sqlModel->idColumn()).data(Qt::EditRole).toLongLong(&ok);
    return ok ? id : -1;
}

QModelIndex KalTableView::viewIndexOfSourceRow(int sourceRow) const
{
    if (!m_sqlModel || sourceRow < 0)
        return QModelIndex();
    QVector<const QAbstractProxyModel *> chain;
    const QAbstractItemModel *current = model();
    while (current && current != m_sqlModel) {
        auto *proxy = qobject_cast<const QAbstractProxyModel *>(current);
        if (!proxy)
            return QModelIndex();
        chain.prepend(proxy);
        current = proxy->sourceModel();
    }
    if (!current)
        return QModelIndex();
    QModelIndex index = m_sqlModel->index(sourceRow, 0);
    for (const QAbstractProxyModel *proxy : qAsConst(chain))
        index = proxy->mapFromSource(index);
    return index;
}

QList<qint64> KalTableView::selectedIds() const
{
    QList<qint64> ids;
    if (!selectionModel())
        return ids;
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(), [](const QModelIndex &a, const QModelIndex &b) { return a.row() < b.row(); });
    for (const QModelIndex &index : qAsConst(rows)) {
        const qint64 id = idOfRow(index.row());
        if (id >= 0)
            ids << id;
    }
    return ids;
}

QList<int> KalTableView::selectedSourceRows() const
{
    QList<int> rows;
    if (!selectionModel())
        return rows;
    const QModelIndexList selected = selectionModel()->selectedRows();
    for (const QModelIndex &index : selected) {
        const QModelIndex source = KalItemDelegate::sourceIndex(index);
        if (source.isValid() && !rows.contains(source.row()))
            rows << source.row();
    }
    return rows;
}

int KalTableView::selectIds(const QList<qint64> &ids)
{
    if (!m_sqlModel || !selectionModel())
        return 0;
    QItemSelection selection;
    QModelIndex first;
    QModelIndex current;
    for (qint64 id : ids) {
        const QModelIndex index = viewIndexOfSourceRow(m_sqlModel->findRowById(id));
        if (!index.isValid())
            continue;
        selection.select(index, index);
        if (!first.isValid())
            first = index;
        if (id == m_storedCurrentId)
            current = index;
    }
    selectionModel()->clearSelection();
    if (selection.isEmpty())
        return 0;
    selectionModel()->select(selection, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const QModelIndex focus = current.isValid() ? current : first;
    selectionModel()->setCurrentIndex(focus, QItemSelectionModel::NoUpdate);
    scrollTo(focus);
    return selection.size();
}

bool KalTableView::selectId(qint64 id, QAbstractItemView::ScrollHint hint)
{
    if (!m_sqlModel || !selectionModel())
        return false;
    const QModelIndex index = viewIndexOfSourceRow(m_sqlModel->findRowById(id));
    if (!index.isValid())
        return false;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index, hint);
    return true;
}

void KalTableView::slotStoreSelection()
{
    m_storedIds = selectedIds();
    m_storedCurrentId = currentIndex().isValid() ? idOfRow(currentIndex().row()) : -1;
}

void KalTableView::slotResetSelection()
{
    selectIds(m_storedIds);
    updateButtons();
}

QString KalTableView::columnWidthsKey(const QString &table)
{
    if (table == QLatin1String("defect")) {
        QSettings settings;
        return settings.value(QLatin1String(kDefectFormatKey), 1).toInt() == 2
                   ? QStringLiteral("TableView/Defect/LongColumnWidths")
                   : QStringLiteral("TableView/Defect/ShortColumnWidths");
    }
    return QStringLiteral("TableView/%1/ColumnWidths").arg(table);
}

QString KalTableView::columnWidthsKey() const
{
    return m_sqlModel ? columnWidthsKey(m_sqlModel->tableName()) : QString();
}

void KalTableView::saveColumnWidths() const
{
    if (!m_sqlModel || !model() || model()->columnCount() == 0)
        return;
    QSettings settings;
    const QString key = columnWidthsKey();
    // Hidden columns keep the width they had when they were last visible.
    const QStringList previous = settings.value(key).toStringList();
    QStringList widths;
    for (int column = 0; column < model()->columnCount(); ++column) {
        if (isColumnHidden(column))
            widths << (column < previous.size() ? previous.at(column) : QStringLiteral("0"));
        else
            widths << QString::number(columnWidth(column));
    }
    settings.setValue(key, widths);
}

bool KalTableView::restoreColumnWidths()
{
    if (!m_sqlModel || !model())
        return false;
    QSettings settings;
    const QString key = columnWidthsKey();
    if (!settings.contains(key))
        return false;
    const QStringList widths = settings.value(key).toStringList();
    const int count = qMin(widths.size(), model()->columnCount());
    for (int column = 0; column < count; ++column) {
        const int width = widths.at(column).toInt();
        if (width > 0)
            setColumnWidth(column, width);
    }
    return true;
}

bool KalTableView::deleteSelectedRows()
{
    if (!m_sqlModel)
        return false;
    QList<int> rows = selectedSourceRows();
    if (rows.isEmpty())
        return false;

    // Every selected row goes, so the question names how many when there
    // are several.
    const bool several = rows.size() > 1;
    bool yes;
    const int n = rows.size();
    if (m_deleteQuestion) {
        yes = m_deleteQuestion(selectedIds());
    } else if (m_sqlModel->tableName() == QLatin1String("status")) {
        yes = KalPrompt::yesNo(
            tr("Status löschen"),
            several ? tr("Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel "
                         "ihren Status!\nSollen die %1 gewählten Status tatsächlich gelöscht werden?")
                          .arg(n)
                    : tr("Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel "
                         "ihren Status!\nSoll der gewählte Status tatsächlich gelöscht werden?"));
    } else if (several) {
        yes = KalPrompt::yesNo(tr("Einträge entfernen"),
                               tr("Sollen die %1 gewählten Einträge tatsächlich entfernt werden?").arg(n));
    } else {
        yes = KalPrompt::yesNo(tr("Eintrag entfernen"), tr("Soll der gewählte Eintrag tatsächlich entfernt werden?"));
    }
    if (!yes)
        return false;

    // From the bottom up so that the remaining row numbers stay valid; the
    // last removal writes all of them (and their dependants) at once.
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    bool ok = true;
    for (int i = 0; i < rows.size(); ++i) {
        const bool last = i == rows.size() - 1;
        ok = m_sqlModel->removeRows(rows.at(i), 1, QModelIndex(), last) && ok;
    }
    clearSelection();
    updateButtons();
    emit signalRowsDeleted();
    return ok;
}

void KalTableView::slotAddButtonClicked()
{
    emit signalButtonAddClicked();
    emit signalAddButtonClicked();
}

void KalTableView::slotDeleteButtonClicked()
{
    deleteSelectedRows();
}

void KalTableView::slotCopyButtonClicked()
{
    emit signalButtonCopyClicked();
}

void KalTableView::slotHideMsgLabel()
{
    const bool empty = model() && m_sqlModel && model()->rowCount() == 0;
    if (empty) {
        placeHintLabel();
        m_hintLabel->show();
    } else {
        m_hintLabel->hide();
    }
}

void KalTableView::placeHintLabel()
{
    m_hintLabel->adjustSize();
    const QRect area = viewport()->rect();
    m_hintLabel->move(area.center().x() - m_hintLabel->width() / 2, area.center().y() - m_hintLabel->height() / 2);
}

void KalTableView::updateButtons()
{
    if (!m_addButton)
        return;
    const bool hasModel = m_sqlModel;
    const bool hasSelection = hasModel && selectionModel() && selectionModel()->hasSelection();
    const bool addHandled = isSignalConnected(QMetaMethod::fromSignal(&KalTableView::signalButtonAddClicked)) ||
                            isSignalConnected(QMetaMethod::fromSignal(&KalTableView::signalAddButtonClicked));
    const bool copyHandled = isSignalConnected(QMetaMethod::fromSignal(&KalTableView::signalButtonCopyClicked));
    m_addButton->setEnabled(hasModel && addHandled);
    m_deleteButton->setEnabled(hasSelection);
    m_copyButton->setEnabled(hasSelection && copyHandled);
}

void KalTableView::connectNotify(const QMetaMethod &signal)
{
    QTableView::connectNotify(signal);
    updateButtons();
}

void KalTableView::disconnectNotify(const QMetaMethod &signal)
{
    QTableView::disconnectNotify(signal);
    QTimer::singleShot(0, this, [this] { updateButtons(); });
}

void KalTableView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    updateButtons();
}

void KalTableView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier && state() != EditingState &&
        !m_deleteButton->isHidden() && m_deleteButton->isEnabled()) {
        event->accept();
        slotDeleteButtonClicked();
        return;
    }
    QTableView::keyPressEvent(event);
}

void KalTableView::mousePressEvent(QMouseEvent *event)
{
    QTableView::mousePressEvent(event);
    if (!m_sqlModel || event->button() != Qt::LeftButton || m_sqlModel->tableName() != QLatin1String("status"))
        return;
    const QModelIndex index = indexAt(event->pos());
    const QModelIndex source = KalItemDelegate::sourceIndex(index);
    if (!source.isValid() || source.column() != m_sqlModel->fieldIndex(QStringLiteral("color")))
        return;
    const qint64 id = idOfRow(index.row());
    // After the press has been handled, so that a dialog opened by the
    // receiver does not run inside the view's mouse handling.
    const QPersistentModelIndex persistent(index);
    QTimer::singleShot(0, this,
                       [this, persistent, id] { emit mouseClickOnStatusColorField(QModelIndex(persistent), id); });
}

void KalTableView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!indexAt(event->pos()).isValid() && event->button() == Qt::LeftButton && m_addButton->isEnabled() &&
        !m_addButton->isHidden()) {
        event->accept();
        slotAddButtonClicked();
        return;
    }
    QTableView::mouseDoubleClickEvent(event);
}

void KalTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    if (!m_hintLabel->isHidden())
        placeHintLabel();
}

bool KalTableView::viewportEvent(QEvent *event)
{
    // The viewport also changes size when the headers do.
    if (event->type() == QEvent::Resize && m_hintLabel && !m_hintLabel->isHidden())
        placeHintLabel();
    return QTableView::viewportEvent(event);
}

// --- dropped files -------------------------------------------------------------

void KalTableView::setFileDropEnabled(bool enabled)
{
    m_fileDrops = enabled;
    const bool accept = enabled || dragDropMode() != NoDragDrop;
    setAcceptDrops(accept);
    viewport()->setAcceptDrops(accept);
}

QStringList KalTableView::droppedFiles(const QMimeData *data)
{
    QStringList files;
    if (!data)
        return files;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    return files;
}

void KalTableView::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_fileDrops && !droppedFiles(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
        return;
    }
    QTableView::dragEnterEvent(event);
}

void KalTableView::dragMoveEvent(QDragMoveEvent *event)
{
    if (m_fileDrops && !droppedFiles(event->mimeData()).isEmpty()) {
        // Only a row can take the files.
        const int row = rowAt(event->pos().y());
        if (row >= 0 && idOfRow(row) >= 0) {
            event->setDropAction(Qt::CopyAction);
            event->accept(visualRect(model()->index(row, 0)).adjusted(-10000, 0, 10000, 0));
        } else {
            event->ignore();
        }
        return;
    }
    QTableView::dragMoveEvent(event);
}

void KalTableView::dropEvent(QDropEvent *event)
{
    const QStringList files = droppedFiles(event->mimeData());
    if (m_fileDrops && !files.isEmpty()) {
        const qint64 id = idOfRow(rowAt(event->pos().y()));
        if (id < 0) {
            event->ignore();
            return;
        }
        event->setDropAction(Qt::CopyAction);
        event->accept();
        // After the drop has ended: the source waits for it to return.
        QTimer::singleShot(0, this, [this, id, files] { emit signalFilesDropped(id, files); });
        return;
    }
    QTableView::dropEvent(event);
}
