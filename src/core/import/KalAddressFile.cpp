#include "KalAddressFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QTextCodec>

namespace {

// Address files are small; anything far beyond is not one.
constexpr qint64 s_maxFileSize = 64 * 1024 * 1024;
// Rows looked at when guessing the separator and the meaning of columns.
constexpr int s_sampleRows = 200;

// "Straße" -> "strasse", "E-Mail" -> "email", "Telefon 2" -> "telefon2".
QString captionKey(const QString &caption)
{
    QString text = caption.trimmed().toLower();
    text.replace(QStringLiteral("ä"), QStringLiteral("ae"));
    text.replace(QStringLiteral("ö"), QStringLiteral("oe"));
    text.replace(QStringLiteral("ü"), QStringLiteral("ue"));
    text.replace(QStringLiteral("ß"), QStringLiteral("ss"));
    QString key;
    for (const QChar c : qAsConst(text)) {
        if ((c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('0') && c <= QLatin1Char('9')))
            key += c;
    }
    return key;
}

enum Special { HouseNumber = 100, PlainName = 101 };

const QHash<QString, int> &captionTable()
{
    static const QHash<QString, int> table = [] {
        QHash<QString, int> t;
        const auto add = [&t](int field, std::initializer_list<const char *> keys) {
            for (const char *key : keys)
                t.insert(QLatin1String(key), field);
        };
        using R = KalCompanyRecord;
        add(R::Type, {"gewerk", "gewerke", "gewerkbezeichnung", "branche", "beruf", "taetigkeit", "fachgebiet",
                      "leistung", "kategorie", "trade", "category", "industry"});
        add(R::FirstName, {"vorname", "vname", "rufname", "firstname", "givenname", "forename"});
        add(R::LastName, {"nachname", "nname", "familienname", "zuname", "lastname", "surname", "familyname",
                          "ansprechpartner", "kontaktperson", "kontakt", "contact", "contactperson"});
        add(R::Company, {"firma", "firmenname", "firmierung", "unternehmen", "betrieb", "name1", "company",
                         "companyname", "organisation", "organization", "organisationsname"});
        add(R::Street, {"strasse", "str", "strassehausnummer", "strasseundhausnummer", "strassenr", "strassehausnr",
                        "anschrift", "adresse", "hausanschrift", "street", "address", "streetaddress", "address1"});
        add(HouseNumber, {"hausnummer", "hausnr", "hnr", "housenumber"});
        add(R::Plz, {"plz", "postleitzahl", "zip", "zipcode", "postalcode", "postcode"});
        add(R::City, {"ort", "stadt", "wohnort", "ortschaft", "gemeinde", "plzort", "city", "town"});
        add(R::Telephone, {"telefon", "tel", "telnr", "telefonnummer", "fon", "festnetz", "telefongeschaeftlich",
                           "telefonbuero", "telefonfirma", "phone", "telephone", "phonenumber", "businessphone"});
        add(R::Telefax, {"fax", "telefax", "faxnummer", "faxnr", "fax1", "telefaxnummer", "businessfax"});
        add(R::Mobile, {"mobil", "mobiltelefon", "mobilnummer", "mobilfunk", "handy", "handynummer", "mobile",
                        "mobilephone", "cell", "cellphone"});
        add(R::Email, {"email", "mail", "emailadresse", "mailadresse", "emailaddress", "email1", "eml"});
        add(PlainName, {"name"});
        return t;
    }();
    return table;
}

// The caption's meaning, including the special house-number and plain-name keys.
int captionMeaning(const QString &caption)
{
    const QString key = captionKey(caption);
    if (key.isEmpty())
        return -1;
    const QHash<QString, int> &table = captionTable();
    auto it = table.constFind(key);
    if (it != table.constEnd())
        return *it;
    // "Telefon 2", "E-Mail 1": the number tells several of one kind apart.
    QString stripped = key;
    while (!stripped.isEmpty() && stripped.back().isDigit())
        stripped.chop(1);
    it = table.constFind(stripped);
    return it != table.constEnd() ? *it : -1;
}

bool mostly(const QVector<QStringList> &rows, int column, const QRegularExpression &pattern)
{
    int filled = 0;
    int matching = 0;
    for (int r = 0; r < rows.size() && r < s_sampleRows; ++r) {
        const QString value = rows.at(r).value(column).trimmed();
        if (value.isEmpty())
            continue;
        ++filled;
        if (pattern.match(value).hasMatch())
            ++matching;
    }
    return filled > 0 && matching * 10 >= filled * 8;
}

const QRegularExpression &emailPattern()
{
    static const QRegularExpression p(QStringLiteral("^[^@\\s]+@[^@\\s]+\\.[^@\\s]+$"));
    return p;
}
const QRegularExpression &plzPattern()
{
    static const QRegularExpression p(QStringLiteral("^(D-|A-|CH-)?\\d{4,5}$"));
    return p;
}
const QRegularExpression &plzCityPattern()
{
    static const QRegularExpression p(QStringLiteral("^(?:D-|A-|CH-)?(\\d{4,5})\\s+(\\p{L}.*)$"));
    return p;
}
const QRegularExpression &phonePattern()
{
    static const QRegularExpression p(QStringLiteral("^(\\+|\\()?\\d[\\d\\s/()\\-.]{4,}$"));
    return p;
}
const QRegularExpression &mobilePattern()
{
    static const QRegularExpression p(QStringLiteral("^(\\+49\\s*\\(?0?\\)?\\s*|0)1[5-7]"));
    return p;
}
const QRegularExpression &streetPattern()
{
    static const QRegularExpression p(
        QStringLiteral("^\\D*[^\\W\\d_]\\D*\\s*\\d+\\s*[a-zA-Z]?(\\s*[-/]\\s*\\d+\\s*[a-zA-Z]?)?$"));
    return p;
}

bool looksLikeData(const QStringList &row)
{
    for (const QString &cell : row) {
        const QString value = cell.trimmed();
        if (emailPattern().match(value).hasMatch() || phonePattern().match(value).hasMatch() ||
            plzPattern().match(value).hasMatch())
            return true;
    }
    return false;
}

} // namespace

