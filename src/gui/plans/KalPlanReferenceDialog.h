#pragma once

#include "core/plans/KalPlans.h"

#include <QDialog>
#include <QPointF>
#include <QVector>

class KalProject;
class QGraphicsItem;
class QGraphicsScene;
class QGraphicsView;
class QLabel;
class QPushButton;

// A new version of a plan whose drawing moved on the sheet: the user points
// at the same spots on the old plan (left) and on the new picture (right),
// two pairs for shift, turn and scale, three for any affine change, and sees
// the markers where they will land before anything is stored.
class KalPlanReferenceDialog : public QDialog
{
    Q_OBJECT

public:
    // The prepared, not yet stored picture of `version`.
    KalPlanReferenceDialog(KalProject *project, qint64 planInfoId, const KalPlans::Version &version,
                           QWidget *parent = nullptr);

    // Asks for the file, lets the user pick the points and stores picture
    // and moved markers together. True when stored.
    static bool loadVersion(KalProject *project, qint64 planInfoId, QWidget *parent);

    // Adds a point on the old (left) or new (right) plan, in plan pixels.
    void addPoint(bool onNewPlan, const QPointF &planPos);
    bool isUsable() const { return m_usable; }

public slots:
    void accept() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void resetPoints();
    void refresh();
    void showPreview(const QTransform &transform);

    KalProject *m_project;
    qint64 m_planInfoId;
    KalPlans::Version m_version;
    QGraphicsScene *m_oldScene;
    QGraphicsScene *m_newScene;
    QGraphicsView *m_oldView;
    QGraphicsView *m_newView;
    QLabel *m_status;
    QPushButton *m_ok;
    QVector<QPointF> m_oldPoints;
    QVector<QPointF> m_newPoints;
    QList<QGraphicsItem *> m_overlay; // point marks and preview markers
    bool m_usable = false;
    QTransform m_transform;
    double m_markSize = 10;
};
