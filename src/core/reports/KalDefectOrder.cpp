#include "KalDefectOrder.h"

#include "core/reports/KalDefectFilter.h"

#include <QHash>
#include <algorithm>
#include <limits>

namespace {

// A defect number split for comparing: its leading digits as a value and
// whatever follows ("12a" -> 12, "a").
struct NumberKey
{
    int kind = 0; // 0: starts with digits, 1: does not
    qint64 value = 0;
    QString rest;

    explicit NumberKey(const QString &number)
    {
        const QString text = number.trimmed();
        int i = 0;
        while (i < text.size() && text.at(i).isDigit() && text.at(i).unicode() < 128) {
            const int digit = text.at(i).unicode() - '0';
            // An absurdly long number saturates instead of wrapping around.
            value = value > (std::numeric_limits<qint64>::max() - digit) / 10 ? std::numeric_limits<qint64>::max()
                                                                              : value * 10 + digit;
            ++i;
        }
        kind = i == 0 ? 1 : 0;
        rest = text.mid(i);
    }

    int compare(const NumberKey &other) const
    {
        if (kind != other.kind)
            return kind < other.kind ? -1 : 1;
        if (value != other.value)
            return value < other.value ? -1 : 1;
        return rest.compare(other.rest);
    }
};

struct SortKey
{
    int group = 0; // defects without the sorted value go to a later group
    qint64 primary = 0;
    qint64 secondary = 0;
    int numberDirection = 1;
    NumberKey number;
    qint64 id = 0;
    int index = 0;

    explicit SortKey(const QString &n)
        : number(n)
    {
    }

    bool operator<(const SortKey &o) const
    {
        if (group != o.group)
            return group < o.group;
        if (primary != o.primary)
            return primary < o.primary;
        if (secondary != o.secondary)
            return secondary < o.secondary;
        const int byNumber = number.compare(o.number) * numberDirection;
        if (byNumber != 0)
            return byNumber < 0;
        return id < o.id;
    }
};

// Day number with "no date" after every real one.
qint64 dayOrLast(const QDate &date)
{
    return date.isValid() ? date.toJulianDay() : std::numeric_limits<qint64>::max();
}

// Rank of each lowered company name; few companies, many defects: names are
// compared once per company, not once per pair of defects.
QHash<QString, qint64> nameRanks(const QVector<KalFilteredDefect> &defects)
{
    QHash<QString, qint64> ranks;
    for (const KalFilteredDefect &d : defects)
        ranks.insert(d.companyName.toLower(), 0);
    QStringList names = ranks.keys();
    std::sort(names.begin(), names.end());
    for (int i = 0; i < names.size(); ++i)
        ranks[names.at(i)] = i;
    return ranks;
}

} // namespace

int KalDefectOrder::compareNumbers(const QString &a, const QString &b)
{
    return NumberKey(a).compare(NumberKey(b));
}

void KalDefectOrder::sort(QVector<KalFilteredDefect> &defects, KalDefectFilterState::Sort by, bool ascending)
{
    const int direction = ascending ? 1 : -1;
    QHash<QString, qint64> ranks;
    if (by == KalDefectFilterState::SortByCompany)
        ranks = nameRanks(defects);

    std::vector<SortKey> keys;
    keys.reserve(size_t(defects.size()));
    for (int i = 0; i < defects.size(); ++i) {
        const KalFilteredDefect &d = defects.at(i);
        SortKey key(d.number);
        key.id = d.id;
        key.index = i;
        switch (by) {
        case KalDefectFilterState::SortByNumber:
            key.numberDirection = direction;
            break;
        case KalDefectFilterState::SortByCompany: {
            const QString lower = d.companyName.toLower();
            key.group = ascending && lower.isEmpty() ? 1 : 0;
            key.primary = ranks.value(lower) * direction;
            key.secondary = dayOrLast(d.creationDate);
            break;
        }
        case KalDefectFilterState::SortByCreationDate:
        case KalDefectFilterState::SortByDeadline: {
            const QDate date = by == KalDefectFilterState::SortByDeadline ? d.currentDeadline() : d.creationDate;
            key.group = date.isValid() ? 0 : 1;
            key.primary = date.isValid() ? date.toJulianDay() * direction : 0;
            break;
        }
        }
        keys.push_back(std::move(key));
    }
    std::sort(keys.begin(), keys.end());
    QVector<KalFilteredDefect> sorted;
    sorted.reserve(defects.size());
    for (const SortKey &key : keys)
        sorted.append(defects.at(key.index));
    defects.swap(sorted);
}
