// Measures the defect grid's model against plain SQLite reads in the same run:
//  (a) selecting and fetching every defect vs a forward-only query over the same rows;
//  (b) the display text of the company/status/plan cells (looked up) vs plain text cells.
#include "KalBenchSupport.h"
#include "core/project/KalProject.h"
#include "core/project/KalProjectModels.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <limits>

using namespace KalBench;

namespace {

bool generate(KalProject &project, int defects, int companies, int statuses, int plans)
{
    QSqlDatabase db = project.database();
    project.beginTransaction();
    QSqlQuery q(db);
    q.prepare(QStringLiteral("INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, "
                             "telephone, telefax, mobile, email, pos) VALUES (:id, :type, 'Max', 'Muster', "
                             ":company, 'Hauptstraße 1', '12345', 'Musterstadt', '0123', '0124', '0170', "
                             "'info@example.org', :id)"));
    for (int i = 1; i <= companies; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":type"), QStringLiteral("Gewerk %1").arg(i));
        q.bindValue(QStringLiteral(":company"), QStringLiteral("Firma %1 GmbH & Co. KG").arg(i));
        if (!exec(q))
            return false;
    }
    q.prepare(QStringLiteral("INSERT INTO status (id, status, color, type, reduction_option, pos) "
                             "VALUES (:id, :status, '#123456', 2, 1, :id)"));
    for (int i = 9; i < 9 + statuses; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":status"), QStringLiteral("Benutzerstatus %1").arg(i));
        if (!exec(q))
            return false;
    }
    q.prepare(QStringLiteral("INSERT INTO plan_info (id, plan_name, plan_index, date, plan_id, pos) "
                             "VALUES (:id, :name, 'a', '2024-01-01', -1, :id)"));
    for (int i = 1; i <= plans; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":name"), QStringLiteral("Grundriss Ebene %1").arg(i));
        if (!exec(q))
            return false;
    }
    q.prepare(QStringLiteral(
        "INSERT INTO defect (id, number, description, company_id, type, user_id, creation_date, roomname, "
        "roombook_number, plan_info_id, image_cnt, correction_instruction, priority, correction_date, deadline_1, "
        "deadline_2, deadline_3, status_id, reduction, plan_id, site_journal_data_modified, imported_report_id, "
        "site_journal_id, delete_on_import) VALUES (:id, :number, :description, :company, "
        "'Mangel vor Abnahme', 'MM', '2024-03-01', :room, :roombook, :plan, 0, 'Beseitigen', 'Normal', "
        "'2024-04-01', NULL, NULL, NULL, :status, :reduction, -1, 0, -1, -1, 1)"));
    const int statusCount = 8 + statuses;
    for (int i = 1; i <= defects; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":number"), QString::number(i));
        q.bindValue(QStringLiteral(":description"),
                    QStringLiteral("Putzriss an der Wand neben Fenster %1, bitte fachgerecht schließen.").arg(i));
        q.bindValue(QStringLiteral(":company"), 1 + i % companies);
        q.bindValue(QStringLiteral(":room"), QStringLiteral("Raum %1").arg(i % 300));
        q.bindValue(QStringLiteral(":roombook"), QStringLiteral("R-%1").arg(i % 300));
        q.bindValue(QStringLiteral(":plan"), i % 5 == 0 ? -1 : 1 + i % plans);
        q.bindValue(QStringLiteral(":status"), 1 + i % statusCount);
        q.bindValue(QStringLiteral(":reduction"), i % 7 == 0 ? 1 : 0);
        if (!exec(q))
            return false;
    }
    project.setIdCounter(QStringLiteral("defect"), defects);
    project.setIdCounter(QStringLiteral("company"), companies);
    project.setIdCounter(QStringLiteral("status"), 8 + statuses);
    project.setIdCounter(QStringLiteral("plan_info"), plans);
    return project.commitTransaction();
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    KalPrompt::install(new KalBenchPrompt(KalBenchPrompt::LastButton, KalBenchPrompt::Everything));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    const int defectCount = argc > 1 ? QByteArray(argv[1]).toInt() : 100000;
    const int repetitions = 5;

    KalProject project;
    if (!project.newProject() || !generate(project, defectCount, 40, 12, 30)) {
        std::fprintf(stderr, "could not generate the project\n");
        return 1;
    }
    KalSqlTableModel *defects = project.model(QStringLiteral("defect"));
    if (!defects) {
        std::fprintf(stderr, "no defect model\n");
        return 1;
    }

    // (a) Loading the defect model vs reading the same rows forward only.
    int modelRows = 0;
    const double modelLoad = bestOf(repetitions, [&] {
        defects->select();
        modelRows = defects->rowCount();
    });
    int queryRows = 0;
    const double queryLoad = bestOf(repetitions, [&] {
        QSqlQuery q(project.database());
        q.setForwardOnly(true);
        q.exec(QStringLiteral("SELECT * FROM defect"));
        const int columns = q.record().count();
        int rows = 0;
        QVariant sink;
        while (q.next()) {
            for (int c = 0; c < columns; ++c)
                sink = q.value(c);
            ++rows;
        }
        queryRows = rows;
    });
    if (modelRows != defectCount || queryRows != defectCount) {
        std::fprintf(stderr, "row counts differ: model %d, query %d, expected %d\n", modelRows, queryRows, defectCount);
        return 1;
    }

    // (b) Display texts of looked-up columns vs plain text columns.
    const int lookedUp[] = {defects->fieldIndex(QStringLiteral("company_id")),
                            defects->fieldIndex(QStringLiteral("status_id")),
                            defects->fieldIndex(QStringLiteral("plan_info_id"))};
    const int plain[] = {defects->fieldIndex(QStringLiteral("roomname")), defects->fieldIndex(QStringLiteral("type")),
                         defects->fieldIndex(QStringLiteral("roombook_number"))};
    qint64 lookedUpChars = 0;
    qint64 plainChars = 0;
    auto readColumns = [&](const int(&columns)[3], qint64 &chars) {
        qint64 total = 0;
        const int rows = defects->rowCount();
        for (int row = 0; row < rows; ++row) {
            for (int column : columns)
                total += defects->data(defects->index(row, column), Qt::DisplayRole).toString().size();
        }
        chars = total;
    };
    defects->data(defects->index(0, lookedUp[0])); // builds the lookup maps once
    const double lookupTime = bestOf(repetitions, [&] { readColumns(lookedUp, lookedUpChars); });
    const double plainTime = bestOf(repetitions, [&] { readColumns(plain, plainChars); });
    if (lookedUpChars == 0 || plainChars == 0) {
        std::fprintf(stderr, "no texts read\n");
        return 1;
    }

    std::printf("model_fetch_all_vs_forward_query: %.2f (goal: <= 1.5; %d rows, model %.1f ms, query %.1f ms)\n",
                modelLoad / queryLoad, defectCount, modelLoad, queryLoad);
    std::printf("lookup_display_vs_plain_text: %.2f (goal: <= 2; looked up %.1f ms, plain %.1f ms)\n",
                lookupTime / plainTime, lookupTime, plainTime);
    project.closeProject();
    return 0;
}
