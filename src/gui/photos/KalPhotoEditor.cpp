#include "KalPhotoEditor.h"
#include "ui_KalPhotoEditor.h"

#include "KalPhotoEditorGraphicsScene.h"
#include "KalPhotoEditorShapeItem.h"
#include "core/plans/KalFontCheck.h"
#include "core/project/KalPrompt.h"
#include "gui/plans/KalGraphicsTextItem.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QSettings>
#include <QTextDocument>

namespace {

const char *const kGeometryKey = "PhotoEditor/Geometry";
const int kLineWidthSteps = 8;
const int kDefaultLineWidthStep = 2;

QIcon toolIcon(const QString &name)
{
    return QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-fotoeditor-%1.png").arg(name));
}

struct DirectionEntry
{
    KalPhotoEditorShapes::Direction direction;
    const char *key;
    const char *text;
};

const DirectionEntry kDirections[] = {
    {KalPhotoEditorShapes::Left, "left", QT_TRANSLATE_NOOP("KalPhotoEditor", "nach links")},
    {KalPhotoEditorShapes::Right, "right", QT_TRANSLATE_NOOP("KalPhotoEditor", "nach rechts")},
    {KalPhotoEditorShapes::Up, "up", QT_TRANSLATE_NOOP("KalPhotoEditor", "nach oben")},
    {KalPhotoEditorShapes::Down, "down", QT_TRANSLATE_NOOP("KalPhotoEditor", "nach unten")},
};

} // namespace

KalPhotoEditor::KalPhotoEditor(const QImage &picture, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalPhotoEditor>())
    , m_scene(new KalPhotoEditorGraphicsScene(this))
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() | Qt::WindowMaximizeButtonHint);
    restoreGeometry(QSettings().value(QLatin1String(kGeometryKey)).toByteArray());

    // Default sizes follow the picture, so objects look alike on small and
    // large photos.
    const int longSide = qMax(picture.width(), picture.height());
    m_widthUnit = qMax(1.0, longSide / 500.0);
    m_textPointSize = qMax(8, longSide / 50);
    m_scene->setPicture(picture);
    m_scene->setDefaultSizes(qMax(24.0, longSide / 6.0), qMax(10, longSide / 25));
    m_scene->setLineWidth(kDefaultLineWidthStep * m_widthUnit);
    m_ui->gvPhoto->setScene(m_scene);

    connect(m_scene, &KalPhotoEditorGraphicsScene::objectCreated, this, &KalPhotoEditor::objectCreated);
    connect(m_scene, &KalPhotoEditorGraphicsScene::objectsMoved, this, &KalPhotoEditor::objectsMoved);
    connect(m_scene, &KalPhotoEditorGraphicsScene::textRequested, this, &KalPhotoEditor::textRequested);
    connect(m_scene, &KalPhotoEditorGraphicsScene::textEditRequested, this, &KalPhotoEditor::textEditRequested);
    // A drawing tool shows itself by the cross cursor until its object is made.
    connect(m_scene, &KalPhotoEditorGraphicsScene::modeChanged, this, [this](int mode) {
        if (mode == KalPhotoEditorGraphicsScene::Select)
            m_ui->gvPhoto->viewport()->unsetCursor();
        else
            m_ui->gvPhoto->viewport()->setCursor(Qt::CrossCursor);
    });
    connect(m_ui->gvPhoto, &KalPhotoEditorGraphicsView::deleteRequested, this, &KalPhotoEditor::deleteSelected);
    connect(m_ui->pbOk, &QPushButton::clicked, this, &KalPhotoEditor::okClicked);
    connect(m_ui->pbCancel, &QPushButton::clicked, this, &KalPhotoEditor::reject);

    QAction *undo = m_undo.createUndoAction(this, tr("Rückgängig"));
    undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    QAction *redo = m_undo.createRedoAction(this, tr("Wiederherstellen"));
    redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    addActions({undo, redo});

    setUpTools();
    // Icon-only buttons: screen readers (and the group box around them)
    // would otherwise announce only the group's title.
    for (QToolButton *button : findChildren<QToolButton *>()) {
        if (button->accessibleName().isEmpty())
            button->setAccessibleName(button->toolTip());
    }
    setUpArrowMenus();
    setUpSymbolMenus();
    setUpLineWidthMenu();
    m_ui->gvPhoto->fitToWindow();
    KalFontCheck::warnAboutMissing();
}

