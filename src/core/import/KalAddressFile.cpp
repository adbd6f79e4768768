#include "KalAddressFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTextCodec>

namespace {

// An address book with long notes reaches 50 MB and reads in about two
// seconds; far beyond, a file is something else, and reading it would hold
// the program and hundreds of megabytes for nothing.
constexpr qint64 s_maxFileMegabytes = 64;
constexpr qint64 s_maxFileSize = s_maxFileMegabytes * 1024 * 1024;

// Text of Latin letters in UTF-16 has a zero byte in every other place;
// which one tells the byte order.
bool utf16WithoutMark(const QByteArray &data, bool *bigEndian)
{
    const int size = qMin(data.size(), 64 * 1024) & ~1;
    if (size < 4)
        return false;
    int evenZeros = 0;
    int oddZeros = 0;
    for (int i = 0; i < size; i += 2) {
        evenZeros += data.at(i) == '\0' ? 1 : 0;
        oddZeros += data.at(i + 1) == '\0' ? 1 : 0;
    }
    const int pairs = size / 2;
    if (oddZeros * 10 >= pairs * 6 && evenZeros * 20 <= pairs) {
        *bigEndian = false;
        return true;
    }
    if (evenZeros * 10 >= pairs * 6 && oddZeros * 20 <= pairs) {
        *bigEndian = true;
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
        return fail(tr("Die Datei ist %1 MB groß; eine Adressdatei darf höchstens %2 MB groß sein.")
                        .arg((QFileInfo(path).size() + 1024 * 1024 - 1) / (1024 * 1024))
                        .arg(s_maxFileMegabytes));
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
    bool bigEndian = false;
    if (data.startsWith("\xFF\xFE") || data.startsWith("\xFE\xFF")) {
        encoding = Utf16;
    } else if (utf16WithoutMark(data, &bigEndian)) {
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
    candidate.m_bigEndian = bigEndian;
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
    if (!candidate.problem().isEmpty())
        return fail(candidate.problem());
    candidate.m_hasHeader = candidate.guessHeader();
    candidate.splitHeader();
    if (candidate.m_rows.isEmpty())
        return fail(tr("Die Datei enthält nur Spaltenüberschriften, aber keine Adressen."));
    candidate.guessMapping();
    *this = candidate;
    return true;
}

void KalAddressFile::decode()
{
    switch (m_encoding) {
    case Utf16:
        if (m_data.startsWith("\xFF\xFE") || m_data.startsWith("\xFE\xFF"))
            m_text = QTextCodec::codecForName("UTF-16")->toUnicode(m_data);
        else
            m_text = QTextCodec::codecForName(m_bigEndian ? "UTF-16BE" : "UTF-16LE")->toUnicode(m_data);
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
        if (rows.size() > SampleRows)
            rows.resize(SampleRows);
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

QVector<QStringList> KalAddressFile::parseRows(const QString &text, QChar separator, int *unclosedQuoteLine)
{
    int line = 1;
    int quoteLine = 0;
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
        if (c == QLatin1Char('\n') ||
            (c == QLatin1Char('\r') && (i + 1 >= size || text.at(i + 1) != QLatin1Char('\n'))))
            ++line;
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
            quoteLine = line;
            fieldStarted = true;
        } else if (c == separator) {
            row << field;
            field.clear();
            fieldStarted = false;
        } else if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            if (c == QLatin1Char('\r') && i + 1 < size && text.at(i + 1) == QLatin1Char('\n')) {
                ++i;
                ++line;
            }
            endRow();
        } else {
            field += c;
        }
    }
    if (!field.isEmpty() || !row.isEmpty() || fieldStarted)
        endRow();
    if (unclosedQuoteLine)
        *unclosedQuoteLine = inQuotes ? quoteLine : 0;
    return rows;
}

void KalAddressFile::parse()
{
    m_allRows = parseRows(m_text, m_separator, &m_unclosedQuoteLine);
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
    m_longRows = 0;
    if (!m_hasHeader || m_rows.isEmpty())
        return;
    const QStringList header = m_rows.takeFirst();
    int captions = header.size();
    while (captions > 0 && header.at(captions - 1).trimmed().isEmpty())
        --captions;
    for (const QStringList &row : qAsConst(m_rows)) {
        for (int column = captions; column < row.size(); ++column) {
            if (!row.at(column).trimmed().isEmpty()) {
                ++m_longRows;
                break;
            }
        }
    }
}

QString KalAddressFile::problem() const
{
    if (m_unclosedQuoteLine > 0)
        return tr("Das Anführungszeichen in Zeile %1 wird nie geschlossen; der Rest der Datei wäre ein einziges "
                  "Feld. Bitte korrigieren Sie die Datei.")
            .arg(m_unclosedQuoteLine);
    return QString();
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
