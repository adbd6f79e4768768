#pragma once

#include <QDialog>

#include <memory>

class KalCompleterModel;
class KalCompleterStringListModel;
class QListView;
class QTableView;

namespace Ui {
class KalCompleterDialog;
}

// Edits every auto-text list: which fields offer their texts and what is in
// each list. Changes are written on OK.
class KalCompleterDialog : public QDialog
{
    Q_OBJECT
public:
    explicit KalCompleterDialog(QWidget *parent = nullptr);
    ~KalCompleterDialog() override;

    KalCompleterModel *completerModel() const { return m_completers; }
    KalCompleterStringListModel *valuesModel() const { return m_values; }
    QTableView *completerView() const;
    QListView *valuesView() const;
    // Selects the list of a field; false when it is not listed.
    bool selectCompleter(const QString &tableId, const QString &columnId);
    bool isModified() const;

public slots:
    void slotAllClicked();
    void slotNoneClicked();
    void slotAddEntryClicked();
    void slotDeleteEntryClicked();
    void slotDeleteAllClicked();
    void slotResetClicked();
    void accept() override;
    void reject() override;

protected:
    void done(int result) override;

private:
    void showValuesOf(int row);
    void storeValues();

    KalCompleterModel *m_completers;
    KalCompleterStringListModel *m_values;
    std::unique_ptr<Ui::KalCompleterDialog> m_ui;
    int m_currentRow = -1;
    bool m_loadingValues = false;
};
