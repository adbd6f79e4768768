// Rows on a plan follow a new picture size: by hand-computed values for single
// geometries and for the rows of one sheet in a real project file.
#include "core/plans/KalPlanTransform.h"
#include "core/project/KalProject.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QtTest>
#include <cmath>

class TstPlanTransform : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_project;

    qint64 addMarker(qint64 planInfoId, double x, double y, double scale, double tx, double ty)
    {
        return m_project.insert(QStringLiteral("marker"), {{"type", 1},
                                                           {"pos_x", x},
                                                           {"pos_y", y},
                                                           {"scale_factor", scale},
                                                           {"rotation_angle", 30.0},
                                                           {"transform_point_x", tx},
                                                           {"transform_point_y", ty},
                                                           {"plan_info_id", planInfoId},
                                                           {"defect_id", 1}});
    }

private slots:
    void initTestCase() { KalTestSettings::isolate(); }
    void init() { QVERIFY(m_project.open()); }

    void rescale_data()
    {
        QTest::addColumn<QPointF>("pos");
        QTest::addColumn<QPointF>("transformPoint");
        QTest::addColumn<double>("scale");
        QTest::addColumn<double>("rx");
        QTest::addColumn<double>("ry");
        QTest::addColumn<QPointF>("newPos");
        QTest::addColumn<double>("newScale");
        const auto row = [](const char *name, QPointF pos, QPointF tp, double scale, double rx, double ry,
                            QPointF newPos, double newScale) {
            QTest::newRow(name) << pos << tp << scale << rx << ry << newPos << newScale;
        };
        const double nan = std::nan("");
        const double f = 3000.0 / 4999.0;
        row("half size", {100, 100}, {20, 20}, 1.0, 0.5, 0.5, {40, 40}, 0.5);
        row("double size", {100, 50}, {160, 512}, 0.8, 2.0, 2.0, {360, 612}, 1.6);
        row("only wider: scale kept", {100, 50}, {20, 10}, 0.8, 1.5, 1.0, {160, 50}, 0.8);
        row("only taller: scale follows", {100, 50}, {20, 10}, 0.8, 1.0, 1.5, {100, 80}, 1.2);
        row("unequal ratios: height wins", {0, 0}, {0, 0}, 1.0, 0.25, 0.5, {0, 0}, 0.5);
        row("ratio 1: a hostile row stays", {nan, 7}, {3, 3}, 2.0, 1.0, 1.0, {nan, 7}, 2.0);
        row("fraction of a 4999 px plan", {1000, 1000}, {0, 0}, 1.0, f, f, {1000.0 * f, 1000.0 * f}, f);
    }
    void rescale()
    {
        QFETCH(QPointF, pos);
        QFETCH(QPointF, transformPoint);
        QFETCH(double, scale);
        QFETCH(double, rx);
        QFETCH(double, ry);
        QFETCH(QPointF, newPos);
        QFETCH(double, newScale);
        KalPlanGeometry g;
        g.pos = pos;
        g.transformPoint = transformPoint;
        g.scale = scale;
        g.rotation = 30;
        const KalPlanGeometry r = KalPlanTransform::rescaled(g, rx, ry);
        const auto same = [](double a, double b) {
            return (std::isnan(a) && std::isnan(b)) || qFuzzyCompare(a + 1, b + 1);
        };
        QVERIFY2(same(r.pos.x(), newPos.x()), qPrintable(QString::number(r.pos.x())));
        QVERIFY2(same(r.pos.y(), newPos.y()), qPrintable(QString::number(r.pos.y())));
        QVERIFY(same(r.scale, newScale));
        QCOMPARE(r.rotation, 30.0);
        QCOMPARE(r.transformPoint, transformPoint);

        // The point the item turns about moves with the picture.
        if (rx == ry && KalPlanTransform::isDrawable(g)) {
            const QPointF anchor = KalPlanTransform::toPlan(g).map(transformPoint) * rx;
            const QPointF moved = KalPlanTransform::toPlan(r).map(transformPoint);
            QVERIFY(qAbs(anchor.x() - moved.x()) < 1e-9 && qAbs(anchor.y() - moved.y()) < 1e-9);
        }
    }

    void unusableRatiosChangeNothing_data()
    {
        QTest::addColumn<double>("rx");
        QTest::addColumn<double>("ry");
        QTest::newRow("zero") << 0.0 << 1.0;
        QTest::newRow("negative") << 1.0 << -2.0;
        QTest::newRow("NaN") << std::nan("") << 1.0;
        QTest::newRow("infinite") << 1.0 << HUGE_VAL;
    }
    void unusableRatiosChangeNothing()
    {
        QFETCH(double, rx);
        QFETCH(double, ry);
        const qint64 marker = addMarker(7, 100, 100, 1.0, 20, 20);
        QString error;
        QVERIFY(!KalPlanTransform::rescaleRows(m_project.project()->database(), 7, rx, ry, &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(m_project.field("marker", marker, "pos_x").toDouble(), 100.0);
        QCOMPARE(m_project.field("marker", marker, "scale_factor").toDouble(), 1.0);
    }
};

QTEST_MAIN(TstPlanTransform)
#include "tst_plantransform.moc"
