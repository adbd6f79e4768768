#include "KalDefectCsv.h"

#include "core/project/KalDefectColumns.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "core/textaids/KalDateFormat.h"

#include <QBuffer>
#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <algorithm>
#include <limits>
#include <new>

namespace {

// Stored dates come as ISO text (possibly with a time) or, from older
// files, in the user's notation.
QString dateText(const QVariant &value)
{
    QDate date;
    switch (value.userType()) {
    case QMetaType::QDate:
        date = value.toDate();
        break;
    case QMetaType::QDateTime:
        date = value.toDateTime().date();
        break;
    default: {
        const QString text = value.toString().trimmed();
        if (text.size() >= 10 && text.at(4) == QLatin1Char('-') && text.at(7) == QLatin1Char('-'))
            date = QDate::fromString(text.left(10), Qt::ISODate);
        if (!date.isValid() && !text.isEmpty())
            date = KalDateFormat::parse(text);
        break;
    }
    }
    return KalDateFormat::toText(date);
}

struct Row
{
    QString number;
    qint64 id = 0;
    QStringList cells;
};

// One line as UTF-8, written at once: a row never waits for the next one,
// so the whole file is never held in memory.
bool writeLine(QIODevice *out, const QStringList &cells)
{
    QString line;
    for (int i = 0; i < cells.size(); ++i) {
        if (i > 0)
            line += QLatin1Char(';');
        line += KalDefectCsv::quoted(cells.at(i));
    }
    line += QLatin1String("\r\n");
    const QByteArray bytes = line.toUtf8();
    return out->write(bytes) == bytes.size();
}

// False when `out` refuses a write; its errorString() tells why.
bool writeCsv(QIODevice *out, const QStringList &captions, QVector<Row> rows)
{
    std::stable_sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) {
        return KalDefectCsv::numberLess(a.number, a.id, b.number, b.id);
    });
    bool written = out->write("\xEF\xBB\xBF", 3) == 3 && writeLine(out, captions);
    for (int i = 0; written && i < rows.size(); ++i) {
        written = writeLine(out, rows.at(i).cells);
        rows[i].cells.clear(); // the texts of a written row are no longer needed
    }
    return written;
}

QString reductionSuffix()
{
    return QCoreApplication::translate("KalSqlTableModel", " - mit Minderung");
}

} // namespace

QStringList KalDefectCsv::columnFields(Columns columns)
{
    return KalDefectColumns::fields(columns == Compact ? KalDefectColumns::Compact : KalDefectColumns::All);
}

QString KalDefectCsv::quoted(const QString &cell)
{
    qint64 quotes = 0;
    bool needsQuotes = false;
    for (const QChar c : cell) {
        if (c == QLatin1Char('"'))
            ++quotes;
        else if (c == QLatin1Char(';') || c == QLatin1Char('\n') || c == QLatin1Char('\r'))
            needsQuotes = true;
    }
    if (quotes == 0 && !needsQuotes)
        return cell;
    // One pass into a buffer of the final size: replacing quote by quote
    // takes quadratic time on texts full of quotes.
    const qint64 size = cell.size() + quotes + 2;
    if (size > std::numeric_limits<int>::max() / 2)
        throw std::bad_alloc();
    QString text(int(size), Qt::Uninitialized);
    QChar *to = text.data();
    *to++ = QLatin1Char('"');
    for (const QChar c : cell) {
        *to++ = c;
        if (c == QLatin1Char('"'))
            *to++ = c;
    }
    *to = QLatin1Char('"');
    return text;
}

bool KalDefectCsv::numberLess(const QString &a, qint64 idA, const QString &b, qint64 idB)
{
    bool numericA = false;
    bool numericB = false;
    const qint64 valueA = a.trimmed().toLongLong(&numericA);
    const qint64 valueB = b.trimmed().toLongLong(&numericB);
    if (numericA && numericB) {
        if (valueA != valueB)
            return valueA < valueB;
    } else if (numericA != numericB) {
        return numericA; // numbers before other texts
    } else {
        const int order = a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive);
        if (order != 0)
            return order < 0;
    }
    return idA < idB;
}

