// SPDX-License-Identifier: Apache-2.0
// Reads fault scripts and counts what they meet.
#include "host/system/FaultScript.h"

#include "host/system/ProbePoints.h"
#include "host/system/Texts.h"

#include <fmt/format.h>

#include <charconv>

namespace vex::probe {

namespace {

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\n\r");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\n\r") - first + 1);
}

bool MatchesPart(std::string_view pattern, std::string_view text)
{
    if (pattern.ends_with('*')) {
        pattern.remove_suffix(1);
        return text.starts_with(pattern);
    }
    return pattern == text;
}

}  // namespace

NamePattern::NamePattern(std::string_view text)
    : _text(text), _arrow(_text.find(kCastArrow)), _open(_text.ends_with('*'))
{}

bool NamePattern::IsCast() const
{
    return _text.starts_with(kCastPrefix);
}

std::string_view NamePattern::Component() const
{
    if (!IsCast() || _arrow == std::string::npos) {
        return {};
    }
    return std::string_view(_text).substr(kCastPrefix.size(), _arrow - kCastPrefix.size());
}

std::string_view NamePattern::Interface() const
{
    if (!IsCast() || _arrow == std::string::npos) {
        return {};
    }
    return std::string_view(_text).substr(_arrow + kCastArrow.size());
}

bool NamePattern::Matches(std::string_view name) const
{
    if (!IsCast() || _arrow == std::string::npos) {
        return MatchesPart(_text, name);
    }
    const std::size_t arrow = name.find(kCastArrow);
    if (!name.starts_with(kCastPrefix) || arrow == std::string_view::npos) {
        return false;
    }
    return MatchesPart(Component(), name.substr(kCastPrefix.size(), arrow - kCastPrefix.size())) &&
           MatchesPart(Interface(), name.substr(arrow + kCastArrow.size()));
}

bool FaultScript::Parse(std::string_view script, std::string& error)
{
    std::vector<Fault> faults;
    std::size_t start = 0;
    for (unsigned item = 1; start <= script.size(); ++item) {
        const std::size_t end = std::min(script.find(';', start), script.size());
        const std::string_view text = Trimmed(script.substr(start, end - start));
        if (!text.empty()) {
            const auto column = static_cast<std::size_t>(text.data() - script.data()) + 1;
            std::string place =
                fmt::format("fault {} (character {}) {}: ", item, column, text::DoubleQuoted(text));
            if (!ParseItem(text, std::move(place), faults, error)) {
                return false;
            }
        }
        start = end + 1;
    }
    _faults = std::move(faults);
    return true;
}

bool FaultScript::ParseItem(std::string_view item, std::string place, std::vector<Fault>& faults,
                            std::string& error)
{
    const auto refuse = [&](std::string_view reason) {
        error = place + std::string(reason);
        return false;
    };
    const std::size_t equals = item.find('=');
    if (equals == std::string_view::npos) {
        return refuse("there is no '=': write NAME=OUTCOME or NAME#N=OUTCOME");
    }
    std::string_view name = Trimmed(item.substr(0, equals));
    std::uint64_t number = 0;
    if (const std::size_t hash = name.find('#'); hash != std::string_view::npos) {
        const std::string_view digits = name.substr(hash + 1);
        const char* const last = digits.data() + digits.size();
        const auto [end, fault] = std::from_chars(digits.data(), last, number);
        if (fault != std::errc() || end != last || number == 0) {
            return refuse("what follows '#' must be the number of a call: 1, 2, …");
        }
        name = name.substr(0, hash);
    }
    FaultOutcome outcome;
    if (std::string reason; !ParseOutcome(Trimmed(item.substr(equals + 1)), outcome, reason)) {
        return refuse(reason);
    }
    Fault fault{NamePattern(name), number, outcome, std::move(place)};
    if (!Check(fault, error)) {
        return false;
    }
    faults.push_back(std::move(fault));
    return true;
}

bool FaultScript::Check(const Fault& fault, std::string& error)
{
    const NamePattern& pattern = fault.pattern;
    const auto refuse = [&](const std::string& reason) {
        error = fault.place + reason;
        return false;
    };
    if (!pattern.IsOpen() && !pattern.IsCast()) {
        const PointDefinition* const point = FindPoint(pattern.Text());
        if (point == nullptr) {
            return refuse("no operation is named " + text::DoubleQuoted(pattern.Text()) +
                          ": 'hlx probes' lists all names");
        }
        if (!fault.outcome.Fits(*point)) {
            return refuse("the outcome does not fit " + pattern.Text() + ": what fits is " +
                          FittingOutcomes(*point));
        }
        return true;
    }
    if (!pattern.Component().empty() || !pattern.Interface().empty()) {
        const std::string_view interface = pattern.Interface();
        if (pattern.Component().empty() ||
            (!interface.ends_with('*') && !IsInterfaceName(interface))) {
            return refuse("no interface is named " + text::DoubleQuoted(interface) +
                          ", or no component stands before it: write cast:COMPONENT->INTERFACE");
        }
    } else if (pattern.IsCast() && !pattern.IsOpen()) {
        return refuse("a cast is written cast:COMPONENT->INTERFACE, or ends in '*'");
    }
    const bool reachesCasts = pattern.IsCast() || pattern.Matches(kCastPrefix);
    bool known = reachesCasts;
    bool fits = reachesCasts && fault.outcome.Fits(CastPoint());
    for (const PointDefinition& point : pointTable) {
        if (pattern.Matches(point.name)) {
            known = true;
            fits = fits || fault.outcome.Fits(point);
        }
    }
    if (!known) {
        return refuse("no name begins like this: 'hlx probes' lists all names");
    }
    return fits ||
           refuse("the outcome fits no operation of such a name" +
                  std::string(reachesCasts ? ": what fits casts is " + FittingOutcomes(CastPoint())
                                           : ""));
}

bool FaultScript::CheckComponents(std::string& error) const
{
    for (const Fault& fault : _faults) {
        const std::string_view component = fault.pattern.Component();
        if (!component.empty() && !component.ends_with('*') && !IsComponentName(component)) {
            error = fault.place + "no component or late type is named " +
                    text::DoubleQuoted(component) + ": 'hlx probes' lists all names";
            return false;
        }
    }
    return true;
}

const FaultOutcome* FaultScript::Meet(const PointDefinition& point, std::string_view name)
{
    const FaultOutcome* first = nullptr;
    for (Fault& fault : _faults) {
        // A fault with an open name leaves alone the calls that its outcome does not fit.
        if (!fault.pattern.Matches(name) || !fault.outcome.Fits(point)) {
            continue;
        }
        ++fault.met;
        if (first == nullptr && (fault.number == 0 || fault.number == fault.met)) {
            first = &fault.outcome;
        }
    }
    return first;
}

}  // namespace vex::probe
