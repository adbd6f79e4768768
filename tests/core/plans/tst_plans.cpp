// Plans as the user adds, replaces and deletes them: real PDFs through the
// real rasteriser, replaced rasterisers that misbehave, hostile files. After
// every failure the project holds no new row and the temporary folder no file.
#include "core/plans/KalPlanRasteriser.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFaults.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>

namespace {

// Page n is filled with its own colour: page 1 red, every other page blue.
bool writePdf(const QString &path, int pages)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A6));
    writer.setResolution(72);
    QPainter painter(&writer);
    for (int page = 1; page <= pages; ++page) {
        if (page > 1)
            writer.newPage();
        painter.fillRect(QRect(0, 0, 400, 600), page == 1 ? Qt::red : Qt::blue);
    }
    return painter.end();
}

bool writePicture(const QString &path, const QSize &size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::green);
    return image.save(path, format);
}

bool writeScript(const QString &path, const QByteArray &body)
{
    return KalTestFiles::writeFile(path, "#!/bin/sh\n" + body + "\n") &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// The standard security handler with a user password nobody knows.
QByteArray encryptedPdf()
{
    return "%PDF-1.4\n1 0 obj << /Type /Catalog /Pages 2 0 R >> endobj\n"
           "2 0 obj << /Type /Pages /Kids [3 0 R] /Count 1 >> endobj\n"
           "3 0 obj << /Type /Page /Parent 2 0 R /MediaBox [0 0 200 200] >> endobj\n"
           "4 0 obj << /Filter /Standard /V 1 /R 2 /P -4 "
           "/O <0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef> "
           "/U <fedcba9876543210fedcba9876543210fedcba9876543210fedcba9876543210> >> endobj\n"
           "trailer << /Root 1 0 R /Size 5 /Encrypt 4 0 R "
           "/ID [<00112233445566778899aabbccddeeff><00112233445566778899aabbccddeeff>] >>\n%%EOF\n";
}

QByteArray zeroPagePdf()
{
    return "%PDF-1.4\n1 0 obj << /Type /Catalog /Pages 2 0 R >> endobj\n"
           "2 0 obj << /Type /Pages /Kids [] /Count 0 >> endobj\n"
           "trailer << /Root 1 0 R /Size 3 >>\n%%EOF\n";
}

} // namespace

