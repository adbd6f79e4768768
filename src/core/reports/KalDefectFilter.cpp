#include "KalDefectFilter.h"

#include "core/project/KalCompanyFormat.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalLog.h"
#include "core/project/KalModelHost.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlError.h"
#include "core/reports/KalDefectOrder.h"

#include <QElapsedTimer>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <algorithm>

using State = KalDefectFilterState;

namespace {

struct ListSource
{
    const char *sql;
    const char *column;       // of `defect`, for the IN condition
    const char *emptyMessage; // line of the "switched on without a choice" warning
};

const ListSource Sources[State::ListCount] = {
    {"SELECT DISTINCT company.id, company.type, company.company FROM defect, company "
     "ON company.id=defect.company_id ORDER BY company.company ASC",
     "company_id", QT_TRANSLATE_NOOP("KalDefectFilter", "Nach Firma\n")},
    {"SELECT DISTINCT status.id, status.status FROM defect, status ON status.id=defect.status_id "
     "ORDER BY status.id ASC",
     "status_id", QT_TRANSLATE_NOOP("KalDefectFilter", "Nach Status\n")},
    {"SELECT DISTINCT type from defect ORDER BY type ASC", "type", QT_TRANSLATE_NOOP("KalDefectFilter", "Nach Typ\n")},
    {"SELECT DISTINCT roomname from defect ORDER BY roomname ASC", "roomname",
     QT_TRANSLATE_NOOP("KalDefectFilter", "Nach Raum\n")},
    {"SELECT DISTINCT roombook_number from defect ORDER BY roombook_number ASC", "roombook_number",
     QT_TRANSLATE_NOOP("KalDefectFilter", "Nach Raumbuch-Nr.\n")},
    {"SELECT DISTINCT priority from defect ORDER BY priority ASC", "priority",
     QT_TRANSLATE_NOOP("KalDefectFilter", "Nach Priorität\n")},
};

// The " IN (%1)" list of the ticked entries. Texts are quoted as SQL quotes
// them, so a name with an apostrophe selects itself instead of breaking (or
// rewriting) the statement.
QString inList(State::List list, const QVariantList &ticked)
{
    QString out;
    for (const QVariant &v : ticked) {
        if (State::holdsIds(list)) {
            out += QString::number(v.toLongLong());
        } else {
            QString text = v.toString();
            text.replace(QLatin1Char('\''), QLatin1String("''"));
            out += QLatin1Char('\'') + text + QLatin1Char('\'');
        }
        out += QLatin1Char(',');
    }
    out.chop(1);
    return out;
}

// The company condition, or empty when none applies.
QString companyCondition(const State &state, QString *emptyLists)
{
    const bool byCompany = state.listFilter[State::CompanyList];
    const bool hasCompanies = !state.ticked[State::CompanyList].isEmpty();
    const QString without = QStringLiteral("company_id=0 OR company_id is null");
    if (byCompany && !hasCompanies && !state.defectsWithoutCompany) {
        *emptyLists += QCoreApplication::translate("KalDefectFilter", Sources[State::CompanyList].emptyMessage);
        return QString();
    }
    const QString in =
        QStringLiteral("company_id IN (%1)").arg(inList(State::CompanyList, state.ticked[State::CompanyList]));
    if (byCompany && hasCompanies)
        return state.defectsWithoutCompany ? QStringLiteral("(%1 OR %2)").arg(in, without) : in;
    return state.defectsWithoutCompany ? without : QString();
}

// Value of `count` ASCII digits at `from`, -1 when one is not a digit.
int digits(const QChar *text, int count)
{
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const ushort c = text[i].unicode();
        if (c < '0' || c > '9')
            return -1;
        value = value * 10 + (c - '0');
    }
    return value;
}

