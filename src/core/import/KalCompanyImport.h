#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

class KalProject;

// One company as the imports carry it: the text columns of table `company`.
struct KalCompanyRecord
{
    enum Field {
        Type = 0,
        FirstName,
        LastName,
        Company,
        Street,
        Plz,
        City,
        Telephone,
        Telefax,
        Mobile,
        Email,
        FieldCount
    };

    QString values[FieldCount];

    QString value(int field) const { return field >= 0 && field < FieldCount ? values[field] : QString(); }
    void setValue(int field, const QString &text)
    {
        if (field >= 0 && field < FieldCount)
            values[field] = text;
    }
    bool isEmpty() const;
    // Same company name and trade, trimmed and case-insensitive.
    bool sameCompanyAs(const KalCompanyRecord &other) const;
    // One line for lists shown to the user ("Firma (Gewerk), Ort").
    QString displayText() const;

    // `company` column of a field ("type", "firstname", ...).
    static QString columnName(int field);
    // Translated caption of a field ("Gewerk", "Vorname", ...).
    static QString caption(int field);
};

// Reading companies from other files and appending them to the open project.
class KalCompanyImport
{
    Q_DECLARE_TR_FUNCTIONS(KalCompanyImport)

public:
    // Companies of another project file, opened read-only, in list order.
    // False with a reason when the file cannot be read or is no project, and
    // unless `noneIsFine`, when it has no companies.
    static bool readProjectFile(const QString &path, QVector<KalCompanyRecord> *companies, QString *errorText,
                                bool noneIsFine = false);

    // Trades/contractors (category "2") of a site-journal file, opened
    // read-only, in id order. False with a reason on failure.
    static bool readSiteJournal(const QString &path, QVector<KalCompanyRecord> *companies, QString *errorText);

    struct Result
    {
        bool ok = false;
        QString errorText;
        QVector<qint64> insertedIds;
        // Candidates not inserted because the project (or an earlier
        // candidate) already has a company of that name and trade.
        QVector<KalCompanyRecord> duplicates;
    };

    // Indexes into `companies` of those that duplicate a project company or
    // an earlier entry of the list.
    static QVector<int> findDuplicates(KalProject &project, const QVector<KalCompanyRecord> &companies);
    // The same against a list of companies the project has.
    static QVector<int> findDuplicates(const QVector<KalCompanyRecord> &existing,
                                       const QVector<KalCompanyRecord> &companies);

    // Appends the companies to the project's table `company` in one
    // transaction: new ids from the id allocator, `pos` after the last,
    // `modified` 0. Duplicates are skipped and listed in the result unless
    // `insertDuplicates`. Empty records are skipped. On any failure nothing
    // is inserted. Pending edits of the company model are submitted first,
    // and the model is re-read afterwards; the project is marked modified.
    static Result insertCompanies(KalProject &project, const QVector<KalCompanyRecord> &companies,
                                  bool insertDuplicates = false);
};
