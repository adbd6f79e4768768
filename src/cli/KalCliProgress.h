#pragma once

#include "core/project/KalProgress.h"

#include <QString>

// Progress of pellwick-cli: one line on stderr per step, so a script's log
// shows how far a long command got.
class KalCliProgress : public KalProgress
{
public:
    void begin(const QString &text) override;
    void setProgress(qint64 done, qint64 total) override;
    void end() override;

private:
    QString m_text;
    qint64 m_last = -1;
};
