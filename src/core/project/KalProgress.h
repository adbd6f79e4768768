#pragma once

#include <QString>

// Long operations report through this; the GUI shows a small modal window,
// the command-line tool prints, tests ignore it.
class KalProgress
{
public:
    virtual ~KalProgress();
    virtual void begin(const QString &text) = 0;
    // total <= 0: busy without a known end
    virtual void setProgress(qint64 done, qint64 total) = 0;
    virtual void end() = 0;
    // A message of the running operation is about to be shown: the indicator
    // must not cover it, and stays away until the operation has ended.
    virtual void yieldToMessage() {}
    // Like begin(), with a way for the user to stop the operation; the
    // operation polls wasCanceled() between steps.
    virtual void beginCancelable(const QString &text) { begin(text); }
    virtual bool wasCanceled() const { return false; }
    // Replaces the text of the running operation (its current phase).
    virtual void setText(const QString &text) { Q_UNUSED(text) }

    static KalProgress *instance();
    static void install(KalProgress *progress); // takes ownership
};

// Shows the busy indicator for the lifetime of the scope.
class KalBusyScope
{
public:
    explicit KalBusyScope(const QString &text = QString());
    ~KalBusyScope();
    void setProgress(qint64 done, qint64 total);
    KalBusyScope(const KalBusyScope &) = delete;
    KalBusyScope &operator=(const KalBusyScope &) = delete;
};
