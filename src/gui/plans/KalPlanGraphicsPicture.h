#pragma once

#include <QGraphicsItem>
#include <QImage>
#include <QVector>
#include <memory>

struct KalPlanPictureLevels;

// The plan as the scene's background. A large plan is decoded once; when it
// is shown reduced, halved copies (made right after the first paint that
// needs them, each from the next larger one) are painted instead of scaling
// the whole picture on every paint. Items showing the same plan share the
// picture and its copies.
class KalPlanGraphicsPicture : public QGraphicsItem
{
public:
    explicit KalPlanGraphicsPicture(std::shared_ptr<KalPlanPictureLevels> picture, QGraphicsItem *parent = nullptr);

    QSize pictureSize() const;
    // How many halved copies exist (for measuring).
    int reducedCopies() const;

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    const QImage &level(int index);

    std::shared_ptr<KalPlanPictureLevels> m_picture; // never null
    bool m_buildPending = false;
};
