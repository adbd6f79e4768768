#pragma once

#include "core/plans/KalPlanTransform.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QTransform>
#include <QVector>

// Moves markers and texts onto a new version of a plan whose drawing was
// shifted, turned or scaled: the user points at the same spots on the old
// and the new picture, two pairs give a similarity (shift, turn, uniform
// scale), three an affine map.
class KalPlanReference
{
    Q_DECLARE_TR_FUNCTIONS(KalPlanReference)

public:
    enum Verdict { Usable, WrongCount, Coincident, Collinear };

    struct Fit
    {
        Verdict verdict = WrongCount;
        QTransform transform; // old plan pixels to new plan pixels
    };

    // Points closer than this (plan pixels) count as the same spot, and a
    // third point this close to the line through the others as on it.
    static constexpr double tolerance = 1.0;

    // Two or three pairs, the same count on both sides.
    static Fit fit(const QVector<QPointF> &oldPoints, const QVector<QPointF> &newPoints);
    // Why a point set was refused, for the user.
    static QString refusalText(Verdict verdict);
    // The length factor of the map (the root of its area factor).
    static double scaleOf(const QTransform &transform);
    // The row's located spot (its transform point on the plan) is mapped, its
    // scale multiplied by the map's, its rotation kept.
    static KalPlanGeometry mapped(const KalPlanGeometry &geometry, const QTransform &transform);
    // The same for every marker and text of the sheet, in the caller's
    // transaction. False with a reason on a database error.
    static bool mapRows(QSqlDatabase db, qint64 planInfoId, const QTransform &transform, QString *error);
};
