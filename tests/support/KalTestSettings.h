#pragma once

#include <QString>

// Keeps tests away from the user's settings: call once at the start of
// initTestCase(). Uses a private configuration folder per test process.
namespace KalTestSettings {
void isolate();
// The folder the test may use for files that outlive single tests.
QString scratchFolder();
// Folder of the built programs (pellwick, pellwick-cli) and of test helpers.
QString binDir();
QString testBinDir();
} // namespace KalTestSettings
