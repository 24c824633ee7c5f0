// SPDX-License-Identifier: Apache-2.0
// One observed call.
#include "host/system/ProbePoints.h"
#include "host/system/ProbeState.h"

#include <chrono>

namespace vex::probe {

namespace {

std::int64_t Now()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

}  // namespace

Observation::Observation(std::size_t point)
{
    Start(pointTable[point], pointTable[point].name, {}, {});
}

Observation::Observation(std::string_view component, std::string_view interface)
{
    Start(CastPoint(), kCastPrefix, component, interface);
}

void Observation::Start(const PointDefinition& point, std::string_view prefix,
                        std::string_view component, std::string_view interface)
{
    ProbeState& state = ProbeState::Instance();
    _outermost = ++state.depth == 1;
    if (!_outermost) {
        return;
    }
    _point = &point;
    _wantsText = state.WantsText();
    Call& call = state.current;
    call = {};
    call.name = prefix;
    if (&point == &CastPoint()) {
        call.name.append(component).append(kCastArrow).append(interface);
    }
    if (state.componentsUnchecked) {
        state.CheckComponents();
    }
    if (const std::optional<FaultOutcome> outcome = state.MeetFault(point, call.name)) {
        call.broken = true;
        _runsBody = outcome->keep;
        _givesEmptyList = outcome->kind == FaultOutcome::Kind::Empty;
        _replaces = outcome->kind == FaultOutcome::Kind::Code;
        _replacement = outcome->value;
    }
}

Observation::~Observation()
{
    --ProbeState::Instance().depth;
}

void Observation::Argument(std::string text)
{
    ProbeState::Instance().current.arguments.push_back(std::move(text));
}

void Observation::StartClock()
{
    _startTime = Now();
}

void Observation::StopClock()
{
    ProbeState::Instance().current.nanoseconds = Now() - _startTime;
}

std::string Observation::TextOfNumericAnswer(std::int64_t answer) const
{
    return _point->result == ResultKind::Result ? TextOfResult(static_cast<HRESULT>(answer))
                                                : TextOfNumber(answer);
}

void Observation::Finish(std::string result)
{
    ProbeState& state = ProbeState::Instance();
    Call& call = state.current;
    call.result = std::move(result);
    if (call.result.starts_with(' ')) {
        call.result.erase(0, 1);
    }
    if (state.trace) {
        state.trace->Write(call, _startTime);
    }
    if (state.counts) {
        state.counts->Count(call.name);
    }
    if (state.recording) {
        state.calls.push_back(std::move(call));
    }
}

}  // namespace vex::probe
