#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

// Every column of table `defect` in schema order: how the model declares it,
// what the grid and the CSV export show in the compact and the full layout,
// its default width and the caption of its auto-text list. The one place
// these facts live.
struct KalDefectColumn
{
    const char *field;
    QVariant::Type type;
    const char *caption;    // grid caption, context "KalSqlTableModel"; null: none
    int displayRole;        // KalSqlTableModel::DisplayRole
    bool compact;           // shown in the compact layout
    bool all;               // shown in the layout with all columns
    int widthChars;         // default width in average characters; 0: takes the rest
    const char *aidCaption; // auto-text list caption, context "KalCompleterStore"; null: none

    bool isDate() const { return type == QVariant::Date; }
};

class KalDefectColumns
{
    Q_DECLARE_TR_FUNCTIONS(KalDefectColumns)

public:
    enum Layout { Compact = 1, All = 2 };

    static const QVector<KalDefectColumn> &columns();
    // Null when `field` is no column of the table.
    static const KalDefectColumn *find(const QString &field);
    // Fields shown in a layout, in grid order.
    static QStringList fields(Layout layout);
    // Translated grid caption; the field name when it has none.
    static QString caption(const QString &field);
    // Translated caption of the field's auto-text list; empty when it has none.
    static QString aidCaption(const QString &field);
    static bool isDate(const QString &field);
    // 12 for a field without an entry.
    static int widthChars(const QString &field);
};
