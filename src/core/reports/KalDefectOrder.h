#pragma once

#include "core/reports/KalDefectFilterState.h"

#include <QVector>

struct KalFilteredDefect;

// The four orders of a defect list. Every order ends in a total tie-break
// (number, then id), so equal keys give the same list on every run.
class KalDefectOrder
{
public:
    // "nach Nummer": numbers compare as numbers ("9" before "10"); a text
    // part after the digits decides between equal numbers, numbers without
    // digits come after all others.
    // "nach Firmenname": names compared case-insensitively; ascending puts
    // defects without a company after all others, descending lets the empty
    // name be the smallest text (so also last); equal names: earlier
    // creation date first.
    // "nach Erfassungsdatum" / "nach Frist" (the deadline in force): defects
    // without the date come last either way.
    static void sort(QVector<KalFilteredDefect> &defects, KalDefectFilterState::Sort by, bool ascending);

    // Negative, zero or positive as `a` sorts before, with or after `b` by number.
    static int compareNumbers(const QString &a, const QString &b);
};
