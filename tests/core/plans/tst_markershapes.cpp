// Marker shapes as the user sees them: which part covers a point of the
// design frame, and which colour lands on which pixel when a row is painted.
#include "core/plans/KalMarkerShapes.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QtTest>
#include <cmath>

namespace {

enum Part { Body = 1, Status = 2, Cross = 4 };

int partsAt(int type, const QPointF &point)
{
    const KalMarkerPaths paths = KalMarkerShapes::paths(type);
    int parts = 0;
    if (paths.body.contains(point))
        parts |= Body;
    if (paths.status.contains(point))
        parts |= Status;
    QPainterPathStroker stroker;
    stroker.setWidth(2);
    if (!paths.cross.isEmpty() && stroker.createStroke(paths.cross).contains(point))
        parts |= Cross;
    return parts;
}

KalMarkerRow target(double lineWidth)
{
    KalMarkerRow row;
    row.type = 4;
    row.color1 = QStringLiteral("#00ff00");
    row.color2 = QStringLiteral("#0000ff");
    row.lineWidth = lineWidth;
    return row;
}

QImage paint(const KalMarkerRow &row, const QColor &status, bool *painted = nullptr)
{
    QImage image(600, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    KalMarkerShapes::PaintOptions options;
    options.statusColor = status;
    const bool done = KalMarkerShapes::paintMarker(painter, row, options);
    if (painted)
        *painted = done;
    return image;
}

} // namespace

class TstMarkerShapes : public QObject
{
    Q_OBJECT

private slots:
    void partsOfTheDesign_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<int>("parts");
        QTest::newRow("pin head centre") << 1 << QPointF(160, 165) << (Body | Status);
        QTest::newRow("pin near its tip") << 1 << QPointF(160, 500) << int(Body);
        QTest::newRow("pin beside its tip") << 1 << QPointF(175, 500) << 0;
        QTest::newRow("needle head") << 2 << QPointF(256, 128) << int(Status);
        QTest::newRow("needle shaft") << 2 << QPointF(256, 400) << int(Body);
        QTest::newRow("beside the needle") << 2 << QPointF(230, 400) << 0;
        QTest::newRow("flag pole and cloth") << 3 << QPointF(80, 256) << (Body | Status);
        QTest::newRow("flag cloth") << 3 << QPointF(300, 176) << int(Status);
        QTest::newRow("flag pole foot") << 3 << QPointF(80, 500) << int(Body);
        QTest::newRow("below the cloth") << 3 << QPointF(300, 300) << 0;
        QTest::newRow("target centre: only the cross") << 4 << QPointF(256, 256) << int(Cross);
        QTest::newRow("target inner hole") << 4 << QPointF(300, 220) << 0;
        QTest::newRow("target status ring") << 4 << QPointF(181, 181) << int(Status);
        QTest::newRow("target outer ring") << 4 << QPointF(140, 140) << int(Body);
        QTest::newRow("target ring on the cross") << 4 << QPointF(256, 80) << (Body | Cross);
        QTest::newRow("outside the target") << 4 << QPointF(20, 20) << 0;
        QTest::newRow("unknown type") << 9 << QPointF(256, 256) << 0;
    }
    void partsOfTheDesign()
    {
        QFETCH(int, type);
        QFETCH(QPointF, point);
        QFETCH(int, parts);
        QCOMPARE(partsAt(type, point), parts);
    }

    void paintedPixels_data()
    {
        QTest::addColumn<double>("lineWidth");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QPoint>("pixel");
        QTest::addColumn<QColor>("expected");
        const QColor white(Qt::white);
        QTest::newRow("fill of the body") << 8.0 << "#ff0000" << QPoint(140, 140) << QColor("#00ff00");
        QTest::newRow("outline drawn") << 16.0 << "#ff0000" << QPoint(107, 107) << QColor("#0000ff");
        QTest::newRow("status ring in its colour") << 8.0 << "#ff0000" << QPoint(181, 181) << QColor("#ff0000");
        QTest::newRow("no status: grey blue") << 8.0 << "" << QPoint(181, 181) << QColor("#859FAF");
        QTest::newRow("ring hole unfilled") << 8.0 << "#ff0000" << QPoint(300, 220) << white;
        QTest::newRow("black cross at the centre") << 4.0 << "#ff0000" << QPoint(256, 300) << QColor(Qt::black);
    }
    void paintedPixels()
    {
        QFETCH(double, lineWidth);
        QFETCH(QString, status);
        QFETCH(QPoint, pixel);
        QFETCH(QColor, expected);
        const QImage image = paint(target(lineWidth), QColor(status));
        QCOMPARE(image.pixelColor(pixel), expected);
    }

