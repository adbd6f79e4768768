#include "KalCompanies.h"

#include "core/project/KalLog.h"
#include "core/project/KalModelHost.h"
#include "core/project/KalSqlTableModel.h"

#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>

KalCompanies::KalCompanies(KalModelHost &host)
    : m_host(host)
{
}

KalSqlTableModel *KalCompanies::model() const
{
    return m_host.model(QStringLiteral("company"));
}

const QStringList &KalCompanies::textColumns()
{
    static const QStringList columns{"type", "firstname", "lastname", "company", "street", "plz",
                                     "city", "telephone", "telefax",  "mobile",  "email"};
    return columns;
}

qint64 KalCompanies::nextPos() const
{
    // Rows appended but not yet written count as well as those in the file.
    qint64 last = 0;
    QSqlQuery query(m_host.database());
    if (query.exec(QStringLiteral("SELECT COALESCE(MAX(pos), 0) FROM company")) && query.next())
        last = query.value(0).toLongLong();
    if (KalSqlTableModel *companies = model()) {
        const int column = companies->fieldIndex(QStringLiteral("pos"));
        for (int row = 0; row < companies->rowCount(); ++row)
            last = qMax(last, companies->data(companies->index(row, column), Qt::EditRole).toLongLong());
    }
    return last + 1;
}

QVariantMap KalCompanies::newCompanyValues(const QVariantMap &texts) const
{
    QVariantMap values;
    for (const QString &column : textColumns()) {
        const QString text = texts.value(column).toString();
        // A null QString would be written as NULL.
        values.insert(column, text.isNull() ? QString(QLatin1String("")) : text);
    }
    values.insert(QStringLiteral("pos"), nextPos());
    values.insert(QStringLiteral("modified"), 0);
    values.insert(QStringLiteral("site_journal_id"), -1);
    values.insert(QStringLiteral("delete_on_import"), 1);
    return values;
}

qint64 KalCompanies::append(const QVariantMap &texts)
{
    KalSqlTableModel *companies = model();
    if (!companies)
        return -1;
    const qint64 id = m_host.nextId(QStringLiteral("company"));
    if (id < 0)
        return -1;
    const QVariantMap values = newCompanyValues(texts);
    QSqlRecord record = companies->record();
    for (int i = 0; i < record.count(); ++i)
        record.setGenerated(i, true);
    for (auto it = values.constBegin(); it != values.constEnd(); ++it)
        record.setValue(it.key(), it.value());
    record.setValue(QStringLiteral("id"), id);
    return companies->insertRecord(-1, record) ? id : -1;
}

qint64 KalCompanies::add(const QVariantMap &texts)
{
    KalSqlTableModel *companies = model();
    const qint64 id = append(texts);
    if (id < 0 || !companies->submitWithNotification(true)) {
        if (companies)
            companies->revertAll();
        return -1;
    }
    return companies->findRowById(id) >= 0 ? id : -1;
}

qint64 KalCompanies::insert(const QVariantMap &texts, QString *error)
{
    const qint64 id = m_host.nextId(QStringLiteral("company"));
    if (id < 0) {
        *error = tr("Es konnte keine neue Id vergeben werden.");
        return -1;
    }
    QVariantMap values = newCompanyValues(texts);
    values.insert(QStringLiteral("id"), id);
    QStringList holders;
    for (const QString &column : values.keys())
        holders << QLatin1Char(':') + column;
    QSqlQuery query(m_host.database());
    query.prepare(QStringLiteral("INSERT INTO company (%1) VALUES (%2)")
                      .arg(values.keys().join(QLatin1Char(',')), holders.join(QLatin1Char(','))));
    for (auto it = values.constBegin(); it != values.constEnd(); ++it)
        query.bindValue(QLatin1Char(':') + it.key(), it.value());
    if (!query.exec()) {
        *error = query.lastError().text();
        return -1;
    }
    return id;
}

int KalCompanies::defectCount(const QList<qint64> &companyIds) const
{
    QStringList ids;
    for (qint64 id : companyIds)
        ids << QString::number(id);
    if (ids.isEmpty())
        return 0;
    QSqlQuery query(m_host.database());
    if (!query.exec(
            QStringLiteral("SELECT COUNT(*) FROM defect WHERE company_id IN (%1)").arg(ids.join(QLatin1Char(',')))) ||
        !query.next())
        return 0;
    return query.value(0).toInt();
}

bool KalCompanies::releaseDefects(KalModelHost &host, const QSqlRecord &company, QStringList *changedTables)
{
    QSqlQuery query(host.database());
    query.prepare(QStringLiteral("UPDATE defect SET company_id = NULL WHERE company_id = :id"));
    query.bindValue(QStringLiteral(":id"), company.value(QStringLiteral("id")));
    if (!query.exec()) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
        return false;
    }
    if (query.numRowsAffected() > 0)
        changedTables->append(QStringLiteral("defect"));

    // A company from the site journal leaves a note that it was deleted
    // here, or the next import would bring it back unasked.
    const QVariant siteJournalId = company.value(QStringLiteral("site_journal_id"));
    if (siteJournalId.isNull() || siteJournalId.toLongLong() < 0)
        return true;
    const qint64 id = host.nextId(QStringLiteral("deleted_site_journal_company"));
    if (id <= 0)
        return false;
    query.prepare(QStringLiteral("INSERT INTO deleted_site_journal_company (id, site_journal_id, restore_on_import) "
                                 "VALUES (:id, :site_journal_id, 1)"));
    query.bindValue(QStringLiteral(":id"), id);
    query.bindValue(QStringLiteral(":site_journal_id"), siteJournalId);
    if (!query.exec()) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
        return false;
    }
    changedTables->append(QStringLiteral("deleted_site_journal_company"));
    return true;
}