QList<QChar> KalAddressFile::separators()
{
    return {QLatin1Char(';'), QLatin1Char(','), QLatin1Char('\t'), QLatin1Char('|')};
}

bool KalAddressFile::load(const QString &path, QString *errorText)
{
    const QString nativePath = QDir::toNativeSeparators(path);
    QFile file(path);
    const auto fail = [&](const QString &reason) {
        if (errorText)
            *errorText = tr("Die Datei\n%1\nkann nicht importiert werden:\n%2").arg(nativePath, reason);
        return false;
    };
    if (!QFileInfo(path).isFile())
        return fail(tr("Die Datei existiert nicht."));
    if (QFileInfo(path).size() > s_maxFileSize)
        return fail(tr("Die Datei ist zu groß für eine Adressdatei."));
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    const QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return fail(file.errorString());
    QString reason;
    if (!loadData(data, &reason))
        return fail(reason);
    return true;
}

bool KalAddressFile::loadData(const QByteArray &data, QString *errorText)
{
    const auto fail = [errorText](const QString &reason) {
        if (errorText)
            *errorText = reason;
        return false;
    };

    Encoding encoding = Utf8;
    if (data.startsWith("\xFF\xFE") || data.startsWith("\xFE\xFF")) {
        encoding = Utf16;
    } else if (data.contains('\0')) {
        return fail(tr("Die Datei ist keine Textdatei."));
    } else if (!data.startsWith("\xEF\xBB\xBF")) {
        QTextCodec::ConverterState state;
        QTextCodec::codecForName("UTF-8")->toUnicode(data.constData(), data.size(), &state);
        if (state.invalidChars > 0)
            encoding = Windows1252;
    }

    KalAddressFile candidate;
    candidate.m_data = data;
    candidate.m_encoding = encoding;
    candidate.decode();

    // Text files hold few control characters; binary junk many.
    int controls = 0;
    for (const QChar c : qAsConst(candidate.m_text)) {
        if (c.category() == QChar::Other_Control && c != QLatin1Char('\t') && c != QLatin1Char('\n') &&
            c != QLatin1Char('\r') && c != QLatin1Char('\f'))
            ++controls;
    }
    if (controls > 0 && controls * 200 > candidate.m_text.size())
        return fail(tr("Die Datei ist keine Textdatei."));
    if (candidate.m_text.trimmed().isEmpty())
        return fail(tr("Die Datei ist leer."));

    candidate.m_separator =
        candidate.m_declaredSeparator.isNull() ? candidate.guessSeparator() : candidate.m_declaredSeparator;
    candidate.parse();
    if (candidate.m_allRows.isEmpty())
        return fail(tr("Die Datei enthält keine Adressen."));
    candidate.m_hasHeader = candidate.guessHeader();
    candidate.splitHeader();
    candidate.guessMapping();
    *this = candidate;
    return true;
}

