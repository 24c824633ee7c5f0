// SPDX-License-Identifier: Apache-2.0
// Outcomes of faults.
#include "host/system/FaultOutcome.h"

#include "host/system/ProbePoints.h"
#include "host/system/ResultNames.h"

#include <fmt/format.h>

#include <charconv>
#include <limits>

namespace vex::probe {

namespace {

/// A 32-bit number, in decimal digits or as 0x and the digits of its bits.
bool ParseNumber(std::string_view text, std::int64_t& number)
{
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    const char* const first = text.data() + (hexadecimal ? 2 : 0);
    const char* const last = text.data() + text.size();
    if (hexadecimal) {
        std::uint32_t bits = 0;
        const auto [end, fault] = std::from_chars(first, last, bits, 16);
        number = static_cast<std::int32_t>(bits);
        return fault == std::errc() && end == last;
    }
    std::int32_t value = 0;
    const auto [end, fault] = std::from_chars(first, last, value);
    number = value;
    return fault == std::errc() && end == last;
}

}  // namespace

bool FaultOutcome::Fits(const PointDefinition& point) const
{
    switch (point.result) {
        case ResultKind::Result:
            return kind == Kind::Code || (kind == Kind::Null ? point.givesObject : point.givesList);
        case ResultKind::Object:
            return kind == Kind::Null;
        case ResultKind::Text:
            return kind == Kind::Empty;
        case ResultKind::List:
            return kind != Kind::Code;
        case ResultKind::Number:
            return kind == Kind::Code && !byName && value >= point.smallest &&
                   value <= point.largest;
        case ResultKind::Nothing:
            return false;
    }
    return false;
}

bool ParseOutcome(std::string_view text, FaultOutcome& outcome, std::string& error)
{
    FaultOutcome parsed;
    std::string_view code = text;
    if (code.ends_with(",keep")) {
        parsed.keep = true;
        code.remove_suffix(5);
    }
    if (code == "null" || code == "empty") {
        parsed.kind = code == "null" ? FaultOutcome::Kind::Null : FaultOutcome::Kind::Empty;
        if (parsed.keep) {
            error = fmt::format("only a code can have ',keep', not {}", code);
            return false;
        }
    } else if (const auto result = ResultOfName(code)) {
        parsed.byName = true;
        parsed.value = *result;
    } else if (!ParseNumber(code, parsed.value)) {
        error = fmt::format(
            "{} is no outcome: give the name of a result code (E_FAIL), a number of 32 bits (-1, "
            "0x80004005), either with ',keep', or null or empty",
            TextOf(std::string(text).c_str()));
        return false;
    }
    outcome = parsed;
    return true;
}

std::vector<std::string_view> WaysToBreak(const PointDefinition& point)
{
    if (&point == &CastPoint()) {
        return {"E_NOINTERFACE", "null"};
    }
    std::vector<std::string_view> ways;
    switch (point.result) {
        case ResultKind::Result:
            ways = {"E_FAIL", "E_FAIL,keep"};
            if (point.givesObject) {
                ways.emplace_back("null");
            }
            if (point.givesList) {
                ways.emplace_back("empty");
            }
            break;
        case ResultKind::Object:
            ways = {"null"};
            break;
        case ResultKind::Text:
            ways = {"empty"};
            break;
        case ResultKind::List:
            ways = {"null", "empty"};
            break;
        case ResultKind::Number:
            ways = {"0"};
            if (point.smallest < 0) {
                ways.emplace_back("-1");
            }
            break;
        case ResultKind::Nothing:
            break;
    }
    return ways;
}

std::string FittingOutcomes(const PointDefinition& point)
{
    switch (point.result) {
        case ResultKind::Result:
            return fmt::format("a code or number, either with ',keep'{}{}",
                               point.givesObject ? ", null" : "", point.givesList ? ", empty" : "");
        case ResultKind::Object:
            return "null";
        case ResultKind::Text:
            return "empty";
        case ResultKind::List:
            return "null or empty";
        case ResultKind::Number:
            return fmt::format("a number from {} to {}", point.smallest, point.largest);
        case ResultKind::Nothing:
            break;
    }
    return "nothing, as the operation answers nothing";
}

}  // namespace vex::probe
