// SPDX-License-Identifier: Apache-2.0
// The keys of the general settings, their possible values and defaults.
#include "product/settings/GeneralSettings.h"

#include "host/system/Texts.h"

#include <algorithm>
#include <span>

namespace hlx {

namespace {

constexpr std::string_view lengths[] = {"mm", "um", "cm", "m", "km", "in", "ft", "yd", "mi"};
constexpr std::string_view masses[] = {"kg", "mg", "g", "t", "oz", "lb", "slug"};
constexpr std::string_view times[] = {"s", "us", "ms", "min", "h"};
constexpr std::string_view temperatures[] = {"K", "C", "F", "R"};
constexpr std::string_view flags[] = {"1", "0"};

struct Definition
{
    std::string_view key;
    std::span<const std::string_view> values;  ///< the default first
};

/// In the order of GeneralSetting. The spelling of "BasicUnitTepmerature" is kept: settings are
/// stored under it.
constexpr Definition definitions[] = {
    {"BasicUnitLength", lengths},           {"BasicUnitMass", masses},     {"BasicUnitTime", times},
    {"BasicUnitTepmerature", temperatures}, {"WriteFlatInputFile", flags},
};

bool IsPossible(const Definition& definition, std::string_view value)
{
    return std::ranges::find(definition.values, value) != definition.values.end();
}

std::string Refusal(const std::string& path, const Definition& definition, std::string_view value)
{
    std::string error = vex::text::DoubleQuoted(path) + ": the setting ";
    error += definition.key;
    error += " is " + vex::text::DoubleQuoted(value) + "; it can be";
    for (const std::string_view possible : definition.values) {
        error += ' ';
        error += possible;
    }
    error += ". Correct it, or remove the file to have the defaults.";
    return error;
}

}  // namespace

std::unique_ptr<GeneralSettings> GeneralSettings::Load(std::string path, std::string& error)
{
    std::unique_ptr<GeneralSettings> settings(new GeneralSettings(std::move(path)));
    if (!settings->_store.Load(error)) {
        return nullptr;
    }
    for (std::size_t i = 0; i < std::size(definitions); ++i) {
        const Definition& definition = definitions[i];
        const std::string_view value =
            settings->_store.Get(definition.key).value_or(definition.values.front());
        if (!IsPossible(definition, value)) {
            error = Refusal(settings->_store.Path(), definition, value);
            return nullptr;
        }
        settings->_values[i] = value;
    }
    return settings;
}

bool GeneralSettings::Set(GeneralSetting setting, std::string_view value)
{
    const auto index = static_cast<std::size_t>(setting);
    const Definition& definition = definitions[index];
    std::string error;
    if (!IsPossible(definition, value) || !_store.Set(definition.key, value, error)) {
        return false;
    }
    _values[index] = value;
    return true;
}

}  // namespace hlx
