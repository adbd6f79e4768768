#pragma once

#include <QString>

// What every fuzz entry point needs once per process: a core application
// for the SQL driver plugin, settings and temporary files in a folder of
// their own (never the user's), and a prompt that answers every question
// with the recommended choice without printing.
namespace KalFuzzSupport {

void initialize(int *argc, char ***argv);
// An empty folder for one input; emptied again on every call.
QString freshFolder();

} // namespace KalFuzzSupport
