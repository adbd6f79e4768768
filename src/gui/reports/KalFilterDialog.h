#pragma once

#include "core/reports/KalDefectFilter.h"
#include "core/reports/KalDefectFilterState.h"
#include "core/reports/KalPrintDefects.h"

#include <QDialog>
#include <array>
#include <memory>
#include <optional>

class KalProject;
class QCheckBox;
class QStandardItem;
class QStandardItemModel;

namespace Ui {
class KalFilterDialog;
}

// In front of every defect list: which defects, in which order, with which
// pictures. Opens with the choices last saved in the project; "Speichern und
// beenden" keeps them there, cancelling drops what changed.
class KalFilterDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KalFilterDialog(KalProject *project, QWidget *parent = nullptr);
    ~KalFilterDialog() override;

    // The choices as the widgets show them now.
    KalDefectFilterState state() const;

    // The layout chosen before the dialog opened (the main window's print
    // entries); without one the print buttons ask for it.
    void setLayout(KalPrintOptions::Layout layout) { m_layout = layout; }

private slots:
    void slotListFilterClicked(int list, bool checked);
    void slotSelectionListItemChanged(QStandardItem *item);
    void slotSelectionListCheckAllClicked();
    void slotSelectionListUncheckAllClicked();
    void slotSelectionListReverseSeletionClicked();
    void slotCreationDateEditingFinished();
    void slotResetFiltersClicked();
    void slotSaveClicked();
    void slotPrintClicked();
    void slotPrintPreviewClicked();
    void slotPDFClicked();
    void slotPDFPerCompanyClicked();

protected:
    void done(int result) override;

private:
    QCheckBox *listBox(KalDefectFilterState::List list) const;
    void applyState(const KalDefectFilterState &state);
    void showList(int list);
    void setAllItems(const std::function<Qt::CheckState(Qt::CheckState)> &change);
    void explainSecondClick();
    bool datesAccepted();
    // Selects, saves the choices and asks for the layout: false when any
    // of that refused or the user cancelled.
    bool prepareList(QVector<qint64> *ids, KalPrintOptions *options);
    void printTo(int target);

    KalProject *m_project;
    KalDefectFilter m_filter;
    std::unique_ptr<Ui::KalFilterDialog> m_ui;
    QStandardItemModel *m_listModel;
    // Lists and ticked entries live here; the widgets hold everything else.
    KalDefectFilterState m_lists;
    int m_shownList = -1; // the list the view shows, -1: none
    std::optional<KalPrintOptions::Layout> m_layout;
};
