#pragma once

#include "core/import/KalCompanyImport.h"

#include <QDate>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QString>
#include <QVariantMap>

class QSqlQuery;

// What the project already holds from site journals, read once at the
// start of an import: rows keyed by their journal id, the tombstones of
// rows deleted here, the link values in `meta`.
struct KalSiteJournalImportState
{
    struct Tomb
    {
        qint64 id = -1;
        int restore = 1;
        qint64 defectId = -1;
    };
    struct Company
    {
        qint64 id = -1;
        KalCompanyRecord record;
        bool modified = false;
        int deleteOnImport = 1;
    };
    struct Report
    {
        qint64 id = -1;
        int deleteOnImport = 1;
        bool fromApp = false;
        QString number;
        int locked = 0;
        QString userId, creationDate, importVersion;
    };
    struct Defect
    {
        qint64 id = -1;
        qint64 reportId = -1;
        bool modified = false;
        int deleteOnImport = 1;
        QVariantMap values; // the columns an import writes
    };
    struct Photo
    {
        qint64 id = -1;
        qint64 defectId = -1;
        qint64 imageId = -1;
        bool modified = false;
        int deleteOnImport = 1;
        QString caption;
        QDate date;
    };

    QHash<qint64, Company> companies;
    // Ordered, so the questions come in a stable order.
    QMap<qint64, Report> reports;
    QMap<qint64, Defect> defects;
    QMap<qint64, Photo> photos;
    QHash<qint64, Tomb> companyTombs, defectTombs, photoTombs;
    QHash<QString, QString> meta;
    QSet<QString> closedPairs; // "journal id:project id" of imported_closed_report_company

    // False with `error` set when a table could not be read.
    bool load(const QSqlDatabase &db, QSqlError *error);

private:
    bool loadCompanies(QSqlQuery &query);
    bool loadTombs(QSqlQuery &query);
    bool loadReports(QSqlQuery &query);
    bool loadDefects(QSqlQuery &query);
    bool loadPhotos(QSqlQuery &query);
    bool loadSmall(QSqlQuery &query);
};
