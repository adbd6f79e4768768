#pragma once

#include "gui/widgets/KalResources.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QApplication>
#include <QLocale>
#include <QtTest>

// Widget tests run with isolated settings, German locale, the compiled icons,
// 96 dpi and the scripted prompt, so texts and sizes are the same everywhere.
#define KAL_WIDGET_TEST_MAIN(TestClass)                                                                                \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        QApplication app(argc, argv);                                                                                  \
        app.setAttribute(Qt::AA_Use96Dpi, true);                                                                       \
        KalTestSettings::isolate();                                                                                    \
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));                                               \
        kalInitGuiResources();                                                                                         \
        KalScriptedPrompt::install();                                                                                  \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
