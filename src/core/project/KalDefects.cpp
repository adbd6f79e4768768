#include "KalDefects.h"

#include "core/project/KalEnvironment.h"
#include "core/project/KalLog.h"
#include "core/project/KalModelHost.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"

#include <QDate>
#include <QRegularExpression>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QVector>

namespace {

const char *const kAuthorKey = "DefectDialog/LastAuthorInitials";

bool execLogged(QSqlQuery &query)
{
    if (query.exec())
        return true;
    qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
    return false;
}

} // namespace

KalDefects::KalDefects(KalModelHost &host)
    : m_host(host)
{
}

KalSqlTableModel *KalDefects::model() const
{
    return m_host.model(QStringLiteral("defect"));
}

const QStringList &KalDefects::copiedFields()
{
    static const QStringList fields{"description",
                                    "company_id",
                                    "type",
                                    "user_id",
                                    "roomname",
                                    "roombook_number",
                                    "correction_instruction",
                                    "priority",
                                    "reduction",
                                    "creation_date",
                                    "correction_date",
                                    "deadline_1",
                                    "deadline_2",
                                    "deadline_3",
                                    "status_id"};
    return fields;
}

QString KalDefects::nextNumber() const
{
    int highest = 0;
    if (KalSqlTableModel *defects = model()) {
        defects->fetchAll();
        const int column = defects->fieldIndex(QStringLiteral("number"));
        for (int row = 0; row < defects->rowCount(); ++row)
            highest = qMax(highest, defects->data(defects->index(row, column), Qt::EditRole).toString().toInt());
    }
    return QStringLiteral("%1").arg(highest + 1, 4, 10, QLatin1Char('0'));
}

QVariantMap KalDefects::newDefectValues() const
{
    return {{QStringLiteral("number"), nextNumber()},
            {QStringLiteral("description"), QString(QLatin1String(""))},
            {QStringLiteral("creation_date"), KalEnvironment::now().date()},
            {QStringLiteral("user_id"), rememberedAuthor()},
            {QStringLiteral("priority"), QStringLiteral("Normal")},
            {QStringLiteral("plan_info_id"), -1},
            {QStringLiteral("image_cnt"), 0},
            {QStringLiteral("status_id"), 0},
            {QStringLiteral("reduction"), 0},
            {QStringLiteral("site_journal_data_modified"), 0},
            {QStringLiteral("imported_report_id"), -1},
            {QStringLiteral("site_journal_id"), -1},
            {QStringLiteral("delete_on_import"), 1}};
}

