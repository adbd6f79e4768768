#include "KalCompleterModel.h"

KalCompleterModel::KalCompleterModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    load();
}

void KalCompleterModel::load()
{
    beginResetModel();
    m_entries.clear();
    for (const KalCompleterStore::Info &info : KalCompleterStore::listedCompleters()) {
        Entry entry;
        entry.info = info;
        entry.state = KalCompleterStore::read(info.tableId, info.columnId);
        if (info.kind == KalCompleterStore::LineEditKind && entry.state.enabled && !entry.state.hasValues)
            entry.state.values = KalCompleterStore::defaultValues(info.tableId, info.columnNumber);
        m_entries.append(entry);
    }
    endResetModel();
}

int KalCompleterModel::save()
{
    int written = 0;
    for (Entry &entry : m_entries) {
        if (!entry.changed)
            continue;
        entry.state.hasValues = true;
        KalCompleterStore::write(entry.info, entry.state);
        entry.changed = false;
        ++written;
    }
    return written;
}

bool KalCompleterModel::isModified() const
{
    for (const Entry &entry : m_entries) {
        if (entry.changed)
            return true;
    }
    return false;
}

int KalCompleterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

int KalCompleterModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant KalCompleterModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return QVariant();
    const Entry &entry = m_entries.at(index.row());
    if (index.column() == FieldColumn && (role == Qt::DisplayRole || role == Qt::ToolTipRole)) {
        return QStringLiteral("%1 - %2").arg(KalCompleterStore::tableCaption(entry.info.tableId),
                                             KalCompleterStore::fieldCaption(entry.info.tableId, entry.info.columnId));
    }
    if (index.column() == ActiveColumn && role == Qt::CheckStateRole)
        return entry.state.enabled ? Qt::Checked : Qt::Unchecked;
    return QVariant();
}

bool KalCompleterModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != ActiveColumn || role != Qt::CheckStateRole)
        return false;
    Entry &entry = m_entries[index.row()];
    const bool enabled = value.toInt() == Qt::Checked;
    if (entry.state.enabled != enabled) {
        entry.state.enabled = enabled;
        entry.changed = true;
        emit dataChanged(index, index, {Qt::CheckStateRole});
    }
    return true;
}

Qt::ItemFlags KalCompleterModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags f = QAbstractTableModel::flags(index);
    if (index.column() == ActiveColumn)
        f |= Qt::ItemIsUserCheckable;
    return f;
}

QVariant KalCompleterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return section == FieldColumn ? tr("Feld") : tr("Aktiv");
}

KalCompleterStore::Info KalCompleterModel::info(int row) const
{
    return m_entries.value(row).info;
}

QStringList KalCompleterModel::values(int row) const
{
    return m_entries.value(row).state.values;
}

void KalCompleterModel::setValues(int row, const QStringList &values)
{
    if (row < 0 || row >= m_entries.size() || m_entries.at(row).state.values == values)
        return;
    m_entries[row].state.values = values;
    m_entries[row].changed = true;
}

bool KalCompleterModel::isEnabled(int row) const
{
    return m_entries.value(row).state.enabled;
}

void KalCompleterModel::setAllEnabled(bool enabled)
{
    for (int row = 0; row < m_entries.size(); ++row)
        setData(index(row, ActiveColumn), enabled ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

int KalCompleterModel::rowOf(const QString &tableId, const QString &columnId) const
{
    for (int row = 0; row < m_entries.size(); ++row) {
        if (m_entries.at(row).info.tableId == tableId && m_entries.at(row).info.columnId == columnId)
            return row;
    }
    return -1;
}
