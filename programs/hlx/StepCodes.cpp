// SPDX-License-Identifier: Apache-2.0
// Reads the list of codes of `hlx new --steps`.
#include "StepCodes.h"

#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <algorithm>

namespace hlx {

bool ParseStepCodes(std::string_view list, std::vector<StepCode>& codes, std::string& error)
{
    codes.clear();
    while (!list.empty()) {
        const std::string_view text = list.substr(0, list.find(','));
        const auto* const code = std::find_if(std::begin(stepCodes), std::end(stepCodes),
                                              [&](const StepCode& c) { return c.code == text; });
        if (code == std::end(stepCodes)) {
            error =
                fmt::format("{} is no step code: use GSS, SPS, RS, HTS or EDS, separated by commas",
                            vex::system::Quoted(text));
            return false;
        }
        codes.push_back(*code);
        list.remove_prefix(std::min(text.size() + 1, list.size()));
    }
    return true;
}

}  // namespace hlx
