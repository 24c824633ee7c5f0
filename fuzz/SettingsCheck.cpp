// SPDX-License-Identifier: Apache-2.0
// Reads, changes, stores and reads again.
#include "SettingsCheck.h"

#include "host/system/SettingsStore.h"

namespace hlxfuzz {

namespace {

using vex::system::SettingsStore;

constexpr std::string_view kKey = "HLX.Fuzz";
constexpr std::string_view kValue = "größer";

void RequireSettings(const SettingsStore& store, const std::map<std::string, std::string>& expected)
{
    for (const auto& [key, value] : expected) {
        Require(key == kKey || store.Get(key) == value, "a setting is what was stored");
    }
}

}  // namespace

bool CheckSettings(const std::string& path, const std::map<std::string, std::string>& expected)
{
    const std::string before = ReadFile(path);
    SettingsStore store(path);
    std::string error;
    const bool read = store.Load(error);
    if (read) {
        RequireSettings(store, expected);
    } else {
        RequireMessage(error);
    }
    Require(ReadFile(path) == before, "reading leaves the file alone");
    error.clear();
    Require(store.Set(kKey, kValue, error), error);
    Require(store.Commit(error) == read, "settings that cannot be read are never replaced");
    if (!read) {
        RequireMessage(error);
        Require(ReadFile(path) == before, "what is refused stays as it is");
        return false;
    }
    SettingsStore again(path);
    Require(again.Load(error), "what was stored can be read: " + error);
    Require(again.Get(kKey) == kValue, "a setting that was stored is there");
    RequireSettings(again, expected);
    return true;
}

}  // namespace hlxfuzz
