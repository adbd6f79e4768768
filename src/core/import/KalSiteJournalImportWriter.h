#pragma once

#include "core/import/KalCompanyImport.h"
#include "core/import/KalSiteJournalFile.h"

#include <QCoreApplication>
#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantMap>

class KalProject;

// The statements an import writes into the project, prepared once and
// bound for every row (journal texts are only ever bound), with ids from a
// block of the project's allocator. Every method returns false after a
// database error; lastError() then says what failed. All of it runs inside
// the import's transaction.
class KalSiteJournalImportWriter
{
    Q_DECLARE_TR_FUNCTIONS(KalSiteJournalImportWriter)

public:
    explicit KalSiteJournalImportWriter(KalProject *project);

    // The project's id for a new row of `table`; -1 on failure.
    qint64 nextId(const QString &table);
    // Writes the counters of the ids handed out.
    bool flushIds();

    qint64 insertCompany(qint64 siteJournalId, const KalCompanyRecord &record);
    bool updateCompany(qint64 id, const KalCompanyRecord &record);
    // Removes the company; its defects are left without one.
    bool deleteCompany(qint64 id);

    qint64 insertReport(const KalSiteJournalFile::Report &report);
    bool updateReport(qint64 id, const KalSiteJournalFile::Report &report);
    bool deleteReport(qint64 id);

    // `values`: the mapped defect columns (see defectValues()).
    qint64 insertDefect(const QVariantMap &values);
    bool updateDefect(qint64 id, const QVariantMap &values);
    // Removes the defect with its photos, pictures and plan markers.
    bool deleteDefect(qint64 id);
    // image_cnt = the defect's photo rows (counted), or `count` when given.
    bool setImageCount(qint64 defectId, int count = -1);

    // Stores the picture and its photo row; 0 with `skipReason` set when
    // the picture cannot be taken over (nothing written then).
    qint64 insertPhoto(qint64 defectId, const KalSiteJournalFile::Photo &photo,
                       const KalSiteJournalFile::Picture &picture, QString *skipReason);
    bool updatePhotoText(qint64 id, const KalSiteJournalFile::Photo &photo);
    // Replaces the stored picture; false with `skipReason` set (and nothing
    // written) when the new one cannot be taken over.
    bool replacePicture(qint64 imageId, const KalSiteJournalFile::Picture &picture, QString *skipReason);
    bool deletePhoto(qint64 id);

    // Marks a record's "delete" / "restore" answer, or drops a tombstone.
    bool setFlag(const QString &table, const QString &column, qint64 id, qint64 value);
    bool deleteRow(const QString &table, qint64 id);

    bool addClosedReportCompany(qint64 siteJournalId, qint64 companyId);
    bool setMeta(const QString &key, const QString &value);

    // The values a journal defect gives its project row.
    static QVariantMap defectValues(const KalSiteJournalFile::Defect &defect, const KalSiteJournalFile::Report &report,
                                    const QVariant &companyId, qint64 reportRowId);

    QString lastError() const { return m_error; }
    // Rows written so far.
    int writes() const { return m_writes; }

private:
    bool exec(QSqlQuery &query, const char *what);
    bool storePicture(const KalSiteJournalFile::Picture &picture, qint64 replaceId, qint64 *imageId,
                      QString *skipReason);

    KalProject *m_project;
    QSqlDatabase m_db;
    QHash<QString, qint64> m_lastIds;
    QHash<qint64, int> m_nextPos; // defect -> next photo pos
    bool m_nextPosLoaded = false;
    QString m_error;
    int m_writes = 0;
};
