#pragma once

#include <QDialog>

class KalCompleterModel;
class KalCompleterStringListModel;
class QListView;
class QTableView;

// Edits every auto-text list: which fields offer their texts and what is in
// each list. Changes are written on OK.
class KalCompleterDialog : public QDialog
{
    Q_OBJECT
public:
    explicit KalCompleterDialog(QWidget *parent = nullptr);

    KalCompleterModel *completerModel() const { return m_completers; }
    KalCompleterStringListModel *valuesModel() const { return m_values; }
    QTableView *completerView() const { return m_tvCompleters; }
    QListView *valuesView() const { return m_lvValues; }
    // Selects the list of a field; false when it is not listed.
    bool selectCompleter(const QString &tableId, const QString &columnId);
    bool isModified() const;

public slots:
    void on_pbAll_clicked();
    void on_pbNone_clicked();
    void on_pbAddEntry_clicked();
    void on_pbDeleteEntry_clicked();
    void on_pbDeleteAll_clicked();
    void on_pbReset_clicked();
    void accept() override;
    void reject() override;

protected:
    void done(int result) override;

private:
    void showValuesOf(int row);
    void storeValues();

    KalCompleterModel *m_completers;
    KalCompleterStringListModel *m_values;
    QTableView *m_tvCompleters;
    QListView *m_lvValues;
    int m_currentRow = -1;
    bool m_loadingValues = false;
};
