// The plan editor through its tools: the rows it writes for placed and
// changed markers, the located spot kept on a type exchange, others' markers,
// the generated defect text, and OK / Cancel when the defect editor owns the
// models.
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalDefectEditor.h"
#include "gui/plans/KalMarkerItem.h"
#include "gui/plans/KalMarkerTextItem.h"
#include "gui/plans/KalPlanEditor.h"
#include "gui/plans/KalPlanGraphicsScene.h"
#include "gui/plans/KalPlanInfoDialog.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QAction>
#include <QComboBox>
#include <QGraphicsView>
#include <QImage>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolButton>
#include <memory>

namespace {
const QSize kPlan(1000, 800);
// A tenth of the longer side for the 512-unit frame.
const double kScale = 100.0 / 512.0;
} // namespace

class TstPlanEditor : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_files;
    KalTestProject m_project;
    KalScriptedPrompt *m_prompt = nullptr;
    qint64 m_sheet = -1;
    qint64 m_defect = -1;

    std::unique_ptr<KalPlanEditor> editor(KalPlanEditor::Saving saving = KalPlanEditor::SubmitRows)
    {
        auto e = std::make_unique<KalPlanEditor>(m_project.project(), m_sheet, m_defect, nullptr, saving);
        e->show();
        return e;
    }
    void click(KalPlanEditor *e, const char *tool) { e->findChild<QToolButton *>(tool)->click(); }
    qint64 onlyId(const char *table)
    {
        return m_project
            .value(QStringLiteral("SELECT id FROM %1 WHERE defect_id = :d").arg(QLatin1String(table)),
                   {{"d", m_defect}})
            .toLongLong();
    }
    QList<KalMarkerItem *> markers(KalPlanEditor *e)
    {
        QList<KalMarkerItem *> found;
        for (QGraphicsItem *item : e->scene()->items()) {
            if (item->type() == KalMarkerItem::Type)
                found.append(static_cast<KalMarkerItem *>(item));
        }
        return found;
    }

