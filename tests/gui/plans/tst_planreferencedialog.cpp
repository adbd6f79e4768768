// Picking reference points: OK only for a usable point set, and OK stores
// the new picture with the markers moved.
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "gui/plans/KalMarkerItem.h"
#include "gui/plans/KalPlanReferenceDialog.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QDialogButtonBox>
#include <QGraphicsScene>
#include <QImage>
#include <QPushButton>
#include <QTemporaryDir>

using Points = QVector<QPointF>;

class TstPlanReferenceDialog : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_files;
    KalTestProject m_project;
    qint64 m_sheet = -1;
    qint64 m_marker = -1;
    KalPlans::Version m_version;

private slots:
    void init()
    {
        QVERIFY(m_project.open());
        KalScriptedPrompt::install();
        QImage plan(QSize(400, 300), QImage::Format_RGB32);
        plan.fill(Qt::white);
        QVERIFY(plan.save(m_files.filePath("old.png")) && plan.save(m_files.filePath("new.png")));
        KalPlans plans(m_project.project());
        m_sheet = plans.addFile(m_files.filePath("old.png"));
        QVERIFY(m_sheet > 0);
        const qint64 defect = m_project.addDefect({{"plan_info_id", m_sheet}});
        m_marker = m_project.insert("marker", {{"type", 4},
                                               {"pos_x", 0.0},
                                               {"pos_y", 0.0},
                                               {"scale_factor", 0.1},
                                               {"transform_point_x", 256.0},
                                               {"transform_point_y", 256.0},
                                               {"plan_info_id", m_sheet},
                                               {"defect_id", defect}});
        QVERIFY(plans.loadVersion(m_files.filePath("new.png"), &m_version));
    }

    void okOnlyForUsablePoints_data()
    {
        QTest::addColumn<Points>("oldPoints");
        QTest::addColumn<Points>("newPoints");
        QTest::addColumn<bool>("usable");
        QTest::newRow("one pair") << Points{{10, 10}} << Points{{20, 20}} << false;
        QTest::newRow("pairs incomplete") << Points{{10, 10}, {100, 10}} << Points{{20, 20}} << false;
        QTest::newRow("two pairs") << Points{{10, 10}, {100, 10}} << Points{{20, 20}, {110, 20}} << true;
        QTest::newRow("three on a line") << Points{{10, 10}, {100, 10}, {200, 10}}
                                         << Points{{10, 10}, {100, 10}, {10, 100}} << false;
        QTest::newRow("same spot twice") << Points{{10, 10}, {10, 10}} << Points{{20, 20}, {110, 20}} << false;
    }
    void okOnlyForUsablePoints()
    {
        QFETCH(Points, oldPoints);
        QFETCH(Points, newPoints);
        QFETCH(bool, usable);
        KalPlanReferenceDialog dialog(m_project.project(), m_sheet, m_version);
        for (const QPointF &p : oldPoints)
            dialog.addPoint(false, p);
        for (const QPointF &p : newPoints)
            dialog.addPoint(true, p);
        QCOMPARE(dialog.isUsable(), usable);
        QCOMPARE(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled(), usable);
        dialog.accept();
        // Nothing is stored unless the points are usable.
        QCOMPARE(m_project.field("marker", m_marker, "pos_x").toDouble(), usable ? 10.0 : 0.0);
    }

    void previewShowsTheMovedMarker()
    {
        KalPlanReferenceDialog dialog(m_project.project(), m_sheet, m_version);
        for (const QPointF &p : Points{{0, 0}, {100, 0}, {0, 100}})
            dialog.addPoint(false, p);
        for (const QPointF &p : Points{{50, 0}, {150, 0}, {50, 100}})
            dialog.addPoint(true, p);
        QGraphicsScene *newScene = nullptr;
        for (QGraphicsScene *scene : dialog.findChildren<QGraphicsScene *>()) {
            for (QGraphicsItem *item : scene->items()) {
                if (item->type() == KalMarkerItem::Type) {
                    newScene = scene;
                    // Located at (256, 256) on the old plan, 50 px further right on the new one.
                    QCOMPARE(item->mapToScene(item->transformOriginPoint()), QPointF(306, 256));
                }
            }
        }
        QVERIFY(newScene);
        dialog.accept();
        QCOMPARE(m_project.field("marker", m_marker, "pos_x").toDouble(), 50.0);
        QCOMPARE(m_project.field("marker", m_marker, "pos_y").toDouble(), 0.0);
    }
};

KAL_WIDGET_TEST_MAIN(TstPlanReferenceDialog)
#include "tst_planreferencedialog.moc"
