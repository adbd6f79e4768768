#pragma once

#include <QImage>
#include <QSqlDatabase>
#include <QTransform>

class QPainter;

// A plan sheet as printed and exported: the stored picture with the markers
// and texts of the defects located on it, drawn by the shared shapes.
namespace KalPlanPainter {

// Paints the sheet's markers and texts in plan pixels. Rows of defects that
// are gone or now located elsewhere are skipped; the defect `current`
// (-1: none) is drawn in red. A `moved` map draws every row where a new
// plan version placed on reference points will put it. False with a reason
// on a database error.
bool paintItems(QPainter &painter, QSqlDatabase db, qint64 planInfoId, qint64 current, QString *error,
                const QTransform &moved = QTransform());
// The picture at its stored size with everything painted; null with a reason.
QImage render(QSqlDatabase db, qint64 planInfoId, QString *error);

} // namespace KalPlanPainter
