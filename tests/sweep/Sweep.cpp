// SPDX-License-Identifier: Apache-2.0
#include "sweep/Sweep.h"

#include "sweep/Run.h"
#include "sweep/RunNote.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <tuple>

// Present in programs built with the leak sanitizer.
extern "C" void __lsan_disable() __attribute__((weak));
extern "C" void __lsan_enable() __attribute__((weak));

namespace hlxtest::sweep {

namespace {

constexpr std::size_t kRunsOfASample = 120;
constexpr int kFailuresOfARow = 10;

bool IsFull()
{
    const char* const sweep = std::getenv("HLX_SWEEP");
    return sweep != nullptr && std::string_view(sweep) == "full";
}

/// Every way to break every call, ordered by way, so that a sample has something of each.
std::vector<Breakage> AllBreakages(const std::vector<vex::probe::Call>& calls)
{
    std::vector<Breakage> all;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        for (const std::string& way : vex::probe::WaysToBreak(calls[i].name)) {
            all.push_back({i + 1, way, false});
            all.push_back({i + 1, way, true});
        }
    }
    std::stable_sort(all.begin(), all.end(), [](const Breakage& a, const Breakage& b) {
        return std::tie(a.onwards, a.way) < std::tie(b.onwards, b.way);
    });
    return all;
}

std::vector<Breakage> EvenSample(const std::vector<Breakage>& all)
{
    if (all.size() <= kRunsOfASample) {
        return all;
    }
    std::vector<Breakage> sample;
    for (std::size_t i = 0; i < kRunsOfASample; ++i) {
        sample.push_back(all[i * all.size() / kRunsOfASample]);
    }
    return sample;
}

bool IsKept(const Breakage& breakage)
{
    return breakage.way.ends_with(",keep");
}

/// Whether a call that was told to have failed gave a counted reference to an object of that type.
bool GaveThoughItFailed(const vex::probe::Call& call, const std::string& type)
{
    return call.broken &&
           (call.name.starts_with("cast:" + type + "->") ? call.result.ends_with(" pointer")
                                                         : call.result.ends_with(" " + type));
}

std::int64_t GivenOfType(const RunResult& run, const std::string& type)
{
    return std::count_if(run.calls.begin(), run.calls.end(), [&](const vex::probe::Call& call) {
        return GaveThoughItFailed(call, type);
    });
}

/// A cell that is held keeps its body, the body the part's document and its file.
std::int64_t GivenCells(const RunResult& run)
{
    std::int64_t cells = 0;
    for (const char* const type :
         {"VEXVolumeCell", "VEXFaceCell", "VEXEdgeCell", "VEXVertexCell"}) {
        cells += GivenOfType(run, type);
    }
    return cells;
}

/// What a run may leave held beyond an unbroken one.
std::int64_t GivenByFailures(const RunResult& run, const std::string& type)
{
    const bool isKeptByCells = type == "VEXBody" || type == "VEXPartDocument";
    return GivenOfType(run, type) + (isKeptByCells ? GivenCells(run) : 0);
}

void ExpectNothingLeft(const RunResult& run, const RunResult& unbroken, bool kept)
{
    EXPECT_EQ(run.leftOpen, kept && GivenCells(run) > 0 ? 1 : 0)
        << "file descriptors are left open";
    for (const auto& [type, count] : run.held) {
        const auto found = unbroken.held.find(type);
        const std::int64_t usual = found == unbroken.held.end() ? 0 : found->second;
        EXPECT_LE(count, usual + (kept ? GivenByFailures(run, type) : 0)) << type << " is held";
    }
}

void ExpectAsBefore(const RunResult& run, const RunResult& first)
{
    EXPECT_EQ(run.result, S_OK);
    EXPECT_EQ(run.out, first.out);
    EXPECT_EQ(run.err, first.err);
    EXPECT_EQ(run.calls.size(), first.calls.size());
    EXPECT_EQ(run.files.size(), first.files.size());
    for (const auto& [path, bytes] : first.files) {
        const auto found = run.files.find(path);
        EXPECT_TRUE(found != run.files.end() && found->second == bytes) << path << " differs";
    }
}

void RunWithBreakage(const Operation& operation, const Breakage& breakage,
                     const RunResult& unbroken)
{
    // A failure that leaves a counted reference behind is a leak, but the platform's.
    const bool kept = IsKept(breakage);
    if (kept && __lsan_disable != nullptr) {
        __lsan_disable();
    }
    const RunResult run = RunOnce(operation, breakage);
    if (kept && __lsan_enable != nullptr) {
        __lsan_enable();
    }
    const bool reached = run.calls.size() >= breakage.call && run.calls[breakage.call - 1].broken;
    EXPECT_TRUE(reached) << "the calls before the broken one were others than before";
    ExpectNothingLeft(run, unbroken, kept);
}

int FailuresSoFar()
{
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

TEST_P(Sweep, BreakingAnyPlatformCallLeavesNothingBehind)
{
    const Operation& operation = GetParam();
    // The first run loads component libraries; what they keep is no leak.
    const RunResult first = RunOnce(operation, {});
    ASSERT_FALSE(first.calls.empty()) << "an operation without platform calls has no row";
    const RunResult unbroken = RunOnce(operation, {});
    ExpectAsBefore(first, first);
    ExpectAsBefore(unbroken, first);
    EXPECT_EQ(unbroken.leftOpen, 0);

    const std::vector<Breakage> all = AllBreakages(unbroken.calls);
    const std::vector<Breakage> taken = IsFull() ? all : EvenSample(all);
    fmt::print("{}: {} platform calls, {} of {} broken runs\n", operation.name,
               unbroken.calls.size(), taken.size(), all.size());
    std::fflush(stdout);
    for (const Breakage& breakage : taken) {
        const std::string what =
            fmt::format("{}: call {} of {}, {}, {} {}", operation.name, breakage.call,
                        unbroken.calls.size(), unbroken.calls[breakage.call - 1].name,
                        breakage.onwards ? "from then on" : "once", breakage.way);
        SCOPED_TRACE(what);
        const RunNote note(what);
        RunWithBreakage(operation, breakage, unbroken);
        ExpectAsBefore(RunOnce(operation, {}), first);
        if (FailuresSoFar() > kFailuresOfARow) {
            FAIL() << "the other runs of this row are left out";
        }
    }
}

}  // namespace

}  // namespace hlxtest::sweep
