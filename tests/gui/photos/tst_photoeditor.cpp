#include "gui/photos/KalPhotoEditor.h"
#include "gui/photos/KalPhotoEditorGraphicsView.h"
#include "gui/plans/KalTextEditor.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QGraphicsScene>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QTextEdit>
#include <QToolButton>
#include <QtTest>
#include <functional>
#include <memory>

namespace {

const QColor kBackground(200, 200, 200);
const QRect kMark(0, 0, 40, 30); // a dark corner that shows how the picture is turned

// 400 x 300 grey with a dark top-left corner.
QImage photo()
{
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(kBackground);
    QPainter(&image).fillRect(kMark, Qt::black);
    return image;
}

// Pixels that differ from the photo, and their bounding box.
QRect changedArea(const QImage &before, const QImage &after)
{
    QRect area;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y))
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

bool reddish(QRgb pixel)
{
    return qRed(pixel) > 150 && qGreen(pixel) < 120 && qBlue(pixel) < 120;
}

} // namespace

class TstPhotoEditor : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;
    std::unique_ptr<KalPhotoEditor> m_editor;

    KalPhotoEditorGraphicsView *view() const { return m_editor->findChild<KalPhotoEditorGraphicsView *>("gvPhoto"); }

    void open(const QImage &picture = photo())
    {
        m_editor = std::make_unique<KalPhotoEditor>(picture);
        m_editor->resize(1000, 800);
        m_editor->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_editor.get()));
        // A fresh prompt: the missing-fonts notice of this machine and
        // unused answers stay behind.
        m_prompt = KalScriptedPrompt::install();
    }

    void press(const char *button)
    {
        auto *tool = m_editor->findChild<QAbstractButton *>(QLatin1String(button));
        QVERIFY2(tool, button);
        tool->click();
    }

    void trigger(const char *menuButton, const QString &action)
    {
        auto *tool = m_editor->findChild<QToolButton *>(QLatin1String(menuButton));
        QVERIFY(tool && tool->menu());
        auto *entry = tool->menu()->findChild<QAction *>(action);
        QVERIFY2(entry, qPrintable(action));
        entry->trigger();
    }

    QPoint at(const QPointF &scenePoint) const { return view()->mapFromScene(scenePoint); }
    QPointF shown(const QPointF &scenePoint) const { return view()->mapToScene(at(scenePoint)); }

    void drag(const QPointF &from, const QPointF &to)
    {
        QWidget *viewport = view()->viewport();
        QTest::mousePress(viewport, Qt::LeftButton, {}, at(from));
        // QTest moves the mouse without its buttons; items only follow a
        // move with the button held.
        for (const QPointF &point : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at(point), viewport->mapToGlobal(at(point)), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(viewport, &move);
        }
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, at(to));
    }

    void key(int key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(view(), Qt::Key(key), modifiers); }

    // OK, agreeing to apply; the picture the editor hands back.
    QImage apply()
    {
        m_prompt->queueAnswerIndex(0);
        m_editor->findChild<QPushButton *>("pbOk")->click();
        if (m_editor->QDialog::result() != QDialog::Accepted)
            return QImage();
        return m_editor->result();
    }

    // A red line across the middle, selected.
    void drawLine()
    {
        press("tbLine");
        drag({100, 150}, {300, 150});
    }

