#include "KalTextAidsResources.h"

static void initTextAidsResourcesOnce()
{
    Q_INIT_RESOURCE(textaids);
}

void kalInitTextAidsResources()
{
    static bool done = false;
    if (!done) {
        done = true;
        initTextAidsResourcesOnce();
    }
}

QIcon kalCompleterButtonIcon()
{
    kalInitTextAidsResources();
    return QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-completerbutton.png"));
}