void KalAddressFile::decode()
{
    switch (m_encoding) {
    case Utf16:
        m_text = QTextCodec::codecForName("UTF-16")->toUnicode(m_data);
        break;
    case Windows1252:
        m_text = QTextCodec::codecForName("Windows-1252")->toUnicode(m_data);
        break;
    case Utf8:
    default:
        m_text = QString::fromUtf8(m_data.startsWith("\xEF\xBB\xBF") ? m_data.mid(3) : m_data);
        break;
    }
    if (m_text.startsWith(QChar(0xFEFF)))
        m_text.remove(0, 1);
    // Spreadsheets write "sep=;" as the first line to name the separator.
    m_declaredSeparator = QChar();
    if (m_text.size() >= 5 && m_text.startsWith(QLatin1String("sep="), Qt::CaseInsensitive)) {
        const int end = m_text.indexOf(QLatin1Char('\n'));
        const QString line = m_text.left(end < 0 ? m_text.size() : end).trimmed();
        if (line.size() == 5) {
            m_declaredSeparator = line.at(4);
            m_text.remove(0, end < 0 ? m_text.size() : end + 1);
        }
    }
}

QChar KalAddressFile::guessSeparator() const
{
    // The separator that splits most sample rows into the same number (> 1) of fields.
    const QString sample = m_text.left(256 * 1024);
    QChar best = QLatin1Char(';');
    int bestRows = 0;
    int bestFields = 1;
    for (const QChar separator : separators()) {
        QVector<QStringList> rows = parseRows(sample, separator);
        if (rows.size() > s_sampleRows)
            rows.resize(s_sampleRows);
        QHash<int, int> rowsPerCount;
        for (const QStringList &row : qAsConst(rows))
            ++rowsPerCount[row.size()];
        int fields = 1;
        int count = 0;
        for (auto it = rowsPerCount.constBegin(); it != rowsPerCount.constEnd(); ++it) {
            if (it.key() > 1 && (it.value() > count || (it.value() == count && it.key() > fields))) {
                fields = it.key();
                count = it.value();
            }
        }
        if (count > bestRows || (count == bestRows && count > 0 && fields > bestFields)) {
            best = separator;
            bestRows = count;
            bestFields = fields;
        }
    }
    return best;
}

bool KalAddressFile::guessHeader() const
{
    if (m_allRows.isEmpty())
        return false;
    const QStringList &first = m_allRows.first();
    if (looksLikeData(first))
        return false;
    for (const QString &cell : first) {
        if (captionMeaning(cell) >= 0)
            return true;
    }
    return false;
}

QVector<QStringList> KalAddressFile::parseRows(const QString &text, QChar separator)
{
    QVector<QStringList> rows;
    QStringList row;
    QString field;
    bool inQuotes = false;
    bool fieldStarted = false; // something (even "") was read for this field
    const int size = text.size();
    const auto endRow = [&]() {
        row << field;
        field.clear();
        fieldStarted = false;
        bool empty = true;
        for (const QString &cell : qAsConst(row)) {
            if (!cell.trimmed().isEmpty()) {
                empty = false;
                break;
            }
        }
        if (!empty)
            rows << row;
        row.clear();
    };
    for (int i = 0; i < size; ++i) {
        const QChar c = text.at(i);
        if (inQuotes) {
            if (c == QLatin1Char('"')) {
                if (i + 1 < size && text.at(i + 1) == QLatin1Char('"')) {
                    field += c;
                    ++i;
                } else {
                    inQuotes = false;
                }
            } else {
                field += c;
            }
            continue;
        }
        if (c == QLatin1Char('"') && field.trimmed().isEmpty() && !fieldStarted) {
            field.clear();
            inQuotes = true;
            fieldStarted = true;
        } else if (c == separator) {
            row << field;
            field.clear();
            fieldStarted = false;
        } else if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            if (c == QLatin1Char('\r') && i + 1 < size && text.at(i + 1) == QLatin1Char('\n'))
                ++i;
            endRow();
        } else {
            field += c;
        }
    }
    if (!field.isEmpty() || !row.isEmpty() || fieldStarted)
        endRow();
    return rows;
}

void KalAddressFile::parse()
{
    m_allRows = parseRows(m_text, m_separator);
    m_columnCount = 0;
    for (const QStringList &row : qAsConst(m_allRows))
        m_columnCount = qMax(m_columnCount, row.size());
    for (QStringList &row : m_allRows) {
        while (row.size() < m_columnCount)
            row << QString();
    }
}

void KalAddressFile::splitHeader()
{
    m_rows = m_allRows;
    if (m_hasHeader && !m_rows.isEmpty())
        m_rows.removeFirst();
}

void KalAddressFile::setSeparator(QChar separator)
{
    m_separator = separator;
    parse();
    splitHeader();
    guessMapping();
}

void KalAddressFile::setEncoding(Encoding encoding)
{
    m_encoding = encoding;
    decode();
    parse();
    splitHeader();
    guessMapping();
}

void KalAddressFile::setHasHeader(bool hasHeader)
{
    m_hasHeader = hasHeader;
    splitHeader();
    guessMapping();
}