private slots:
    void initTestCase()
    {
        m_prompt = static_cast<KalScriptedPrompt *>(KalPrompt::instance());
        KalTextEditor::setColorChooser([](const QColor &, QWidget *, const QString &) { return QColor(Qt::blue); });
    }

    void cleanup() { m_editor.reset(); }

    void shapeChangesOnlyWhereDrawn_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QRectF>("extent"); // of the drawn outline, before the pen
        QTest::newRow("line") << "tbLine" << QPointF(100, 100) << QPointF(300, 200) << QRectF(100, 100, 200, 100);
        QTest::newRow("rectangle") << "tbRect" << QPointF(120, 80) << QPointF(260, 220) << QRectF(120, 80, 140, 140);
        QTest::newRow("square keeps equal sides")
            << "tbSquare" << QPointF(150, 100) << QPointF(250, 160) << QRectF(150, 100, 100, 100);
        QTest::newRow("ellipse") << "tbEllipse" << QPointF(300, 250) << QPointF(180, 120) << QRectF(180, 120, 120, 130);
        QTest::newRow("circle") << "tbCircle" << QPointF(200, 150) << QPointF(260, 190) << QRectF(200, 150, 60, 60);
        QTest::newRow("freehand") << "tbFreehand" << QPointF(60, 60) << QPointF(160, 260) << QRectF(60, 60, 100, 200);
    }

    void shapeChangesOnlyWhereDrawn()
    {
        QFETCH(QString, tool);
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QRectF, extent);
        open();
        press(tool.toLatin1());
        drag(from, to);
        const QImage result = apply();
        QVERIFY(!result.isNull());
        QCOMPARE(result.size(), photo().size());
        const QRect changed = changedArea(photo(), result);
        QVERIFY(!changed.isEmpty());
        // The view rounds mouse positions to its pixels; the pen (4 px on
        // this picture) and antialiasing add a little around the outline.
        const qreal slack = 1 / view()->transform().m11() + 4;
        const QRectF allowed = extent.adjusted(-slack, -slack, slack, slack);
        QCOMPARE(allowed.united(QRectF(changed)), allowed);
        // And it reaches the outline's ends: nothing was cut off.
        QVERIFY(changed.width() >= extent.width() - slack && changed.height() >= extent.height() - slack);
        // The selected object's frame and handles stay out of the picture.
        if (tool != "tbRect" && tool != "tbSquare") {
            for (const QPointF &corner : {extent.topRight(), extent.bottomLeft()})
                QCOMPARE(QColor(result.pixel(corner.toPoint())), kBackground);
        }
    }

    void polylineEndsAtTheDoubleClick()
    {
        open();
        press("tbPolygon");
        for (const QPointF &corner : {QPointF(100, 100), QPointF(150, 200)})
            QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, at(corner));
        QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, at({300, 120}));
        const QRect changed = changedArea(photo(), apply());
        const qreal slack = 1 / view()->transform().m11() + 4;
        QVERIFY(QRectF(100, 100, 200, 100).adjusted(-slack, -slack, slack, slack).contains(changed));
        QVERIFY2(changed.right() >= 300 - slack, "the last corner is missing");
    }

    void turnsRestoreThePicture_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<int>("turns");
        QTest::addColumn<QPoint>("markCorner"); // where the dark corner lands, as a corner of the picture
        QTest::newRow("right once") << "tbImageRotateRight" << 1 << QPoint(1, 0);
        QTest::newRow("left once") << "tbImageRotateLeft" << 1 << QPoint(0, 1);
        QTest::newRow("right twice") << "tbImageRotateRight" << 2 << QPoint(1, 1);
        QTest::newRow("left four times") << "tbImageRotateLeft" << 4 << QPoint(0, 0);
    }

    void turnsRestoreThePicture()
    {
        QFETCH(QString, tool);
        QFETCH(int, turns);
        QFETCH(QPoint, markCorner);
        open();
        for (int i = 0; i < turns; ++i) {
            press(tool.toLatin1());
            // The view shows the whole turned picture after every turn.
            const QSize size = (i + 1) % 2 ? QSize(300, 400) : QSize(400, 300);
            QCOMPARE(view()->scene()->sceneRect(), QRectF(QPointF(0, 0), QSizeF(size)));
            const QRectF visible = view()->mapToScene(view()->viewport()->rect()).boundingRect();
            QVERIFY(visible.adjusted(-1, -1, 1, 1).contains(view()->scene()->sceneRect()));
        }
        const QImage result = apply();
        QVERIFY(!result.isNull());
        if (turns == 4) {
            QCOMPARE(result, photo().convertToFormat(result.format()));
            return;
        }
        const QPoint corner(markCorner.x() * (result.width() - 1), markCorner.y() * (result.height() - 1));
        QCOMPARE(QColor(result.pixel(corner)), QColor(Qt::black));
        QCOMPARE(QColor(result.pixel(result.width() - 1 - corner.x(), result.height() - 1 - corner.y())), kBackground);
    }

    void objectLandsWhereShown_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("presses");
        QTest::addColumn<QPointF>("drawn");     // a point that must be red
        QTest::addColumn<QPointF>("untouched"); // a point of the original line that must not
        // The line runs from (100, 150) to (300, 150) and turns about its middle.
        QTest::newRow("turned a quarter right") << "tbRotateRight" << 6 << QPointF(200, 240) << QPointF(120, 150);
        QTest::newRow("turned 45 degrees left")
            << "tbRotateLeft" << 3 << QPointF(200 + 60, 150 - 60) << QPointF(120, 150);
        QTest::newRow("enlarged five times") << "tbUpscale" << 5 << QPointF(355, 150) << QPointF(0, 0);
        QTest::newRow("shrunk five times") << "tbDownscale" << 5 << QPointF(200, 150) << QPointF(110, 150);
        QTest::newRow("turned with the picture") << "tbImageRotateRight" << 1 << QPointF(150, 120) << QPointF(120, 150);
    }

    void objectLandsWhereShown()
    {
        QFETCH(QString, button);
        QFETCH(int, presses);
        QFETCH(QPointF, drawn);
        QFETCH(QPointF, untouched);
        open();
        drawLine();
        // A thick line, so that a shrunk one still covers whole pixels.
        trigger("tbLineWidth", "actionLineWidth8");
        for (int i = 0; i < presses; ++i)
            press(button.toLatin1());
        const QImage result = apply();
        QVERIFY(!result.isNull());
        QVERIFY2(reddish(result.pixel(drawn.toPoint())), "the object is not where it is shown");
        if (!untouched.isNull())
            QCOMPARE(QColor(result.pixel(untouched.toPoint())), kBackground);
    }

    void cornerHandleScales()
    {
        open();
        drawLine(); // 2 px wide: its frame reaches 2 px beyond the line
        drag({302, 152}, {402, 152});
        const QImage scaled = apply();
        QVERIFY(!scaled.isNull());
        // About twice as long, about its middle.
        QVERIFY(reddish(scaled.pixel(385, 150)));
        QVERIFY(reddish(scaled.pixel(15, 150)));
    }

    void undoRestores_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::newRow("draw") << "draw";
        QTest::newRow("move") << "move";
        QTest::newRow("rotate") << "tbRotateRight";
        QTest::newRow("corner handle") << "handle";
        QTest::newRow("colour") << "tbColor";
        QTest::newRow("line width") << "width";
        QTest::newRow("delete") << "delete";
        QTest::newRow("turn background") << "tbImageRotateLeft";
    }

    void undoRestores()
    {
        QFETCH(QString, operation);
        const auto run = [&](int undo, int redo) {
            open();
            if (operation != "draw")
                drawLine();
            if (operation == "draw")
                drawLine();
            else if (operation == "move")
                drag({200, 150}, {200, 60});
            else if (operation == "handle")
                drag({302, 152}, {352, 180});
            else if (operation == "width")
                trigger("tbLineWidth", "actionLineWidth8");
            else if (operation == "delete")
                key(Qt::Key_Delete);
            else
                press(operation.toLatin1());
            for (int i = 0; i < undo; ++i)
                key(Qt::Key_Z, Qt::ControlModifier);
            for (int i = 0; i < redo; ++i)
                key(Qt::Key_Y, Qt::ControlModifier);
            return apply();
        };
        const QImage before = run(1, 0);
        if (operation == "draw") {
            // Nothing left to store: OK asks nothing and hands nothing back.
            QVERIFY(before.isNull());
            QVERIFY(m_prompt->shown().isEmpty());
        } else {
            QVERIFY(!before.isNull());
        }
        const QImage after = run(0, 0);
        QVERIFY(!after.isNull());
        QVERIFY(after != before);
        QCOMPARE(run(1, 1), after);
        // Every step back to the start: the unchanged picture.
        QVERIFY(run(5, 0).isNull());
    }

    void selectionOperationWithoutSelection_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("title");
        for (const auto &row :
             {std::make_pair("tbRotateLeft", "Objekte drehen"), std::make_pair("tbUpscale", "Objekt vergrößern"),
              std::make_pair("tbDownscale", "Objekt verkleinern")})
            QTest::newRow(row.first) << QString(row.first) << QString(row.second);
    }

    void selectionOperationWithoutSelection()
    {
        QFETCH(QString, button);
        QFETCH(QString, title);
        open();
        drawLine();
        view()->scene()->clearSelection();
        press(button.toLatin1());
        QCOMPARE(m_prompt->titles(), QStringList{title});
        QCOMPARE(m_prompt->texts().value(0),
                 QString("Sie haben kein Objekt ausgewählt.\nSie wählen ein Objekt aus, indem Sie es anklicken.\nSie "
                         "wählen mehrere Objekte aus, indem Sie sie bei gedrückter Strg-Taste anklicken.\n"));
        // Nothing changed: one undo takes away the line and OK stores nothing.
        key(Qt::Key_Z, Qt::ControlModifier);
        m_prompt->clear();
        QVERIFY(apply().isNull());
        QVERIFY(m_prompt->shown().isEmpty());
    }

    void colourWithoutSelectionIsForNewObjects()
    {
        QString asked;
        KalTextEditor::setColorChooser([&asked](const QColor &, QWidget *, const QString &title) {
            asked = title;
            return QColor(Qt::blue);
        });
        open();
        press("tbColor");
        QCOMPARE(asked, QString("Objektfarbe wählen"));
        trigger("tbLineWidth", "actionLineWidth8"); // also for the next objects
        QVERIFY(m_prompt->shown().isEmpty());
        drawLine();
        const QImage result = apply();
        for (int y = 148; y <= 152; ++y)
            QCOMPARE(QColor(result.pixel(200, y)), QColor(Qt::blue));
        KalTextEditor::setColorChooser([](const QColor &, QWidget *, const QString &) { return QColor(Qt::blue); });
    }

    void symbolLandsWhereClicked_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("menuEntry"); // empty: the button itself
        const auto row = [](const char *name, const char *button, const char *entry) {
            QTest::newRow(name) << QString(button) << QString(entry);
        };
        row("X", "tbSymbolX", "");
        row("filled circle", "tbSymbolFilledCircle", "");
        row("third text symbol", "tbTextSymbol3", "");
        row("number 7", "tbNumberSymbols", "number-symbols-7");
        row("own symbol", "tbOtherTextSymbols", "actionOwnSymbol");
        row("arrow 4 upwards", "tbArrow4", "action-arrow-4-up");
        row("triangle", "tbTriangle", "");
    }

    void symbolLandsWhereClicked()
    {
        QFETCH(QString, button);
        QFETCH(QString, menuEntry);
        open();
        KalDialogAnswer<KalTextEditor> own([](KalTextEditor *editor) {
            editor->findChild<QTextEdit *>("teText")->setPlainText("#");
            editor->findChild<QPushButton *>("pbOk")->click();
        });
        if (menuEntry.isEmpty())
            press(button.toLatin1());
        else
            trigger(button.toLatin1(), menuEntry);
        QCOMPARE(own.seen(), menuEntry == "actionOwnSymbol");
        const QPointF click(250, 160);
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, at(click));
        const QRect changed = changedArea(photo(), apply());
        QVERIFY(!changed.isEmpty());
        // Centred on the click, of a size that suits the picture.
        QVERIFY(qAbs(changed.center().x() - click.x()) < 12 && qAbs(changed.center().y() - click.y()) < 12);
        QVERIFY(changed.width() < 120 && changed.height() < 120);
    }

    void cancelAsksOnlyAfterAChange()
    {
        open();
        auto *cancel = m_editor->findChild<QPushButton *>("pbCancel");
        cancel->click();
        QVERIFY(m_prompt->shown().isEmpty());
        QVERIFY(!m_editor->isVisible());

        open();
        drawLine();
        m_prompt->queueAnswerIndex(1); // Abort: stay
        cancel = m_editor->findChild<QPushButton *>("pbCancel");
        cancel->click();
        QCOMPARE(m_prompt->titles(), QStringList{"Änderungen verwerfen"});
        QCOMPARE(m_prompt->texts(), QStringList{"Sollen die Änderungen verworfen werden?"});
        QVERIFY(m_editor->isVisible());
        m_prompt->queueAnswerIndex(0);
        key(Qt::Key_Escape);
        QVERIFY(!m_editor->isVisible());
        QCOMPARE(m_editor->QDialog::result(), int(QDialog::Rejected));
    }

    void okAsksBeforeApplying()
    {
        open();
        drawLine();
        m_prompt->queueAnswerIndex(1); // Abort
        m_editor->findChild<QPushButton *>("pbOk")->click();
        QCOMPARE(m_prompt->titles(), QStringList{"Änderungen übernehmen"});
        QCOMPARE(m_prompt->texts(), QStringList{"Ihre Änderungen werden jetzt in das Bild übernommen.\nDieser "
                                                "Vorgang lässt sich nicht rückgängig machen."});
        QVERIFY(m_editor->isVisible());
        QVERIFY(m_editor->result().isNull());
    }

    void textIsPlacedAndEditedByDoubleClick()
    {
        open();
        press("tbText");
        KalDialogAnswer<KalTextEditor> type([](KalTextEditor *editor) {
            editor->findChild<QTextEdit *>("teText")->setPlainText("WWWW");
            editor->findChild<QPushButton *>("pbOk")->click();
        });
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, at({50, 200}));
        QVERIFY(type.seen());
        QCOMPARE(m_editor->findChildren<KalTextEditor *>().size(), 0);

        // Emptying the text asks, then removes the text: nothing is left.
        KalDialogAnswer<KalTextEditor> empty([](KalTextEditor *editor) {
            QCOMPARE(editor->findChild<QTextEdit *>("teText")->toPlainText(), QString("WWWW"));
            editor->findChild<QTextEdit *>("teText")->clear();
            editor->findChild<QPushButton *>("pbOk")->click();
        });
        m_prompt->queueAnswerIndex(0);
        QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, at({56, 206}));
        QVERIFY(empty.seen());
        QCOMPARE(m_prompt->titles(), QStringList{"Text"});
        QCOMPARE(apply(), photo().convertToFormat(QImage::Format_RGB32));

        // Undoing the removal brings the text back where it was placed.
        open();
        press("tbText");
        KalDialogAnswer<KalTextEditor> again([](KalTextEditor *editor) {
            editor->findChild<QTextEdit *>("teText")->setPlainText("WWWW");
            editor->findChild<QPushButton *>("pbOk")->click();
        });
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, at({50, 200}));
        const QRect changed = changedArea(photo(), apply());
        QVERIFY(!changed.isEmpty());
        QVERIFY2(changed.left() >= 48 && changed.top() >= 198, "the text starts where it was placed");
    }
};

KAL_WIDGET_TEST_MAIN(TstPhotoEditor)
#include "tst_photoeditor.moc"
