// The plan editor on a very large plan, same run:
//  (a) opening the editor until its first paint vs decoding the plan alone;
//  (b) 20 Ctrl+wheel steps and pans vs one decode (the picture must not be
//      decoded again while zooming and panning);
//  (c) peak resident memory with the main window and the editor open.
#include "KalBenchSupport.h"
#include "core/photos/KalPictureStore.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/plans/KalPlanEditor.h"
#include "gui/plans/KalPlanGraphicsView.h"
#include "gui/widgets/KalResources.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QScrollBar>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <cstdio>
#include <memory>

using namespace KalBench;

namespace {

// A drawing-like plan: a grid of lines on white, written straight into the
// plan row (beyond the size limit an import would fit it into).
bool generate(KalProject &project, const QSize &size, int items, qint64 *planId)
{
    QImage plan(size, QImage::Format_RGB32);
    plan.fill(Qt::white);
    {
        QPainter painter(&plan);
        painter.setPen(QPen(Qt::black, 3));
        for (int x = 0; x < size.width(); x += 250)
            painter.drawLine(x, 0, x, size.height());
        for (int y = 0; y < size.height(); y += 250)
            painter.drawLine(0, y, size.width(), y);
    }
    KalStoredPicture stored;
    QString error;
    if (!KalPictureStore::prepare(plan, &stored, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return false;
    }
    plan = QImage();
    project.beginTransaction();
    KalPictureStore store(project.database(), KalPictureStore::Kind::Plan);
    *planId = store.insertPrepared(stored, &error);
    QSqlQuery q(project.database());
    q.prepare(QStringLiteral("INSERT INTO plan_info (id, plan_name, plan_id, pos) VALUES (1, 'Grundriss', :plan, 1)"));
    q.bindValue(QStringLiteral(":plan"), *planId);
    if (*planId < 0 || !exec(q))
        return false;
    const double scale = size.width() / 10.0 / 512.0;
    for (int i = 1; i <= items; ++i) {
        const double x = 100 + (i * 7919) % (size.width() - 200);
        const double y = 100 + (i * 104729) % (size.height() - 200);
        q.prepare(QStringLiteral("INSERT INTO defect (id, number, description, plan_info_id) VALUES (:id, :number, "
                                 "'Riss im Putz', 1)"));
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":number"), QStringLiteral("%1").arg(i, 4, 10, QLatin1Char('0')));
        if (!exec(q))
            return false;
        q.prepare(QStringLiteral("INSERT INTO marker (id, type, pos_x, pos_y, scale_factor, rotation_angle, color1, "
                                 "color2, linewidth, transform_point_x, transform_point_y, plan_info_id, defect_id) "
                                 "VALUES (:id, :type, :x, :y, :s, 0, '#ffff00', '#000000', 0, 160, 512, 1, :id)"));
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":type"), 1 + i % 4);
        q.bindValue(QStringLiteral(":x"), x - 160);
        q.bindValue(QStringLiteral(":y"), y - 512);
        q.bindValue(QStringLiteral(":s"), scale / 4);
        if (!exec(q))
            return false;
        q.prepare(QStringLiteral("INSERT INTO marker_text (id, pos_x, pos_y, scale_factor, rotation_angle, "
                                 "transform_point_x, transform_point_y, text, color, text_properties, font_family, "
                                 "font_size, plan_info_id, defect_id) VALUES (:id, :x, :y, 4, 0, 0, 0, :text, "
                                 "'#000000', 0, 'Arial', 8, 1, :id)"));
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":x"), x + 20);
        q.bindValue(QStringLiteral(":y"), y - 60);
        q.bindValue(QStringLiteral(":text"), QStringLiteral("%1: Riss im Putz").arg(i, 4, 10, QLatin1Char('0')));
        if (!exec(q))
            return false;
    }
    return project.commitTransaction();
}

// Starts the peak anew, so that generating and decoding before do not count.
void resetPeakRss()
{
    QFile clear(QStringLiteral("/proc/self/clear_refs"));
    if (!clear.open(QIODevice::WriteOnly) || clear.write("5") != 1)
        std::fprintf(stderr, "peak memory cannot be reset; it includes generating the plan\n");
}

