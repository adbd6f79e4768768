#include "KalBenchSupport.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <algorithm>
#include <cstdio>
#include <limits>
#include <sys/resource.h>

int KalBenchPrompt::show(const Message &message)
{
    if (m_report == Everything || message.icon == Critical || message.icon == Warning)
        std::fprintf(stderr, "%s: %s\n", qPrintable(message.title), qPrintable(message.text));
    if (message.buttons.isEmpty())
        return 0;
    return m_answer == LastButton ? message.buttons.size() - 1 : escapeIndex(message);
}

namespace KalBench {

bool exec(QSqlQuery &query)
{
    if (query.exec())
        return true;
    std::fprintf(stderr, "SQL: %s\n", qPrintable(query.lastError().text()));
    return false;
}

double bestOf(int repetitions, const std::function<void()> &work)
{
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < repetitions; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

long peakRssKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    }
    return -1;
}

double childrenCpuMs()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3 +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
}

} // namespace KalBench
