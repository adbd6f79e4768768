// Printed defect lists as real PDFs, read back with the poppler tools: what
// stands on which page, which pictures the file holds, and what survives a
// failing disk or a hostile project.
#include "core/photos/KalPictureStore.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "core/reports/KalPrintDefects.h"
#include "core/reports/KalPrintPerCompany.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(KalPrintOptions::Layout)
Q_DECLARE_METATYPE(KalPrintDefects::Paper)

namespace {

QString run(const QString &program, const QStringList &args)
{
    QProcess p;
    p.start(program, args);
    p.waitForFinished(120000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

// The text of each page.
QStringList pages(const QString &pdf)
{
    QStringList list = run(QStringLiteral("pdftotext"), {"-layout", pdf, "-"}).split(QLatin1Char('\f'));
    if (!list.isEmpty() && list.last().trimmed().isEmpty())
        list.removeLast();
    return list;
}

// "pdfimages -list" rows: page, object number, width, height, x-ppi.
struct PdfImage
{
    int page, object, width, height, ppi;
};
QVector<PdfImage> images(const QString &pdf)
{
    QVector<PdfImage> out;
    const QStringList lines = run(QStringLiteral("pdfimages"), {"-list", pdf}).split(QLatin1Char('\n'));
    for (const QString &line : lines.mid(2)) {
        const QStringList f = line.simplified().split(QLatin1Char(' '));
        if (f.size() > 13)
            out << PdfImage{f[0].toInt(), f[10].toInt(), f[3].toInt(), f[4].toInt(), f[12].toInt()};
    }
    return out;
}

// Fails on every write after the first `budget` bytes, as a full disk does.
class FullDisk : public QIODevice
{
public:
    explicit FullDisk(qint64 budget)
        : m_budget(budget)
    {
        open(QIODevice::WriteOnly);
    }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        if (size > m_budget)
            return -1;
        m_budget -= size;
        return size;
    }

private:
    qint64 m_budget;
};

// The user presses "Abbrechen" once the operation has reported `steps` times.
class CancelAfter : public KalProgress
{
public:
    explicit CancelAfter(int steps)
        : m_left(steps)
    {
    }
    void begin(const QString &) override {}
    void setProgress(qint64, qint64) override { --m_left; }
    void end() override {}
    bool wasCanceled() const override { return m_left <= 0; }

private:
    int m_left;
};

} // namespace

class TstPrintDefects : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    QTemporaryDir m_dir;
    KalScriptedPrompt *m_prompt = nullptr;

    QSqlDatabase db() const { return m_fx.project()->database(); }

    qint64 storePicture(const QByteArray &data)
    {
        KalPictureStore store(db(), KalPictureStore::Kind::Photo);
        QString error;
        const qint64 id = store.insertFromData(data, &error);
        return id;
    }

    QString print(const QVector<qint64> &ids, KalPrintOptions options, int *pageCount = nullptr)
    {
        static int n = 0;
        const QString path = m_dir.filePath(QStringLiteral("list%1.pdf").arg(++n));
        KalPrintDefects job(db(), ids, options);
        QString error;
        if (!job.writePdf(path, &error))
            qWarning() << error;
        if (pageCount)
            *pageCount = job.pageCount();
        return path;
    }

    QVector<qint64> manyDefects(int count, const QString &description = QStringLiteral("Riss im Putz"))
    {
        QVector<qint64> ids;
        for (int i = 1; i <= count; ++i)
            ids << m_fx.addDefect({{"number", QString::number(i)}, {"description", description}});
        return ids;
    }

    // A sheet with a white plan of `size` pixels.
    qint64 addSheet(const QSize &size)
    {
        QImage white(size, QImage::Format_RGB32);
        white.fill(Qt::white);
        KalPictureStore plans(db(), KalPictureStore::Kind::Plan);
        QString error;
        const qint64 plan = plans.insertFromData(KalTestImages::jpeg(white), &error);
        return plan > 0 ? m_fx.insert("plan_info", {{"plan_name", "EG"}, {"plan_id", plan}, {"pos", 1}}) : -1;
    }

