#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <ostream>
#include <string>

/// Keeps the processor time of each benchmark, which other programs on the machine do not lengthen,
/// and prints, after all of them, what was wanted beside it.
class GoalTable : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;

    /// Prints one line for each goal, and answers whether all of them were met. A benchmark that
    /// did not run leaves its goals out.
    bool print(std::ostream &out) const;

private:
    [[nodiscard]] double microseconds(const std::string &name) const;

    std::map<std::string, double> m_microseconds; ///< median of the repetitions, by name
};
