#include "KalDefectOrder.h"

#include "core/reports/KalDefectFilter.h"

#include <QHash>
#include <algorithm>
#include <limits>
#include <tuple>
#include <vector>

namespace {

// Everything an order compares, as plain numbers: cheap to move and compare
// for long lists. A defect number counts by its leading digits ("12a" ->
// 12), then by the text after them (kept aside, rarely needed); the id
// settles the rest.
struct SortKey
{
    // Group (defects without the sorted value go to a later one), primary and
    // secondary value in one word; see setOrder().
    quint64 order = 0;
    int numberKind = 0; // 0: starts with digits, 1: does not
    qint64 numberValue = 0;
    int numberDirection = 1;
    qint64 id = 0;
    int index = 0;

    // group 0 or 1; |primary| < 2^30 (company ranks, day numbers of any
    // date a text can hold); 0 <= secondary, clamped below 2^31.
    void setOrder(int group, qint64 primary, qint64 secondary)
    {
        const qint64 limit = (qint64(1) << 31) - 1;
        order = (quint64(group) << 62) | (quint64(primary + (qint64(1) << 30)) << 31) | quint64(qMin(secondary, limit));
    }

    // Returns the text after the leading digits.
    QString setNumber(const QString &number, int direction)
    {
        const QString text = number.trimmed();
        int i = 0;
        qint64 value = 0;
        while (i < text.size() && text.at(i).unicode() >= '0' && text.at(i).unicode() <= '9') {
            const int digit = text.at(i).unicode() - '0';
            // An absurdly long number saturates instead of wrapping around.
            value = value > (std::numeric_limits<qint64>::max() - digit) / 10 ? std::numeric_limits<qint64>::max()
                                                                              : value * 10 + digit;
            ++i;
        }
        numberKind = (i == 0 ? 1 : 0) * direction;
        numberValue = value * direction;
        numberDirection = direction;
        return i < text.size() ? text.mid(i) : QString();
    }

    // -1, 0, 1 by everything but the text after the digits and the id.
    int compareNumbers(const SortKey &o) const
    {
        const auto mine = std::tie(order, numberKind, numberValue);
        const auto theirs = std::tie(o.order, o.numberKind, o.numberValue);
        return mine < theirs ? -1 : theirs < mine ? 1 : 0;
    }
};

// Orders keys whose number texts after the digits are in `rests`.
struct KeyLess
{
    const std::vector<QString> &rests;
    bool operator()(const SortKey &a, const SortKey &b) const
    {
        const int byNumbers = a.compareNumbers(b);
        if (byNumbers != 0)
            return byNumbers < 0;
        const int byRest = rests[size_t(a.index)].compare(rests[size_t(b.index)]) * a.numberDirection;
        return byRest != 0 ? byRest < 0 : a.id < b.id;
    }
};

// Day number with "no date" after every real one.
qint64 dayOrLast(const QDate &date)
{
    return date.isValid() ? date.toJulianDay() : std::numeric_limits<qint64>::max();
}

// Rank of each company's lowered name; few companies, many defects: names
// are lowered and compared once per company, not once per defect.
QHash<qint64, qint64> nameRanks(const QVector<KalFilteredDefect> &defects)
{
    QHash<qint64, QString> lowered;
    for (const KalFilteredDefect &d : defects) {
        if (!lowered.contains(d.companyId))
            lowered.insert(d.companyId, d.companyName.toLower());
    }
    QStringList names = lowered.values();
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    QHash<qint64, qint64> ranks;
    for (auto it = lowered.constBegin(); it != lowered.constEnd(); ++it)
        ranks.insert(it.key(), std::lower_bound(names.begin(), names.end(), it.value()) - names.begin());
    return ranks;
}

} // namespace

int KalDefectOrder::compareNumbers(const QString &a, const QString &b)
{
    SortKey first;
    SortKey second;
    second.index = 1;
    const std::vector<QString> rests{first.setNumber(a, 1), second.setNumber(b, 1)};
    const KeyLess less{rests};
    return less(first, second) ? -1 : less(second, first) ? 1 : 0;
}

void KalDefectOrder::sort(QVector<KalFilteredDefect> &defects, KalDefectFilterState::Sort by, bool ascending)
{
    const int direction = ascending ? 1 : -1;
    const QHash<qint64, qint64> ranks =
        by == KalDefectFilterState::SortByCompany ? nameRanks(defects) : QHash<qint64, qint64>();
    std::vector<SortKey> keys(size_t(defects.size()));
    std::vector<QString> rests(size_t(defects.size()));
    for (int i = 0; i < defects.size(); ++i) {
        const KalFilteredDefect &d = defects.at(i);
        SortKey &key = keys[size_t(i)];
        key.index = i;
        key.id = d.id;
        rests[size_t(i)] = key.setNumber(d.number, by == KalDefectFilterState::SortByNumber ? direction : 1);
        if (by == KalDefectFilterState::SortByCompany) {
            key.setOrder(ascending && d.companyName.isEmpty() ? 1 : 0, ranks.value(d.companyId) * direction,
                         dayOrLast(d.creationDate));
        } else if (by != KalDefectFilterState::SortByNumber) {
            const QDate date = by == KalDefectFilterState::SortByDeadline ? d.currentDeadline() : d.creationDate;
            key.setOrder(date.isValid() ? 0 : 1, date.isValid() ? date.toJulianDay() * direction : 0, 0);
        }
    }
    std::sort(keys.begin(), keys.end(), KeyLess{rests});
    QVector<KalFilteredDefect> sorted;
    sorted.reserve(defects.size());
    for (const SortKey &key : keys)
        sorted.append(std::move(defects[key.index]));
    defects.swap(sorted);
}