void wheel(QWidget *viewport, int delta)
{
    const QPoint at(viewport->width() / 2, viewport->height() / 2);
    QWheelEvent event(at, viewport->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(viewport, &event);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QTemporaryDir dir;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir.filePath(QStringLiteral("config")));
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Pellwick Bench"));
    kalInitGuiResources();
    KalPrompt::install(new KalBenchPrompt(KalBenchPrompt::SafeAnswer, KalBenchPrompt::ProblemsOnly));

    const QSize planSize(10000, 7000);
    const int items = argc > 1 ? QByteArray(argv[1]).toInt() : 2000;
    const QString file = dir.filePath(QStringLiteral("bench.pwp"));
    qint64 planId = -1;
    // (a) Decoding alone (best of three; the machine is shared), before the
    // window opens: its decoded copy must not count towards the peak of the
    // window and the editor.
    double decodeMs = 1e300;
    {
        KalProject project;
        if (!project.newProject() || !generate(project, planSize, items, &planId) || project.saveProject(file) != 0) {
            std::fprintf(stderr, "could not generate the project\n");
            return 1;
        }
        for (int i = 0; i < 3; ++i) {
            QElapsedTimer timer;
            timer.start();
            QString error;
            const QImage decoded =
                KalPictureStore(project.database(), KalPictureStore::Kind::Plan).load(planId, &error);
            decodeMs = qMin(decodeMs, timer.nsecsElapsed() / 1e6);
            if (decoded.size() != planSize) {
                std::fprintf(stderr, "decoded %dx%d: %s\n", decoded.width(), decoded.height(), qPrintable(error));
                return 1;
            }
        }
        project.closeProject();
    }

    resetPeakRss();
    KalMainWindow window;
    window.resize(1400, 900);
    window.show();
    window.openProject(file);
    app.processEvents();
    KalProject *project = window.project();

    // ... vs the editor up to its first paint (best of two). The main
    // window's panel shows the current defect's plan already.
    double editorMs = 1e300;
    std::unique_ptr<KalPlanEditor> editor;
    KalPlanGraphicsView *view = nullptr;
    for (int i = 0; i < 2; ++i) {
        editor.reset();
        app.processEvents();
        QElapsedTimer timer;
        timer.start();
        editor = std::make_unique<KalPlanEditor>(project, 1, 1, &window);
        view = editor->findChild<KalPlanGraphicsView *>(QStringLiteral("gvPlan"));
        bool painted = false;
        QObject::connect(view, &KalPlanGraphicsView::painted, [&painted] { painted = true; });
        editor->resize(1200, 800);
        editor->show();
        view->fitToWindow();
        while (!painted)
            app.processEvents();
        editorMs = qMin(editorMs, timer.nsecsElapsed() / 1e6);
    }

    // (b) Ten notches in, ten out, each with a pan and a repaint.
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 20; ++i) {
        wheel(view->viewport(), i < 10 ? 120 : -120);
        view->horizontalScrollBar()->setValue(view->horizontalScrollBar()->value() + 37);
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->value() + 23);
        view->viewport()->repaint();
    }
    const double zoomMs = timer.nsecsElapsed() / 1e6;
    const long rssMb = peakRssKb() / 1024;

    std::printf("plan_editor_first_paint_ms: %.0f\n", editorMs);
    std::printf("plan_decode_alone_ms: %.0f\n", decodeMs);
    std::printf("plan_editor_first_paint_vs_decode: %.2f (goal: <= 1.5)\n", editorMs / decodeMs);
    std::printf("plan_editor_20_zoom_pan_steps_ms: %.0f\n", zoomMs);
    // A step that decoded the plan would cost at least one decode.
    std::printf("plan_editor_zoom_pan_step_vs_decode: %.2f (goal: < 1, no step decodes)\n", zoomMs / 20 / decodeMs);
    std::printf("plan_editor_peak_rss_mb: %ld (goal: < 500)\n", rssMb);
    editor.reset();
    window.closeProject(false);
    return 0;
}
