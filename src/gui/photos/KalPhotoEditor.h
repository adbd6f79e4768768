#pragma once

#include "KalPhotoEditorShapes.h"
#include "gui/photos/KalPhotoEditorCommands.h"
#include "gui/plans/KalTextEditor.h"

#include <QDialog>
#include <QImage>
#include <QUndoStack>
#include <memory>

class KalGraphicsTextItem;
class KalPhotoEditorGraphicsScene;
class QGraphicsItem;
class QTextDocument;
class QToolButton;

namespace Ui {
class KalPhotoEditor;
}

// Draws arrows, shapes, symbols and texts into one photo. The objects stay
// editable (and every change can be undone) until OK paints them into the
// picture. exec() returns Accepted only when something was drawn or turned;
// result() is then the picture to store.
class KalPhotoEditor : public QDialog
{
    Q_OBJECT

public:
    explicit KalPhotoEditor(const QImage &picture, QWidget *parent = nullptr);
    ~KalPhotoEditor() override;

    QImage result() const { return m_result; }

public slots:
    void reject() override;

private slots:
    void okClicked();
    void imageRotateLeftClicked();
    void imageRotateRightClicked();
    void rotateLeftClicked();
    void rotateRightClicked();
    void upscaleClicked();
    void downscaleClicked();
    void colorClicked();
    void slotTextDocumentChanged(QTextDocument *document);
    void deleteSelected();
    void objectCreated(QGraphicsItem *item);
    void objectsMoved(const QList<QGraphicsItem *> &items, const QList<KalItemPlacement> &before,
                      const QList<KalItemPlacement> &after);
    void textRequested(const QPointF &scenePos);
    void textEditRequested(KalGraphicsTextItem *item);

private:
    void setUpTools();
    void setUpArrowMenus();
    void setUpSymbolMenus();
    void setUpLineWidthMenu();
    void startTool(int mode);
    QList<QGraphicsItem *> selectionOrMessage(const QString &title);
    void transformSelection(qreal degrees, qreal factor, const QString &title);
    void setLineWidthStep(int step);
    void turnBackground(int degrees);
    void ownSymbol();
    KalTextEditor::Values textValues(const KalGraphicsTextItem *item) const;
    void applyTextValues(KalGraphicsTextItem *item, const KalTextEditor::Values &values);
    QToolButton *toolButton(const char *name) const;

    std::unique_ptr<Ui::KalPhotoEditor> m_ui;
    KalPhotoEditorGraphicsScene *m_scene;
    QUndoStack m_undo;
    // Every object ever created; those outside the scene (deleted, or undone)
    // are deleted with the editor.
    QList<QGraphicsItem *> m_created;
    QImage m_result;
    // One step of line width in picture pixels, by picture size.
    qreal m_widthUnit = 1;
    int m_textPointSize = 20;
    // Chosen direction of the triangle (0) and of arrows 1 to 7.
    KalPhotoEditorShapes::Direction m_directions[KalPhotoEditorShapes::arrowCount + 1] = {};
};
