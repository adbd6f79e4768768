#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class KalProject;
class KalSqlTableModel;
class QGraphicsPixmapItem;
class QGraphicsScene;
class QModelIndex;
class QSortFilterProxyModel;

namespace Ui {
class KalPlanInfoDialog;
}

// The project's plan library: the sheets in their order with a preview;
// adding (pictures and the first page of PDFs), removing, loading a new
// version, the plan size, and locating the current defect on a sheet.
// Every change is written to the project at once.
class KalPlanInfoDialog : public QDialog
{
    Q_OBJECT

public:
    // `defectId` -1: opened without a current defect, nothing to assign.
    KalPlanInfoDialog(KalProject *project, qint64 defectId, QWidget *parent = nullptr);
    ~KalPlanInfoDialog() override;

    // Where an assignment goes. By default it is written to the defect row
    // in the file; an open defect editor keeps it in its pending row instead.
    struct AssignTarget
    {
        std::function<qint64()> currentPlanInfoId;
        std::function<void(qint64 planInfoId, qint64 planId)> assign;
    };
    void setAssignTarget(const AssignTarget &target) { m_assignTarget = target; }

    // Imports the files as "Pläne hinzufügen" does after its file dialog.
    void addFiles(const QStringList &files);
    static QString fileFilter();

signals:
    // The user wants to adjust the markers of `defectId` on the sheet.
    void planEditorRequested(qint64 planInfoId, qint64 defectId);

protected:
    void done(int result) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void slotAddPlans();
    void slotRemovePlans();
    void slotNewPlanVersion();
    void slotPlanSize();
    void slotAssignPlanToDefect();
    void slotCurrentChanged();
    void slotEditPlanInfo(const QModelIndex &index);

private:
    void setUpList();
    void reload(const QList<qint64> &selectIds);
    void showPreview();
    void fitPreview();
    void updateButtons();
    qint64 currentId() const;
    qint64 defectOnSheet(qint64 planInfoId) const;
    void restoreModel();

    KalProject *m_project;
    qint64 m_defectId;
    QPointer<KalSqlTableModel> m_model;
    QString m_previousFilter;
    bool m_restored = false;
    QSortFilterProxyModel *m_proxy = nullptr;
    QGraphicsScene *m_scene = nullptr;
    QGraphicsPixmapItem *m_pixmapItem = nullptr;
    AssignTarget m_assignTarget;
    std::unique_ptr<Ui::KalPlanInfoDialog> m_ui;
};
