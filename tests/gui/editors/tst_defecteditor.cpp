#include "core/plans/KalPlans.h"
#include "core/project/KalDefects.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "core/textaids/KalCompleterStore.h"
#include "gui/editors/KalCompanyDialog.h"
#include "gui/editors/KalDefectEditor.h"
#include "gui/plans/KalPlanInfoDialog.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "gui/textaids/KalDateEdit.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

namespace {

int comboIndexOfId(QComboBox *combo, qint64 id)
{
    for (int i = 0; i < combo->count(); ++i) {
        if (combo->itemData(i).toLongLong() == id)
            return i;
    }
    return -1;
}

void choose(QComboBox *combo, qint64 id)
{
    const int index = comboIndexOfId(combo, id);
    QVERIFY2(index >= 0, "entry not in the combo box");
    combo->setCurrentIndex(index);
    emit combo->activated(index);
}

} // namespace

class TstDefectEditor : public QObject
{
    Q_OBJECT

private:
    qint64 newDefect(const QVariantMap &values = {}) { return KalDefects(*m_fx.project()).add(values); }

    int rowOf(qint64 id) const { return m_fx.model(QStringLiteral("defect"))->findRowById(id); }
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;
    qint64 m_companyA = -1;
    qint64 m_companyB = -1;

private slots:
    void initTestCase()
    {
        m_prompt = static_cast<KalScriptedPrompt *>(KalPrompt::instance());
        QVERIFY(m_fx.open());
        m_companyA = m_fx.addCompany("Alpha Bau", "Maurer", {{"pos", 2}});
        m_companyB = m_fx.addCompany("Beta Elektro", "Elektriker", {{"pos", 1}});
        QVERIFY(m_companyA > 0 && m_companyB > 0);
        QVERIFY(m_fx.reselect());
    }

    void cleanupTestCase() { m_fx.close(); }

    void init() { m_prompt->clear(); }

    // The author is the user's initials: typed letters are filtered as they
    // come, a whole text (put there by the auto-text list) is refused unless
    // it is up to two letters; the last accepted initials start new defects.
    void userIdInitials_data()
    {
        QTest::addColumn<QString>("entered");
        QTest::addColumn<bool>("typed");
        QTest::addColumn<QString>("stored"); // empty: refused, the dialog stays open

        auto row = [](const char *entered, bool typed, const char *stored) {
            QTest::addRow("%s %s", typed ? "typed" : "whole", entered) << QString(entered) << typed << QString(stored);
        };
        row("KM", true, "KM");
        row("kM", true, "KM");
        row("abc", true, "AB");
        row("a1", true, "A");
        row("7x", true, "X");
        row("a b", true, "AB");
        row("KM", false, "KM");
        row("ab", false, "AB");
        row("mueller", false, "");
    }

    void userIdInitials()
    {
        QFETCH(QString, entered);
        QFETCH(bool, typed);
        QFETCH(QString, stored);

        QSettings().setValue("DefectDialog/LastAuthorInitials", "XY");
        const qint64 id = newDefect({{QStringLiteral("user_id"), QString()}});
        QVERIFY(id > 0);
        const bool accepted = !stored.isEmpty();
        {
            KalDefectEditor editor(m_fx.project(), rowOf(id));
            editor.show();
            auto *userId = editor.findChild<QLineEdit *>(QStringLiteral("leUserId"));
            QVERIFY(userId);
            userId->clear();
            if (typed) {
                QTest::keyClicks(userId, entered);
                QCOMPARE(userId->text(), stored);
            } else {
                userId->setText(entered);
            }
            kalPress(&editor, QDialogButtonBox::Ok);
            QCOMPARE(editor.isVisible(), !accepted);
            QCOMPARE(m_prompt->hasTitle(QStringLiteral("Erfasst von")), !accepted);
            if (!accepted)
                editor.reject();
        }
        QCOMPARE(m_fx.field("defect", id, "user_id").toString(), stored);
        QCOMPARE(m_fx.field("defect", newDefect(), "user_id").toString(), accepted ? stored : QStringLiteral("XY"));
    }

    void reductionFollowsStatus_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<int>("storedReduction");

