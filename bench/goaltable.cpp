#include "bench/goaltable.h"

#include <limits>

namespace
{

/// A goal for the time of one benchmark, or for how many times it takes that of another.
struct Goal {
    const char *what;
    const char *measured;
    const char *yardstick; ///< null: microseconds
    double bound;
    bool atLeast = false;
};

constexpr Goal kGoals[] = {
    { "move late in a 5,000-point stroke / early", "moveLate", "moveEarly", 2.0 },
    { "full repaint / one move, 100 marks", "fullRepaint100", "moveOn100", 200.0, true },
    { "move among 1,000 marks / on an empty board", "moveOn1000", "moveOnEmpty", 1.2 },
    { "select at a point, 1,000 strokes", "selectAt1000", nullptr, 1000.0 },
    { "eraser's first step, 1,000 strokes", "eraserFirstStep1000", nullptr, 1000.0 },
    { "eraser step, 1,000 strokes", "eraserStep1000", nullptr, 1000.0 },
    { "undo of one mark among 1,000", "undo1000", nullptr, 5000.0 },
    { "redo of one mark among 1,000", "redo1000", nullptr, 5000.0 },
    { "delete of one mark among 1,000", "delete1000", nullptr, 5000.0 },
    { "breathing tick, 1,000 marks", "breathingTick1000", nullptr, 2000.0 },
    { "fade tick, 1,000 marks", "fadeTick1000", nullptr, 2000.0 },
};

} // namespace

void GoalTable::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        const bool counts = run.run_type == Run::RT_Aggregate ? run.aggregate_name == "median"
                                                              : run.repetitions <= 1;
        if (counts && !run.error_occurred)
            m_microseconds[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
}

double GoalTable::microseconds(const std::string &name) const
{
    const auto found = m_microseconds.find(name);
    return found == m_microseconds.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
}

void GoalTable::print(std::ostream &out) const
{
    for (const Goal &goal : kGoals) {
        const double time = microseconds(goal.measured);
        const double figure = goal.yardstick ? time / microseconds(goal.yardstick) : time;
        const double scale = goal.yardstick ? 1.0 : 1000.0;
        out << goal.what << '\t' << (goal.atLeast ? ">=" : "<=") << '\t' << goal.bound / scale
            << '\t' << figure / scale << '\t' << (goal.yardstick ? "x" : "ms") << '\n';
    }
}
