// The photo editor's texts and symbols made with the text editor.
#include "KalPhotoEditor.h"

#include "KalPhotoEditorGraphicsScene.h"
#include "gui/plans/KalGraphicsTextItem.h"

void KalPhotoEditor::slotTextDocumentChanged(QTextDocument *)
{
    // A text turns and scales about its middle, also after it changed size;
    // it stays where it is shown.
    auto *text = qobject_cast<KalGraphicsTextItem *>(sender());
    if (!text)
        return;
    const QPointF shown = text->mapToScene(QPointF(0, 0));
    text->setTransformOriginPoint(text->boundingRect().center());
    text->setPos(text->pos() + shown - text->mapToScene(QPointF(0, 0)));
}

KalTextEditor::Values KalPhotoEditor::textValues(const KalGraphicsTextItem *item) const
{
    KalTextEditor::Values values;
    values.text = item->toPlainText();
    values.family = item->fontFamily();
    values.size = item->fontSize();
    values.color = item->textColor();
    values.properties = item->textProperties();
    return values;
}

void KalPhotoEditor::applyTextValues(KalGraphicsTextItem *item, const KalTextEditor::Values &values)
{
    item->setFontFamily(values.family);
    item->setFontSize(values.size);
    item->setTextProperties(values.properties);
    item->setTextColor(values.color);
    item->setPlainText(values.text);
}

void KalPhotoEditor::textRequested(const QPointF &scenePos)
{
    KalTextEditor editor(KalTextEditor::NewText, this);
    KalTextEditor::Values start;
    start.size = m_textPointSize;
    start.color = m_scene->color();
    editor.setValues(start);
    if (editor.exec() != QDialog::Accepted || editor.values().text.trimmed().isEmpty())
        return;
    auto *item = new KalGraphicsTextItem;
    applyTextValues(item, editor.values());
    item->setTransformOriginPoint(item->boundingRect().center());
    item->setPos(scenePos);
    m_scene->clearSelection();
    m_scene->addObject(item);
    item->setSelected(true);
    objectCreated(item);
}

void KalPhotoEditor::textEditRequested(KalGraphicsTextItem *item)
{
    KalTextEditor editor(KalTextEditor::EditText, this);
    const KalTextEditor::Values before = textValues(item);
    editor.setValues(before);
    if (editor.exec() != QDialog::Accepted)
        return;
    if (editor.textDeleted()) {
        m_undo.push(new KalPhotoEditorItemsCommand(m_scene, {item}, KalPhotoEditorItemsCommand::Remove, tr("Löschen")));
        return;
    }
    const KalTextEditor::Values after = editor.values();
    m_undo.push(new KalPhotoEditorChangeCommand(
        tr("Text bearbeiten"), [this, item, after] { applyTextValues(item, after); },
        [this, item, before] { applyTextValues(item, before); }));
}

void KalPhotoEditor::ownSymbol()
{
    KalTextEditor editor(KalTextEditor::Symbol, this);
    KalTextEditor::Values start = editor.values();
    start.size = m_textPointSize * 2;
    start.color = m_scene->color();
    editor.setValues(start);
    if (editor.exec() != QDialog::Accepted)
        return;
    const KalTextEditor::Values values = editor.values();
    if (values.text.trimmed().isEmpty())
        return;
    m_scene->setChosenSymbol(values.text, values.family, values.size, values.color, values.properties);
    startTool(KalPhotoEditorGraphicsScene::ChosenSymbol);
}
