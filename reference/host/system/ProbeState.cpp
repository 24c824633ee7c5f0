// SPDX-License-Identifier: Apache-2.0
// The state of the probes, and what tests do with it.
#include "host/system/ProbeState.h"

#include "host/system/ProbePoints.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace vex::probe {

bool active = false;

ProbeState& ProbeState::Instance()
{
    static ProbeState& state = *new ProbeState;
    return state;
}

void ProbeState::UpdateActive() const
{
    active = WantsText() || counts != nullptr || HasFaults();
}

std::optional<FaultOutcome> ProbeState::MeetFault(const PointDefinition& point,
                                                  std::string_view name)
{
    if (positionFault) {
        PositionFault& fault = *positionFault;
        const std::uint64_t position = ++fault.seen;
        if (position < fault.first || (position > fault.first && !fault.onwards)) {
            return std::nullopt;
        }
        if (fault.outcome.Fits(point)) {
            return fault.outcome;
        }
        const std::vector<std::string_view> ways = WaysToBreak(point);
        FaultOutcome outcome;
        std::string error;
        if (ways.empty() || !ParseOutcome(ways.front(), outcome, error)) {
            return std::nullopt;
        }
        return outcome;
    }
    const FaultOutcome* const outcome = faults.Meet(point, name);
    return outcome == nullptr ? std::nullopt : std::optional(*outcome);
}

void ProbeState::CheckComponents()
{
    componentsUnchecked = false;
    if (std::string error; !faults.CheckComponents(error)) {
        std::fprintf(stderr, "VEX_FAULTS: %s\n", error.c_str());
        std::_Exit(2);
    }
}

bool SetFaults(std::string_view script, std::string& error)
{
    FaultScript faults;
    if (!faults.Parse(script, error) || !faults.CheckComponents(error)) {
        return false;
    }
    ClearFaults();
    ProbeState& state = ProbeState::Instance();
    state.faults = std::move(faults);
    state.UpdateActive();
    return true;
}

bool SetFaultAt(std::uint64_t first, bool onwards, std::string_view outcome, std::string& error)
{
    ProbeState::PositionFault fault{first, onwards, {}};
    if (first == 0) {
        error = "calls are counted from 1";
        return false;
    }
    if (!ParseOutcome(outcome, fault.outcome, error)) {
        return false;
    }
    ClearFaults();
    ProbeState& state = ProbeState::Instance();
    state.positionFault = fault;
    state.UpdateActive();
    return true;
}

void ClearFaults()
{
    ProbeState& state = ProbeState::Instance();
    state.faults = {};
    state.componentsUnchecked = false;
    state.positionFault.reset();
    state.UpdateActive();
}

std::vector<std::string> WaysToBreak(std::string_view name)
{
    const PointDefinition* const point =
        name.starts_with(kCastPrefix) ? &CastPoint() : FindPoint(name);
    if (point == nullptr) {
        return {};
    }
    const std::vector<std::string_view> ways = WaysToBreak(*point);
    return {ways.begin(), ways.end()};
}

void StartRecording()
{
    ProbeState& state = ProbeState::Instance();
    state.calls.clear();
    state.held.Clear();
    state.recording = true;
    state.UpdateActive();
}

std::vector<Call> StopRecording()
{
    ProbeState& state = ProbeState::Instance();
    state.recording = false;
    state.UpdateActive();
    return std::exchange(state.calls, {});
}

std::map<std::string, std::int64_t> HeldObjects()
{
    return ProbeState::Instance().held.ByType();
}

void NoteHeld(const VEXBaseUnknown* object, const char* type)
{
    ProbeState& state = ProbeState::Instance();
    if (state.recording) {
        state.held.Add(object, type);
    }
    if (state.counts) {
        state.counts->Held().Add(object, type);
    }
}

void NoteLetGo(const VEXBaseUnknown* object)
{
    ProbeState& state = ProbeState::Instance();
    if (state.recording) {
        state.held.Remove(object);
    }
    if (state.counts) {
        state.counts->Held().Remove(object);
    }
}

}  // namespace vex::probe
