#pragma once

#include <QVariant>
#include <functional>

class QObject;
class QString;
class QWidget;

// The grid's in-place editors that come from the text input aids, by the
// delegate's editor number:
//   2    line edit with the auto-text list of the column
//   3    multi-line, spell-checked editor with the column's auto-texts
//   4, 7 frameless date field
namespace KalTextAidsEditors {

bool handles(int editorNumber);
// Null for other editor numbers.
QWidget *create(int editorNumber, const QString &table, const QString &field, QWidget *parent);

// Fill and read one of the editors above. `handled` is false for any other
// widget. Date fields take a QDate or a date text and give a QDate (null
// when empty or not a date; the field then warns by itself).
bool setEditorData(QWidget *editor, const QVariant &value);
QVariant editorData(QWidget *editor, bool *handled = nullptr);

// Calls `slot` whenever the editor's editing is finished (all three kinds
// have an editingFinished() signal, not all the same one).
void onEditingFinished(QWidget *editor, QObject *context, const std::function<void()> &slot);

} // namespace KalTextAidsEditors