    void outlineOnlyWithAWidth_data()
    {
        QTest::addColumn<double>("lineWidth");
        QTest::addColumn<bool>("outlined");
        QTest::newRow("width 0: none, not even a hair line") << 0.0 << false;
        QTest::newRow("width 1") << 1.0 << true;
        QTest::newRow("width NaN: none") << std::nan("") << false;
        QTest::newRow("negative width: none") << -3.0 << false;
    }
    void outlineOnlyWithAWidth()
    {
        QFETCH(double, lineWidth);
        QFETCH(bool, outlined);
        KalMarkerRow row = target(lineWidth);
        row.color1 = QStringLiteral("#ffffff");
        const QImage image = paint(row, QColor("#ff0000"));
        int blue = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                blue += qBlue(image.pixel(x, y)) - qRed(image.pixel(x, y)) > 40;
        QCOMPARE(blue > 0, outlined);
    }

    void rotationAndScaleTurnAboutTheTransformPoint()
    {
        // A pin halved and turned a quarter clockwise about its tip, the tip at
        // (300, 300): its head's centre (0, -347 from the tip) lands at (473.5, 300).
        KalMarkerRow pin;
        pin.type = 1;
        pin.color1 = QStringLiteral("#00ff00");
        pin.geometry.transformPoint = QPointF(160, 512);
        pin.geometry.pos = QPointF(300 - 160, 300 - 512);
        pin.geometry.scale = 0.5;
        pin.geometry.rotation = 90;
        const QImage image = paint(pin, QColor("#ff0000"));
        QCOMPARE(image.pixelColor(473, 300), QColor("#ff0000"));
        QCOMPARE(image.pixelColor(300, 150), QColor(Qt::white));
    }

    void hostileRows_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QString>("color1");
        QTest::addColumn<bool>("painted");
        QTest::addColumn<QColor>("fill");
        const QColor white(Qt::white);
        QTest::newRow("type 9") << 9 << 1.0 << "#00ff00" << false << white;
        QTest::newRow("type 0") << 0 << 1.0 << "#00ff00" << false << white;
        QTest::newRow("scale 0") << 4 << 0.0 << "#00ff00" << false << white;
        QTest::newRow("scale NaN") << 4 << std::nan("") << "#00ff00" << false << white;
        QTest::newRow("scale infinite") << 4 << HUGE_VAL << "#00ff00" << false << white;
        QTest::newRow("negative scale") << 4 << -1.0 << "#00ff00" << false << white;
        QTest::newRow("colour garbage: yellow") << 4 << 1.0 << "garbage" << true << QColor(Qt::yellow);
        QTest::newRow("no colour: yellow") << 4 << 1.0 << "" << true << QColor(Qt::yellow);
    }
    void hostileRows()
    {
        QFETCH(int, type);
        QFETCH(double, scale);
        QFETCH(QString, color1);
        QFETCH(bool, painted);
        QFETCH(QColor, fill);
        KalMarkerRow row = target(2);
        row.type = type;
        row.geometry.scale = scale;
        row.color1 = color1;
        row.color2 = QStringLiteral("garbage");
        bool done = !painted;
        const QImage image = paint(row, QColor(), &done);
        QCOMPARE(done, painted);
        QCOMPARE(image.pixelColor(140, 140), fill);
    }

    void textSizeIsIndependentOfTheDevice()
    {
        // 12 points are 16 plan pixels whether painted on a 72 or a 600 dpi image.
        KalMarkerTextRow row;
        row.text = QStringLiteral("MMMM");
        row.fontSize = 12;
        row.color = QStringLiteral("#000000");
        QVector<int> inkHeights;
        for (int dpm : {2835, 23622}) {
            QImage image(200, 60, QImage::Format_RGB32);
            image.setDotsPerMeterX(dpm);
            image.setDotsPerMeterY(dpm);
            image.fill(Qt::white);
            QPainter painter(&image);
            QVERIFY(KalMarkerShapes::paintText(painter, row));
            painter.end();
            int top = -1, bottom = -1;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (qGray(image.pixel(x, y)) < 128) {
                        if (top < 0)
                            top = y;
                        bottom = y;
                        break;
                    }
                }
            }
            QVERIFY(top >= 0);
            inkHeights << bottom - top + 1;
        }
        QCOMPARE(inkHeights.at(0), inkHeights.at(1));
        QVERIFY2(inkHeights.at(0) >= 9 && inkHeights.at(0) <= 14, qPrintable(QString::number(inkHeights.at(0))));
    }
};

QTEST_MAIN(TstMarkerShapes)
#include "tst_markershapes.moc"
