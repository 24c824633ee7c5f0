// SPDX-License-Identifier: Apache-2.0
// The general settings of the analysis workbench in force in this process: read once from the
// user's repository, changed here, stored there by Commit. What another process stores meanwhile is
// kept, and is not in force here.
#pragma once

#include "host/system/SettingsStore.h"

#include <array>
#include <cstddef>
#include <memory>

namespace hlx {

enum class GeneralSetting : std::size_t {
    LengthUnit,
    MassUnit,
    TimeUnit,
    TemperatureUnit,
    WriteFlatInputFile,  ///< "1" or "0"
};

class VEX_EXPORT GeneralSettings
{
public:
    /// The settings of the repository file `path`, the defaults for those it lacks: mm, kg, s, K,
    /// flat.
    /// @return null, with the reason in `error`, when the file is damaged or a setting in it has an
    /// impossible value
    static std::unique_ptr<GeneralSettings> Load(std::string path, std::string& error);

    const std::string& Get(GeneralSetting setting) const
    {
        return _values[static_cast<std::size_t>(setting)];
    }

    /// In force at once. False, and nothing changed, for an impossible value.
    bool Set(GeneralSetting setting, std::string_view value);

    /// Stores what was set since the last Commit. False with the reason in `error`; it stays in
    /// force.
    bool Commit(std::string& error) { return _store.Commit(error); }

private:
    explicit GeneralSettings(std::string path) : _store(std::move(path)) {}

    vex::system::SettingsStore _store;
    std::array<std::string, 5> _values;
};

}  // namespace hlx