QByteArray KalDefectCsv::fromModel(const KalSqlTableModel *defects, Columns columns)
{
    QByteArray csv;
    QBuffer buffer(&csv);
    buffer.open(QIODevice::WriteOnly);
    writeModel(defects, columns, &buffer);
    return csv;
}

bool KalDefectCsv::writeModel(const KalSqlTableModel *defects, Columns columns, QIODevice *out)
{
    const QStringList fields = columnFields(columns);
    QStringList captions;
    QVector<int> indexes;
    for (const QString &field : fields) {
        const int column = defects->fieldIndex(field);
        indexes << column;
        const QString header =
            column < 0 ? QString() : defects->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        captions << (header.isEmpty() ? KalDefectColumns::caption(field) : header);
    }
    const int numberColumn = defects->fieldIndex(QStringLiteral("number"));
    const int idColumn = defects->idColumn();

    QVector<Row> rows;
    rows.reserve(defects->rowCount());
    for (int r = 0; r < defects->rowCount(); ++r) {
        Row row;
        if (numberColumn >= 0)
            row.number = defects->data(defects->index(r, numberColumn), Qt::EditRole).toString();
        if (idColumn >= 0)
            row.id = defects->data(defects->index(r, idColumn), Qt::EditRole).toLongLong();
        for (int i = 0; i < fields.size(); ++i) {
            const int column = indexes.at(i);
            if (column < 0) {
                row.cells << QString();
                continue;
            }
            const QModelIndex index = defects->index(r, column);
            // Every date in the program's notation, also those the grid shows as stored.
            if (KalDefectColumns::isDate(fields.at(i)))
                row.cells << dateText(defects->data(index, Qt::EditRole));
            else
                row.cells << defects->data(index, Qt::DisplayRole).toString();
        }
        rows << row;
    }
    return writeCsv(out, captions, rows);
}

bool KalDefectCsv::fromDatabase(const QSqlDatabase &db, Columns columns, const KalCompanyFormat &format,
                                QByteArray *csv, QString *errorText)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!writeDatabase(db, columns, format, &buffer, errorText))
        return false;
    *csv = bytes;
    return true;
}

bool KalDefectCsv::writeDatabase(const QSqlDatabase &db, Columns columns, const KalCompanyFormat &format,
                                 QIODevice *out, QString *errorText)
{
    const auto failed = [errorText](const QSqlQuery &query) {
        if (errorText)
            *errorText = tr("Die Mängelliste konnte nicht gelesen werden:\n%1").arg(query.lastError().text());
        return false;
    };

    QHash<qint64, QString> companies;
    QHash<qint64, QString> statuses;
    QHash<qint64, QString> plans;
    {
        QSqlQuery query(db);
        query.setForwardOnly(true);
        if (!query.exec(QStringLiteral("SELECT * FROM company")))
            return failed(query);
        while (query.next()) {
            const QSqlRecord record = query.record();
            companies.insert(record.value(QStringLiteral("id")).toLongLong(),
                             format.text(record, KalCompanyFormat::gridSeparator()));
        }
        if (!query.exec(QStringLiteral("SELECT id, status FROM status")))
            return failed(query);
        while (query.next())
            statuses.insert(query.value(0).toLongLong(), query.value(1).toString());
        if (!query.exec(QStringLiteral("SELECT id, plan_name FROM plan_info")))
            return failed(query);
        while (query.next())
            plans.insert(query.value(0).toLongLong(), query.value(1).toString());
    }

    const QStringList fields = columnFields(columns);
    QStringList captions;
    for (const QString &field : fields)
        captions << KalDefectColumns::caption(field);

    QStringList selected = fields;
    selected << QStringLiteral("id") << QStringLiteral("reduction");
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT %1 FROM defect").arg(selected.join(QStringLiteral(", ")))))
        return failed(query);
    const int idIndex = fields.size();
    const int reductionIndex = fields.size() + 1;
    const int numberIndex = fields.indexOf(QStringLiteral("number"));
    const QString suffix = reductionSuffix();

    QVector<Row> rows;
    while (query.next()) {
        Row row;
        row.id = query.value(idIndex).toLongLong();
        row.number = numberIndex >= 0 ? query.value(numberIndex).toString() : QString();
        for (int i = 0; i < fields.size(); ++i) {
            const QString &field = fields.at(i);
            const QVariant value = query.value(i);
            QString text;
            if (field == QLatin1String("company_id")) {
                text = value.isNull() ? QString() : companies.value(value.toLongLong());
            } else if (field == QLatin1String("status_id")) {
                text = value.isNull() ? QString() : statuses.value(value.toLongLong());
                if (!text.isEmpty() && query.value(reductionIndex).toBool())
                    text += suffix;
            } else if (field == QLatin1String("plan_info_id")) {
                text = value.isNull() ? QString() : plans.value(value.toLongLong());
            } else if (KalDefectColumns::isDate(field)) {
                text = dateText(value);
            } else {
                text = value.toString();
            }
            row.cells << text;
        }
        rows << row;
    }
    if (query.lastError().isValid())
        return failed(query);
    return writeCsv(out, captions, rows);
}

