#pragma once

#include <QString>

// Keeps tests away from the user's settings: call once at the start of
// initTestCase(). Uses a private configuration folder per test process.
namespace KalTestSettings {
void isolate();
// Folder of the built programs (pellwick, pellwick-cli) and of test helpers.
QString binDir();
QString testBinDir();
} // namespace KalTestSettings
