#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPointF>
#include <QUndoCommand>
#include <functional>

class QGraphicsItem;
class QGraphicsScene;

// Where an object stands, turned and scaled: what moving, turning and
// scaling change.
struct KalItemPlacement
{
    QPointF pos;
    qreal rotation = 0;
    qreal scale = 1;

    static KalItemPlacement of(const QGraphicsItem *item);
    void applyTo(QGraphicsItem *item) const;
    bool operator==(const KalItemPlacement &other) const;
};

// Adds objects to or removes them from the scene. Several commands may hold
// the same object, so none of them deletes it: the editor does when it goes.
class KalPhotoEditorItemsCommand : public QUndoCommand
{
public:
    enum Action { Add, Remove };
    KalPhotoEditorItemsCommand(QGraphicsScene *scene, const QList<QGraphicsItem *> &items, Action action,
                               const QString &text);

    void redo() override;
    void undo() override;

private:
    void place(bool intoScene);

    QGraphicsScene *m_scene;
    QList<QGraphicsItem *> m_items;
    Action m_action;
};

// Any other change, told as what to do and how to take it back. The change
// may already be shown when the command is pushed: doing it again is
// harmless.
class KalPhotoEditorChangeCommand : public QUndoCommand
{
public:
    KalPhotoEditorChangeCommand(const QString &text, std::function<void()> redo, std::function<void()> undo);

    void redo() override { m_redo(); }
    void undo() override { m_undo(); }

    // Moves, turns or scales objects from one placement to another.
    static KalPhotoEditorChangeCommand *placement(const QList<QGraphicsItem *> &items,
                                                  const QList<KalItemPlacement> &before,
                                                  const QList<KalItemPlacement> &after, const QString &text);
    // Turns every object by `degrees` and scales it by `factor`.
    static KalPhotoEditorChangeCommand *turnAndScale(const QList<QGraphicsItem *> &items, qreal degrees, qreal factor,
                                                     const QString &text);

private:
    std::function<void()> m_redo;
    std::function<void()> m_undo;
};

// The steps both editors apply to the selected objects, and the message
// shown when nothing is selected.
class KalSelectionSteps
{
    Q_DECLARE_TR_FUNCTIONS(KalSelectionSteps)

public:
    static constexpr qreal TurnDegrees = 15;
    static constexpr qreal Enlarge = 1.1;
    // Not 1 / 1.1: shrinking and enlarging again gives 1.00001.
    static constexpr qreal Shrink = 0.9091;

    // Shows the message under `title` when `selected` is empty.
    static bool anySelected(const QList<QGraphicsItem *> &selected, const QString &title);
};
