#include "KalSiteJournalImportState.h"

#include "core/import/KalSiteJournalFile.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace {

int flagOr1(const QVariant &value)
{
    return value.isNull() ? 1 : value.toInt();
}

} // namespace

bool KalSiteJournalImportState::load(const QSqlDatabase &db, QSqlError *error)
{
    QSqlQuery query(db);
    query.setForwardOnly(true);
    const bool ok = loadSmall(query) && loadCompanies(query) && loadTombs(query) && loadReports(query) &&
                    loadDefects(query) && loadPhotos(query);
    if (!ok)
        *error = query.lastError();
    return ok;
}

bool KalSiteJournalImportState::loadSmall(QSqlQuery &query)
{
    if (!query.exec(QStringLiteral("SELECT key, value FROM meta")))
        return false;
    while (query.next())
        meta.insert(query.value(0).toString(), query.value(1).toString());
    if (!query.exec(QStringLiteral("SELECT site_journal_id, pellwick_id FROM imported_closed_report_company")))
        return false;
    while (query.next())
        closedPairs.insert(query.value(0).toString() + QLatin1Char(':') + query.value(1).toString());
    return true;
}

bool KalSiteJournalImportState::loadCompanies(QSqlQuery &query)
{
    if (!query.exec(QStringLiteral("SELECT id, type, firstname, lastname, company, street, plz, city, telephone, "
                                   "telefax, mobile, email, modified, site_journal_id, delete_on_import FROM company "
                                   "WHERE site_journal_id >= 0")))
        return false;
    while (query.next()) {
        Company company;
        company.id = query.value(0).toLongLong();
        for (int field = 0; field < KalCompanyRecord::FieldCount; ++field)
            company.record.setValue(field, query.value(1 + field).toString());
        company.modified = query.value(12).toInt() == 1;
        company.deleteOnImport = flagOr1(query.value(14));
        companies.insert(query.value(13).toLongLong(), company);
    }
    return true;
}

bool KalSiteJournalImportState::loadTombs(QSqlQuery &query)
{
    const struct
    {
        const char *sql;
        QHash<qint64, Tomb> *into;
    } tables[] = {
        {"SELECT id, site_journal_id, restore_on_import, -1 FROM deleted_site_journal_company", &companyTombs},
        {"SELECT id, site_journal_id, restore_on_import, -1 FROM deleted_site_journal_defect", &defectTombs},
        {"SELECT id, site_journal_id, restore_on_import, defect_id FROM deleted_site_journal_photo_info", &photoTombs},
    };
    for (const auto &table : tables) {
        if (!query.exec(QLatin1String(table.sql)))
            return false;
        while (query.next()) {
            const qint64 siteJournalId = query.value(1).toLongLong();
            if (siteJournalId >= 0 && !table.into->contains(siteJournalId))
                table.into->insert(siteJournalId,
                                   {query.value(0).toLongLong(), flagOr1(query.value(2)), query.value(3).toLongLong()});
        }
    }
    return true;
}

bool KalSiteJournalImportState::loadReports(QSqlQuery &query)
{
    if (!query.exec(QStringLiteral("SELECT id, site_journal_id, delete_on_import, exported_by_app, number, locked, "
                                   "user_id, creation_date, import_version FROM imported_report WHERE "
                                   "site_journal_id >= 0")))
        return false;
    while (query.next()) {
        Report report;
        report.id = query.value(0).toLongLong();
        report.deleteOnImport = flagOr1(query.value(2));
        report.fromApp = query.value(3).toInt() == 1;
        report.number = query.value(4).toString();
        report.locked = query.value(5).toInt();
        report.userId = query.value(6).toString();
        report.creationDate = query.value(7).toString();
        report.importVersion = query.value(8).toString();
        reports.insert(query.value(1).toLongLong(), report);
    }
    return true;
}

bool KalSiteJournalImportState::loadDefects(QSqlQuery &query)
{
    if (!query.exec(QStringLiteral("SELECT id, imported_report_id, site_journal_data_modified, delete_on_import, "
                                   "number, description, company_id, user_id, creation_date, roomname, "
                                   "roombook_number, correction_date, site_journal_id FROM defect WHERE "
                                   "site_journal_id >= 0")))
        return false;
    while (query.next()) {
        Defect defect;
        defect.id = query.value(0).toLongLong();
        defect.reportId = query.value(1).toLongLong();
        defect.modified = query.value(2).toInt() == 1;
        defect.deleteOnImport = flagOr1(query.value(3));
        const QSqlRecord record = query.record();
        for (int i = 4; i < record.count(); ++i)
            defect.values.insert(record.fieldName(i), query.value(i));
        defect.values.insert(QStringLiteral("imported_report_id"), defect.reportId);
        defects.insert(query.value(12).toLongLong(), defect);
    }
    return true;
}

bool KalSiteJournalImportState::loadPhotos(QSqlQuery &query)
{
    if (!query.exec(QStringLiteral("SELECT id, defect_id, image_id, site_journal_data_modified, delete_on_import, "
                                   "caption, date, site_journal_id FROM photo_info WHERE site_journal_id >= 0")))
        return false;
    while (query.next()) {
        Photo photo;
        photo.id = query.value(0).toLongLong();
        photo.defectId = query.value(1).toLongLong();
        photo.imageId = query.value(2).toLongLong();
        photo.modified = query.value(3).toInt() == 1;
        photo.deleteOnImport = flagOr1(query.value(4));
        photo.caption = query.value(5).toString();
        photo.date = KalSiteJournalFile::parseDate(query.value(6));
        photos.insert(query.value(7).toLongLong(), photo);
    }
    return true;
}
