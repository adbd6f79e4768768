#include "KalCliProgress.h"

#include <cstdio>

void KalCliProgress::begin(const QString &text)
{
    m_text = text;
    m_last = -1;
}

void KalCliProgress::setProgress(qint64 done, qint64 total)
{
    if (total <= 0 || done == m_last)
        return;
    m_last = done;
    std::fprintf(stderr, "%s %lld/%lld\n", m_text.toLocal8Bit().constData(), static_cast<long long>(done),
                 static_cast<long long>(total));
    std::fflush(stderr);
}

void KalCliProgress::end()
{
    m_text.clear();
}
