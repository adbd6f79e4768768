#include "KalPhotoEditorShapes.h"

#include <QPolygonF>
#include <QTransform>

namespace {

QTransform turn(KalPhotoEditorShapes::Direction direction)
{
    const qreal angles[] = {180, 0, 270, 90};
    return QTransform().rotate(angles[direction]);
}

// A filled head with its tip at (x, 0) pointing right.
QPainterPath head(qreal x, qreal length, qreal halfWidth)
{
    QPainterPath path;
    path.addPolygon(QVector<QPointF>{{x, 0}, {x - length, -halfWidth}, {x - length, halfWidth}, {x, 0}});
    path.closeSubpath();
    return path;
}

// The outline of a block arrow from -l to l with shaft half-height s and
// head half-height h, head length k.
QPolygonF blockArrow(qreal l, qreal s, qreal h, qreal k)
{
    return QVector<QPointF>{{-l, -s}, {l - k, -s}, {l - k, -h}, {l, 0}, {l - k, h}, {l - k, s}, {-l, s}, {-l, -s}};
}

} // namespace

KalPhotoEditorShapes::Paths KalPhotoEditorShapes::arrow(int number, Direction direction, qreal length)
{
    const qreal l = length / 2;
    Paths paths;
    switch (number) {
    case 1: // plain line with an open head
        paths.stroked.moveTo(-l, 0);
        paths.stroked.lineTo(l, 0);
        paths.stroked.moveTo(l - 0.3 * l, -0.2 * l);
        paths.stroked.lineTo(l, 0);
        paths.stroked.lineTo(l - 0.3 * l, 0.2 * l);
        break;
    case 2: // solid block arrow
        paths.filled.addPolygon(blockArrow(l, 0.12 * l, 0.3 * l, 0.4 * l));
        break;
    case 3: // line with a solid head
        paths.stroked.moveTo(-l, 0);
        paths.stroked.lineTo(l - 0.35 * l, 0);
        paths.filled = head(l, 0.4 * l, 0.2 * l);
        break;
    case 4: // bent arrow
        paths.stroked.moveTo(-l, 0.4 * l);
        paths.stroked.quadTo(-0.2 * l, -0.5 * l, l - 0.35 * l, -0.05 * l);
        paths.filled = head(l, 0.4 * l, 0.2 * l).translated(0, -0.05 * l);
        break;
    case 5: // hollow block arrow
        paths.stroked.addPolygon(blockArrow(l, 0.12 * l, 0.3 * l, 0.4 * l));
        break;
    case 6: // double arrow
        paths.stroked.moveTo(-l + 0.35 * l, 0);
        paths.stroked.lineTo(l - 0.35 * l, 0);
        paths.filled = head(l, 0.4 * l, 0.2 * l);
        paths.filled.addPath(QTransform().rotate(180).map(head(l, 0.4 * l, 0.2 * l)));
        break;
    default: // pointer with a dot at its tail
        paths.stroked.moveTo(-l + 0.1 * l, 0);
        paths.stroked.lineTo(l - 0.35 * l, 0);
        paths.filled = head(l, 0.4 * l, 0.2 * l);
        paths.filled.addEllipse(QPointF(-l + 0.1 * l, 0), 0.1 * l, 0.1 * l);
        break;
    }
    const QTransform t = turn(direction);
    return {t.map(paths.stroked), t.map(paths.filled)};
}

KalPhotoEditorShapes::Paths KalPhotoEditorShapes::triangle(Direction direction, qreal size)
{
    const qreal h = size / 2;
    Paths paths;
    paths.filled.addPolygon(QVector<QPointF>{{h, 0}, {-h, -h}, {-h, h}, {h, 0}});
    paths.filled.closeSubpath();
    return {QPainterPath(), turn(direction).map(paths.filled)};
}

QString KalPhotoEditorShapes::symbol(int index)
{
    static const char32_t codes[symbolCount] = {0x2716, 0x25CF, 0x2731, 0x25C6};
    return QString::fromUcs4(&codes[qBound(0, index, symbolCount - 1)], 1);
}

QString KalPhotoEditorShapes::textSymbol(int index)
{
    static const char32_t codes[textSymbolCount] = {0x2714, 0x2718, 0x26A0, 0x2605, 0x2606, 0x25CB, 0x25A0, 0x25A1,
                                                    0x25B2, 0x25B3, 0x25C7, 0x271A, 0x2300, 0x270E, 0x2192, 0x003F};
    return QString::fromUcs4(&codes[qBound(0, index, textSymbolCount - 1)], 1);
}

QString KalPhotoEditorShapes::numberSymbol(int index)
{
    const char32_t code = 0x2460 + char32_t(qBound(0, index, numberSymbolCount - 1));
    return QString::fromUcs4(&code, 1);
}

QStringList KalPhotoEditorShapes::symbolFonts()
{
    return {QStringLiteral("Wingdings"), QStringLiteral("Arial"), QStringLiteral("Lucida Sans Unicode"),
            QStringLiteral("DejaVu Sans")};
}
