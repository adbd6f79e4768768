#include "KalItemDelegate.h"

#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "core/textaids/KalDateFormat.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalTextAidsEditors.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QSqlRecord>
#include <QTextEdit>
#include <QTimer>

namespace {
bool isLineEditor(int editor)
{
    switch (editor) {
    case KalItemDelegate::PlainLineEdit:
    case KalItemDelegate::CompleterLineEdit:
    case KalItemDelegate::CompanyLineEdit:
    case KalItemDelegate::CaptionLineEdit:
        return true;
    default:
        return false;
    }
}

bool isDateEditor(int editor)
{
    return editor == KalItemDelegate::DateEdit || editor == KalItemDelegate::DateEdit2;
}

QDate toDate(const QVariant &value)
{
    if (value.isNull())
        return QDate();
    if (value.type() == QVariant::Date || value.type() == QVariant::DateTime)
        return value.toDate();
    const QString text = value.toString().trimmed();
    if (text.isEmpty())
        return QDate();
    QDate date = QDate::fromString(text.left(10), Qt::ISODate);
    if (!date.isValid())
        date = KalDateFormat::parse(text);
    return date;
}

} // namespace

KalItemDelegate::KalItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_camera(QStringLiteral(":/KalMainWindow/Resources/icon-camera.png"))
{
}

KalItemDelegate *KalItemDelegate::createFor(KalSqlTableModel *model, QObject *parent)
{
    auto *delegate = new KalItemDelegate(parent);
    if (!model)
        return delegate;

    const QMap<int, QVariant::Type> types = model->fieldTypes();
    for (auto it = types.cbegin(); it != types.cend(); ++it) {
        if (it.value() == QVariant::Bool)
            delegate->setEditorNumber(it.key(), CheckNoEditor);
        else if (it.value() == QVariant::Date)
            delegate->setEditorNumber(it.key(), DateEdit);
    }

    auto set = [&](const char *field, int editor) {
        const int column = model->fieldIndex(QLatin1String(field));
        if (column >= 0)
            delegate->setEditorNumber(column, editor);
    };
    const QString table = model->tableName();
    if (table == QLatin1String("plan_info")) {
        set("plan_name", CompleterLineEdit);
        set("plan_index", CompleterLineEdit);
    } else if (table == QLatin1String("defect")) {
        set("image_cnt", NoEditor);
    } else if (table == QLatin1String("photo_info")) {
        set("caption", CaptionLineEdit);
        set("comment", CompleterLineEdit);
    } else if (table == QLatin1String("status")) {
        set("status", PlainLineEdit);
        set("type", CheckNoEditor);
    } else if (table == QLatin1String("company")) {
        for (const char *field : {"type", "firstname", "lastname", "company", "street", "plz", "city", "telephone",
                                  "telefax", "mobile", "email"})
            set(field, CompanyLineEdit);
    }
    return delegate;
}

void KalItemDelegate::setEditorNumber(int column, int editor)
{
    if (editor == NoEntry)
        m_editors.remove(column);
    else
        m_editors.insert(column, editor);
}

int KalItemDelegate::editorNumber(int column) const
{
    return m_editors.value(column, NoEntry);
}

KalSqlTableModel *KalItemDelegate::sqlModel(const QAbstractItemModel *model)
{
    while (model) {
        if (auto *sql = qobject_cast<KalSqlTableModel *>(const_cast<QAbstractItemModel *>(model)))
            return sql;
        auto *proxy = qobject_cast<const QAbstractProxyModel *>(model);
        model = proxy ? proxy->sourceModel() : nullptr;
    }
    return nullptr;
}

QModelIndex KalItemDelegate::sourceIndex(const QModelIndex &index)
{
    QModelIndex current = index;
    while (current.isValid()) {
        if (qobject_cast<const KalSqlTableModel *>(current.model()))
            return current;
        auto *proxy = qobject_cast<const QAbstractProxyModel *>(current.model());
        if (!proxy)
            return QModelIndex();
        current = proxy->mapToSource(current);
    }
    return QModelIndex();
}

