#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

// What every pellwick-cli command shares: exit codes, the usage text built
// from the command table, option parsing, output and the translation context.
namespace KalCli {

enum ExitCode { Success = 0, Failed = 1, Usage = 2 };

// One line of the command table: "pellwick-cli [--yes] NAME FILE [options]".
// `run` gets the project file and the arguments after it and returns an ExitCode.
struct Command
{
    const char *name;
    const char *synopsis; // may hold "\n" for a continuation line
    const char *help;
    int (*run)(const QString &file, const QStringList &options);
    // Draws text: runs in a GUI application (offscreen unless told otherwise).
    bool needsFonts = false;
};

// Parses the global options, installs the stderr prompt and runs the command
// the arguments name. Returns the process exit code.
int run(int argc, char **argv, const QList<Command> &commands);

// Translated in the context "KalCli".
QString tr(const char *text);
// One line on stdout.
void out(const QString &text);
// The full usage text of the command table given to run().
QString usage();
// Prints "pellwick-cli: TEXT" and the usage to stderr; returns Usage.
int usageError(const QString &text);
// Shows "Die Datei ... existiert nicht." when `path` is no file.
bool fileMissing(const QString &path);

// "--name value" options and plain flags after the file argument.
struct Options
{
    QMap<QString, QString> values;
    QStringList flags;
    QString error; // set on an unknown argument or a missing value
};
Options parseOptions(const QStringList &args, const QStringList &withValue, const QStringList &plainFlags = {});

} // namespace KalCli
