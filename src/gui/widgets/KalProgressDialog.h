#pragma once

#include "core/project/KalProgress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QProgressDialog;
class QTimer;

// The busy indicator of the GUI: a small modal window that appears when an
// operation takes longer than a moment and keeps the program painted by
// processing pending events whenever progress is reported.
class KalProgressDialog : public QObject, public KalProgress
{
    Q_OBJECT

public:
    explicit KalProgressDialog(QObject *parent = nullptr);
    ~KalProgressDialog() override;

    void begin(const QString &text) override;
    void setProgress(qint64 done, qint64 total) override;
    void end() override;
    void yieldToMessage() override;
    void beginCancelable(const QString &text) override;
    bool wasCanceled() const override;
    // The operation's name (its begin text) moves to the window title; the
    // phase shows below it.
    void setText(const QString &text) override;

    // Delay before the window shows, in milliseconds.
    static int showDelay() { return 300; }
    bool isShowing() const;
    bool isBusy() const { return m_depth > 0; }

private:
    void showWindow();
    void keepPainting();

    int m_depth = 0;
    // A message was shown during the operation: no window, no wait cursor.
    bool m_yielded = false;
    bool m_cancelable = false;
    bool m_canceled = false;
    QString m_text;
    QElapsedTimer m_started;
    QElapsedTimer m_lastPaint;
    QPointer<QProgressDialog> m_window;
    QTimer *m_showTimer;
};
