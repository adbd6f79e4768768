#pragma once

#include "gui/widgets/KalResources.h"
#include "support/KalTestSettings.h"

#include <QApplication>
#include <QLocale>
#include <QtTest>

// Runs several widget test classes in one executable, each on a fresh
// instance, with isolated settings, German locale and the compiled icons.
template <typename... Tests> int kalRunWidgetTests(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    KalTestSettings::isolate();
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    kalInitGuiResources();
    int failed = 0;
    auto run = [&](auto &&test) { failed += QTest::qExec(&test, argc, argv); };
    (run(Tests()), ...);
    return failed;
}
