// Importing an A1 plan PDF (thousands of lines and texts, as a CAD export)
// against running the rasteriser alone with the same arguments, in the same run.
//
//   bench_plans [--runs N] [--lines N] [--texts N]
#include "KalBenchSupport.h"
#include "core/plans/KalPlanRasteriser.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

using namespace KalBench;

namespace {

double seconds(const QElapsedTimer &t)
{
    return t.nsecsElapsed() / 1e9;
}

bool writePlanPdf(const QString &file, int lines, int texts)
{
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QPageSize::A1));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setResolution(300);
    writer.setCreator(QStringLiteral("bench_plans"));
    QPainter painter(&writer);
    const QRect area = painter.viewport();
    QRandomGenerator random(42);
    painter.setPen(QPen(Qt::black, 3));
    for (int i = 0; i < lines; ++i)
        painter.drawLine(random.bounded(area.width()), random.bounded(area.height()), random.bounded(area.width()),
                         random.bounded(area.height()));
    painter.setFont(QFont(QStringLiteral("Arial"), 8));
    for (int i = 0; i < texts; ++i)
        painter.drawText(random.bounded(area.width()), random.bounded(area.height()),
                         QStringLiteral("Raum %1 – 12,5 m²").arg(i));
    return painter.end();
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick bench"));
    KalPrompt::install(new KalStderrPrompt(false));
    int runs = 3, lines = 5000, texts = 3000;
    const QStringList args = app.arguments();
    for (int i = 1; i + 1 < args.size(); i += 2) {
        const int value = args.at(i + 1).toInt();
        if (args.at(i) == QLatin1String("--runs"))
            runs = qMax(1, value);
        else if (args.at(i) == QLatin1String("--lines"))
            lines = value;
        else if (args.at(i) == QLatin1String("--texts"))
            texts = value;
    }
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("A1 Grundriss.pdf"));
    if (!writePlanPdf(pdf, lines, texts)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(pdf));
        return 1;
    }
    const QString program = KalPlanRasteriser::program();
    if (program.isEmpty()) {
        std::fprintf(stderr, "no rasteriser installed\n");
        return 1;
    }
    const int size = KalPictureStore::sizeLimit(KalPictureStore::Kind::Plan);
    QVector<double> alone, imported;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer t;
        t.start();
        const QString root = dir.filePath(QStringLiteral("alone%1").arg(run));
        if (QProcess::execute(program, KalPlanRasteriser::arguments(pdf, root, size)) != 0) {
            std::fprintf(stderr, "rasteriser failed\n");
            return 1;
        }
        alone << seconds(t);
        QFile::remove(KalPlanRasteriser::findFirstPage(root));

        KalProject project;
        if (!project.newProject())
            return 1;
        t.restart();
        const qint64 id = KalPlans(&project).addFile(pdf);
        imported << seconds(t);
        project.setModified(false);
        project.closeProject();
        if (id <= 0)
            return 1;
    }
    const double a = median(alone), b = median(imported);
    std::printf("pdf: A1, %d lines, %d texts, %.1f MB, size %d\n", lines, texts, QFileInfo(pdf).size() / 1048576.0,
                size);
    std::printf("rasteriser alone: %.2f s (median of %d)\n", a, runs);
    std::printf("plan import: %.2f s (median of %d)\n", b, runs);
    std::printf("plan import / rasteriser alone: %.2f (goal: <= 1.3)\n", b / a);
    return 0;
}
