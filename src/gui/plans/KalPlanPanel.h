#pragma once

#include <QWidget>
#include <memory>

class KalGraphicsViewZoom;
class KalPlanGraphicsPicture;
class KalPlanItemsLayer;
struct KalPlanPictureLevels;
class KalProject;
class QGraphicsScene;
class QGraphicsTextItem;
class QGraphicsView;
class QPushButton;

// Beside the defect list: the plan of the current defect, or a hint on how
// to give it one, with the buttons to fit the plan and explain the zoom.
class KalPlanPanel : public QWidget
{
    Q_OBJECT

public:
    explicit KalPlanPanel(QWidget *parent = nullptr);

    static QString hintText();

    // Follows the current defect of the list: the plan it is located on with
    // the markers and texts of every defect there, its own in red; the hint
    // when it has none (-1: no current defect). A plan picture is decoded
    // once and kept while the defects shown are on it.
    void showDefect(KalProject *project, qint64 defectId);
    // Shows the current defect again, e.g. after its markers or plan changed.
    void refresh();
    // How often a plan picture was decoded since the panel was made.
    int decodeCount() const { return m_decodeCount; }
    // The plan sheet shown; -1 for none.
    qint64 shownPlanInfoId() const { return m_shownPlanId; }
    // Forgets the shown plan; after this the panel is empty.
    void clear();
    void showHint();
    // Whether hovering shows the panel's help text once per visit.
    void setHelpActive(bool active) { m_helpActive = active; }

signals:
    // A double click where no plan is shown: assign one to the current defect.
    void planDoubleClicked();
    // A double click on the shown plan: locate the current defect on it.
    void shownPlanDoubleClicked(qint64 planInfoId);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layoutHint();
    bool showPlan(qint64 planInfoId);
    void fitPlan();
    void showZoomInfo();
    void showHelpTip(QWidget *widget, const QString &text);

    QGraphicsView *m_gvPlan = nullptr;
    QGraphicsScene *m_scene = nullptr;
    QGraphicsTextItem *m_hintItem = nullptr;
    QPushButton *m_pbShowTotalPlan = nullptr;
    QPushButton *m_pbZoomInfo = nullptr;
    KalGraphicsViewZoom *m_zoom = nullptr;
    KalPlanGraphicsPicture *m_planItem = nullptr;
    // Shared with the plan editor when it shows the same plan.
    std::shared_ptr<KalPlanPictureLevels> m_planPicture;
    KalPlanItemsLayer *m_itemsLayer = nullptr; // markers and texts, recorded once per defect shown
    KalProject *m_project = nullptr;
    qint64 m_defectId = -1;
    qint64 m_shownPlanId = -1;
    int m_decodeCount = 0;
    bool m_helpActive = true;
    bool m_helpShown = false;
};
