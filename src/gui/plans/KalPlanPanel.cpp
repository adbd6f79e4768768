#include "KalPlanPanel.h"

#include "core/plans/KalPlanPainter.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "gui/plans/KalGraphicsViewZoom.h"
#include "gui/plans/KalPlanGraphicsPicture.h"
#include "gui/plans/KalPlanItemsLayer.h"
#include "gui/plans/KalPlanPictureCache.h"

#include <QEvent>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
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
    m_gvPlan->installEventFilter(this);
    m_gvPlan->viewport()->installEventFilter(this);
    layout->addWidget(m_gvPlan, 1);
    // Ctrl+wheel zooms; hand dragging follows the scroll bars.
    m_zoom = new KalGraphicsViewZoom(m_gvPlan);

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

void KalPlanPanel::showDefect(KalProject *project, qint64 defectId)
{
    m_project = project;
    m_defectId = defectId;
    refresh();
}

void KalPlanPanel::refresh()
{
    const bool open = m_project && m_project->isOpen();
    const qint64 planInfoId = open && m_defectId >= 0 ? KalPlans(m_project).planInfoIdOfDefect(m_defectId) : -1;
    if (planInfoId < 0 || !showPlan(planInfoId))
        showHint();
}

bool KalPlanPanel::showPlan(qint64 planInfoId)
{
    const qint64 planId = KalPlans(m_project).planIdOf(planInfoId);
    if (planId < 0)
        return false;
    QString error;
    bool decoded = false;
    std::shared_ptr<KalPlanPictureLevels> picture = KalPlanPictureCache::load(m_project, planId, &error, &decoded);
    m_decodeCount += decoded ? 1 : 0;
    if (!picture) {
        m_planPicture.reset();
        return false;
    }
    const bool decode = picture != m_planPicture;
    m_planPicture = picture;
    QPicture items;
    {
        QPainter painter(&items);
        KalPlanPainter::paintItems(painter, m_project->database(), planInfoId, m_defectId, &error);
    }

    const bool samePlan = planInfoId == m_shownPlanId && m_planItem && m_itemsLayer && !decode;
    if (samePlan) {
        m_itemsLayer->setPicture(items);
        return true;
    }
    m_scene->clear();
    m_hintItem = nullptr;
    m_planItem = new KalPlanGraphicsPicture(m_planPicture);
    m_scene->addItem(m_planItem);
    const QRectF bounds = m_planItem->boundingRect();
    m_itemsLayer = new KalPlanItemsLayer(items, bounds);
    m_scene->addItem(m_itemsLayer);
    m_scene->setSceneRect(bounds);
    m_shownPlanId = planInfoId;
    m_pbShowTotalPlan->setEnabled(true);
    m_gvPlan->fitInView(bounds, Qt::KeepAspectRatio);
    return true;
}

void KalPlanPanel::clear()
{
    m_scene->clear();
    m_hintItem = nullptr;
    m_planItem = nullptr;
    m_itemsLayer = nullptr;
    m_planPicture.reset();
    KalPlanPictureCache::release();
    m_project = nullptr;
    m_defectId = -1;
    m_shownPlanId = -1;
    m_pbShowTotalPlan->setEnabled(false);
}

void KalPlanPanel::showHint()
{
    // The decoded plan stays cached for the next defect located on it.
    m_scene->clear();
    m_planItem = nullptr;
    m_itemsLayer = nullptr;
    m_shownPlanId = -1;
    m_pbShowTotalPlan->setEnabled(false);
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
    if (!m_planItem) {
        showHint();
        return;
    }
    m_zoom->fitToWindow();
}

void KalPlanPanel::showZoomInfo()
{
    showHelpTip(m_pbZoomInfo, tr("Mit Strg + Mausrad vergrößern und verkleinern Sie den Plan.\n"
                                 "Mit gedrückter linker Maustaste verschieben Sie den vergrößerten Ausschnitt.\n"
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
        if (m_shownPlanId == -1)
            emit planDoubleClicked();
        else
            emit shownPlanDoubleClicked(m_shownPlanId);
        return true;
    case QEvent::ToolTip:
        if (!m_helpActive) {
            QToolTip::hideText();
            return true;
        }
        if (!m_helpShown) {
            m_helpShown = true;
            showHelpTip(m_gvPlan, tr("Plan des gewählten Mangels.\nStrg + Mausrad: vergrößern und verkleinern.\n"
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
