// The defect-list filter on a real project: which defects a list gets, in
// which order, what the user is told, and what survives a reopening.
#include "core/project/KalProject.h"
#include "core/reports/KalDefectFilter.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QTemporaryDir>
#include <QtTest>

using State = KalDefectFilterState;
Q_DECLARE_METATYPE(KalDefectFilterState)

namespace {

enum : qint64 { AlphaBau = 101, Beta = 102, AlphaLower = 103, Unused = 104, Deleted = 99 };

QDate day(int month, int d)
{
    return QDate(2026, month, d);
}

// The ids of companies and statuses a list filter ticks, or its texts.
State with(State s, State::List list, const QVariantList &ticked)
{
    s.listFilter[list] = true;
    s.ticked[list] = ticked;
    return s;
}

State sorted(State::Sort by, bool ascending)
{
    State s = State::defaults(day(1, 1));
    s.sort = by;
    s.ascending = ascending;
    return s;
}

State created(const QDate &from, const QDate &to)
{
    State s = State::defaults(day(1, 1));
    s.creationDateFilter = true;
    s.creationDateFrom = from;
    s.creationDateTo = to;
    return s;
}

State deadline(const QDate &limit)
{
    State s = State::defaults(day(1, 1));
    s.deadlineFilter = true;
    s.deadlineDate = limit;
    return s;
}

State withoutCompany(State s = State::defaults(day(1, 1)))
{
    s.defectsWithoutCompany = true;
    return s;
}

State reduction(bool with, State s = State::defaults(day(1, 1)))
{
    s.reductionFilter = true;
    s.withReduction = with;
    return s;
}

State everythingChosen()
{
    State s = created(day(1, 2), day(3, 4));
    s.deadlineFilter = true;
    s.deadlineDate = day(5, 6);
    s = with(withoutCompany(s), State::CompanyList, {AlphaBau, AlphaLower});
    s = with(s, State::StatusList, {2});
    s = with(s, State::RoomnameList, {"Eltern'zimmer", "x') OR 1=1 --"});
    s = with(s, State::PriorityList, {"Hoch"});
    s.listFilter[State::TypeList] = true; // on, nothing ticked
    s = reduction(false, s);
    s.sort = State::SortByCompany;
    s.ascending = false;
    s.printPhotosAsAnnex = true;
    s.printPlansAsAnnex = true;
    return s;
}

} // namespace

