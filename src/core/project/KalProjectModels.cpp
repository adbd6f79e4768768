#include "KalProjectModels.h"

#include "core/project/KalCompanies.h"
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDefectColumns.h"
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"

#include <QCoreApplication>
#include <initializer_list>

namespace {

struct Field
{
    const char *name;
    QVariant::Type type;
    const char *caption = nullptr; // translated in the context of KalSqlTableModel
    int displayRole = KalSqlTableModel::NoDisplayRole;
};

constexpr QVariant::Type Int = QVariant::Int;
constexpr QVariant::Type Double = QVariant::Double;
constexpr QVariant::Type String = QVariant::String;
constexpr QVariant::Type Date = QVariant::Date;
constexpr QVariant::Type DateTime = QVariant::DateTime;

void declare(KalSqlTableModel *model, std::initializer_list<Field> fields)
{
    for (const Field &field : fields) {
        const QString name = QString::fromLatin1(field.name);
        model->declareField(name, field.type);
        if (field.caption)
            model->setHeaderText(name, QCoreApplication::translate("KalSqlTableModel", field.caption));
        if (field.displayRole != KalSqlTableModel::NoDisplayRole)
            model->setDisplayRole(name, field.displayRole);
    }
}

void declareDefect(KalSqlTableModel *m)
{
    for (const KalDefectColumn &column : KalDefectColumns::columns()) {
        const QString name = QString::fromLatin1(column.field);
        m->declareField(name, column.type);
        if (column.caption)
            m->setHeaderText(name, KalDefectColumns::caption(name));
        if (column.displayRole != KalSqlTableModel::NoDisplayRole)
            m->setDisplayRole(name, column.displayRole);
    }
}

void declareStatus(KalSqlTableModel *m)
{
    declare(m, {
                   {"id", Int},
                   {"status", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Status")},
                   {"type", Int, QT_TRANSLATE_NOOP("KalSqlTableModel", "Typ"), KalSqlTableModel::StatusTypeRole},
                   {"reduction_option", Int},
                   {"pos", Int},
                   {"color", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Farbe"), KalSqlTableModel::ColorRole},
               });
    m->setBackgroundRole(QStringLiteral("color"), KalSqlTableModel::ColorNameBackground);
}

void declarePlanInfo(KalSqlTableModel *m)
{
    declare(m, {
                   {"id", Int},
                   {"plan_name", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Plan-Name oder Nummer")},
                   {"plan_index", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Index")},
                   {"date", Date, QT_TRANSLATE_NOOP("KalSqlTableModel", "Datum"), KalSqlTableModel::DateRole},
                   {"plan_id", Int},
                   {"pos", Int},
               });
}

void declarePhotoInfo(KalSqlTableModel *m)
{
    declare(m, {
                   {"id", Int},
                   {"pos", Int, QT_TRANSLATE_NOOP("KalSqlTableModel", "Position")},
                   {"caption", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Titel")},
                   {"comment", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Kommentar")},
                   {"date", Date, QT_TRANSLATE_NOOP("KalSqlTableModel", "Datum"), KalSqlTableModel::DateRole},
                   {"image_id", Int},
                   {"defect_id", Int},
                   {"site_journal_id", Int},
                   {"delete_on_import", Int},
                   {"site_journal_data_modified", Int},
               });
}

void declareCompany(KalSqlTableModel *m)
{
    declare(m, {
                   {"id", Int},
                   {"type", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Gewerk")},
                   {"firstname", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Vorname")},
                   {"lastname", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Nachname")},
                   {"company", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Firma")},
                   {"street", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Straße")},
                   {"plz", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "PLZ")},
                   {"city", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Stadt")},
                   {"telephone", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Telefon")},
                   {"telefax", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Fax")},
                   {"mobile", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Mobil")},
                   {"email", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "E-Mail")},
                   {"pos", Int},
                   {"modified", Int},
                   {"site_journal_id", Int},
                   {"delete_on_import", Int},
               });
}

void declareOthers(const QString &table, KalSqlTableModel *m)
{
    if (table == QLatin1String("addresslist")) {
        declare(m, {{"id", Int}, {"name", String, QT_TRANSLATE_NOOP("KalSqlTableModel", "Adressenliste")}});
    } else if (table == QLatin1String("meta")) {
        declare(m, {{"key", String}, {"value", String}});
    } else if (table == QLatin1String("kal")) {
        declare(m, {{"id", Int},
                    {"projectname", String},
                    {"projectnumber", String},
                    {"logo_image_id", Int},
                    {"logo_align", Int},
                    {"logo2_image_id", Int},
                    {"logo2_align", Int},
                    {"headline_left", String},
                    {"headline_center", String},
                    {"headline_right", String},
                    {"footer_left", String},
                    {"footer_center", String},
                    {"footer_right", String},
                    {"email_subject", String},
                    {"email_body", String},
                    {"project_data_modified", Int}});
    } else if (table == QLatin1String("marker")) {
        declare(m, {{"id", Int},
                    {"type", Int},
                    {"pos_x", Double},
                    {"pos_y", Double},
                    {"scale_factor", Double},
                    {"rotation_angle", Double},
                    {"color1", String},
                    {"color2", String},
                    {"linewidth", Double},
                    {"transform_point_x", Double},
                    {"transform_point_y", Double},
                    {"plan_info_id", Int},
                    {"defect_id", Int}});
    } else if (table == QLatin1String("marker_text")) {
        declare(m, {{"id", Int},
                    {"pos_x", Double},
                    {"pos_y", Double},
                    {"scale_factor", Double},
                    {"rotation_angle", Double},
                    {"transform_point_x", Double},
                    {"transform_point_y", Double},
                    {"text", String},
                    {"color", String},
                    {"text_properties", Int},
                    {"font_family", String},
                    {"font_size", Int},
                    {"plan_info_id", Int},
                    {"defect_id", Int}});
    } else if (table == QLatin1String("imported_report")) {
        declare(m, {{"id", Int},
                    {"site_journal_id", Int},
                    {"number", String},
                    {"locked", Int},
                    {"user_id", String},
                    {"creation_date", DateTime},
                    {"exported_by_app", Int},
                    {"import_version", DateTime},
                    {"delete_on_import", Int}});
    } else if (table == QLatin1String("imported_closed_report_company")) {
        declare(m, {{"id", Int}, {"site_journal_id", Int}, {"pellwick_id", Int}});
    } else if (table == QLatin1String("deleted_site_journal_defect")) {
        declare(m, {{"id", Int},
                    {"site_journal_id", Int},
                    {"number", String},
                    {"imported_report_id", Int},
                    {"restore_on_import", Int}});
    } else if (table == QLatin1String("deleted_site_journal_photo_info")) {
        declare(m, {{"id", Int}, {"defect_id", Int}, {"site_journal_id", Int}, {"restore_on_import", Int}});
    } else if (table == QLatin1String("deleted_site_journal_company")) {
        declare(m, {{"id", Int}, {"site_journal_id", Int}, {"restore_on_import", Int}});
    }
}

// Looked-up tables first, so that the defect model can refer to them.
const char *const s_tables[] = {
    "kal",
    "meta",
    "status",
    "company",
    "plan_info",
    "photo_info",
    "defect",
    "marker",
    "marker_text",
    "addresslist",
    "imported_report",
    "imported_closed_report_company",
    "deleted_site_journal_defect",
    "deleted_site_journal_photo_info",
    "deleted_site_journal_company",
};

} // namespace

KalProjectModels::KalProjectModels(KalProject *project)
    : m_project(project)
{
    // Companies are shown in the user's chosen format from the first paint.
    KalCompanyFormat::installFromSettings();
    const QSqlDatabase db = project->database();
    for (const char *name : s_tables) {
        const QString table = QString::fromLatin1(name);
        auto *model = new KalSqlTableModel(project, nullptr, db);
        model->setTable(table);
        if (table == QLatin1String("defect"))
            declareDefect(model);
        else if (table == QLatin1String("status"))
            declareStatus(model);
        else if (table == QLatin1String("plan_info"))
            declarePlanInfo(model);
        else if (table == QLatin1String("photo_info"))
            declarePhotoInfo(model);
        else if (table == QLatin1String("company"))
            declareCompany(model);
        else
            declareOthers(table, model);
        m_models.insert(table, model);
        m_order.append(table);
    }

    KalSqlTableModel *defects = m_models.value(QStringLiteral("defect"));
    defects->setRemovalRule([project](const QSqlRecord &defect, QStringList *changedTables) {
        return KalDefects::removeDependants(*project, defect, changedTables);
    });
    m_models.value(QStringLiteral("company"))
        ->setRemovalRule([project](const QSqlRecord &company, QStringList *changedTables) {
            return KalCompanies::releaseDefects(*project, company, changedTables);
        });
    defects->setLookupModel(KalSqlTableModel::CompanyRole, m_models.value(QStringLiteral("company")));
    defects->setLookupModel(KalSqlTableModel::StatusRole, m_models.value(QStringLiteral("status")));
    defects->setLookupModel(KalSqlTableModel::PlanRole, m_models.value(QStringLiteral("plan_info")));

    for (const QString &table : qAsConst(m_order))
        m_models.value(table)->select(); // fetches every row
}

KalProjectModels::~KalProjectModels()
{
    // The defect model watches the models it looks up: delete it first.
    for (auto it = m_order.crbegin(); it != m_order.crend(); ++it)
        delete m_models.value(*it);
    m_models.clear();
}

KalSqlTableModel *KalProjectModels::model(const QString &table) const
{
    return m_models.value(table);
}

QStringList KalProjectModels::tables() const
{
    return m_order;
}
