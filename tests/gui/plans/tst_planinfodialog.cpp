#include "core/photos/KalPictureStore.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/photos/KalSettingsImageSizeDialog.h"
#include "gui/plans/KalPlanInfoDialog.h"
#include "gui/plans/KalPlanInfoEditor.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kNoneSelected = QStringLiteral("Wählen Sie zunächst per Mausklick einen Plan aus.");
const QString kOneDefect = QStringLiteral(
    "Der Plan %1 ist einem Mangel zugeordnet.\nWenn Sie den Plan löschen, wird diese Zuordnung aufgehoben. Der Mangel "
    "ist dann nicht mehr verortet.\n\nSoll dieser Plan tatsächlich gelöscht werden?");
const QString kOpenEditor = QStringLiteral("Die neue Planversion wurde erfolgreich importiert.\nSie sollten die Lage "
                                           "der Marker und Texte im Plan an den neuen "
                                           "Planinhalt anpassen.\n\nSoll der Planeditor jetzt geöffnet werden?\n");

} // namespace

class TstPlanInfoDialog : public QObject
{
    Q_OBJECT

    KalTestProject m_project;
    QTemporaryDir m_dir;
    KalScriptedPrompt *m_prompt = nullptr;
    qint64 m_defect = -1;

    // "WxH" a PNG picture, "pdf:N" an N-page PDF (page 1 red), "junk" no picture.
    QString makeFile(const QString &name, const QString &content)
    {
        const QString path = m_dir.filePath(name);
        if (content.startsWith(QLatin1String("pdf:"))) {
            QPdfWriter writer(path);
            writer.setPageSize(QPageSize(QPageSize::A6));
            writer.setResolution(72);
            QPainter painter(&writer);
            for (int page = 1; page <= content.mid(4).toInt(); ++page) {
                if (page > 1)
                    writer.newPage();
                painter.fillRect(QRect(0, 0, 400, 600), page == 1 ? Qt::red : Qt::blue);
            }
            return painter.end() ? path : QString();
        }
        if (content == QLatin1String("junk")) {
            QFile file(path);
            return file.open(QIODevice::WriteOnly) && file.write("not a picture") > 0 ? path : QString();
        }
        const QStringList wh = content.split('x');
        QImage picture(wh.at(0).toInt(), wh.at(1).toInt(), QImage::Format_RGB32);
        picture.fill(Qt::green);
        return picture.save(path, "PNG") ? path : QString();
    }

    // Imports through the dialog's own button; the new plan_info ids.
    QList<qint64> addPlans(KalPlanInfoDialog &dialog, const QStringList &names, const QStringList &contents)
    {
        const int before = m_project.count("plan_info");
        QStringList files;
        for (int i = 0; i < names.size(); ++i)
            files << makeFile(names.at(i), contents.at(i));
        KalFileDialog::queueChoices(files);
        dialog.findChild<QPushButton *>("pbAddPlans")->click();
        QList<qint64> ids;
        QSqlQuery query(m_project.project()->database());
        query.exec(QStringLiteral("SELECT id FROM plan_info ORDER BY pos LIMIT -1 OFFSET %1").arg(before));
        while (query.next())
            ids << query.value(0).toLongLong();
        return ids;
    }

    static KalTableView *list(QDialog &dialog) { return dialog.findChild<KalTableView *>("tvPlanInfo"); }
    static void press(QDialog &dialog, const char *name) { dialog.findChild<QPushButton *>(name)->click(); }

