#pragma once

#include <QList>
#include <QPointer>
#include <QTableView>
#include <functional>

class KalItemDelegate;
class KalSqlTableModel;
class QLabel;
class QMimeData;
class QToolButton;

// The grid of every project table: captions and texts come from the model,
// editors from KalItemDelegate. Three small buttons add, delete and copy
// rows; the selection survives submits and sorting because it is kept by
// row id; column widths are kept in the settings per table.
class KalTableView : public QTableView
{
    Q_OBJECT

public:
    explicit KalTableView(QWidget *parent = nullptr);
    ~KalTableView() override;

    // Installs the delegate built for the model, restores the column widths
    // and keeps the selection across the model's submits. Saves the widths
    // of the previous model first.
    void setModel(QAbstractItemModel *model) override;
    // Whether an edit made in a cell is written at once (the default) or
    // stays pending until the owner submits or reverts, as in dialogs with
    // OK and Cancel.
    void setSubmitEdits(bool submit) { m_submitEdits = submit; }
    bool submitEdits() const { return m_submitEdits; }

    // Ends an edit still open in a cell, as closing the grid's window does:
    // with `commit` its text goes to the model and, when edits are written
    // at once, everything pending is written now; without, it is dropped.
    // False when writing failed.
    bool finishEditing(bool commit = true);

    KalSqlTableModel *sqlModel() const;
    KalItemDelegate *kalDelegate() const;
    QString tableName() const;

    // Ids of the selected rows, in view order.
    QList<qint64> selectedIds() const;
    // Selects the rows holding these ids; the first becomes current. Returns how many were found.
    int selectIds(const QList<qint64> &ids);
    // Selects one row by id, makes it current and scrolls to it.
    bool selectId(qint64 id, QAbstractItemView::ScrollHint hint = EnsureVisible);

    // Settings key of the column widths of this grid's table (depends on
    // the defect table format for table defect).
    QString columnWidthsKey() const;
    static QString columnWidthsKey(const QString &table);
    void saveColumnWidths() const;
    // False when no widths were stored for the key.
    bool restoreColumnWidths();

    QToolButton *addButton() const { return m_addButton; }
    QToolButton *deleteButton() const { return m_deleteButton; }
    QToolButton *copyButton() const { return m_copyButton; }
    QLabel *emptyHintLabel() const { return m_hintLabel; }

    // Asks the table's question and removes the selected rows on Yes.
    // Returns true when rows were removed.
    bool deleteSelectedRows();
    // Replaces the table's question: gets the ids of the selected rows and
    // returns true to remove them.
    using DeleteQuestion = std::function<bool(const QList<qint64> &ids)>;
    void setDeleteQuestion(const DeleteQuestion &question) { m_deleteQuestion = question; }

    static QString emptyHintText();

    // Files dropped on a row are handed on with that row's id
    // (signalFilesDropped); other drops keep their usual meaning.
    void setFileDropEnabled(bool enabled);
    // Local files among dropped URLs.
    static QStringList droppedFiles(const QMimeData *data);

public slots:
    void slotAddButtonClicked();
    void slotDeleteButtonClicked();
    void slotCopyButtonClicked();
    void slotStoreSelection();
    void slotResetSelection();
    void slotHideMsgLabel();

signals:
    void signalButtonAddClicked();
    // Same moment as signalButtonAddClicked(), the name the dialogs use.
    void signalAddButtonClicked();
    void signalButtonCopyClicked();
    // After rows were removed through the delete button or the Delete key.
    void signalRowsDeleted();
    // A press in the colour column of table status, with that row's status id.
    void mouseClickOnStatusColorField(const QModelIndex &index, qint64 statusId);
    // Local files dropped on the row holding `rowId` (file drops enabled).
    void signalFilesDropped(qint64 rowId, const QStringList &files);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QToolButton *makeButton(const QString &icon, const QString &toolTip);
    void updateButtons();
    void placeHintLabel();
    qint64 idOfRow(int viewRow) const;
    QList<int> selectedSourceRows() const;
    QModelIndex viewIndexOfSourceRow(int sourceRow) const;

    QToolButton *m_addButton = nullptr;
    QToolButton *m_deleteButton = nullptr;
    QToolButton *m_copyButton = nullptr;
    QLabel *m_hintLabel = nullptr;
    bool m_restoreAfterSort = false;
    DeleteQuestion m_deleteQuestion;
    QPointer<KalItemDelegate> m_delegate;
    QPointer<KalSqlTableModel> m_sqlModel;
    QList<qint64> m_storedIds;
    qint64 m_storedCurrentId = -1;
    bool m_submitEdits = true;
    bool m_fileDrops = false;
};
