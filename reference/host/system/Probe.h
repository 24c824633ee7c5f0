// SPDX-License-Identifier: Apache-2.0
// Probe points: every operation of the reference host that a program can call wraps its body in
// one. Off, a probe costs one predictable branch. On, it records, counts and breaks the call. Only
// calls that come from outside the host are observed: what the host calls within a probed body is
// its own affair.
//
//   HRESULT SetAlias(const VEXUnicodeString& name) override
//   {
//       return Probe<"VEXIAlias::SetAlias">([&] { return Self().SetAlias(name); }, In(name));
//   }
//
// The name must stand in the table that the build generates from sdk/ (generated/ProbeTable.inc);
// another one does not compile. What a program or a test sees and sets is in Probes.h.
#pragma once

#include "VEXTypes.h"
#include "host/system/ProbeValues.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace vex::probe {

/// What an operation answers; it decides which faults fit.
enum class ResultKind : std::uint8_t { Result, Object, Text, List, Number, Nothing };

/// One row of the generated table: name, kind of its result, what it gives through its arguments.
struct PointDefinition
{
    std::string_view name;
    ResultKind result;
    bool givesObject;           ///< a pointer, handle or text argument is an output: `null` fits
    bool givesList;             ///< a list argument is an output: `empty` fits
    std::int64_t smallest = 0;  ///< what a Number can be
    std::int64_t largest = 0;
};

inline constexpr PointDefinition pointTable[] = {
#include "ProbeTable.inc"
};

inline constexpr std::size_t pointCount = std::size(pointTable);

template <std::size_t Size>
struct PointName
{
    char text[Size]{};
    consteval PointName(const char (&literal)[Size]) { std::copy_n(literal, Size, text); }
    constexpr std::string_view View() const { return {text, Size - 1}; }
};

constexpr std::size_t PointIndex(std::string_view name)
{
    for (std::size_t i = 0; i < pointCount; ++i) {
        if (pointTable[i].name == name) {
            return i;
        }
    }
    throw "no operation of that name stands in sdk/";
}

/// Off: nothing is observed. A plain flag: the platform has one thread.
extern VEX_EXPORT bool active;

/// One observed call, from its start to its end. The decision comes from the faults in force.
class VEX_EXPORT Observation
{
public:
    explicit Observation(std::size_t point);
    /// A cast of the component named `component` to the interface `interface`.
    Observation(std::string_view component, std::string_view interface);
    ~Observation();
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;

    /// False for a call that comes from within the host: run the body, nothing else.
    bool IsOutermost() const { return _outermost; }
    bool RunsBody() const { return _runsBody; }
    bool ReplacesResult() const { return _replaces; }
    std::int64_t Replacement() const { return _replacement; }
    /// An operation that answers a new list gives an empty one instead of none.
    bool GivesEmptyList() const { return _givesEmptyList; }

    /// Whether somebody reads the texts: else no argument is looked at.
    bool WantsText() const { return _wantsText; }
    void Argument(std::string text);
    void StartClock();
    void StopClock();
    /// A number as text: a result code where the operation answers one.
    std::string TextOfNumericAnswer(std::int64_t answer) const;
    void Finish(std::string result);

private:
    void Start(const PointDefinition& point, std::string_view prefix, std::string_view component,
               std::string_view interface);
    const PointDefinition* _point = nullptr;
    bool _outermost = false;
    bool _runsBody = true;
    bool _replaces = false;
    bool _givesEmptyList = false;
    bool _wantsText = false;
    std::int64_t _replacement = 0;
    std::int64_t _startTime = 0;
};

/// The observed form of a call; see ProbeValues.h for In, Out and the texts of values.
template <class Body, class... Arguments>
auto Observe(Observation& observation, Body&& body, Arguments&&... arguments)
{
    using Answer = decltype(body());
    if (!observation.IsOutermost()) {
        return body();
    }
    const bool wantsText = observation.WantsText();
    if (wantsText) {
        (observation.Argument(arguments.BeforeCall()), ...);
    }
    std::string outputs;
    const auto addOutputs = [&] { ((outputs += arguments.AfterCall()), ...); };
    observation.StartClock();
    if constexpr (std::is_void_v<Answer>) {
        body();
        observation.StopClock();
        if (wantsText) {
            addOutputs();
        }
        observation.Finish(std::move(outputs));
    } else {
        Answer answer{};
        if (observation.RunsBody()) {
            answer = body();
        } else {
            (arguments.Clear(), ...);
            if constexpr (IsListPointer<Answer>) {
                if (observation.GivesEmptyList()) {
                    answer = new std::remove_pointer_t<Answer>();
                }
            }
        }
        observation.StopClock();
        if constexpr (std::is_arithmetic_v<Answer>) {
            if (observation.ReplacesResult()) {
                answer = static_cast<Answer>(observation.Replacement());
            }
        }
        if (wantsText) {
            if constexpr (std::is_integral_v<Answer>) {
                outputs = observation.TextOfNumericAnswer(static_cast<std::int64_t>(answer));
            } else {
                outputs = TextOf(answer);
            }
            addOutputs();
        }
        observation.Finish(std::move(outputs));
        return answer;
    }
}

}  // namespace vex::probe

namespace vex {

using probe::In;
using probe::Out;
using probe::OutAt;
using probe::OutText;

template <probe::PointName Name, class Body, class... Arguments>
auto Probe(Body&& body, Arguments&&... arguments)
{
    constexpr std::size_t point = probe::PointIndex(Name.View());
    if (!probe::active) [[likely]] {
        return body();
    }
    probe::Observation observation(point);
    return probe::Observe(observation, body, arguments...);
}

}  // namespace vex
