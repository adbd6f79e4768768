#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QRectF>
#include <QSize>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVector>

// What a printed list reads from the project, each table in one pass.
struct KalPrintPhoto
{
    qint64 id = 0;
    qint64 imageId = -1; // -1: the picture row is gone
    QString caption;
    QString comment;
    QDate date;
    QSize size;          // stored picture
    QSize thumbnailSize; // stored thumbnail
};
Q_DECLARE_TYPEINFO(KalPrintPhoto, Q_MOVABLE_TYPE);

struct KalPrintDefect
{
    qint64 id = 0;
    QString number;
    QString description;
    qint64 companyId = 0;
    QString type;
    QString userId;
    QDate creationDate;
    QString roomname;
    QString roombookNumber;
    qint64 planInfoId = -1;
    QString instruction;
    QString priority;
    QDate correctionDate;
    QDate deadline1;
    QDate deadline2;
    qint64 statusId = 0;
    QString status;
    QColor statusColor;
    bool reduction = false;
    QVector<KalPrintPhoto> photos; // in `pos` order
    // Where the defect's markers stand on its sheet, in plan pixels; null
    // when it has none there that can be drawn.
    QRectF markerBounds;
};

struct KalPrintSheet
{
    qint64 planInfoId = 0;
    QString name;
    QString index;
    QDate date;
    qint64 planId = -1;
    QSize size; // stored plan picture
};

// One logo as the layout uses it: a row that holds a readable picture.
struct KalPrintLogo
{
    qint64 imageId = -1;
    QSize size;
    int align = 0; // 0 left, 1 centred, 2 right
};

class KalPrintData
{
    Q_DECLARE_TR_FUNCTIONS(KalPrintData)

public:
    // Reads the listed defects (in list order; unknown ids are left out),
    // their photos when `withPhotos`, companies, sheets and the page info.
    // False with `error` set on a database error.
    bool read(QSqlDatabase db, const QVector<qint64> &ids, bool withPhotos, QString *error);

    QVector<KalPrintDefect> defects;
    QHash<qint64, QString> companyText;        // as the list shows the company
    QHash<qint64, QStringList> companyAddress; // lines of the photo annex
    QHash<qint64, KalPrintSheet> sheets;       // by plan_info id
    QString projectName;
    QStringList header; // left, centre, right
    QStringList footer; // left, centre, right
    QVector<KalPrintLogo> logos;

    // The logo rows of the master record that hold a picture that can be
    // printed: not a picture, truncated or over 100 megapixels is skipped.
    // The part of a plan of `plan` pixels shown beside a defect: a square of
    // a fifth of the plan's shorter side (larger when the markers are)
    // centred on the markers, moved inside the plan. Null without markers.
    static QRect excerpt(const QSize &plan, const QRectF &markers);

    static QVector<KalPrintLogo> readLogos(QSqlDatabase db, const QVariant &first, int firstAlign,
                                           const QVariant &second, int secondAlign);

private:
    bool readDefects(QSqlDatabase db, const QVector<qint64> &ids, QString *error);
    bool readPhotos(QSqlDatabase db, QString *error);
    bool readCompanies(QSqlDatabase db, QString *error);
    bool readSheets(QSqlDatabase db, QString *error);
    bool readMarkers(QSqlDatabase db, QString *error);
    bool readPageInfo(QSqlDatabase db, QString *error);
};
