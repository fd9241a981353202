#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <ostream>
#include <string>

/// Keeps the time that each benchmark takes on the clock, the median of its repetitions, and
/// prints, after all of them, what was wanted beside it, for desktop_bench.py to read.
class GoalTable : public benchmark::ConsoleReporter
{
public:
    GoalTable() : ConsoleReporter(OO_Tabular) { }

    void ReportRuns(const std::vector<Run> &runs) override;

    /// Prints one line for each goal: what, direction (">=" or "<="), bound, measured and unit,
    /// with tabs between them. What did not run measured "nan".
    void print(std::ostream &out) const;

private:
    [[nodiscard]] double microseconds(const std::string &name) const;

    std::map<std::string, double> m_microseconds; ///< median of the repetitions, by name
};
