#include "KalCompanyImport.h"

#include "core/project/KalCompanies.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <functional>

namespace {

const char *const s_columns[KalCompanyRecord::FieldCount] = {
    "type", "firstname", "lastname", "company", "street", "plz", "city", "telephone", "telefax", "mobile", "email",
};

QString normalized(const QString &text)
{
    return text.simplified().toCaseFolded();
}

QString duplicateKey(const KalCompanyRecord &record)
{
    QString key = normalized(record.values[KalCompanyRecord::Company]) + QLatin1Char('\x1f') +
                  normalized(record.values[KalCompanyRecord::Type]);
    // Without a company name the person tells companies apart.
    if (record.values[KalCompanyRecord::Company].trimmed().isEmpty())
        key += QLatin1Char('\x1f') + normalized(record.values[KalCompanyRecord::FirstName]) + QLatin1Char('\x1f') +
               normalized(record.values[KalCompanyRecord::LastName]);
    return key;
}

KalCompanyRecord recordFrom(const QSqlRecord &row)
{
    KalCompanyRecord record;
    for (int field = 0; field < KalCompanyRecord::FieldCount; ++field) {
        const int index = row.indexOf(QLatin1String(s_columns[field]));
        if (index >= 0)
            record.values[field] = row.value(index).toString();
    }
    return record;
}

int s_connectionCounter = 0;

// Reads companies from a file through its own read-only connection.
bool readCompanies(const QString &path, const QString &sql, const QString &notOurFileText,
                   QVector<KalCompanyRecord> *companies, QString *errorText,
                   const std::function<bool(const QMap<QString, QString> &)> &isOurFile, bool noneIsFine = false)
{
    const QString nativePath = QDir::toNativeSeparators(path);
    const auto fail = [errorText](const QString &text) {
        if (errorText)
            *errorText = text;
        return false;
    };
    if (!QFileInfo(path).isFile())
        return fail(KalCompanyImport::tr("Die Datei\n%1\nexistiert nicht.").arg(nativePath));
    if (QFileInfo(path).size() == 0)
        return fail(notOurFileText);

    const QString connection = QStringLiteral("KALCOMPANYIMPORT%1").arg(++s_connectionCounter);
    QString error;
    QVector<KalCompanyRecord> found;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(path);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=2000"));
        if (!db.open()) {
            error = KalCompanyImport::tr("Die Datei\n%1\nkonnte nicht geöffnet werden:\n%2")
                        .arg(nativePath, db.lastError().text());
        } else {
            KalDatabaseSchema::applySafetyPragmas(db);
            if (!isOurFile(KalDatabaseSchema::tableMap(db))) {
                error = notOurFileText;
            } else {
                QSqlQuery query(db);
                query.setForwardOnly(true);
                if (!query.exec(sql)) {
                    error = KalCompanyImport::tr("Die Firmen der Datei\n%1\nkonnten nicht gelesen werden:\n%2")
                                .arg(nativePath, query.lastError().text());
                } else {
                    while (query.next())
                        found << recordFrom(query.record());
                    if (query.lastError().isValid())
                        error = KalCompanyImport::tr("Die Firmen der Datei\n%1\nkonnten nicht gelesen werden:\n%2")
                                    .arg(nativePath, query.lastError().text());
                }
            }
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(connection);
    if (!error.isEmpty())
        return fail(error);
    QVector<KalCompanyRecord> nonEmpty;
    for (const KalCompanyRecord &record : qAsConst(found)) {
        if (!record.isEmpty())
            nonEmpty << record;
    }
    if (nonEmpty.isEmpty() && !noneIsFine)
        return fail(KalCompanyImport::tr("Die Datei\n%1\nenthält keine Firmen.").arg(nativePath));
    *companies = nonEmpty;
    return true;
}

bool hasColumns(const QMap<QString, QString> &tables, const QString &table, const QStringList &columns)
{
    const QString sql = tables.value(table);
    if (sql.isEmpty())
        return false;
    for (const QString &column : columns) {
        if (!sql.contains(column, Qt::CaseInsensitive))
            return false;
    }
    return true;
}

} // namespace

// --- KalCompanyRecord ---------------------------------------------------------

bool KalCompanyRecord::isEmpty() const
{
    for (const QString &value : values) {
        if (!value.trimmed().isEmpty())
            return false;
    }
    return true;
}

bool KalCompanyRecord::sameCompanyAs(const KalCompanyRecord &other) const
{
    return duplicateKey(*this) == duplicateKey(other);
}

QString KalCompanyRecord::displayText() const
{
    QString name = values[Company].trimmed();
    const QString person =
        QStringList{values[FirstName].trimmed(), values[LastName].trimmed()}.join(QLatin1Char(' ')).trimmed();
    if (name.isEmpty())
        name = person;
    const QString trade = values[Type].trimmed();
    if (!trade.isEmpty())
        name = name.isEmpty() ? trade : QStringLiteral("%1 (%2)").arg(name, trade);
    const QString city = values[City].trimmed();
    if (!city.isEmpty())
        name = name.isEmpty() ? city : QStringLiteral("%1, %2").arg(name, city);
    return name;
}

QString KalCompanyRecord::columnName(int field)
{
    return field >= 0 && field < FieldCount ? QLatin1String(s_columns[field]) : QString();
}

QString KalCompanyRecord::caption(int field)
{
    switch (field) {
    case Type:
        return KalCompanyImport::tr("Gewerk");
    case FirstName:
        return KalCompanyImport::tr("Vorname");
    case LastName:
        return KalCompanyImport::tr("Nachname");
    case Company:
        return KalCompanyImport::tr("Firma");
    case Street:
        return KalCompanyImport::tr("Straße");
    case Plz:
        return KalCompanyImport::tr("PLZ");
    case City:
        return KalCompanyImport::tr("Stadt");
    case Telephone:
        return KalCompanyImport::tr("Telefon");
    case Telefax:
        return KalCompanyImport::tr("Fax");
    case Mobile:
        return KalCompanyImport::tr("Mobil");
    case Email:
        return KalCompanyImport::tr("E-Mail");
    default:
        return QString();
    }
}

// --- reading sources --------------------------------------------------------------

bool KalCompanyImport::readProjectFile(const QString &path, QVector<KalCompanyRecord> *companies, QString *errorText,
                                       bool noneIsFine)
{
    const QString notProject =
        tr("Die Datei\n%1\nist keine Pellwick-Projektdatei.").arg(QDir::toNativeSeparators(path));
    return readCompanies(
        path,
        QStringLiteral("SELECT type, firstname, lastname, company, street, plz, city, telephone, telefax, mobile, "
                       "email FROM company ORDER BY pos, id"),
        notProject, companies, errorText,
        [](const QMap<QString, QString> &tables) {
            return tables.contains(QStringLiteral("defect")) && tables.contains(QStringLiteral("kal")) &&
                   hasColumns(tables, QStringLiteral("company"), {QStringLiteral("pos"), QStringLiteral("email")});
        },
        noneIsFine);
}

bool KalCompanyImport::readSiteJournal(const QString &path, QVector<KalCompanyRecord> *companies, QString *errorText)
{
    const QString notJournal = tr("Die Datei\n%1\nist keine Bautagebuch-Datei.").arg(QDir::toNativeSeparators(path));
    return readCompanies(
        path,
        QStringLiteral("SELECT type, firstname, lastname, company, street, plz, city, telephone, telefax, mobile, "
                       "email FROM company WHERE category = '2' ORDER BY id"),
        notJournal, companies, errorText, [](const QMap<QString, QString> &tables) {
            return tables.contains(QStringLiteral("entry")) &&
                   hasColumns(tables, QStringLiteral("company"), {QStringLiteral("category")});
        });
}

// --- inserting ---------------------------------------------------------------------

QVector<int> KalCompanyImport::findDuplicates(KalProject &project, const QVector<KalCompanyRecord> &companies)
{
    QVector<KalCompanyRecord> existing;
    if (KalSqlTableModel *model = project.model(QStringLiteral("company"))) {
        for (int row = 0; row < model->rowCount(); ++row)
            existing << recordFrom(model->record(row));
    } else {
        QSqlQuery query(project.database());
        if (query.exec(QStringLiteral("SELECT * FROM company"))) {
            while (query.next())
                existing << recordFrom(query.record());
        }
    }
    return findDuplicates(existing, companies);
}

QVector<int> KalCompanyImport::findDuplicates(const QVector<KalCompanyRecord> &existing,
                                              const QVector<KalCompanyRecord> &companies)
{
    QSet<QString> known;
    for (const KalCompanyRecord &record : existing)
        known.insert(duplicateKey(record));
    QVector<int> duplicates;
    for (int i = 0; i < companies.size(); ++i) {
        const QString key = duplicateKey(companies.at(i));
        if (known.contains(key))
            duplicates << i;
        else
            known.insert(key);
    }
    return duplicates;
}

KalCompanyImport::Result KalCompanyImport::insertCompanies(KalProject &project,
                                                           const QVector<KalCompanyRecord> &companies,
                                                           bool insertDuplicates)
{
    Result result;
    if (!project.isOpen()) {
        result.errorText = tr("Es ist kein Projekt geöffnet.");
        return result;
    }
    if (project.isWriteProtected()) {
        result.errorText = tr("Das Projekt ist schreibgeschützt; es können keine Firmen importiert werden.");
        return result;
    }
    KalSqlTableModel *model = project.model(QStringLiteral("company"));
    // Re-reading the model afterwards would drop edits not yet written.
    if (model && model->isDirty() && !model->submitWithNotification()) {
        result.errorText =
            tr("Die geänderten Firmen konnten nicht gespeichert werden:\n%1").arg(model->lastError().text());
        return result;
    }

    QVector<KalCompanyRecord> toInsert;
    const QVector<int> duplicateList = findDuplicates(project, companies);
    // Address books run to tens of thousands of rows: look up, do not scan.
    const QSet<int> duplicateIndexes(duplicateList.begin(), duplicateList.end());
    for (int i = 0; i < companies.size(); ++i) {
        const KalCompanyRecord &record = companies.at(i);
        if (record.isEmpty())
            continue;
        if (duplicateIndexes.contains(i)) {
            result.duplicates << record;
            if (!insertDuplicates)
                continue;
        }
        toInsert << record;
    }
    if (toInsert.isEmpty()) {
        result.ok = true;
        return result;
    }

    const QSqlDatabase db = project.database();
    const auto fail = [&](const QString &reason) {
        project.rollbackTransaction();
        result.insertedIds.clear();
        result.errorText = tr("Die Firmen konnten nicht importiert werden:\n%1").arg(reason);
        return result;
    };
    if (!project.beginTransaction()) {
        result.errorText = tr("Die Firmen konnten nicht importiert werden:\n%1").arg(db.lastError().text());
        return result;
    }
    KalCompanies rules(project);
    for (const KalCompanyRecord &record : qAsConst(toInsert)) {
        QVariantMap texts;
        for (int field = 0; field < KalCompanyRecord::FieldCount; ++field)
            texts.insert(QLatin1String(s_columns[field]), record.values[field].trimmed());
        QString reason;
        const qint64 id = rules.insert(texts, &reason);
        if (id < 0)
            return fail(reason);
        result.insertedIds << id;
    }
    if (!project.commitTransaction()) {
        // The outermost commit failed: nothing of the import may stay.
        QSqlQuery rollback(db);
        rollback.exec(QStringLiteral("ROLLBACK TRANSACTION"));
        result.insertedIds.clear();
        result.errorText = tr("Die Firmen konnten nicht importiert werden:\n%1").arg(db.lastError().text());
        return result;
    }
    project.setModified(true);
    if (model)
        model->select();
    result.ok = true;
    return result;
}
