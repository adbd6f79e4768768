#include "KalDefectFilterState.h"

#include <QSet>

#include <tuple>

namespace {

// The stored vocabulary, spelled as files written by every version expect
// (the missing "t" in the without-company key included).
const char *const FilterKeys[KalDefectFilterState::ListCount] = {
    "CompanyFilter", "StatusFilter", "TypeFilter", "RoomnameFilter", "RoombookNoFilter", "PriorityFilter"};
const char *const ListKeys[KalDefectFilterState::ListCount] = {"CompanyList",  "StatusList",     "TypeList",
                                                               "RoomnameList", "RoombookNoList", "PriorityList"};

// Plain on/off boxes outside the lists.
struct Switch
{
    const char *key;
    bool KalDefectFilterState::*member;
};
const Switch Switches[] = {
    {"CreationDateFilter", &KalDefectFilterState::creationDateFilter},
    {"DeadlineFilter", &KalDefectFilterState::deadlineFilter},
    {"DefectsWithouCompanyFilter", &KalDefectFilterState::defectsWithoutCompany},
    {"ReductionKey", &KalDefectFilterState::reductionFilter},
    {"PrintPhotosInList", &KalDefectFilterState::printPhotosInList},
    {"PrintPhotosAsAnnex", &KalDefectFilterState::printPhotosAsAnnex},
    {"PrintPlansAsAnnex", &KalDefectFilterState::printPlansAsAnnex},
};

const char *const SortKeys[] = {"SortByNumber", "SortByCompany", "SortByCreationDate", "SortByDeadline"};

struct DateField
{
    const char *key;
    QDate KalDefectFilterState::*member;
};
const DateField Dates[] = {
    {"CreationDateFrom", &KalDefectFilterState::creationDateFrom},
    {"CreationDateTo", &KalDefectFilterState::creationDateTo},
    {"DeadlineDate", &KalDefectFilterState::deadlineDate},
};

QString key(const char *text)
{
    return QString::fromLatin1(text);
}

QVariant switchValue(bool on)
{
    // An off box keeps its row with an empty value: readers treat it like a
    // missing row, and no reader can mistake it for the word that means on.
    return on ? KalDefectFilterState::checkedWord() : QString(QLatin1String(""));
}

// Dates are stored as ISO text; a date-time written by another tool counts
// with its date part. Anything else is unusable.
QDate parseDate(const QVariant &value)
{
    if (value.userType() == QMetaType::QDate)
        return value.toDate();
    const QString text = value.toString().trimmed();
    QDate date = QDate::fromString(text, Qt::ISODate);
    if (!date.isValid() && text.size() > 10 && (text.at(10) == QLatin1Char('T') || text.at(10) == QLatin1Char(' ')))
        date = QDate::fromString(text.left(10), Qt::ISODate);
    return date;
}

QVariant listValue(KalDefectFilterState::List list, const QVariant &stored, bool *ok)
{
    if (!KalDefectFilterState::holdsIds(list)) {
        *ok = !stored.isNull();
        return stored.toString();
    }
    const qint64 id = stored.toString().trimmed().toLongLong(ok);
    return id;
}

} // namespace

QString KalDefectFilterState::checkedWord()
{
    return QStringLiteral("checked");
}

QString KalDefectFilterState::filterKey(List list)
{
    return key(FilterKeys[list]);
}

QString KalDefectFilterState::listKey(List list)
{
    return key(ListKeys[list]);
}

KalDefectFilterState KalDefectFilterState::defaults(const QDate &today)
{
    KalDefectFilterState state;
    state.creationDateFrom = today;
    state.creationDateTo = today;
    state.deadlineDate = today;
    return state;
}

bool KalDefectFilterState::Row::operator==(const Row &other) const
{
    return key == other.key && value.toString() == other.value.toString() && value.isNull() == other.value.isNull() &&
           date.toString() == other.date.toString() && date.isNull() == other.date.isNull();
}

