// The stored logos as printing reads them: what counts as "no logo", and
// what a logo picture becomes in the project.
#include "core/project/KalProject.h"
#include "core/reports/KalLogos.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

class TstLogos : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    QTemporaryDir m_dir;
    qint64 m_imageId = -1;

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        KalScriptedPrompt::install();
        QVERIFY(m_fx.open());
        QVERIFY(m_dir.isValid());
        QImage red(40, 20, QImage::Format_RGB32);
        red.fill(Qt::red);
        const QString path = m_dir.filePath("red.png");
        QVERIFY(red.save(path));
        QString error;
        m_imageId = KalLogos(m_fx.project()->database()).append(path, &error);
        QVERIFY2(m_imageId > 0, qPrintable(error));
    }

    void cleanupTestCase() { m_fx.close(); }

    void storedIdMeansLogo_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("isSet");
        for (const char *column : {"logo_image_id", "logo2_image_id"}) {
            const QString c = QLatin1String(column);
            if (c == "logo_image_id") // the second column is NOT NULL
                QTest::addRow("%s NULL", column) << c << QVariant(QVariant::LongLong) << false;
            QTest::addRow("%s 0", column) << c << QVariant(0) << false;
            QTest::addRow("%s -1", column) << c << QVariant(-1) << false;
            QTest::addRow("%s without row", column) << c << QVariant(987654) << false;
            QTest::addRow("%s stored picture", column) << c << QVariant(-2) << true;
        }
    }

    void storedIdMeansLogo()
    {
        QFETCH(QString, column);
        QFETCH(QVariant, stored);
        QFETCH(bool, isSet);
        const QVariant value = stored == QVariant(-2) ? QVariant(m_imageId) : stored;
        QVERIFY(m_fx.exec(QString("UPDATE kal SET %1=:v").arg(column), {{"v", value}}));
        KalLogo logo;
        KalLogos logos(m_fx.project()->database());
        QVERIFY(logos.read(column == "logo_image_id" ? KalLogos::First : KalLogos::Second, &logo));
        QCOMPARE(logo.isSet(), isSet);
        QCOMPARE(logos.image(logo.imageId).isNull(), !isSet);
    }

    void removedLogoIsStoredAsNewProjectsStoreIt()
    {
        KalLogos logos(m_fx.project()->database());
        QVERIFY(logos.write(KalLogos::First, KalLogo{-1, KalLogo::Center}));
        QVERIFY(logos.write(KalLogos::Second, KalLogo{-1, KalLogo::Right}));
        QVERIFY(m_fx.value("SELECT logo_image_id FROM kal").isNull());
        QCOMPARE(m_fx.value("SELECT logo2_image_id FROM kal").toInt(), 0);
        KalLogo first, second;
        QVERIFY(logos.read(KalLogos::First, &first) && logos.read(KalLogos::Second, &second));
        QCOMPARE(first.align, int(KalLogo::Center));
        QCOMPARE(second.align, int(KalLogo::Right));
    }

    // JPEG has no alpha: a transparent logo must come out on white, not black.
    void transparentLogoLiesOnWhite()
    {
        QImage logo(300, 100, QImage::Format_ARGB32);
        logo.fill(Qt::transparent);
        QPainter(&logo).fillRect(QRect(0, 0, 50, 100), Qt::blue);
        const QString path = m_dir.filePath("transparent.png");
        QVERIFY(logo.save(path));
        KalLogos logos(m_fx.project()->database());
        QString error;
        const qint64 id = logos.append(path, &error);
        QVERIFY2(id > 0, qPrintable(error));
        const QImage stored = logos.image(id);
        QCOMPARE(stored.size(), QSize(300, 100));
        QVERIFY(qGray(stored.pixel(250, 50)) > 245);
        QVERIFY(qBlue(stored.pixel(25, 50)) > 200 && qRed(stored.pixel(25, 50)) < 60);
        QVERIFY(logos.remove(id));
        QVERIFY(logos.image(id).isNull());
    }

    void printHeightNeverBelowZero_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<int>("height");
        QTest::newRow("unset") << QVariant() << 25;
        QTest::newRow("zero") << QVariant(0) << 0;
        QTest::newRow("negative") << QVariant(-4) << 0;
        QTest::newRow("garbage") << QVariant("hoch") << 25;
        QTest::newRow("500") << QVariant(500) << 500;
    }

    void printHeightNeverBelowZero()
    {
        QFETCH(QVariant, stored);
        QFETCH(int, height);
        QSettings settings;
        if (stored.isValid())
            settings.setValue("Logo/LogoPrintHeight", stored);
        else
            settings.remove("Logo/LogoPrintHeight");
        QCOMPARE(KalLogos::printHeight(), height);
    }
};

QTEST_GUILESS_MAIN(TstLogos)
#include "tst_logos.moc"