QString KalDefects::validate(const QVariantMap &values) const
{
    static const struct
    {
        const char *field;
        const char *table;
        const char *message;
    } references[] = {
        {"company_id", "company",
         QT_TRANSLATE_NOOP("KalDefects", "Eine Firma mit der Id %1 gibt es in diesem Projekt nicht.")},
        {"status_id", "status",
         QT_TRANSLATE_NOOP("KalDefects", "Einen Status mit der Id %1 gibt es in diesem Projekt nicht.")},
    };
    for (const auto &ref : references) {
        const QVariant value = values.value(QLatin1String(ref.field));
        if (value.isNull() || value.toLongLong() <= 0)
            continue; // no company, no status
        QSqlQuery query(m_host.database());
        query.prepare(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE id = :id").arg(QLatin1String(ref.table)));
        query.bindValue(QStringLiteral(":id"), value.toLongLong());
        if (!execLogged(query) || !query.next() || query.value(0).toLongLong() == 0)
            return tr(ref.message).arg(value.toLongLong());
    }
    const QVariant author = values.value(QStringLiteral("user_id"));
    if (!author.isNull() && !isValidAuthor(author.toString()))
        return tr("Als Autor sind höchstens zwei Großbuchstaben (Initialen) erlaubt, nicht \"%1\".")
            .arg(author.toString());
    return QString();
}

qint64 KalDefects::insertRow(const QVariantMap &values)
{
    KalSqlTableModel *defects = model();
    const int row = defects->rowCount();
    // Inserting a row gives it its id from the allocator.
    if (!defects->insertRow(row))
        return -1;
    const qint64 id =
        defects->data(defects->index(row, defects->fieldIndex(QStringLiteral("id"))), Qt::EditRole).toLongLong();
    bool ok = id > 0;
    for (auto it = values.constBegin(); ok && it != values.constEnd(); ++it) {
        const int column = defects->fieldIndex(it.key());
        if (column >= 0 && it.key() != QLatin1String("id"))
            ok = defects->setData(defects->index(row, column), it.value(), Qt::EditRole);
    }
    if (!ok) {
        defects->revertRow(row);
        return -1;
    }
    return id;
}

qint64 KalDefects::add(const QVariantMap &values)
{
    KalSqlTableModel *defects = model();
    if (!defects)
        return -1;
    const QString invalid = validate(values);
    if (!invalid.isEmpty()) {
        KalPrompt::critical(tr("Fehler"), invalid);
        return -1;
    }
    QVariantMap fields = newDefectValues();
    for (auto it = values.constBegin(); it != values.constEnd(); ++it)
        fields.insert(it.key(), it.value());
    const qint64 id = insertRow(fields);
    if (id <= 0 || !defects->submitWithNotification(true)) {
        defects->revertAll();
        KalPrompt::critical(tr("Datenbankfehler"), tr("Der Mangel konnte nicht gespeichert werden."));
        return -1;
    }
    return id;
}

QList<qint64> KalDefects::copy(const QList<qint64> &ids)
{
    QList<qint64> copies;
    KalSqlTableModel *defects = model();
    if (!defects || ids.isEmpty())
        return copies;
    defects->fetchAll();
    QVector<QSqlRecord> sources;
    for (qint64 sourceId : ids) {
        const int row = defects->findRowById(sourceId);
        if (row >= 0)
            sources << defects->record(row);
    }
    if (sources.isEmpty())
        return copies;

    QVariantMap fields = newDefectValues();
    int number = fields.value(QStringLiteral("number")).toString().toInt();
    m_host.beginTransaction();
    for (const QSqlRecord &source : qAsConst(sources)) {
        fields.insert(QStringLiteral("number"), QStringLiteral("%1").arg(number++, 4, 10, QLatin1Char('0')));
        for (const QString &field : copiedFields())
            fields.insert(field, source.value(field));
        const qint64 id = insertRow(fields);
        if (id <= 0)
            break;
        copies << id;
    }
    if (copies.size() == sources.size() && defects->submitWithNotification(true)) {
        m_host.commitTransaction();
        return copies;
    }
    m_host.rollbackTransaction();
    defects->revertAll();
    defects->select();
    KalPrompt::critical(tr("Datenbankfehler"), tr("Die Mängel konnten nicht kopiert werden."));
    return {};
}

bool KalDefects::removeDependants(KalModelHost &host, const QSqlRecord &defect, QStringList *changedTables)
{
    const QVariant defectId = defect.value(QStringLiteral("id"));
    const QVariant siteJournalId = defect.value(QStringLiteral("site_journal_id"));

    // What belongs to the defect alone: its photos with their images, its
    // markers and texts on the plan. Images first, while their photos still name them.
    static const struct
    {
        const char *table;
        const char *statement;
    } dependants[] = {
        {"image", "DELETE FROM image WHERE id IN (SELECT image_id FROM photo_info WHERE defect_id = :defect_id)"},
        {"photo_info", "DELETE FROM photo_info WHERE defect_id = :defect_id"},
        {"marker", "DELETE FROM marker WHERE defect_id = :defect_id"},
        {"marker_text", "DELETE FROM marker_text WHERE defect_id = :defect_id"},
    };
    QSqlQuery query(host.database());
    for (const auto &dependant : dependants) {
        query.prepare(QLatin1String(dependant.statement));
        query.bindValue(QStringLiteral(":defect_id"), defectId);
        if (!execLogged(query))
            return false;
        if (query.numRowsAffected() > 0)
            changedTables->append(QLatin1String(dependant.table));
    }

    // Only a defect from the site journal leaves a note that it was deleted here.
    if (siteJournalId.isNull() || siteJournalId.toLongLong() == -1)
        return true;
    const qint64 id = host.nextId(QStringLiteral("deleted_site_journal_defect"));
    if (id <= 0)
        return false;
    query.prepare(QStringLiteral("INSERT INTO deleted_site_journal_defect (id, site_journal_id, number, "
                                 "imported_report_id) VALUES (:id, :site_journal_id, :number, :imported_report_id)"));
    query.bindValue(QStringLiteral(":id"), id);
    query.bindValue(QStringLiteral(":site_journal_id"), siteJournalId);
    query.bindValue(QStringLiteral(":number"), defect.value(QStringLiteral("number")));
    query.bindValue(QStringLiteral(":imported_report_id"), defect.value(QStringLiteral("imported_report_id")));
    if (!execLogged(query))
        return false;
    changedTables->append(QStringLiteral("deleted_site_journal_defect"));
    return true;
}

bool KalDefects::isValidAuthor(const QString &text)
{
    static const QRegularExpression initials(QStringLiteral("\\A[A-Z]{0,2}\\z"));
    return initials.match(text).hasMatch();
}

QString KalDefects::rememberedAuthor()
{
    const QString initials = QSettings().value(QLatin1String(kAuthorKey)).toString().toUpper();
    return isValidAuthor(initials) ? initials : QString();
}

void KalDefects::rememberAuthor(const QString &initials)
{
    if (!initials.isEmpty() && isValidAuthor(initials))
        QSettings().setValue(QLatin1String(kAuthorKey), initials);
}