private slots:
    void initTestCase()
    {
        QImage plan(kPlan, QImage::Format_RGB32);
        plan.fill(Qt::white);
        QVERIFY(plan.save(m_files.filePath("plan.png")));
    }

    void init()
    {
        QSettings().clear();
        QVERIFY(m_project.open());
        m_prompt = KalScriptedPrompt::install();
        m_sheet = KalPlans(m_project.project()).addFile(m_files.filePath("plan.png"));
        QVERIFY(m_sheet > 0);
        m_defect =
            m_project.addDefect({{"number", "0007"}, {"description", "Riss in der Wand"}, {"plan_info_id", m_sheet}});
        QVERIFY(m_defect > 0);
        QVERIFY(m_project.reselect());
    }

    void placedMarkerRow_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QPointF>("spot"); // the tip, or the target's centre
        QTest::newRow("pin") << 1 << QPointF(160, 512);
        QTest::newRow("needle") << 2 << QPointF(256, 512);
        QTest::newRow("flag") << 3 << QPointF(80, 512);
        QTest::newRow("target") << 4 << QPointF(256, 256);
    }
    void placedMarkerRow()
    {
        QFETCH(int, type);
        QFETCH(QPointF, spot);
        QSettings().setValue("Marker/StandardMarkerType", type);
        QSettings().setValue("Marker/StandardMarkerColor", "#12ab34");
        auto e = editor();
        e->addMarker(QPointF(500, 400));
        e->accept();
        QCOMPARE(e->result(), int(QDialog::Accepted));
        const qint64 id = onlyId("marker");
        QCOMPARE(m_project.count("marker"), 1);
        QCOMPARE(m_project.field("marker", id, "type").toInt(), type);
        QCOMPARE(m_project.field("marker", id, "color1").toString(), QString("#12ab34"));
        QCOMPARE(m_project.field("marker", id, "plan_info_id").toLongLong(), m_sheet);
        QCOMPARE(m_project.field("marker", id, "transform_point_x").toDouble(), spot.x());
        QCOMPARE(m_project.field("marker", id, "transform_point_y").toDouble(), spot.y());
        QCOMPARE(m_project.field("marker", id, "pos_x").toDouble(), 500 - spot.x());
        QCOMPARE(m_project.field("marker", id, "pos_y").toDouble(), 400 - spot.y());
        QCOMPARE(m_project.field("marker", id, "scale_factor").toDouble(), kScale);
        // The first marker brings the defect's text.
        QCOMPARE(m_project.count("marker_text"), 1);
        QCOMPARE(m_project.field("marker_text", onlyId("marker_text"), "text").toString(),
                 QString("0007: Riss in der Wand"));
    }

    void selectedOperations_data()
    {
        QTest::addColumn<QStringList>("tools");
        QTest::addColumn<double>("rotation");
        QTest::addColumn<double>("scale");
        QTest::newRow("left") << QStringList{"tbRotateLeft"} << -15.0 << kScale;
        QTest::newRow("right twice") << QStringList{"tbRotateRight", "tbRotateRight"} << 30.0 << kScale;
        QTest::newRow("enlarge") << QStringList{"tbUpscale"} << 0.0 << kScale * 1.1;
        QTest::newRow("shrink then enlarge is not 1")
            << QStringList{"tbDownscale", "tbUpscale"} << 0.0 << kScale * 1.00001;
    }
    void selectedOperations()
    {
        QFETCH(QStringList, tools);
        QFETCH(double, rotation);
        QFETCH(double, scale);
        auto e = editor();
        e->addMarker(QPointF(300, 300));
        for (const QString &tool : tools)
            click(e.get(), qPrintable(tool));
        e->accept();
        const qint64 id = onlyId("marker");
        QCOMPARE(m_project.field("marker", id, "rotation_angle").toDouble(), rotation);
        QCOMPARE(m_project.field("marker", id, "scale_factor").toDouble(), scale);
        QVERIFY(m_prompt->shown().isEmpty());
    }

    void operationsWithoutSelectionExplain()
    {
        auto e = editor();
        const char *tools[] = {"tbRotateLeft", "tbUpscale", "tbDownscale", "tbMarker2"};
        for (const char *tool : tools)
            click(e.get(), tool);
        QCOMPARE(m_prompt->titles(),
                 QStringList({"Objekte drehen", "Objekt vergrößern", "Objekt verkleinern", "Marker austauschen"}));
        QVERIFY(m_prompt->texts().first().startsWith("Sie haben kein Objekt ausgewählt."));
        QVERIFY(m_prompt->texts().last().startsWith("Sie haben keinen Marker ausgewählt."));
    }

    void exchangeKeepsTheLocatedSpot()
    {
        auto e = editor();
        KalMarkerItem *marker = e->addMarker(QPointF(600, 500));
        click(e.get(), "tbRotateRight");
        click(e.get(), "tbUpscale");
        click(e.get(), "tbMarker4");
        QCOMPARE(marker->markerType(), 4);
        const QPointF spot = marker->mapToScene(marker->transformOriginPoint());
        QVERIFY2(QLineF(spot, QPointF(600, 500)).length() < 1e-9,
                 qPrintable(QString("%1 %2").arg(spot.x()).arg(spot.y())));
        click(e.get(), "tbMarker3");
        e->accept();
        const qint64 id = onlyId("marker");
        QCOMPARE(m_project.field("marker", id, "type").toInt(), 3);
        QCOMPARE(m_project.field("marker", id, "pos_x").toDouble() +
                     m_project.field("marker", id, "transform_point_x").toDouble(),
                 600.0);
        QCOMPARE(m_project.field("marker", id, "pos_y").toDouble() +
                     m_project.field("marker", id, "transform_point_y").toDouble(),
                 500.0);
    }

    void othersMarkersShownNotSelectable()
    {
        const qint64 other = m_project.addDefect({{"number", "0008"}, {"description", "x"}, {"plan_info_id", m_sheet}});
        const qint64 gone =
            m_project.addDefect({{"number", "0009"}, {"description", "y"}, {"plan_info_id", m_sheet + 1}});
        for (qint64 defect : {other, gone}) {
            m_project.insert("marker", {{"type", 2},
                                        {"pos_x", 10.0},
                                        {"pos_y", 10.0},
                                        {"scale_factor", 0.2},
                                        {"color1", "#ff0000"},
                                        {"plan_info_id", m_sheet},
                                        {"defect_id", defect}});
        }
        QVERIFY(m_project.reselect());
        auto e = editor();
        const QList<KalMarkerItem *> shown = markers(e.get());
        QCOMPARE(shown.size(), 1); // the marker of the defect now on another plan is left out
        QVERIFY(!(shown.first()->flags() & QGraphicsItem::ItemIsSelectable));
        e->scene()->setSelectionArea(QPainterPath(), Qt::IntersectsItemShape);
        QPainterPath all;
        all.addRect(e->scene()->sceneRect());
        e->scene()->setSelectionArea(all);
        QVERIFY(e->scene()->selectedItems().isEmpty());
        // Rotating finds nothing to turn; the other defect's row stays.
        click(e.get(), "tbRotateLeft");
        QCOMPARE(m_prompt->titles(), QStringList{"Objekte drehen"});
        e->addMarker(QPointF(50, 50));
        e->accept();
        QCOMPARE(m_project.count("marker", QString("defect_id = %1").arg(other)), 1);
        QCOMPARE(m_project.count("marker", QString("defect_id = %1").arg(m_defect)), 1);
    }

    void defectEditorOwnsTheModels_data()
    {
        QTest::addColumn<bool>("defectEditorOk");
        QTest::newRow("OK there submits") << true;
        QTest::newRow("Cancel there reverts") << false;
    }
    void defectEditorOwnsTheModels()
    {
        QFETCH(bool, defectEditorOk);
        KalSqlTableModel *defects = m_project.model("defect");
        KalDefectEditor defectEditor(m_project.project(), defects->findRowById(m_defect));
        defectEditor.show();
        KalDialogAnswer<KalPlanEditor> answer([](KalPlanEditor *e) {
            e->addMarker(QPointF(100, 100));
            e->accept();
        });
        defectEditor.findChild<QPushButton *>("pbPlanEditor")->click();
        QVERIFY(answer.seen());
        // Nothing reaches the file before the defect editor decides.
        QCOMPARE(m_project.count("marker"), 0);
        QCOMPARE(m_project.count("marker_text"), 0);
        if (defectEditorOk)
            defectEditor.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        else
            defectEditor.reject();
        QCOMPARE(m_project.count("marker"), defectEditorOk ? 1 : 0);
        QCOMPARE(m_project.count("marker_text"), defectEditorOk ? 1 : 0);
    }

    // Without a plan the marker button offers the plan library first;
    // leaving it without choosing opens no editor.
    void defectEditorWithoutPlanAsksForOne()
    {
        QVERIFY(m_project.exec("UPDATE defect SET plan_info_id = -1"));
        QVERIFY(m_project.reselect());
        KalDefectEditor defectEditor(m_project.project(), m_project.model("defect")->findRowById(m_defect));
        KalDialogAnswer<KalPlanInfoDialog> library([](KalPlanInfoDialog *dialog) { dialog->reject(); });
        bool editorOpened = false;
        KalDialogAnswer<KalPlanEditor> editor([&](KalPlanEditor *e) {
            editorOpened = true;
            e->reject();
        });
        defectEditor.findChild<QPushButton *>("pbPlanEditor")->click();
        QVERIFY(library.seen());
        QVERIFY(!editorOpened);
        QVERIFY(m_prompt->titles().isEmpty());
    }

    void defectTextComesBackAfterDeletion()
    {
        auto e = editor();
        e->addMarker(QPointF(100, 100));
        e->accept();
        QCOMPARE(m_project.count("marker_text"), 1);
        // The user deletes the text; the marker stays.
        e = editor();
        for (QGraphicsItem *item : e->scene()->items())
            item->setSelected(item->type() == KalMarkerTextItem::Type);
        m_prompt->queueAnswer("Ja");
        QTest::keyClick(e->findChild<QGraphicsView *>("gvPlan"), Qt::Key_Delete);
        QCOMPARE(m_prompt->titles(), QStringList{"Marker/Texte löschen"});
        e->accept();
        QCOMPARE(m_project.count("marker_text"), 0);
        QCOMPARE(m_project.count("marker"), 1);
        // Opening again generates it anew, and leaving keeps it only on OK.
        e = editor();
        m_prompt->clear();
        m_prompt->queueAnswer("OK");
        e->reject();
        QCOMPARE(m_prompt->titles(), QStringList{"Änderungen verwerfen"});
        QCOMPARE(m_project.count("marker_text"), 0);
        e = editor();
        e->accept();
        QCOMPARE(m_project.count("marker_text"), 1);
    }

    void textFontTools_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<bool>("textSelected");
        QTest::newRow("family of the selected text") << "cbxFontFamily" << true;
        QTest::newRow("typed size of the selected text") << "cbxFontSize" << true;
        QTest::newRow("family of the next generated text") << "cbxFontFamily" << false;
        QTest::newRow("typed size of the next generated text") << "cbxFontSize" << false;
    }
    void textFontTools()
    {
        QFETCH(QString, box);
        QFETCH(bool, textSelected);
        const bool family = box == "cbxFontFamily";
        auto e = editor();
        auto text = [&e]() -> KalMarkerTextItem * {
            for (QGraphicsItem *item : e->scene()->items()) {
                if (item->type() == KalMarkerTextItem::Type)
                    return static_cast<KalMarkerTextItem *>(item);
            }
            return nullptr;
        };
        auto shown = [&](KalMarkerTextItem *item) {
            return family ? item->fontFamily() : QString::number(item->fontSize());
        };
        if (textSelected) {
            e->addMarker(QPointF(300, 300));
            for (QGraphicsItem *item : e->scene()->items())
                item->setSelected(item->type() == KalMarkerTextItem::Type);
        }
        const QString before = textSelected ? shown(text()) : QString();
        auto *combo = e->findChild<QComboBox *>(box);
        QString chosen = "23";
        if (family) {
            QTest::keyClick(combo, combo->currentIndex() + 1 < combo->count() ? Qt::Key_Down : Qt::Key_Up);
            chosen = combo->currentText();
        } else {
            combo->lineEdit()->selectAll();
            QTest::keyClicks(combo, chosen);
            QTest::keyClick(combo, Qt::Key_Return);
            QVERIFY(e->isVisible()); // the size's Return is not the dialog's OK
        }
        if (!textSelected)
            e->addMarker(QPointF(300, 300)); // brings the defect's text
        QCOMPARE(shown(text()), chosen);
        if (textSelected) {
            QVERIFY(chosen != before);
            e->actions().at(0)->trigger(); // undo
            QCOMPARE(shown(text()), before);
            QCOMPARE(combo->currentText(), before);
            e->actions().at(1)->trigger(); // redo
        }
        e->accept();
        QCOMPARE(m_project.field("marker_text", onlyId("marker_text"), family ? "font_family" : "font_size").toString(),
                 chosen);
    }

    void savingKeepsRowIds_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<int>("markers");
        QTest::addColumn<bool>("textKept");
        QTest::newRow("turned marker") << "turn" << 1 << true;
        QTest::newRow("deleted text") << "delete text" << 1 << false;
        QTest::newRow("second marker") << "add marker" << 2 << true;
    }
    void savingKeepsRowIds()
    {
        QFETCH(QString, change);
        QFETCH(int, markers);
        QFETCH(bool, textKept);
        auto e = editor();
        e->addMarker(QPointF(300, 300));
        e->accept();
        const qint64 markerId = onlyId("marker");
        const qint64 textId = onlyId("marker_text");
        e = editor();
        for (QGraphicsItem *item : e->scene()->items())
            item->setSelected(item->type() == (change == "turn" ? int(KalMarkerItem::Type) : KalMarkerTextItem::Type));
        if (change == "turn") {
            click(e.get(), "tbRotateRight");
        } else if (change == "delete text") {
            m_prompt->queueAnswer("Ja");
            QTest::keyClick(e->findChild<QGraphicsView *>("gvPlan"), Qt::Key_Delete);
        } else {
            e->addMarker(QPointF(700, 500));
        }
        e->accept();
        QCOMPARE(m_project.count("marker"), markers);
        QCOMPARE(m_project.count("marker", QString("id = %1").arg(markerId)), 1);
        QCOMPARE(m_project.field("marker", markerId, "rotation_angle").toDouble(), change == "turn" ? 15.0 : 0.0);
        QCOMPARE(m_project.count("marker_text", QString("id = %1").arg(textId)), textKept ? 1 : 0);
        QCOMPARE(m_project.count("marker_text"), textKept ? 1 : 0);
    }

    void discardQuestionKeepsTheEditorOpen()
    {
        auto e = editor();
        e->reject(); // nothing changed: no question
        QVERIFY(m_prompt->shown().isEmpty());
        QCOMPARE(e->result(), int(QDialog::Rejected));
        e = editor();
        e->addMarker(QPointF(100, 100));
        m_prompt->queueAnswer("Abbrechen");
        e->reject();
        QVERIFY(e->isVisible());
        e->accept();
        QCOMPARE(m_project.count("marker"), 1);
    }
};

KAL_WIDGET_TEST_MAIN(TstPlanEditor)
#include "tst_planeditor.moc"
