#include "KalResources.h"
#include "KalTestSettings.h"
#include "tst_defecteditor.h"
#include "tst_masterdata.h"
#include "tst_statusdialog.h"

#include <QApplication>
#include <QLocale>
#include <QtTest>

// The dialogs of defects, statuses and master data, each on its own project.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    KalTestSettings::isolate();
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    kalInitGuiResources();

    int failed = 0;
    {
        TstDefectEditor editor;
        failed += QTest::qExec(&editor, argc, argv);
    }
    {
        TstStatusDialog status;
        failed += QTest::qExec(&status, argc, argv);
    }
    {
        TstMasterData master;
        failed += QTest::qExec(&master, argc, argv);
    }
    return failed;
}
