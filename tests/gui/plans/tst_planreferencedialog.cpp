// Picking reference points: OK only for a usable point set, and OK stores
// the new picture with the markers moved.
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "gui/plans/KalPlanReferenceDialog.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QDialogButtonBox>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>
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
        m_project.insert("marker_text", {{"pos_x", 20.0},
                                         {"pos_y", 200.0},
                                         {"scale_factor", 1.0},
                                         {"text", "XXXX"},
                                         {"color", "#000000"},
                                         {"font_family", "Arial"},
                                         {"font_size", 20},
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

    // The new plan is shifted 50 px to the right: the preview draws marker
    // and text there, not at their old spots.
    void previewShowsMovedMarkerAndText_data()
    {
        QTest::addColumn<QRect>("oldSpot");
        QTest::addColumn<QRect>("newSpot");
        QTest::newRow("target marker at (256, 256)") << QRect(250, 250, 12, 12) << QRect(300, 250, 12, 12);
        QTest::newRow("text at (20, 200)") << QRect(22, 204, 30, 16) << QRect(72, 204, 30, 16);
    }
    void previewShowsMovedMarkerAndText()
    {
        QFETCH(QRect, oldSpot);
        QFETCH(QRect, newSpot);
        KalPlanReferenceDialog dialog(m_project.project(), m_sheet, m_version);
        for (const QPointF &p : Points{{0, 0}, {100, 0}, {0, 100}})
            dialog.addPoint(false, p);
        for (const QPointF &p : Points{{50, 0}, {150, 0}, {50, 100}})
            dialog.addPoint(true, p);
        QImage preview(400, 300, QImage::Format_RGB32);
        preview.fill(Qt::white);
        {
            QPainter painter(&preview);
            dialog.findChild<QGraphicsView *>("gvNewPlan")
                ->scene()
                ->render(&painter, preview.rect(), QRectF(0, 0, 400, 300));
        }
        auto drawn = [&preview](const QRect &area) {
            int count = 0;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x)
                    count += preview.pixel(x, y) != qRgb(255, 255, 255);
            }
            return count;
        };
        QVERIFY(drawn(newSpot) > 10);
        QCOMPARE(drawn(oldSpot), 0);
        dialog.accept();
        QCOMPARE(m_project.field("marker", m_marker, "pos_x").toDouble(), 50.0);
        QCOMPARE(m_project.field("marker", m_marker, "pos_y").toDouble(), 0.0);
    }
};

KAL_WIDGET_TEST_MAIN(TstPlanReferenceDialog)
#include "tst_planreferencedialog.moc"