    qint64 addMarker(qint64 planInfoId, qint64 defectId, double x)
    {
        return m_project.insert("marker", {{"type", 1},
                                           {"pos_x", x},
                                           {"pos_y", 100.0},
                                           {"scale_factor", 0.5},
                                           {"rotation_angle", 0.0},
                                           {"color1", "#ffff00"},
                                           {"color2", "#000000"},
                                           {"linewidth", 2.0},
                                           {"transform_point_x", 20.0},
                                           {"transform_point_y", 0.0},
                                           {"plan_info_id", planInfoId},
                                           {"defect_id", defectId}});
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void init()
    {
        QVERIFY(m_project.open());
        m_defect = m_project.addDefect();
        m_prompt = KalScriptedPrompt::install();
        QSettings().setValue("Plans/Plansize", 1000);
    }

    void cleanup()
    {
        KalFileDialog::clearQueue();
        m_project.close();
    }

    void addPlans_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("contents");
        QTest::addColumn<QStringList>("stored"); // plan names in list order
        QTest::addColumn<QStringList>("titles"); // messages shown
        QTest::addColumn<QSize>("size");         // of the first stored picture

        QTest::newRow("picture fitted to the plan size")
            << QStringList{"EG Grundriss.png"} << QStringList{"2000x1000"} << QStringList{"EG Grundriss"}
            << QStringList() << QSize(1000, 500);
        QTest::newRow("PDF: only page 1, suffix in any case")
            << QStringList{"-OG 1 Büro.Pdf"} << QStringList{"pdf:3"} << QStringList{"-OG 1 Büro"} << QStringList()
            << QSize(709, 1000);
        QTest::newRow("a broken file fails alone")
            << QStringList{"a.png", "kaputt.png", "c.pdf"} << QStringList{"300x300", "junk", "pdf:1"}
            << QStringList{"a", "c"} << QStringList{"Fehler Plan Import"} << QSize(300, 300);
    }

    void addPlans()
    {
        QFETCH(QStringList, names);
        QFETCH(QStringList, contents);
        QFETCH(QStringList, stored);
        QFETCH(QStringList, titles);
        QFETCH(QSize, size);

        KalPlanInfoDialog dialog(m_project.project(), m_defect);
        const QList<qint64> ids = addPlans(dialog, names, contents);
        QCOMPARE(m_prompt->titles(), titles);
        QStringList names2;
        for (qint64 id : ids)
            names2 << m_project.field("plan_info", id, "plan_name").toString();
        QCOMPARE(names2, stored);
        const qint64 planId = m_project.field("plan_info", ids.first(), "plan_id").toLongLong();
        QString error;
        const QImage picture =
            KalPictureStore(m_project.project()->database(), KalPictureStore::Kind::Plan).load(planId, &error);
        QVERIFY(qAbs(picture.width() - size.width()) <= 2 && qAbs(picture.height() - size.height()) <= 2);
        if (contents.first().startsWith(QLatin1String("pdf"))) {
            const QColor centre = picture.pixelColor(picture.rect().center());
            QVERIFY2(centre.red() > 200 && centre.blue() < 60, "page 1 is the plan");
        }
        // The new plan is selected and shown in the list.
        QCOMPARE(list(dialog)->selectedIds(), QList<qint64>{ids.last()});
        QCOMPARE(m_project.count("plan"), ids.size());
    }

    void renameFollowsInList()
    {
        KalPlanInfoDialog dialog(m_project.project(), m_defect);
        const qint64 id = addPlans(dialog, {"alt.png"}, {"400x300"}).first();
        KalDialogAnswer<KalPlanInfoEditor> answer([](KalPlanInfoEditor *editor) {
            editor->findChild<QLineEdit *>("lePlanName")->setText("Neu 1.OG");
            editor->findChild<QLineEdit *>("lePlanIndex")->setText("c");
            editor->findChild<QPushButton *>("pbOk")->click();
        });
        KalTableView *view = list(dialog);
        const int nameColumn = m_project.model("plan_info")->fieldIndex("plan_name");
        emit view->doubleClicked(view->model()->index(0, nameColumn));
        QVERIFY(answer.seen());
        QCOMPARE(m_project.field("plan_info", id, "plan_name").toString(), QStringLiteral("Neu 1.OG"));
        QCOMPARE(m_project.field("plan_info", id, "plan_index").toString(), QStringLiteral("c"));
        QCOMPARE(view->model()->index(0, nameColumn).data().toString(), QStringLiteral("Neu 1.OG"));
    }

