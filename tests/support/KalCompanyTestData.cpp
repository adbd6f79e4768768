#include "KalCompanyTestData.h"

#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"

#include <QDate>
#include <QDebug>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariantMap>

namespace CompanyTestData {

KalCompanyRecord company(const QString &name, const QString &trade, const QString &city)
{
    KalCompanyRecord record;
    record.setValue(KalCompanyRecord::Company, name);
    record.setValue(KalCompanyRecord::Type, trade);
    record.setValue(KalCompanyRecord::City, city);
    return record;
}

QStringList describe(const KalCompanyRecord &record)
{
    QStringList parts;
    for (int field = 0; field < KalCompanyRecord::FieldCount; ++field) {
        if (!record.value(field).isEmpty())
            parts << KalCompanyRecord::columnName(field) + '=' + record.value(field);
    }
    return parts;
}

bool createDefectProject(const QString &path)
{
    KalProject project;
    if (!project.newProject())
        return false;
    const KalCompanyImport::Result companies = KalCompanyImport::insertCompanies(
        project, {company(QStringLiteral("Roth; Söhne GmbH"), QStringLiteral("Maler")),
                  company(QStringLiteral("Volt \"&\" Co"), QStringLiteral("Elektro"), QStringLiteral("Bonn"))});
    if (!companies.ok || companies.insertedIds.size() != 2)
        return false;
    const qint64 planId = project.nextId(QStringLiteral("plan_info"));
    QSqlQuery plan(project.database());
    plan.prepare(QStringLiteral("INSERT INTO plan_info (id, plan_name, plan_index, date, plan_id, pos) "
                                "VALUES (:id, 'EG Grundriss', 'a', '2024-01-01', NULL, 1)"));
    plan.bindValue(QStringLiteral(":id"), planId);
    if (!plan.exec())
        return false;
    project.model(QStringLiteral("plan_info"))->select();

    const QList<QVariantMap> defects = {
        {{"number", "10"},
         {"description", "Riss; tief\n\"Haarriss\" im Putz"},
         {"company_id", companies.insertedIds.at(0)},
         {"status_id", 2},
         {"reduction", 1},
         {"creation_date", QDate(2024, 2, 1)},
         {"correction_date", QDate(2024, 3, 5)},
         {"deadline_1", QDate(2024, 4, 1)},
         {"plan_info_id", planId},
         {"roomname", "Küche"},
         {"priority", "Hoch"},
         {"type", "Mangel"},
         {"user_id", "EM"}},
        {{"number", "2"},
         {"description", "Fliese lose"},
         {"company_id", companies.insertedIds.at(1)},
         {"status_id", 2},
         {"creation_date", QDate(2024, 2, 2)}},
        {{"number", "1"}, {"description", "Tür klemmt"}, {"company_id", -1}, {"creation_date", QDate(2024, 2, 3)}},
        {{"number", "B7"}, {"description", "Kratzer"}, {"creation_date", QDate(2024, 2, 4)}},
    };
    for (const QVariantMap &values : defects) {
        if (KalDefects(project).add(values) < 0)
            return false;
    }
    const bool saved = project.saveProject(path) == KalProject::Saved;
    return project.closeProject() && saved;
}

bool createSiteJournal(const QString &path, const QList<QStringList> &companies)
{
    static int counter = 0;
    const QString connection = QStringLiteral("testjournal%1").arg(++counter);
    bool ok = true;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(path);
        ok = db.open();
        const QStringList schema = {
            "CREATE TABLE id_generator (id_table TEXT PRIMARY KEY, id_counter INTEGER NOT NULL)",
            "CREATE TABLE meta (key TEXT PRIMARY KEY, value TEXT NOT NULL)",
            "CREATE TABLE company (id INTEGER NOT NULL PRIMARY KEY, type TEXT NOT NULL DEFAULT '', "
            "firstname TEXT NOT NULL DEFAULT '', lastname TEXT NOT NULL DEFAULT '', company TEXT NOT NULL DEFAULT '', "
            "street TEXT NOT NULL DEFAULT '', plz TEXT NOT NULL DEFAULT '', city TEXT NOT NULL DEFAULT '', "
            "telephone TEXT NOT NULL DEFAULT '', telefax TEXT NOT NULL DEFAULT '', mobile TEXT NOT NULL DEFAULT '', "
            "email TEXT NOT NULL DEFAULT '', category TEXT NOT NULL DEFAULT '2', modified INTEGER NOT NULL DEFAULT 0)",
            "CREATE TABLE entry (id INTEGER NOT NULL PRIMARY KEY, number TEXT, locked TEXT DEFAULT '0', user_id TEXT, "
            "creation_date DATETIME, inspection_date DATE, exported_by_app INTEGER DEFAULT -1, import_version "
            "DATETIME)",
            "CREATE TABLE entry_progress (id INTEGER NOT NULL PRIMARY KEY, entry_id INTEGER NOT NULL, "
            "type INTEGER NOT NULL, relation_id INTEGER DEFAULT -1, photo_id INTEGER DEFAULT -1, number TEXT, "
            "description TEXT, company_id INTEGER DEFAULT -1, roomname TEXT, roombook_number TEXT, date DATE, "
            "image_cnt INTEGER DEFAULT 0, correction_date DATE, modified INTEGER NOT NULL DEFAULT 0)",
            "CREATE TABLE entry_photo (id INTEGER NOT NULL PRIMARY KEY, caption TEXT, date DATE, photo_image_id "
            "INTEGER)",
            "CREATE TABLE image (id INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT, image BLOB NOT NULL, "
            "image_ct TEXT NOT NULL, image_width INT NOT NULL, image_height INT NOT NULL, thumbnail BLOB NOT NULL, "
            "thumbnail_ct TEXT NOT NULL, thumbnail_width INT NOT NULL, thumbnail_height INT NOT NULL)",
        };
        QSqlQuery query(db);
        for (const QString &sql : schema)
            ok = ok && query.exec(sql);
        int id = 100;
        for (const QStringList &row : companies) {
            query.prepare(QStringLiteral("INSERT INTO company (id, company, type, category, street) "
                                         "VALUES (:id, :company, :type, :category, 'Weg 1')"));
            query.bindValue(QStringLiteral(":id"), id++);
            query.bindValue(QStringLiteral(":company"), row.value(0));
            query.bindValue(QStringLiteral(":type"), row.value(1));
            query.bindValue(QStringLiteral(":category"), row.value(2));
            ok = ok && query.exec();
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(connection);
    return ok;
}

QList<QStringList> parseCsv(const QByteArray &csv)
{
    QString text = QString::fromUtf8(csv.startsWith("\xEF\xBB\xBF") ? csv.mid(3) : csv);
    QList<QStringList> rows;
    QStringList row;
    QString cell;
    bool quoted = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (quoted) {
            if (c == '"' && i + 1 < text.size() && text.at(i + 1) == '"') {
                cell += '"';
                ++i;
            } else if (c == '"') {
                quoted = false;
            } else {
                cell += c;
            }
        } else if (c == '"') {
            quoted = true;
        } else if (c == ';') {
            row << cell;
            cell.clear();
        } else if (c == '\r' && i + 1 < text.size() && text.at(i + 1) == '\n') {
            row << cell;
            rows << row;
            row.clear();
            cell.clear();
            ++i;
        } else {
            cell += c;
        }
    }
    if (!cell.isEmpty() || !row.isEmpty()) {
        row << cell;
        rows << row;
    }
    return rows;
}

QByteArray exportDefects(const QString &project, KalDefectCsv::Columns columns, const KalCompanyFormat &format)
{
    QByteArray csv;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("csvtest"));
        db.setDatabaseName(project);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        QString error;
        if (db.open() && !KalDefectCsv::fromDatabase(db, columns, format, &csv, &error))
            qWarning() << error;
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("csvtest"));
    return csv;
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace CompanyTestData
