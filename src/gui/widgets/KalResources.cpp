#include "KalResources.h"

#include <QtGlobal>

static void initIcons()
{
    Q_INIT_RESOURCE(icons);
}

void kalInitGuiResources()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    initIcons();
}
