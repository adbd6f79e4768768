#pragma once

#include "core/import/KalCompanyImport.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

// An address file (CSV/TXT/TAB/PRN/ASC) read for the company import. The
// separator, the encoding and whether the first row holds captions are
// guessed when the file is loaded; the columns are mapped onto company fields
// by their captions (or by their contents when there are none). A preview
// shows rows() and lets the user change every guess; companies() then yields
// the records to import.
class KalAddressFile
{
    Q_DECLARE_TR_FUNCTIONS(KalAddressFile)

public:
    enum Encoding { Utf8 = 0, Windows1252 = 1, Utf16 = 2 };

    // False with a reason for a missing, unreadable, empty, oversized or
    // binary file, one without data rows and one with a quote that never closes.
    bool load(const QString &path, QString *errorText);
    bool loadData(const QByteArray &data, QString *errorText);

    // Guesses; each setter re-reads the rows and guesses the mapping again.
    QChar separator() const { return m_separator; }
    void setSeparator(QChar separator);
    Encoding encoding() const { return m_encoding; }
    void setEncoding(Encoding encoding);
    bool hasHeader() const { return m_hasHeader; }
    // Changing this guesses the mapping again.
    void setHasHeader(bool hasHeader);

    // Separators offered to the user: ";", ",", tab, "|".
    static QList<QChar> separators();
    // Rows looked at when guessing the separator and the meaning of columns.
    static constexpr int SampleRows = 200;

    int columnCount() const { return m_columnCount; }
    // Captions of the columns: the first row when it is a header, else "Spalte 1", ...
    QStringList columnCaptions() const;
    // Data rows (without the header), each padded to columnCount().
    const QVector<QStringList> &rows() const { return m_rows; }

    // Per column the KalCompanyRecord field it fills, FullName or -1 (ignored).
    QVector<int> mapping() const { return m_mapping; }
    // Assigns a field, FullName or -1 to a column; the choice then holds for
    // every row, whatever a type column says. Several columns may fill one
    // field: names and streets are joined, of phone numbers and e-mail
    // addresses the first one given wins; business columns win over plain
    // ones, plain over private ones.
    void setMapping(int column, int field);
    // A person's full name, split into first and last name.
    static constexpr int FullName = KalCompanyRecord::FieldCount;
    // Caption of a mapping value: "Firma", "Vor- und Nachname", "- ignorieren -".
    static QString fieldCaption(int field);

    // How a column is read beyond its field, for the user ("nur wenn
    // „Business Phone“ leer ist", "Typ zu „Phone 1 - Value“", "wird nicht übernommen").
    QString columnNote(int column) const;
    // Captions of the columns that hold data but fill no field.
    QStringList unmappedCaptions() const;
    // Data rows with more filled fields than the caption row has captions.
    int longRows() const { return m_longRows; }
    // A reason the file cannot be read as it is set (a quote that never
    // closes), empty when it can.
    QString problem() const;

    // The mapping the user chose for files with these captions, kept in the
    // settings; a later file with the same captions gets it at once.
    void rememberMapping() const;

    // Mapped data rows, values trimmed; rows without any mapped value are
    // left out. A city given as "12345 Musterstadt" fills the postcode too.
    // A record without a company name gets the person's name as company.
    QVector<KalCompanyRecord> companies() const;

private:
    void decode();
    void parse();
    void splitHeader();
    QChar guessSeparator() const;
    bool guessHeader() const;
    void guessMapping();
    void guessFromCaptions();
    void guessFromContents();
    void applyRememberedMapping();
    QString layoutKey() const;
    KalCompanyRecord recordFor(const QStringList &row) const;
    static QVector<QStringList> parseRows(const QString &text, QChar separator, int *unclosedQuoteLine = nullptr);

    QByteArray m_data;
    QString m_text;
    Encoding m_encoding = Utf8;
    bool m_bigEndian = false; // UTF-16 without a byte-order mark
    QChar m_separator = QLatin1Char(';');
    QChar m_declaredSeparator; // from a "sep=" first line
    bool m_hasHeader = false;
    QVector<QStringList> m_allRows; // including a header row
    QVector<QStringList> m_rows;
    int m_columnCount = 0;
    QVector<int> m_mapping;
    QVector<int> m_guessedMapping;
    QVector<int> m_rank;          // KalAddressCaption::Rank
    QVector<bool> m_continuation; // further street or name line
    QVector<int> m_typeColumn;    // column whose value decides per row, or -1
    int m_unclosedQuoteLine = 0;
    int m_longRows = 0;
};
