#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// Where the auto-text lists live in the user's settings and which fields
// carry one. Layout: "Completer_<language>/<table id>/<column id>/" holding
// "Enabled", "Values" (array of "Centry"), "TableID", "ColumnID", "Simple".
namespace KalCompleterStore {

// Completer kinds follow the grid's editor numbers.
enum Kind {
    LineEditKind = 2, // single-line field; the only kind with default lists
    TextEditKind = 3  // multi-line field
};

struct Info
{
    QString tableId;
    QString columnId;
    int kind = LineEditKind;
    int columnNumber = -1;
};

struct State
{
    bool enabled = true;
    bool hasValues = false; // the group holds a "Values" array (maybe empty)
    QStringList values;
};

// "Completer_%1" for the current "Language" setting.
QString languageGroup();
// languageGroup() + "/" + table + "/" + column.
QString completerGroup(const QString &tableId, const QString &columnId);

// The fields of the program that offer auto-texts.
QVector<Info> knownCompleters();
// The known entry, or one of kind 2 without defaults for an unknown field.
Info info(const QString &tableId, const QString &columnId);
// Known fields plus every completer found in the settings, in a stable order.
QVector<Info> listedCompleters();

// "Mängel", "Raum" and the like; the id itself when unknown.
QString tableCaption(const QString &tableId);
QString fieldCaption(const QString &tableId, const QString &columnId);

// The factory list for a field of table "defect" (column numbers of that
// table), translated into the active language; empty for other fields.
QStringList defaultValues(const QString &tableId, int columnNumber);

// Collapses white space inside every line, drops empty lines.
QString normalizedValue(const QString &text);
// A value as the popup shows it: line breaks as " | ".
QString displayText(const QString &value);

State read(const QString &tableId, const QString &columnId);
void write(const Info &info, const State &state);
// Writes the default list when a kind-2 completer is enabled and has none.
// Returns true when it wrote something.
bool ensureDefaults(const Info &info);

// Removes every list of the current language: all completers are enabled
// again and get their factory lists when next used.
void resetAll();

} // namespace KalCompleterStore
