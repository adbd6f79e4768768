#pragma once

#include "core/reports/KalDefectFilterState.h"

#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QString>
#include <QVariant>
#include <QVector>

class KalModelHost;

// One defect of a filtered list, as read for ordering and printing.
struct KalFilteredDefect
{
    qint64 id = 0;
    QString number;
    qint64 companyId = 0; // 0 also for none
    QString companyName;  // empty for none or an unknown company
    QDate creationDate;
    QDate correctionDate;
    QDate deadline1;
    QDate deadline2;
    int imageCount = 0;

    // The deadline in force: the second extension, else the first, else the
    // original one; invalid when the defect has none.
    QDate currentDeadline() const;
};

Q_DECLARE_TYPEINFO(KalFilteredDefect, Q_MOVABLE_TYPE);

struct KalDefectFilterResult
{
    enum Outcome { Listed, ReversedDates, EmptyLists, NoMatch, QueryFailed };
    Outcome outcome = QueryFailed;
    QVector<KalFilteredDefect> defects; // in print order; empty unless Listed
    QVector<qint64> ids() const;
};

// Selects and orders the defects of a printed list and keeps the user's
// choices in the project. Every refusal has been shown through KalPrompt
// when a call returns.
class KalDefectFilter
{
    Q_DECLARE_TR_FUNCTIONS(KalDefectFilter)

public:
    explicit KalDefectFilter(KalModelHost &host);

    // An entry a selection list offers: the stored value and what the user reads.
    struct Item
    {
        QVariant value;
        QString text;
    };
    // Only values some defect uses. A failed query is reported and gives an empty list.
    QVector<Item> values(KalDefectFilterState::List list) const;

    // The saved choices; defaults (today's dates) where nothing usable is stored.
    KalDefectFilterState restore() const;
    // Rewrites the saved choices when they changed and marks the project
    // modified then. False (reported, old rows kept) when writing failed.
    bool save(const KalDefectFilterState &state);

    // The selection statement. List filters that are on with nothing ticked
    // add no condition; their message lines are appended to `emptyLists`.
    static QString statement(const KalDefectFilterState &state, QString *emptyLists = nullptr);
    // Checks the choices, reads the matching defects and orders them.
    KalDefectFilterResult select(const KalDefectFilterState &state) const;
    static void sort(QVector<KalFilteredDefect> &defects, KalDefectFilterState::Sort by, bool ascending);

    // Shown when a creation date is left with the range reversed; true when it was.
    static bool warnIfReversed(const QDate &from, const QDate &to);

    static QString title();
    static QString iconPath();

private:
    QHash<qint64, QString> companyNames() const;

    KalModelHost &m_host;
};