bool KalDefectFilterState::Row::operator<(const Row &other) const
{
    return std::make_tuple(key, value.toString(), date.toString()) <
           std::make_tuple(other.key, other.value.toString(), other.date.toString());
}

QVector<KalDefectFilterState::Row> KalDefectFilterState::rows() const
{
    QVector<Row> out;
    for (const DateField &d : Dates)
        out.append({key(d.key), QVariant(), (this->*d.member).toString(Qt::ISODate)});
    for (const Switch &s : Switches)
        out.append({key(s.key), switchValue(this->*s.member), QVariant()});
    for (int l = 0; l < ListCount; ++l)
        out.append({key(FilterKeys[l]), switchValue(listFilter[l]), QVariant()});
    out.append({QStringLiteral("WithReductionKey"), switchValue(withReduction), QVariant()});
    out.append({QStringLiteral("WithoutReductionKey"), switchValue(!withReduction), QVariant()});
    for (int s = 0; s < 4; ++s)
        out.append({key(SortKeys[s]), switchValue(sort == s), QVariant()});
    out.append({QStringLiteral("SortAsc"), switchValue(ascending), QVariant()});
    out.append({QStringLiteral("SortDesc"), switchValue(!ascending), QVariant()});
    for (int l = 0; l < ListCount; ++l) {
        for (const QVariant &v : ticked[l])
            out.append(
                {key(ListKeys[l]), holdsIds(List(l)) ? QString::number(v.toLongLong()) : v.toString(), QVariant()});
    }
    return out;
}

KalDefectFilterState KalDefectFilterState::fromRows(const QVector<Row> &rows, const QDate &today,
                                                    const Offered &offered)
{
    KalDefectFilterState state = defaults(today);
    // One pass over the rows: a file may hold any number of them.
    QSet<QString> switchedOn;
    for (const Row &r : rows) {
        if (r.value.toString() == checkedWord())
            switchedOn.insert(r.key);
        for (const DateField &d : Dates) {
            const QDate date = r.key == key(d.key) ? parseDate(r.date) : QDate();
            if (date.isValid())
                state.*d.member = date;
        }
    }
    auto isOn = [&switchedOn](const QString &k) { return switchedOn.contains(k); };
    for (const Switch &s : Switches)
        state.*s.member = isOn(key(s.key));
    for (int l = 0; l < ListCount; ++l) {
        state.listFilter[l] = isOn(key(FilterKeys[l]));
        QSet<QString> seen; // a file may repeat an entry any number of times
        for (const Row &r : rows) {
            bool ok = false;
            const QVariant v = r.key == key(ListKeys[l]) ? listValue(List(l), r.value, &ok) : QVariant();
            if (ok && !seen.contains(v.toString()) && (!offered || offered(List(l), v))) {
                seen.insert(v.toString());
                state.ticked[l].append(v);
            }
        }
    }
    // Radio groups: an unreadable or missing choice keeps the default.
    if (isOn(QStringLiteral("WithoutReductionKey")) && !isOn(QStringLiteral("WithReductionKey")))
        state.withReduction = false;
    for (int s = 3; s >= 0; --s) {
        if (isOn(key(SortKeys[s])))
            state.sort = Sort(s);
    }
    if (isOn(QStringLiteral("SortDesc")) && !isOn(QStringLiteral("SortAsc")))
        state.ascending = false;
    return state;
}

bool KalDefectFilterState::operator==(const KalDefectFilterState &other) const
{
    return creationDateFilter == other.creationDateFilter && creationDateFrom == other.creationDateFrom &&
           creationDateTo == other.creationDateTo && deadlineFilter == other.deadlineFilter &&
           deadlineDate == other.deadlineDate && defectsWithoutCompany == other.defectsWithoutCompany &&
           listFilter == other.listFilter && ticked == other.ticked && reductionFilter == other.reductionFilter &&
           withReduction == other.withReduction && sort == other.sort && ascending == other.ascending &&
           printPhotosInList == other.printPhotosInList && printPhotosAsAnnex == other.printPhotosAsAnnex &&
           printPlansAsAnnex == other.printPlansAsAnnex;
}