class TstPlans : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_files;
    QTemporaryDir m_temp;
    KalTestProject m_project;
    KalScriptedPrompt *m_prompt = nullptr;

    QString file(const QString &name) const { return m_files.filePath(name); }
    QStringList tempFiles() const { return QDir(m_temp.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QImage storedPlan(qint64 planInfoId)
    {
        const QVariant planId = m_project.field("plan_info", planInfoId, "plan_id");
        QString error;
        return KalPictureStore(m_project.project()->database(), KalPictureStore::Kind::Plan)
            .load(planId.toLongLong(), &error);
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        QVERIFY(m_files.isValid() && m_temp.isValid());
        // A private temporary folder shows every file left behind.
        qputenv("TMPDIR", m_temp.path().toLocal8Bit());
        QSettings().setValue(QStringLiteral("Plans/Plansize"), 400);
        QVERIFY(writePdf(file("plan.pdf"), 1));
    }

    void init()
    {
        QVERIFY(m_project.open());
        m_prompt = KalScriptedPrompt::install();
        KalPlanRasteriser::setProgramLookup({});
        KalPlanRasteriser::setFinishTimeout(0);
        KalProgress::install(nullptr);
    }

    void bundledRasteriserComesFirst()
    {
        const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/ptc");
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(writeScript(folder + QStringLiteral("/ptc"), "exit 0"));
        const QString bundled = KalPlanRasteriser::program();
        QVERIFY(QDir(folder).removeRecursively());
        QCOMPARE(bundled, folder + QStringLiteral("/ptc"));
        QVERIFY(KalPlanRasteriser::program().endsWith(QStringLiteral("/pdftocairo")));
    }

    void firstPageNamedByPageCount_data()
    {
        QTest::addColumn<int>("pages");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("1 page") << 1 << "-1.jpg";
        QTest::newRow("10 pages") << 10 << "-01.jpg";
        QTest::newRow("100 pages") << 100 << "-001.jpg";
        QTest::newRow("1000 pages") << 1000 << "-0001.jpg";
    }
    void firstPageNamedByPageCount()
    {
        QFETCH(int, pages);
        QFETCH(QString, suffix);
        const QString pdf = file(QStringLiteral("pages%1.pdf").arg(pages));
        QVERIFY(writePdf(pdf, pages));
        const QStringList before = tempFiles();
        {
            KalPlanRasteriser rasteriser;
            const KalPlanRasteriser::Result result = rasteriser.rasterise(pdf, 300);
            QCOMPARE(int(result.outcome), int(KalPlanRasteriser::Done));
            QVERIFY2(result.jpegPath.endsWith(suffix), qPrintable(result.jpegPath));
            const QImage page(result.jpegPath);
            QCOMPARE(qMax(page.width(), page.height()), 300);
            QVERIFY(qRed(page.pixel(page.width() / 2, page.height() / 2)) > 200);
        }
        QCOMPARE(tempFiles(), before);
    }

    void importsPicturesAndPdfs_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("planName");
        QTest::addColumn<QRgb>("colour");
        QTest::addColumn<QDate>("taken"); // invalid: the file's date
        const QRgb red = qRgb(255, 0, 0);
        const QRgb green = qRgb(0, 255, 0);
        const auto row = [](const char *name, const QString &plan, QRgb colour, const QDate &taken = {}) {
            QTest::newRow(name) << QString(name) << plan << colour << taken;
        };
        row("Grundriss EG.pdf", "Grundriss EG", red);
        row("-Ärger  plan.v2.PDF", "-Ärger  plan.v2", red);
        row("Ansicht Nord.png", "Ansicht Nord", green);
        row("Lageplan.jpg", "Lageplan", green);
        row("Foto.jpeg", "Foto", qRgb(128, 128, 128), QDate(2019, 5, 4));
    }
    void importsPicturesAndPdfs()
    {
        QFETCH(QString, name);
        QFETCH(QString, planName);
        QFETCH(QRgb, colour);
        QFETCH(QDate, taken);
        const QString path = file(name);
        QFile::remove(path);
        KalTestImages::Exif exif;
        exif.dateTaken = QStringLiteral("2019:05:04 10:11:12");
        if (KalPlans::isPdf(path))
            QVERIFY(QFile::copy(file("plan.pdf"), path));
        else if (taken.isValid())
            QVERIFY(KalTestFiles::writeFile(path, KalTestImages::jpeg(KalTestImages::marked(QSize(1200, 600)), exif)));
        else
            QVERIFY(writePicture(path, QSize(1200, 600), name.endsWith("png") ? "PNG" : "JPEG"));
        const QStringList before = tempFiles();
        const KalPlans::Import result = KalPlans(m_project.project()).addFiles({path, path});
        QCOMPARE(m_prompt->titles(), QStringList());
        QCOMPARE(result.planInfoIds.size(), 2);
        const qint64 id = result.planInfoIds.first();
        QCOMPARE(m_project.field("plan_info", id, "plan_name").toString(), planName);
        QCOMPARE(m_project.field("plan_info", id, "date").toDate(),
                 taken.isValid() ? taken : QFileInfo(path).lastModified().date());
        QCOMPARE(m_project.field("plan_info", result.planInfoIds.last(), "pos").toInt(),
                 m_project.field("plan_info", id, "pos").toInt() + 1);
        const QImage stored = storedPlan(id);
        QCOMPARE(qMax(stored.width(), stored.height()), 400);
        const QRgb centre = stored.pixel(stored.width() / 2, stored.height() / 2);
        QVERIFY(qAbs(qRed(centre) - qRed(colour)) < 30 && qAbs(qGreen(centre) - qGreen(colour)) < 30);
        QVERIFY(m_project.project()->isModified());
        QCOMPARE(tempFiles(), before);
    }

    void hostileInputChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("content"); // "@copy" copies the good PDF
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("script"); // empty: the real rasteriser; "@missing": none
        QTest::addColumn<QString>("title");     // empty: no message
        QTest::addColumn<QString>("text");
        const QString failed = QStringLiteral("Der Plan %1 konnte nicht importiert werden.");
        const QString notStarted = QStringLiteral(
            "Die PDF-Konvertierung konnte nicht gestartet werden.\nDie PDF-Datei %1 wurde nicht importiert.");
        const QString importTitle = QStringLiteral("Fehler Plan Import");
        QByteArray png;
        {
            QBuffer buffer(&png);
            buffer.open(QIODevice::WriteOnly);
            QImage(50, 50, QImage::Format_RGB32).save(&buffer, "PNG");
        }
        const auto row = [&](const char *tag, const QByteArray &content, const char *name, const QByteArray &script,
                             const QString &title = QString(), const QString &text = QString()) {
            QTest::newRow(tag) << content << QString(name) << script << (title.isNull() ? importTitle : title)
                               << (text.isNull() ? failed : text);
        };
        const QByteArray pdf("@copy");
        row("zero-byte PDF", {}, "leer.pdf", {});
        row("zero-byte picture", {}, "leer.png", {});
        row("PNG named .pdf", png, "bild.pdf", {});
        row("damaged PDF", "%PDF-1.4\n\x01\x02 nothing here\n", "kaputt.pdf", {});
        row("encrypted PDF", encryptedPdf(), "geheim.pdf", {});
        row("zero-page PDF", zeroPagePdf(), "leer2.pdf", {});
        row("truncated JPEG", QByteArray("\xff\xd8\xff\xe0\x00\x10JFIF", 10), "halb.jpg", {});
        row("over 100 megapixels", KalTestImages::pngHeaderOnly(QSize(20000, 20000)), "riesig.png", {});
        row("temporary folder full", pdf, "plan.pdf", "@copyfault", "Dateifehler",
            "Die PDF-Datei %1 konnte nicht in den Temp-Ordner kopiert werden.");
        row("rasteriser missing", pdf, "plan.pdf", "@missing", "PDF-Fehler", notStarted);
        row("rasteriser exits 3", pdf, "plan.pdf", "exit 3");
        row("rasteriser writes nothing", pdf, "plan.pdf", "exit 0");
        row("rasteriser writes a corrupt JPEG", pdf, "plan.pdf", "printf 'garbage' > \"$2-1.jpg\"; exit 0");
        row("rasteriser hangs", pdf, "plan.pdf", "echo $$ > \"$PIDFILE\"; exec sleep 600");
        row("user cancels", pdf, "plan.pdf", "@cancel echo $$ > \"$PIDFILE\"; exec sleep 600", "", "");
    }
    void hostileInputChangesNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, name);
        QFETCH(QByteArray, script);
        QFETCH(QString, title);
        QFETCH(QString, text);
        QString path = file(name);
        if (content == "@copy")
            path = file("plan.pdf");
        else
            QVERIFY(KalTestFiles::writeFile(path, content));
        const QString pidFile = file("rasteriser.pid");
        QFile::remove(pidFile);
        qputenv("PIDFILE", pidFile.toLocal8Bit());
        if (script == "@copyfault") {
            KalFileOps::setFaultHook([](const QString &operation, const QString &) { return operation == "copy"; });
        } else if (script == "@missing") {
            KalPlanRasteriser::setProgramLookup([this] { return file("no-such-rasteriser"); });
        } else if (!script.isEmpty()) {
            if (script.startsWith("@cancel ")) {
                script = script.mid(8);
                KalProgress::install(new KalCancelingProgress);
            }
            QVERIFY(writeScript(file("ptc.sh"), script));
            KalPlanRasteriser::setProgramLookup([this] { return file("ptc.sh"); });
            KalPlanRasteriser::setFinishTimeout(1500);
        }
        const QStringList before = tempFiles();
        const KalPlans::Import result = KalPlans(m_project.project()).addFiles({path});
        KalProgress::install(nullptr);
        KalFileOps::setFaultHook({});

        QCOMPARE(result.planInfoIds.size(), 0);
        QCOMPARE(result.canceled, title.isEmpty());
        if (title.isEmpty()) {
            QCOMPARE(m_prompt->titles(), QStringList());
        } else {
            QCOMPARE(m_prompt->titles(), QStringList{title});
            QCOMPARE(m_prompt->texts().first(), text.arg(QDir::toNativeSeparators(path)));
            QVERIFY(!m_prompt->shown().first().detailText.isEmpty());
        }
        QCOMPARE(m_project.count("plan"), 0);
        QCOMPARE(m_project.count("plan_info"), 0);
        QVERIFY(!m_project.project()->isModified());
        QCOMPARE(tempFiles(), before);
        // A hanging or canceled rasteriser was stopped, not left running.
        QFile pids(pidFile);
        if (pids.open(QIODevice::ReadOnly)) {
            const int pid = pids.readAll().trimmed().toInt();
            QVERIFY(pid > 0);
            QTRY_VERIFY(::kill(pid, 0) != 0);
        }
    }

    void oneSelectedPlanNeeded_data()
    {
        QTest::addColumn<int>("selected");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("none") << 0 << "Neue Planversion laden"
                              << QStringList{"Wählen Sie zunächst per Mausklick einen Plan aus."};
        QTest::newRow("one") << 1 << "Planauswahl" << QStringList();
        QTest::newRow("several") << 3 << "Planauswahl"
                                 << QStringList{"Sie haben mehrere Pläne ausgewählt. Wählen Sie nur einen Plan aus."};
    }
    void oneSelectedPlanNeeded()
    {
        QFETCH(int, selected);
        QFETCH(QString, title);
        QFETCH(QStringList, texts);
        QCOMPARE(KalPlans::checkOneSelected(selected, title), texts.isEmpty());
        QCOMPARE(m_prompt->texts(), texts);
        if (!texts.isEmpty())
            QCOMPARE(m_prompt->titles(), QStringList{title});
    }

    void newVersionMovesMarkersWithThePicture()
    {
        QVERIFY(writePicture(file("v1.png"), QSize(400, 200), "PNG"));
        QVERIFY(writePicture(file("v2.png"), QSize(200, 50), "PNG"));
        KalPlans plans(m_project.project());
        const qint64 sheet = plans.addFile(file("v1.png"));
        QVERIFY(sheet > 0);
        const qint64 planId = m_project.field("plan_info", sheet, "plan_id").toLongLong();
        const qint64 marker = m_project.insert("marker", {{"type", 1},
                                                          {"pos_x", 100.0},
                                                          {"pos_y", 100.0},
                                                          {"scale_factor", 1.0},
                                                          {"transform_point_x", 20.0},
                                                          {"transform_point_y", 20.0},
                                                          {"plan_info_id", sheet},
                                                          {"defect_id", 1}});
        const qint64 text = m_project.insert("marker_text", {{"pos_x", 10.0},
                                                             {"pos_y", 30.0},
                                                             {"scale_factor", 2.0},
                                                             {"transform_point_x", 0.0},
                                                             {"transform_point_y", 10.0},
                                                             {"text", "0001: Riss"},
                                                             {"plan_info_id", sheet}});
        const qint64 elsewhere = m_project.insert(
            "marker", {{"type", 1}, {"pos_x", 100.0}, {"scale_factor", 1.0}, {"plan_info_id", sheet + 1}});
        QVERIFY(m_project.exec("UPDATE plan_info SET date = '2001-01-01' WHERE id = :id", {{":id", sheet}}));

        QVERIFY(!plans.newVersion(sheet, file("missing.png")));
        QCOMPARE(m_prompt->titles(), QStringList{"Fehler Plan Import"});
        QCOMPARE(m_project.field("marker", marker, "pos_x").toDouble(), 100.0);
        QCOMPARE(m_project.field("plan", planId, "plan_width").toInt(), 400);

        QVERIFY(plans.newVersion(sheet, file("v2.png")));
        QCOMPARE(m_project.count("plan"), 1);
        QCOMPARE(m_project.field("plan_info", sheet, "plan_id").toLongLong(), planId);
        QCOMPARE(m_project.field("plan", planId, "plan_width").toInt(), 200);
        QCOMPARE(m_project.field("plan_info", sheet, "date").toDate(), QFileInfo(file("v2.png")).lastModified().date());
        // Half the width, a quarter of the height: the scale follows the height.
        QCOMPARE(m_project.field("marker", marker, "pos_x").toDouble(), 40.0);
        QCOMPARE(m_project.field("marker", marker, "pos_y").toDouble(), 10.0);
        QCOMPARE(m_project.field("marker", marker, "scale_factor").toDouble(), 0.25);
        QCOMPARE(m_project.field("marker_text", text, "pos_x").toDouble(), 5.0);
        QCOMPARE(m_project.field("marker_text", text, "pos_y").toDouble(), 0.0);
        QCOMPARE(m_project.field("marker_text", text, "scale_factor").toDouble(), 0.5);
        QCOMPARE(m_project.field("marker", elsewhere, "pos_x").toDouble(), 100.0);
    }

    void deleteAsksPerPlanAndClearsReferences()
    {
        QVERIFY(writePicture(file("a.png"), QSize(100, 100), "PNG"));
        KalPlans plans(m_project.project());
        const qint64 a = plans.addFile(file("a.png"), "Plan A");
        const qint64 b = plans.addFile(file("a.png"), "Plan B");
        const qint64 c = plans.addFile(file("a.png"), "Plan C");
        QVERIFY(a > 0 && b > 0 && c > 0);
        const qint64 planA = m_project.field("plan_info", a, "plan_id").toLongLong();
        const qint64 d1 = m_project.addDefect({{"number", "1"}, {"plan_info_id", a}, {"plan_id", planA}});
        const qint64 d2 = m_project.addDefect({{"number", "2"}, {"plan_info_id", a}, {"plan_id", planA}});
        const qint64 d3 = m_project.addDefect({{"number", "3"}, {"plan_info_id", b}});
        for (const qint64 sheet : {a, b}) {
            QVERIFY(m_project.insert("marker", {{"type", 1}, {"plan_info_id", sheet}, {"defect_id", d1}}) > 0);
            QVERIFY(m_project.insert("marker_text", {{"text", "x"}, {"plan_info_id", sheet}, {"defect_id", d1}}) > 0);
        }
        m_prompt->queueAnswer("OK");        // delete three plans
        m_prompt->queueAnswer("OK");        // A with two defects
        m_prompt->queueAnswer("Abbrechen"); // B with one defect
        QCOMPARE(plans.removeAsked({a, b, c}), (QList<qint64>{a, c}));
        QCOMPARE(m_prompt->texts(),
                 (QStringList{"Sie haben 3 Pläne zum Löschen ausgewählt.\nSollen diese Pläne tatsächlich gelöscht "
                              "werden?",
                              "Der Plan Plan A ist 2 Mängeln zugeordnet.\nWenn Sie den Plan löschen, werden diese "
                              "Zuordnungen aufgehoben. Die Mängel sind dann nicht mehr verortet.\n\nSoll dieser Plan "
                              "tatsächlich gelöscht werden?",
                              "Der Plan Plan B ist einem Mangel zugeordnet.\nWenn Sie den Plan löschen, wird diese "
                              "Zuordnung aufgehoben. Der Mangel ist dann nicht mehr verortet.\n\nSoll dieser Plan "
                              "tatsächlich gelöscht werden?"}));
        QCOMPARE(m_project.count("plan_info"), 1);
        QCOMPARE(m_project.count("plan"), 1);
        QCOMPARE(m_project.count("marker", QStringLiteral("plan_info_id = %1").arg(a)), 0);
        QCOMPARE(m_project.count("marker_text", QStringLiteral("plan_info_id = %1").arg(a)), 0);
        QCOMPARE(m_project.count("marker", QStringLiteral("plan_info_id = %1").arg(b)), 1);
        QCOMPARE(m_project.field("defect", d1, "plan_info_id").toLongLong(), -1);
        QCOMPARE(m_project.field("defect", d2, "plan_info_id").toLongLong(), -1);
        QCOMPARE(m_project.field("defect", d3, "plan_info_id").toLongLong(), b);

        m_prompt->clear();
        m_prompt->queueAnswer("Abbrechen");
        QCOMPARE(plans.removeAsked({b}), QList<qint64>());
        QCOMPARE(m_prompt->titles(), QStringList{"Plan löschen"});
        QCOMPARE(m_project.count("plan_info"), 1);

        // A picture another sheet still shows (a hand-edited file) is kept.
        const qint64 twin = m_project.insert(
            "plan_info",
            {{"plan_name", "Zwilling"}, {"pos", 9}, {"plan_id", m_project.field("plan_info", b, "plan_id")}});
        QString error;
        QVERIFY(plans.remove(twin, &error));
        QCOMPARE(m_project.count("plan"), 1);
        QVERIFY(plans.remove(b, &error));
        QCOMPARE(m_project.count("plan"), 0);
    }

    void shrinkingPlansMovesTheirMarkers()
    {
        QVERIFY(writePicture(file("big.png"), QSize(400, 200), "PNG"));
        const qint64 sheet = KalPlans(m_project.project()).addFile(file("big.png"));
        QVERIFY(sheet > 0);
        const qint64 marker = m_project.insert("marker", {{"type", 2},
                                                          {"pos_x", 100.0},
                                                          {"pos_y", 60.0},
                                                          {"scale_factor", 1.0},
                                                          {"transform_point_x", 0.0},
                                                          {"transform_point_y", 0.0},
                                                          {"plan_info_id", sheet},
                                                          {"defect_id", 1}});
        KalPictureStore store(m_project.project()->database(), KalPictureStore::Kind::Plan);
        store.setTransactions(&m_project.project()->transactions());
        store.setShrinkHook(KalPlans::shrinkHook(m_project.project()->database()));
        const KalShrinkResult result = store.shrink(300);
        QCOMPARE(result.done, 1);
        QCOMPARE(m_project.field("marker", marker, "pos_x").toDouble(), 75.0);
        QCOMPARE(m_project.field("marker", marker, "pos_y").toDouble(), 45.0);
        QCOMPARE(m_project.field("marker", marker, "scale_factor").toDouble(), 0.75);
    }
};

QTEST_MAIN(TstPlans)
#include "tst_plans.moc"
