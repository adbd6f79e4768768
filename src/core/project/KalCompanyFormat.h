#pragma once

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlRecord>
#include <QString>
#include <QStringList>

// How a company is shown as one line of text (defect grid, printed lists,
// the example line of the master data). Three fields chosen from a fixed
// list, the second and third optionally in brackets; kept per user in the
// settings group "MasterDataDialog/CompanyOutputFormats".
class KalCompanyFormat
{
    Q_DECLARE_TR_FUNCTIONS(KalCompanyFormat)

public:
    // Indexes of the field list, in the order the combo boxes show them.
    enum Field {
        Empty = 0, // "- leer -": no field
        Type = 1,
        FirstName = 2,
        LastName = 3,
        Company = 4,
        Street = 5,
        City = 6,
        Telephone = 7,
        Mobile = 8,
        Email = 9,
        FieldCount = 10
    };

    int field1 = Empty;
    int field2 = Company;
    int field3 = Type;
    bool field2InBrackets = false;
    bool field3InBrackets = true;

    // "Auf Werkseinstellungen zurücksetzen": company name, trade in brackets.
    static KalCompanyFormat factoryDefaults() { return KalCompanyFormat(); }

    // Reads the settings; a missing or unusable value (not a number, out of
    // range) falls back to its factory value.
    static KalCompanyFormat load();
    // Writes all five values.
    void save() const;
    static QString settingsGroup() { return QStringLiteral("MasterDataDialog/CompanyOutputFormats"); }

    // Translated captions of the field list ("- leer -", "Gewerk", ...).
    static QStringList fieldCaptions();
    // `company` column of a field index; empty for "- leer -" and unknown indexes.
    static QString fieldColumn(int field);

    // The line for one company row (any record with the `company` columns;
    // missing columns count as empty).
    QString text(const QSqlRecord &company, const QString &separator) const;
    // The line for the company with this id read from `db`; empty when there
    // is no such company.
    QString text(const QSqlDatabase &db, qint64 companyId, const QString &separator) const;

    // Separator the defect grid uses between the fields.
    static QString gridSeparator() { return QStringLiteral("  "); }

    // The fixed sample company of the "Beispiel:" line.
    static QSqlRecord sampleCompany();

    // Makes every grid show companies in this format (repaints them).
    void installInModels() const;
    // load() + installInModels(): call at start-up and whenever the format
    // in the settings changed.
    static void installFromSettings();

    bool operator==(const KalCompanyFormat &other) const;
    bool operator!=(const KalCompanyFormat &other) const { return !(*this == other); }
};