    void remove_data()
    {
        QTest::addColumn<QList<int>>("defectsPerPlan"); // of the two selected plans
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("texts"); // per-plan questions asked after the first
        QTest::addColumn<QList<bool>>("kept");

        QTest::newRow("abort at the first question keeps both")
            << QList<int>{0, 1} << QStringList{"Abbrechen"} << QStringList() << QList<bool>{true, true};
        QTest::newRow("plan without defects goes, abort skips the used one")
            << QList<int>{0, 1} << QStringList{"OK", "Abbrechen"} << QStringList{kOneDefect.arg("P1")}
            << QList<bool>{false, true};
        QTest::newRow("both confirmed")
            << QList<int>{1, 2} << QStringList{"OK", "OK", "OK"}
            << QStringList{kOneDefect.arg("P0"),
                           QStringLiteral("Der Plan P1 ist 2 Mängeln zugeordnet.\nWenn Sie den Plan löschen, werden "
                                          "diese Zuordnungen aufgehoben. Die Mängel sind dann nicht mehr verortet.\n\n"
                                          "Soll dieser Plan tatsächlich gelöscht werden?")}
            << QList<bool>{false, false};
    }

    void remove()
    {
        QFETCH(QList<int>, defectsPerPlan);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, texts);
        QFETCH(QList<bool>, kept);

        KalPlanInfoDialog dialog(m_project.project(), m_defect);
        const QList<qint64> ids = addPlans(dialog, {"P0.png", "P1.png"}, {"300x200", "300x200"});
        QList<qint64> defects;
        for (int plan = 0; plan < 2; ++plan) {
            for (int i = 0; i < defectsPerPlan.at(plan); ++i) {
                const qint64 defect = m_project.addDefect({{"number", 10 * plan + i + 2}});
                QString error;
                QVERIFY2(KalPlans(m_project.project()).assign(defect, ids.at(plan), &error), qPrintable(error));
                addMarker(ids.at(plan), defect, 50);
                defects << defect;
            }
        }
        list(dialog)->selectIds(ids);
        m_prompt->clear();
        for (const QString &answer : answers)
            m_prompt->queueAnswer(answer);
        press(dialog, "pbRemovePlans");