KalPhotoEditor::~KalPhotoEditor()
{
    // The scene outlives this part of the editor and may signal while it
    // goes: its signals must no longer reach us.
    disconnect(m_scene, nullptr, this, nullptr);
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    m_undo.clear();
    for (QGraphicsItem *item : qAsConst(m_created)) {
        if (!item->scene())
            delete item;
    }
}

QToolButton *KalPhotoEditor::toolButton(const char *name) const
{
    return findChild<QToolButton *>(QLatin1String(name));
}

void KalPhotoEditor::setUpTools()
{
    using Scene = KalPhotoEditorGraphicsScene;
    struct Tool
    {
        const char *button;
        const char *icon;
        int mode;
    };
    static const Tool tools[] = {
        {"tbLine", "line", Scene::Line},
        {"tbPolygon", "polygon", Scene::Polyline},
        {"tbSquare", "square", Scene::Square},
        {"tbRect", "rect", Scene::Rect},
        {"tbCircle", "circle", Scene::Circle},
        {"tbEllipse", "ellipse", Scene::Ellipse},
        {"tbText", "text", Scene::Text},
        {"tbFreehand", "freehand", Scene::Freehand},
        {"tbSymbolX", "symbol-x", Scene::SymbolX},
        {"tbSymbolFilledCircle", "symbol-filled-circle", Scene::SymbolFilledCircle},
        {"tbSymbolAsterisk", "symbol-asterisk", Scene::SymbolAsterisk},
        {"tbSymbolDiamond", "symbol-diamond", Scene::SymbolDiamond},
        {"tbTextSymbol1", "text-symbol-1", Scene::TextSymbol1},
        {"tbTextSymbol2", "text-symbol-2", Scene::TextSymbol1 + 1},
        {"tbTextSymbol3", "text-symbol-3", Scene::TextSymbol1 + 2},
        {"tbTextSymbol4", "text-symbol-4", Scene::TextSymbol4},
    };
    for (const Tool &tool : tools) {
        QToolButton *button = toolButton(tool.button);
        button->setIcon(toolIcon(QLatin1String(tool.icon)));
        const int mode = tool.mode;
        connect(button, &QToolButton::clicked, this, [this, mode] { startTool(mode); });
    }

    struct Operation
    {
        const char *button;
        const char *icon;
        void (KalPhotoEditor::*slot)();
    };
    static const Operation operations[] = {
        {"tbRotateLeft", "rotate-left", &KalPhotoEditor::rotateLeftClicked},
        {"tbRotateRight", "rotate-right", &KalPhotoEditor::rotateRightClicked},
        {"tbUpscale", "upscale", &KalPhotoEditor::upscaleClicked},
        {"tbDownscale", "downscale", &KalPhotoEditor::downscaleClicked},
        {"tbColor", "color", &KalPhotoEditor::colorClicked},
        {"tbImageRotateLeft", "rotate-image-left", &KalPhotoEditor::imageRotateLeftClicked},
        {"tbImageRotateRight", "rotate-image-right", &KalPhotoEditor::imageRotateRightClicked},
    };
    for (const Operation &operation : operations) {
        QToolButton *button = toolButton(operation.button);
        button->setIcon(toolIcon(QLatin1String(operation.icon)));
        connect(button, &QToolButton::clicked, this, operation.slot);
    }
}

