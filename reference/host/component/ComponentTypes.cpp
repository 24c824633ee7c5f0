// SPDX-License-Identifier: Apache-2.0
// The merged component table.
#include "host/component/ComponentTypes.h"

#include "host/system/MessageTexts.h"
#include "host/system/ResultNames.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace vex {

namespace {

using system::Quoted;

/// Names stand in traces, fault scripts and messages as they are: letters, digits and underscores
/// only.
bool IsName(const char* text)
{
    constexpr std::string_view digits = "0123456789";
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_";
    const std::string_view name = text == nullptr ? "" : text;
    return !name.empty() && digits.find(name[0]) == std::string_view::npos &&
           std::all_of(name.begin(), name.end(), [&](char c) {
               return digits.find(c) != std::string_view::npos ||
                      letters.find(c) != std::string_view::npos;
           });
}

std::string Shown(const char* text)
{
    return Quoted(text == nullptr ? "" : text);
}

bool AddInterfaces(std::span<const VEXInterfaceRow> rows, ComponentType& type, std::string& error)
{
    for (const VEXInterfaceRow& row : rows) {
        if (!IsName(row.InterfaceName) || row.Make == nullptr) {
            error = fmt::format("component '{}': interface {} has an impossible name or no maker",
                                type.name, Shown(row.InterfaceName));
            return false;
        }
        type.interfaces.push_back({VEXGuidOfName(row.InterfaceName), row.InterfaceName, row.Make});
    }
    std::sort(type.interfaces.begin(), type.interfaces.end(),
              [](const InterfaceEntry& a, const InterfaceEntry& b) { return a.id < b.id; });
    const auto twice = std::adjacent_find(
        type.interfaces.begin(), type.interfaces.end(),
        [](const InterfaceEntry& a, const InterfaceEntry& b) { return a.id == b.id; });
    if (twice != type.interfaces.end()) {
        error = fmt::format(
            "component '{}': interface '{}' stands in it twice{}", type.name, twice->name,
            type.base == nullptr ? std::string()
                                 : fmt::format(", or in its base '{}' of library '{}' too",
                                               type.base->name, type.base->library));
        return false;
    }
    return true;
}

}  // namespace

const InterfaceEntry* ComponentType::Find(const IID& iid) const
{
    const auto found =
        std::lower_bound(interfaces.begin(), interfaces.end(), iid,
                         [](const InterfaceEntry& entry, const IID& id) { return entry.id < id; });
    return found == interfaces.end() || found->id != iid ? nullptr : &*found;
}

bool ComponentType::IsKindOf(std::string_view typeName) const
{
    for (const ComponentType* type = this; type != nullptr; type = type->base) {
        if (type->name == typeName) {
            return true;
        }
    }
    return false;
}

ComponentTypes& ComponentTypes::Instance()
{
    static ComponentTypes& types = *new ComponentTypes;
    return types;
}

const ComponentType* ComponentTypes::Find(std::string_view name)
{
    LoadResident();
    const auto found = _types.find(name);
    return found == _types.end() ? nullptr : found->second.get();
}

const ComponentType& ComponentTypes::Require(std::string_view name)
{
    if (const ComponentType* const type = Find(name)) {
        return *type;
    }
    std::fprintf(
        stderr,
        "%s: no loaded component library has a component of this name, and the program needs it.\n",
        Quoted(name).c_str());
    std::abort();
}

bool ComponentTypes::Merge(const VEXComponentLibrary& library, std::string& error)
{
    const auto refuse = [&](const std::string& reason) {
        error = fmt::format("component library {}: {}", Shown(library.Name), reason);
        return false;
    };
    if (library.Version != VEXComponentLibraryVersion) {
        return refuse(fmt::format(
            "it is built for version {} of component libraries, this host has version {}: "
            "build it again with this host's SDK",
            library.Version, VEXComponentLibraryVersion));
    }
    if (!IsName(library.Name)) {
        return refuse("a library's name is made of letters, digits and underscores");
    }
    if (_merged.contains(library.Name)) {
        return refuse("a library of this name is loaded already");
    }
    TypesByName added;
    for (const VEXComponentRow& row : library.Components) {
        if (!IsName(row.Name)) {
            return refuse(fmt::format("{} is no name of a component", Shown(row.Name)));
        }
        const auto present = _types.find(row.Name);
        if (present != _types.end() || added.contains(row.Name)) {
            return refuse(
                fmt::format("component '{}' stands in library '{}' already", row.Name,
                            present != _types.end() ? present->second->library : library.Name));
        }
        auto type = std::make_unique<ComponentType>();
        type->name = row.Name;
        type->library = library.Name;
        type->create = row.Create;
        if (row.Base != nullptr) {
            const auto here = added.find(row.Base);
            const auto before = _types.find(row.Base);
            if (here == added.end() && before == _types.end()) {
                return refuse(fmt::format("component '{}': its base {} is in no library before it",
                                          row.Name, Shown(row.Base)));
            }
            type->base = here != added.end() ? here->second.get() : before->second.get();
            type->interfaces = type->base->interfaces;
        }
        if (std::string reason; !AddInterfaces(row.Interfaces, *type, reason)) {
            return refuse(reason);
        }
        added.emplace(row.Name, std::move(type));
    }
    _types.merge(added);
    _merged.emplace(library.Name);
    const HRESULT started = library.Start == nullptr ? S_OK : library.Start();
    if (FAILED(started)) {
        Withdraw(library.Name);
        const std::string_view code = NameOfResult(started);
        return refuse(fmt::format("it did not start ({})",
                                  code.empty() ? std::to_string(started) : std::string(code)));
    }
    return true;
}

void ComponentTypes::Withdraw(std::string_view library)
{
    _merged.erase(_merged.find(library));
    for (auto place = _types.begin(); place != _types.end();) {
        const auto next = std::next(place);
        if (place->second->library == library) {
            // Kept: what started in part may still point to its row.
            _withdrawn.push_back(std::move(_types.extract(place).mapped()));
        }
        place = next;
    }
}

std::vector<const ComponentType*> ComponentTypes::All()
{
    LoadResident();
    std::vector<const ComponentType*> all;
    for (const auto& [name, type] : _types) {
        all.push_back(type.get());
    }
    return all;
}

}  // namespace vex
