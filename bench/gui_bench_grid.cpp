// The main window's defect grid against the defect model alone, same run:
//  (a) opening a project until the grid has painted its first screen vs
//      selecting and fetching the defect model;
//  (b) sorting the grid by "Firma" or "Status" (looked-up texts) vs by "Raum".
#include "KalBenchSupport.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalItemDelegate.h"
#include "gui/widgets/KalResources.h"
#include "gui/widgets/KalTableView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <limits>

using namespace KalBench;

namespace {

bool generate(KalProject &project, int defects, int companies)
{
    project.beginTransaction();
    QSqlQuery q(project.database());
    q.prepare(QStringLiteral("INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, "
                             "telephone, telefax, mobile, email, pos) VALUES (:id, :type, 'Max', 'Muster', "
                             ":company, 'Hauptstraße 1', '12345', 'Musterstadt', '0123', '0124', '0170', "
                             "'info@example.org', :id)"));
    for (int i = 1; i <= companies; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":type"), QStringLiteral("Gewerk %1").arg(i));
        // Names in an order unlike the ids, so a sort by text differs from one by id.
        q.bindValue(QStringLiteral(":company"), QStringLiteral("Firma %1 GmbH").arg((i * 7919) % 1000));
        if (!exec(q))
            return false;
    }
    q.prepare(QStringLiteral(
        "INSERT INTO defect (id, number, description, company_id, type, user_id, creation_date, roomname, "
        "roombook_number, plan_info_id, image_cnt, correction_instruction, priority, correction_date, status_id, "
        "reduction) VALUES (:id, :number, :description, :company, 'Mangel vor Abnahme', 'MM', '2024-03-01', :room, "
        ":roombook, -1, 0, 'Beseitigen', 'Normal', '2024-04-01', :status, :reduction)"));
    for (int i = 1; i <= defects; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":number"), QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0')));
        q.bindValue(QStringLiteral(":description"),
                    QStringLiteral("Putzriss an der Wand neben Fenster %1, bitte fachgerecht schließen.").arg(i));
        q.bindValue(QStringLiteral(":company"), 1 + (i * 31) % companies);
        q.bindValue(QStringLiteral(":room"), QStringLiteral("Raum %1").arg((i * 17) % 300));
        q.bindValue(QStringLiteral(":roombook"), QStringLiteral("R-%1").arg(i % 300));
        q.bindValue(QStringLiteral(":status"), 1 + i % 8);
        q.bindValue(QStringLiteral(":reduction"), i % 7 == 0 ? 1 : 0);
        if (!exec(q))
            return false;
    }
    project.setIdCounter(QStringLiteral("defect"), defects);
    project.setIdCounter(QStringLiteral("company"), companies);
    return project.commitTransaction();
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
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    const int defectCount = argc > 1 ? QByteArray(argv[1]).toInt() : 50000;
    const int repetitions = 3;
    const QString file = dir.filePath(QStringLiteral("bench.pwp"));
    {
        KalProject project;
        if (!project.newProject() || !generate(project, defectCount, 120) || project.saveProject(file) != 0) {
            std::fprintf(stderr, "could not generate the project\n");
            return 1;
        }
        project.closeProject();
    }

    KalMainWindow window;
    window.resize(1400, 900);
    window.show();
    app.processEvents();
    KalTableView *view = window.defectTable();

    // (a) Opening until the first screen of the grid is painted ...
    int shownRows = 0;
    double openTime = std::numeric_limits<double>::max();
    for (int i = 0; i < repetitions; ++i) {
        window.closeProject(false);
        app.processEvents();
        QElapsedTimer timer;
        timer.start();
        window.openProject(file);
        view->viewport()->repaint();
        openTime = qMin(openTime, double(timer.nsecsElapsed()) / 1e6);
        shownRows = window.defectModel() ? window.defectModel()->rowCount() : 0;
    }
    if (shownRows != defectCount) {
        std::fprintf(stderr, "grid shows %d rows, expected %d\n", shownRows, defectCount);
        return 1;
    }
    // ... vs the defect model alone, on the same open connection.
    int modelRows = 0;
    const double modelTime = bestOf(repetitions, [&] {
        KalSqlTableModel model(window.project(), nullptr, window.project()->database());
        model.setTable(QStringLiteral("defect"));
        model.select();
        model.fetchAll();
        modelRows = model.rowCount();
    });
    if (modelRows != defectCount) {
        std::fprintf(stderr, "model holds %d rows, expected %d\n", modelRows, defectCount);
        return 1;
    }

    // (b) Sorting by a column, including the repaint of the first screen.
    KalSqlTableModel *model = window.defectModel();
    auto sortBy = [&](const char *field) {
        const int column = model->fieldIndex(QLatin1String(field));
        return bestOf(repetitions, [&] {
            view->sortByColumn(column, Qt::AscendingOrder);
            view->viewport()->repaint();
            view->sortByColumn(column, Qt::DescendingOrder);
            view->viewport()->repaint();
        });
    };
    const double roomSort = sortBy("roomname");
    const double companySort = sortBy("company_id");
    const double statusSort = sortBy("status_id");

    std::printf("open_until_grid_painted_vs_model_load: %.2f (goal: <= 1.5; %d defects, open %.1f ms, model %.1f ms)\n",
                openTime / modelTime, defectCount, openTime, modelTime);
    std::printf("sort_company_vs_room: %.2f (goal: <= 1.5; company %.1f ms, room %.1f ms)\n", companySort / roomSort,
                companySort, roomSort);
    std::printf("sort_status_vs_room: %.2f (goal: <= 1.5; status %.1f ms, room %.1f ms)\n", statusSort / roomSort,
                statusSort, roomSort);
    window.closeProject(false);
    return 0;
}
