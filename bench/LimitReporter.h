// SPDX-License-Identifier: Apache-2.0
// Shows each measure beside its limit: as it comes, and at the end as a table for
// docs/performance.md.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace bench {

class LimitReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Whether there was a measure, none failed and none exceeded its limit.
    bool AllKept() const { return _measures > 0 && _exceeded == 0; }

    /// All measures as a Markdown table.
    const std::string& Table() const { return _table; }

private:
    int _measures = 0;
    int _exceeded = 0;
    std::string _table;
};

}  // namespace bench