bool KalDefectCsv::writeFile(const QString &path, const QByteArray &csv, QString *errorText)
{
    return writeFile(
        path, [&csv](QIODevice *out, QString *) { return out->write(csv) == csv.size(); }, errorText);
}

bool KalDefectCsv::writeFile(const QString &path, const std::function<bool(QIODevice *, QString *)> &write,
                             QString *errorText)
{
    QSaveFile file(path);
    QString writeError;
    const auto failed = [&]() {
        if (errorText)
            *errorText = !writeError.isEmpty() ? writeError
                                               : tr("Die Datei\n%1\nkonnte nicht geschrieben werden:\n%2")
                                                     .arg(QDir::toNativeSeparators(path), file.errorString());
        file.cancelWriting();
        return false;
    };
    if (!file.open(QIODevice::WriteOnly))
        return failed();
    if (!write(&file, &writeError))
        return failed();
    if (!file.commit())
        return failed();
    return true;
}

QString KalDefectCsv::resolvedPath(const QString &path)
{
    QFileInfo info(QFileInfo(path).absoluteFilePath());
    // Follow the links as a write would, also those whose target is missing.
    for (int depth = 0; depth < 40 && info.isSymLink(); ++depth)
        info.setFile(info.symLinkTarget());
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? info.absoluteFilePath() : QDir(folder).filePath(info.fileName());
}

bool KalDefectCsv::belongsToProject(const QString &target, const QString &projectPath)
{
    const QFileInfo resolved(resolvedPath(target));
    // The project as named and as its links lead, with the files SQLite and
    // the program keep beside it: journal, WAL, backups, user data.
    for (const QString &project : {QFileInfo(projectPath).absoluteFilePath(), resolvedPath(projectPath)}) {
        const QFileInfo info(project);
        const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
        if (resolved.absolutePath() != (folder.isEmpty() ? info.absolutePath() : folder) ||
            !resolved.fileName().startsWith(info.fileName()))
            continue;
        static const QRegularExpression companion(QStringLiteral("^(|-journal|-wal|-shm|\\.udf|(\\.\\d+)?\\.bak)$"));
        if (companion.match(resolved.fileName().mid(info.fileName().size())).hasMatch())
            return true;
    }
    return false;
}

bool KalDefectCsv::exportModel(const KalSqlTableModel *defects, Columns columns, const QString &path,
                               const QString &projectPath)
{
    QString error;
    if (!defects) {
        KalPrompt::critical(tr("Fehler"), tr("Es ist kein Projekt geöffnet."));
        return false;
    }
    if (!projectPath.isEmpty() && belongsToProject(path, projectPath)) {
        KalPrompt::critical(tr("Dateifehler"), tr("Die Mängelliste kann nicht in die Projektdatei selbst oder eine "
                                                  "ihrer Begleitdateien geschrieben werden:\n%1")
                                                   .arg(QDir::toNativeSeparators(path)));
        return false;
    }
    const auto write = [defects, columns](QIODevice *out, QString *) { return writeModel(defects, columns, out); };
    bool written = false;
    try {
        written = writeFile(resolvedPath(path), write, &error);
    } catch (const std::bad_alloc &) {
        // The temporary file is gone with the unwinding; the target is untouched.
        error = tr("Für die Mängelliste reicht der Arbeitsspeicher nicht.");
    }
    if (!written) {
        KalPrompt::critical(tr("Dateifehler"), error);
        return false;
    }
    return true;
}
