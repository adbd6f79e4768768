#include "KalTextAidsEditors.h"

#include "core/textaids/KalDateFormat.h"
#include "gui/textaids/KalCompleterLineEdit.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalDateEdit.h"

namespace KalTextAidsEditors {

bool handles(int editorNumber)
{
    return editorNumber == 2 || editorNumber == 3 || editorNumber == 4 || editorNumber == 7;
}

QWidget *create(int editorNumber, const QString &table, const QString &field, QWidget *parent)
{
    switch (editorNumber) {
    case 2: {
        auto *edit = new KalCompleterLineEdit(table, field, parent);
        edit->setFrame(false);
        return edit;
    }
    case 3:
        return new KalCompleterTextEdit(table, field, parent);
    case 4:
    case 7: {
        auto *edit = new KalDateEdit(parent);
        edit->setFrame(false);
        return edit;
    }
    default:
        return nullptr;
    }
}

bool setEditorData(QWidget *editor, const QVariant &value)
{
    if (auto *date = qobject_cast<KalDateEdit *>(editor)) {
        QDate d = value.toDate();
        if (!d.isValid() && value.type() == QVariant::String)
            d = KalDateFormat::parse(value.toString());
        date->setDate(d);
        return true;
    }
    if (auto *line = qobject_cast<KalCompleterLineEdit *>(editor)) {
        line->setText(value.toString());
        return true;
    }
    if (auto *text = qobject_cast<KalCompleterTextEdit *>(editor)) {
        text->setPlainText(value.toString());
        return true;
    }
    return false;
}

QVariant editorData(QWidget *editor, bool *handled)
{
    if (handled)
        *handled = true;
    if (auto *date = qobject_cast<KalDateEdit *>(editor))
        return date->date();
    if (auto *line = qobject_cast<KalCompleterLineEdit *>(editor))
        return line->text();
    if (auto *text = qobject_cast<KalCompleterTextEdit *>(editor))
        return text->toPlainText();
    if (handled)
        *handled = false;
    return QVariant();
}

void onEditingFinished(QWidget *editor, QObject *context, const std::function<void()> &slot)
{
    if (auto *line = qobject_cast<QLineEdit *>(editor))
        QObject::connect(line, &QLineEdit::editingFinished, context, slot);
    else if (auto *text = qobject_cast<KalCompleterTextEdit *>(editor))
        QObject::connect(text, &KalCompleterTextEdit::editingFinished, context, slot);
}

} // namespace KalTextAidsEditors