QWidget *KalItemDelegate::makeEditor(int editor, const QModelIndex &source, QWidget *parent) const
{
    const auto *sql = qobject_cast<const KalSqlTableModel *>(source.model());
    const QString table = sql ? sql->tableName() : QString();
    const QString field = sql ? sql->record().fieldName(source.column()) : QString();

    QWidget *widget = nullptr;
    if (KalTextAidsEditors::handles(editor)) {
        // Completer, spelling and date fields come from the text input aids.
        widget = KalTextAidsEditors::create(editor, table, field, parent);
    } else if (isLineEditor(editor)) {
        auto *line = new QLineEdit(parent);
        line->setFrame(false);
        widget = line;
    }
    if (!widget)
        return nullptr;
    widget->setFocusPolicy(Qt::StrongFocus);
    if (auto *text = qobject_cast<QTextEdit *>(widget))
        text->setFrameShape(QFrame::NoFrame);
    if (auto *spelling = qobject_cast<KalCompleterTextEdit *>(widget))
        connect(this, &KalItemDelegate::rehighlightRequested, spelling, &KalCompleterTextEdit::slot_rehighlight);
    QPointer<QWidget> guarded(widget);
    KalTextAidsEditors::onEditingFinished(widget, const_cast<KalItemDelegate *>(this), [this, guarded] {
        if (guarded)
            const_cast<KalItemDelegate *>(this)->commitAndClose(guarded);
    });
    return widget;
}

QWidget *KalItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    const QModelIndex source = sourceIndex(index);
    if (!source.isValid())
        return QStyledItemDelegate::createEditor(parent, option, index);
    const int editor = editorNumber(source.column());
    if (editor == NoEntry) {
        // A looked-up column stores an id but shows a name: typing into it
        // would write text into the id. Those are chosen in the dialogs.
        if (const KalSqlTableModel *model = sqlModel(index.model())) {
            const int role = model->displayRole(source.column());
            if (role == KalSqlTableModel::CompanyRole || role == KalSqlTableModel::StatusRole ||
                role == KalSqlTableModel::PlanRole)
                return nullptr;
        }
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
    if (editor == NoEditor || editor == CheckNoEditor)
        return nullptr;
    return makeEditor(editor, source, parent);
}

void KalItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QModelIndex source = sourceIndex(index);
    const int number = source.isValid() ? editorNumber(source.column()) : NoEntry;
    const QVariant value = index.data(Qt::EditRole);
    if (isDateEditor(number)) {
        if (auto *edit = qobject_cast<QLineEdit *>(editor)) {
            const QDate date = toDate(value);
            edit->setText(date.isValid() ? KalDateFormat::toText(date) : QString());
            return;
        }
    }
    if (isLineEditor(number)) {
        if (auto *edit = qobject_cast<QLineEdit *>(editor)) {
            edit->setText(value.toString());
            return;
        }
    }
    if (number == SpellTextEdit) {
        if (auto *edit = qobject_cast<QTextEdit *>(editor)) {
            edit->setPlainText(value.toString());
            return;
        }
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

QVariant KalItemDelegate::editorValue(int editor, QWidget *widget, bool *ok) const
{
    *ok = true;
    if (isDateEditor(editor)) {
        auto *edit = qobject_cast<QLineEdit *>(widget);
        const QString text = edit ? edit->text().trimmed() : QString();
        if (text.isEmpty())
            return QVariant(QVariant::Date);
        const QDate date = KalDateFormat::parse(text);
        if (!date.isValid()) {
            *ok = false;
            return QVariant();
        }
        return date;
    }
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        return edit->text();
    if (auto *edit = qobject_cast<QTextEdit *>(widget))
        return edit->toPlainText();
    *ok = false;
    return QVariant();
}

void KalItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QModelIndex source = sourceIndex(index);
    const int number = source.isValid() ? editorNumber(source.column()) : NoEntry;
    if (number < PlainLineEdit || number > CaptionLineEdit) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }

    bool ok = false;
    const QVariant value = editorValue(number, editor, &ok);
    if (!ok) {
        if (isDateEditor(number)) {
            // The stored date stays. The field forgets the text, so that it
            // neither warns a second time nor commits it again when it closes.
            if (auto *line = qobject_cast<QLineEdit *>(editor))
                line->clear();
            const QString pattern = KalDateFormat::userPattern();
            QTimer::singleShot(0, [pattern] {
                KalPrompt::warning(
                    tr("Format-Fehler"),
                    tr("Das eingegebene Datum ist nicht korrekt.\nBitte verwenden Sie das Format %1!").arg(pattern));
            });
        }
        return;
    }

    if (auto *text = qobject_cast<KalCompleterTextEdit *>(editor))
        text->rememberText(); // committed: the cell's text is final
    // The model writes only a changed value and then marks the row as
    // changed here, so the site-journal import can tell edited rows apart.
    model->setData(index, value, sqlModel(model) ? KalSqlTableModel::UserEditRole : int(Qt::EditRole));
}

void KalItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    const QModelIndex source = sourceIndex(index);
    if (source.isValid() && editorNumber(source.column()) == SpellTextEdit) {
        // Multi-line text needs more room than one row.
        QRect rect = option.rect;
        rect.setHeight(qMax(rect.height(), option.fontMetrics.height() * 4 + 8));
        editor->setGeometry(rect);
        return;
    }
    QStyledItemDelegate::updateEditorGeometry(editor, option, index);
}

void KalItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QModelIndex source = sourceIndex(index);
    if (KalSqlTableModel *sql = source.isValid()
                                    ? qobject_cast<KalSqlTableModel *>(const_cast<QAbstractItemModel *>(source.model()))
                                    : nullptr) {
        const int column = source.column();
        if (sql->tableName() == QLatin1String("defect") && column == sql->fieldIndex(QStringLiteral("image_cnt"))) {
            paintCameraCell(painter, option, index);
            return;
        }
        if (sql->backgroundRole(column) == KalSqlTableModel::ColorNameBackground) {
            paintColorCell(painter, option, index);
            return;
        }
    }
    QStyledItemDelegate::paint(painter, option, index);
}

void KalItemDelegate::paintCameraCell(QPainter *painter, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    // Background and selection as any other cell, then the camera and the count.
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const int count = index.data(Qt::EditRole).toInt();
    opt.text.clear();
    opt.icon = QIcon();
    opt.features &= ~QStyleOptionViewItem::HasDecoration;
    opt.features &= ~QStyleOptionViewItem::HasDisplay;
    const QWidget *widget = option.widget;
    QStyle *style = widget ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);

    if (count <= 0)
        return;
    painter->save();
    const int side = qMin(16, option.rect.height() - 4);
    QRect iconRect(option.rect.left() + 4, option.rect.center().y() - side / 2, side, side);
    m_camera.paint(painter, iconRect, Qt::AlignCenter,
                   (option.state & QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled);
    QRect textRect = option.rect.adjusted(iconRect.width() + 8, 0, -4, 0);
    const QPalette::ColorRole role =
        (option.state & QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
    painter->setPen(option.palette.color(role));
    painter->setFont(option.font);
    painter->drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft, QString::number(count));
    painter->restore();
}

void KalItemDelegate::paintColorCell(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    // The colour stays visible in selected rows: selection shows as a frame.
    const QColor color = index.data(Qt::BackgroundRole).value<QColor>();
    painter->save();
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
    if (color.isValid())
        painter->fillRect(option.rect.adjusted(3, 3, -3, -3), color);
    painter->restore();
}

QSize KalItemDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const QModelIndex source = sourceIndex(index);
    if (source.isValid() && editorNumber(source.column()) == NoEditor)
        size.setWidth(qMax(size.width(), 16 + 12 + option.fontMetrics.horizontalAdvance(QStringLiteral("999"))));
    return size;
}

void KalItemDelegate::slotCommitAndCloseEditor()
{
    if (auto *editor = qobject_cast<QWidget *>(sender()))
        commitAndClose(editor);
}

void KalItemDelegate::commitAndClose(QWidget *editor)
{
    emit commitData(editor);
    emit closeEditor(editor);
}

void KalItemDelegate::slot_rehighlight()
{
    emit rehighlightRequested();
}

bool KalItemDelegate::eventFilter(QObject *object, QEvent *event)
{
    return QStyledItemDelegate::eventFilter(object, event);
}

bool KalItemDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                                  const QModelIndex &index)
{
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
