// pellwick-cli import-plan and export-plan as a script would use them: a real
// PDF through the real rasteriser, markers drawn into the exported picture,
// and refusals that leave every file as it was.
#include "support/KalCliRun.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

class TstCliPlans : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_project;
    QString path(const QString &name) const { return m_dir->filePath(name); }

    bool writePdf(const QString &file)
    {
        QPdfWriter writer(file);
        writer.setPageSize(QPageSize(QPageSize::A5));
        QPainter painter(&writer);
        painter.fillRect(painter.viewport(), Qt::white);
        return painter.end();
    }

    qint64 importPlan()
    {
        if (!writePdf(path("EG Grundriss.pdf")))
            return -1;
        const KalCliRun run = kalCli({"import-plan", m_project, path("EG Grundriss.pdf"), "--name", "EG"});
        return run.code == 0 ? run.text().trimmed().toLongLong() : -1;
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        // Exporting must work on a machine without any display.
        qunsetenv("QT_QPA_PLATFORM");
        qunsetenv("DISPLAY");
        qunsetenv("WAYLAND_DISPLAY");
    }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        m_project = path("bau.pwp");
        QVERIFY(createProject(m_project));
    }

    void importThenExportShowsTheMarker()
    {
        const qint64 sheet = importPlan();
        QVERIFY(sheet > 0);
        QCOMPARE(scalar(m_project, QStringLiteral("SELECT plan_name FROM plan_info WHERE id = %1").arg(sheet)),
                 QStringLiteral("EG"));
        const QString planSize = scalar(m_project, "SELECT MAX(plan_width, plan_height) FROM plan");
        QCOMPARE(planSize, QStringLiteral("5000"));
        const QString statusColour = scalar(m_project, "SELECT color FROM status WHERE id = 1");
        QVERIFY(QColor(statusColour).isValid());
        // A target at (1000, 1000), its status ring 106 px up and left of the centre.
        QVERIFY(execute(m_project,
                        {QStringLiteral("INSERT INTO defect (id, number, description, plan_info_id, status_id) "
                                        "VALUES (77, '1', 'Riss', %1, 1)")
                             .arg(sheet),
                         QStringLiteral("INSERT INTO marker (type, pos_x, pos_y, scale_factor, rotation_angle, "
                                        "color1, color2, linewidth, transform_point_x, transform_point_y, "
                                        "plan_info_id, defect_id) VALUES (4, 744, 744, 1, 0, '#00ff00', '#000000', "
                                        "4, 256, 256, %1, 77)")
                             .arg(sheet),
                         QStringLiteral("INSERT INTO marker_text (pos_x, pos_y, scale_factor, rotation_angle, "
                                        "transform_point_x, transform_point_y, text, color, text_properties, "
                                        "font_family, font_size, plan_info_id, defect_id) VALUES (2000, 2000, 4, 0, "
                                        "0, 0, '0001: Riss', '#000000', 1, 'Arial', 20, %1, 77)")
                             .arg(sheet)}));
        const QByteArray hash = fileHash(m_project);
        const KalCliRun run =
            kalCli({"export-plan", m_project, "--plan", QString::number(sheet), "--output", path("plan.png")});
        QCOMPARE(run.code, 0);
        QCOMPARE(fileHash(m_project), hash);
        const QImage exported(path("plan.png"));
        QCOMPARE(qMax(exported.width(), exported.height()), 5000);
        QCOMPARE(exported.pixelColor(1000 - 75, 1000 - 75), QColor(statusColour));
        QCOMPARE(exported.pixelColor(1000 - 116, 1000 - 116), QColor("#00ff00"));
        int ink = 0;
        for (int y = 2000; y < 2200; ++y)
            for (int x = 2000; x < 2600; ++x)
                ink += qGray(exported.pixel(x, y)) < 100;
        QVERIFY2(ink > 500, qPrintable(QString::number(ink)));
    }

    void refusalsChangeNothing_data()
    {
        QTest::addColumn<QString>("command"); // "@P" the project, "@S" the sheet id, "@D/" the folder
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, const char *command, int code, const char *message) {
            QTest::newRow(name) << QString(command) << code << QString(message);
        };
        row("plan file missing", "import-plan @P @D/fehlt.pdf", 1, "fehlt.pdf");
        row("zero-byte plan", "import-plan @P @D/leer.pdf", 1, "Fehler Plan Import: Der Plan");
        row("no plan file", "import-plan @P --name x", 2, "needs a plan file");
        row("unknown sheet", "export-plan @P --plan 999 --output @D/o.png", 1,
            "Der Plan 999 kann nicht ausgegeben werden.");
        row("undecodable picture", "export-plan @P --plan @S --output @D/o.png", 1, "kann nicht ausgegeben werden.");
        row("no picture suffix", "export-plan @P --plan @S --output @D/o.txt", 2, "picture suffix");
        row("plan id not a number", "export-plan @P --plan eins --output @D/o.png", 2, "--plan ID");
    }
    void refusalsChangeNothing()
    {
        QFETCH(QString, command);
        QStringList args = command.split(QLatin1Char(' '));
        QFETCH(int, code);
        QFETCH(QString, message);
        const qint64 sheet = importPlan();
        QVERIFY(sheet > 0);
        QVERIFY(writeFile(path("leer.pdf"), QByteArray()));
        QVERIFY(execute(m_project, {"UPDATE plan SET plan = x'ffd8ffe000104a46'"}));
        for (QString &arg : args) {
            arg.replace("@P", m_project).replace("@S", QString::number(sheet));
            arg.replace("@D/", m_dir->path() + QLatin1Char('/'));
        }
        const QStringList before = folderState(m_dir->path());
        const KalCliRun run = kalCli(args);
        QCOMPARE(run.code, code);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QCOMPARE(folderState(m_dir->path()), before);
    }
};

QTEST_MAIN(TstCliPlans)
#include "tst_cliplans.moc"
