// SPDX-License-Identifier: Apache-2.0
// What probes share: the faults in force, the recording, the files of the environment. One for the
// process, never destroyed.
#pragma once

#include "host/system/CallCounts.h"
#include "host/system/FaultScript.h"
#include "host/system/TraceFile.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vex::probe {

struct ProbeState
{
    /// A fault by position among all calls.
    struct PositionFault
    {
        std::uint64_t first;
        bool onwards;
        FaultOutcome outcome;
        std::uint64_t seen = 0;
    };

    FaultScript faults;
    bool componentsUnchecked =
        false;  ///< the faults came before component libraries could be loaded
    std::optional<PositionFault> positionFault;

    bool recording = false;
    std::vector<Call> calls;
    HeldObjectAccount held;

    std::unique_ptr<TraceFile> trace;
    std::unique_ptr<CallCounts> counts;

    int depth = 0;  ///< observed calls that are under way: only the outermost one counts
    Call current;   ///< that one

    static ProbeState& Instance();

    /// Sets `active`: to be called after each change.
    void UpdateActive() const;

    bool WantsText() const { return recording || trace != nullptr; }
    bool HasFaults() const { return !faults.IsEmpty() || positionFault.has_value(); }

    /// Counts the outermost call that starts now. Answers the outcome it meets, if any.
    std::optional<FaultOutcome> MeetFault(const PointDefinition& point, std::string_view name);

    /// Ends the process when a fault names a component that there is not.
    void CheckComponents();
};

}  // namespace vex::probe
