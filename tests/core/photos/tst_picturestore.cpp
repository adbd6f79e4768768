// The picture pipeline as photos, logos and plans go through it: what a
// camera file, a hostile file or an odd setting turns into in the project.
#include "core/photos/KalPictureStore.h"
#include "core/project/KalProject.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QBuffer>
#include <QImageReader>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <clocale>
#include <sys/stat.h>

using KalTestImages::Exif;

namespace {

// Every quantisation value of every table of a JPEG is 1 (quality 100).
bool quantisationAllOnes(const QByteArray &jpeg)
{
    int tables = 0;
    for (int at = jpeg.indexOf("\xFF\xDB"); at >= 0; at = jpeg.indexOf("\xFF\xDB", at + 2)) {
        const int length = (quint8(jpeg.at(at + 2)) << 8) | quint8(jpeg.at(at + 3));
        int p = at + 4;
        while (p < at + 2 + length) {
            const bool wide = (quint8(jpeg.at(p)) >> 4) != 0;
            ++p;
            for (int i = 0; i < 64; ++i, p += wide ? 2 : 1) {
                const int v = wide ? (quint8(jpeg.at(p)) << 8) | quint8(jpeg.at(p + 1)) : quint8(jpeg.at(p));
                if (v != 1)
                    return false;
            }
            ++tables;
        }
    }
    return tables > 0;
}

QSize decodedSize(const QByteArray &data)
{
    QImage image;
    image.loadFromData(data);
    return image.size();
}

} // namespace

