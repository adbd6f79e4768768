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
    m_gvPlan = new QGraphicsView(m_scene, this);
    m_gvPlan->setObjectName(QStringLiteral("gvPlan"));
    m_gvPlan->setRenderHint(QPainter::SmoothPixmapTransform);
    m_gvPlan->setDragMode(QGraphicsView::ScrollHandDrag);
    m_gvPlan->installEventFilter(this);
    m_gvPlan->viewport()->installEventFilter(this);
    layout->addWidget(m_gvPlan, 1);

    auto *buttons = new QHBoxLayout;
    m_pbShowTotalPlan = new QPushButton(tr("An Fenstergröße anpassen"), this);
    m_pbShowTotalPlan->setObjectName(QStringLiteral("pbShowTotalPlan"));
    connect(m_pbShowTotalPlan, &QPushButton::clicked, this, &KalPlanPanel::fitPlan);
    m_pbZoomInfo = new QPushButton(this);
    m_pbZoomInfo->setObjectName(QStringLiteral("pbZoomInfo"));
    m_pbZoomInfo->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-info.ico")));
    m_pbZoomInfo->setToolTip(tr("Hinweise zum Zoomen"));
    connect(m_pbZoomInfo, &QPushButton::clicked, this, &KalPlanPanel::showZoomInfo);
    buttons->addStretch(1);
    buttons->addWidget(m_pbShowTotalPlan);
    buttons->addWidget(m_pbZoomInfo);
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
    m_pbShowTotalPlan->setEnabled(false);
}

void KalPlanPanel::showHint()
{
    clear();
    m_hintItem = m_scene->addText(hintText());
    m_hintItem->setDefaultTextColor(QColor(110, 110, 110));
    m_gvPlan->resetTransform();
    layoutHint();
}

void KalPlanPanel::layoutHint()
{
    if (!m_hintItem)
        return;
    // The hint wraps to the panel and never needs scrolling.
    const QSize area = m_gvPlan->viewport()->size();
    m_hintItem->setTextWidth(qMax(120, area.width() - 24));
    const QRectF text = m_hintItem->boundingRect();
    m_scene->setSceneRect(
        QRectF(-12, 0, qMax<qreal>(text.width() + 24, area.width()), qMax<qreal>(text.height(), area.height() - 4)));
    m_gvPlan->centerOn(m_hintItem);
}

void KalPlanPanel::fitPlan()
{
    if (m_scene->items().isEmpty())
        return;
    if (m_planPixmap.isNull()) {
        showHint();
        return;
    }
    m_gvPlan->fitInView(m_scene->itemsBoundingRect(), Qt::KeepAspectRatio);
}

void KalPlanPanel::showZoomInfo()
{
    showHelpTip(m_pbZoomInfo, tr("Mit dem Mausrad vergrößern und verkleinern Sie den Plan.\n"
                                 "Mit gedrückter linker Maustaste verschieben Sie den Ausschnitt.\n"
                                 "\"An Fenstergröße anpassen\" zeigt den ganzen Plan."));
}

void KalPlanPanel::showHelpTip(QWidget *widget, const QString &text)
{
    QToolTip::showText(widget->mapToGlobal(QPoint(widget->width() / 2, widget->height() / 2)), text, widget);
}

bool KalPlanPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_gvPlan && watched != m_gvPlan->viewport())
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Resize:
        if (watched == m_gvPlan->viewport())
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
            showHelpTip(m_gvPlan, tr("Plan des gewählten Mangels.\nMausrad: vergrößern und verkleinern.\n"
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
