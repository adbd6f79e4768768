// The filter dialog as the user meets it: the first and second click on a
// ticked filter, the list buttons, reset, save and cancel.
#include "core/project/KalProject.h"
#include "core/reports/KalDefectFilter.h"
#include "gui/reports/KalFilterDialog.h"
#include "gui/textaids/KalDateEdit.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QCheckBox>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>

using State = KalDefectFilterState;

class TstDefectFilterDialog : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;

    KalScriptedPrompt *prompt() { return static_cast<KalScriptedPrompt *>(KalPrompt::instance()); }

    template <typename T> static T *child(QObject *parent, const QString &name)
    {
        T *widget = parent->findChild<T *>(name);
        if (!widget)
            qFatal("no widget %s", qPrintable(name));
        return widget;
    }

    // Saves a state in the project as an earlier session of the dialog would have.
    void saveState(const State &state)
    {
        QVERIFY(KalDefectFilter(*m_fx.project()).save(state));
        m_fx.project()->setModified(false);
    }

    State stored() { return KalDefectFilter(*m_fx.project()).restore(); }

    QStringList listTexts(KalFilterDialog &dialog)
    {
        QStringList texts;
        const QAbstractItemModel *model = child<QListView>(&dialog, "lvSelectionList")->model();
        for (int row = 0; row < model->rowCount(); ++row)
            texts << model->index(row, 0).data().toString();
        return texts;
    }

