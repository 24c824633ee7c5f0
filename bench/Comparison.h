// SPDX-License-Identifier: Apache-2.0
// One measure: work of ours and of its baselines, timed by turns in one process, and what came of
// it. The medians are compared; how far single rounds strayed is told by the quartiles of their
// ratios.
#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <chrono>
#include <utility>
#include <vector>

namespace bench {

template <class Work>
double SecondsOf(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    std::forward<Work>(work)();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// As SecondsOf, on a heap as a new process has it: what was freed before is given back first, so
/// that neither side pays for, or lives on, what the other one left.
template <class Work>
double SecondsOnFreshHeap(Work&& work)
{
    ::malloc_trim(0);
    return SecondsOf(std::forward<Work>(work));
}

/// The middle of the values, or the value that `part` of them are below. 0 for none.
double Quantile(std::vector<double> values, double part = 0.5);

/// The names under which a measure's figures stand in its counters; LimitReporter.h shows them.
namespace figure {
inline constexpr const char* ours = "ours";          ///< seconds, or bytes
inline constexpr const char* baseline = "baseline";  ///< seconds; absent without a baseline
inline constexpr const char* value = "value";        ///< what the limit is for
inline constexpr const char* low = "low";            ///< lower quartile of the rounds' values
inline constexpr const char* high = "high";
inline constexpr const char* limit = "limit";  ///< absent where there is none
}  // namespace figure

/// Each iteration of the benchmark is one round, of ours and of each baseline. The benchmark uses
/// manual time.
class Comparison
{
public:
    explicit Comparison(benchmark::State& state) : _state(state) {}

    void Ours(double seconds);
    void Baseline(std::size_t which, double seconds);

    /// Hands the figures to the benchmark. Of several baselines the one with the smallest median
    /// counts. The limit is for ours divided by the baseline; 0: none.
    void Report(double limit);

private:
    benchmark::State& _state;
    std::vector<double> _ours;
    std::vector<std::vector<double>> _baselines;
};

/// Hands a figure of its own to the benchmark, in bytes.
void ReportBytes(benchmark::State& state, double bytes, double limit);

/// Ends the benchmarks with a message.
[[noreturn]] void Fail(const char* what);

/// Ends the benchmarks when what they stand on fails.
inline void Require(bool condition, const char* what)
{
    if (!condition) {
        Fail(what);
    }
}

}  // namespace bench
