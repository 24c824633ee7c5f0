// SPDX-License-Identifier: Apache-2.0
// Faults as text, NAME[#N]=OUTCOME;…, and which of them a call meets. docs/probes.md says what a
// NAME can be.
#pragma once

#include "host/system/FaultOutcome.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vex::probe {

/// Names by their text, the last or (of a cast) each of the two parts open when it ends in '*'.
class VEX_EXPORT NamePattern
{
public:
    explicit NamePattern(std::string_view text);

    bool Matches(std::string_view name) const;
    bool IsCast() const;
    bool IsOpen() const { return _open; }
    const std::string& Text() const { return _text; }
    /// Of a cast written out with its arrow: the two parts, each with its '*'. Else empty.
    std::string_view Component() const;
    std::string_view Interface() const;

private:
    std::string _text;
    std::size_t _arrow;
    bool _open;
};

class VEX_EXPORT FaultScript
{
public:
    /// False with the reason, the item and its place in `error`; the script is then as it was.
    /// Components of casts are not looked up yet: they may come from libraries that are not loaded
    /// yet.
    bool Parse(std::string_view script, std::string& error);

    /// Looks up the components that casts name. False with the reason in `error` for one that there
    /// is not.
    bool CheckComponents(std::string& error) const;

    bool IsEmpty() const { return _faults.empty(); }

    /// Counts the call; the outcome of the first fault that it meets, null when it meets none.
    const FaultOutcome* Meet(const PointDefinition& point, std::string_view name);

private:
    struct Fault
    {
        NamePattern pattern;
        std::uint64_t number;  ///< the call of that number only; 0: every call
        FaultOutcome outcome;
        std::string place;  ///< for messages: which item, where
        std::uint64_t met = 0;
    };
    static bool ParseItem(std::string_view item, std::string place, std::vector<Fault>& faults,
                          std::string& error);
    static bool Check(const Fault& fault, std::string& error);

    std::vector<Fault> _faults;
};

}  // namespace vex::probe
