#include "KalResources.h"
#include "KalTestSettings.h"
#include "tst_guiseams.h"
#include "tst_tableview.h"

#include <QApplication>
#include <QLocale>
#include <QtTest>

// Two test classes in one executable: the grid, and the GUI implementations
// of the message, progress and file-dialog seams.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    KalTestSettings::isolate();
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    kalInitGuiResources();

    int failed = 0;
    {
        TstTableView grid;
        failed += QTest::qExec(&grid, argc, argv);
    }
    {
        TstGuiSeams seams;
        failed += QTest::qExec(&seams, argc, argv);
    }
    return failed;
}
