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

    // False with a reason for a missing, unreadable, empty or binary file.
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

    int columnCount() const { return m_columnCount; }
    // Captions of the columns: the first row when it is a header, else "Spalte 1", ...
    QStringList columnCaptions() const;
    // Data rows (without the header), each padded to columnCount().
    const QVector<QStringList> &rows() const { return m_rows; }

    // Per column the KalCompanyRecord field it fills, or -1 (ignored).
    QVector<int> mapping() const { return m_mapping; }
    // Assigns a field (or -1) to a column. Several columns may fill one field
    // (street and house number): their values are joined with a blank.
    void setMapping(int column, int field);

    // Field a column caption names ("Firma", "E-Mail", "Straße", ...), -1 if none.
    static int fieldForCaption(const QString &caption);

    // Mapped data rows, values trimmed; rows without any mapped value are
    // left out. A city given as "12345 Musterstadt" fills the postcode too.
    QVector<KalCompanyRecord> companies() const;

private:
    void decode();
    void parse();
    void splitHeader();
    QChar guessSeparator() const;
    bool guessHeader() const;
    void guessMapping();
    static QVector<QStringList> parseRows(const QString &text, QChar separator);

    QByteArray m_data;
    QString m_text;
    Encoding m_encoding = Utf8;
    QChar m_separator = QLatin1Char(';');
    QChar m_declaredSeparator; // from a "sep=" first line
    bool m_hasHeader = false;
    QVector<QStringList> m_allRows; // including a header row
    QVector<QStringList> m_rows;
    int m_columnCount = 0;
    QVector<int> m_mapping;
};
