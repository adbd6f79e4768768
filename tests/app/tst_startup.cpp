// Start-up without a window: the display check, the scaling notice and the
// program itself refusing to start without a display.
#include "app/KalStartup.h"
#include "support/KalTestSettings.h"

#include <QProcess>
#include <QtTest>

class TstStartup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { KalTestSettings::isolate(); }
    void missingDisplay_data()
    {
        QTest::addColumn<QByteArray>("platform");
        QTest::addColumn<QByteArray>("display");
        QTest::addColumn<QByteArray>("wayland");
        QTest::addColumn<bool>("refused");

        QTest::newRow("nothing set") << QByteArray() << QByteArray() << QByteArray() << true;
        QTest::newRow("xcb without display") << QByteArray("xcb") << QByteArray() << QByteArray() << true;
        QTest::newRow("offscreen needs none") << QByteArray("offscreen") << QByteArray() << QByteArray() << false;
        QTest::newRow("wayland") << QByteArray() << QByteArray() << QByteArray("wayland-0") << false;
        QTest::newRow("remote X") << QByteArray() << QByteArray("host.example:0") << QByteArray() << false;
        QTest::newRow("local X without server") << QByteArray() << QByteArray(":987") << QByteArray() << true;
    }

    void missingDisplay()
    {
        QFETCH(QByteArray, platform);
        QFETCH(QByteArray, display);
        QFETCH(QByteArray, wayland);
        QFETCH(bool, refused);

        const QByteArray oldPlatform = qgetenv("QT_QPA_PLATFORM");
        const QByteArray oldDisplay = qgetenv("DISPLAY");
        const QByteArray oldWayland = qgetenv("WAYLAND_DISPLAY");
        auto set = [](const char *name, const QByteArray &value) {
            if (value.isEmpty())
                qunsetenv(name);
            else
                qputenv(name, value);
        };
        set("QT_QPA_PLATFORM", platform);
        set("DISPLAY", display);
        set("WAYLAND_DISPLAY", wayland);
        const QString reason = KalStartup::missingDisplayReason();
        set("QT_QPA_PLATFORM", oldPlatform);
        set("DISPLAY", oldDisplay);
        set("WAYLAND_DISPLAY", oldWayland);
        QCOMPARE(!reason.isEmpty(), refused);
    }

    void scalingPercent_data()
    {
        QTest::addColumn<qreal>("dpi");
        QTest::addColumn<int>("percent");
        QTest::newRow("96") << qreal(96) << 100;
        QTest::newRow("100 is not scaled") << qreal(100) << 100;
        QTest::newRow("120") << qreal(120) << 125;
        QTest::newRow("72") << qreal(72) << 75;
    }

    void scalingPercent()
    {
        QFETCH(qreal, dpi);
        QFETCH(int, percent);
        QCOMPARE(KalStartup::scalingPercent(dpi), percent);
        QVERIFY(KalStartup::scalingNoticeText(percent).startsWith(
            QStringLiteral("Sie verwenden eine Bildschirm-Skalierung von %1%. Dies kann es zu Problemen bei der "
                           "Darstellung des Pellwicks führen.")
                .arg(percent)));
    }

    void programWithoutDisplaySaysSoAndFails()
    {
        const QString program = KalTestSettings::binDir() + QStringLiteral("/pellwick");
        QVERIFY2(QFileInfo::exists(program), qPrintable(program));
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove(QStringLiteral("DISPLAY"));
        env.remove(QStringLiteral("WAYLAND_DISPLAY"));
        env.remove(QStringLiteral("QT_QPA_PLATFORM"));
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(program, {QStringLiteral("nirgends.pwp")});
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QVERIFY(process.exitCode() != 0);
        QVERIFY(QString::fromLocal8Bit(process.readAllStandardError()).contains(QStringLiteral("no display")));
    }
};

QTEST_GUILESS_MAIN(TstStartup)
#include "tst_startup.moc"
