// SPDX-License-Identifier: Apache-2.0
// VEX_TRACE, VEX_COUNTS and VEX_FAULTS, read when the library is loaded. Nothing runs with settings
// half in force: a wrong one ends the process.
#include "host/system/ProbeState.h"

#include <cstdio>
#include <cstdlib>

namespace vex::probe {

namespace {

[[noreturn]] void Refuse(const char* variable, const std::string& reason)
{
    std::fprintf(stderr, "%s: %s\n", variable, reason.c_str());
    std::_Exit(2);
}

const char* Setting(const char* variable)
{
    const char* const text = std::getenv(variable);
    return text == nullptr || *text == '\0' ? nullptr : text;
}

class ProbeEnvironment
{
public:
    ProbeEnvironment()
    {
        ProbeState& state = ProbeState::Instance();
        std::string error;
        if (const char* const script = Setting("VEX_FAULTS")) {
            if (!state.faults.Parse(script, error)) {
                Refuse("VEX_FAULTS", error);
            }
            state.componentsUnchecked = true;
        }
        if (const char* const path = Setting("VEX_TRACE")) {
            state.trace = TraceFile::Open(path, error);
            if (!state.trace) {
                Refuse("VEX_TRACE", error);
            }
        }
        if (const char* const path = Setting("VEX_COUNTS")) {
            state.counts = CallCounts::Open(path, error);
            if (!state.counts) {
                Refuse("VEX_COUNTS", error);
            }
        }
        state.UpdateActive();
    }

    /// The end of the process, after the destructors of the program that uses the library: files
    /// are completed.
    ~ProbeEnvironment()
    {
        ProbeState& state = ProbeState::Instance();
        state.trace.reset();
        state.counts.reset();
        state.UpdateActive();
    }

    ProbeEnvironment(const ProbeEnvironment&) = delete;
    ProbeEnvironment& operator=(const ProbeEnvironment&) = delete;
};

const ProbeEnvironment environment;

}  // namespace

}  // namespace vex::probe
