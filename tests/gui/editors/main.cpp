#include "support/KalWidgetTestMain.h"
#include "tst_defecteditor.h"
#include "tst_masterdata.h"
#include "tst_statusdialog.h"

// The dialogs of defects, statuses and master data, each on its own project.
int main(int argc, char **argv)
{
    return kalRunWidgetTests<TstDefectEditor, TstStatusDialog, TstMasterData>(argc, argv);
}
