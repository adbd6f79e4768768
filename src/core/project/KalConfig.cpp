#include "KalConfig.h"

namespace {
QFont fontFrom(const char *description)
{
    QFont font;
    font.fromString(QString::fromLatin1(description));
    return font;
}
} // namespace

KalConfig::KalConfig()
{
    m_fonts << fontFrom("Arial, 10,-1,5,75,0,0,0,0,0") << fontFrom("Arial,17,-1,5,75,0,0,0,0,0")
            << fontFrom("Arial,9,-1,5,50,0,0,0,0,0");
    QFont bold9 = m_fonts.at(Font9);
    bold9.setWeight(75);
    m_fonts << bold9 << fontFrom("Arial, 7,-1,5,50,0,0,0,0,0") << fontFrom("Arial, 5,-1,5,50,0,0,0,0,0");
    m_margins = {15, 15, 10, 10};
}

const KalConfig &KalConfig::instance()
{
    static const KalConfig config;
    return config;
}
