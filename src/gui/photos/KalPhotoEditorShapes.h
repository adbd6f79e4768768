#pragma once

#include <QPainterPath>
#include <QString>
#include <QStringList>

// The drawn shapes and symbol characters of the photo editor. Arrows and the
// triangle are designed pointing right around the origin and turned to the
// chosen direction.
class KalPhotoEditorShapes
{
public:
    enum Direction { Left, Right, Up, Down };

    // Parts of a shape: lines are only stroked, areas are filled and
    // outlined.
    struct Paths
    {
        QPainterPath stroked;
        QPainterPath filled;
    };

    static constexpr int arrowCount = 7;
    // Arrow 1 to 7 of the given length; arrow 6 points both ways.
    static Paths arrow(int number, Direction direction, qreal length);
    static Paths triangle(Direction direction, qreal size);

    // The characters behind the symbol tools: four symbols, four text
    // symbols on their own buttons, ten number symbols, sixteen further
    // text symbols. Characters that installed fonts can draw.
    static QString symbol(int index);       // 0..3: X, filled circle, asterisk, diamond
    static QString textSymbol(int index);   // 0..15; the first four have own buttons
    static QString numberSymbol(int index); // 0..9: circled 1 to 10
    static constexpr int symbolCount = 4;
    static constexpr int textSymbolCount = 16;
    static constexpr int numberSymbolCount = 10;
    // The fonts symbols are preferably drawn with.
    static QStringList symbolFonts();
};
