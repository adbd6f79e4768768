#include "KalScriptedPrompt.h"
#include "KalTestSettings.h"
#include "TextAidsTests.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    KalTestSettings::isolate();
    KalScriptedPrompt::install();
    int failed = 0;
    failed += runCompleterTests(argc, argv);
    failed += runSpellCheckerTests(argc, argv);
    failed += runDateEditTests(argc, argv);
    return failed;
}
