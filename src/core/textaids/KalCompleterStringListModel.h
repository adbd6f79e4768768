#pragma once

#include <QStringListModel>

// The values of one auto-text list for editing: shown and edited in the
// popup's form (line breaks as " | "), kept with their line breaks.
class KalCompleterStringListModel : public QStringListModel
{
    Q_OBJECT
public:
    explicit KalCompleterStringListModel(QObject *parent = nullptr);

    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
};
