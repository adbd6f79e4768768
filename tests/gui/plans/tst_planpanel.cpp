#include "core/plans/KalMarkerShapes.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "gui/plans/KalPlanPanel.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QGraphicsView>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

class TstPlanPanel : public QObject
{
    Q_OBJECT

    KalTestProject m_project;
    QTemporaryDir m_dir;

    qint64 importPlan(const QString &name, const QSize &size)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::white);
        const QString path = m_dir.filePath(name);
        if (!picture.save(path, "PNG"))
            return -1;
        return KalPlans(m_project.project()).addFile(path);
    }

    qint64 locatedDefect(int number, qint64 planInfoId, const QPointF &pos)
    {
        const qint64 defect = m_project.addDefect({{"number", number}});
        QString error;
        if (planInfoId < 0 || !KalPlans(m_project.project()).assign(defect, planInfoId, &error))
            return defect;
        m_project.insert("marker", {{"type", 1},
                                    {"pos_x", pos.x()},
                                    {"pos_y", pos.y()},
                                    {"scale_factor", 0.2},
                                    {"rotation_angle", 0.0},
                                    {"color1", "#ffff00"},
                                    {"color2", "#000000"},
                                    {"linewidth", 4.0},
                                    {"transform_point_x", 0.0},
                                    {"transform_point_y", 0.0},
                                    {"plan_info_id", planInfoId},
                                    {"defect_id", defect}});
        return defect;
    }

    // Red pixels of the panel's scene where a marker at `pos` is drawn.
    static int redAround(KalPlanPanel &panel, const QPointF &pos)
    {
        QGraphicsScene *scene = panel.findChild<QGraphicsView *>("gvPlan")->scene();
        QImage image(scene->sceneRect().size().toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            scene->render(&painter, image.rect(), scene->sceneRect());
        }
        const QRectF body = KalMarkerShapes::paths(1).body.boundingRect();
        const QRect area = QRectF(pos + body.topLeft() * 0.2, body.size() * 0.2).toAlignedRect().adjusted(-4, -4, 4, 4);
        int red = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                const QColor c = image.pixelColor(x, y);
                red += c.red() > 200 && c.green() < 80 && c.blue() < 80;
            }
        }
        return red;
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void init()
    {
        QVERIFY(m_project.open());
        QSettings().setValue("Plans/Plansize", 2000);
    }
    void cleanup() { m_project.close(); }

    void switchingDefectsOnOnePlanDecodesOnce()
    {
        const qint64 plan = importPlan("EG.png", QSize(1200, 800));
        const qint64 other = importPlan("OG.png", QSize(600, 400));
        const QPointF posA(300, 300), posB(800, 500);
        const qint64 a = locatedDefect(1, plan, posA);
        const qint64 b = locatedDefect(2, plan, posB);
        const qint64 free = locatedDefect(3, -1, {});
        const qint64 elsewhere = locatedDefect(4, other, posA);

        KalPlanPanel panel;
        panel.resize(400, 300);
        const struct
        {
            qint64 defect;
            qint64 shownPlan;
            int decodes;
        } steps[] = {{a, plan, 1}, {b, plan, 1}, {free, -1, 1}, {a, plan, 1}, {elsewhere, other, 2}, {b, plan, 3}};
        for (const auto &step : steps) {
            panel.showDefect(m_project.project(), step.defect);
            QCOMPARE(panel.shownPlanInfoId(), step.shownPlan);
            QCOMPARE(panel.decodeCount(), step.decodes);
        }
        // The current defect's marker is outlined in red, the other's not.
        QCOMPARE(redAround(panel, posA), 0);
        QVERIFY(redAround(panel, posB) > 20);
        panel.showDefect(m_project.project(), a);
        QVERIFY(redAround(panel, posA) > 20);
        QCOMPARE(redAround(panel, posB), 0);

        // A new version of the shown plan is decoded anew.
        QImage next(QSize(600, 400), QImage::Format_RGB32);
        next.fill(Qt::lightGray);
        const QString path = m_dir.filePath("EG v2.png");
        QVERIFY(next.save(path, "PNG"));
        QVERIFY(KalPlans(m_project.project()).newVersion(plan, path));
        panel.refresh();
        QCOMPARE(panel.decodeCount(), 4);
        QCOMPARE(panel.findChild<QGraphicsView *>("gvPlan")->scene()->sceneRect().size(), QSizeF(600, 400));
    }
};

KAL_WIDGET_TEST_MAIN(TstPlanPanel)
#include "tst_planpanel.moc"
