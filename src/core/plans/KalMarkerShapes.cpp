#include "KalMarkerShapes.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace KalMarkerShapes {

namespace {

// Parameterised path segments keep the four designs readable as data.
struct Segment
{
    enum Kind { Move, Line, Cubic, Close } kind;
    double v[6];
};

QPainterPath build(std::initializer_list<Segment> segments)
{
    QPainterPath path;
    for (const Segment &s : segments) {
        switch (s.kind) {
        case Segment::Move:
            path.moveTo(s.v[0], s.v[1]);
            break;
        case Segment::Line:
            path.lineTo(s.v[0], s.v[1]);
            break;
        case Segment::Cubic:
            path.cubicTo(s.v[0], s.v[1], s.v[2], s.v[3], s.v[4], s.v[5]);
            break;
        case Segment::Close:
            path.closeSubpath();
            break;
        }
    }
    return path;
}

QPainterPath ellipses(std::initializer_list<QRectF> rects)
{
    // Two nested ellipses make a ring only with odd-even filling.
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const QRectF &r : rects)
        path.addEllipse(r);
    return path;
}

using S = Segment;

KalMarkerPaths pin()
{
    KalMarkerPaths p;
    // The left flank is a curve, the right one straight, and one control
    // point lies just outside the 320-wide frame: that is the design.
    p.body = build({{S::Move, {160, 0}},
                    {S::Cubic, {71.641, 0, 0, 71.625, 0, 160}},
                    {S::Cubic, {0, 184.75, 5.625, 208.219, 15.672, 229.125}},
                    {S::Cubic, {16.234, 230.313, 160, 512, 160, 512}},
                    {S::Line, {302.594, 232.625}},
                    {S::Cubic, {313.719, 210.844, 320, 186.6, 320, 160}},
                    {S::Cubic, {320.719, 71.625, 248.375, 0, 160, 0}}});
    p.status.addEllipse(QRectF(58, 63, 204, 204));
    return p;
}

KalMarkerPaths needle()
{
    KalMarkerPaths p;
    p.body = build({{S::Move, {240, 256}},
                    {S::Line, {240, 480}},
                    {S::Line, {256, 512}},
                    {S::Line, {272, 480}},
                    {S::Line, {272, 256}},
                    {S::Line, {240, 256}}});
    p.status.addEllipse(QRectF(128, 0, 256, 256));
    return p;
}

KalMarkerPaths flag()
{
    KalMarkerPaths p;
    p.body = build({{S::Move, {80, 512}},
                    {S::Line, {64, 480}},
                    {S::Line, {64, 16}},
                    {S::Cubic, {64, 7.168, 71.168, 0, 80, 0}},
                    {S::Cubic, {88.823, 0, 96, 7.168, 96, 16}},
                    {S::Line, {96, 480}},
                    {S::Line, {80, 512}}});
    p.status = build({{S::Move, {437.472, 160.96}},
                      {S::Line, {85.472, 32.96}},
                      {S::Cubic, {80.576, 31.168, 75.104, 31.904, 70.816, 34.88}},
                      {S::Cubic, {66.528, 37.856, 64, 42.784, 64, 48}},
                      {S::Line, {64, 304}},
                      {S::Cubic, {64, 309.216, 66.56, 314.112, 70.816, 317.088}},
                      {S::Cubic, {73.536, 319.008, 76.768, 320, 80, 320}},
                      {S::Cubic, {81.856, 320, 83.68, 319.68, 85.472, 319.039}},
                      {S::Cubic, {443.776, 188.736, 448, 182.72, 448, 176}},
                      {S::Cubic, {448, 169.28, 443.776, 163.264, 437.472, 160.96}}});
    return p;
}

KalMarkerPaths target()
{
    KalMarkerPaths p;
    p.body = ellipses({QRectF(116, 116, 280, 280), QRectF(48, 48, 416, 416)});
    p.status = ellipses({QRectF(186, 186, 140, 140), QRectF(114, 114, 284, 284)});
    p.cross.moveTo(256, 50);
    p.cross.lineTo(256, 462);
    p.cross.moveTo(50, 256);
    p.cross.lineTo(462, 256);
    return p;
}

