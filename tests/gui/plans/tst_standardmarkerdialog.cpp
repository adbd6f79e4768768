#include "gui/plans/KalStandardMarkerDialog.h"
#include "gui/plans/KalTextEditor.h"
#include "support/KalWidgetTestMain.h"

#include <QDialogButtonBox>
#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QPushButton>
#include <QSettings>
#include <QtTest>

class TstStandardMarkerDialog : public QObject
{
    Q_OBJECT

    static QImage preview(KalStandardMarkerDialog &dialog)
    {
        for (QGraphicsItem *item : dialog.findChild<QGraphicsView *>("gvMarker")->scene()->items()) {
            if (auto *pixmap = dynamic_cast<QGraphicsPixmapItem *>(item))
                return pixmap->pixmap().toImage();
        }
        return QImage();
    }

    static int pixelsOf(const QImage &image, const QColor &color)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == color;
        }
        return count;
    }

private slots:
    void init()
    {
        QSettings().remove("Marker");
        KalTextEditor::setColorChooser({});
    }

    void store_data()
    {
        QTest::addColumn<QVariant>("storedType"); // before opening (invalid: none)
        QTest::addColumn<QString>("storedColor");
        QTest::addColumn<QStringList>("clicks");  // buttons pressed, the last one closes
        QTest::addColumn<QString>("chosenColor"); // answer of the colour dialog
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("color");

        QTest::newRow("defaults") << QVariant() << QString() << QStringList{"ok"} << QString() << 1 << "#ffff00";
        QTest::newRow("type 3") << QVariant() << QString() << QStringList{"pbMarkerType3", "ok"} << QString() << 3
                                << "#ffff00";
        QTest::newRow("colour chosen") << QVariant(2) << "#00ff00" << QStringList{"pbMarkerColor", "ok"} << "#123456"
                                       << 2 << "#123456";
        QTest::newRow("colour dialog cancelled")
            << QVariant(2) << "#00ff00" << QStringList{"pbMarkerColor", "ok"} << QString() << 2 << "#00ff00";
        QTest::newRow("factory reset") << QVariant(4) << "#00ff00" << QStringList{"pbReset", "ok"} << QString() << 1
                                       << "#ffff00";
        QTest::newRow("cancel keeps the stored values")
            << QVariant(4) << "#00ff00" << QStringList{"pbReset", "pbMarkerType2", "cancel"} << QString() << 4
            << "#00ff00";
        QTest::newRow("unusable stored values")
            << QVariant(9) << "garbage" << QStringList{"ok"} << QString() << 1 << "#ffff00";
    }

    void store()
    {
        QFETCH(QVariant, storedType);
        QFETCH(QString, storedColor);
        QFETCH(QStringList, clicks);
        QFETCH(QString, chosenColor);
        QFETCH(int, type);
        QFETCH(QString, color);

        if (storedType.isValid()) {
            QSettings().setValue("Marker/StandardMarkerType", storedType);
            QSettings().setValue("Marker/StandardMarkerColor", storedColor);
        }
        QString askedTitle;
        KalTextEditor::setColorChooser([&](const QColor &, QWidget *, const QString &title) {
            askedTitle = title;
            return QColor(chosenColor);
        });
        KalStandardMarkerDialog dialog;
        for (const QString &name : clicks) {
            if (name == QLatin1String("ok"))
                dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
            else if (name == QLatin1String("cancel"))
                dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
            else
                dialog.findChild<QPushButton *>(name)->click();
        }
        if (clicks.contains("pbMarkerColor"))
            QCOMPARE(askedTitle, QStringLiteral("Markerfarbe wählen"));
        QCOMPARE(QSettings().value("Marker/StandardMarkerType", 1).toInt(), type);
        QCOMPARE(QSettings().value("Marker/StandardMarkerColor", "#ffff00").toString(), color);
    }

    void previewFollowsChoice()
    {
        KalStandardMarkerDialog dialog;
        const QImage yellow = preview(dialog);
        QVERIFY(pixelsOf(yellow, QColor(Qt::yellow)) > 100);
        // The status part has no colour of its own here: it is grey.
        QVERIFY(pixelsOf(yellow, QColor(Qt::gray)) > 100);

        KalTextEditor::setColorChooser([](const QColor &, QWidget *, const QString &) { return QColor(Qt::blue); });
        dialog.findChild<QPushButton *>("pbMarkerColor")->click();
        const QImage blue = preview(dialog);
        QCOMPARE(pixelsOf(blue, QColor(Qt::yellow)), 0);
        QVERIFY(pixelsOf(blue, QColor(Qt::blue)) > 100);

        dialog.findChild<QPushButton *>("pbMarkerType4")->click();
        QVERIFY(preview(dialog) != blue);
    }
};

KAL_WIDGET_TEST_MAIN(TstStandardMarkerDialog)
#include "tst_standardmarkerdialog.moc"
