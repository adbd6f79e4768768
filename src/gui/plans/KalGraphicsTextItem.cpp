#include "KalGraphicsTextItem.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextDocument>
#include <QtMath>

namespace {

// Texts are laid out for 96 dpi whatever the screen: a point size then means
// the same number of picture pixels in the view, in the stored picture and on
// every computer.
QPaintDevice *layoutDevice()
{
    static QImage device = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        image.setDotsPerMeterX(3780);
        image.setDotsPerMeterY(3780);
        return image;
    }();
    return &device;
}

} // namespace

KalGraphicsTextItem::KalGraphicsTextItem(QGraphicsItem *parent)
    : QGraphicsTextItem(parent)
{
    document()->documentLayout()->setPaintDevice(layoutDevice());
    setFlags(ItemIsSelectable | ItemIsMovable | ItemSendsGeometryChanges);
    connect(document(), &QTextDocument::contentsChanged, this, [this] { emit textDocumentChanged(document()); });
}

void KalGraphicsTextItem::setTextColor(const QColor &color)
{
    setDefaultTextColor(color);
    m_announcedColor = color;
    emit colorChanged(&m_announcedColor);
}

void KalGraphicsTextItem::setFontFamily(const QString &family)
{
    QFont f = font();
    f.setFamily(family);
    setFont(f);
    emit fontFamilyChanged(family);
}

void KalGraphicsTextItem::setFontSize(int pointSize)
{
    QFont f = font();
    f.setPointSize(qMax(1, pointSize));
    setFont(f);
    emit fontSizeChanged(f.pointSize());
}

void KalGraphicsTextItem::setTextProperties(int properties)
{
    QFont f = font();
    f.setBold(properties & Bold);
    f.setItalic(properties & Italic);
    f.setUnderline(properties & Underline);
    setFont(f);
    announceFont();
}

int KalGraphicsTextItem::textProperties() const
{
    const QFont f = font();
    return (f.bold() ? Bold : 0) | (f.italic() ? Italic : 0) | (f.underline() ? Underline : 0);
}

void KalGraphicsTextItem::setBold(bool on)
{
    setTextProperties(on ? textProperties() | Bold : textProperties() & ~Bold);
}

void KalGraphicsTextItem::setItalic(bool on)
{
    setTextProperties(on ? textProperties() | Italic : textProperties() & ~Italic);
}

void KalGraphicsTextItem::setUnderline(bool on)
{
    setTextProperties(on ? textProperties() | Underline : textProperties() & ~Underline);
}

void KalGraphicsTextItem::announceFont()
{
    const QFont f = font();
    emit textBold(f.bold());
    emit textItalic(f.italic());
    emit textUnderline(f.underline());
}

void KalGraphicsTextItem::paintContent(QPainter *painter)
{
    QStyleOptionGraphicsItem plain;
    plain.state = QStyle::State_None;
    plain.exposedRect = boundingRect();
    QGraphicsTextItem::paint(painter, &plain, nullptr);
}

void KalGraphicsTextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    QStyleOptionGraphicsItem own(*option);
    // Qt's dashed frame is hard to see on photos: draw our own handles.
    own.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    QGraphicsTextItem::paint(painter, &own, widget);
    if (!(option->state & QStyle::State_Selected))
        return;
    paintHandles(painter, boundingRect());
}

void KalGraphicsTextItem::paintHandles(QPainter *painter, const QRectF &frame)
{
    painter->save();
    const QColor accent(0, 120, 215);
    painter->setPen(QPen(accent, 0, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(frame);
    // Handles keep their screen size whatever the zoom and the item's scale.
    const qreal zoom = qSqrt(qAbs(painter->worldTransform().determinant()));
    const qreal handle = 7.0 / qMax<qreal>(zoom, 0.0001);
    painter->setPen(QPen(accent, 0));
    painter->setBrush(Qt::white);
    for (const QPointF &corner : {frame.topLeft(), frame.topRight(), frame.bottomLeft(), frame.bottomRight()})
        painter->drawRect(QRectF(corner.x() - handle / 2, corner.y() - handle / 2, handle, handle));
    painter->restore();
}
