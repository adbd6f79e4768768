#include "gui/plans/KalGraphicsViewZoom.h"
#include "support/KalWidgetTestMain.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QWheelEvent>
#include <QtTest>

class TstGraphicsViewZoom : public QObject
{
    Q_OBJECT

private:
    // Sends one wheel event to the view's viewport; true when it was taken.
    static void wheel(QGraphicsView &view, const QPoint &at, const QPoint &angle, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(at, view.viewport()->mapToGlobal(at), QPoint(), angle, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
    }

private slots:
    void wheelZoom_data()
    {
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QPoint>("angle");
        QTest::addColumn<double>("factor");
        QTest::newRow("Ctrl, one notch in") << int(Qt::ControlModifier) << QPoint(0, 120) << 1.1274;
        QTest::newRow("Ctrl, one notch out") << int(Qt::ControlModifier) << QPoint(0, -120) << 0.887;
        QTest::newRow("Ctrl and Shift") << int(Qt::ControlModifier | Qt::ShiftModifier) << QPoint(0, 120) << 1.0;
        QTest::newRow("no modifier") << int(Qt::NoModifier) << QPoint(0, 120) << 1.0;
        QTest::newRow("touch pad half notch") << int(Qt::ControlModifier) << QPoint(0, 60) << 1.0;
        QTest::newRow("two notches at once") << int(Qt::ControlModifier) << QPoint(0, 240) << 1.0;
        QTest::newRow("sideways") << int(Qt::ControlModifier) << QPoint(120, 0) << 1.0;
    }

    void wheelZoom()
    {
        QFETCH(int, modifiers);
        QFETCH(QPoint, angle);
        QFETCH(double, factor);
        QGraphicsScene scene(0, 0, 2000, 1500);
        QGraphicsView view(&scene);
        view.setTransformationAnchor(QGraphicsView::NoAnchor);
        view.resize(600, 400);
        new KalGraphicsViewZoom(&view);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        // Scrollable every way, so that the view can keep the point.
        view.centerOn(1000, 750);
        const qreal before = view.transform().m11();
        const QPoint mouse(150, 120);
        const QPointF underMouse = view.mapToScene(mouse);
        wheel(view, mouse, angle, Qt::KeyboardModifiers(modifiers));
        QVERIFY(qAbs(view.transform().m11() / before - factor) < 0.001);
        if (factor == 1.0)
            return; // the wheel scrolls as usual
        // The scene point under the mouse stays there (within a view pixel).
        const QPointF moved = view.mapToScene(mouse) - underMouse;
        QVERIFY2(qAbs(moved.x()) * view.transform().m11() <= 1.5 && qAbs(moved.y()) * view.transform().m11() <= 1.5,
                 qPrintable(QStringLiteral("moved by %1, %2").arg(moved.x()).arg(moved.y())));
    }

    void smallMovesKeepTheAnchor_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("anchorMoves");
        QTest::newRow("within 5 px") << QPoint(5, -4) << false;
        QTest::newRow("6 px across") << QPoint(6, 0) << true;
        QTest::newRow("6 px down") << QPoint(0, 6) << true;
    }

    void smallMovesKeepTheAnchor()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, anchorMoves);
        QGraphicsScene scene(0, 0, 2000, 1500);
        QGraphicsView view(&scene);
        view.setTransformationAnchor(QGraphicsView::NoAnchor);
        view.resize(600, 400);
        new KalGraphicsViewZoom(&view);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.centerOn(1000, 750);
        const QPoint first(150, 120);
        QTest::mouseMove(view.viewport(), first);
        const QPoint anchor = anchorMoves ? first + offset : first;
        const QPoint other = anchorMoves ? first : first + offset;
        const QPointF underAnchor = view.mapToScene(anchor);
        const QPointF underOther = view.mapToScene(other);
        // Five notches, so that a wrong anchor shows by some pixels.
        for (int i = 0; i < 5; ++i)
            wheel(view, first + offset, QPoint(0, 120), Qt::ControlModifier);
        const qreal scale = view.transform().m11();
        const QPointF moved = (view.mapToScene(anchor) - underAnchor) * scale;
        QVERIFY2(qAbs(moved.x()) <= 1.5 && qAbs(moved.y()) <= 1.5,
                 qPrintable(QStringLiteral("anchor moved by %1, %2 px").arg(moved.x()).arg(moved.y())));
        const QPointF otherMoved = (view.mapToScene(other) - underOther) * scale;
        QVERIFY(qMax(qAbs(otherMoved.x()), qAbs(otherMoved.y())) >= 2.5);
    }

    void handDragOnlyWithScrollBars()
    {
        QGraphicsScene scene(0, 0, 2000, 1500);
        QGraphicsView view(&scene);
        view.resize(600, 400);
        auto *zoom = new KalGraphicsViewZoom(&view);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        zoom->fitToWindow();
        view.viewport()->update();
        QTRY_COMPARE(view.dragMode(), QGraphicsView::NoDrag);
        for (int i = 0; i < 3; ++i)
            wheel(view, QPoint(300, 200), QPoint(0, 120), Qt::ControlModifier);
        view.viewport()->update();
        QTRY_COMPARE(view.dragMode(), QGraphicsView::ScrollHandDrag);
        zoom->fitToWindow();
        view.viewport()->update();
        QTRY_COMPARE(view.dragMode(), QGraphicsView::NoDrag);
    }
};

KAL_WIDGET_TEST_MAIN(TstGraphicsViewZoom)
#include "tst_graphicsviewzoom.moc"
