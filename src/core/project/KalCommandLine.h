#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// What the program was asked to open at start-up: nothing, one project
// file, or a project together with a site-journal file (connect mode, used
// when the site-journal program starts us).
class KalCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(KalCommandLine)

public:
    enum Kind { Nothing, OpenFile, Connect };
    enum ConnectMode { CreateAndImport = 101, OpenAndImport = 102, OpenOnly = 103 };

    Kind kind = Nothing;
    int connectMode = 0;
    QString connectModeText; // the mode argument as given
    QString projectFile;
    QString siteJournalFile;
    bool fromRestart = false; // taken from "File/ReopenFilename"

    // `arguments` includes the program name, as QCoreApplication::arguments().
    static KalCommandLine parse(const QStringList &arguments);

    // Start-up's choice: a pending restart ("File/ReopenFilename", removed
    // here) wins over the command line.
    static KalCommandLine forStartup(const QStringList &arguments);

    // Every problem of a connect-mode command line, each starting with a
    // line break; empty when it can be carried out.
    QString connectModeProblems() const;
    // The warning shown for those problems.
    static QString problemsMessage(const QString &problems);
    static QString problemsTitle();

    // Key that carries the project across a restart.
    static QString reopenKey() { return QStringLiteral("File/ReopenFilename"); }
    // Exit code of the event loop that asks for a restart.
    static constexpr int restartExitCode = 1000;
};