QColor colorOr(const QString &name, const QColor &fallback)
{
    const QColor color(name.trimmed());
    return color.isValid() ? color : fallback;
}

} // namespace

QColor noStatusColor()
{
    return QColor(QStringLiteral("#859FAF"));
}

bool isKnownType(int type)
{
    return type >= 1 && type <= 4;
}

const KalMarkerPaths &paths(int type)
{
    // Built once: every paint of thousands of markers needs them, and the
    // copies handed out share the built paths.
    static const KalMarkerPaths built[] = {KalMarkerPaths(), pin(), needle(), flag(), target()};
    return isKnownType(type) ? built[type] : built[0];
}

QPen bodyPen(const QColor &color, double width)
{
    if (!std::isfinite(width) || width <= 0.0)
        return QPen(Qt::NoPen);
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

bool paintMarker(QPainter &painter, const KalMarkerRow &row, const PaintOptions &options)
{
    if (!isKnownType(row.type) || !KalPlanTransform::isDrawable(row.geometry))
        return false;
    const KalMarkerPaths &parts = paths(row.type);
    // Unreadable colours fall back to visible defaults instead of black.
    const QColor fill = colorOr(row.color1, QColor(Qt::yellow));
    const QColor outline = options.highlighted ? QColor(Qt::red) : colorOr(row.color2, QColor(Qt::black));
    const QColor status = options.statusColor.isValid() ? options.statusColor : noStatusColor();

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(KalPlanTransform::toPlan(row.geometry), true);
    painter.setPen(bodyPen(outline, options.highlighted ? qMax(row.lineWidth, 8.0) : row.lineWidth));
    painter.setBrush(fill);
    painter.drawPath(parts.body);
    painter.setPen(Qt::NoPen);
    painter.setBrush(status);
    painter.drawPath(parts.status);
    if (!parts.cross.isEmpty()) {
        // The cross stays visible when the body has no outline.
        const double width = row.lineWidth > 0.0 && std::isfinite(row.lineWidth) ? row.lineWidth : 1.0;
        painter.setPen(QPen(QBrush(Qt::black), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(parts.cross);
    }
    painter.restore();
    return true;
}

double textPixelSize(double points)
{
    return points * 96.0 / 72.0;
}

QFont textFont(const KalMarkerTextRow &row)
{
    QFont font(row.fontFamily.isEmpty() ? QStringLiteral("Arial") : row.fontFamily);
    const int points = row.fontSize > 0 && row.fontSize <= 1000 ? row.fontSize : 8;
    font.setPixelSize(qMax(1, qRound(textPixelSize(points))));
    font.setBold(row.properties & 1);
    font.setItalic(row.properties & 2);
    font.setUnderline(row.properties & 4);
    return font;
}

QRectF textRect(const KalMarkerTextRow &row)
{
    const QFontMetricsF metrics(textFont(row));
    return metrics.boundingRect(QRectF(0, 0, 1e6, 1e6), Qt::AlignLeft | Qt::AlignTop, row.text);
}

bool paintText(QPainter &painter, const KalMarkerTextRow &row, bool highlighted)
{
    if (row.text.isEmpty() || !KalPlanTransform::isDrawable(row.geometry))
        return false;
    const QRectF box = textRect(row);
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setTransform(KalPlanTransform::toPlan(row.geometry), true);
    painter.setFont(textFont(row));
    painter.setPen(colorOr(row.color, QColor(Qt::black)));
    painter.drawText(box, Qt::AlignLeft | Qt::AlignTop, row.text);
    if (highlighted) {
        painter.setPen(QPen(QColor(Qt::red), 2.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(box);
    }
    painter.restore();
    return true;
}

} // namespace KalMarkerShapes
