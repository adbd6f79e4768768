#include "TextAidsTests.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

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