        QCOMPARE(m_prompt->texts().mid(1), texts);
        QCOMPARE(m_prompt->titles().first(), QStringLiteral("Pläne löschen"));
        for (int plan = 0; plan < 2; ++plan) {
            const QString where = QStringLiteral("plan_info_id = %1").arg(ids.at(plan));
            QCOMPARE(m_project.count("plan_info", QStringLiteral("id = %1").arg(ids.at(plan))) == 1, kept.at(plan));
            QCOMPARE(m_project.count("marker", where), kept.at(plan) ? defectsPerPlan.at(plan) : 0);
            QCOMPARE(m_project.count("defect", where), kept.at(plan) ? defectsPerPlan.at(plan) : 0);
        }
        QCOMPARE(m_project.count("plan"), kept.count(true));
        QCOMPARE(list(dialog)->model()->rowCount(), kept.count(true));
    }

    void assign_data()
    {
        QTest::addColumn<int>("selected");
        QTest::addColumn<bool>("hadPlan");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("title"); // of the one message shown
        QTest::addColumn<bool>("assigned");

        QTest::newRow("none selected") << 0 << false << QString() << "Planauswahl" << false;
        QTest::newRow("two selected") << 2 << false << QString() << "Planauswahl" << false;
        QTest::newRow("free defect") << 1 << false << QString() << QString() << true;
        QTest::newRow("exchange confirmed") << 1 << true << "OK"
                                            << "Plan austauschen" << true;
        QTest::newRow("exchange aborted") << 1 << true << "Abbrechen"
                                          << "Plan austauschen" << false;
    }

    void assign()
    {
        QFETCH(int, selected);
        QFETCH(bool, hadPlan);
        QFETCH(QString, answer);
        QFETCH(QString, title);
        QFETCH(bool, assigned);

        const qint64 other = [&] {
            KalPlanInfoDialog setup(m_project.project(), -1);
            return addPlans(setup, {"alt.png"}, {"300x200"}).first();
        }();
        QString error;
        if (hadPlan)
            QVERIFY2(KalPlans(m_project.project()).assign(m_defect, other, &error), qPrintable(error));
        KalPlanInfoDialog dialog(m_project.project(), m_defect);
        const QList<qint64> ids = addPlans(dialog, {"neu.png", "b.png"}, {"300x200", "300x200"});
        list(dialog)->clearSelection();
        list(dialog)->selectIds(ids.mid(0, selected));
        m_prompt->clear();
        if (!answer.isEmpty())
            m_prompt->queueAnswer(answer);
        press(dialog, "pbAssignPlanToDefect");

        QCOMPARE(m_prompt->titles(), title.isEmpty() ? QStringList() : QStringList{title});
        const qint64 expected = assigned ? ids.first() : (hadPlan ? other : -1);
        QCOMPARE(KalPlans(m_project.project()).planInfoIdOfDefect(m_defect), expected);
        if (assigned)
            QCOMPARE(m_project.field("defect", m_defect, "plan_id"), m_project.field("plan_info", expected, "plan_id"));
    }

    void newVersion_data()
    {
        QTest::addColumn<bool>("defectOnPlan");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("editorRequested");

        QTest::newRow("abort") << true << "Abbrechen" << false;
        QTest::newRow("OK with the defect on the plan") << true << "OK" << true;
        QTest::newRow("OK with no defect there opens nothing") << false << "OK" << false;
    }

    void newVersion()
    {
        QFETCH(bool, defectOnPlan);
        QFETCH(QString, answer);
        QFETCH(bool, editorRequested);

        KalPlanInfoDialog dialog(m_project.project(), m_defect);
        QSignalSpy spy(&dialog, &KalPlanInfoDialog::planEditorRequested);
        const qint64 id = addPlans(dialog, {"v1.png"}, {"800x600"}).first();
        QString error;
        if (defectOnPlan)
            QVERIFY2(KalPlans(m_project.project()).assign(m_defect, id, &error), qPrintable(error));
        const qint64 marker = addMarker(id, m_defect, 100);
        list(dialog)->selectIds({id});
        KalFileDialog::queueChoice(makeFile("v2.png", "400x300"));
        m_prompt->clear();
        m_prompt->queueAnswer(answer);
        press(dialog, "pbNewPlanVersion");

        QCOMPARE(m_prompt->texts(), QStringList{kOpenEditor});
        QCOMPARE(m_project.value("SELECT plan_width FROM plan").toInt(), 400);
        // Half the size: (100 + 20) / 2 - 20, scale halved.
        QCOMPARE(m_project.field("marker", marker, "pos_x").toDouble(), 40.0);
        QCOMPARE(m_project.field("marker", marker, "scale_factor").toDouble(), 0.25);
        QCOMPARE(spy.count(), editorRequested ? 1 : 0);
        if (editorRequested)
            QCOMPARE(spy.first(), (QVariantList{id, m_defect}));
    }

    // Shrinking the stored plans from "Plangröße" moves their markers along.
    void planSizeShrinkMovesMarkers()
    {
        KalPlanInfoDialog dialog(m_project.project(), m_defect);
        const qint64 id = addPlans(dialog, {"gross.png"}, {"800x600"}).first();
        const qint64 marker = addMarker(id, m_defect, 100);
        KalDialogAnswer<KalSettingsImageSizeDialog> size([](KalSettingsImageSizeDialog *sizeDialog) {
            sizeDialog->findChild<QSpinBox *>("sbImageSize")->setValue(400);
            kalPress(sizeDialog, QDialogButtonBox::Ok);
        });
        m_prompt->clear();
        m_prompt->queueAnswer("Bestehende Pläne verkleinern");
        m_prompt->queueCheckBox(false);
        press(dialog, "pbPlanSize");
        QVERIFY(size.seen());
        QCOMPARE(m_project.value("SELECT plan_width FROM plan").toInt(), 400);
        QCOMPARE(m_project.field("marker", marker, "pos_x").toDouble(), 40.0);
        QCOMPARE(m_project.field("marker", marker, "scale_factor").toDouble(), 0.25);
    }

    void newVersionNeedsOneSelection()
    {
        KalPlanInfoDialog dialog(m_project.project(), m_defect);
        addPlans(dialog, {"x.png"}, {"300x200"});
        list(dialog)->clearSelection();
        m_prompt->clear();
        press(dialog, "pbNewPlanVersion");
        QCOMPARE(m_prompt->texts(), QStringList{kNoneSelected});
        QCOMPARE(m_prompt->titles(), QStringList{"Neue Planversion laden"});
    }
};

KAL_WIDGET_TEST_MAIN(TstPlanInfoDialog)
#include "tst_planinfodialog.moc"
