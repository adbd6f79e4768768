#pragma once

#include "core/project/KalPrompt.h"

#include <QVector>
#include <functional>

class QSqlQuery;

// Benchmarks run unattended: messages go to stderr and questions get an
// answer at once. `LastButton` is what the data generators expect (they
// never ask anything that matters); `SafeAnswer` is the one Escape gives,
// so a benchmark driving real windows never saves by accident.
class KalBenchPrompt : public KalPrompt
{
public:
    enum Answer { LastButton, SafeAnswer };
    enum Report { Everything, ProblemsOnly };

    explicit KalBenchPrompt(Answer answer, Report report = Everything)
        : m_answer(answer)
        , m_report(report)
    {
    }
    int show(const Message &message) override;
    void notice(const QString &, const QString &, int) override {}

private:
    Answer m_answer;
    Report m_report;
};

namespace KalBench {
// Runs the prepared query; a failure is printed with SQLite's reason.
bool exec(QSqlQuery &query);
// The fastest of `repetitions` runs of `work`, in milliseconds.
double bestOf(int repetitions, const std::function<void()> &work);
double median(QVector<double> values);
// Peak resident memory of this process, -1 where /proc cannot tell.
long peakRssKb();
// Processor time of the finished child processes, user and system.
double childrenCpuMs();
} // namespace KalBench