QDate isoDate(const QVariant &value)
{
    // Dates are stored as "yyyy-MM-dd" (another tool may add a time). The
    // general parsers cost more than the query itself on long lists.
    if (value.isNull())
        return QDate();
    const QString text = value.toString();
    const QChar *c = text.constData();
    const bool timeFollows = text.size() > 10 && (c[10] == QLatin1Char('T') || c[10] == QLatin1Char(' '));
    if ((text.size() != 10 && !timeFollows) || c[4] != QLatin1Char('-') || c[7] != QLatin1Char('-'))
        return QDate();
    const int y = digits(c, 4);
    const int m = digits(c + 5, 2);
    const int d = digits(c + 8, 2);
    return y >= 0 && m >= 0 && d >= 0 ? QDate(y, m, d) : QDate();
}

bool exec(QSqlQuery &q, const QString &function)
{
    if (q.exec())
        return true;
    kalReportSqlError(q.lastError(), QStringLiteral("KalDefectFilter"), function, __LINE__);
    return false;
}

} // namespace

QDate KalFilteredDefect::currentDeadline() const
{
    if (deadline2.isValid())
        return deadline2;
    return deadline1.isValid() ? deadline1 : correctionDate;
}

QVector<qint64> KalDefectFilterResult::ids() const
{
    QVector<qint64> out;
    out.reserve(defects.size());
    for (const KalFilteredDefect &d : defects)
        out.append(d.id);
    return out;
}

KalDefectFilter::KalDefectFilter(KalModelHost &host)
    : m_host(host)
{
}

QString KalDefectFilter::title()
{
    return tr("Datenauswahl zur Mängelliste");
}

QString KalDefectFilter::iconPath()
{
    return QStringLiteral(":/KalMainWindow/Resources/icon-liste-drucken.ico");
}

QVector<KalDefectFilter::Item> KalDefectFilter::values(State::List list) const
{
    static const char *const functions[State::ListCount] = {"populateCompanyModel",    "populateStatusModel",
                                                            "populateTypeModel",       "populateRoomNameModel",
                                                            "populateRoomBookNoModel", "populatePriorityModel"};
    QVector<Item> items;
    QSqlQuery q(m_host.database());
    q.setForwardOnly(true);
    if (!q.prepare(QString::fromLatin1(Sources[list].sql)) || !q.exec()) {
        kalReportSqlError(q.lastError(), QStringLiteral("KalDefectFilter"), QString::fromLatin1(functions[list]),
                          __LINE__);
        return items;
    }
    const KalCompanyFormat companyFormat = KalCompanyFormat::factoryDefaults();
    while (q.next()) {
        // A NULL cannot be matched by IN: offering it would select nothing.
        if (q.value(0).isNull())
            continue;
        if (list == State::CompanyList)
            items.append({q.value(0).toLongLong(), companyFormat.text(q.record(), QStringLiteral(" "))});
        else if (list == State::StatusList)
            items.append({q.value(0).toLongLong(), q.value(1).toString()});
        else
            items.append({q.value(0).toString(), q.value(0).toString()});
    }
    return items;
}

KalDefectFilterState KalDefectFilter::restore() const
{
    const QDate today = KalEnvironment::now().date();
    QSqlQuery q(m_host.database());
    q.setForwardOnly(true);
    if (!q.exec(QStringLiteral("SELECT key, value, date FROM filter_state"))) {
        KAL_REPORT_SQL_ERROR(q.lastError(), "KalDefectFilter", "restoreFilterStates");
        return State::defaults(today);
    }
    QVector<State::Row> rows;
    while (q.next())
        rows.append({q.value(0).toString(), q.value(1), q.value(2)});

    // Only entries the lists still offer come back ticked.
    std::array<QSet<QString>, State::ListCount> offered;
    std::array<bool, State::ListCount> loaded{};
    auto accepts = [&](State::List list, const QVariant &value) {
        if (!loaded[list]) {
            for (const Item &item : values(list))
                offered[list].insert(item.value.toString());
            loaded[list] = true;
        }
        return offered[list].contains(value.toString());
    };
    return State::fromRows(rows, today, accepts);
}

