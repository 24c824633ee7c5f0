// SPDX-License-Identifier: Apache-2.0
// One run of an operation, with the platform whole or broken at one place, and what it leaves.
#pragma once

#include "host/system/Probes.h"
#include "sweep/Operation.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace hlxtest::sweep {

/// How the platform is broken: the call of that number, and those after it when `onwards`.
struct Breakage
{
    std::uint64_t call;
    std::string way;
    bool onwards;
};

struct RunResult
{
    long result = 0;
    std::string out;
    std::string err;
    std::map<std::string, std::string> files;  ///< bytes by path, from the run's folder on
    std::vector<vex::probe::Call> calls;       ///< those of the operation
    std::map<std::string, std::int64_t> held;  ///< still held when everything was given back
    int leftOpen = 0;                          ///< more file descriptors open than before
};

/// Prepares, runs and cleans up; the test fails when something throws, when a document that is
/// still open cannot be saved and opened again, or when the stored document has changed.
RunResult RunOnce(const Operation& operation, const std::optional<Breakage>& breakage);

}  // namespace hlxtest::sweep
