#include "KalPlanPanel.h"

#include <QEvent>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QToolTip>
#include <QVBoxLayout>

KalPlanPanel::KalPlanPanel(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("planPanel"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_scene = new QGraphicsScene(this);
    gvPlan = new QGraphicsView(m_scene, this);
    gvPlan->setObjectName(QStringLiteral("gvPlan"));
    gvPlan->setRenderHint(QPainter::SmoothPixmapTransform);
    gvPlan->setDragMode(QGraphicsView::ScrollHandDrag);
    gvPlan->installEventFilter(this);
    gvPlan->viewport()->installEventFilter(this);
    layout->addWidget(gvPlan, 1);

    auto *buttons = new QHBoxLayout;
    pbShowTotalPlan = new QPushButton(tr("An Fenstergröße anpassen"), this);
    pbShowTotalPlan->setObjectName(QStringLiteral("pbShowTotalPlan"));
    connect(pbShowTotalPlan, &QPushButton::clicked, this, &KalPlanPanel::fitPlan);
    pbZoomInfo = new QPushButton(this);
    pbZoomInfo->setObjectName(QStringLiteral("pbZoomInfo"));
    pbZoomInfo->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-info.ico")));
    pbZoomInfo->setToolTip(tr("Hinweise zum Zoomen"));
    connect(pbZoomInfo, &QPushButton::clicked, this, &KalPlanPanel::showZoomInfo);
    buttons->addStretch(1);
    buttons->addWidget(pbShowTotalPlan);
    buttons->addWidget(pbZoomInfo);
    layout->addLayout(buttons);
}

QString KalPlanPanel::hintText()
{
    return tr("Dieser Mangel ist in keinem Plan verortet.\nMit einem Doppelklick in dieses Fenster können Sie dem "
              "Mangel einen Plan zuordnen.\nMit einem Doppelklick auf einen Mangel können Sie diesen Mangel "
              "bearbeiten.\n");
}

void KalPlanPanel::showDefect(bool current)
{
    // Plans cannot be assigned to defects yet; every defect shows the hint.
    if (current || m_shownPlanId != -1 || m_scene->items().isEmpty())
        showHint();
}

void KalPlanPanel::clear()
{
    m_scene->clear();
    m_hintItem = nullptr;
    m_planPixmap = QPixmap();
    m_shownPlanId = -1;
    pbShowTotalPlan->setEnabled(false);
}

void KalPlanPanel::showHint()
{
    clear();
    m_hintItem = m_scene->addText(hintText());
    m_hintItem->setDefaultTextColor(QColor(110, 110, 110));
    gvPlan->resetTransform();
    layoutHint();
}

void KalPlanPanel::layoutHint()
{
    if (!m_hintItem)
        return;
    // The hint wraps to the panel and never needs scrolling.
    const QSize area = gvPlan->viewport()->size();
    m_hintItem->setTextWidth(qMax(120, area.width() - 24));
    const QRectF text = m_hintItem->boundingRect();
    m_scene->setSceneRect(
        QRectF(-12, 0, qMax<qreal>(text.width() + 24, area.width()), qMax<qreal>(text.height(), area.height() - 4)));
    gvPlan->centerOn(m_hintItem);
}

void KalPlanPanel::fitPlan()
{
    if (m_scene->items().isEmpty())
        return;
    if (m_planPixmap.isNull()) {
        showHint();
        return;
    }
    gvPlan->fitInView(m_scene->itemsBoundingRect(), Qt::KeepAspectRatio);
}

void KalPlanPanel::showZoomInfo()
{
    showHelpTip(pbZoomInfo, tr("Mit dem Mausrad vergrößern und verkleinern Sie den Plan.\n"
                               "Mit gedrückter linker Maustaste verschieben Sie den Ausschnitt.\n"
                               "\"An Fenstergröße anpassen\" zeigt den ganzen Plan."));
}

void KalPlanPanel::showHelpTip(QWidget *widget, const QString &text)
{
    QToolTip::showText(widget->mapToGlobal(QPoint(widget->width() / 2, widget->height() / 2)), text, widget);
}

bool KalPlanPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != gvPlan && watched != gvPlan->viewport())
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Resize:
        if (watched == gvPlan->viewport())
            layoutHint();
        break;
    case QEvent::MouseButtonDblClick:
        // The window decides what the double click the hint invites does.
        if (m_shownPlanId == -1) {
            emit planDoubleClicked();
            return true;
        }
        break;
    case QEvent::ToolTip:
        if (!m_helpActive) {
            QToolTip::hideText();
            return true;
        }
        if (!m_helpShown) {
            m_helpShown = true;
            showHelpTip(gvPlan, tr("Plan des gewählten Mangels.\nMausrad: vergrößern und verkleinern.\n"
                                   "Doppelklick: Plan zuordnen oder im Plan verorten."));
        }
        return true;
    case QEvent::Leave:
        m_helpShown = false;
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