bool KalDefectFilter::save(const State &state)
{
    QVector<State::Row> rows = state.rows();
    QVector<State::Row> stored;
    QSqlQuery read(m_host.database());
    if (read.exec(QStringLiteral("SELECT key, value, date FROM filter_state"))) {
        while (read.next())
            stored.append({read.value(0).toString(), read.value(1), read.value(2)});
    }
    QVector<State::Row> sortedRows = rows;
    std::sort(sortedRows.begin(), sortedRows.end());
    std::sort(stored.begin(), stored.end());
    if (sortedRows == stored)
        return true;

    QElapsedTimer timer;
    timer.start();
    if (!m_host.beginTransaction()) {
        KAL_REPORT_SQL_ERROR(m_host.database().lastError(), "KalDefectFilter", "saveFilterStates");
        return false;
    }
    QSqlQuery q(m_host.database());
    auto fail = [&](const QString &function) {
        const QSqlError error = q.lastError();
        m_host.rollbackTransaction();
        kalReportSqlError(error, QStringLiteral("KalDefectFilter"), function, __LINE__);
        return false;
    };
    if (!q.exec(QStringLiteral("DELETE FROM filter_state")))
        return fail(QStringLiteral("saveFilterStates"));
    for (const State::Row &row : rows) {
        const bool isDate = !row.date.isNull();
        const bool isList = row.key.endsWith(QLatin1String("List"));
        q.prepare(isDate ? QStringLiteral("INSERT INTO filter_state (key, date) VALUES (:key, :date)")
                         : QStringLiteral("INSERT INTO filter_state (key, value) VALUES (:key, :value)"));
        q.bindValue(QStringLiteral(":key"), row.key);
        q.bindValue(isDate ? QStringLiteral(":date") : QStringLiteral(":value"), isDate ? row.date : row.value);
        if (!q.exec())
            return fail(isDate   ? QStringLiteral("saveFilterStates")
                        : isList ? QStringLiteral("saveFilterListSelection")
                                 : QStringLiteral("saveSelectedFilter"));
    }
    if (!m_host.commitTransaction())
        return fail(QStringLiteral("saveFilterStates"));
    qCDebug(kalSqlLog, "Time elapsed: %d ms", int(timer.elapsed()));
    m_host.markModified();
    return true;
}

QString KalDefectFilter::statement(const State &state, QString *emptyLists)
{
    QString unused;
    QString &empty = emptyLists ? *emptyLists : unused;
    QStringList conditions;
    if (state.creationDateFilter)
        conditions << QStringLiteral("creation_date BETWEEN :fromDate AND :toDate");
    if (state.deadlineFilter)
        conditions << QStringLiteral(
            "(correction_date is not null OR deadline_1 is not null OR deadline_2 is not null) AND "
            "NOT(correction_date is not null AND correction_date > :deadlineDate OR deadline_1 is not null AND "
            "deadline_1 > :deadlineDate OR deadline_2 is not null AND deadline_2 > :deadlineDate)");
    conditions << companyCondition(state, &empty);
    for (int l = State::StatusList; l < State::ListCount; ++l) {
        if (!state.listFilter[l])
            continue;
        if (state.ticked[l].isEmpty())
            empty += QCoreApplication::translate("KalDefectFilter", Sources[l].emptyMessage);
        else
            conditions << QString::fromLatin1(Sources[l].column) +
                              QStringLiteral(" IN (%1)").arg(inList(State::List(l), state.ticked[l]));
    }
    if (state.reductionFilter)
        conditions << QStringLiteral("reduction=%1").arg(state.withReduction ? 1 : 0);
    conditions.removeAll(QString());

    QString sql = QStringLiteral("SELECT id, number, company_id, correction_date, deadline_1, deadline_2, image_cnt, "
                                 "creation_date FROM defect");
    // Each condition in its own parentheses: an OR inside one must never
    // let a defect past the others.
    for (int i = 0; i < conditions.size(); ++i)
        sql += (i == 0 ? QStringLiteral(" WHERE (") : QStringLiteral(" AND (")) + conditions.at(i) + QLatin1Char(')');
    if (state.sort == State::SortByCreationDate)
        sql += QStringLiteral(" ORDER BY creation_date") +
               (state.ascending ? QStringLiteral(" ASC") : QStringLiteral(" DESC"));
    return sql;
}

