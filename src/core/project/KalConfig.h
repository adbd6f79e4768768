#pragma once

#include <QFont>
#include <QVector>

// Print defaults: the fonts of the defect lists and the page margins.
class KalConfig
{
public:
    enum FontIndex { Font10Bold = 0, Font17Bold = 1, Font9 = 2, Font9Bold = 3, Font7 = 4, Font5 = 5 };

    static const KalConfig &instance();

    const QFont &font(FontIndex index) const { return m_fonts.at(index); }
    int fontCount() const { return m_fonts.size(); }
    // Page margins in millimetres, in the order printing uses them.
    const QVector<int> &margins() const { return m_margins; }

private:
    KalConfig();
    QVector<QFont> m_fonts;
    QVector<int> m_margins;
};
