#pragma once

#include <QHash>
#include <QIcon>
#include <QStyledItemDelegate>

class KalSqlTableModel;
class QAbstractItemModel;

// Delegate of the project grids. Each column may carry an editor number
// that decides the in-place editor; columns without one get Qt's editor.
class KalItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    enum Editor {
        NoEntry = 0,
        PlainLineEdit = 1, // frameless line edit
        CompleterLineEdit = 2,
        SpellTextEdit = 3, // multi-line text
        DateEdit = 4,
        NoEditor = 5,
        CompanyLineEdit = 6, // frameless line edit
        DateEdit2 = 7,
        CaptionLineEdit = 8, // frameless line edit
        CheckNoEditor = 9
    };

    explicit KalItemDelegate(QObject *parent = nullptr);

    // The delegate a grid uses for `model`: Bool columns without editor,
    // Date columns with the date edit, and the table's own entries.
    static KalItemDelegate *createFor(KalSqlTableModel *model, QObject *parent);

    void setEditorNumber(int column, int editor);
    int editorNumber(int column) const;
    QHash<int, int> editorNumbers() const { return m_editors; }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    // The project model behind `model`, also through proxy models; null when none.
    static KalSqlTableModel *sqlModel(const QAbstractItemModel *model);
    // `index` mapped through proxies onto the project model.
    static QModelIndex sourceIndex(const QModelIndex &index);

signals:
    // Spell checking was switched: editors re-highlight their text.
    void rehighlightRequested();

public slots:
    void slotCommitAndCloseEditor();
    void slot_rehighlight();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    // The one place where editors are made, so that richer editors can replace them.
    QWidget *makeEditor(int editor, const QModelIndex &source, QWidget *parent) const;
    // The value the editor holds, in the form the model stores it.
    QVariant editorValue(int editor, QWidget *widget, bool *ok) const;
    void commitAndClose(QWidget *editor);
    void paintCameraCell(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintColorCell(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;

    QHash<int, int> m_editors;
    QIcon m_camera;
};