void KalPhotoEditor::setUpArrowMenus()
{
    // Arrows and the triangle: the button places the last chosen direction,
    // its menu chooses another.
    for (int number = 0; number <= KalPhotoEditorShapes::arrowCount; ++number) {
        const bool triangle = number == 0;
        const QString name = triangle ? QStringLiteral("triangle") : QStringLiteral("arrow-%1").arg(number);
        QToolButton *button =
            triangle ? m_ui->tbTriangle : toolButton(QStringLiteral("tbArrow%1").arg(number).toLatin1());
        auto *menu = new QMenu(button);
        m_directions[number] = number == 6 ? KalPhotoEditorShapes::Left : KalPhotoEditorShapes::Right;
        auto start = [this, number, triangle] {
            if (triangle)
                m_scene->setTriangle(m_directions[number]);
            else
                m_scene->setArrow(number, m_directions[number]);
            startTool(triangle ? KalPhotoEditorGraphicsScene::Triangle : KalPhotoEditorGraphicsScene::Arrow);
        };
        for (const DirectionEntry &entry : kDirections) {
            // The double arrow points both ways: left stands for across, up
            // for upright.
            if (number == 6 && entry.direction != KalPhotoEditorShapes::Left &&
                entry.direction != KalPhotoEditorShapes::Up)
                continue;
            const QIcon icon = toolIcon(name + QLatin1Char('-') + QLatin1String(entry.key));
            const QString text = number != 6                                     ? tr(entry.text)
                                 : entry.direction == KalPhotoEditorShapes::Left ? tr("waagerecht")
                                                                                 : tr("senkrecht");
            QAction *action = menu->addAction(icon, text);
            action->setObjectName(QStringLiteral("action-%1-%2").arg(name, QLatin1String(entry.key)));
            const auto direction = entry.direction;
            connect(action, &QAction::triggered, this, [this, number, button, icon, direction, start] {
                m_directions[number] = direction;
                button->setIcon(icon);
                start();
            });
            if (direction == m_directions[number])
                button->setIcon(icon);
        }
        button->setMenu(menu);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        connect(button, &QToolButton::clicked, this, start);
    }
}

void KalPhotoEditor::setUpSymbolMenus()
{
    // Number symbols and further text symbols: the button places the last
    // chosen one, the menu chooses.
    struct SymbolMenu
    {
        QToolButton *button;
        const char *icon;
        int count;
        QString (*symbol)(int);
    };
    const SymbolMenu menus[] = {
        {m_ui->tbNumberSymbols, "number-symbols", KalPhotoEditorShapes::numberSymbolCount,
         &KalPhotoEditorShapes::numberSymbol},
        {m_ui->tbOtherTextSymbols, "text-symbols", KalPhotoEditorShapes::textSymbolCount,
         &KalPhotoEditorShapes::textSymbol},
    };
    for (const SymbolMenu &entry : menus) {
        QToolButton *button = entry.button;
        button->setIcon(toolIcon(QLatin1String(entry.icon)));
        auto *menu = new QMenu(button);
        for (int i = 0; i < entry.count; ++i) {
            const QString symbol = entry.symbol(i);
            const QString family = KalFontCheck::familyFor(symbol, KalPhotoEditorShapes::symbolFonts());
            QAction *action = menu->addAction(symbol);
            action->setObjectName(QStringLiteral("%1-%2").arg(QLatin1String(entry.icon)).arg(i + 1));
            QFont font(family);
            font.setPointSize(14);
            action->setFont(font);
            connect(action, &QAction::triggered, this, [this, button, action, symbol, family] {
                button->setProperty("chosenSymbol", symbol);
                button->setProperty("chosenFamily", family);
                for (QAction *other : action->parentWidget()->actions())
                    other->setChecked(other == action);
                m_scene->setChosenSymbol(symbol, family);
                startTool(KalPhotoEditorGraphicsScene::ChosenSymbol);
            });
            action->setCheckable(true);
            if (i == 0) {
                action->setChecked(true);
                button->setProperty("chosenSymbol", symbol);
                button->setProperty("chosenFamily", family);
            }
        }
        button->setMenu(menu);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        connect(button, &QToolButton::clicked, this, [this, button] {
            m_scene->setChosenSymbol(button->property("chosenSymbol").toString(),
                                     button->property("chosenFamily").toString());
            startTool(KalPhotoEditorGraphicsScene::ChosenSymbol);
        });
    }
    QMenu *other = m_ui->tbOtherTextSymbols->menu();
    other->addSeparator();
    QAction *own = other->addAction(tr("Eigenes Symbol erstellen"));
    own->setObjectName(QStringLiteral("actionOwnSymbol"));
    connect(own, &QAction::triggered, this, &KalPhotoEditor::ownSymbol);
}

