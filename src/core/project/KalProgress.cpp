#include "KalProgress.h"

#include <memory>

namespace {
class SilentProgress : public KalProgress
{
public:
    void begin(const QString &) override {}
    void setProgress(qint64, qint64) override {}
    void end() override {}
};

std::unique_ptr<KalProgress> &current()
{
    static std::unique_ptr<KalProgress> progress;
    return progress;
}
int g_depth = 0;
} // namespace

KalProgress::~KalProgress() = default;

KalProgress *KalProgress::instance()
{
    if (!current())
        current().reset(new SilentProgress);
    return current().get();
}

void KalProgress::install(KalProgress *progress)
{
    current().reset(progress);
}

KalBusyScope::KalBusyScope(const QString &text)
{
    // Nested scopes share the outermost indicator.
    if (g_depth++ == 0)
        KalProgress::instance()->begin(text);
}

KalBusyScope::~KalBusyScope()
{
    if (--g_depth == 0)
        KalProgress::instance()->end();
}

void KalBusyScope::setProgress(qint64 done, qint64 total)
{
    KalProgress::instance()->setProgress(done, total);
}
