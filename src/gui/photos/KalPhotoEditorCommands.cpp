#include "KalPhotoEditorCommands.h"

#include "core/project/KalPrompt.h"

#include <QGraphicsItem>
#include <QGraphicsScene>

KalItemPlacement KalItemPlacement::of(const QGraphicsItem *item)
{
    return {item->pos(), item->rotation(), item->scale()};
}

void KalItemPlacement::applyTo(QGraphicsItem *item) const
{
    item->setPos(pos);
    item->setRotation(rotation);
    item->setScale(scale);
}

bool KalItemPlacement::operator==(const KalItemPlacement &other) const
{
    return pos == other.pos && qFuzzyCompare(rotation + 1000, other.rotation + 1000) &&
           qFuzzyCompare(scale, other.scale);
}

KalPhotoEditorItemsCommand::KalPhotoEditorItemsCommand(QGraphicsScene *scene, const QList<QGraphicsItem *> &items,
                                                       Action action, const QString &text)
    : QUndoCommand(text)
    , m_scene(scene)
    , m_items(items)
    , m_action(action)
{
}

void KalPhotoEditorItemsCommand::place(bool intoScene)
{
    for (QGraphicsItem *item : qAsConst(m_items)) {
        if (intoScene && item->scene() != m_scene) {
            m_scene->addItem(item);
        } else if (!intoScene && item->scene() == m_scene) {
            item->setSelected(false);
            m_scene->removeItem(item);
        }
    }
}

void KalPhotoEditorItemsCommand::redo()
{
    place(m_action == Add);
}

void KalPhotoEditorItemsCommand::undo()
{
    place(m_action == Remove);
}

KalPhotoEditorChangeCommand::KalPhotoEditorChangeCommand(const QString &text, std::function<void()> redo,
                                                         std::function<void()> undo)
    : QUndoCommand(text)
    , m_redo(std::move(redo))
    , m_undo(std::move(undo))
{
}

KalPhotoEditorChangeCommand *KalPhotoEditorChangeCommand::placement(const QList<QGraphicsItem *> &items,
                                                                    const QList<KalItemPlacement> &before,
                                                                    const QList<KalItemPlacement> &after,
                                                                    const QString &text)
{
    auto apply = [items](const QList<KalItemPlacement> &placements) {
        for (int i = 0; i < items.size(); ++i)
            placements.at(i).applyTo(items.at(i));
    };
    return new KalPhotoEditorChangeCommand(
        text, [apply, after] { apply(after); }, [apply, before] { apply(before); });
}

KalPhotoEditorChangeCommand *KalPhotoEditorChangeCommand::turnAndScale(const QList<QGraphicsItem *> &items,
                                                                       qreal degrees, qreal factor, const QString &text)
{
    QList<KalItemPlacement> before;
    QList<KalItemPlacement> after;
    for (QGraphicsItem *item : items) {
        before.append(KalItemPlacement::of(item));
        KalItemPlacement changed = before.last();
        changed.rotation += degrees;
        changed.scale *= factor;
        after.append(changed);
    }
    return placement(items, before, after, text);
}

bool KalSelectionSteps::anySelected(const QList<QGraphicsItem *> &selected, const QString &title)
{
    if (!selected.isEmpty())
        return true;
    KalPrompt::information(title, tr("Sie haben kein Objekt ausgewählt.\nSie wählen ein Objekt aus, indem Sie es "
                                     "anklicken.\nSie wählen mehrere Objekte aus, indem Sie sie bei gedrückter "
                                     "Strg-Taste anklicken.\n"));
    return false;
}