void KalPhotoEditor::setUpLineWidthMenu()
{
    m_ui->tbLineWidth->setIcon(toolIcon(QStringLiteral("linewidth")));
    auto *menu = new QMenu(m_ui->tbLineWidth);
    for (int step = 1; step <= kLineWidthSteps; ++step) {
        const qreal width = step * m_widthUnit;
        QAction *action = menu->addAction(tr("%1 Pixel").arg(QLocale().toString(width, 'f', width < 10 ? 1 : 0)));
        action->setObjectName(QStringLiteral("actionLineWidth%1").arg(step));
        action->setCheckable(true);
        action->setChecked(step == kDefaultLineWidthStep);
        connect(action, &QAction::triggered, this, [this, step] { setLineWidthStep(step); });
    }
    m_ui->tbLineWidth->setMenu(menu);
    m_ui->tbLineWidth->setPopupMode(QToolButton::InstantPopup);
}

void KalPhotoEditor::startTool(int mode)
{
    m_scene->clearSelection();
    m_scene->setMode(mode);
    m_ui->gvPhoto->setFocus();
}

QList<QGraphicsItem *> KalPhotoEditor::selectionOrMessage(const QString &title)
{
    const QList<QGraphicsItem *> selected = m_scene->selectedItems();
    return KalSelectionSteps::anySelected(selected, title) ? selected : QList<QGraphicsItem *>();
}

void KalPhotoEditor::transformSelection(qreal degrees, qreal factor, const QString &title)
{
    const QList<QGraphicsItem *> selected = selectionOrMessage(title);
    if (!selected.isEmpty())
        m_undo.push(KalPhotoEditorChangeCommand::turnAndScale(selected, degrees, factor, title));
}

void KalPhotoEditor::rotateLeftClicked()
{
    transformSelection(-KalSelectionSteps::TurnDegrees, 1, tr("Objekte drehen"));
}

void KalPhotoEditor::rotateRightClicked()
{
    transformSelection(KalSelectionSteps::TurnDegrees, 1, tr("Objekte drehen"));
}

void KalPhotoEditor::upscaleClicked()
{
    transformSelection(0, KalSelectionSteps::Enlarge, tr("Objekt vergrößern"));
}

void KalPhotoEditor::downscaleClicked()
{
    transformSelection(0, KalSelectionSteps::Shrink, tr("Objekt verkleinern"));
}

void KalPhotoEditor::colorClicked()
{
    const QColor color = KalTextEditor::chooseColor(m_scene->color(), this, tr("Objektfarbe wählen"));
    if (!color.isValid())
        return;
    // With nothing selected the colour is the one of the next objects.
    m_scene->setColor(color);
    const QList<QGraphicsItem *> selected = m_scene->selectedItems();
    if (selected.isEmpty())
        return;
    QList<QColor> before;
    for (QGraphicsItem *item : selected) {
        if (auto *shape = qgraphicsitem_cast<KalPhotoEditorShapeItem *>(item))
            before.append(shape->color());
        else if (auto *text = qgraphicsitem_cast<KalGraphicsTextItem *>(item))
            before.append(text->textColor());
    }
    auto apply = [selected](const QList<QColor> &colors) {
        for (int i = 0; i < selected.size(); ++i) {
            if (auto *shape = qgraphicsitem_cast<KalPhotoEditorShapeItem *>(selected.at(i)))
                shape->setColor(colors.at(i));
            else if (auto *text = qgraphicsitem_cast<KalGraphicsTextItem *>(selected.at(i)))
                text->setTextColor(colors.at(i));
        }
    };
    QList<QColor> after;
    for (int i = 0; i < before.size(); ++i)
        after.append(color);
    m_undo.push(new KalPhotoEditorChangeCommand(
        tr("Farbe ändern"), [apply, after] { apply(after); }, [apply, before] { apply(before); }));
}