class TstPictureStore : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    QTemporaryDir m_dir;

    KalPictureStore store() const { return KalPictureStore(m_fx.project()->database(), KalPictureStore::Kind::Photo); }

    QVariantMap imageRow(qint64 id)
    {
        QVariantMap row;
        for (const char *column : {"image", "image_ct", "image_width", "image_height", "thumbnail", "thumbnail_ct",
                                   "thumbnail_width", "thumbnail_height"})
            row.insert(QLatin1String(column), m_fx.field(QStringLiteral("image"), id, QLatin1String(column)));
        return row;
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        QVERIFY(m_dir.isValid());
        // A German locale of our own, so the German rows run on machines
        // that have generated none.
        const QString locales = m_dir.filePath(QStringLiteral("locales"));
        QDir().mkpath(locales);
        QProcess::execute(QStringLiteral("localedef"),
                          {QStringLiteral("-i"), QStringLiteral("de_DE"), QStringLiteral("-f"), QStringLiteral("UTF-8"),
                           locales + QStringLiteral("/de_DE.UTF-8")});
        qputenv("LOCPATH", QFile::encodeName(locales));
    }

    void init()
    {
        QSettings().remove(QStringLiteral("Foto/Imagesize"));
        QVERIFY(m_fx.open());
    }

    void cleanup()
    {
        m_fx.close();
        std::setlocale(LC_ALL, "C");
        QLocale::setDefault(QLocale::c());
    }

    void orientation_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("bigEndian");
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<int>("corner"); // where the top-left mark lands
        const struct
        {
            int value;
            int corner;
        } cases[] = {{1, 0}, {2, 0}, {3, 2}, {4, 0}, {5, 0}, {6, 1}, {7, 0}, {8, 3}, {0, 0}, {9, 0}, {255, 0}};
        for (const QByteArray &locale : {QByteArray("C"), QByteArray("de_DE.UTF-8")}) {
            for (const auto &c : cases) {
                QTest::addRow("%d %s", c.value, locale.constData()) << c.value << false << locale << c.corner;
                QTest::addRow("%d %s big-endian", c.value, locale.constData()) << c.value << true << locale << c.corner;
            }
        }
    }
    void orientation()
    {
        QFETCH(int, orientation);
        QFETCH(bool, bigEndian);
        QFETCH(QByteArray, locale);
        QFETCH(int, corner);
        // The library's own rendering of the value changes with the locale; the stored result must not.
        if (!std::setlocale(LC_ALL, locale.constData()))
            QSKIP("the locale is not available (localedef missing?)");
        QLocale::setDefault(QLocale(QString::fromLatin1(locale.left(5))));
        Exif exif;
        exif.orientation = orientation;
        exif.bigEndian = bigEndian;
        QString error;
        const qint64 id = store().insertFromData(KalTestImages::jpeg(KalTestImages::marked({400, 300}), exif), &error);
        QVERIFY2(id > 0, qPrintable(error));
        const QImage stored = store().load(id, &error);
        const bool turned = orientation == 6 || orientation == 8;
        QCOMPARE(stored.size(), turned ? QSize(300, 400) : QSize(400, 300));
        QCOMPARE(KalTestImages::redCorner(stored), corner);
    }

    void fit_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QVariant>("setting");
        QTest::addColumn<QSize>("stored");
        QTest::addColumn<QSize>("thumbnail");
        const QVariant none;
        QTest::newRow("exactly the limit") << QSize(1000, 1000) << 1 << none << QSize(1000, 1000) << QSize(240, 240);
        QTest::newRow("one more") << QSize(1001, 1000) << 1 << none << QSize(1000, 999) << QSize(240, 240);
        QTest::newRow("small: never enlarged") << QSize(120, 90) << 1 << none << QSize(120, 90) << QSize(120, 90);
        QTest::newRow("portrait") << QSize(1500, 3000) << 1 << none << QSize(500, 1000) << QSize(120, 240);
        QTest::newRow("sliver keeps a pixel") << QSize(4000, 2) << 1 << none << QSize(1000, 1) << QSize(240, 1);
        QTest::newRow("camera portrait") << QSize(4000, 3000) << 6 << none << QSize(750, 1000) << QSize(180, 240);
        QTest::newRow("limit 300") << QSize(4000, 3000) << 1 << QVariant(300) << QSize(300, 225) << QSize(240, 180);
        QTest::newRow("limit 5000") << QSize(6000, 3000) << 8 << QVariant(5000) << QSize(2500, 5000) << QSize(120, 240);
        QTest::newRow("setting 0 clamps") << QSize(1200, 600) << 1 << QVariant(0) << QSize(300, 150) << QSize(240, 120);
        QTest::newRow("setting 99999 clamps")
            << QSize(6000, 600) << 1 << QVariant(99999) << QSize(5000, 500) << QSize(240, 24);
        QTest::newRow("setting text: default")
            << QSize(2000, 1000) << 1 << QVariant(QStringLiteral("groß")) << QSize(1000, 500) << QSize(240, 120);
    }
    void fit()
    {
        QFETCH(QSize, source);
        QFETCH(int, orientation);
        QFETCH(QVariant, setting);
        QFETCH(QSize, stored);
        QFETCH(QSize, thumbnail);
        if (setting.isValid())
            QSettings().setValue(QStringLiteral("Foto/Imagesize"), setting);
        Exif exif;
        exif.orientation = orientation;
        QString error;
        const qint64 id = store().insertFromData(KalTestImages::jpeg(KalTestImages::marked(source), exif), &error);
        QVERIFY2(id > 0, qPrintable(error));
        const QVariantMap row = imageRow(id);
        QCOMPARE(QSize(row.value("image_width").toInt(), row.value("image_height").toInt()), stored);
        QCOMPARE(QSize(row.value("thumbnail_width").toInt(), row.value("thumbnail_height").toInt()), thumbnail);
        QCOMPARE(decodedSize(row.value("image").toByteArray()), stored);
        QCOMPARE(decodedSize(row.value("thumbnail").toByteArray()), thumbnail);
        QCOMPARE(row.value("image_ct").toString(), QStringLiteral("image/jpeg"));
        QCOMPARE(row.value("thumbnail_ct").toString(), QStringLiteral("image/jpeg"));
        QVERIFY(quantisationAllOnes(row.value("image").toByteArray()));
        QVERIFY(quantisationAllOnes(row.value("thumbnail").toByteArray()));
    }

    void hostileFiles_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("stored"); // empty: refused
        const QImage picture = KalTestImages::marked({640, 480});
        const QByteArray jpeg = KalTestImages::jpeg(picture);
        QImage alpha(200, 100, QImage::Format_ARGB32);
        alpha.fill(Qt::transparent);
        QImage deep = picture.convertToFormat(QImage::Format_RGBA64);
        Exif broken;
        broken.orientation = 6;
        broken.dateTaken = QStringLiteral("2024:05:01 10:00:00");
        broken.brokenOffsets = true;

        QTest::newRow("truncated JPEG") << jpeg.left(jpeg.size() * 2 / 3) << "a.jpg" << QSize();
        QTest::newRow("zero bytes") << QByteArray() << "b.jpg" << QSize();
        QTest::newRow("unknown format") << QByteArray("\0\0\0\x18"
                                                      "ftypheic",
                                                      12)
                                               .append(500, 'x')
                                        << "c.heic" << QSize();
        QTest::newRow("30000 x 30000 header") << KalTestImages::pngHeaderOnly({30000, 30000}) << "d.png" << QSize();
        QTest::newRow("PNG with alpha") << KalTestImages::encoded(alpha, "png") << "e.png" << QSize(200, 100);
        QTest::newRow("CMYK JPEG") << KalTestImages::cmykJpeg({300, 200}) << "f.jpg" << QSize(300, 200);
        QTest::newRow("16-bit PNG") << KalTestImages::encoded(deep, "png") << "g.png" << QSize(640, 480);
        QTest::newRow("GIF") << KalTestImages::gif(picture) << "h.gif" << QSize(640, 480);
        QTest::newRow("TIFF") << KalTestImages::encoded(picture, "tiff") << "k.tif" << QSize(640, 480);
        QTest::newRow("PNG named .jpg") << KalTestImages::encoded(picture, "png") << "i.jpg" << QSize(640, 480);
        QTest::newRow("EXIF offsets outside") << KalTestImages::jpeg(picture, broken) << "j.jpg" << QSize(640, 480);
        QTest::newRow("quotes and umlauts") << jpeg << "Küche \"Süd\" 'Ost'.jpg" << QSize(640, 480);
    }
    void hostileFiles()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, name);
        QFETCH(QSize, stored);
        const QString path = m_dir.filePath(name);
        QVERIFY(KalTestFiles::writeFile(path, data));
        const int before = m_fx.count(QStringLiteral("image"));
        QString error;
        const qint64 id = store().insertFromFile(path, &error);
        if (stored.isEmpty()) {
            QCOMPARE(id, qint64(-1));
            QVERIFY(!error.isEmpty());
            QCOMPARE(m_fx.count(QStringLiteral("image")), before);
            return;
        }
        QVERIFY2(id > 0, qPrintable(error));
        const QImage image = store().load(id, &error);
        QCOMPARE(image.size(), stored);
        // Transparency is laid on white; colours survive every format.
        const QColor corner = image.pixelColor(image.width() - 1, image.height() - 1);
        if (name == QLatin1String("e.png"))
            QVERIFY(corner.lightness() > 245);
        else if (name == QLatin1String("f.jpg"))
            QVERIFY2(corner.red() < 60 && corner.blue() > 180, qPrintable(corner.name()));
        else
            QCOMPARE(KalTestImages::redCorner(image), 0);
    }

    void notAPictureFile_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("folder") << "folder";
        QTest::newRow("pipe nobody writes") << "pipe";
        QTest::newRow("missing") << "missing";
    }
    void notAPictureFile()
    {
        QFETCH(QString, kind);
        const QString path = m_dir.filePath(kind + QStringLiteral(".jpg"));
        if (kind == QLatin1String("folder"))
            QVERIFY(QDir().mkpath(path));
        if (kind == QLatin1String("pipe"))
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        QString error;
        // Returns at once: a pipe is never read.
        QCOMPARE(store().insertFromFile(path, &error), qint64(-1));
        QVERIFY(error.contains(QDir::toNativeSeparators(path)));
        QCOMPARE(m_fx.count(QStringLiteral("image")), 0);
    }

    void updateKeepsIdAndRefits()
    {
        QString error;
        const qint64 id = store().insertFromData(KalTestImages::jpeg(KalTestImages::marked({400, 300})), &error);
        QVERIFY(id > 0);
        const QImage turned = store().load(id, &error).transformed(QTransform().rotate(90));
        QImage large = turned.scaled(1500, 2000);
        QCOMPARE(store().insertOrUpdate(large, id, &error), id);
        const QVariantMap row = imageRow(id);
        QCOMPARE(QSize(row.value("image_width").toInt(), row.value("image_height").toInt()), QSize(750, 1000));
        QCOMPARE(QSize(row.value("thumbnail_width").toInt(), row.value("thumbnail_height").toInt()), QSize(180, 240));
        QCOMPARE(KalTestImages::redCorner(store().load(id, &error)), 1);
        QCOMPARE(store().insertOrUpdate(large, id + 100, &error), qint64(-1));
        QVERIFY(!error.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TstPictureStore)
#include "tst_picturestore.moc"
