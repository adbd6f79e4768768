#include "KalPlanEditor.h"
#include "ui_KalPlanEditor.h"

#include "KalMarkerItem.h"
#include "KalMarkerTextItem.h"
#include "KalPlanGraphicsScene.h"
#include "core/plans/KalFontCheck.h"
#include "core/plans/KalMarkerShapes.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QAction>
#include <QComboBox>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTextDocument>
#include <QTimer>

namespace {

const char *const kGeometryKey = "PlanEditor/Geometry";
// Whether the fonts were checked in this run already.
bool s_fontsChecked = false;

} // namespace

KalPlanEditor::KalPlanEditor(KalProject *project, qint64 planInfoId, qint64 defectId, QWidget *parent, Saving saving)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalPlanEditor>())
    , m_project(project)
    , m_planInfoId(planInfoId)
    , m_defectId(defectId)
    , m_saving(saving)
    , m_scene(new KalPlanGraphicsScene(this))
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() | Qt::WindowMaximizeButtonHint);
    restoreGeometry(QSettings().value(QLatin1String(kGeometryKey)).toByteArray());
    m_ui->gvPlan->setScene(m_scene);

    struct Tool
    {
        QToolButton *button;
        void (KalPlanEditor::*slot)();
    };
    const Tool tools[] = {
        {m_ui->tbMarker1, &KalPlanEditor::slotMarker1Clicked},
        {m_ui->tbMarker2, &KalPlanEditor::slotMarker2Clicked},
        {m_ui->tbMarker3, &KalPlanEditor::slotMarker3Clicked},
        {m_ui->tbMarker4, &KalPlanEditor::slotMarker4Clicked},
        {m_ui->tbRotateLeft, &KalPlanEditor::slotRotateLeft},
        {m_ui->tbRotateRight, &KalPlanEditor::slotRotateRight},
        {m_ui->tbUpscale, &KalPlanEditor::slotUpscale},
        {m_ui->tbDownscale, &KalPlanEditor::slotDownscale},
        {m_ui->tbColor, &KalPlanEditor::slotColor},
    };
    for (const Tool &tool : tools)
        connect(tool.button, &QToolButton::clicked, this, tool.slot);
    int type = 1;
    for (QToolButton *button : {m_ui->tbMarker1, m_ui->tbMarker2, m_ui->tbMarker3, m_ui->tbMarker4})
        button->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-marker-%1.png").arg(type++)));
    connect(m_ui->tbTextBold, &QToolButton::clicked, this, &KalPlanEditor::slotTextBold);
    connect(m_ui->tbTextItalic, &QToolButton::clicked, this, &KalPlanEditor::slotTextItalic);
    connect(m_ui->tbTextUnderline, &QToolButton::clicked, this, &KalPlanEditor::slotTextUnderline);
    KalTextEditor::fillFontBoxes(m_ui->cbxFontFamily, m_ui->cbxFontSize);
    connect(m_ui->cbxFontFamily, &QComboBox::textActivated, this, &KalPlanEditor::slotTextFontFamily);
    connect(m_ui->cbxFontSize, QOverload<int>::of(&QComboBox::activated), this, &KalPlanEditor::sizeTyped);
    connect(m_ui->cbxFontSize->lineEdit(), &QLineEdit::editingFinished, this, &KalPlanEditor::sizeTyped);
    // Return confirms a typed size; passed on, it would press OK and close
    // the editor.
    m_ui->cbxFontSize->installEventFilter(this);
    connect(m_ui->tbFitToWindow, &QToolButton::clicked, m_ui->gvPlan, &KalPlanGraphicsView::fitToWindow);
    connect(m_ui->gvPlan, &KalPlanGraphicsView::deleteRequested, this, &KalPlanEditor::slotDeleteSelected);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &KalPlanEditor::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &KalPlanEditor::reject);
    connect(m_scene, &KalPlanGraphicsScene::markerRequested, this, &KalPlanEditor::addMarker);
    connect(m_scene, &KalPlanGraphicsScene::textEditRequested, this, &KalPlanEditor::slotTextEditRequested);
    connect(m_scene, &KalPlanGraphicsScene::objectsMoved, this,
            [this](const QList<QGraphicsItem *> &items, const QList<KalItemPlacement> &before,
                   const QList<KalItemPlacement> &after) {
                m_undo.push(KalPhotoEditorChangeCommand::placement(items, before, after, tr("Verschieben")));
            });
    connect(m_scene, &QGraphicsScene::selectionChanged, this, &KalPlanEditor::slotSelectionChanged);

    QAction *undo = m_undo.createUndoAction(this, tr("Rückgängig"));
    undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    QAction *redo = m_undo.createRedoAction(this, tr("Wiederherstellen"));
    redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    addActions({undo, redo});

    const KalTextEditor::Values textDefaults = KalTextEditor::storedDefaults();
    m_newTextFamily = textDefaults.family;
    m_newTextSize = textDefaults.size;
    m_usable = project && project->isOpen() && loadPlan();
    if (!m_usable)
        return;
    loadRows();
    // A located defect always carries its text; the generated one is the
    // editor's own change until OK.
    bool located = false;
    for (QGraphicsItem *item : qAsConst(m_created))
        located = located || item->type() == KalMarkerItem::Type;
    if (located)
        addDefectTextIfMissing();
    slotSelectionChanged();
}

