#include "KalPlanGraphicsPicture.h"

#include "KalPlanPictureCache.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTimer>
#include <cmath>

namespace {
// Copies below this size are not worth making.
const int kSmallestSide = 256;
} // namespace

KalPlanGraphicsPicture::KalPlanGraphicsPicture(std::shared_ptr<KalPlanPictureLevels> picture, QGraphicsItem *parent)
    : QGraphicsItem(parent)
    , m_picture(picture ? std::move(picture) : std::make_shared<KalPlanPictureLevels>())
{
    if (m_picture->levels.isEmpty())
        m_picture->levels.append(QImage());
    setFlag(ItemUsesExtendedStyleOption);
}

QSize KalPlanGraphicsPicture::pictureSize() const
{
    return m_picture->levels.first().size();
}

int KalPlanGraphicsPicture::reducedCopies() const
{
    return m_picture->levels.size() - 1;
}

QRectF KalPlanGraphicsPicture::boundingRect() const
{
    return QRectF(QPointF(0, 0), pictureSize());
}

const QImage &KalPlanGraphicsPicture::level(int index)
{
    QVector<QImage> &levels = m_picture->levels;
    while (levels.size() <= index) {
        const QImage &larger = levels.last();
        levels.append(larger.scaled(qMax(1, larger.width() / 2), qMax(1, larger.height() / 2), Qt::IgnoreAspectRatio,
                                    Qt::SmoothTransformation));
    }
    return levels.at(index);
}

void KalPlanGraphicsPicture::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *)
{
    const QVector<QImage> &levels = m_picture->levels;
    const QImage &full = levels.first();
    if (full.isNull())
        return;
    // The coarsest copy that still has at least one pixel per screen pixel.
    const qreal detail = option->levelOfDetailFromTransform(painter->worldTransform());
    int index = 0;
    while (detail > 0 && std::ldexp(1.0, -(index + 1)) >= detail &&
           qMin(full.width(), full.height()) >> (index + 1) >= kSmallestSide)
        ++index;
    // A copy not made yet is made right after this paint, so the first
    // screen does not wait for it; until then the picture itself is drawn.
    if (index >= levels.size() && !m_buildPending && scene()) {
        m_buildPending = true;
        QTimer::singleShot(0, scene(), [this, index] {
            level(index);
            m_buildPending = false;
            update();
        });
    }
    const QImage &copy = levels.at(qMin(index, levels.size() - 1));
    const QRectF exposed = option->exposedRect.intersected(boundingRect());
    const double sx = double(copy.width()) / full.width();
    const double sy = double(copy.height()) / full.height();
    const QRectF source(exposed.x() * sx, exposed.y() * sy, exposed.width() * sx, exposed.height() * sy);
    painter->drawImage(exposed, copy, source);
}
