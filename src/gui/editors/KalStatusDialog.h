#pragma once

#include "core/project/KalDatabaseSchema.h"

#include <QDialog>
#include <QList>
#include <QPointer>
#include <functional>
#include <memory>

class KalProject;
class KalSqlTableModel;
class KalTableView;
class QSortFilterProxyModel;

namespace Ui {
class KalStatusDialog;
}

// The project's status catalogue: names, colours and kinds of the defect
// statuses. Every change is written at once, so closing asks nothing.
class KalStatusDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KalStatusDialog(KalProject *project, QWidget *parent = nullptr);
    ~KalStatusDialog() override;

    using DefaultStatus = KalDatabaseSchema::DefaultStatus;
    // The eight statuses of a new project, names in the current language.
    static QList<DefaultStatus> defaultStatuses() { return KalDatabaseSchema::defaultStatuses(); }
    static QString newStatusColor() { return QStringLiteral("#859FAF"); }

    // Chooses a colour; returns an invalid colour when cancelled. Replaceable
    // so that tests can answer the colour dialog.
    using ColorChooser = std::function<QColor(const QColor &initial, QWidget *parent, const QString &title)>;
    static void setColorChooser(const ColorChooser &chooser);

    KalTableView *tableView() const;

private slots:
    void slotAddStatus();
    void slotColorEditor(const QModelIndex &index);
    void slotSaveSelectionBeforeSorting(int logicalIndex, Qt::SortOrder order);
    void slotRestoreSelectionAfterSorting(int logicalIndex);
    void slotSetItemFocus(int row, int column);
    void slotScroll2Row(int row, int column);
    void slotReselectRows(int first, int last);
    void saveResizedSizes(int logicalIndex, int oldSize, int newSize);
    void slotDefaultStatusClicked();
    void slotRemoveUserStatusClicked();

    // The work behind the two buttons, without the question.
    bool restoreDefaultStatuses();
    bool removeUserStatuses();

protected:
    void done(int result) override;

private:
    void colorEditorForId(qint64 statusId);
    int proxyRowOfId(qint64 id) const;

    KalProject *m_project;
    QPointer<KalSqlTableModel> m_model;
    QSortFilterProxyModel *m_proxy = nullptr;
    std::unique_ptr<Ui::KalStatusDialog> m_ui;
    QList<qint64> m_idsBeforeSorting;
    QList<qint64> m_idsBeforeSubmit;
};
