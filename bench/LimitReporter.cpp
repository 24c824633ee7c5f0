// SPDX-License-Identifier: Apache-2.0
// Figures as text.
#include "LimitReporter.h"

#include "Comparison.h"

#include <fmt/format.h>

#include <cstdio>
#include <optional>

namespace bench {

namespace {

using Run = benchmark::BenchmarkReporter::Run;

std::optional<double> Find(const Run& run, const char* name)
{
    const auto found = run.counters.find(name);
    return found == run.counters.end() ? std::nullopt : std::optional<double>(found->second.value);
}

std::string TimeText(double seconds)
{
    if (seconds < 1e-6) {
        return fmt::format("{:.2f} ns", seconds * 1e9);
    }
    if (seconds < 1e-3) {
        return fmt::format("{:.1f} µs", seconds * 1e6);
    }
    return fmt::format("{:.2f} ms", seconds * 1e3);
}

/// "OpenDocument/1000000/iterations:5/manual_time": the name and the argument are ours.
std::string NameOf(const Run& run)
{
    const std::string& arguments = run.run_name.args;
    return run.run_name.function_name + (arguments.empty() ? "" : " " + arguments);
}

}  // namespace

bool LimitReporter::ReportContext(const Context&)
{
    _table =
        "| measure | ours | baseline | ours / baseline | quartiles | limit | rounds |\n"
        "|---|---:|---:|---:|---:|---:|---:|\n";
    fmt::print("{:<26}{:>14}{:>14}{:>9}{:>18}{:>8}\n", "measure", "ours", "baseline", "ratio",
               "quartiles", "limit");
    return true;
}

void LimitReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        ++_measures;
        const std::string name = NameOf(run);
        const std::optional<double> value = Find(run, figure::value);
        const std::optional<double> ours = Find(run, figure::ours);
        if (run.error_occurred || !value || !ours) {
            ++_exceeded;
            fmt::print("{:<26}FAILED {}\n", name, run.error_message);
            continue;
        }
        const std::optional<double> baseline = Find(run, figure::baseline);
        const std::optional<double> limit = Find(run, figure::limit);
        const bool exceeded = limit && *value > *limit;
        _exceeded += exceeded ? 1 : 0;
        const std::string oursText =
            baseline ? TimeText(*ours) : fmt::format("{:.1f} bytes", *ours);
        const std::string baselineText = baseline ? TimeText(*baseline) : "";
        const std::string ratio = baseline ? fmt::format("{:.3f}", *value) : "";
        const std::string spread =
            baseline
                ? fmt::format("{:.3f} to {:.3f}", *Find(run, figure::low), *Find(run, figure::high))
                : "";
        const std::string limitText = limit ? fmt::format("{:g}", *limit) : "";
        fmt::print("{:<26}{:>14}{:>14}{:>9}{:>18}{:>8}{}\n", name, oursText, baselineText, ratio,
                   spread, limitText, exceeded ? "  EXCEEDED" : "");
        std::fflush(stdout);
        _table +=
            fmt::format("| {} | {} | {} | {} | {} | {}{} | {} |\n", name, oursText, baselineText,
                        ratio, spread, limitText, exceeded ? " (exceeded)" : "", run.iterations);
    }
}

}  // namespace bench