QHash<qint64, QString> KalDefectFilter::companyNames() const
{
    QHash<qint64, QString> names;
    QSqlQuery q(m_host.database());
    q.setForwardOnly(true);
    if (!q.exec(QStringLiteral("SELECT id, company FROM company"))) {
        KAL_REPORT_SQL_ERROR(q.lastError(), "KalDefectFilter", "filterDefectRecords");
        return names;
    }
    while (q.next())
        names.insert(q.value(0).toLongLong(), q.value(1).toString());
    return names;
}

KalDefectFilterResult KalDefectFilter::select(const State &state) const
{
    KalDefectFilterResult result;
    if (state.creationDateFilter && state.creationDateFrom > state.creationDateTo) {
        KalPrompt::Message m;
        m.icon = KalPrompt::Warning;
        m.title = tr("Fehleingabe bei der Datenauswahl der Mängelliste");
        m.text = tr("Fehler bei den Erfassungsdaten:\n Das Von-Datum muss vor dem Bis-Datum liegen.");
        m.iconPath = iconPath();
        KalPrompt::ask(m);
        result.outcome = KalDefectFilterResult::ReversedDates;
        return result;
    }
    QString emptyLists;
    const QString sql = statement(state, &emptyLists);
    if (!emptyLists.isEmpty()) {
        KalPrompt::warning(title(),
                           tr("Sie haben folgende Filter eingeschaltet ohne eine Auswahl zu treffen:\n") + emptyLists);
        result.outcome = KalDefectFilterResult::EmptyLists;
        return result;
    }

    QSqlQuery q(m_host.database());
    q.setForwardOnly(true);
    if (!q.prepare(sql)) {
        KAL_REPORT_SQL_ERROR(q.lastError(), "KalDefectFilter", "filterDefectRecords");
        return result;
    }
    if (state.creationDateFilter) {
        q.bindValue(QStringLiteral(":fromDate"), state.creationDateFrom.toString(Qt::ISODate));
        q.bindValue(QStringLiteral(":toDate"), state.creationDateTo.toString(Qt::ISODate));
    }
    if (state.deadlineFilter)
        q.bindValue(QStringLiteral(":deadlineDate"), state.deadlineDate.toString(Qt::ISODate));
    if (!exec(q, QStringLiteral("filterDefectRecords")))
        return result;

    const QHash<qint64, QString> names = companyNames();
    while (q.next()) {
        KalFilteredDefect d;
        d.id = q.value(0).toLongLong();
        d.number = q.value(1).toString();
        d.companyId = q.value(2).toLongLong();
        d.companyName = names.value(d.companyId);
        d.correctionDate = isoDate(q.value(3));
        d.deadline1 = isoDate(q.value(4));
        d.deadline2 = isoDate(q.value(5));
        d.imageCount = q.value(6).toInt();
        d.creationDate = isoDate(q.value(7));
        result.defects.append(std::move(d));
    }
    if (result.defects.isEmpty()) {
        KalPrompt::information(title(), tr("Die Liste der ausgewählten Mängel ist leer, da kein Mangel die "
                                           "eingestellten Auswahlkriterien erfüllt."));
        result.outcome = KalDefectFilterResult::NoMatch;
        return result;
    }
    sort(result.defects, state.sort, state.ascending);
    result.outcome = KalDefectFilterResult::Listed;
    return result;
}

void KalDefectFilter::sort(QVector<KalFilteredDefect> &defects, State::Sort by, bool ascending)
{
    KalDefectOrder::sort(defects, by, ascending);
}

bool KalDefectFilter::warnIfReversed(const QDate &from, const QDate &to)
{
    if (!(from > to))
        return false;
    KalPrompt::warning(title(), tr("Beachten Sie, dass das Von-Datum vor dem Bis-Datum liegen muss."));
    return true;
}
