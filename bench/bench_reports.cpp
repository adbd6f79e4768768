// Measures the defect-list filter against plain SQLite reads in the same run:
// each filter choice (statement, reading, company names, order) against a
// forward-only query that reads the same rows of the same statement.
#include "KalBenchSupport.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/reports/KalDefectFilter.h"

#include <QDate>
#include <QGuiApplication>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStandardPaths>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>

using namespace KalBench;

namespace {

const int Companies = 60;
const int Rooms = 300;

QString room(int i)
{
    // Every tenth room name carries a quote, as real ones do.
    return i % 10 == 0 ? QStringLiteral("Eltern'zimmer %1").arg(i) : QStringLiteral("Raum %1").arg(i);
}

QVariant dateOrNull(int defect, int salt, int modulo)
{
    if ((defect + salt) % modulo == 0)
        return QVariant(QVariant::String);
    return QDate(2025, 1, 1).addDays((defect * 7 + salt * 13) % 500).toString(Qt::ISODate);
}

bool generate(KalProject &project, int defects)
{
    project.beginTransaction();
    QSqlQuery q(project.database());
    q.prepare(QStringLiteral("INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, "
                             "telephone, telefax, mobile, email, pos) VALUES (:id, 'Gewerk', '', '', :company, '', "
                             "'', '', '', '', '', '', :id)"));
    for (int i = 1; i <= Companies; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        // Mixed case: the order compares names case-insensitively.
        q.bindValue(QStringLiteral(":company"),
                    (i % 2 ? QStringLiteral("firma %1") : QStringLiteral("Firma %1")).arg(i));
        if (!q.exec())
            return false;
    }
    q.prepare(QStringLiteral(
        "INSERT INTO defect (id, number, description, company_id, type, user_id, creation_date, roomname, "
        "roombook_number, image_cnt, priority, correction_date, deadline_1, deadline_2, status_id, reduction) "
        "VALUES (:id, :number, 'Putzriss', :company, :type, 'MM', :created, :room, :roombook, :images, :priority, "
        ":correction, :deadline1, :deadline2, :status, :reduction)"));
    const char *const priorities[] = {"Niedrig", "Normal", "Hoch"};
    for (int i = 1; i <= defects; ++i) {
        q.bindValue(QStringLiteral(":id"), i);
        q.bindValue(QStringLiteral(":number"), QString::number(defects + 1 - i));
        q.bindValue(QStringLiteral(":company"), i % 11 == 0 ? QVariant(0) : QVariant(1 + i % Companies));
        q.bindValue(QStringLiteral(":type"), i % 3 ? QStringLiteral("Mangel") : QStringLiteral("Restarbeit"));
        q.bindValue(QStringLiteral(":created"), dateOrNull(i, 1, 97));
        q.bindValue(QStringLiteral(":room"), room(i % Rooms));
        q.bindValue(QStringLiteral(":roombook"), QStringLiteral("R-%1").arg(i % 120));
        q.bindValue(QStringLiteral(":images"), i % 4);
        q.bindValue(QStringLiteral(":priority"), QString::fromLatin1(priorities[i % 3]));
        q.bindValue(QStringLiteral(":correction"), dateOrNull(i, 2, 5));
        q.bindValue(QStringLiteral(":deadline1"), dateOrNull(i, 3, 2));
        q.bindValue(QStringLiteral(":deadline2"), dateOrNull(i, 4, 3));
        q.bindValue(QStringLiteral(":status"), 1 + i % 8);
        q.bindValue(QStringLiteral(":reduction"), i % 7 == 0 ? 1 : 0);
        if (!q.exec()) {
            std::fprintf(stderr, "SQL: %s\n", qPrintable(q.lastError().text()));
            return false;
        }
    }
    return project.commitTransaction();
}

// Processor time of this thread in ms: the machine is shared, and time spent
// waiting for a core says nothing about the code.
double threadMs()
{
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
}

// Best times of two pieces of work run in turns, so that load from other
// programs on the machine falls on both alike.
std::pair<double, double> bestOfBoth(int repetitions, const std::function<void()> &first,
                                     const std::function<void()> &second)
{
    double best[2] = {std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    for (int i = 0; i < repetitions; ++i) {
        for (int which = 0; which < 2; ++which) {
            const double start = threadMs();
            (which == 0 ? first : second)();
            best[which] = qMin(best[which], threadMs() - start);
        }
    }
    return {best[0], best[1]};
}

// The floor: the filter's own statement, every column of every row read.
int plainRead(KalProject &project, const KalDefectFilterState &state)
{
    QSqlQuery q(project.database());
    q.setForwardOnly(true);
    q.prepare(KalDefectFilter::statement(state));
    if (state.creationDateFilter) {
        q.bindValue(QStringLiteral(":fromDate"), state.creationDateFrom.toString(Qt::ISODate));
        q.bindValue(QStringLiteral(":toDate"), state.creationDateTo.toString(Qt::ISODate));
    }
    if (state.deadlineFilter)
        q.bindValue(QStringLiteral(":deadlineDate"), state.deadlineDate.toString(Qt::ISODate));
    if (!q.exec())
        return -1;
    const int columns = q.record().count();
    int rows = 0;
    QVariant sink;
    while (q.next()) {
        for (int c = 0; c < columns; ++c)
            sink = q.value(c);
        ++rows;
    }
    return rows;
}

struct Case
{
    const char *name;
    std::function<void(KalDefectFilterState &)> choose;
};

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    KalPrompt::install(new KalBenchPrompt(KalBenchPrompt::LastButton, KalBenchPrompt::Everything));

    const int defectCount = argc > 1 ? QByteArray(argv[1]).toInt() : 50000;
    const int repetitions = 9;
    KalProject project;
    if (!project.newProject() || !generate(project, defectCount)) {
        std::fprintf(stderr, "could not generate the project\n");
        return 1;
    }

    using State = KalDefectFilterState;
    const Case cases[] = {
        {"no_filter_by_number", [](State &) {}},
        {"no_filter_by_company", [](State &s) { s.sort = State::SortByCompany; }},
        {"no_filter_by_deadline_desc",
         [](State &s) {
             s.sort = State::SortByDeadline;
             s.ascending = false;
         }},
        {"creation_date_sorted_by_date",
         [](State &s) {
             s.creationDateFilter = true;
             s.creationDateFrom = QDate(2025, 2, 1);
             s.creationDateTo = QDate(2025, 12, 31);
             s.sort = State::SortByCreationDate;
         }},
        {"all_filters_by_company",
         [](State &s) {
             s.deadlineFilter = true;
             s.deadlineDate = QDate(2026, 6, 1);
             s.defectsWithoutCompany = true;
             s.listFilter[State::CompanyList] = true;
             for (int c = 1; c <= Companies; c += 2)
                 s.ticked[State::CompanyList].append(c);
             s.listFilter[State::StatusList] = true;
             s.ticked[State::StatusList] = {1, 2, 3, 5, 8};
             s.listFilter[State::RoomnameList] = true;
             for (int r = 0; r < Rooms; r += 2)
                 s.ticked[State::RoomnameList].append(room(r));
             s.listFilter[State::PriorityList] = true;
             s.ticked[State::PriorityList] = {"Normal", "Hoch"};
             s.sort = State::SortByCompany;
         }},
    };
    KalDefectFilter filter(project);
    bool allMet = true;
    for (const Case &c : cases) {
        State state = State::defaults(QDate(2026, 1, 1));
        c.choose(state);
        int filtered = 0;
        int plain = 0;
        const auto [filterTime, plainTime] = bestOfBoth(
            repetitions, [&] { filtered = filter.select(state).defects.size(); },
            [&] { plain = plainRead(project, state); });
        if (filtered != plain || filtered == 0) {
            std::fprintf(stderr, "%s: filter listed %d rows, plain read %d\n", c.name, filtered, plain);
            return 1;
        }
        const double ratio = filterTime / plainTime;
        allMet = allMet && ratio <= 1.5;
        std::printf("filter_%s_vs_plain_select: %.2f (goal: <= 1.5; %d of %d rows, filter %.1f ms, plain %.1f ms)\n",
                    c.name, ratio, filtered, defectCount, filterTime, plainTime);
    }
    project.setModified(false);
    project.closeProject();
    return allMet ? 0 : 2;
}