void KalPhotoEditor::setLineWidthStep(int step)
{
    const qreal width = step * m_widthUnit;
    for (QAction *action : m_ui->tbLineWidth->menu()->actions())
        action->setChecked(action->objectName() == QStringLiteral("actionLineWidth%1").arg(step));
    // With nothing selected the width is the one of the next objects.
    m_scene->setLineWidth(width);
    QList<KalPhotoEditorShapeItem *> shapes;
    QList<qreal> before;
    for (QGraphicsItem *item : m_scene->selectedItems()) {
        if (auto *shape = qgraphicsitem_cast<KalPhotoEditorShapeItem *>(item)) {
            shapes.append(shape);
            before.append(shape->lineWidth());
        }
    }
    if (shapes.isEmpty())
        return;
    m_undo.push(new KalPhotoEditorChangeCommand(
        tr("Linienstärke ändern"),
        [shapes, width] {
            for (KalPhotoEditorShapeItem *shape : shapes)
                shape->setLineWidth(width);
        },
        [shapes, before] {
            for (int i = 0; i < shapes.size(); ++i)
                shapes.at(i)->setLineWidth(before.at(i));
        }));
}

void KalPhotoEditor::turnBackground(int degrees)
{
    auto turn = [this](int by) {
        m_scene->turnBackground(by);
        m_ui->gvPhoto->fitToWindow();
    };
    m_undo.push(new KalPhotoEditorChangeCommand(
        degrees < 0 ? tr("Hintergrund nach links drehen") : tr("Hintergrund nach rechts drehen"),
        [turn, degrees] { turn(degrees); }, [turn, degrees] { turn(-degrees); }));
}

void KalPhotoEditor::imageRotateLeftClicked()
{
    turnBackground(-90);
}

void KalPhotoEditor::imageRotateRightClicked()
{
    turnBackground(90);
}

void KalPhotoEditor::deleteSelected()
{
    const QList<QGraphicsItem *> selected = m_scene->selectedItems();
    if (selected.isEmpty())
        return;
    m_undo.push(new KalPhotoEditorItemsCommand(m_scene, selected, KalPhotoEditorItemsCommand::Remove, tr("Löschen")));
}

void KalPhotoEditor::objectCreated(QGraphicsItem *item)
{
    m_created.append(item);
    if (auto *text = qgraphicsitem_cast<KalGraphicsTextItem *>(item))
        connect(text, &KalGraphicsTextItem::textDocumentChanged, this, &KalPhotoEditor::slotTextDocumentChanged);
    m_undo.push(new KalPhotoEditorItemsCommand(m_scene, {item}, KalPhotoEditorItemsCommand::Add, tr("Einfügen")));
}

void KalPhotoEditor::objectsMoved(const QList<QGraphicsItem *> &items, const QList<KalItemPlacement> &before,
                                  const QList<KalItemPlacement> &after)
{
    m_undo.push(KalPhotoEditorChangeCommand::placement(items, before, after, tr("Verschieben")));
}

void KalPhotoEditor::okClicked()
{
    if (m_undo.isClean()) {
        // Nothing to store: the picture is not encoded again.
        QDialog::reject();
        return;
    }
    KalPrompt::Message message;
    message.icon = KalPrompt::Question;
    message.title = tr("Änderungen übernehmen");
    message.text =
        tr("Ihre Änderungen werden jetzt in das Bild übernommen.\nDieser Vorgang lässt sich nicht rückgängig machen.");
    message.buttons = {{KalPrompt::Ok, {}}, {KalPrompt::Abort, {}}};
    if (KalPrompt::ask(message) != 0)
        return;
    m_scene->clearSelection();
    m_result = m_scene->render();
    accept();
}

void KalPhotoEditor::reject()
{
    if (!m_undo.isClean()) {
        KalPrompt::Message message;
        message.icon = KalPrompt::Question;
        message.title = tr("Änderungen verwerfen");
        message.text = tr("Sollen die Änderungen verworfen werden?");
        message.buttons = {{KalPrompt::Ok, {}}, {KalPrompt::Abort, {}}};
        if (KalPrompt::ask(message) != 0)
            return;
    }
    QDialog::reject();
}
