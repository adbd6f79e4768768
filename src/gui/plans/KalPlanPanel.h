#pragma once

#include <QPixmap>
#include <QWidget>

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

    // Follows the current defect of the list (false: none).
    void showDefect(bool current);
    // Forgets the shown plan; after this the panel is empty.
    void clear();
    void showHint();
    // Whether hovering shows the panel's help text once per visit.
    void setHelpActive(bool active) { m_helpActive = active; }

signals:
    // A double click where no plan is shown: assign one to the current defect.
    void planDoubleClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layoutHint();
    void fitPlan();
    void showZoomInfo();
    void showHelpTip(QWidget *widget, const QString &text);

    QGraphicsView *m_gvPlan = nullptr;
    QGraphicsScene *m_scene = nullptr;
    QGraphicsTextItem *m_hintItem = nullptr;
    QPushButton *m_pbShowTotalPlan = nullptr;
    QPushButton *m_pbZoomInfo = nullptr;
    QPixmap m_planPixmap;
    qint64 m_shownPlanId = -1;
    bool m_helpActive = true;
    bool m_helpShown = false;
};
