#pragma once

#include "core/import/KalCompanyImport.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QString>
#include <QVariant>
#include <QVector>

// One site-journal file opened for an import: read-only, with the safety
// pragmas, in exclusive locking mode and read at once, so the site-diary
// program cannot write it until close(). The records the import needs are
// read into memory; pictures are read one at a time.
class KalSiteJournalFile
{
    Q_DECLARE_TR_FUNCTIONS(KalSiteJournalFile)

public:
    struct Company
    {
        qint64 id = -1;
        KalCompanyRecord record;
        QString category;
        bool modified = false;
    };
    struct Report
    {
        qint64 id = -1;
        QString number;
        int locked = 0;
        QString userId;
        QString creationDate;
        QDate inspectionDate;
        int exportedByApp = -1;
        QString importVersion;
    };
    struct Defect
    {
        qint64 id = -1;
        qint64 entryId = -1;
        QString number;
        QString description;
        qint64 companyId = -1;
        QString roomName;
        QString roombookNumber;
        QDate date;
        QDate correctionDate;
        bool modified = false;
    };
    struct Photo
    {
        qint64 id = -1; // the type-2 item
        qint64 entryId = -1;
        qint64 relationId = -1; // the defect item
        QString caption;
        QDate date;
        qint64 imageId = -1;
        bool modified = false;
    };
    struct Picture
    {
        QByteArray image;
        QString imageType;
        QByteArray thumbnail;
        QString thumbnailType;
        int thumbnailWidth = 0;
        int thumbnailHeight = 0;
    };

    KalSiteJournalFile();
    ~KalSiteJournalFile();

    // Opens, checks and reads the file. False with a message for the user
    // in `error`; the file is closed again then.
    bool open(const QString &path, QString *error);
    void close();
    bool isOpen() const { return m_open; }
    QString path() const { return m_path; }

    // `meta` value of `key`; empty when absent.
    QString meta(const QString &key) const { return m_meta.value(key); }
    // `id_generator` counter of "entry"; 0 when absent.
    qint64 entryCounter() const { return m_entryCounter; }

    // In id order; rows with an id that is no number, and repeated ids
    // after the first, are left out.
    const QVector<Company> &companies() const { return m_companies; }
    const QVector<Report> &reports() const { return m_reports; }
    const QVector<Defect> &defects() const { return m_defects; }
    const QVector<Photo> &photos() const { return m_photos; }
    // Companies of closed reports (`getSjCompanyIds4ClosedReports`).
    const QVector<qint64> &closedReportCompanies() const { return m_closedReportCompanies; }

    // The stored picture `id`; false with `error` set when it is absent or unreadable.
    bool readPicture(qint64 id, Picture *picture, QString *error) const;
    // Only the byte count and thumbnail: enough to tell an unchanged picture.
    bool readPictureKey(qint64 id, qint64 *bytes, QByteArray *thumbnail) const;

    // Journal dates: ISO, ISO date-time, or German "dd.MM.yyyy"; else null.
    static QDate parseDate(const QVariant &value);
    // An integer id, or -1 for NULL, text that is no number and the like.
    static qint64 parseId(const QVariant &value);

private:
    bool checkBeside(QString *error) const;
    bool checkLayout(QString *error);
    bool readAll(QString *error);
    bool readCompanies(QString *error);
    bool readReports(QString *error);
    bool readItems(QString *error);
    bool readSmall(QString *error);
    QString failedRead(const QString &what, const QString &reason) const;

    QString m_path;
    QString m_connection;
    bool m_open = false;
    QHash<QString, QString> m_meta;
    qint64 m_entryCounter = 0;
    QVector<Company> m_companies;
    QVector<Report> m_reports;
    QVector<Defect> m_defects;
    QVector<Photo> m_photos;
    QVector<qint64> m_closedReportCompanies;
};
