#pragma once

#include <QGraphicsItem>
#include <QImage>
#include <QVector>

// The plan as the scene's background. A large plan is decoded once; when it
// is shown reduced, halved copies (made right after the first paint that
// needs them, each from the next larger one) are painted instead of scaling the whole picture on every
// paint.
class KalPlanGraphicsPicture : public QGraphicsItem
{
public:
    explicit KalPlanGraphicsPicture(QImage picture, QGraphicsItem *parent = nullptr);

    QSize pictureSize() const { return m_levels.first().size(); }
    // How many halved copies exist (for measuring).
    int reducedCopies() const { return m_levels.size() - 1; }

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    const QImage &level(int index);

    QVector<QImage> m_levels; // [0] the picture, [k] halved k times
    bool m_buildPending = false;
};
