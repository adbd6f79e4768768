#pragma once

#include <QCoreApplication>
#include <QString>

class KalPrompt;

// The site-diary program works on `<journal>.workingcopy`, keeps SQLite's
// exclusive lock on it while the journal is open, and names its user and
// computer in `<journal>.udf` (lines: user, computer, date, time). This
// tells from that pair whether an import may read the journal now.
class KalSiteJournalLockMarker
{
    Q_DECLARE_TR_FUNCTIONS(KalSiteJournalLockMarker)

public:
    enum class State {
        Free,      // no working copy: the journal is closed
        LeftOver,  // a working copy nobody holds: a crash left it, go on
        ThisUser,  // held by this user on this computer: ask before going on
        OtherUser, // held by somebody else: stop
    };

    struct Verdict
    {
        State state = State::Free;
        QString user;     // from the .udf file (ThisUser, OtherUser)
        QString computer; // likewise
    };

    static QString workingCopyPath(const QString &journalPath);
    static QString userDataPath(const QString &journalPath);

    // Looks at the pair beside `journalPath`; changes nothing on disk.
    static Verdict check(const QString &journalPath);

    // check() and the message that goes with it through KalPrompt:
    // ThisUser asks "Fortfahren" / "Import abbrechen", OtherUser names the
    // holder and stops. True when the import may go on.
    static bool confirm(const QString &journalPath, KalPrompt *prompt = nullptr);
};
