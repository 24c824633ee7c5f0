// SPDX-License-Identifier: Apache-2.0
// Medians, quartiles and ratios.
#include "Comparison.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace bench {

double Quantile(std::vector<double> values, double part)
{
    if (values.empty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const double place = part * static_cast<double>(values.size() - 1);
    const auto below = static_cast<std::size_t>(std::floor(place));
    const auto above = std::min(below + 1, values.size() - 1);
    return std::lerp(values[below], values[above], place - std::floor(place));
}

void Comparison::Ours(double seconds)
{
    _ours.push_back(seconds);
    _state.SetIterationTime(seconds);
}

void Comparison::Baseline(std::size_t which, double seconds)
{
    if (which >= _baselines.size()) {
        _baselines.resize(which + 1);
    }
    _baselines[which].push_back(seconds);
}

void Comparison::Report(double limit)
{
    const auto fastest =
        std::ranges::min_element(_baselines, {}, [](const auto& b) { return Quantile(b); });
    Require(fastest != _baselines.end() && fastest->size() == _ours.size() && !_ours.empty(),
            "a round without ours or a baseline");
    std::vector<double> ratios;
    for (std::size_t round = 0; round < _ours.size(); ++round) {
        ratios.push_back(_ours[round] / (*fastest)[round]);
    }
    auto& counters = _state.counters;
    counters[figure::ours] = Quantile(_ours);
    counters[figure::baseline] = Quantile(*fastest);
    counters[figure::value] = Quantile(_ours) / Quantile(*fastest);
    counters[figure::low] = Quantile(ratios, 0.25);
    counters[figure::high] = Quantile(ratios, 0.75);
    if (limit > 0.0) {
        counters[figure::limit] = limit;
    }
}

void ReportBytes(benchmark::State& state, double bytes, double limit)
{
    state.counters[figure::ours] = bytes;
    state.counters[figure::value] = bytes;
    state.counters[figure::limit] = limit;
}

void Fail(const char* what)
{
    std::fprintf(stderr, "benchmarks: %s\n", what);
    std::exit(2);
}

}  // namespace bench