    void addMarker(qint64 defect, qint64 sheet, const QPointF &at, const QString &fill)
    {
        QVERIFY(m_fx.insert("marker", {{"type", 1},
                                       {"pos_x", at.x()},
                                       {"pos_y", at.y()},
                                       {"scale_factor", 0.2},
                                       {"rotation_angle", 0},
                                       {"color1", fill},
                                       {"color2", "#000000"},
                                       {"linewidth", 2},
                                       {"transform_point_x", 0},
                                       {"transform_point_y", 0},
                                       {"plan_info_id", sheet},
                                       {"defect_id", defect}}) > 0);
    }

    void setFrame(const QString &column, const QString &text)
    {
        QVERIFY(m_fx.exec(QStringLiteral("UPDATE kal SET %1=:t").arg(column), {{"t", text}}));
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
        QVERIFY(m_dir.isValid());
    }

    void init()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QVERIFY(m_fx.open());
    }

    void frameOnEveryPage_data()
    {
        QTest::addColumn<KalPrintOptions::Layout>("layout");
        QTest::newRow("compact") << KalPrintOptions::Compact;
        QTest::newRow("detailed") << KalPrintOptions::Detailed;
    }
    void frameOnEveryPage()
    {
        QFETCH(KalPrintOptions::Layout, layout);
        setFrame("headline_left", "Bauvorhaben Nordstraße");
        setFrame("footer_center", "Seite ${page.cur}/${page.count}");
        setFrame("footer_right", "${page.cur} von ${page.count}");
        KalPrintOptions options;
        options.layout = layout;
        int counted = 0;
        const QStringList text =
            pages(print(manyDefects(layout == KalPrintOptions::Compact ? 160 : 60), options, &counted));
        QVERIFY2(text.size() >= 3, qPrintable(QString::number(text.size())));
        QCOMPARE(text.size(), counted);
        for (int i = 0; i < text.size(); ++i) {
            QVERIFY(text[i].contains("Bauvorhaben Nordstraße"));
            QVERIFY2(text[i].contains(QStringLiteral("Seite %1/%2").arg(i + 1).arg(text.size())), qPrintable(text[i]));
            QVERIFY(text[i].contains(QStringLiteral("%1 von %2").arg(i + 1).arg(text.size())));
        }
    }

    void dates_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("expected");
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << "31.12.2024";
        QTest::newRow("US English") << QLocale(QLocale::English, QLocale::UnitedStates) << "12/31/2024";
        QTest::newRow("UK English") << QLocale(QLocale::English, QLocale::UnitedKingdom) << "31/12/2024";
        QTest::newRow("Spanish") << QLocale(QLocale::Spanish, QLocale::Spain) << "31/12/2024";
    }
    void dates()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, expected);
        QLocale::setDefault(locale);
        const qint64 id = m_fx.addDefect({{"creation_date", QDate(2024, 12, 31)}, {"deadline_1", QDate(2024, 12, 31)}});
        KalPrintOptions options;
        options.layout = KalPrintOptions::Detailed;
        const QString text = pages(print({id}, options)).join("");
        QCOMPARE(text.count(expected), 2);
    }

    // A 20,000-word description: cut with "usw..." in a row, printed to its
    // last word in a block; a 50,000-character word breaks inside itself.
    void longTexts_data()
    {
        QTest::addColumn<KalPrintOptions::Layout>("layout");
        QTest::addColumn<QString>("description");
        QTest::addColumn<bool>("cut");
        QString words;
        for (int i = 0; i < 20000; ++i)
            words += QStringLiteral("Wort%1 ").arg(i);
        words += QStringLiteral("Schlusswort");
        QTest::newRow("compact words") << KalPrintOptions::Compact << words << true;
        QTest::newRow("detailed words") << KalPrintOptions::Detailed << words << false;
        QTest::newRow("detailed one word") << KalPrintOptions::Detailed << QString(50000, QLatin1Char('x')) << false;
    }
    void longTexts()
    {
        QFETCH(KalPrintOptions::Layout, layout);
        QFETCH(QString, description);
        QFETCH(bool, cut);
        const qint64 id = m_fx.addDefect({{"description", description}});
        const qint64 after = m_fx.addDefect({{"number", "2"}, {"description", "Danach"}});
        KalPrintOptions options;
        options.layout = layout;
        const QString text = pages(print({id, after}, options)).join("");
        QVERIFY(text.contains("Danach"));
        if (cut) {
            QVERIFY(text.contains("usw..."));
            QVERIFY(!text.contains("Schlusswort"));
            QVERIFY(text.contains("Wort0 Wort1"));
        } else if (description.startsWith('x')) {
            QCOMPARE(text.count('x'), 50000);
        } else {
            QVERIFY(text.contains("Wort19999 Schlusswort"));
            QVERIFY(!text.contains("usw..."));
        }
    }

    // Good, corrupt and vanished pictures of one defect, `image_cnt` wrong:
    // every photo is listed in `pos` order, the unreadable ones as placeholders.
    void photos()
    {
        const qint64 good = storePicture(KalTestImages::jpeg(KalTestImages::marked(QSize(1000, 750))));
        QVERIFY(good > 0);
        const qint64 corrupt = storePicture(KalTestImages::jpeg(KalTestImages::marked(QSize(800, 600))));
        QVERIFY(m_fx.exec("UPDATE image SET image=x'ffd8ffe000104a464946', thumbnail=x'00' WHERE id=:id",
                          {{"id", corrupt}}));
        const qint64 id = m_fx.addDefect({{"image_cnt", 7}});
        const struct
        {
            int pos;
            qint64 image;
            const char *caption;
        } rows[] = {{3, 987654, "Drittes"}, {1, good, "Erstes"}, {2, corrupt, "Zweites"}};
        for (const auto &r : rows)
            QVERIFY(m_fx.insert("photo_info", {{"pos", r.pos},
                                               {"image_id", r.image},
                                               {"defect_id", id},
                                               {"caption", r.caption},
                                               {"date", QDate(2026, 3, 4)}}) > 0);
        KalPrintOptions options;
        options.layout = KalPrintOptions::Detailed;
        options.photosInList = true;
        options.photoAnnex = true;
        const QString pdf = print({id}, options);
        const QString text = pages(pdf).join("");
        // The photos stand side by side: heads on one line, titles on the next.
        QVERIFY(text.contains(QRegularExpression("Foto 1 von 3 zu Mangel 1:\\s+Foto 2 von 3 zu Mangel 1:\\s+"
                                                 "Foto 3 von 3 zu Mangel 1:\\s*\\n\\s*Fototitel: Erstes\\s+"
                                                 "Fototitel: Zweites\\s+Fototitel: Drittes")));
        QCOMPARE(text.count("Datum: 04.03.2026"), 3);
        QCOMPARE(text.count("Bild nicht lesbar"), 4);
        const QVector<PdfImage> found = images(pdf);
        QCOMPARE(found.size(), 2); // the good thumbnail and the good photo
        for (const PdfImage &image : found)
            QVERIFY2(image.ppi <= 220, qPrintable(QString::number(image.ppi)));
    }

    void hostileLogos_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<int>("expectedImages");
        const QByteArray good = KalTestImages::jpeg(KalTestImages::marked(QSize(400, 200)));
        QTest::newRow("readable") << good << 1;
        QTest::newRow("no picture") << QByteArray("Dies ist kein Bild") << 0;
        QTest::newRow("truncated") << good.left(good.size() / 2) << 0;
        QTest::newRow("150 megapixels") << KalTestImages::pngHeaderOnly(QSize(15000, 10000)) << 0;
        QTest::newRow("row missing") << QByteArray() << 0;
    }
    void hostileLogos()
    {
        QFETCH(QByteArray, data);
        QFETCH(int, expectedImages);
        qint64 logo = 424242;
        if (!data.isEmpty()) {
            logo = storePicture(KalTestImages::jpeg(KalTestImages::marked(QSize(40, 20))));
            QVERIFY(m_fx.exec("UPDATE image SET image=:d WHERE id=:id", {{"d", data}, {"id", logo}}));
        }
        QVERIFY(m_fx.exec("UPDATE kal SET logo_image_id=:id, logo_align=2, logo2_image_id=-1", {{"id", logo}}));
        const QString pdf = print(manyDefects(120), KalPrintOptions());
        const QStringList text = pages(pdf);
        QVERIFY(text.size() >= 2);
        QVERIFY(text.join("").contains("Riss im Putz"));
        QSet<int> objects;
        for (const PdfImage &image : images(pdf))
            objects.insert(image.object);
        // A logo on every page is stored in the file once.
        QCOMPARE(objects.size(), expectedImages);
    }

    // Two logos of one alignment stand side by side; a logo asked to be
    // 500 mm high leaves the body room for the list.
    void logoSizes_data()
    {
        QTest::addColumn<int>("heightMm");
        QTest::addColumn<int>("maxPages");
        QTest::newRow("25 mm") << 25 << 2;
        QTest::newRow("500 mm") << 500 << 3;
        QTest::newRow("0 mm") << 0 << 2;
    }
    void logoSizes()
    {
        QFETCH(int, heightMm);
        QFETCH(int, maxPages);
        const qint64 a = storePicture(KalTestImages::jpeg(KalTestImages::marked(QSize(300, 300))));
        const qint64 b = storePicture(KalTestImages::jpeg(KalTestImages::marked(QSize(600, 300))));
        QVERIFY(m_fx.exec("UPDATE kal SET logo_image_id=:a, logo_align=0, logo2_image_id=:b, logo2_align=0",
                          {{"a", a}, {"b", b}}));
        KalPrintOptions options = KalPrintOptions::fromSettings();
        options.logoHeightMm = heightMm;
        const QString pdf = print(manyDefects(30), options);
        const QStringList text = pages(pdf);
        QVERIFY(text.size() <= maxPages);
        QVERIFY(text.join("").contains(QRegularExpression("\\n\\s*30\\s+Riss im Putz")));
        const QString png = m_dir.filePath("logos");
        run("pdftoppm", {"-r", "30", "-f", "1", "-l", "1", "-png", pdf, png});
        const QImage page(png + "-1.png");
        QVERIFY(!page.isNull());
        // Both logos start at the left margin and stand in one row: red
        // blocks in their top-left corners on one height.
        int redRows = 0;
        for (int y = 0; y < page.height(); ++y) {
            int runs = 0;
            bool inRed = false;
            for (int x = 0; x < page.width(); ++x) {
                const QColor c = page.pixelColor(x, y);
                const bool red = c.red() > 180 && c.green() < 90;
                runs += red && !inRed;
                inRed = red;
            }
            redRows += runs == 2;
        }
        QCOMPARE(redRows > 0, heightMm > 0);
    }

    // The status cell of a compact row is filled with the status colour; its
    // text stays readable on dark colours.
    void statusCell_data()
    {
        QTest::addColumn<QString>("color");
        QTest::addColumn<bool>("whiteText");
        QTest::newRow("light") << "#ffd700" << false;
        QTest::newRow("dark") << "#1a237e" << true;
    }
    void statusCell()
    {
        QFETCH(QString, color);
        QFETCH(bool, whiteText);
        QVERIFY(m_fx.exec("UPDATE status SET status='Neu', color=:c WHERE id=1", {{"c", color}}));
        const QString pdf = print({m_fx.addDefect({{"status_id", 1}})}, KalPrintOptions());
        const QString boxes = run("pdftotext", {"-bbox", pdf, "-"});
        const QRegularExpressionMatch word =
            QRegularExpression("xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">Neu<")
                .match(boxes);
        QVERIFY(word.hasMatch());
        const QString png = m_dir.filePath("status");
        run("pdftoppm", {"-r", "72", "-singlefile", "-png", pdf, png});
        const QImage page(png + ".png");
        const QRect box(QPoint(word.captured(1).toDouble(), word.captured(2).toDouble()),
                        QPoint(word.captured(3).toDouble(), word.captured(4).toDouble()));
        const QColor fill = page.pixelColor(box.right() + 4, box.center().y());
        const QColor expected(color);
        QVERIFY2(qAbs(fill.red() - expected.red()) < 8 && qAbs(fill.blue() - expected.blue()) < 8,
                 qPrintable(fill.name()));
        int lightest = 0;
        int darkest = 255;
        for (int y = box.top(); y <= box.bottom(); ++y)
            for (int x = box.left(); x <= box.right(); ++x) {
                lightest = qMax(lightest, page.pixelColor(x, y).lightness());
                darkest = qMin(darkest, page.pixelColor(x, y).lightness());
            }
        QVERIFY(whiteText ? lightest > 200 : darkest < 60);
    }

    void reductionSummary()
    {
        const qint64 company = m_fx.addCompany("Dach GmbH", "");
        QVector<qint64> ids;
        ids << m_fx.addDefect({{"number", "1"}, {"reduction", 1}, {"company_id", company}, {"status_id", 1}})
            << m_fx.addDefect({{"number", "2"}, {"reduction", 1}, {"company_id", company}, {"status_id", 1}})
            << m_fx.addDefect({{"number", "3"}, {"reduction", 1}}) << m_fx.addDefect({{"number", "4"}});
        const QStringList text = pages(print(ids, KalPrintOptions()));
        QVERIFY(text.last().contains("Mängelliste - Minderungen"));
        QVERIFY(text.last().contains(QRegularExpression("Dach GmbH\\s+\\S.*\\s2\\n")));
        QVERIFY(text.last().contains(QRegularExpression("ohne Firma\\s+.*\\s1\\n")));
        QVERIFY(text.last().contains(QRegularExpression("Summe\\s+3\\s*\\n")));
        const QStringList none = pages(print({ids.last()}, KalPrintOptions()));
        QVERIFY(!none.join("").contains("Minderungen"));
    }

    // Each sheet once, with the texts of the listed defects only.
    void planAnnex()
    {
        KalPictureStore plans(db(), KalPictureStore::Kind::Plan);
        QString error;
        const qint64 plan = plans.insertFromData(KalTestImages::jpeg(KalTestImages::marked(QSize(2000, 1400))), &error);
        QVERIFY2(plan > 0, qPrintable(error));
        const qint64 sheet = m_fx.insert(
            "plan_info", {{"plan_name", "Erdgeschoss"}, {"plan_index", "B"}, {"plan_id", plan}, {"pos", 1}});
        QVector<qint64> listed;
        for (const char *n : {"1", "2"})
            listed << m_fx.addDefect({{"number", n}, {"plan_info_id", sheet}});
        const qint64 other = m_fx.addDefect({{"number", "3"}, {"plan_info_id", sheet}});
        const QVector<QPair<qint64, QString>> texts{{listed[0], "SICHTBAR"}, {other, "VERSTECKT"}};
        for (const auto &t : texts)
            QVERIFY(
                m_fx.exec("INSERT INTO marker_text (pos_x, pos_y, scale_factor, rotation_angle, transform_point_x, "
                          "transform_point_y, text, color, text_properties, font_family, font_size, plan_info_id, "
                          "defect_id) VALUES (500, 500, 1, 0, 0, 0, :t, '#ff0000', 1, 'Liberation Sans', 40, :s, :d)",
                          {{"t", t.second}, {"s", sheet}, {"d", t.first}}));
        KalPrintOptions options;
        options.planAnnex = true;
        const QString text = pages(print(listed, options)).join("");
        QCOMPARE(text.count("Plan: Erdgeschoss"), 1);
        QVERIFY(text.contains("Index: B"));
        QVERIFY(text.contains("SICHTBAR"));
        QVERIFY(!text.contains("VERSTECKT"));
    }

    // A defect on a plan shows the part of its sheet around its marker in
    // its block, with its own marker only; nothing without a marker there,
    // nothing in the compact list.
    void planExcerpts_data()
    {
        QTest::addColumn<KalPrintOptions::Layout>("layout");
        QTest::addColumn<bool>("onItsSheet");
        QTest::addColumn<bool>("excerpt");
        QTest::newRow("detailed") << KalPrintOptions::Detailed << true << true;
        QTest::newRow("marker on another sheet") << KalPrintOptions::Detailed << false << false;
        QTest::newRow("compact") << KalPrintOptions::Compact << true << false;
    }
    void planExcerpts()
    {
        QFETCH(KalPrintOptions::Layout, layout);
        QFETCH(bool, onItsSheet);
        QFETCH(bool, excerpt);
        const qint64 sheet = addSheet(QSize(2000, 1400));
        const qint64 shown = m_fx.addDefect({{"number", "1"}, {"plan_info_id", sheet}});
        const qint64 other = m_fx.addDefect({{"number", "2"}, {"plan_info_id", sheet}});
        // Magenta for the printed defect, cyan for its neighbour close by.
        addMarker(shown, onItsSheet ? sheet : sheet + 1, QPointF(1000, 700), "#ff00ff");
        addMarker(other, sheet, QPointF(1100, 700), "#00ffff");
        KalPrintOptions options;
        options.layout = layout;
        const QString pdf = print({shown}, options);
        const QVector<PdfImage> found = images(pdf);
        QCOMPARE(found.size(), excerpt ? 1 : 0);
        if (!excerpt)
            return;
        // A fifth of the plan's shorter side, never enlarged.
        QCOMPARE(found.first().width, 280);
        QVERIFY2(found.first().ppi <= 220, qPrintable(QString::number(found.first().ppi)));
        const QString png = m_dir.filePath("excerpt");
        run("pdftoppm", {"-r", "50", "-f", "1", "-l", "1", "-singlefile", "-png", pdf, png});
        const QImage page(png + ".png");
        QVERIFY(!page.isNull());
        int magenta = 0;
        int cyan = 0;
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x) {
                const QColor c = page.pixelColor(x, y);
                magenta += c.red() > 200 && c.blue() > 200 && c.green() < 80;
                cyan += c.green() > 200 && c.blue() > 200 && c.red() < 80;
            }
        QVERIFY(magenta > 0);
        QCOMPARE(cyan, 0);
    }

    // A list that goes back and forth between two sheets decodes each once,
    // also when the decoder's step does not divide the plan's size evenly.
    void oneDecodePerSheet()
    {
        const qint64 sheets[2] = {addSheet(QSize(4001, 2801)), addSheet(QSize(4001, 2801))};
        QVector<qint64> ids;
        for (int i = 0; i < 6; ++i) {
            ids << m_fx.addDefect({{"number", QString::number(i + 1)}, {"plan_info_id", sheets[i % 2]}});
            addMarker(ids.last(), sheets[i % 2], QPointF(600 + 500 * i, 1000), "#ff00ff");
        }
        KalPrintOptions options;
        options.layout = KalPrintOptions::Detailed;
        KalPrintDefects job(db(), ids, options);
        QString error;
        QVERIFY2(job.writePdf(m_dir.filePath("sheets.pdf"), &error), qPrintable(error));
        QCOMPARE(images(m_dir.filePath("sheets.pdf")).size(), 6);
        QCOMPARE(job.sheetDecodeCount(), 2);
    }

    // A printer's paper and orientation are kept; our PDF files are A4.
    void paper_data()
    {
        QTest::addColumn<KalPrintDefects::Paper>("paper");
        QTest::addColumn<QString>("expected");
        QTest::newRow("device") << KalPrintDefects::Paper::Device << "792 x 612 pts \\(letter\\)";
        QTest::newRow("A4") << KalPrintDefects::Paper::A4 << "595 x 842 pts \\(A4\\)";
    }
    void paper()
    {
        QFETCH(KalPrintDefects::Paper, paper);
        QFETCH(QString, expected);
        const QString path = m_dir.filePath("paper.pdf");
        {
            QPdfWriter writer(path);
            writer.setPageSize(QPageSize(QPageSize::Letter));
            writer.setPageOrientation(QPageLayout::Landscape);
            KalPrintDefects job(db(), manyDefects(3), KalPrintOptions());
            job.setupPage(&writer, paper);
            QString error;
            QVERIFY2(job.paint(&writer, &error), qPrintable(error));
        }
        QVERIFY(run("pdfinfo", {path}).contains(QRegularExpression("Page size:\\s+" + expected)));
        QVERIFY(pages(path).join("").contains(QRegularExpression("\\n\\s*3\\s+Riss im Putz")));
    }

    // Left, centre and right texts of the header or the footer share the
    // width: every word once and whole, and on every line the left text's
    // words before the centre's before the right's; short ones on one line.
    void longFrameTexts_data()
    {
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<QStringList>("texts");
        auto words = [](const QString &group) {
            QStringList text;
            for (int w = 10; w < 40; ++w)
                text << group + QString::number(w);
            return text.join(' ');
        };
        const QStringList three{words("Links"), words("Mitte"), words("Rechts")};
        const QStringList footer{"footer_left", "footer_center", "footer_right"};
        QTest::newRow("header") << QStringList{"headline_left", "headline_center", "headline_right"} << three;
        QTest::newRow("footer") << footer << three;
        QTest::newRow("footer without centre")
            << QStringList{"footer_left", "footer_right"} << QStringList{words("Links"), words("Rechts")};
        QTest::newRow("short") << footer << QStringList{"Quellor", "Pellwick", "www.quellor.de"};
    }
    void longFrameTexts()
    {
        QFETCH(QStringList, columns);
        QFETCH(QStringList, texts);
        QHash<QString, int> column;
        for (int i = 0; i < columns.size(); ++i) {
            setFrame(columns.at(i), texts.at(i));
            for (const QString &word : texts.at(i).split(' '))
                column.insert(word, i);
        }
        const QString page = pages(print(manyDefects(2), KalPrintOptions())).value(0);
        for (auto it = column.constBegin(); it != column.constEnd(); ++it)
            QVERIFY2(page.count(QRegularExpression("(^|\\s)" + QRegularExpression::escape(it.key()) + "(\\s|$)")) == 1,
                     qPrintable(page));
        for (const QString &line : page.split('\n')) {
            int last = -1;
            for (const QString &word : line.simplified().split(' ')) {
                const int at = column.value(word, last);
                QVERIFY2(at >= last, qPrintable(line));
                last = at;
            }
        }
    }

    // A full disk or a folder without write access leaves the old PDF as it was.
    void failingTargets_data()
    {
        QTest::addColumn<bool>("readOnlyFolder");
        QTest::newRow("full disk") << false;
        QTest::newRow("read-only folder") << true;
    }
    void failingTargets()
    {
        QFETCH(bool, readOnlyFolder);
        const QVector<qint64> ids = manyDefects(40);
        KalPrintDefects job(db(), ids, KalPrintOptions());
        QString error;
        if (!readOnlyFolder) {
            FullDisk disk(3000);
            QVERIFY(!job.writePdf(&disk, &error));
            QVERIFY(!error.isEmpty());
            return;
        }
        QTemporaryDir dir;
        const QString path = dir.filePath("Liste.pdf");
        QVERIFY(KalTestFiles::writeFile(path, "alte Liste"));
        const QStringList before = KalTestFiles::folderState(dir.path());
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner);
        if (QFileInfo(dir.path()).isWritable() && QFile(dir.filePath("probe")).open(QIODevice::WriteOnly))
            QSKIP("running with rights that ignore folder permissions");
        QVERIFY(!job.writePdf(path, &error));
        QVERIFY(error.contains(QDir::toNativeSeparators(path)));
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(KalTestFiles::folderState(dir.path()), before);
    }

    // Canceling leaves no file and no message, whether the pages were still
    // being laid out or already being painted.
    void cancel_data()
    {
        QTest::addColumn<int>("steps");
        QTest::newRow("laying out") << 2;
        QTest::newRow("painting") << 7;
    }
    void cancel()
    {
        QFETCH(int, steps);
        const QVector<qint64> ids = manyDefects(200);
        QTemporaryDir dir;
        const QString path = dir.filePath("Liste.pdf");
        QVERIFY(KalTestFiles::writeFile(path, "alte Liste"));
        const QStringList before = KalTestFiles::folderState(dir.path());
        KalProgress::install(new CancelAfter(steps));
        KalPrintDefects job(db(), ids, KalPrintOptions());
        QString error;
        const bool written = job.writePdf(path, &error);
        KalProgress::install(new CancelAfter(std::numeric_limits<int>::max()));
        QVERIFY(!written);
        QVERIFY(job.wasCanceled());
        QVERIFY(error.isEmpty());
        QCOMPARE(KalTestFiles::folderState(dir.path()), before);
    }

    void safeNames_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("separators") << "Bau/Technik\\Nord: A*B?"
                                    << "Bau_Technik_Nord_ A_B_";
        QTest::newRow("quotes and brackets") << "\"Meier\" <GmbH> | Söhne"
                                             << "_Meier_ _GmbH_ _ Söhne";
        QTest::newRow("control") << QString("Zeile1\nZeile2\tEnde") << "Zeile1_Zeile2_Ende";
        QTest::newRow("trailing dots") << "Firma e.V. ..."
                                       << "Firma e.V";
        QTest::newRow("reserved") << "con"
                                  << "_con";
        QTest::newRow("reserved with suffix") << "LPT1.txt"
                                              << "_LPT1.txt";
        QTest::newRow("nothing left") << " . "
                                      << "_";
        QTest::newRow("long") << QString(300, 'a') << QString(120, 'a');
    }
    void safeNames()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(KalPrintPerCompany::safeName(text), expected);
    }

    // One file per company with only its defects; names that collide, with
    // each other or with files already there, are numbered.
    void perCompany()
    {
        QVERIFY(m_fx.exec("UPDATE kal SET projectname='Nordstraße'"));
        const qint64 a = m_fx.addCompany("Bau/Nord", "");
        const qint64 b = m_fx.addCompany("Bau:Nord", "");
        const qint64 c = m_fx.addCompany("Elektro", "");
        QVector<qint64> ids;
        ids << m_fx.addDefect({{"number", "1"}, {"company_id", a}, {"description", "Defekt-A"}})
            << m_fx.addDefect({{"number", "2"}, {"company_id", b}, {"description", "Defekt-B"}})
            << m_fx.addDefect({{"number", "3"}, {"company_id", c}, {"description", "Defekt-C"}})
            << m_fx.addDefect({{"number", "4"}, {"description", "Defekt-ohne"}});
        QTemporaryDir dir;
        QVERIFY(KalTestFiles::writeFile(dir.filePath("Nordstraße Mängelliste - Elektro.pdf"), "fremd"));
        QStringList written;
        QString error;
        QVERIFY2(KalPrintPerCompany::write(db(), ids, KalPrintOptions(), dir.path(), &written, &error),
                 qPrintable(error));
        const QMap<QString, QString> expected{
            {"Nordstraße Mängelliste - Bau_Nord.pdf", "Defekt-A"},
            {"Nordstraße Mängelliste - Bau_Nord (2).pdf", "Defekt-B"},
            {"Nordstraße Mängelliste - Elektro (2).pdf", "Defekt-C"},
            {"Nordstraße Mängelliste - ohne Firma.pdf", "Defekt-ohne"},
        };
        QCOMPARE(written.size(), expected.size());
        for (auto it = expected.constBegin(); it != expected.constEnd(); ++it) {
            const QString text = pages(dir.filePath(it.key())).join("");
            QVERIFY2(text.contains(it.value()), qPrintable(it.key()));
            QCOMPARE(text.count("Defekt-"), 1);
        }
        QFile kept(dir.filePath("Nordstraße Mängelliste - Elektro.pdf"));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("fremd"));
    }
};

QTEST_MAIN(TstPrintDefects)
#include "tst_printdefects.moc"
