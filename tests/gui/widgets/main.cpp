#include "support/KalWidgetTestMain.h"
#include "tst_guiseams.h"
#include "tst_tableview.h"

// The grid, and the GUI implementations of the message, progress and
// file-dialog seams.
int main(int argc, char **argv)
{
    return kalRunWidgetTests<TstTableView, TstGuiSeams>(argc, argv);
}
