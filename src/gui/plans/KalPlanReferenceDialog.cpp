#include "KalPlanReferenceDialog.h"

#include "KalPlanItemsLayer.h"
#include "core/plans/KalPlanPainter.h"
#include "core/plans/KalPlanReference.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "gui/plans/KalGraphicsViewZoom.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPicture>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QGraphicsView *planView(QGraphicsScene *scene, QWidget *parent)
{
    auto *view = new QGraphicsView(scene, parent);
    view->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    view->setTransformationAnchor(QGraphicsView::NoAnchor);
    view->setResizeAnchor(QGraphicsView::NoAnchor);
    view->setMinimumSize(360, 300);
    new KalGraphicsViewZoom(view);
    return view;
}

} // namespace

KalPlanReferenceDialog::KalPlanReferenceDialog(KalProject *project, qint64 planInfoId, const KalPlans::Version &version,
                                               QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_planInfoId(planInfoId)
    , m_version(version)
    , m_oldScene(new QGraphicsScene(this))
    , m_newScene(new QGraphicsScene(this))
{
    setWindowTitle(tr("Neue Planversion mit Referenzpunkten laden"));
    setWindowFlags(windowFlags() | Qt::WindowMaximizeButtonHint);
    auto *layout = new QVBoxLayout(this);
    auto *hint = new QLabel(tr("Klicken Sie nacheinander auf zwei oder drei markante Punkte im alten Plan (links) und "
                               "auf dieselben Punkte in derselben Reihenfolge im neuen Plan (rechts). Zwei Punktpaare "
                               "verschieben, drehen und skalieren die Marker, drei Punktpaare gleichen auch "
                               "Verzerrungen aus. Strg+Mausrad zoomt."),
                            this);
    hint->setWordWrap(true);
    layout->addWidget(hint);
    auto *views = new QHBoxLayout;
    m_oldView = planView(m_oldScene, this);
    m_oldView->setObjectName(QStringLiteral("gvOldPlan"));
    m_newView = planView(m_newScene, this);
    m_newView->setObjectName(QStringLiteral("gvNewPlan"));
    views->addWidget(m_oldView);
    views->addWidget(m_newView);
    layout->addLayout(views, 1);
    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    layout->addWidget(m_status);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton *reset = buttons->addButton(tr("Punkte zurücksetzen"), QDialogButtonBox::ResetRole);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &KalPlanReferenceDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &KalPlanReferenceDialog::reject);
    connect(reset, &QPushButton::clicked, this, &KalPlanReferenceDialog::resetPoints);
    layout->addWidget(buttons);

    QString error;
    const QImage oldPlan = KalPlanPainter::render(project->database(), planInfoId, &error);
    m_oldScene->addPixmap(QPixmap::fromImage(oldPlan))->setZValue(-1);
    m_oldScene->setSceneRect(QRectF(QPointF(0, 0), oldPlan.size()));
    const QImage newPlan = QImage::fromData(version.picture.picture);
    m_newScene->addPixmap(QPixmap::fromImage(newPlan))->setZValue(-1);
    m_newScene->setSceneRect(QRectF(QPointF(0, 0), newPlan.size()));
    m_markSize = qMax(8.0, qMax(newPlan.width(), newPlan.height()) / 150.0);
    m_oldView->viewport()->installEventFilter(this);
    m_newView->viewport()->installEventFilter(this);
    resize(1200, 700);
    refresh();
}

bool KalPlanReferenceDialog::loadVersion(KalProject *project, qint64 planInfoId, QWidget *parent)
{
    const QString file = QFileDialog::getOpenFileName(parent, tr("Plan auswählen"), QString(),
                                                      tr("Pläne (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)"));
    if (file.isEmpty())
        return false;
    KalPlans plans(project);
    KalPlans::Version version;
    if (!plans.loadVersion(file, &version))
        return false;
    KalPlanReferenceDialog dialog(project, planInfoId, version, parent);
    return dialog.exec() == Accepted;
}

bool KalPlanReferenceDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        auto *mouse = static_cast<QMouseEvent *>(event);
        const bool onNew = watched == m_newView->viewport();
        if (mouse->button() == Qt::LeftButton && (onNew || watched == m_oldView->viewport())) {
            QGraphicsView *view = onNew ? m_newView : m_oldView;
            const QPointF pos = view->mapToScene(mouse->pos());
            if (view->sceneRect().contains(pos))
                addPoint(onNew, pos);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void KalPlanReferenceDialog::addPoint(bool onNewPlan, const QPointF &planPos)
{
    QVector<QPointF> &points = onNewPlan ? m_newPoints : m_oldPoints;
    if (points.size() >= 3)
        return;
    points.append(planPos);
    refresh();
}

void KalPlanReferenceDialog::resetPoints()
{
    m_oldPoints.clear();
    m_newPoints.clear();
    refresh();
}

void KalPlanReferenceDialog::refresh()
{
    qDeleteAll(m_overlay);
    m_overlay.clear();
    const QColor colors[] = {Qt::red, QColor(0, 160, 0), Qt::blue};
    for (int side = 0; side < 2; ++side) {
        const QVector<QPointF> &points = side ? m_newPoints : m_oldPoints;
        QGraphicsScene *scene = side ? m_newScene : m_oldScene;
        for (int i = 0; i < points.size(); ++i) {
            const double r = m_markSize;
            auto *mark = scene->addEllipse(QRectF(points[i] - QPointF(r, r), QSizeF(2 * r, 2 * r)),
                                           QPen(colors[i], r / 3), Qt::NoBrush);
            m_overlay.append(mark);
        }
    }
    const KalPlanReference::Fit fit = KalPlanReference::fit(m_oldPoints, m_newPoints);
    m_usable = fit.verdict == KalPlanReference::Usable;
    m_ok->setEnabled(m_usable);
    if (m_usable) {
        m_transform = fit.transform;
        showPreview(fit.transform);
        m_status->setText(tr("Die Vorschau zeigt die Marker an ihrer neuen Stelle. OK speichert den neuen Plan und "
                             "die Marker."));
    } else if (m_oldPoints.size() < 2 || m_newPoints.size() != m_oldPoints.size()) {
        m_status->setText(
            tr("Punkte im alten Plan: %1, im neuen Plan: %2.").arg(m_oldPoints.size()).arg(m_newPoints.size()));
    } else {
        m_status->setText(KalPlanReference::refusalText(fit.verdict));
    }
}

void KalPlanReferenceDialog::showPreview(const QTransform &transform)
{
    // Markers and texts drawn as the print will draw them on the new version.
    QPicture moved;
    {
        QPainter painter(&moved);
        QString error;
        KalPlanPainter::paintItems(painter, m_project->database(), m_planInfoId, -1, &error, transform);
    }
    auto *layer = new KalPlanItemsLayer(moved, m_newScene->sceneRect());
    m_newScene->addItem(layer);
    m_overlay.append(layer);
}

void KalPlanReferenceDialog::accept()
{
    if (!m_usable)
        return;
    if (KalPlans(m_project).storeVersion(m_planInfoId, m_version, m_transform))
        QDialog::accept();
}
