// The dialogs of the site-journal import as the user works them: the
// automatic-import boxes, the app dialog's file choice, and the conflict
// dialog's answers with its two questions.
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/import/KalDataImportDefectAssignDialog.h"
#include "gui/import/KalImportFromAppDialog.h"
#include "gui/import/KalInitialImportDialog.h"
#include "gui/widgets/KalFileDialog.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

class TstImportDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_prompt = static_cast<KalScriptedPrompt *>(KalPrompt::instance());
        QVERIFY(m_project.open());
    }

    void init()
    {
        m_prompt->clear();
        KalFileDialog::clearQueue();
    }

    // Clicks on the two boxes, as a string: "A" the automatic import, "U"
    // the update box (a click on it while it is disabled does nothing).
    void automaticImportChoice_data()
    {
        QTest::addColumn<int>("preset");
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<bool>("updateEnabled");
        QTest::addColumn<int>("mode");
        QTest::newRow("untouched") << 0 << "" << false << 0;
        QTest::newRow("update alone cannot be ticked") << 0 << "U" << false << 0;
        QTest::newRow("new records") << 0 << "A" << true << 1;
        QTest::newRow("new records and updates") << 0 << "AU" << true << 2;
        QTest::newRow("first box off again") << 0 << "AUA" << false << 0;
        QTest::newRow("update choice comes back") << 0 << "AUAA" << true << 2;
        QTest::newRow("stored 1") << 1 << "" << true << 1;
        QTest::newRow("stored 2") << 2 << "" << true << 2;
        QTest::newRow("stored 2, updates off") << 2 << "U" << true << 1;
        QTest::newRow("stored 2, all off") << 2 << "A" << false << 0;
    }

    void automaticImportChoice()
    {
        QFETCH(int, preset);
        QFETCH(QString, clicks);
        QFETCH(bool, updateEnabled);
        QFETCH(int, mode);
        KalInitialImportDialog dialog(QStringLiteral("/baustelle/tagebuch.sjd"), preset);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *automatic = dialog.findChild<QCheckBox *>(QStringLiteral("cbAutomaticImport"));
        auto *update = dialog.findChild<QCheckBox *>(QStringLiteral("cbAutomaticUpdate"));
        QVERIFY(automatic && update);
        for (const QChar c : clicks) {
            QCheckBox *box = c == QLatin1Char('A') ? automatic : update;
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        }
        QCOMPARE(update->isEnabled(), updateEnabled);
        kalPress(&dialog, QDialogButtonBox::Ok);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.automaticImportMode(), mode);
    }

    void initialDialogNamesTheJournalAndEscapeCancels()
    {
        QTemporaryDir dir;
        const QString journal = dir.filePath(QStringLiteral("Bau 7.sjd"));
        KalInitialImportDialog dialog(journal, 0);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Datenimport aus Bautagebuch"));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *label = dialog.findChild<QLabel *>(QStringLiteral("lblText"));
        QVERIFY(label->text().contains(
            QStringLiteral("aus dem Bautagebuch %1 importiert.").arg(QDir::toNativeSeparators(journal))));
        QTest::mouseClick(dialog.findChild<QCheckBox *>(QStringLiteral("cbAutomaticImport")), Qt::LeftButton, {},
                          QPoint(8, 8));
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(!dialog.isVisible());
        // The size the user gave it comes back next time.
        QVERIFY(QSettings().contains(QStringLiteral("InitialImportDialog/Geometry")));
    }

    void appDialogChoosesAFile_data()
    {
        QTest::addColumn<QStringList>("fileAnswers"); // one per click on "Datei importieren", "" cancels
        QTest::addColumn<bool>("accepted");
        QTest::newRow("file chosen") << QStringList{"export.sjd"} << true;
        QTest::newRow("file dialog cancelled: the dialog stays") << QStringList{""} << false;
        QTest::newRow("cancelled, then chosen") << QStringList{"", "export.sjd"} << true;
    }

    void appDialogChoosesAFile()
    {
        QFETCH(QStringList, fileAnswers);
        QFETCH(bool, accepted);
        QTemporaryDir dir;
        const QString last = dir.filePath(QStringLiteral("letzter.sjd"));
        KalImportFromAppDialog dialog(last);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Import aus der Quellor App"));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *import = dialog.findChild<QPushButton *>(QStringLiteral("pbImport"));
        QCOMPARE(import->text(), QStringLiteral("Datei importieren"));
        for (const QString &answer : fileAnswers) {
            KalFileDialog::queueChoice(answer.isEmpty() ? QString() : dir.filePath(answer));
            import->click();
            // The file dialog starts beside the file imported last time.
            QCOMPARE(KalFileDialog::lastStartPath(), QDir::toNativeSeparators(last));
        }
        QCOMPARE(dialog.isVisible(), !accepted);
        if (!accepted) {
            dialog.findChild<QPushButton *>(QStringLiteral("pbCancel"))->click();
            QCOMPARE(dialog.result(), int(QDialog::Rejected));
        }
        QCOMPARE(dialog.chosenFile(), accepted ? dir.filePath(QStringLiteral("export.sjd")) : QString());
    }

    // What the user does in the conflict dialog, as a string of steps:
    // "s<n>" selects candidate n, "a" presses "Dem ausgewählten Mangel
    // zuweisen", "n" presses "Als neuen Mangel importieren", "e" Escape.
    void conflictAnswered_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QStringList>("answers"); // to the questions, in order
        QTest::addColumn<int>("chosen");          // candidate index, -1: new defect
        QTest::addColumn<QStringList>("titles");  // of the questions shown

        const QStringList none;
        QTest::newRow("assigned") << "s1 a" << none << 1 << none;
        QTest::newRow("new without selection") << "n" << none << -1 << none;
        QTest::newRow("assign without selection asks, then new")
            << "a n" << none << -1 << QStringList{"Mangel zuweisen"};
        QTest::newRow("new despite selection")
            << "s0 n" << QStringList{"Als neuen Mangel importieren"} << -1 << QStringList{"Neuer Mangel"};
        QTest::newRow("new despite selection cancelled, then assigned")
            << "s2 n a" << QStringList{"Abbrechen"} << 2 << QStringList{"Neuer Mangel"};
        QTest::newRow("escape leaves the conflict open") << "e s0 a" << none << 0 << none;
    }

    void conflictAnswered()
    {
        QFETCH(QString, steps);
        QFETCH(QStringList, answers);
        QFETCH(int, chosen);
        QFETCH(QStringList, titles);

        const QList<qint64> candidates = addDefects(3);
        for (const QString &answer : answers)
            m_prompt->queueAnswer(answer);

        KalDataImportDefectAssignDialog dialog(m_project.project());
        bool stillOpenAfterEachStep = true;
        bool leftOpen = false;
        KalDialogAnswer<KalDataImportDefectAssignDialog> user([&](KalDataImportDefectAssignDialog *shown) {
            auto *table = shown->findChild<QTableWidget *>(QStringLiteral("twDefects"));
            for (const QString &step : steps.split(QLatin1Char(' '))) {
                QVERIFY(shown->isVisible());
                stillOpenAfterEachStep = stillOpenAfterEachStep && shown->isVisible();
                if (step.startsWith(QLatin1Char('s')))
                    table->selectRow(step.mid(1).toInt());
                else if (step == QLatin1String("a"))
                    shown->findChild<QPushButton *>(QStringLiteral("pbAssignDefect"))->click();
                else if (step == QLatin1String("n"))
                    shown->findChild<QPushButton *>(QStringLiteral("pbNewDefect"))->click();
                else
                    QTest::keyClick(shown, Qt::Key_Escape);
            }
            // The last step must have closed it; else close it to go on.
            leftOpen = shown->isVisible();
            if (leftOpen)
                shown->done(QDialog::Rejected);
        });
        const qint64 id = dialog.assign(journalDefect(), candidates);
        QVERIFY(user.seen());
        QVERIFY(stillOpenAfterEachStep);
        QVERIFY(!leftOpen);
        QCOMPARE(id, chosen < 0 ? qint64(-1) : candidates.at(chosen));
        QCOMPARE(m_prompt->titles(), titles);
        if (titles == QStringList{"Mangel zuweisen"})
            QCOMPARE(m_prompt->texts(), QStringList{"Sie haben keinen Mangel ausgewählt."});
        if (titles == QStringList{"Neuer Mangel"})
            QCOMPARE(m_prompt->texts(), QStringList{"Sie haben einen Mangel ausgewählt.\nSoll der Bautagebuch-Mangel "
                                                    "trotzdem als ein neuer Mangel importiert werden?"});
    }

    void bothPanesShowTheDefects_data()
    {
        QTest::addColumn<int>("reduction");
        QTest::addColumn<QString>("status");
        QTest::newRow("without reduction") << 0 << "\nStatus: ";
        QTest::newRow("with reduction") << 1 << " - mit Minderung";
    }

    void bothPanesShowTheDefects()
    {
        QFETCH(int, reduction);
        QFETCH(QString, status);
        const qint64 company = m_project.addCompany(QStringLiteral("Fliesen Ohm"), QStringLiteral("Fliesenleger"));
        const qint64 id = m_project.addDefect({{"number", "17"},
                                               {"description", "Fuge offen"},
                                               {"company_id", company},
                                               {"reduction", reduction},
                                               {"correction_date", QDate(2024, 3, 5)},
                                               {"roomname", "Bad"}});
        QVERIFY(id > 0);
        QVERIFY(m_project.reselect());

        KalDataImportDefectAssignDialog dialog(m_project.project());
        dialog.setConflict(journalDefect(), {id});
        const QString journal = dialog.findChild<QPlainTextEdit *>(QStringLiteral("teJournalDefect"))->toPlainText();
        QVERIFY2(journal.startsWith(QStringLiteral("Bericht: 12\nBeschreibung:\nRiss im Putz\nRaumname: Flur\n")),
                 qPrintable(journal));
        QVERIFY(journal.contains(QStringLiteral("\nFrist: 01.02.2025\nAnzahl Fotos: 2")));

        auto *table = dialog.findChild<QTableWidget *>(QStringLiteral("twDefects"));
        QCOMPARE(table->rowCount(), 1);
        QCOMPARE(table->item(0, 0)->text(), QStringLiteral("17"));
        const QString details = table->item(0, 1)->text();
        QVERIFY2(details.startsWith(QStringLiteral("Beschreibung:\nFuge offen\nFirma: ")), qPrintable(details));
        // The company by name, the date in the program's notation.
        QVERIFY(details.contains(QStringLiteral("Fliesen Ohm")));
        QVERIFY(details.contains(QStringLiteral("\nRaumname: Bad\n")));
        QVERIFY(details.contains(QStringLiteral("\nFrist: 05.03.2024\n")));
        QCOMPARE(details.contains(QStringLiteral(" - mit Minderung")), reduction == 1);
        QVERIFY(details.contains(status));
    }

private:
    static KalDataImportConflictResolver::JournalDefect journalDefect()
    {
        KalDataImportConflictResolver::JournalDefect d;
        d.siteJournalId = 9001;
        d.reportNumber = QStringLiteral("12");
        d.number = QStringLiteral("4");
        d.description = QStringLiteral("Riss im Putz");
        d.roomName = QStringLiteral("Flur");
        d.correctionDate = QDate(2025, 2, 1);
        d.photoCount = 2;
        return d;
    }

    QList<qint64> addDefects(int count)
    {
        QList<qint64> ids;
        for (int i = 0; i < count; ++i)
            ids << m_project.addDefect({{"number", QStringLiteral("K%1").arg(i)}, {"description", "D"}});
        return ids;
    }

    KalScriptedPrompt *m_prompt = nullptr;
    KalTestProject m_project;
};

KAL_WIDGET_TEST_MAIN(TstImportDialogs)
#include "tst_importdialogs.moc"