        // Defects start in status 6 ("teilweise beseitigt") with a reduction.
        QTest::newRow("open status clears the reduction") << 1 << false << 0;
        QTest::newRow("another open status") << 4 << false << 0;
        QTest::newRow("settled status with reduction keeps it") << 7 << true << 1;
        QTest::newRow("same status keeps it") << 6 << true << 1;
    }

    void reductionFollowsStatus()
    {
        QFETCH(int, status);
        QFETCH(bool, enabled);
        QFETCH(int, storedReduction);

        const qint64 id = newDefect({{QStringLiteral("status_id"), 6}, {QStringLiteral("reduction"), 1}});
        QVERIFY(id > 0);
        KalDefectEditor editor(m_fx.project(), rowOf(id));
        auto *reduction = editor.findChild<QCheckBox *>(QStringLiteral("cbReduction"));
        auto *statusBox = editor.findChild<QComboBox *>(QStringLiteral("cbxStatus"));
        QVERIFY(reduction && statusBox);
        QVERIFY(reduction->isEnabled());
        QVERIFY(reduction->isChecked());

        choose(statusBox, status);
        QCOMPARE(reduction->isEnabled(), enabled);
        QCOMPARE(reduction->isChecked(), storedReduction != 0);

        kalPress(&editor, QDialogButtonBox::Ok);
        QCOMPARE(m_fx.field("defect", id, "reduction").toInt(), storedReduction);
        QCOMPARE(m_fx.field("defect", id, "status_id").toInt(), status);
    }

    void cancelKeepsCompany()
    {
        const qint64 id = newDefect({{QStringLiteral("company_id"), m_companyA}});
        QVERIFY(id > 0);
        KalSqlTableModel *defects = m_fx.model(QStringLiteral("defect"));
        const int companyColumn = defects->fieldIndex(QStringLiteral("company_id"));
        {
            KalDefectEditor editor(m_fx.project(), rowOf(id));
            auto *company = editor.findChild<QComboBox *>(QStringLiteral("cbxCompany"));
            QVERIFY(company);
            QCOMPARE(company->currentData().toLongLong(), m_companyA);
            choose(company, m_companyB);
            // Written into the row at once ...
            QCOMPARE(defects->data(defects->index(rowOf(id), companyColumn), Qt::EditRole).toLongLong(), m_companyB);
            // ... and taken back by Cancel.
            kalPress(&editor, QDialogButtonBox::Cancel);
        }
        QCOMPARE(defects->data(defects->index(rowOf(id), companyColumn), Qt::EditRole).toLongLong(), m_companyA);
        QCOMPARE(m_fx.field("defect", id, "company_id").toLongLong(), m_companyA);
    }

    void okMarksOnlyRealChanges_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<int>("flag");

        const QList<QPair<QString, int>> rows{{"", 0},        {"description", 1},  {"room", 1},
                                              {"company", 1}, {"company-back", 0}, {"deadline", 1},
                                              {"retyped", 0}};
        for (const auto &row : rows)
            QTest::newRow(row.first.isEmpty() ? "nothing" : qPrintable(row.first)) << row.first << row.second;
    }

    void okMarksOnlyRealChanges()
    {
        QFETCH(QString, change);
        QFETCH(int, flag);

        const qint64 id = newDefect({{QStringLiteral("description"), QStringLiteral("Riss im Putz")},
                                     {QStringLiteral("company_id"), m_companyA},
                                     {QStringLiteral("status_id"), 1}});
        QVERIFY(id > 0);
        m_fx.project()->setModified(false);
        {
            KalDefectEditor editor(m_fx.project(), rowOf(id));
            auto *company = editor.findChild<QComboBox *>(QStringLiteral("cbxCompany"));
            if (change == QLatin1String("description"))
                editor.findChild<QTextEdit *>(QStringLiteral("teDescription"))->setPlainText(QStringLiteral("Riss"));
            else if (change == QLatin1String("room"))
                editor.findChild<QLineEdit *>(QStringLiteral("leRoomName"))->setText(QStringLiteral("Küche"));
            else if (change == QLatin1String("company"))
                choose(company, m_companyB);
            else if (change == QLatin1String("company-back")) {
                choose(company, m_companyB);
                choose(company, m_companyA);
            } else if (change == QLatin1String("deadline"))
                editor.findChild<KalDateEdit *>(QStringLiteral("deDeadline1"))->setDate(QDate(2030, 5, 17));
            else if (change == QLatin1String("retyped")) {
                auto *type = editor.findChild<QLineEdit *>(QStringLiteral("leType"));
                type->setText(QStringLiteral("x"));
                type->clear();
            }
            kalPress(&editor, QDialogButtonBox::Ok);
        }
        QCOMPARE(m_fx.field("defect", id, "site_journal_data_modified").toInt(), flag);
        // Without a change nothing is written, so the project stays unmodified.
        QCOMPARE(m_fx.project()->isModified(), flag == 1);
        if (change == QLatin1String("deadline"))
            QCOMPARE(m_fx.field("defect", id, "deadline_1").toString(), QStringLiteral("2030-05-17"));
    }

    void combosFollowPositions()
    {
        QVERIFY(m_fx.exec("UPDATE status SET pos = 0 WHERE id = 8"));
        QVERIFY(m_fx.reselect());
        const qint64 id = newDefect();
        KalDefectEditor editor(m_fx.project(), rowOf(id));
        auto *company = editor.findChild<QComboBox *>(QStringLiteral("cbxCompany"));
        auto *status = editor.findChild<QComboBox *>(QStringLiteral("cbxStatus"));
        auto *plan = editor.findChild<QComboBox *>(QStringLiteral("cbxPlan"));
        QVERIFY(company && status && plan);

        // "Beta" has pos 1, "Alpha" pos 2; "Neu..." ends the list.
        QCOMPARE(company->count(), 3);
        QCOMPARE(company->itemData(0).toLongLong(), m_companyB);
        QCOMPARE(company->itemData(1).toLongLong(), m_companyA);
        QVERIFY(company->itemText(0).contains(QStringLiteral("Beta Elektro")));
        QCOMPARE(company->itemText(2), QStringLiteral("Neu..."));
        QCOMPARE(company->currentIndex(), -1);

        // Statuses in their `pos` order, not their ids; "Neu..." ends the list.
        QCOMPARE(status->count(), 9);
        QCOMPARE(status->itemData(0).toInt(), 8);
        QCOMPARE(status->itemData(1).toInt(), 1);
        QCOMPARE(status->itemText(8), QStringLiteral("Neu..."));
        QCOMPARE(plan->count(), 2);
        QCOMPARE(plan->itemText(0), QStringLiteral("Neu..."));
        QCOMPARE(plan->itemText(1), QStringLiteral("Planzuordnung aufheben"));
        kalPress(&editor, QDialogButtonBox::Cancel);
        QVERIFY(m_fx.exec("UPDATE status SET pos = 8 WHERE id = 8"));
        QVERIFY(m_fx.reselect());
    }

    // "Neu..." in the plan list imports a file as a new plan dated today and
    // locates the defect on it; OK keeps that, Cancel takes the location back.
    void newPlanFromCombo_data()
    {
        QTest::addColumn<bool>("hadPlan");
        QTest::addColumn<QString>("answer"); // to "Plan austauschen"
        QTest::addColumn<bool>("validFile");
        QTest::addColumn<int>("button");
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<bool>("located"); // on the new plan afterwards

        QTest::newRow("free defect, OK") << false << QString() << true << int(QDialogButtonBox::Ok) << QStringList()
                                         << true;
        QTest::newRow("free defect, Cancel")
            << false << QString() << true << int(QDialogButtonBox::Cancel) << QStringList() << false;
        QTest::newRow("exchange agreed") << true << "Ja" << true << int(QDialogButtonBox::Ok)
                                         << QStringList{"Plan austauschen"} << true;
        QTest::newRow("exchange refused")
            << true << "Nein" << true << int(QDialogButtonBox::Ok) << QStringList{"Plan austauschen"} << false;
        QTest::newRow("broken file keeps the plan")
            << false << QString() << false << int(QDialogButtonBox::Ok) << QStringList{"Fehler Plan Import"} << false;
    }

    void newPlanFromCombo()
    {
        QFETCH(bool, hadPlan);
        QFETCH(QString, answer);
        QFETCH(bool, validFile);
        QFETCH(int, button);
        QFETCH(QStringList, titles);
        QFETCH(bool, located);

        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("Plan EG.png"));
        if (validFile) {
            QImage picture(400, 300, QImage::Format_RGB32);
            picture.fill(Qt::white);
            QVERIFY(picture.save(file, "PNG"));
        } else {
            QFile junk(file);
            QVERIFY(junk.open(QIODevice::WriteOnly) && junk.write("no picture") > 0);
        }
        const qint64 id = newDefect();
        qint64 before = -1;
        QString error;
        if (hadPlan) {
            QFile::copy(file, dir.filePath("old.png"));
            before = KalPlans(m_fx.project()).addFile(dir.filePath("old.png"));
            QVERIFY(KalPlans(m_fx.project()).assign(id, before, &error));
            QVERIFY(m_fx.reselect());
        }
        const int plansBefore = m_fx.count("plan_info");
        KalEnvironment::setNowOverride(QDateTime(QDate(2030, 1, 2), QTime(9, 0)));
        KalFileDialog::queueChoice(file);
        m_prompt->clear();
        if (!answer.isEmpty())
            m_prompt->queueAnswer(answer);
        {
            KalDefectEditor editor(m_fx.project(), rowOf(id));
            choose(editor.findChild<QComboBox *>(QStringLiteral("cbxPlan")), KalDefectEditor::NewEntry);
            kalPress(&editor, QDialogButtonBox::StandardButton(button));
        }
        KalEnvironment::setNowOverride(QDateTime());
        KalFileDialog::clearQueue();

        QCOMPARE(m_prompt->titles(), titles);
        const bool imported = validFile && answer != QLatin1String("Nein");
        QCOMPARE(m_fx.count("plan_info"), plansBefore + (imported ? 1 : 0));
        const qint64 newest = m_fx.value("SELECT MAX(id) FROM plan_info").toLongLong();
        if (imported)
            QCOMPARE(m_fx.field("plan_info", newest, "date").toDate(), QDate(2030, 1, 2));
        const qint64 expected = located ? newest : before;
        QCOMPARE(KalPlans(m_fx.project()).planInfoIdOfDefect(id), expected);
    }

    // The plan dialog opened from the editor assigns into the pending row
    // (written on OK only), and the plan list follows a rename made there.
    void planDialogFromEditor()
    {
        QTemporaryDir dir;
        QImage picture(300, 200, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QVERIFY(picture.save(dir.filePath("alt.png"), "PNG"));
        const qint64 plan = KalPlans(m_fx.project()).addFile(dir.filePath("alt.png"));
        const qint64 id = newDefect();
        KalDefectEditor editor(m_fx.project(), rowOf(id));
        KalDialogAnswer<KalPlanInfoDialog> library([&](KalPlanInfoDialog *dialog) {
            QString error;
            QVERIFY(KalPlans(m_fx.project()).setInfo(plan, "EG neu", "b", QDate(2030, 1, 2), &error));
            dialog->findChild<KalTableView *>("tvPlanInfo")->selectIds({plan});
            dialog->findChild<QPushButton *>("pbAssignPlanToDefect")->click();
            // Only the file counts here: the editor has not written anything yet.
            QCOMPARE(KalPlans(m_fx.project()).planInfoIdOfDefect(id), qint64(-1));
            dialog->accept();
        });
        editor.findChild<QPushButton *>("pbPlanDialog")->click();
        QVERIFY(library.seen());
        QCOMPARE(editor.findChild<QComboBox *>("cbxPlan")->currentText(), QStringLiteral("EG neu (Index b)"));
        kalPress(&editor, QDialogButtonBox::Ok);
        QCOMPARE(KalPlans(m_fx.project()).planInfoIdOfDefect(id), plan);
        QCOMPARE(m_fx.field("defect", id, "plan_id"), m_fx.field("plan_info", plan, "plan_id"));
    }

    void newStatusFromEditor_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("created");

        QTest::newRow("a name") << "Abgenommen" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("blanks only") << "   " << false;
    }

    void newStatusFromEditor()
    {
        QFETCH(QString, name);
        QFETCH(bool, created);

        const int statusesBefore = m_fx.count("status");
        const qint64 id = newDefect({{QStringLiteral("status_id"), 7}, {QStringLiteral("reduction"), 1}});
        {
            KalDefectEditor editor(m_fx.project(), rowOf(id));
            auto *status = editor.findChild<QComboBox *>(QStringLiteral("cbxStatus"));
            auto *reduction = editor.findChild<QCheckBox *>(QStringLiteral("cbReduction"));
            bool hintReadable = false;
            KalDialogAnswer<QInputDialog> answer([&](QInputDialog *input) {
                const QString hint = QStringLiteral("Sie können hier einen neuen Status für dieses Projekt anlegen");
                for (QLabel *label : input->findChildren<QLabel *>())
                    hintReadable = hintReadable || (label->isVisible() && label->text().contains(hint) &&
                                                    label->width() >= label->fontMetrics().horizontalAdvance(hint));
                input->setTextValue(name);
                input->accept();
            });
            choose(status, KalDefectEditor::NewEntry);
            QVERIFY(answer.seen());
            QVERIFY(hintReadable);
            if (created) {
                QCOMPARE(status->currentText(), name);
                QCOMPARE(status->itemText(status->count() - 1), QStringLiteral("Neu..."));
                // A new user status has no reduction option.
                QVERIFY(!reduction->isEnabled());
                QVERIFY(!reduction->isChecked());
            } else {
                QCOMPARE(status->currentData().toInt(), 7);
                QVERIFY(reduction->isChecked());
            }
            // The status stays even though the defect edit is cancelled.
            kalPress(&editor, QDialogButtonBox::Cancel);
        }
        QCOMPARE(m_fx.count("status"), statusesBefore + (created ? 1 : 0));
        QCOMPARE(m_fx.field("defect", id, "status_id").toInt(), 7);
        // The same user status as the status table's plus button makes.
        if (created)
            QCOMPARE(m_fx.value("SELECT type || color || reduction_option || ',' || pos FROM status WHERE status = :n",
                                {{"n", name}})
                         .toString(),
                     QStringLiteral("2#859FAF0,%1").arg(statusesBefore + 1));
    }

    // The description's auto-text list learns only what the user keeps.
    void descriptionAutoTexts_data()
    {
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("OK keeps the final text only") << true << QStringList{"Riss im Putz neben der Tür"};
        QTest::newRow("Cancel keeps nothing") << false << QStringList();
    }

    void descriptionAutoTexts()
    {
        QFETCH(bool, ok);
        QFETCH(QStringList, expected);
        QSettings().remove(KalCompleterStore::languageGroup());
        auto stored = [] { return KalCompleterStore::read("defect", "description").values; };
        KalDefectEditor editor(m_fx.project(), rowOf(newDefect()));
        auto *description = editor.findChild<KalCompleterTextEdit *>(QStringLiteral("teDescription"));
        QVERIFY(description);
        // The user leaves the field several times while writing, typos included.
        for (const char *draft : {"Riss im Ptuz", "Riss im Putz", "Riss im Putz neben der Tür"}) {
            description->setPlainText(QString::fromUtf8(draft));
            QFocusEvent leave(QEvent::FocusOut, Qt::TabFocusReason);
            QApplication::sendEvent(description, &leave);
        }
        QVERIFY(stored().isEmpty());
        kalPress(&editor, ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
        QCOMPARE(stored(), expected);
    }

    void newCompanyFromEditorStays()
    {
        const qint64 id = newDefect({{QStringLiteral("company_id"), m_companyA}});
        qint64 created = -1;
        {
            KalDefectEditor editor(m_fx.project(), rowOf(id));
            auto *company = editor.findChild<QComboBox *>(QStringLiteral("cbxCompany"));
            KalDialogAnswer<KalCompanyDialog> answer([&](KalCompanyDialog *dialog) {
                dialog->findChild<QLineEdit *>(QStringLiteral("leCompany"))->setText(QStringLiteral("Gamma Glas"));
                dialog->findChild<QLineEdit *>(QStringLiteral("leType"))->setText(QStringLiteral("Glaser"));
                kalPress(dialog, QDialogButtonBox::Ok);
            });
            choose(company, KalDefectEditor::NewEntry);
            QVERIFY(answer.seen());
            created = company->currentData().toLongLong();
            QVERIFY(created > m_companyB);
            QVERIFY(company->currentText().contains(QStringLiteral("Gamma Glas")));
            kalPress(&editor, QDialogButtonBox::Ok);
        }
        QCOMPARE(m_fx.field("defect", id, "company_id").toLongLong(), created);
        QCOMPARE(m_fx.field("company", created, "company").toString(), QStringLiteral("Gamma Glas"));
        QCOMPARE(m_fx.field("defect", id, "site_journal_data_modified").toInt(), 1);
        // Clean up so the other tests keep their two companies.
        QVERIFY(m_fx.exec("DELETE FROM company WHERE id = :id", {{"id", created}}));
        QVERIFY(m_fx.reselect());
    }
};

KAL_WIDGET_TEST_MAIN(TstDefectEditor)
#include "tst_defecteditor.moc"
