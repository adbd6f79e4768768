#include "app/KalStartup.h"
#include "core/project/KalCommandLine.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "core/textaids/KalSpellChecker.h"
#include "gui/mainwindow/KalLanguageDialog.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/plans/KalPlanInfoDialog.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalResources.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalDialogAnswer.h"
#include "support/KalHolderProcess.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QAction>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include <memory>

// The main window driven as a user would: every question is answered by the
// scripted prompt and every file dialog from the file-dialog queue.
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        kalInitGuiResources();
        m_prompt = KalScriptedPrompt::install();
    }

    void init()
    {
        QSettings().clear();
        KalFileDialog::clearQueue();
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_window = std::make_unique<KalMainWindow>();
        m_window->resize(1100, 700);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(m_window->project()->isOpen());
        m_prompt->clear();
    }

    void cleanup()
    {
        if (m_window && m_window->project()->isOpen()) {
            m_window->project()->setModified(false);
            m_window->closeProject(false);
        }
        m_window.reset();
        KalEnvironment::setVolumeInfoFunction({});
        KalSpellChecker::setInstance(nullptr);
        KalFileDialog::clearQueue();
        m_dir.reset();
    }

    void windowTitles()
    {
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Neues Pellwick-Projekt"));

        saveAsFile("Bauvorhaben Nord.pwp");
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Pellwick-Projekt - Bauvorhaben Nord.pwp"));

        QVERIFY(m_window->closeProject(true));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Quellor Pellwick"));
        QVERIFY(m_window->newProject());
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Neues Pellwick-Projekt"));
    }

    void maybeSave_data()
    {
        QTest::addColumn<bool>("saved"); // the project has a file already
        QTest::addColumn<bool>("modified");
        QTest::addColumn<bool>("saveAs");
        QTest::addColumn<bool>("explicitRequest");
        QTest::addColumn<QString>("answer"); // to the question, empty: none expected
        QTest::addColumn<QString>("dialog"); // queued file name, "-" cancel, empty: no dialog expected
        QTest::addColumn<int>("result");
        QTest::addColumn<bool>("modifiedAfter");
        QTest::addColumn<QString>("fileAfter"); // project path afterwards (file name)

        auto row = [](const char *name, bool saved, bool modified, bool saveAs, bool explicitRequest,
                      const char *answer, const char *dialog, int result, bool modifiedAfter, const char *fileAfter) {
            QTest::newRow(name) << saved << modified << saveAs << explicitRequest << QString(answer) << QString(dialog)
                                << result << modifiedAfter << QString(fileAfter);
        };
        row("unmodified closes silently", true, false, false, false, "", "", 0, false, "p.pwp");
        row("unmodified new closes silently", false, false, false, false, "", "", 0, false, "");
        row("modified: save", true, true, false, false, "Speichern", "", 0, false, "p.pwp");
        row("modified: discard", true, true, false, false, "Verwerfen", "", 0, false, "p.pwp");
        row("modified: cancel", true, true, false, false, "Abbrechen", "", 1, true, "p.pwp");
        row("modified new: save asks name", false, true, false, false, "Speichern", "n.pwp", 0, false, "n.pwp");
        row("modified new: name cancelled", false, true, false, false, "Speichern", "-", 1, true, "");
        row("explicit save in place", true, true, false, true, "", "", 0, false, "p.pwp");
        row("explicit save new asks name", false, true, false, true, "", "n", 0, false, "n.pwp");
        row("explicit save as", true, false, true, true, "", "q.pwp", 0, false, "q.pwp");
        row("explicit save as cancelled", true, true, true, true, "", "-", 1, true, "p.pwp");
    }

    void maybeSave()
    {
        QFETCH(bool, saved);
        QFETCH(bool, modified);
        QFETCH(bool, saveAs);
        QFETCH(bool, explicitRequest);
        QFETCH(QString, answer);
        QFETCH(QString, dialog);
        QFETCH(int, result);
        QFETCH(bool, modifiedAfter);
        QFETCH(QString, fileAfter);

        KalProject *project = m_window->project();
        if (saved) {
            saveAsFile("p.pwp");
        }
        if (modified)
            makeModified();
        QCOMPARE(project->isModified(), modified);
        m_prompt->clear();

        if (!answer.isEmpty())
            m_prompt->queueAnswer(answer);
        if (dialog == QLatin1String("-"))
            KalFileDialog::queueCancel();
        else if (!dialog.isEmpty())
            KalFileDialog::queueChoice(path(dialog));

        QCOMPARE(m_window->maybeSave(saveAs, explicitRequest), result);
        QCOMPARE(KalFileDialog::queuedChoices(), 0); // a queued dialog was asked for

        if (answer.isEmpty()) {
            QVERIFY2(m_prompt->shown().isEmpty(), qPrintable(m_prompt->texts().join('|')));
        } else {
            QCOMPARE(m_prompt->shown().size(), 1);
            const KalScriptedPrompt::Shown &q = m_prompt->shown().first();
            QCOMPARE(q.title, QStringLiteral("Projekt geändert"));
            QCOMPARE(q.text, QStringLiteral("Das Projekt wurde geändert. Möchten Sie die Änderungen speichern?"));
            QCOMPARE(q.buttons, (QStringList{"Speichern", "Verwerfen", "Abbrechen"}));
        }
        if (!dialog.isEmpty())
            QCOMPARE(KalFileDialog::lastCaption(), QStringLiteral("Datei speichern"));

        QCOMPARE(project->isModified(), modifiedAfter);
        QCOMPARE(QFileInfo(project->projectPath()).fileName(), fileAfter);
        if (!fileAfter.isEmpty() && result == 0) {
            QVERIFY(QFileInfo::exists(path(fileAfter)));
            QCOMPARE(m_window->recentFiles().value(0), QFileInfo(path(fileAfter)).absoluteFilePath());
        }
    }

    // A read-only file offers to save elsewhere; the question says why.
    void readOnlyFileOffersSaveAs_data()
    {
        QTest::addColumn<bool>("explicitRequest");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text"); // %1: the file

        const QString closing = "Das Projekt wurde geändert.\nDie Datei \n%1\nist jedoch schreibgeschützt.\n\n"
                                "Möchten Sie die Änderungen in einer neuen Datei speichern?";
        const QString saving = "Das Projekt kann nicht gespeichert werden, da die Datei\n%1\nschreibgeschützt ist.\n\n"
                               "Möchten Sie die Änderungen in einer neuen Datei speichern?";
        QTest::newRow("closing, save as")
            << false << QString("Speichern unter") << QString("Projekt geändert") << closing;
        QTest::newRow("saving, cancel") << true << QString("Abbrechen") << QString("Projekt speichern") << saving;
    }

    void readOnlyFileOffersSaveAs()
    {
        QFETCH(bool, explicitRequest);
        QFETCH(QString, answer);
        QFETCH(QString, title);
        QFETCH(QString, text);

        saveAsFile("ro.pwp");
        QVERIFY(m_window->closeProject(true));
        QFile::setPermissions(path("ro.pwp"), QFileDevice::ReadOwner | QFileDevice::ReadGroup);
        if (QFileInfo(path("ro.pwp")).isWritable())
            QSKIP("Running with rights that ignore file permissions");
        QVERIFY(m_window->openProject(path("ro.pwp")));
        makeModified();

        const bool saveAs = answer == QLatin1String("Speichern unter");
        m_prompt->queueAnswer(answer);
        if (saveAs)
            KalFileDialog::queueChoice(path("copy.pwp"));
        QCOMPARE(m_window->maybeSave(false, explicitRequest), saveAs ? 0 : 1);

        QCOMPARE(m_prompt->titles(), QStringList{title});
        QCOMPARE(m_prompt->texts(), QStringList{text.arg(QDir::toNativeSeparators(path("ro.pwp")))});
        QCOMPARE(m_prompt->shown().first().buttons, (QStringList{"Speichern unter", "Abbrechen"}));
        QCOMPARE(m_window->project()->projectPath(), path(saveAs ? "copy.pwp" : "ro.pwp"));
        QCOMPARE(m_window->project()->isModified(), !saveAs);
    }

    void saveFailureIsReported()
    {
        saveAsFile("p.pwp");
        makeModified();
        KalEnvironment::setVolumeInfoFunction([](const QString &) {
            KalEnvironment::VolumeInfo info;
            info.valid = info.ready = true;
            info.bytesAvailable = 0;
            info.name = QStringLiteral("/");
            return info;
        });
        QCOMPARE(m_window->maybeSave(false, true), int(KalMainWindow::Failed));
        QVERIFY(m_prompt->hasTitle(QStringLiteral("Fehler")));
        QVERIFY(m_prompt->texts().contains(QStringLiteral("Beim Speichern des Projekts ist ein Fehler aufgetreten!")));
        // The edits are still there and still unsaved.
        QVERIFY(m_window->project()->isOpen());
        QVERIFY(m_window->project()->isModified());
        QCOMPARE(m_window->defectModel()->rowCount(), 1);
    }

    // The submenu shows file names newest first and opens by full path; a
    // file that has gone is reported and leaves the list.
    void recentList()
    {
        for (const char *name : {"a.pwp", "b.pwp"}) {
            KalFileDialog::queueChoice(path(QString::fromLatin1(name)));
            QVERIFY(m_window->newProject());
            QCOMPARE(m_window->maybeSave(true, true), 0);
        }
        const QString a = QFileInfo(path("a.pwp")).absoluteFilePath();
        const QString b = QFileInfo(path("b.pwp")).absoluteFilePath();
        QVERIFY(m_window->openProject(path("a.pwp")));
        auto *menu = m_window->findChild<QMenu *>(QStringLiteral("menuFileRecent"));
        QVERIFY(menu);
        QStringList texts;
        for (QAction *action : menu->actions())
            texts << action->text();
        QCOMPARE(texts, (QStringList{"a.pwp", "b.pwp"}));
        menu->actions().at(1)->trigger();
        QCOMPARE(m_window->project()->projectPath(), b);

        QVERIFY(m_window->newProject());
        QVERIFY(QFile::remove(b));
        QVERIFY(!m_window->openProject(b));
        QVERIFY(m_prompt->texts().contains(
            QStringLiteral("Die Datei\n%1\nexistiert nicht.").arg(QDir::toNativeSeparators(b))));
        QCOMPARE(m_window->recentFiles(), QStringList{a});
        QVERIFY(m_window->project()->isOpen());
    }

    // The compact format shows some of the columns of the full one, in the
    // same order; the button switches and the choice outlives the window.
    void tableFormats()
    {
        auto *button = m_window->findChild<QPushButton *>(QStringLiteral("pbDefectTableDisplayFormat"));
        QVERIFY(button);
        QCOMPARE(m_window->defectTableFormat(), 1);
        const QStringList compact = visibleFields();
        QCOMPARE(button->text(), QStringLiteral("Alle Spalten einblenden"));
        button->click();
        QCOMPARE(m_window->defectTableFormat(), 2);
        QCOMPARE(button->text(), QStringLiteral("Spalten ausblenden"));
        QCOMPARE(QSettings().value("TableView/Defect/DefectTableFormat").toInt(), 2);
        const QStringList all = visibleFields();
        QVERIFY(compact.size() < all.size());
        QStringList shared = all;
        shared.erase(
            std::remove_if(shared.begin(), shared.end(), [&](const QString &f) { return !compact.contains(f); }),
            shared.end());
        QCOMPARE(shared, compact);

        m_window.reset();
        m_window = std::make_unique<KalMainWindow>();
        QCOMPARE(m_window->defectTableFormat(), 2);
        QCOMPARE(visibleFields(), all);
    }

    void addDefectByEveryWay_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("ok");
        for (const char *way : {"menu", "plus button", "double click"}) {
            QTest::addRow("%s, OK", way) << QString(way) << true;
            QTest::addRow("%s, Cancel", way) << QString(way) << false;
        }
    }

    // Every way of adding a defect opens its editor on a stored defect; OK keeps
    // it selected, Cancel takes it back without giving its id out again.
    void addDefectByEveryWay()
    {
        QFETCH(QString, way);
        QFETCH(bool, ok);

        addDefect();
        auto stored = [this] {
            QSqlQuery q(m_window->project()->database());
            return q.exec(QStringLiteral("SELECT COUNT(*) FROM defect")) && q.next() ? q.value(0).toInt() : -1;
        };
        int shownWith = -1;
        KalDialogAnswer<QDialog> editor([&](QDialog *dialog) {
            shownWith = stored();
            kalPress(dialog, ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
        });
        KalTableView *view = m_window->defectTable();
        if (way == QLatin1String("menu"))
            m_window->findChild<QAction *>(QStringLiteral("actionAddDefect"))->trigger();
        else if (way == QLatin1String("plus button"))
            view->addButton()->click();
        else
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, QPoint(20, view->viewport()->height() - 5));

        QVERIFY(editor.seen());
        QCOMPARE(shownWith, 2);
        KalSqlTableModel *model = m_window->defectModel();
        QCOMPARE(stored(), ok ? 2 : 1);
        QCOMPARE(model->rowCount(), ok ? 2 : 1);
        QCOMPARE(m_window->project()->nextId(QStringLiteral("defect")), qint64(3));
        QVERIFY(m_window->project()->isModified());
        if (!ok)
            return;
        const QList<qint64> selected = m_window->selectedDefectIds();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(model->record(model->findRowById(selected.first())).value("number").toString(),
                 QStringLiteral("0002"));
    }

    // The copy button copies the defect's description and its handling, and
    // nothing that ties the original to a plan, photos or the site journal.
    void copyTakesOnlyTheListedFields()
    {
        // Every field set, so that a field copied by mistake shows; "=" marks the copied ones.
        const QStringList fields =
            QStringLiteral(
                "=description:Riss im Putz|=company_id:3|=type:Mangel nach Abnahme|=user_id:Bauleiter|"
                "=creation_date:2026-03-01|=roomname:Küche|=roombook_number:1.07|=correction_instruction:Neu verputzen|"
                "=priority:Hoch|=correction_date:2026-04-01|=deadline_1:2026-04-15|=deadline_2:2026-05-01|"
                "=deadline_3:2026-05-15|=status_id:2|=reduction:1|number:0042|plan_info_id:5|image_cnt:3|plan_id:7|"
                "site_journal_data_modified:1|imported_report_id:11|site_journal_id:12|delete_on_import:0")
                .split('|');
        QVariantMap source;
        for (const QString &field : fields)
            source.insert(field.section(':', 0, 0).remove('='), field.section(':', 1));
        const qint64 sourceId = insertDefect(source);
        QVERIFY(sourceId > 0);

        m_window->selectDefects({sourceId});
        m_window->defectTable()->copyButton()->click();
        const QList<qint64> copies = m_window->selectedDefectIds();
        QCOMPARE(copies.size(), 1);
        QVERIFY(copies.first() != sourceId);

        QSqlQuery copy(m_window->project()->database());
        QVERIFY(copy.exec(QStringLiteral("SELECT * FROM defect WHERE id = %1").arg(copies.first())) && copy.next());
        for (const QString &field : fields.filter(QRegularExpression("^=")))
            QCOMPARE(copy.value(field.section(':', 0, 0).mid(1)).toString(), field.section(':', 1));
        QVERIFY(copy.value("number").toString() != QLatin1String("0042"));
        QVERIFY(copy.value("plan_id").isNull());
        QCOMPARE(QStringList({copy.value("plan_info_id").toString(), copy.value("image_cnt").toString(),
                              copy.value("site_journal_id").toString(), copy.value("imported_report_id").toString(),
                              copy.value("delete_on_import").toString()}),
                 QStringList({"-1", "0", "-1", "-1", "1"}));
    }

    void selectionSurvivesSortAndSave()
    {
        const QStringList rooms{"Flur", "Bad", "Wohnen", "Abstellraum", "Küche", "Diele"};
        QList<qint64> ids;
        for (int i = 0; i < rooms.size(); ++i)
            ids << insertDefect({{"number", QString::number(i + 1)}, {"description", "D"}, {"roomname", rooms.at(i)}});
        KalTableView *view = m_window->defectTable();
        const QList<qint64> chosen{ids.at(1), ids.at(4)};
        m_window->selectDefects(chosen);
        auto sorted = [this] {
            QList<qint64> s = m_window->selectedDefectIds();
            std::sort(s.begin(), s.end());
            return s;
        };
        QCOMPARE(sorted(), chosen);

        // A click on the "Raum" caption sorts and keeps the same defects selected.
        KalSqlTableModel *model = m_window->defectModel();
        const int room = model->fieldIndex("roomname");
        QHeaderView *header = view->horizontalHeader();
        const QPoint click(header->sectionViewportPosition(room) + header->sectionSize(room) / 2, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, click);
        QCOMPARE(model->data(model->index(0, room)).toString(), QStringLiteral("Abstellraum"));
        QCOMPARE(sorted(), chosen);

        // Saving rebuilds the models; order and selection stay.
        KalFileDialog::queueChoice(path("s.pwp"));
        QCOMPARE(m_window->maybeSave(false, true), 0);
        model = m_window->defectModel();
        QCOMPARE(model->data(model->index(0, room)).toString(), QStringLiteral("Abstellraum"));
        QCOMPARE(sorted(), chosen);
    }

    void planPanelShowsHintForDefectWithoutPlan()
    {
        addDefect();
        auto *view = m_window->findChild<QGraphicsView *>(QStringLiteral("gvPlan"));
        QVERIFY(view);
        QStringList texts;
        for (QGraphicsItem *item : view->scene()->items()) {
            if (auto *text = dynamic_cast<QGraphicsTextItem *>(item))
                texts << text->toPlainText();
        }
        QCOMPARE(texts.size(), 1);
        QVERIFY(texts.first().startsWith(QStringLiteral("Dieser Mangel ist in keinem Plan verortet.")));
        // The double click the hint invites opens the plan library for it.
        KalDialogAnswer<KalPlanInfoDialog> library([](KalPlanInfoDialog *dialog) { dialog->reject(); });
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, view->viewport()->rect().center());
        QVERIFY(library.seen());
        QVERIFY(m_prompt->titles().isEmpty());
    }

    void doubleClickOpensDefectEditor()
    {
        QList<qint64> ids;
        for (const char *room : {"Bad", "Flur", "Küche"})
            ids << insertDefect({{"number", "1"}, {"description", "D"}, {"roomname", QString::fromUtf8(room)}});
        KalTableView *view = m_window->defectTable();
        KalSqlTableModel *model = m_window->defectModel();
        const int row = model->findRowById(ids.at(1));
        const QModelIndex cell = model->index(row, model->fieldIndex("roomname"));
        view->scrollTo(cell);

        QString opened;
        KalDialogAnswer<QDialog> answer([&opened](QDialog *dialog) {
            opened = QString::fromLatin1(dialog->metaObject()->className());
            dialog->close();
        });
        const QPoint at = view->visualRect(cell).center();
        QTest::mousePress(view->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(opened, QStringLiteral("KalDefectEditor"));
        QCOMPARE(m_window->selectedDefectIds(), QList<qint64>{ids.at(1)});
        // The double click did not also start editing the cell in place.
        for (QLineEdit *edit : view->viewport()->findChildren<QLineEdit *>())
            QVERIFY(!edit->isVisible());
    }

    void actionsOpenTheirDialogs_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("dialog");
        auto row = [](const char *action, const char *dialog) {
            QTest::newRow(action) << QString(action) << QString(dialog);
        };
        row("actionEditStatusTable", "KalStatusDialog");
        row("actionEditProjectData", "KalMasterDataDialog");
        row("actionEditCompanyTable", "KalMasterDataDialog");
        row("actionEditCompanyFormat", "KalMasterDataDialog");
        row("actionSettingsLanguage", "KalLanguageDialog");
        row("actionSettingsCompleter", "KalCompleterDialog");
        row("actionSettingsImageSize", "KalSettingsImageSizeDialog");
        row("actionSettingsPlanSize", "KalSettingsImageSizeDialog");
        row("actionShortHelpImportFromSiteJournal", "KalShortHelpDialog");
        row("actionShortHelpImportFromMobile", "KalShortHelpDialog");
    }

    void actionsOpenTheirDialogs()
    {
        QFETCH(QString, action);
        QFETCH(QString, dialog);
        QString opened;
        KalDialogAnswer<QDialog> answer([&opened](QDialog *shown) {
            opened = QString::fromLatin1(shown->metaObject()->className());
            shown->close();
        });
        m_window->findChild<QAction *>(action)->trigger();
        QCOMPARE(opened, dialog);
        QVERIFY(m_window->project()->isOpen());
    }

    // The switch the logo dialog and the plan panel read; the entry says
    // what the next press does.
    void helpTextToggle()
    {
        auto *action = m_window->findChild<QAction *>(QStringLiteral("actionTooltipHelp"));
        const QString offText = action->text();
        for (bool active : {false, true}) {
            action->trigger();
            QCOMPARE(QSettings().value("TooltipHelpActive").toBool(), active);
            QCOMPARE(action->text() == offText, active);
        }
    }

    void importMenuState_data()
    {
        QTest::addColumn<bool>("linked");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("visible"); // import actions shown, in order
        QTest::addColumn<QString>("newRecordsText");
        QTest::addColumn<QString>("updateText");

        const QString newOn = QStringLiteral("Automatischen Import neuer Mängel und Firmen einschalten");
        const QString newOff = QStringLiteral("Automatischen Import neuer Mängel und Firmen ausschalten");
        const QString updOn =
            QStringLiteral("Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten");
        const QString updOff =
            QStringLiteral("Automatischen Import und Aktualisierung vorhandener Mängel und Firmen ausschalten");
        QTest::newRow("not linked") << false << 0 << QStringList{"actionInitialDataImport"} << newOn << updOn;
        QTest::newRow("linked, off") << true << 0
                                     << QStringList{"actionUpdateDataImport", "actionAutomaticNewRecordsImport",
                                                    "actionAutomaticUpdateImport"}
                                     << newOn << updOn;
        QTest::newRow("linked, new records")
            << true << 1
            << QStringList{"actionUpdateDataImport", "actionAutomaticNewRecordsImport", "actionAutomaticUpdateImport"}
            << newOff << updOn;
        QTest::newRow("linked, new and changed")
            << true << 2 << QStringList{"actionUpdateDataImport", "actionAutomaticUpdateImport"} << newOn << updOff;
    }

    void importMenuState()
    {
        QFETCH(bool, linked);
        QFETCH(int, mode);
        QFETCH(QStringList, visible);
        QFETCH(QString, newRecordsText);
        QFETCH(QString, updateText);

        QSqlQuery q(m_window->project()->database());
        QVERIFY(q.exec(
            QStringLiteral("INSERT OR REPLACE INTO meta (key, value) VALUES ('automaticImportMode', '%1')").arg(mode)));
        QFile journal(path("b.sjd"));
        QVERIFY(journal.open(QIODevice::WriteOnly));
        journal.close();
        if (linked)
            QVERIFY(m_window->linkSiteJournal(path("b.sjd")));
        // The state follows the file also after saving and reopening.
        saveAsFile("p.pwp");
        // (b.sjd is no journal: no automatic import here.)
        QVERIFY(m_window->openProject(path("p.pwp"), false));

        const QStringList names{"actionInitialDataImport", "actionUpdateDataImport", "actionAutomaticNewRecordsImport",
                                "actionAutomaticUpdateImport"};
        QStringList shown;
        for (const QString &name : names) {
            auto *action = m_window->findChild<QAction *>(name);
            QVERIFY(action);
            if (action->isVisible())
                shown << name;
        }
        QCOMPARE(shown, visible);
        QCOMPARE(m_window->findChild<QAction *>("actionAutomaticNewRecordsImport")->text(), newRecordsText);
        QCOMPARE(m_window->findChild<QAction *>("actionAutomaticUpdateImport")->text(), updateText);
    }

    // A menu entry whose feature is not built yet is disabled; every entry shown
    // has an icon.
    void actionsWithoutFeatureAreDisabled()
    {
        const QStringList unbuilt; // every feature is built now
        QStringList wrong;
        for (QAction *action : m_window->findChildren<QAction *>()) {
            // The recent-files placeholder stands in for file names, which have no
            // icon; spell checking follows the dictionaries found (see its tests).
            if (!action->objectName().startsWith("action") || action->menu() ||
                action->objectName() == "actionFileRecentPlaceholder" ||
                action->objectName() == "actionStartSpellChecking")
                continue;
            // A hidden action counts as disabled (the import menu hides the
            // entries that do not fit the project's link).
            if (!action->isVisible())
                continue;
            const bool noIcon = action->isVisible() && action->icon().pixmap(16, 16).isNull();
            if (action->isEnabled() == unbuilt.contains(action->objectName()) || noIcon)
                wrong << action->objectName();
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(' ')));
    }

    // Image files dropped on a defect row become that defect's photos; the
    // camera column shows the count. A drop below the rows adds nothing.
    void filesDroppedOnDefectRow()
    {
        addDefect();
        addDefect();
        const QString file = path("Decke Flur.jpg");
        QVERIFY(QImage(QSize(640, 480), QImage::Format_RGB32).save(file, "JPG"));
        KalTableView *grid = m_window->defectTable();
        KalSqlTableModel *defects = m_window->defectModel();
        const int countColumn = defects->fieldIndex("image_cnt");
        auto countOfRow = [&](int viewRow) {
            return grid->model()->index(viewRow, countColumn).data(Qt::EditRole).toInt();
        };
        auto drop = [&](const QPoint &at) {
            QMimeData data;
            data.setUrls({QUrl::fromLocalFile(file)});
            QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(grid->viewport(), &enter);
            QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(grid->viewport(), &move);
            QDropEvent dropped(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(grid->viewport(), &dropped);
            return move.isAccepted() && dropped.isAccepted();
        };

        QVERIFY(!drop(QPoint(20, grid->viewport()->height() - 5)));
        QVERIFY(drop(grid->visualRect(grid->model()->index(1, 1)).center()));
        QTRY_COMPARE(countOfRow(1), 1);
        QCOMPARE(countOfRow(0), 0);
        QCOMPARE(m_window->project()->model("photo_info")->rowCount(), 1);
        QVERIFY(m_prompt->titles().isEmpty());
    }

    // Commands that work on the open project cannot be started while none is
    // open (for a moment during a restart or after a failed open).
    void actionsFollowTheOpenProject_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("withoutProject");
        QTest::newRow("save") << "actionSaveFile" << false;
        QTest::newRow("save as") << "actionFileSaveAs" << false;
        QTest::newRow("compact") << "actionCompactDB" << false;
        QTest::newRow("add defect") << "actionAddDefect" << false;
        QTest::newRow("logos") << "actionEditLogos" << false;
        QTest::newRow("new") << "actionCreateFile" << true;
        QTest::newRow("open") << "actionOpenFile" << true;
        QTest::newRow("print preview") << "actionPrintPreview" << false;
        QTest::newRow("update check needs no project") << "actionUpdateTest" << true;
    }

    void actionsFollowTheOpenProject()
    {
        QFETCH(QString, action);
        QFETCH(bool, withoutProject);
        QAction *a = m_window->findChild<QAction *>(action);
        QVERIFY(a);
        const bool withProject = a->isEnabled();
        QVERIFY(m_window->closeProject(false));
        QCOMPARE(a->isEnabled(), withoutProject);
        QVERIFY(m_window->newProject());
        QCOMPARE(a->isEnabled(), withProject);
    }

    // Spell checking can only be switched on with a readable dictionary.
    void spellToggleNeedsDictionary_data()
    {
        QTest::addColumn<QString>("dictionary");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("none") << "none" << false;
        QTest::newRow("unreadable") << "broken" << false;
        QTest::newRow("German") << "German" << true;
    }

    void spellToggleNeedsDictionary()
    {
        QFETCH(QString, dictionary);
        QFETCH(bool, enabled);
        QString base = QStringLiteral(KAL_TEST_DICTIONARIES_DIR "/pym_DE");
        if (dictionary == QLatin1String("broken")) {
            base = path(QStringLiteral("pym_DE"));
            for (const char *extension : {".aff", ".dic"}) {
                QFile file(base + QLatin1String(extension));
                QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no word count\n") > 0);
            }
        }
        m_window.reset();
        if (dictionary != QLatin1String("none"))
            KalSpellChecker::setInstance(new KalSpellChecker(base, QString()));
        m_window = std::make_unique<KalMainWindow>();
        auto *toggle = m_window->findChild<QAction *>(QStringLiteral("actionStartSpellChecking"));
        QVERIFY(toggle);
        QCOMPARE(toggle->isEnabled(), enabled);
        const QString before = toggle->text();
        toggle->trigger();
        QVERIFY2(m_prompt->shown().isEmpty(), qPrintable(m_prompt->texts().join(QLatin1Char('|'))));
        QCOMPARE(toggle->text() != before, enabled);
    }

    void compactUntitledAsksToSaveFirst()
    {
        m_prompt->queueAnswer(QStringLiteral("Datenbank bereinigen"));
        KalFileDialog::queueCancel();
        m_window->findChild<QAction *>("actionCompactDB")->trigger();
        QCOMPARE(KalFileDialog::lastCaption(), QStringLiteral("Neues Projekt"));
        QVERIFY(m_prompt->texts().contains(QStringLiteral("Das Projekt wurde noch nicht gespeichert.\nSie müssen das "
                                                          "Projekt vor der Bereinigung der Datenbank speichern.")));
        QVERIFY(m_window->project()->projectPath().isEmpty());
    }

    void compactSavesModifiedProjectFirst()
    {
        saveAsFile("c.pwp");
        for (int i = 0; i < 20; ++i)
            addDefect();
        QVERIFY(m_window->project()->isModified());
        m_prompt->clear();
        m_prompt->queueAnswer(QStringLiteral("Datenbank bereinigen"));
        m_prompt->queueAnswer(QStringLiteral("Speichern und Bereinigen der Datenbank"));
        m_window->findChild<QAction *>("actionCompactDB")->trigger();

        QVERIFY(m_prompt->texts().contains(QStringLiteral(
            "Das Projekt wurde geändert.\nVor dem Bereinigen der Datenbank werden die Änderungen gespeichert.\n")));
        QVERIFY(!m_window->project()->isModified());
        QVERIFY(m_window->project()->isOpen());
        bool reported = false;
        for (const QString &t : m_prompt->texts())
            reported = reported || t.startsWith(QStringLiteral("Die Datenbank wurde erfolgreich bereinigt."));
        QVERIFY2(reported, qPrintable(m_prompt->texts().join('|')));
        QCOMPARE(KalTestFiles::countRows(path("c.pwp"), "defect"), 20); // the saved file holds the defects
    }

    void languageDialog_data()
    {
        QTest::addColumn<QLocale>("stored");
        QTest::addColumn<QString>("preset"); // the radio button checked on opening
        QTest::addColumn<QString>("choose");
        QTest::addColumn<QString>("answer"); // to the restart question, empty: none expected
        QTest::addColumn<bool>("restart");
        QTest::addColumn<QLocale>("after"); // what lands in the settings

        const QLocale de(QLocale::German, QLocale::Germany);
        const QLocale es(QLocale::Spanish, QLocale::Spain);
        const QLocale us(QLocale::English, QLocale::UnitedStates);
        const QString now = "Jetzt neu starten";
        const QString later = "Später neu starten";
        auto row = [](const char *name, const QLocale &stored, const char *preset, const char *choose,
                      const QString &answer, bool restart, const QLocale &after) {
            QTest::newRow(name) << stored << QString(preset) << QString(choose) << answer << restart << after;
        };
        row("German to English USA, now", de, "rbGerman", "rbEnglishUsa", now, true, us);
        row("German to Spanish, later", de, "rbGerman", "rbSpanish", later, false, es);
        // German for Austria is checked as German; confirming it moves to Germany.
        row("Austria counts as German", QLocale(QLocale::German, QLocale::Austria), "rbGerman", "rbGerman", later,
            false, de);
        row("unchanged asks nothing", de, "rbGerman", "rbGerman", "", false, de);
        row("UK to USA asks", QLocale(QLocale::English, QLocale::UnitedKingdom), "rbEnglish", "rbEnglishUsa", later,
            false, us);
        row("Mexico counts as Spanish", QLocale(QLocale::Spanish, QLocale::Mexico), "rbSpanish", "rbGerman", later,
            false, de);
    }

    void languageDialog()
    {
        QFETCH(QLocale, stored);
        QFETCH(QString, preset);
        QFETCH(QString, choose);
        QFETCH(QString, answer);
        QFETCH(bool, restart);
        QFETCH(QLocale, after);

        QSettings().setValue("Language", int(stored.language()));
        QSettings().setValue("Country", int(stored.country()));
        KalLanguageDialog dialog(true);
        QVERIFY(dialog.findChild<QRadioButton *>(preset)->isChecked());
        dialog.findChild<QRadioButton *>(choose)->click();
        if (!answer.isEmpty())
            m_prompt->queueAnswer(answer);
        kalPress(&dialog, QDialogButtonBox::Ok);

        QCOMPARE(QSettings().value("Language").toInt(), int(after.language()));
        QCOMPARE(QSettings().value("Country").toInt(), int(after.country()));
        QCOMPARE(m_prompt->hasTitle(QStringLiteral("Sprache wurde geändert")), !answer.isEmpty());
        QCOMPARE(dialog.restartRequested(), restart);
    }

    void quitIsRefusedOnCancel()
    {
        makeModified();
        m_prompt->queueAnswer(QStringLiteral("Abbrechen"));
        QVERIFY(!m_window->close());
        QVERIFY(m_window->isVisible());
        QVERIFY(m_window->project()->isOpen());

        m_prompt->queueAnswer(QStringLiteral("Verwerfen"));
        QVERIFY(m_window->close());
        QVERIFY(QSettings().contains("MainWindow/Geometry"));
        QVERIFY(QSettings().contains("MainWindow/WindowState"));
    }

    void ctrlSOnUntitledAsksForName()
    {
        // Ctrl+S on an untitled project asks for a name.
        KalFileDialog::queueChoice(path("kurz.pwp"));
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(QFileInfo(m_window->project()->projectPath()).fileName(), QStringLiteral("kurz.pwp"));
    }

    void commandLineIsCarriedOut_data()
    {
        QTest::addColumn<QStringList>("args");     // "P:" and "J:" prefixes name files in the test folder
        QTest::addColumn<QString>("projectAfter"); // file name, empty: untitled
        QTest::addColumn<bool>("importOffered");   // the first-import dialog came (and was cancelled)
        QTest::addColumn<QString>("title");        // of the one message, empty: none

        auto row = [](const char *name, const QString &args, const char *projectAfter, bool offered,
                      const char *title) {
            QTest::newRow(name) << args.split(' ') << QString(projectAfter) << offered << QString(title);
        };
        row("single path", "P:p.pwp", "p.pwp", false, "");
        row("103 opens only", "-connectmode 103 -file P:p.pwp -sitejournalfile J:b.sjd", "p.pwp", false, "");
        row("102 opens and offers the import", "-connectmode 102 -file P:p.pwp -sitejournalfile J:b.sjd", "p.pwp", true,
            "");
        row("101 creates and offers the import", "-connectmode 101 -file P:neu.pwp -sitejournalfile J:b.sjd", "neu.pwp",
            true, "");
        row("104 refused", "-connectmode 104 -file P:p.pwp -sitejournalfile J:b.sjd", "", false, "Info");
    }

    void commandLineIsCarriedOut()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, projectAfter);
        QFETCH(bool, importOffered);
        QFETCH(QString, title);

        saveAsFile("p.pwp");
        QVERIFY(m_window->newProject());
        QFile journal(path("b.sjd"));
        QVERIFY(journal.open(QIODevice::WriteOnly));
        journal.close();
        m_prompt->clear();

        QStringList full{"pellwick"};
        for (const QString &a : args)
            full << (a.startsWith("P:") || a.startsWith("J:") ? path(a.mid(2)) : a);
        KalDialogAnswer<QDialog> cancel([](QDialog *d) {
            QCOMPARE(d->objectName(), QStringLiteral("KalInitialImportDialog"));
            d->reject();
        });
        KalStartup::carryOut(m_window.get(), KalCommandLine::parse(full));

        QCOMPARE(cancel.seen(), importOffered);
        QCOMPARE(QFileInfo(m_window->project()->projectPath()).fileName(), projectAfter);
        // A cancelled first import links nothing.
        QSqlQuery q(m_window->project()->database());
        QVERIFY(q.exec("SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'"));
        QVERIFY(!q.next());
        QCOMPARE(m_prompt->titles(), title.isEmpty() ? QStringList() : QStringList{title});
        if (title == QLatin1String("Info"))
            QVERIFY(m_prompt->texts().first().startsWith(
                QStringLiteral("Die vom Bautagebuch Programm übergebenen Parameter sind fehlerhaft:\n\n\n")));
    }

    // A refused opening leaves one message, and the project that was open
    // stays open as it was.
    void refusedOpenKeepsTheOpenProject_data()
    {
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QString>("title");
        QTest::newRow("held by another instance") << QString("held") << QString("Datenbank in Bearbeitung");
        QTest::newRow("made by a newer version") << QString("newer") << QString("Dateifehler");
    }

    void refusedOpenKeepsTheOpenProject()
    {
        QFETCH(QString, refusal);
        QFETCH(QString, title);
        const QString own = path("eigen.pwp");
        const QString other = path("anderes.pwp");
        for (const QString &file : {other, own}) {
            QVERIFY(m_window->newProject());
            for (int i = file == own ? 2 : 1; i > 0; --i)
                insertDefect({{"number", QString::number(i)}, {"description", "D"}});
            saveAsFile(file);
        }
        std::unique_ptr<KalHolderProcess> holder;
        if (refusal == "held") {
            holder = std::make_unique<KalHolderProcess>("hold", other);
            QVERIFY(holder->waitFor("ready") >= 0);
        } else {
            QVERIFY(KalTestFiles::execute(other, {"UPDATE meta SET value = '9.0' WHERE key = 'fileversion'"}));
        }
        m_prompt->clear();

        QVERIFY(!m_window->openProject(other));
        QCOMPARE(m_prompt->titles(), QStringList{title});
        QVERIFY(m_window->project()->isOpen());
        QCOMPARE(m_window->project()->projectPath(), QFileInfo(own).absoluteFilePath());
        QCOMPARE(m_window->defectModel()->rowCount(), 2);
        insertDefect({{"number", "3"}, {"description", "D"}});
        QCOMPARE(m_window->project()->saveProject(), int(KalProject::Saved));
        QCOMPARE(KalTestFiles::countRows(own, "defect"), 3);
    }

    // The recovered state of a crashed run was never saved: giving it up asks.
    void recoveredProjectAsksBeforeClosing()
    {
        const QString file = path("absturz.pwp");
        insertDefect({{"number", "1"}, {"description", "D"}});
        saveAsFile(file);
        QVERIFY(m_window->newProject());
        QVERIFY(QFile::copy(file, file + ".workingcopy"));
        QVERIFY(KalTestFiles::execute(file + ".workingcopy",
                                      {"INSERT INTO defect (id, description) VALUES (77, 'ungesichert')"}));
        QFile udf(file + ".udf");
        QVERIFY(udf.open(QIODevice::WriteOnly));
        udf.write("erika\nBAUBUERO\n01.02.26\n10:15\n4711\n");
        udf.close();
        qputenv("USERNAME", "erika");
        qputenv("COMPUTERNAME", "BAUBUERO");
        QVERIFY(m_window->openProject(file));
        QCOMPARE(m_window->defectModel()->rowCount(), 2);
        m_prompt->clear();
        QVERIFY(!m_window->closeProject(true)); // the unqueued question is cancelled
        QCOMPARE(m_prompt->titles(), QStringList{"Projekt geändert"});
        QVERIFY(m_window->project()->isOpen());
    }

    // Last: a restart ends the application's event loop, and no modal dialog
    // runs after it.
    void restartWritesAndConsumesReopenKey()
    {
        saveAsFile("r.pwp");
        makeModified();
        m_prompt->queueAnswer(QStringLiteral("Speichern"));

        QVERIFY(m_window->restartApplication());
        QVERIFY(!m_window->project()->isOpen());
        QCOMPARE(QSettings().value(KalCommandLine::reopenKey()).toString(), path("r.pwp"));

        QCOMPARE(KalTestFiles::countRows(path("r.pwp"), "defect"), 1); // saved before the restart
    }

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    // "Speichern unter" with `name` chosen in the file dialog.
    void saveAsFile(const QString &name)
    {
        KalFileDialog::queueChoice(QFileInfo(name).isAbsolute() ? name : path(name));
        QCOMPARE(m_window->maybeSave(true, true), int(KalMainWindow::GoOn));
    }
    // "Mangel hinzufügen" as the user does it: the editor of the new defect
    // opens and is closed with OK.
    void addDefect()
    {
        KalDialogAnswer<QDialog> editor([](QDialog *dialog) { kalPress(dialog, QDialogButtonBox::Ok); });
        m_window->findChild<QAction *>("actionAddDefect")->trigger();
        QVERIFY(editor.seen());
    }

    void makeModified()
    {
        addDefect();
        QCOMPARE(m_window->defectModel()->rowCount(), 1);
        QVERIFY(m_window->project()->isModified());
        m_prompt->clear();
    }

    qint64 insertDefect(const QVariantMap &values)
    {
        const qint64 id = kalInsertRow(m_window->project(), "defect", values);
        m_window->defectModel()->select();
        return id;
    }

    QStringList visibleFields() const
    {
        QStringList fields;
        KalSqlTableModel *model = m_window->defectModel();
        QHeaderView *header = m_window->defectTable()->horizontalHeader();
        for (int visual = 0; visual < header->count(); ++visual) {
            const int logical = header->logicalIndex(visual);
            if (!m_window->defectTable()->isColumnHidden(logical))
                fields << model->record().fieldName(logical);
        }
        return fields;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<KalMainWindow> m_window;
    KalScriptedPrompt *m_prompt = nullptr;
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