KalPlanEditor::~KalPlanEditor()
{
    // The scene outlives this part of the editor and clears its selection
    // while it goes: its signals must no longer reach us.
    disconnect(m_scene, nullptr, this, nullptr);
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    m_undo.clear();
    for (QGraphicsItem *item : qAsConst(m_created)) {
        if (!item->scene())
            delete item;
    }
}

int KalPlanEditor::exec()
{
    if (!m_usable)
        return Rejected;
    if (!s_fontsChecked) {
        s_fontsChecked = true;
        QTimer::singleShot(0, this, [] { KalFontCheck::warnAboutMissing(); });
    }
    return QDialog::exec();
}

KalMarkerTextItem *KalPlanEditor::newTextItem()
{
    auto *text = new KalMarkerTextItem;
    text->setFlags(QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
    connect(text, &KalGraphicsTextItem::textDocumentChanged, this, &KalPlanEditor::slotTextDocumentChanged);
    connect(text, &KalGraphicsTextItem::colorChanged, this, &KalPlanEditor::slotTextColor);
    // The font boxes follow the selected texts only; loading thousands of
    // texts must not refresh them each time.
    auto follow = [this, text] {
        if (text->isSelected())
            slotSelectionChanged();
    };
    connect(text, &KalGraphicsTextItem::fontFamilyChanged, this, follow);
    connect(text, &KalGraphicsTextItem::fontSizeChanged, this, follow);
    return text;
}

void KalPlanEditor::pushAdd(QGraphicsItem *item, const QString &text)
{
    m_created.append(item);
    m_undo.push(new KalPhotoEditorItemsCommand(m_scene, {item}, KalPhotoEditorItemsCommand::Add, text));
}

KalMarkerItem *KalPlanEditor::addMarker(const QPointF &scenePos)
{
    QSettings settings;
    auto *marker = new KalMarkerItem(settings.value(QStringLiteral("Marker/StandardMarkerType"), 1).toInt());
    const QColor fill(
        settings.value(QStringLiteral("Marker/StandardMarkerColor"), QStringLiteral("#ffff00")).toString());
    marker->setFillColor(fill.isValid() ? fill : QColor(Qt::yellow));
    marker->setOutline(Qt::black, 0);
    marker->setStatusColor(m_statusColor);
    marker->setHighlighted(true);
    marker->setFlags(QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
    marker->setScale(markerScaleFor(m_planSize));
    // The tip (or the target's centre) lands on the clicked point.
    marker->setPos(scenePos - marker->transformOriginPoint());
    m_undo.beginMacro(tr("Marker setzen"));
    pushAdd(marker, tr("Marker setzen"));
    addDefectTextIfMissing();
    m_undo.endMacro();
    m_scene->clearSelection();
    marker->setSelected(true);
    return marker;
}

QList<QGraphicsItem *> KalPlanEditor::selectionOrMessage(const QString &title) const
{
    QList<QGraphicsItem *> selected;
    for (QGraphicsItem *item : m_scene->selectedItems()) {
        if (KalPlanGraphicsScene::isEditable(item))
            selected.append(item);
    }
    return KalSelectionSteps::anySelected(selected, title) ? selected : QList<QGraphicsItem *>();
}

void KalPlanEditor::transformSelection(qreal degrees, qreal factor, const QString &title)
{
    const QList<QGraphicsItem *> selected = selectionOrMessage(title);
    if (!selected.isEmpty())
        m_undo.push(KalPhotoEditorChangeCommand::turnAndScale(selected, degrees, factor, title));
}

void KalPlanEditor::slotRotateLeft()
{
    transformSelection(-KalSelectionSteps::TurnDegrees, 1, tr("Objekte drehen"));
}

void KalPlanEditor::slotRotateRight()
{
    transformSelection(KalSelectionSteps::TurnDegrees, 1, tr("Objekte drehen"));
}

void KalPlanEditor::slotUpscale()
{
    transformSelection(0, KalSelectionSteps::Enlarge, tr("Objekt vergrößern"));
}

void KalPlanEditor::slotDownscale()
{
    transformSelection(0, KalSelectionSteps::Shrink, tr("Objekt verkleinern"));
}

void KalPlanEditor::slotColor()
{
    const QString title = tr("Farbe ändern");
    const QList<QGraphicsItem *> selected = selectionOrMessage(title);
    if (selected.isEmpty())
        return;
    const QColor color = KalTextEditor::chooseColor(Qt::yellow, this, tr("Objektfarbe wählen"));
    if (!color.isValid())
        return;
    auto colorOf = [](QGraphicsItem *item) {
        if (auto *marker = qgraphicsitem_cast<KalMarkerItem *>(item))
            return marker->fillColor();
        return static_cast<KalMarkerTextItem *>(item)->textColor();
    };
    auto apply = [selected](const QList<QColor> &colors) {
        for (int i = 0; i < selected.size(); ++i) {
            if (auto *marker = qgraphicsitem_cast<KalMarkerItem *>(selected.at(i)))
                marker->setFillColor(colors.at(i));
            else if (auto *text = qgraphicsitem_cast<KalMarkerTextItem *>(selected.at(i)))
                text->setTextColor(colors.at(i));
        }
    };
    QList<QColor> before;
    for (QGraphicsItem *item : selected)
        before.append(colorOf(item));
    QList<QColor> after;
    for (int i = 0; i < before.size(); ++i)
        after.append(color);
    m_undo.push(new KalPhotoEditorChangeCommand(
        title, [apply, after] { apply(after); }, [apply, before] { apply(before); }));
}

void KalPlanEditor::exchangeSelected(int markerType)
{
    const QString title = tr("Marker austauschen");
    QList<KalMarkerItem *> markers;
    for (QGraphicsItem *item : m_scene->selectedItems()) {
        if (auto *marker = qgraphicsitem_cast<KalMarkerItem *>(item); marker && KalPlanGraphicsScene::isEditable(item))
            markers.append(marker);
    }
    if (markers.isEmpty()) {
        KalPrompt::information(title, tr("Sie haben keinen Marker ausgewählt.\nSie wählen einen Marker aus, indem Sie "
                                         "ihn anklicken.\nSie wählen mehrere Marker aus, indem Sie sie bei gedrückter "
                                         "Strg-Taste anklicken.\n"));
        return;
    }
    if (markers.size() > 1 &&
        !KalPrompt::yesNo(title, tr("Sie haben mehrere Marker ausgewählt.\nSollen diese Marker wirklich alle "
                                    "ausgetauscht werden?")))
        return;
    QList<int> before;
    for (KalMarkerItem *marker : qAsConst(markers))
        before.append(marker->markerType());
    m_undo.push(new KalPhotoEditorChangeCommand(
        title,
        [markers, markerType] {
            for (KalMarkerItem *marker : markers)
                marker->exchangeType(markerType);
        },
        [markers, before] {
            for (int i = 0; i < markers.size(); ++i)
                markers.at(i)->exchangeType(before.at(i));
        }));
}

void KalPlanEditor::slotMarker1Clicked()
{
    exchangeSelected(1);
}

void KalPlanEditor::slotMarker2Clicked()
{
    exchangeSelected(2);
}

void KalPlanEditor::slotMarker3Clicked()
{
    exchangeSelected(3);
}

void KalPlanEditor::slotMarker4Clicked()
{
    exchangeSelected(4);
}

void KalPlanEditor::slotDeleteSelected()
{
    QList<QGraphicsItem *> selected;
    for (QGraphicsItem *item : m_scene->selectedItems()) {
        if (KalPlanGraphicsScene::isEditable(item))
            selected.append(item);
    }
    if (selected.isEmpty())
        return;
    if (!KalPrompt::yesNo(tr("Marker/Texte löschen"), tr("Sollen die selektierten Elemente wirklich gelöscht werden?")))
        return;
    m_undo.push(new KalPhotoEditorItemsCommand(m_scene, selected, KalPhotoEditorItemsCommand::Remove, tr("Löschen")));
}

void KalPlanEditor::slotTextEditRequested(KalMarkerTextItem *item)
{
    KalTextEditor editor(KalTextEditor::EditText, this);
    KalTextEditor::Values before;
    before.text = item->toPlainText();
    before.family = item->fontFamily();
    before.size = item->fontSize();
    before.color = item->textColor();
    before.properties = item->textProperties();
    editor.setValues(before);
    if (editor.exec() != QDialog::Accepted)
        return;
    if (editor.textDeleted()) {
        m_undo.push(new KalPhotoEditorItemsCommand(m_scene, {item}, KalPhotoEditorItemsCommand::Remove, tr("Löschen")));
        return;
    }
    const KalTextEditor::Values after = editor.values();
    auto apply = [item](const KalTextEditor::Values &v) {
        item->setFontFamily(v.family);
        item->setFontSize(v.size);
        item->setTextProperties(v.properties);
        item->setTextColor(v.color);
        item->setPlainText(v.text);
    };
    m_undo.push(new KalPhotoEditorChangeCommand(
        tr("Text bearbeiten"), [apply, after] { apply(after); }, [apply, before] { apply(before); }));
}

QList<KalMarkerTextItem *> KalPlanEditor::selectedTexts() const
{
    QList<KalMarkerTextItem *> texts;
    for (QGraphicsItem *item : m_scene->selectedItems()) {
        if (auto *text = qgraphicsitem_cast<KalMarkerTextItem *>(item); text && KalPlanGraphicsScene::isEditable(item))
            texts.append(text);
    }
    return texts;
}

void KalPlanEditor::formatSelectedTexts(const std::function<void(KalTextEditor::Values &)> &change)
{
    const QList<KalMarkerTextItem *> texts = selectedTexts();
    QList<KalTextEditor::Values> before;
    QList<KalTextEditor::Values> after;
    bool changed = false;
    for (const KalMarkerTextItem *text : texts) {
        KalTextEditor::Values format;
        format.family = text->fontFamily();
        format.size = text->fontSize();
        format.properties = text->textProperties();
        before.append(format);
        change(format);
        changed = changed || format.family != before.last().family || format.size != before.last().size ||
                  format.properties != before.last().properties;
        after.append(format);
    }
    // A box confirmed with the value it showed is no change to undo.
    if (!changed)
        return;
    auto apply = [texts](const QList<KalTextEditor::Values> &formats) {
        for (int i = 0; i < texts.size(); ++i) {
            texts.at(i)->setFontFamily(formats.at(i).family);
            texts.at(i)->setFontSize(formats.at(i).size);
            texts.at(i)->setTextProperties(formats.at(i).properties);
        }
    };
    m_undo.push(new KalPhotoEditorChangeCommand(
        tr("Text formatieren"), [apply, after] { apply(after); }, [apply, before] { apply(before); }));
}

void KalPlanEditor::setTextProperty(int bit, bool on)
{
    formatSelectedTexts([bit, on](KalTextEditor::Values &format) {
        format.properties = on ? format.properties | bit : format.properties & ~bit;
    });
}

void KalPlanEditor::slotTextFontFamily(const QString &family)
{
    if (family.isEmpty())
        return;
    if (selectedTexts().isEmpty())
        m_newTextFamily = family;
    else
        formatSelectedTexts([family](KalTextEditor::Values &format) { format.family = family; });
}

void KalPlanEditor::slotTextFontSize(int pointSize)
{
    if (pointSize < 1)
        return;
    if (selectedTexts().isEmpty())
        m_newTextSize = pointSize;
    else
        formatSelectedTexts([pointSize](KalTextEditor::Values &format) { format.size = pointSize; });
}

void KalPlanEditor::sizeTyped()
{
    // The validator lets only 1 to 999 through; an emptied box changes nothing
    // and shows the current size again.
    const int size = m_ui->cbxFontSize->currentText().toInt();
    if (size > 0)
        slotTextFontSize(size);
    else
        slotSelectionChanged();
}

void KalPlanEditor::slotTextBold(bool on)
{
    setTextProperty(KalGraphicsTextItem::Bold, on);
}

void KalPlanEditor::slotTextItalic(bool on)
{
    setTextProperty(KalGraphicsTextItem::Italic, on);
}

void KalPlanEditor::slotTextUnderline(bool on)
{
    setTextProperty(KalGraphicsTextItem::Underline, on);
}

void KalPlanEditor::slotTextColor(QColor *)
{
    slotSelectionChanged();
}

void KalPlanEditor::slotTextDocumentChanged(QTextDocument *)
{
    slotSelectionChanged();
}

void KalPlanEditor::slotSelectionChanged()
{
    // The text tools show the format of the first selected text; with none,
    // the font a new text gets.
    const QList<KalMarkerTextItem *> texts = selectedTexts();
    const KalMarkerTextItem *text = texts.isEmpty() ? nullptr : texts.first();
    const int properties = text ? text->textProperties() : 0;
    const std::pair<QToolButton *, int> tools[] = {{m_ui->tbTextBold, KalGraphicsTextItem::Bold},
                                                   {m_ui->tbTextItalic, KalGraphicsTextItem::Italic},
                                                   {m_ui->tbTextUnderline, KalGraphicsTextItem::Underline}};
    for (const auto &tool : tools) {
        tool.first->setEnabled(text != nullptr);
        tool.first->setChecked(properties & tool.second);
    }
    const QString family = text ? text->fontFamily() : m_newTextFamily;
    const int size = text ? text->fontSize() : m_newTextSize;
    const QSignalBlocker familyBlocker(m_ui->cbxFontFamily);
    const QSignalBlocker sizeBlocker(m_ui->cbxFontSize);
    // A stored family that is not installed is still shown as it is.
    if (m_ui->cbxFontFamily->findText(family) < 0)
        m_ui->cbxFontFamily->insertItem(0, family);
    m_ui->cbxFontFamily->setCurrentText(family);
    m_ui->cbxFontSize->setCurrentText(QString::number(size));
}

bool KalPlanEditor::eventFilter(QObject *watched, QEvent *event)
{
    // Keys reach the box, which hands them to its line edit itself.
    if (watched == m_ui->cbxFontSize && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            sizeTyped();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void KalPlanEditor::accept()
{
    if (!m_undo.isClean() && !writeRows()) {
        KalPrompt::Message message;
        message.icon = KalPrompt::Critical;
        message.title = tr("Planeditor");
        message.text = tr("Die Marker und Texte konnten nicht gespeichert werden.");
        KalPrompt::ask(message);
        return;
    }
    QDialog::accept();
}

void KalPlanEditor::reject()
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
