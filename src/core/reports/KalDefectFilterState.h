#pragma once

#include <QDate>
#include <QString>
#include <QVariant>
#include <QVector>
#include <array>
#include <functional>

// Everything the user chose in front of a defect list: which defects, in
// which order, with which pictures. A plain value; KalDefectFilter reads and
// writes it in the project's `filter_state` table.
class KalDefectFilterState
{
public:
    // The selection lists, in the order their conditions enter the statement.
    enum List { CompanyList, StatusList, TypeList, RoomnameList, RoombookNoList, PriorityList, ListCount };
    enum Sort { SortByNumber, SortByCompany, SortByCreationDate, SortByDeadline };

    bool creationDateFilter = false;
    QDate creationDateFrom;
    QDate creationDateTo;
    bool deadlineFilter = false;
    QDate deadlineDate;
    bool defectsWithoutCompany = false;
    std::array<bool, ListCount> listFilter{};
    // Ticked entries: ids (qint64) for companies and statuses, texts otherwise.
    std::array<QVariantList, ListCount> ticked;
    bool reductionFilter = false;
    bool withReduction = true; // false: "ohne Minderung"
    Sort sort = SortByNumber;
    bool ascending = true;
    bool printPhotosInList = false;
    bool printPhotosAsAnnex = false;
    bool printPlansAsAnnex = false;

    // Nothing filtered, by number ascending, all dates `today`.
    static KalDefectFilterState defaults(const QDate &today);

    // Lists whose entries are ids; the others hold texts.
    static bool holdsIds(List list) { return list == CompanyList || list == StatusList; }

    // One row of the stored table: `value` for switches and list entries,
    // `date` for the three dates.
    struct Row
    {
        QString key;
        QVariant value;
        QVariant date;
        bool operator==(const Row &other) const;
        bool operator<(const Row &other) const;
    };
    // The rows that store this state.
    QVector<Row> rows() const;
    // Rebuilds a state from stored rows, starting from defaults(today). Rows
    // it cannot use are skipped: unknown keys, unreadable dates, list entries
    // `offered` does not accept (deleted companies, values no defect uses).
    using Offered = std::function<bool(List list, const QVariant &value)>;
    static KalDefectFilterState fromRows(const QVector<Row> &rows, const QDate &today, const Offered &offered);

    // The word that marks a switched-on box in the `value` column.
    static QString checkedWord();
    // Key of a list's "...Filter" switch and of its "...List" rows.
    static QString filterKey(List list);
    static QString listKey(List list);

    bool operator==(const KalDefectFilterState &other) const;
    bool operator!=(const KalDefectFilterState &other) const { return !(*this == other); }
};
