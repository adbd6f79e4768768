#pragma once

#include "core/textaids/KalCompleterStore.h"

#include <QAbstractTableModel>
#include <QVector>

// Every auto-text list of the current language, for the editing dialog:
// column 0 "Feld" (table - field), column 1 "Aktiv" (check box). Changes stay
// in the model until save().
class KalCompleterModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { FieldColumn = 0, ActiveColumn = 1 };

    explicit KalCompleterModel(QObject *parent = nullptr);

    // (Re)reads all lists from the settings; factory lists are shown for
    // fields that have none yet.
    void load();
    // Writes the changed lists. Returns the number written.
    int save();
    bool isModified() const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    KalCompleterStore::Info info(int row) const;
    QStringList values(int row) const;
    void setValues(int row, const QStringList &values);
    bool isEnabled(int row) const;
    void setAllEnabled(bool enabled);
    // Row of a completer, -1 when not listed.
    int rowOf(const QString &tableId, const QString &columnId) const;

private:
    struct Entry
    {
        KalCompleterStore::Info info;
        KalCompleterStore::State state;
        bool changed = false;
    };
    QVector<Entry> m_entries;
};
