#pragma once

#include <QCoreApplication>
#include <QString>

// Saving and probing call SQLite's C API on the handle of Qt's QSQLITE
// driver. That is sound only when the driver uses the very SQLite library
// the program links; a driver with its own built-in SQLite would hand over a
// handle of a different library. Checked once at start.
class KalSqliteCheck
{
    Q_DECLARE_TR_FUNCTIONS(KalSqliteCheck)

public:
    struct Versions
    {
        QString driverVersion; // what the driver answers to sqlite_version()
        QString driverSourceId;
        QString libraryVersion; // what the linked library reports
        QString librarySourceId;
    };

    // Asks both sides; the driver through an in-memory connection.
    static Versions versions();
    // Empty when both are the same library; otherwise the message for the user.
    static QString mismatchText(const Versions &versions);

    // Shows the message and returns false when they differ.
    static bool verify();
    // verify(); on a mismatch the event loop also ends as soon as it starts,
    // so no project is ever opened.
    static bool verifyOrQuit();
};