class TstDefectFilter : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;
    KalTestProject m_fx;

    QString numbers(const KalDefectFilterResult &result)
    {
        QStringList out;
        for (const KalFilteredDefect &d : result.defects)
            out << d.number;
        return out.join(',');
    }

    void addDefects()
    {
        QVERIFY(m_fx.addCompany("Alpha Bau", "", {{"id", AlphaBau}}) == AlphaBau);
        QVERIFY(m_fx.addCompany("beta GmbH", "", {{"id", Beta}}) == Beta);
        QVERIFY(m_fx.addCompany("alpha bau", "", {{"id", AlphaLower}}) == AlphaLower);
        QVERIFY(m_fx.addCompany("Zeta", "", {{"id", Unused}}) == Unused);
        const QVariant none;
        const QStringList columns{"number",     "company_id", "creation_date", "roomname",  "roombook_number",
                                  "type",       "priority",   "status_id",     "reduction", "correction_date",
                                  "deadline_1", "deadline_2"};
        const QVariantList rows[] = {
            {"1", AlphaBau, day(1, 10), "Küche", "R1", "Mangel", "Hoch", 1, 0, day(2, 1), none, none},
            {"2", Beta, day(1, 5), "Eltern'zimmer", "R2", "Restarbeit", "Normal", 2, 1, day(1, 20), day(3, 1), none},
            {"10", 0, day(1, 10), "x') OR 1=1 --", "R1", "Mangel", "Niedrig", 2, 0, none, none, none},
            {"9", none, day(1, 20), "Bad", "R1", "Mangel", "Normal", 1, 0, day(1, 15), day(1, 25), day(2, 10)},
            {"9a", AlphaBau, day(1, 5), "Küche", "R9", "Mangel", "Normal", 2, 1, day(2, 1), none, none},
            {"3", AlphaLower, day(1, 10), "Bad", "R3", "Mangel", "Normal", 1, 0, day(5, 1), none, none},
            {"11", Deleted, day(2, 1), "Flur", "R1", "Mangel", "Normal", 1, 0, none, day(1, 18), none},
            {"12", Beta, none, none, "R1", "Mangel", "Normal", 3, 0, none, none, none},
        };
        for (const QVariantList &r : rows) {
            QVariantMap fields;
            for (int i = 0; i < columns.size(); ++i)
                fields.insert(columns.at(i), r.at(i));
            QVERIFY(m_fx.addDefect(fields) > 0);
        }
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
        QVERIFY(m_fx.open());
        addDefects();
    }

    void cleanupTestCase() { m_fx.close(); }

    void init() { m_prompt->clear(); }

    void selection_data()
    {
        QTest::addColumn<State>("state");
        QTest::addColumn<QString>("expected"); // defect numbers in list order
        QTest::addColumn<QString>("message");  // empty: nothing shown
        const auto row = [](const char *name, const State &s, const char *expected, const QString &message = {}) {
            QTest::newRow(name) << s << QString(expected) << message;
        };
        const QString empty = "Die Liste der ausgewählten Mängel ist leer, da kein Mangel die eingestellten "
                              "Auswahlkriterien erfüllt.";
        const State none = State::defaults(day(1, 1));
        row("no filter", none, "1,2,3,9,9a,10,11,12");
        row("without company: 0 and NULL", withoutCompany(), "9,10");
        row("without company and status", with(withoutCompany(), State::StatusList, {1}), "9");
        row("one company", with(none, State::CompanyList, {AlphaBau}), "1,9a");
        row("company or none", with(withoutCompany(), State::CompanyList, {AlphaBau}), "1,9,9a,10");
        row("company ticked none, without on", with(withoutCompany(), State::CompanyList, {}), "9,10");
        row("created in range", created(day(1, 5), day(1, 10)), "1,2,3,9a,10");
        row("created on one day", created(day(1, 20), day(1, 20)), "9");
        row("deadline: none after limit", deadline(day(2, 1)), "1,9a,11");
        row("deadline: limit on a date", deadline(day(3, 1)), "1,2,9,9a,11");
        row("deadline: before all", deadline(day(1, 1)), "", empty);
        row("quoted rooms", with(none, State::RoomnameList, {"x') OR 1=1 --", "Eltern'zimmer"}), "2,10");
        row("type", with(none, State::TypeList, {"Restarbeit"}), "2");
        row("room-book number", with(none, State::RoombookNoList, {"R3", "R9"}), "3,9a");
        row("priority", with(none, State::PriorityList, {"Hoch", "Niedrig"}), "1,10");
        row("status", with(none, State::StatusList, {3}), "12");
        row("with reduction", reduction(true), "2,9a");
        row("without reduction", reduction(false), "1,3,9,10,11,12");

        row("number descending", sorted(State::SortByNumber, false), "12,11,10,9a,9,3,2,1");
        row("company ascending", sorted(State::SortByCompany, true), "9a,1,3,2,12,10,9,11");
        row("company descending", sorted(State::SortByCompany, false), "2,12,9a,1,3,10,9,11");
        row("created ascending", sorted(State::SortByCreationDate, true), "2,9a,1,3,10,9,11,12");
        row("created descending", sorted(State::SortByCreationDate, false), "11,9,1,3,10,2,9a,12");
        row("deadline ascending", sorted(State::SortByDeadline, true), "11,1,9a,9,2,3,10,12");
        row("deadline descending", sorted(State::SortByDeadline, false), "3,2,9,1,9a,11,10,12");

        State all = created(day(1, 1), day(1, 31));
        all.deadlineFilter = true;
        all.deadlineDate = day(3, 1);
        all = with(withoutCompany(all), State::CompanyList, {AlphaBau});
        all = with(all, State::StatusList, {1, 2});
        all = with(all, State::TypeList, {"Mangel"});
        all = with(all, State::RoomnameList, {"Küche", "Bad", "x') OR 1=1 --"});
        all = with(all, State::RoombookNoList, {"R1"});
        all = with(all, State::PriorityList, {"Hoch", "Normal", "Niedrig"});
        all = reduction(false, all);
        all.sort = State::SortByDeadline;
        all.ascending = false;
        row("all filters at once", all, "9,1");

        row("reversed dates", created(day(1, 10), day(1, 5)), "",
            "Fehler bei den Erfassungsdaten:\n Das Von-Datum muss vor dem Bis-Datum liegen.");
        State reversedOff = created(day(1, 10), day(1, 5));
        reversedOff.creationDateFilter = false;
        row("reversed dates, box off", reversedOff, "1,2,3,9,9a,10,11,12");
        row("ticked lists empty", with(with(none, State::CompanyList, {}), State::PriorityList, {}), "",
            "Sie haben folgende Filter eingeschaltet ohne eine Auswahl zu treffen:\nNach Firma\nNach Priorität\n");
        row("no match", reduction(true, with(none, State::RoomnameList, {"Bad"})), "", empty);
    }

    void selection()
    {
        QFETCH(State, state);
        QFETCH(QString, expected);
        QFETCH(QString, message);

        const KalDefectFilterResult result = KalDefectFilter(*m_fx.project()).select(state);
        QCOMPARE(numbers(result), expected);
        QCOMPARE(result.outcome == KalDefectFilterResult::Listed, !expected.isEmpty());
        QCOMPARE(m_prompt->texts().join('|'), message);
    }

    void valueLists_data()
    {
        QTest::addColumn<int>("list");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("texts");
        const auto row = [](const char *name, State::List list, const char *values, const char *texts) {
            QTest::newRow(name) << int(list) << QString(values) << QString(texts);
        };
        row("companies some defect has", State::CompanyList, "101|103|102", "Alpha Bau|alpha bau|beta GmbH");
        row("statuses in use", State::StatusList, "1|2|3", "");
        row("rooms, no NULL", State::RoomnameList, "Bad|Eltern'zimmer|Flur|Küche|x') OR 1=1 --",
            "Bad|Eltern'zimmer|Flur|Küche|x') OR 1=1 --");
        row("priorities", State::PriorityList, "Hoch|Niedrig|Normal", "Hoch|Niedrig|Normal");
    }

    void valueLists()
    {
        QFETCH(int, list);
        QFETCH(QString, values);
        QFETCH(QString, texts);
        QStringList gotValues;
        QStringList gotTexts;
        for (const KalDefectFilter::Item &item : KalDefectFilter(*m_fx.project()).values(State::List(list))) {
            gotValues << item.value.toString();
            gotTexts << item.text;
        }
        QCOMPARE(gotValues.join('|'), values);
        if (!texts.isEmpty())
            QCOMPARE(gotTexts.join('|'), texts);
        QVERIFY(m_prompt->shown().isEmpty());
    }

    void numberOrder_data()
    {
        QTest::addColumn<QStringList>("numbers"); // ids 1, 2, ... in this order
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<QString>("expected"); // number#id
        QTest::newRow("numbers as numbers") << QStringList{"10", "9", "1", "2"} << true << "1#3,2#4,9#2,10#1";
        QTest::newRow("text after the digits")
            << QStringList{"10b", "10", "10a", "9"} << true << "9#4,10#2,10a#3,10b#1";
        QTest::newRow("zeros and blanks") << QStringList{"007", " 8", "6"} << true << "6#3,007#1, 8#2";
        QTest::newRow("no digits after numbers") << QStringList{"B", "", "12", "A"} << true << "12#3,#2,A#4,B#1";
        QTest::newRow("descending mirrors") << QStringList{"B", "12", "A", "3"} << false << "B#1,A#3,12#2,3#4";
        QTest::newRow("equal numbers by id") << QStringList{"5", "5", "4", "5"} << false << "5#1,5#2,5#4,4#3";
        QTest::newRow("beyond 64 bits") << QStringList{"99999999999999999999999", "5"} << true
                                        << "5#2,99999999999999999999999#1";
    }

    void numberOrder()
    {
        QFETCH(QStringList, numbers);
        QFETCH(bool, ascending);
        QFETCH(QString, expected);
        QVector<KalFilteredDefect> defects;
        for (const QString &number : numbers) {
            KalFilteredDefect d;
            d.id = defects.size() + 1;
            d.number = number;
            defects.append(d);
        }
        KalDefectFilter::sort(defects, State::SortByNumber, ascending);
        QStringList got;
        for (const KalFilteredDefect &d : defects)
            got << d.number + '#' + QString::number(d.id);
        QCOMPARE(got.join(','), expected);
    }

    void failedQueriesAreReported_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::newRow("selection") << "filterDefectRecords";
        QTest::newRow("value list") << "populateRoomNameModel";
    }

    void failedQueriesAreReported()
    {
        QFETCH(QString, operation);
        // A damaged file: the table the filter reads is gone.
        QVERIFY(m_fx.exec("ALTER TABLE defect RENAME TO defect_gone"));
        KalDefectFilter filter(*m_fx.project());
        const bool nothing = operation == "filterDefectRecords"
                                 ? filter.select(State::defaults(day(1, 1))).defects.isEmpty()
                                 : filter.values(State::RoomnameList).isEmpty();
        QVERIFY(m_fx.exec("ALTER TABLE defect_gone RENAME TO defect"));
        QVERIFY(nothing);
        QCOMPARE(m_prompt->titles(), QStringList{"Datenbankfehler"});
        QVERIFY(m_prompt->texts().first().contains("Function name: " + operation));
    }

    void savedStateSurvivesReopening()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath("filter.pwp");
        KalProject *project = m_fx.project();
        QCOMPARE(project->saveProject(file), int(KalProject::Saved));
        QVERIFY(!project->isModified());

        const State chosen = everythingChosen();
        QVERIFY(KalDefectFilter(*project).save(chosen));
        QVERIFY(project->isModified());
        QCOMPARE(project->saveProject(), int(KalProject::Saved));
        // The same choices again change nothing: the project stays unmodified.
        QVERIFY(KalDefectFilter(*project).save(chosen));
        QVERIFY(!project->isModified());

        KalProject reopened;
        QVERIFY(project->closeProject());
        QVERIFY(reopened.openProject(file));
        const State restored = KalDefectFilter(reopened).restore();
        QVERIFY(restored == chosen);
        QVERIFY(restored != State::defaults(day(1, 1)));
        QVERIFY(m_prompt->shown().isEmpty());
        reopened.closeProject();
        QVERIFY(m_fx.open());
        addDefects();
    }

    void restoreSkipsUnusableRows_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("date");
        const QVariant null;
        QTest::newRow("unknown key") << "CompanyFilterX" << QVariant("checked") << null;
        QTest::newRow("company not a number") << "CompanyList" << QVariant("abc") << null;
        QTest::newRow("deleted company") << "CompanyList" << QVariant(QString::number(Deleted)) << null;
        QTest::newRow("company no defect has") << "CompanyList" << QVariant(QString::number(Unused)) << null;
        QTest::newRow("status without row") << "StatusList" << QVariant("77") << null;
        QTest::newRow("room NULL") << "RoomnameList" << null << null;
        QTest::newRow("room nobody uses") << "RoomnameList" << QVariant("Keller") << null;
        QTest::newRow("impossible date") << "CreationDateFrom" << null << QVariant("2026-13-45");
        QTest::newRow("date as words") << "DeadlineDate" << null << QVariant("gestern");
        QTest::newRow("date in value column") << "CreationDateTo" << QVariant("2020-01-01") << null;
        QTest::newRow("switch not the word") << "StatusFilter" << QVariant("yes") << null;
        QTest::newRow("second sort, not checked") << "SortByDeadline" << QVariant("unchecked") << null;
    }

    void restoreSkipsUnusableRows()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(QVariant, date);
        KalDefectFilter filter(*m_fx.project());
        const State chosen = everythingChosen();
        QVERIFY(filter.save(chosen));
        QVERIFY(m_fx.exec("INSERT INTO filter_state (id, key, value, date) VALUES (9999, :key, :value, :date)",
                          {{"key", key}, {"value", value}, {"date", date}}));
        QVERIFY(filter.restore() == chosen);
        QVERIFY(m_prompt->shown().isEmpty());
        QVERIFY(m_fx.exec("DELETE FROM filter_state WHERE id = 9999"));
    }

    void failedSaveKeepsTheOldState()
    {
        KalProject *project = m_fx.project();
        KalDefectFilter filter(*project);
        const State before = everythingChosen();
        QVERIFY(filter.save(before));
        project->setModified(false);
        // A write that fails half-way through the rewrite.
        QVERIFY(m_fx.exec("CREATE TRIGGER refuse BEFORE INSERT ON filter_state WHEN NEW.key = 'StatusList' "
                          "BEGIN SELECT RAISE(ABORT, 'disk I/O error'); END"));
        State changed = before;
        changed.ticked[State::StatusList] = {1, 3};
        changed.sort = State::SortByNumber;
        QVERIFY(!filter.save(changed));
        QVERIFY(m_prompt->hasTitle("Datenbankfehler"));
        QVERIFY(m_prompt->texts().join('\n').contains("saveFilterListSelection"));
        QVERIFY(filter.restore() == before);
        QVERIFY(!project->isModified());
        QCOMPARE(project->transactions().depth(), 0);
        QVERIFY(m_fx.exec("DROP TRIGGER refuse"));
        QVERIFY(filter.save(changed));
        QVERIFY(filter.restore() == changed);
    }
};

QTEST_GUILESS_MAIN(TstDefectFilter)
#include "tst_defectfilter.moc"