QStringList KalAddressFile::columnCaptions() const
{
    QStringList captions;
    for (int column = 0; column < m_columnCount; ++column) {
        const QString header =
            m_hasHeader && !m_allRows.isEmpty() ? m_allRows.first().value(column).trimmed() : QString();
        captions << (header.isEmpty() ? tr("Spalte %1").arg(column + 1) : header);
    }
    return captions;
}

void KalAddressFile::setMapping(int column, int field)
{
    if (column < 0 || column >= m_mapping.size())
        return;
    m_mapping[column] = field >= 0 && field < KalCompanyRecord::FieldCount ? field : -1;
}

int KalAddressFile::fieldForCaption(const QString &caption)
{
    const int meaning = captionMeaning(caption);
    if (meaning == HouseNumber)
        return KalCompanyRecord::Street;
    if (meaning == PlainName)
        return KalCompanyRecord::Company;
    return meaning;
}

void KalAddressFile::guessMapping()
{
    using R = KalCompanyRecord;
    m_mapping = QVector<int>(m_columnCount, -1);
    QVector<bool> taken(R::FieldCount, false);
    const auto assign = [&](int column, int field) {
        if (field < 0 || field >= R::FieldCount || taken.at(field) || m_mapping.at(column) >= 0)
            return false;
        m_mapping[column] = field;
        taken[field] = true;
        return true;
    };

    if (m_hasHeader && !m_allRows.isEmpty()) {
        const QStringList header = m_allRows.first();
        int plainName = -1;
        bool personColumns = false;
        for (int column = 0; column < m_columnCount; ++column) {
            const int meaning = captionMeaning(header.value(column));
            if (meaning == PlainName) {
                if (plainName < 0)
                    plainName = column;
            } else if (meaning == HouseNumber) {
                m_mapping[column] = R::Street; // joined with the street
            } else {
                if (meaning == R::FirstName)
                    personColumns = true;
                assign(column, meaning);
            }
        }
        // "Name" is the company unless the file names the company elsewhere
        // and has first names, where it is the last name.
        if (plainName >= 0) {
            if (!taken.at(R::Company) && !personColumns)
                assign(plainName, R::Company);
            else if (!taken.at(R::LastName))
                assign(plainName, R::LastName);
            else
                assign(plainName, R::Company);
        }
        return;
    }

    // No captions: recognise columns by what they hold.
    for (int column = 0; column < m_columnCount; ++column) {
        if (mostly(m_rows, column, emailPattern()))
            assign(column, R::Email);
        else if (mostly(m_rows, column, plzPattern()))
            assign(column, R::Plz);
        else if (mostly(m_rows, column, plzCityPattern()))
            assign(column, R::City); // split into postcode and city when read
    }
    for (int column = 0; column < m_columnCount; ++column) {
        if (m_mapping.at(column) >= 0 || !mostly(m_rows, column, phonePattern()))
            continue;
        if (mostly(m_rows, column, mobilePattern()) && assign(column, R::Mobile))
            continue;
        if (!assign(column, R::Telephone))
            assign(column, R::Telefax);
    }
    for (int column = 0; column < m_columnCount; ++column) {
        if (m_mapping.at(column) < 0 && mostly(m_rows, column, streetPattern()))
            assign(column, R::Street);
    }
    for (int column = 0; column + 1 < m_columnCount; ++column) {
        if (m_mapping.at(column) == R::Plz)
            assign(column + 1, R::City);
    }
    for (int column = 0; column < m_columnCount; ++column) {
        if (m_mapping.at(column) < 0) {
            assign(column, R::Company);
            break;
        }
    }
}

QVector<KalCompanyRecord> KalAddressFile::companies() const
{
    QVector<KalCompanyRecord> result;
    for (const QStringList &row : m_rows) {
        KalCompanyRecord record;
        for (int column = 0; column < m_columnCount && column < m_mapping.size(); ++column) {
            const int field = m_mapping.at(column);
            const QString value = row.value(column).simplified();
            if (field < 0 || value.isEmpty())
                continue;
            const QString existing = record.value(field);
            record.setValue(field, existing.isEmpty() ? value : existing + QLatin1Char(' ') + value);
        }
        // "12345 Musterstadt" in one column.
        if (record.value(KalCompanyRecord::Plz).isEmpty()) {
            const QRegularExpressionMatch match = plzCityPattern().match(record.value(KalCompanyRecord::City));
            if (match.hasMatch()) {
                record.setValue(KalCompanyRecord::Plz, match.captured(1));
                record.setValue(KalCompanyRecord::City, match.captured(2).trimmed());
            }
        }
        if (!record.isEmpty())
            result << record;
    }
    return result;
}
