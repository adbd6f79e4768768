// A second program instance for the lock and crash tests: opens a project
// through the real lifecycle and then holds it, edits it or saves it in a
// loop, reporting each step on stdout.
#include "core/project/KalDefects.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QThread>
#include <QVariantMap>
#include <cstdio>

static void report(const char *what, qint64 n)
{
    std::printf("%s %lld\n", what, static_cast<long long>(n));
    std::fflush(stdout);
}

// With a barrier folder, every instance stops just before it copies the
// project to a working copy until the test lets them all go at once.
static void waitAtBarrierBeforeCopying(const QString &folder)
{
    KalFileOps::setFaultHook([folder](const QString &operation, const QString &path) {
        if (operation == QLatin1String("copy") && path.contains(QLatin1String(".workingcopy"))) {
            QFile arrived(folder + QStringLiteral("/arrived.") + QString::number(QCoreApplication::applicationPid()));
            arrived.open(QIODevice::WriteOnly);
            arrived.close();
            for (int i = 0; i < 6000 && !QFileInfo::exists(folder + QStringLiteral("/go")); ++i)
                QThread::msleep(5);
        }
        return false;
    });
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick"));
    const QStringList args = app.arguments();
    if (args.size() < 3) {
        std::fprintf(stderr, "usage: kal_test_holder hold|edit|saveloop FILE [N]\n");
        return 2;
    }
    KalPrompt::install(new KalStderrPrompt(false));
    const QString mode = args.at(1);
    const QString file = args.at(2);
    const int count = args.size() > 3 ? args.at(3).toInt() : 1000000;

    if (qEnvironmentVariableIsSet("PELLWICK_TEST_COPY_BARRIER"))
        waitAtBarrierBeforeCopying(qEnvironmentVariable("PELLWICK_TEST_COPY_BARRIER"));
    KalProject project;
    if (!project.openProject(file))
        return 1;
    report("opened", project.model(QStringLiteral("defect"))->rowCount());

    if (mode == QLatin1String("hold")) {
        report("ready", 0);
        // Until the test kills us or closes our stdin.
        QFile in;
        in.open(stdin, QIODevice::ReadOnly);
        in.readAll();
        return project.closeProject() ? 0 : 1;
    }
    if (mode == QLatin1String("edit")) {
        for (int i = 1; i <= count; ++i) {
            const qint64 id =
                KalDefects(project).add({{QStringLiteral("description"), QStringLiteral("edit %1").arg(i)}});
            if (id < 0)
                return 1;
            report("committed", i);
        }
        report("ready", 0);
        QFile in;
        in.open(stdin, QIODevice::ReadOnly);
        in.readAll();
        return 0; // leaves the working copy behind, like a crash
    }
    if (mode == QLatin1String("saveloop")) {
        for (int i = 1; i <= count; ++i) {
            const qint64 id =
                KalDefects(project).add({{QStringLiteral("description"), QStringLiteral("save %1").arg(i)}});
            if (id < 0)
                return 1;
            report("committed", i);
            if (project.saveProject() != KalProject::Saved)
                return 1;
            report("saved", i);
        }
        return project.closeProject() ? 0 : 1;
    }
    return 2;
}