private slots:
    void initTestCase()
    {
        m_prompt = prompt();
        QVERIFY(m_fx.open());
        for (const char *room : {"Küche", "Eltern'zimmer", "Bad", "Küche"})
            QVERIFY(m_fx.addDefect({{"roomname", room}, {"status_id", 2}}) > 0);
    }

    void cleanupTestCase() { m_fx.close(); }

    void init()
    {
        m_prompt->clear();
        QSettings().remove("Messages");
    }

    void secondClickRemovesTheTick_data()
    {
        QTest::addColumn<QVariant>("showOnce"); // set by start-up
        QTest::addColumn<bool>("dontShow");     // an earlier answer
        QTest::addColumn<bool>("tickDontShow"); // this answer
        QTest::addColumn<bool>("explained");
        QTest::newRow("first time this start") << QVariant(true) << false << false << true;
        QTest::newRow("not started by the program") << QVariant() << false << false << true;
        QTest::newRow("shown before this start") << QVariant(false) << false << false << false;
        QTest::newRow("user asked not to see it") << QVariant(true) << true << false << false;
        QTest::newRow("ticks the box now") << QVariant(true) << false << true << true;
    }

    void secondClickRemovesTheTick()
    {
        QFETCH(QVariant, showOnce);
        QFETCH(bool, dontShow);
        QFETCH(bool, tickDontShow);
        QFETCH(bool, explained);
        if (showOnce.isValid())
            QSettings().setValue("Messages/showFilterUncheckMsgOnce", showOnce);
        QSettings().setValue("Messages/dontShowFilterUncheckMsg", dontShow);
        State saved = State::defaults(QDate(2026, 1, 1));
        saved.listFilter[State::StatusList] = true;
        saved.ticked[State::StatusList] = {2};
        saved.listFilter[State::TypeList] = true;
        saveState(saved);

        KalFilterDialog dialog(m_fx.project());
        auto *box = child<QCheckBox>(&dialog, "cbStatus");
        auto *types = child<QCheckBox>(&dialog, "cbType");
        QVERIFY(box->isChecked());
        QVERIFY(listTexts(dialog).isEmpty());
        if (explained) // an unanswered queue would carry over to the next row
            m_prompt->queueCheckBox(tickDontShow);
        box->click();
        QVERIFY(box->isChecked());
        QCOMPARE(listTexts(dialog).size(), 1); // the one status some defect has
        QCOMPARE(m_prompt->shown().size(), explained ? 1 : 0);
        if (explained)
            QCOMPARE(m_prompt->shown().first().checkBoxText, QString("Diese Meldung nicht mehr anzeigen"));
        QCOMPARE(QSettings().value("Messages/dontShowFilterUncheckMsg").toBool(), dontShow || tickDontShow);

        // Once per start: another ticked list in the same run explains nothing.
        types->click();
        QVERIFY(types->isChecked());
        QVERIFY(listTexts(dialog).isEmpty()); // no defect has a type
        box->click();
        QVERIFY(box->isChecked()); // its list was out of view again
        box->click();
        QVERIFY(!box->isChecked());
        QVERIFY(listTexts(dialog).isEmpty());
        QCOMPARE(m_prompt->shown().size(), explained ? 1 : 0);

        child<QPushButton>(&dialog, "pbSave")->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(!stored().listFilter[State::StatusList]);
        QCOMPARE(stored().ticked[State::StatusList], QVariantList{2});
        QVERIFY(stored().listFilter[State::TypeList]);
    }

    void listButtons_data()
    {
        QTest::addColumn<QVariantList>("ticked");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<QVariantList>("expected");
        const QVariantList all{"Bad", "Eltern'zimmer", "Küche"};
        QTest::newRow("all") << QVariantList() << QStringList{"pbSelectionListCheckAll"} << all;
        QTest::newRow("all, then none") << QVariantList{"Bad"}
                                        << QStringList{"pbSelectionListCheckAll", "pbSelectionListUncheckAll"}
                                        << QVariantList();
        QTest::newRow("reverse") << QVariantList{"Bad"} << QStringList{"pbSelectionListReverseSeletion"}
                                 << QVariantList{"Eltern'zimmer", "Küche"};
        QTest::newRow("reverse twice") << QVariantList{"Küche"}
                                       << QStringList{"pbSelectionListReverseSeletion",
                                                      "pbSelectionListReverseSeletion"}
                                       << QVariantList{"Küche"};
    }

    void listButtons()
    {
        QFETCH(QVariantList, ticked);
        QFETCH(QStringList, buttons);
        QFETCH(QVariantList, expected);
        QSettings().setValue("Messages/dontShowFilterUncheckMsg", true);
        State saved = State::defaults(QDate(2026, 1, 1));
        saved.listFilter[State::RoomnameList] = true;
        saved.ticked[State::RoomnameList] = ticked;
        saveState(saved);

        KalFilterDialog dialog(m_fx.project());
        child<QCheckBox>(&dialog, "cbRoomname")->click(); // shows the list
        QCOMPARE(listTexts(dialog), (QStringList{"Bad", "Eltern'zimmer", "Küche"}));
        for (const QString &button : buttons)
            child<QPushButton>(&dialog, button)->click();
        child<QPushButton>(&dialog, "pbSave")->click();
        QCOMPARE(stored().ticked[State::RoomnameList], expected);
        QVERIFY(stored().listFilter[State::RoomnameList]);
        QCOMPARE(m_fx.project()->isModified(), ticked != expected);
    }

    void closing_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("answer"); // to the reset question; empty: no reset
        QTest::addColumn<bool>("companyFilter");
        QTest::addColumn<bool>("descending");
        QTest::newRow("cancel keeps the old state") << "pbCancel"
                                                    << "" << true << false;
        QTest::newRow("save keeps the change") << "pbSave"
                                               << "" << true << true;
        QTest::newRow("reset, then save") << "pbSave"
                                          << "Fortfahren" << false << true;
        QTest::newRow("reset refused") << "pbSave"
                                       << "Abbrechen" << true << true;
        QTest::newRow("reset, then cancel") << "pbCancel"
                                            << "Fortfahren" << true << false;
    }

    void closing()
    {
        QFETCH(QString, button);
        QFETCH(QString, answer);
        QFETCH(bool, companyFilter);
        QFETCH(bool, descending);
        State saved = State::defaults(QDate(2026, 1, 1));
        saved.defectsWithoutCompany = true;
        saved.creationDateFilter = true;
        saved.creationDateFrom = QDate(2025, 6, 1);
        saveState(saved);

        KalFilterDialog dialog(m_fx.project());
        child<QRadioButton>(&dialog, "rbSortDesc")->click();
        if (!answer.isEmpty()) {
            m_prompt->queueAnswer(answer);
            child<QPushButton>(&dialog, "pbResetFilters")->click();
            QVERIFY(
                m_prompt->texts().contains("Wollen Sie wirklich alle Filter, Daten und Auswahllisten zurücksetzen?"));
        }
        child<QPushButton>(&dialog, button)->click();

        const State after = stored();
        QCOMPARE(after.defectsWithoutCompany, companyFilter);
        QCOMPARE(after.creationDateFilter, companyFilter);
        QCOMPARE(after.creationDateFrom, companyFilter ? QDate(2025, 6, 1) : QDate::currentDate());
        QCOMPARE(!after.ascending, descending);
        QCOMPARE(m_fx.project()->isModified(), button == "pbSave");
    }

    void reversedDatesAreNoted_data()
    {
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::addColumn<bool>("noted");
        QTest::newRow("in order") << QDate(2026, 1, 1) << QDate(2026, 2, 1) << false;
        QTest::newRow("same day") << QDate(2026, 1, 1) << QDate(2026, 1, 1) << false;
        QTest::newRow("reversed") << QDate(2026, 2, 1) << QDate(2026, 1, 1) << true;
    }

    void reversedDatesAreNoted()
    {
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        QFETCH(bool, noted);
        KalFilterDialog dialog(m_fx.project());
        auto *fromEdit = child<KalDateEdit>(&dialog, "deCreationDateFrom");
        auto *toEdit = child<KalDateEdit>(&dialog, "deCreationDateTo");
        toEdit->setDate(to);
        fromEdit->setDate(from);
        QTest::keyClick(fromEdit, Qt::Key_Return);
        QCOMPARE(m_prompt->texts().contains("Beachten Sie, dass das Von-Datum vor dem Bis-Datum liegen muss."), noted);
        // The dates are not changed.
        QCOMPARE(dialog.state().creationDateFrom, from);
        QCOMPARE(dialog.state().creationDateTo, to);
    }
};

KAL_WIDGET_TEST_MAIN(TstDefectFilterDialog)
#include "tst_filterdialog.moc"
