// SPDX-License-Identifier: Apache-2.0
// Platform calls on the general settings, as lines, and the fault that takes the way to store them.
#pragma once

#include "support/FlatFileOption.h"
#include "support/Outcome.h"

#include <string>
#include <vector>

namespace hlxtest {

using Lines = std::vector<std::string>;

/// The name of the query for the interface that stores the settings.
inline const char kRepositoryCast[] = "cast:HLXZPKWBGeneralSettingCtrl->VEXIIniSettingManagment";

/// The calls of `operation` on the general settings: "Get Length", "Set Length mm", "Query",
/// "Commit"; "Lookup" is the search for their controller.
template <class Operation>
Lines SettingCalls(Operation operation)
{
    Recording recording;
    operation();
    Lines lines;
    for (const vex::probe::Call& call : recording.Stop()) {
        std::string line = call.name;
        const auto shorten = [&](std::string_view longText, std::string_view shortText) {
            if (line.starts_with(longText)) {
                line.replace(0, longText.size(), shortText);
            }
        };
        shorten("HLXIZPKWBGeneralSettingAtt::GetBasicUnit", "Get ");
        shorten("HLXIZPKWBGeneralSettingAtt::SetBasicUnit", "Set ");
        shorten("HLXIZPKWBGeneralSettingAtt::GetWriteFlatInputFileFlag", "Get Flat");
        shorten("HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag", "Set Flat");
        shorten("VEXIIniSettingManagment::", "");
        shorten(kRepositoryCast, "Query");
        shorten("GetZPKWBGeneralSettingCtrl", "Lookup");
        if (line.starts_with("Set ")) {
            const std::string& value = call.arguments.at(0);
            line += ' ' + (value.starts_with('"') ? value.substr(1, value.size() - 2) : value);
        }
        lines.push_back(line);
    }
    return lines;
}

}  // namespace hlxtest
