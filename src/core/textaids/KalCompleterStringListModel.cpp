#include "KalCompleterStringListModel.h"

#include "core/textaids/KalCompleterStore.h"

KalCompleterStringListModel::KalCompleterStringListModel(QObject *parent)
    : QStringListModel(parent)
{
}

QVariant KalCompleterStringListModel::data(const QModelIndex &index, int role) const
{
    const QVariant value = QStringListModel::data(index, role);
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return KalCompleterStore::displayText(value.toString());
    return value;
}

bool KalCompleterStringListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole && role != Qt::DisplayRole)
        return QStringListModel::setData(index, value, role);
    QString text = value.toString();
    text.replace(QLatin1String(" | "), QLatin1String("\n"));
    return QStringListModel::setData(index, KalCompleterStore::normalizedValue(text), role);
}
