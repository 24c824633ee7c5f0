// SPDX-License-Identifier: Apache-2.0
// Text as VEX_FAULTS: it is refused as a whole, or it breaks the calls that it says, and these
// only.
#include "FuzzProcess.h"
#include "host/system/FaultScript.h"
#include "host/system/Probes.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace {

using hlxfuzz::Require;
using vex::probe::FaultOutcome;
using vex::probe::FaultScript;
using vex::probe::PointDefinition;

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\n\r";
    const std::size_t first = std::min(text.find_first_not_of(kBlanks), text.size());
    text.remove_prefix(first);
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

/// One item NAME[#N]=OUTCOME of a script that was accepted, read here once more in the plainest
/// way.
struct Item
{
    explicit Item(std::string_view text)
    {
        const std::size_t equals = text.find('=');
        name = Trimmed(text.substr(0, equals));
        if (const std::size_t hash = name.find('#'); hash != std::string_view::npos) {
            std::from_chars(name.data() + hash + 1, name.data() + name.size(), number);
            Require(number > 0, "a call has a number from 1");
            name = name.substr(0, hash);
        }
        std::string error;
        Require(vex::probe::ParseOutcome(Trimmed(text.substr(equals + 1)), outcome, error),
                "what a script holds is an outcome");
    }

    bool Names(std::string_view operation) const
    {
        return name.ends_with('*') ? operation.starts_with(name.substr(0, name.size() - 1))
                                   : operation == name;
    }

    std::string_view name;
    std::uint64_t number = 0;
    FaultOutcome outcome;
};

std::vector<Item> ItemsOf(std::string_view script)
{
    std::vector<Item> items;
    while (!script.empty()) {
        const std::size_t end = std::min(script.find(';'), script.size());
        if (const std::string_view text = Trimmed(script.substr(0, end)); !text.empty()) {
            items.emplace_back(text);
        }
        script.remove_prefix(std::min(end + 1, script.size()));
    }
    return items;
}

/// What the `call`-th call of an operation gets, when no other operation is called.
const FaultOutcome* Expected(const std::vector<Item>& items, const PointDefinition& point,
                             std::uint64_t call)
{
    for (const Item& item : items) {
        if (item.Names(point.name) && item.outcome.Fits(point) &&
            (item.number == 0 || item.number == call)) {
            return &item.outcome;
        }
    }
    return nullptr;
}

void CheckCalls(const FaultScript& script, const std::vector<Item>& items,
                const PointDefinition& point)
{
    FaultScript counting = script;
    for (std::uint64_t call = 1; call <= 3; ++call) {
        const FaultOutcome* const met = counting.Meet(point, point.name);
        const FaultOutcome* const expected = Expected(items, point, call);
        Require((met == nullptr) == (expected == nullptr),
                "a call meets a fault of its name alone");
        Require(met == nullptr || (met->kind == expected->kind && met->value == expected->value &&
                                   met->keep == expected->keep),
                "a call gets the outcome of the first fault of its name");
    }
}

void CheckRefusal(std::string_view text, const std::string& error)
{
    hlxfuzz::RequireMessage(error);
    Require(error.starts_with("fault "), "a refusal names the fault");
    FaultScript kept;
    std::string reason;
    Require(kept.Parse("VEXMakePath=E_FAIL", reason), reason);
    Require(!kept.Parse(text, reason) && reason == error, "a script is refused every time");
    Require(!kept.IsEmpty(), "a refused script leaves the one before in force");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = hlxfuzz::TextOf({data, size});
    FaultScript script;
    std::string error;
    if (!script.Parse(text, error)) {
        CheckRefusal(text, error);
        return 0;
    }
    Require(error.empty(), "a script that is accepted gives no message");
    const std::vector<Item> items = ItemsOf(text);
    Require(script.IsEmpty() == items.empty(), "a script has its items and no others");
    for (const PointDefinition& point : vex::probe::pointTable) {
        CheckCalls(script, items, point);
    }
    if (!script.CheckComponents(error)) {
        hlxfuzz::RequireMessage(error);
    }
    return 0;
}
