// Markers follow a redrawn plan through reference points: the fitted maps by
// hand-computed points, refused point sets, and a stored new version.
#include "core/plans/KalPlanReference.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QImage>
#include <QtTest>
#include <cmath>

using Points = QVector<QPointF>;
Q_DECLARE_METATYPE(Points)

namespace {
bool near(const QPointF &a, const QPointF &b)
{
    return std::fabs(a.x() - b.x()) < 1e-9 && std::fabs(a.y() - b.y()) < 1e-9;
}
} // namespace

class TstPlanReference : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_files;
    KalTestProject m_project;

private slots:
    void initTestCase() { KalTestSettings::isolate(); }

    void fit_data()
    {
        QTest::addColumn<Points>("oldPoints");
        QTest::addColumn<Points>("newPoints");
        QTest::addColumn<int>("verdict");
        QTest::addColumn<QPointF>("probe");
        QTest::addColumn<QPointF>("expected");
        const int ok = KalPlanReference::Usable;
        QTest::newRow("shift") << Points{{0, 0}, {100, 0}} << Points{{10, 20}, {110, 20}} << ok << QPointF(50, 50)
                               << QPointF(60, 70);
        QTest::newRow("quarter turn, double size")
            << Points{{0, 0}, {100, 0}} << Points{{0, 0}, {0, 200}} << ok << QPointF(0, 10) << QPointF(-20, 0);
        QTest::newRow("half size about a far point")
            << Points{{1000, 1000}, {3000, 1000}} << Points{{500, 500}, {1500, 500}} << ok << QPointF(1000, 3000)
            << QPointF(500, 1500);
        QTest::newRow("affine: stretched across")
            << Points{{0, 0}, {100, 0}, {0, 100}} << Points{{5, 5}, {305, 5}, {5, 55}} << ok << QPointF(50, 50)
            << QPointF(155, 30);
        QTest::newRow("affine: sheared, third point exact")
            << Points{{123.5, 77}, {4000, 300}, {900, 2500}} << Points{{130, 60}, {4100, 420}, {650, 2610}} << ok
            << QPointF(900, 2500) << QPointF(650, 2610);
        QTest::newRow("affine: mirrored drawing")
            << Points{{0, 0}, {10, 0}, {0, 10}} << Points{{0, 0}, {-10, 0}, {0, 10}} << ok << QPointF(3, 4)
            << QPointF(-3, 4);
        const QPointF none;
        QTest::newRow("one pair") << Points{{0, 0}} << Points{{1, 1}} << int(KalPlanReference::WrongCount) << none
                                  << none;
        QTest::newRow("four pairs") << Points{{0, 0}, {9, 0}, {0, 9}, {9, 9}} << Points{{0, 0}, {9, 0}, {0, 9}, {9, 9}}
                                    << int(KalPlanReference::WrongCount) << none << none;
        QTest::newRow("counts differ") << Points{{0, 0}, {9, 0}} << Points{{0, 0}, {9, 0}, {0, 9}}
                                       << int(KalPlanReference::WrongCount) << none << none;
        QTest::newRow("not a number") << Points{{0, 0}, {std::nan(""), 0}} << Points{{0, 0}, {9, 0}}
                                      << int(KalPlanReference::WrongCount) << none << none;
        QTest::newRow("old points coincide") << Points{{50, 50}, {50.5, 50}} << Points{{0, 0}, {9, 0}}
                                             << int(KalPlanReference::Coincident) << none << none;
        QTest::newRow("new points coincide") << Points{{0, 0}, {100, 0}, {0, 100}} << Points{{0, 0}, {100, 0}, {0, 0}}
                                             << int(KalPlanReference::Coincident) << none << none;
        QTest::newRow("old points on a line")
            << Points{{0, 0}, {100, 100}, {300, 300.5}} << Points{{0, 0}, {100, 0}, {0, 100}}
            << int(KalPlanReference::Collinear) << none << none;
        QTest::newRow("new points on a line")
            << Points{{0, 0}, {100, 0}, {0, 100}} << Points{{0, 0}, {500, 0}, {-700, 0}}
            << int(KalPlanReference::Collinear) << none << none;
    }
    void fit()
    {
        QFETCH(Points, oldPoints);
        QFETCH(Points, newPoints);
        QFETCH(int, verdict);
        QFETCH(QPointF, probe);
        QFETCH(QPointF, expected);
        const KalPlanReference::Fit fit = KalPlanReference::fit(oldPoints, newPoints);
        QCOMPARE(int(fit.verdict), verdict);
        if (verdict != KalPlanReference::Usable) {
            QVERIFY(!KalPlanReference::refusalText(fit.verdict).isEmpty());
            return;
        }
        for (int i = 0; i < oldPoints.size(); ++i)
            QVERIFY2(near(fit.transform.map(oldPoints[i]), newPoints[i]), qPrintable(QString::number(i)));
        QVERIFY(near(fit.transform.map(probe), expected));
    }

    void mapped_data()
    {
        QTest::addColumn<Points>("oldPoints");
        QTest::addColumn<Points>("newPoints");
        QTest::addColumn<QPointF>("newPos");
        QTest::addColumn<double>("newScale");
        // The row: pos (100, 100), transform point (20, 20) -> located at (120, 120); scale 0.5, turned 30°.
        QTest::newRow("double size, shifted")
            << Points{{0, 0}, {100, 0}} << Points{{10, 0}, {210, 0}} << QPointF(230, 220) << 1.0;
        QTest::newRow("quarter turn keeps the rotation")
            << Points{{0, 0}, {100, 0}} << Points{{0, 0}, {0, 100}} << QPointF(-140, 100) << 0.5;
        QTest::newRow("affine: scale from the area")
            << Points{{0, 0}, {100, 0}, {0, 100}} << Points{{0, 0}, {400, 0}, {0, 100}} << QPointF(460, 100) << 1.0;
    }
    void mapped()
    {
        QFETCH(Points, oldPoints);
        QFETCH(Points, newPoints);
        QFETCH(QPointF, newPos);
        QFETCH(double, newScale);
        KalPlanGeometry g;
        g.pos = QPointF(100, 100);
        g.transformPoint = QPointF(20, 20);
        g.scale = 0.5;
        g.rotation = 30;
        const KalPlanReference::Fit fit = KalPlanReference::fit(oldPoints, newPoints);
        QCOMPARE(int(fit.verdict), int(KalPlanReference::Usable));
        const KalPlanGeometry m = KalPlanReference::mapped(g, fit.transform);
        QVERIFY2(near(m.pos, newPos), qPrintable(QStringLiteral("%1, %2").arg(m.pos.x()).arg(m.pos.y())));
        QCOMPARE(m.scale, newScale);
        QCOMPARE(m.rotation, 30.0);
        QCOMPARE(m.transformPoint, g.transformPoint);
    }

    void storedVersionMovesRowsInOneStep()
    {
        QVERIFY(m_project.open());
        KalScriptedPrompt *prompt = KalScriptedPrompt::install();
        QImage picture(QSize(400, 200), QImage::Format_RGB32);
        picture.fill(Qt::white);
        QVERIFY(picture.save(m_files.filePath("v1.png")));
        QVERIFY(picture.scaled(200, 300).save(m_files.filePath("v2.png")));
        KalPlans plans(m_project.project());
        const qint64 sheet = plans.addFile(m_files.filePath("v1.png"));
        QVERIFY(sheet > 0);
        const qint64 planId = m_project.field("plan_info", sheet, "plan_id").toLongLong();
        auto add = [&](const char *table, qint64 planInfo, double x) {
            QVariantMap row{{"pos_x", x},
                            {"pos_y", 10.0},
                            {"scale_factor", 1.0},
                            {"rotation_angle", 15.0},
                            {"transform_point_x", 10.0},
                            {"transform_point_y", 0.0},
                            {"plan_info_id", planInfo},
                            {"defect_id", 1}};
            if (QLatin1String(table) == QLatin1String("marker"))
                row.insert("type", 1);
            return m_project.insert(table, row);
        };
        const qint64 marker = add("marker", sheet, 40);
        const qint64 text = add("marker_text", sheet, 90);
        const qint64 elsewhere = add("marker", sheet + 1, 40);

        KalPlans::Version version;
        QVERIFY(!plans.loadVersion(m_files.filePath("missing.png"), &version));
        QCOMPARE(prompt->titles(), QStringList{"Fehler Plan Import"});
        QVERIFY(plans.loadVersion(m_files.filePath("v2.png"), &version));
        QCOMPARE(m_project.field("plan", planId, "plan_width").toInt(), 400);

        // The drawing was turned a quarter to the right and moved 200 px across.
        const KalPlanReference::Fit fit = KalPlanReference::fit(Points{{0, 0}, {100, 0}}, Points{{200, 0}, {200, 100}});
        QVERIFY(plans.storeVersion(sheet, version, fit.transform));
        QCOMPARE(m_project.field("plan", planId, "plan_width").toInt(), 200);
        // Located at (50, 10) -> (190, 50); the transform point (10, 0) stays in the item.
        QCOMPARE(m_project.field("marker", marker, "pos_x").toDouble(), 180.0);
        QCOMPARE(m_project.field("marker", marker, "pos_y").toDouble(), 50.0);
        QCOMPARE(m_project.field("marker", marker, "rotation_angle").toDouble(), 15.0);
        QCOMPARE(m_project.field("marker_text", text, "pos_x").toDouble(), 180.0);
        QCOMPARE(m_project.field("marker_text", text, "pos_y").toDouble(), 100.0);
        QCOMPARE(m_project.field("marker", elsewhere, "pos_x").toDouble(), 40.0);
        QVERIFY(m_project.project()->isModified());
    }
};

QTEST_GUILESS_MAIN(TstPlanReference)
#include "tst_planreference.moc"
