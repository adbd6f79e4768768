#pragma once

#include "gui/photos/KalPhotoEditorCommands.h"
#include "gui/plans/KalTextEditor.h"

#include <QDialog>
#include <QUndoStack>
#include <functional>
#include <memory>

class KalMarkerItem;
class KalMarkerTextItem;
class KalPlanGraphicsScene;
class KalProject;
class KalSqlTableModel;
class QGraphicsItem;
class QTextDocument;

namespace Ui {
class KalPlanEditor;
}

// Locates one defect on its plan with markers and texts. The markers and
// texts of the other defects on the plan are shown but cannot be changed.
// Every change can be undone until OK writes the items back into the rows of
// the `marker` and `marker_text` models.
class KalPlanEditor : public QDialog
{
    Q_OBJECT

public:
    // WriteModels: OK only changes the models (the defect editor that opened
    // the plan editor submits them with its own OK or reverts them);
    // SubmitRows: OK also writes them to the project.
    enum Saving { SubmitRows, WriteModels };

    KalPlanEditor(KalProject *project, qint64 planInfoId, qint64 defectId, QWidget *parent = nullptr,
                  Saving saving = SubmitRows);
    ~KalPlanEditor() override;

    // False when the plan could not be shown (the reason was told); exec()
    // then returns Rejected at once.
    bool isUsable() const { return m_usable; }
    int exec() override;

    // The scale a new marker gets: its 512-unit frame is a tenth of the
    // plan's longer side.
    static double markerScaleFor(const QSize &planSize);
    // "number: description", the text generated for a located defect.
    static QString defectText(const QString &number, const QString &description);

    KalPlanGraphicsScene *scene() const { return m_scene; }
    // Places a marker of the standard type and colour at a plan point.
    KalMarkerItem *addMarker(const QPointF &scenePos);

public slots:
    void accept() override;
    void reject() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void slotMarker1Clicked();
    void slotMarker2Clicked();
    void slotMarker3Clicked();
    void slotMarker4Clicked();
    void slotRotateLeft();
    void slotRotateRight();
    void slotUpscale();
    void slotDownscale();
    void slotColor();
    void slotTextBold(bool on);
    void slotTextItalic(bool on);
    void slotTextUnderline(bool on);
    void slotTextColor(QColor *color);
    void slotTextFontFamily(const QString &family);
    void slotTextFontSize(int pointSize);
    void slotTextDocumentChanged(QTextDocument *document);
    void slotDeleteSelected();
    void slotTextEditRequested(KalMarkerTextItem *item);
    void slotSelectionChanged();

private:
    bool loadPlan();
    void loadRows();
    void addDefectTextIfMissing();
    bool writeRows();
    QString tableFilter() const;
    void exchangeSelected(int markerType);
    void transformSelection(qreal degrees, qreal factor, const QString &title);
    QList<QGraphicsItem *> selectionOrMessage(const QString &title) const;
    void setTextProperty(int bit, bool on);
    QList<KalMarkerTextItem *> selectedTexts() const;
    // Changes the format of the selected texts as one undoable step.
    void formatSelectedTexts(const std::function<void(KalTextEditor::Values &)> &change);
    void sizeTyped();
    KalMarkerTextItem *newTextItem();
    void pushAdd(QGraphicsItem *item, const QString &text);

    std::unique_ptr<Ui::KalPlanEditor> m_ui;
    KalProject *m_project;
    qint64 m_planInfoId;
    qint64 m_defectId;
    Saving m_saving;
    bool m_usable = false;
    KalPlanGraphicsScene *m_scene;
    QUndoStack m_undo;
    QSize m_planSize;
    QColor m_statusColor;
    // Font of the texts this editor creates: the stored defaults until the
    // user picks a family or size with no text selected.
    QString m_newTextFamily;
    int m_newTextSize = 8;
    // Own items ever made; those outside the scene are deleted with the editor.
    QList<QGraphicsItem *> m_created;
};
