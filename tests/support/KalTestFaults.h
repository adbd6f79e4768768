#pragma once

#include "core/project/KalEnvironment.h"
#include "core/project/KalProgress.h"

#include <climits>

// A user who presses Cancel once `cancelAfter` steps were reported: -1 cancels
// at once, INT_MAX never.
class KalCancelingProgress : public KalProgress
{
public:
    explicit KalCancelingProgress(int after = -1)
        : cancelAfter(after)
    {
    }
    int cancelAfter;
    int steps = 0;
    bool cancelable = false; // the operation offered a Cancel button

    void begin(const QString &) override {}
    void beginCancelable(const QString &) override
    {
        cancelable = true;
        steps = 0;
    }
    void setProgress(qint64, qint64) override { ++steps; }
    void end() override {}
    bool wasCanceled() const override { return steps > cancelAfter; }
};

// Every volume has 4 KiB left, as on a full disk; false gives the real lookup back.
inline void kalFillVolumes(bool full = true)
{
    if (!full) {
        KalEnvironment::setVolumeInfoFunction({});
        return;
    }
    KalEnvironment::setVolumeInfoFunction([](const QString &path) {
        KalEnvironment::VolumeInfo info;
        info.valid = info.ready = true;
        info.bytesAvailable = 4096;
        info.name = path;
        return info;
    });
}
