// The column mapping of KalAddressFile: guessing it from captions or
// contents, remembering the user's corrections, and reading records by it.
#include "KalAddressFile.h"

#include "core/import/KalAddressCaption.h"

#include <QCryptographicHash>
#include <QHash>
#include <QRegularExpression>
#include <QSettings>

namespace {

using R = KalCompanyRecord;

bool mostly(const QVector<QStringList> &rows, int column, const QRegularExpression &pattern)
{
    int filled = 0;
    int matching = 0;
    for (int r = 0; r < rows.size() && r < KalAddressFile::SampleRows; ++r) {
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

// "Müller & Söhne", "Bau GmbH": a name that is a company, not a person.
const QRegularExpression &legalFormPattern()
{
    static const QRegularExpression p(
        QStringLiteral("&|\\b(GmbH|mbH|AG|KG|OHG|GbR|UG|e\\.\\s?K|e\\.\\s?V|Co|Ltd|Inc|LLC|SE|Gmbh|gmbh)\\b"));
    return p;
}

bool isAddressField(int field)
{
    return field == R::Street || field == R::Plz || field == R::City;
}

// Names and streets from several columns are joined ("Straße" and
// "Hausnummer"); of cities, phone numbers and e-mail addresses one is taken.
bool joinsValues(int field)
{
    return field == R::Type || field == R::FirstName || field == R::LastName || field == R::Company ||
           field == R::Street || field == KalAddressFile::FullName;
}

// Address fields compete as one address: the street of one and the city of
// another would make an address nobody has.
int rankGroup(int field)
{
    return isAddressField(field) ? int(R::Street) : field;
}

void splitFullName(const QString &name, KalCompanyRecord *record)
{
    const int comma = name.indexOf(QLatin1Char(','));
    if (comma > 0) { // "Müller, Hans"
        record->setValue(R::LastName, name.left(comma).trimmed());
        record->setValue(R::FirstName, name.mid(comma + 1).trimmed());
        return;
    }
    const int blank = name.lastIndexOf(QLatin1Char(' '));
    record->setValue(R::LastName, blank < 0 ? name : name.mid(blank + 1));
    if (blank > 0)
        record->setValue(R::FirstName, name.left(blank));
}

} // namespace

bool KalAddressFile::guessHeader() const
{
    if (m_allRows.isEmpty())
        return false;
    const QStringList &first = m_allRows.first();
    if (looksLikeData(first))
        return false;
    for (const QString &cell : first) {
        if (KalAddressCaption::analyse(cell).kind >= 0)
            return true;
    }
    return false;
}

void KalAddressFile::guessMapping()
{
    m_mapping = QVector<int>(m_columnCount, -1);
    m_rank = QVector<int>(m_columnCount, KalAddressCaption::Plain);
    m_continuation = QVector<bool>(m_columnCount, false);
    m_typeColumn = QVector<int>(m_columnCount, -1);
    if (m_hasHeader && !m_allRows.isEmpty())
        guessFromCaptions();
    else
        guessFromContents();
    m_guessedMapping = m_mapping;
    applyRememberedMapping();
}

void KalAddressFile::guessFromCaptions()
{
    const QStringList header = m_allRows.first();
    QVector<KalAddressCaption> captions;
    QHash<QString, int> typeColumns;
    for (int column = 0; column < m_columnCount; ++column) {
        captions << KalAddressCaption::analyse(header.value(column));
        if (captions.last().kind == KalAddressCaption::TypeColumn)
            typeColumns.insert(captions.last().group, column);
    }
    bool firstNames = false;
    bool lastNames = false;
    for (int column = 0; column < m_columnCount; ++column) {
        const KalAddressCaption &caption = captions.at(column);
        if (caption.kind < 0 || caption.kind == KalAddressCaption::TypeColumn)
            continue;
        int field = caption.kind;
        if (field == KalAddressCaption::HouseNumber)
            field = R::Street;
        else if (field == KalAddressCaption::FullName)
            field = FullName;
        m_mapping[column] = field;
        m_rank[column] = caption.rank;
        m_continuation[column] = caption.continuation;
        if (!caption.group.isEmpty())
            m_typeColumn[column] = typeColumns.value(caption.group, -1);
        firstNames = firstNames || field == R::FirstName;
        lastNames = lastNames || field == R::LastName;
    }
    // A full name is split only where the file has no name columns of its
    // own; beside a first name "Name" is the last name ("Vorname;Name").
    bool fullNameTaken = false;
    for (int column = 0; column < m_columnCount; ++column) {
        if (m_mapping.at(column) != FullName)
            continue;
        if (fullNameTaken || (firstNames && lastNames) || (lastNames && !firstNames))
            m_mapping[column] = -1;
        else if (firstNames)
            m_mapping[column] = R::LastName;
        fullNameTaken = true;
    }
}

void KalAddressFile::guessFromContents()
{
    QVector<bool> taken(R::FieldCount, false);
    const auto assign = [&](int column, int field) {
        if (taken.at(field) || m_mapping.at(column) >= 0)
            return false;
        m_mapping[column] = field;
        taken[field] = true;
        return true;
    };
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

void KalAddressFile::setMapping(int column, int field)
{
    if (column < 0 || column >= m_mapping.size())
        return;
    field = field >= 0 && field <= FullName ? field : -1;
    if (field == m_mapping.at(column))
        return;
    m_mapping[column] = field;
    m_typeColumn[column] = -1;
}

QString KalAddressFile::fieldCaption(int field)
{
    if (field == FullName)
        return tr("Vor- und Nachname");
    if (field < 0 || field > FullName)
        return tr("- ignorieren -");
    return KalCompanyRecord::caption(field);
}

// --- remembered mappings ------------------------------------------------------------

QString KalAddressFile::layoutKey() const
{
    if (!m_hasHeader || m_allRows.isEmpty())
        return QString();
    QStringList captions;
    for (const QString &caption : m_allRows.first())
        captions << caption.trimmed().toCaseFolded();
    const QByteArray hash =
        QCryptographicHash::hash(captions.join(QLatin1Char('\x1f')).toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("CompanyImport/Mappings/") + QString::fromLatin1(hash.toHex().left(20));
}

void KalAddressFile::rememberMapping() const
{
    const QString key = layoutKey();
    if (key.isEmpty())
        return;
    QSettings settings;
    if (m_mapping == m_guessedMapping) {
        settings.remove(key);
        return;
    }
    QStringList fields;
    for (const int field : m_mapping)
        fields << QString::number(field);
    settings.setValue(key, fields);
}

void KalAddressFile::applyRememberedMapping()
{
    const QString key = layoutKey();
    if (key.isEmpty())
        return;
    const QStringList fields = QSettings().value(key).toStringList();
    if (fields.size() != m_columnCount)
        return;
    for (int column = 0; column < m_columnCount; ++column) {
        bool ok = false;
        const int field = fields.at(column).toInt(&ok);
        if (ok)
            setMapping(column, field);
    }
}

// --- what the user is shown ---------------------------------------------------------

QString KalAddressFile::columnNote(int column) const
{
    if (column < 0 || column >= m_mapping.size())
        return QString();
    const QStringList captions = columnCaptions();
    const int field = m_mapping.at(column);
    if (field < 0) {
        for (int other = 0; other < m_columnCount; ++other) {
            if (m_typeColumn.at(other) == column && m_mapping.at(other) >= 0)
                return tr("Art der Angabe in „%1“").arg(captions.at(other));
        }
        return unmappedCaptions().contains(captions.at(column)) ? tr("wird nicht übernommen") : QString();
    }
    if (m_typeColumn.at(column) >= 0)
        return tr("Feld und Vorrang je Zeile nach „%1“").arg(captions.at(m_typeColumn.at(column)));
    if (field == FullName)
        return tr("wird in Vor- und Nachname geteilt");
    int preferred = -1; // the column whose value this one gives way to
    for (int other = 0; other < m_columnCount; ++other) {
        if (other == column || m_mapping.at(other) < 0 || rankGroup(m_mapping.at(other)) != rankGroup(field))
            continue;
        const bool earlierSame = m_mapping.at(other) == field && !joinsValues(field) && other < column &&
                                 m_rank.at(other) == m_rank.at(column);
        if ((m_rank.at(other) > m_rank.at(column) || earlierSame) &&
            (preferred < 0 || m_rank.at(other) > m_rank.at(preferred)))
            preferred = other;
    }
    if (preferred >= 0)
        return tr("nur wenn „%1“ leer ist").arg(captions.at(preferred));
    if (m_continuation.at(column))
        return tr("wird angehängt");
    return QString();
}

QStringList KalAddressFile::unmappedCaptions() const
{
    QVector<bool> used(m_columnCount, false);
    for (int column = 0; column < m_columnCount; ++column) {
        used[column] = used.at(column) || m_mapping.at(column) >= 0;
        if (m_typeColumn.at(column) >= 0 && m_mapping.at(column) >= 0)
            used[m_typeColumn.at(column)] = true;
    }
    const QStringList captions = columnCaptions();
    QStringList unmapped;
    for (int column = 0; column < m_columnCount; ++column) {
        if (used.at(column))
            continue;
        for (const QStringList &row : m_rows) {
            if (!row.value(column).trimmed().isEmpty()) {
                unmapped << captions.at(column);
                break;
            }
        }
    }
    return unmapped;
}

// --- records ----------------------------------------------------------------------------

KalCompanyRecord KalAddressFile::recordFor(const QStringList &row) const
{
    struct Value
    {
        int field;
        int rank;
        bool continuation;
        QString text;
    };
    QVector<Value> values;
    QHash<int, int> best; // rank group -> highest rank given
    for (int column = 0; column < m_columnCount && column < m_mapping.size(); ++column) {
        int field = m_mapping.at(column);
        int rank = m_rank.at(column);
        const QString text = row.value(column).simplified();
        if (field < 0 || text.isEmpty())
            continue;
        if (m_typeColumn.at(column) >= 0)
            KalAddressCaption::applyType(row.value(m_typeColumn.at(column)), &field, &rank);
        if (field < 0)
            continue;
        values.append({field, rank, m_continuation.at(column), text});
        best[rankGroup(field)] = qMax(best.value(rankGroup(field)), rank);
    }

    KalCompanyRecord record;
    QString fullName;
    for (const bool continuation : {false, true}) {
        for (const Value &value : qAsConst(values)) {
            if (value.continuation != continuation || value.rank != best.value(rankGroup(value.field)))
                continue;
            QString existing = value.field == FullName ? fullName : record.value(value.field);
            if (existing.isEmpty())
                existing = value.text;
            else if (joinsValues(value.field) && existing.compare(value.text, Qt::CaseInsensitive) != 0)
                existing += (continuation && value.field == R::Street ? QStringLiteral(", ") : QStringLiteral(" ")) +
                            value.text;
            if (value.field == FullName)
                fullName = existing;
            else
                record.setValue(value.field, existing);
        }
    }
    if (!fullName.isEmpty() && record.value(R::FirstName).isEmpty() && record.value(R::LastName).isEmpty()) {
        if (legalFormPattern().match(fullName).hasMatch())
            record.setValue(R::Company, record.value(R::Company).isEmpty() ? fullName : record.value(R::Company));
        else
            splitFullName(fullName, &record);
    }
    // "12345 Musterstadt" in one column.
    if (record.value(R::Plz).isEmpty()) {
        const QRegularExpressionMatch match = plzCityPattern().match(record.value(R::City));
        if (match.hasMatch()) {
            record.setValue(R::Plz, match.captured(1));
            record.setValue(R::City, match.captured(2).trimmed());
        }
    }
    // Private contacts have no company name; the company list needs one to
    // show them, and the person's name is what the user knows them by.
    if (record.value(R::Company).isEmpty()) {
        record.setValue(
            R::Company,
            QStringList{record.value(R::FirstName), record.value(R::LastName)}.join(QLatin1Char(' ')).trimmed());
    }
    return record;
}

QVector<KalCompanyRecord> KalAddressFile::companies() const
{
    QVector<KalCompanyRecord> result;
    for (const QStringList &row : m_rows) {
        const KalCompanyRecord record = recordFor(row);
        if (!record.isEmpty())
            result << record;
    }
    return result;
}
