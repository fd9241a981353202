// Plays long runs of made-up calls on a canvas and checks after every one of them what must be
// true: see Stage. Prints how many calls it played, or the shortest list of calls that shows a
// difference.

#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/random/callgenerator.h"
#include "tests/canvas/random/shrink.h"
#include "tests/canvas/random/stage.h"

#include <QCommandLineParser>
#include <QGuiApplication>

#include <cstdio>
#include <optional>

namespace
{

/// A new canvas after so many calls: old enough for long histories, and quickly shrunk.
constexpr int kCallsPerCanvas = 1500;

using Calls = std::vector<Call>;

struct Difference {
    Calls calls; ///< the last one shows it
    QString problem;
};

std::optional<Difference> replayed(const Calls &calls)
{
    Stage stage;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        const QString problem = stage.play(calls[i]);
        if (!problem.isEmpty())
            return Difference{ { calls.begin(), calls.begin() + std::ptrdiff_t(i) + 1 }, problem };
    }
    return std::nullopt;
}

std::optional<Difference> explored(quint64 seed, int count, bool trace)
{
    CallGenerator generator(seed);
    Stage stage;
    Calls calls;
    for (int i = 0; i < count; ++i) {
        calls.push_back(generator.next(stage));
        if (trace)
            std::fprintf(stderr, "%s\n", qPrintable(calls.back().text));
        const QString problem = stage.play(calls.back());
        if (!problem.isEmpty())
            return Difference{ calls, problem };
    }
    return std::nullopt;
}

void report(const Difference &found, quint64 seed, int played)
{
    std::printf("after %d calls of seed %llu: %s; shrinking %zu calls\n", played,
        static_cast<unsigned long long>(seed), qPrintable(found.problem), found.calls.size());
    std::fflush(stdout);
    const Calls shortest =
        shrunk(found.calls, [](const Calls &calls) { return replayed(calls).has_value(); });
    for (const Call &call : shortest)
        std::printf("  %s%s\n", qPrintable(call.text), call.showsFrame ? "" : "    (no frame)");
    const std::optional<Difference> shown = replayed(shortest);
    std::printf("%s\n%d calls, 1 difference\n",
        qPrintable(shown ? shown->problem : QStringLiteral("gone when played again")), played);
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption seedOption("seed", "Where the calls begin.", "number", "1");
    const QCommandLineOption callsOption("calls", "How many calls to play.", "number", "20000");
    const QCommandLineOption traceOption("trace", "Print every call before it is played.");
    const QCommandLineOption checkOption("check", "Let the canvas check its own repaints as well.");
    parser.addOptions({ seedOption, callsOption, traceOption, checkOption });
    parser.addHelpOption();
    parser.process(application);

    Renderer::checkRepaints(parser.isSet(checkOption));
    // Of the log only the complaints are of interest, and each of them is a difference.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    const LogRecorder log;
    const quint64 seed = parser.value(seedOption).toULongLong();
    const int total = parser.value(callsOption).toInt();
    int played = 0;
    for (quint64 canvas = 0; played < total; ++canvas) {
        const int count = std::min(kCallsPerCanvas, total - played);
        const quint64 canvasSeed = (seed << 32U) + canvas;
        const auto found = explored(canvasSeed, count, parser.isSet(traceOption));
        if (found) {
            report(*found, seed, played + static_cast<int>(found->calls.size()));
            return 1;
        }
        played += count;
    }
    std::printf("%d calls, 0 differences\n", played);
    return 0;
}
