#include "KalDefectColumns.h"

#include "core/project/KalSqlTableModel.h"

namespace {

constexpr QVariant::Type Bool = QVariant::Bool;
constexpr QVariant::Type Int = QVariant::Int;
constexpr QVariant::Type String = QVariant::String;
constexpr QVariant::Type Date = QVariant::Date;
constexpr int None = KalSqlTableModel::NoDisplayRole;

} // namespace

const QVector<KalDefectColumn> &KalDefectColumns::columns()
{
    // clang-format off
    static const QVector<KalDefectColumn> table{
        // field, type, grid caption, display role, compact, all, width, auto-text caption
        {"id", Int, nullptr, None, false, false, 0, nullptr},
        {"number", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Nr."), None, true, true, 6, nullptr},
        {"description", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Beschreibung"), KalSqlTableModel::MultiLineRole,
         true, true, 0, QT_TRANSLATE_NOOP("KalCompleterStore", "Beschreibung")},
        {"company_id", Int, QT_TRANSLATE_NOOP("KalSqlTableModel", "Firma"), KalSqlTableModel::CompanyRole,
         true, true, 22, nullptr},
        {"type", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Typ"), None, false, true, 22,
         QT_TRANSLATE_NOOP("KalCompleterStore", "Typ")},
        {"user_id", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Autor"), None, false, true, 12,
         QT_TRANSLATE_NOOP("KalCompleterStore", "Autor")},
        {"creation_date", Date, QT_TRANSLATE_NOOP("KalSqlTableModel", "Erfasst am"), KalSqlTableModel::DateRole, false, true, 12, nullptr},
        {"roomname", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Raum"), None, true, true, 12,
         QT_TRANSLATE_NOOP("KalCompleterStore", "Raumname")},
        {"roombook_number", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Raumbuch-Nr."), None, false, true, 12,
         QT_TRANSLATE_NOOP("KalCompleterStore", "Raumbuch-Nr.")},
        {"plan_info_id", Int, QT_TRANSLATE_NOOP("KalSqlTableModel", "Plan"), KalSqlTableModel::PlanRole,
         false, true, 16, nullptr},
        {"image_cnt", Int, QT_TRANSLATE_NOOP("KalSqlTableModel", "Fotos"), None, false, true, 7, nullptr},
        {"correction_instruction", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Beseitigungsanweisung"), None,
         false, true, 24, QT_TRANSLATE_NOOP("KalCompleterStore", "Beseitigungsanweisung")},
        {"priority", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Priorität"), None, true, true, 9,
         QT_TRANSLATE_NOOP("KalCompleterStore", "Priorität")},
        {"correction_date", Date, QT_TRANSLATE_NOOP("KalSqlTableModel", "Frist"), KalSqlTableModel::DateRole,
         true, true, 12, nullptr},
        {"deadline_1", Date, QT_TRANSLATE_NOOP("KalSqlTableModel", "1. Nachfrist"), KalSqlTableModel::DateRole,
         false, true, 12, nullptr},
        {"deadline_2", Date, QT_TRANSLATE_NOOP("KalSqlTableModel", "2. Nachfrist"), KalSqlTableModel::DateRole,
         false, true, 12, nullptr},
        // Deliberately without caption and display role, unlike the first two.
        {"deadline_3", Date, nullptr, None, false, false, 12, nullptr},
        {"status_id", Int, QT_TRANSLATE_NOOP("KalSqlTableModel", "Status"), KalSqlTableModel::StatusRole,
         true, true, 22, nullptr},
        // Shown as part of the status text, never as a column of its own.
        {"reduction", Bool, QT_TRANSLATE_NOOP("KalSqlTableModel", "Minderung"), KalSqlTableModel::CheckRole,
         false, false, 12, nullptr},
        {"plan_id", Int, nullptr, None, false, false, 0, nullptr},
        {"site_journal_data_modified", Int, nullptr, None, false, false, 0, nullptr},
        {"imported_report_id", Int, nullptr, None, false, false, 0, nullptr},
        {"site_journal_id", Int, nullptr, None, false, false, 0, nullptr},
        {"delete_on_import", Int, nullptr, None, false, false, 0, nullptr},
    };
    // clang-format on
    return table;
}

const KalDefectColumn *KalDefectColumns::find(const QString &field)
{
    for (const KalDefectColumn &column : columns()) {
        if (field == QLatin1String(column.field))
            return &column;
    }
    return nullptr;
}

QStringList KalDefectColumns::fields(Layout layout)
{
    QStringList result;
    for (const KalDefectColumn &column : columns()) {
        if (layout == Compact ? column.compact : column.all)
            result << QString::fromLatin1(column.field);
    }
    return result;
}

QString KalDefectColumns::caption(const QString &field)
{
    const KalDefectColumn *column = find(field);
    if (!column || !column->caption)
        return field;
    return QCoreApplication::translate("KalSqlTableModel", column->caption);
}

QString KalDefectColumns::aidCaption(const QString &field)
{
    const KalDefectColumn *column = find(field);
    if (!column || !column->aidCaption)
        return QString();
    return QCoreApplication::translate("KalCompleterStore", column->aidCaption);
}

bool KalDefectColumns::isDate(const QString &field)
{
    const KalDefectColumn *column = find(field);
    return column && column->isDate();
}

int KalDefectColumns::widthChars(const QString &field)
{
    const KalDefectColumn *column = find(field);
    return column && column->widthChars > 0 ? column->widthChars : 12;
}
