// SPDX-License-Identifier: Apache-2.0
// The registry of late types.
#include "host/component/ComponentNames.h"
#include "host/component/ComponentTypes.h"
#include "host/feature/LateType.h"
#include "host/system/MessageTexts.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace vex {

namespace {

using system::Quoted;

bool AddAttributes(LateType& type, std::vector<AttributeDefinition> own, std::string& error)
{
    for (AttributeDefinition& attribute : own) {
        const std::string place =
            "type " + Quoted(type.name) + ", attribute " + Quoted(attribute.name);
        if (attribute.name.empty()) {
            error = place + ": a name is missing; give every attribute one";
        } else if (type.IndexOf(attribute.name) >= 0) {
            error =
                place + ": the type or its base has this attribute already; remove or rename it";
        } else if (KindOf(attribute.defaultValue) != attribute.kind ||
                   !IsStorable(attribute.defaultValue)) {
            error = place + ": the default does not fit the attribute's kind; correct it";
        } else {
            type.attributes.push_back(std::move(attribute));
            continue;
        }
        return false;
    }
    return true;
}

}  // namespace

LateTypes& LateTypes::Instance()
{
    // Never destroyed: features held by static objects outlive any static registry.
    static LateTypes* const types = [] {
        AddComponentNames([](std::string_view name) { return Instance().Find(name) != nullptr; });
        return new LateTypes;
    }();
    return *types;
}

void LateTypes::LoadCatalogues()
{
    if (!std::exchange(_loaded, true)) {
        // The table of components loads the resident libraries, and a library its catalogue. Set
        // first: a catalogue's loader may ask for types while it adds its own.
        ComponentTypes::Instance().Find(featureComponent);
    }
}

const LateType* LateTypes::Find(std::string_view name)
{
    LoadCatalogues();
    const auto found = _types.find(name);
    return found == _types.end() ? nullptr : found->second.get();
}

const LateType& LateTypes::Require(std::string_view name)
{
    const LateType* const type = Find(name);
    if (type == nullptr) {
        std::fprintf(stderr,
                     "vex: no catalogue defines the late type %s; install the catalogue that "
                     "belongs to these "
                     "libraries or correct VEX_CATALOG_PATH\n",
                     Quoted(name).c_str());
        std::abort();
    }
    return *type;
}

bool LateTypes::Add(std::vector<LateTypeDefinition> definitions, std::string& error)
{
    decltype(_types) added;
    const auto find = [&](std::string_view name) -> const LateType* {
        for (const auto* types : {&_types, &added}) {
            if (const auto found = types->find(name); found != types->end()) {
                return found->second.get();
            }
        }
        return nullptr;
    };
    for (LateTypeDefinition& definition : definitions) {
        if (definition.name.empty() || find(definition.name) != nullptr) {
            error =
                "type " + Quoted(definition.name) +
                (definition.name.empty() ? ": a name is missing; give every type one"
                                         : ": defined already; remove or rename one of the two");
            return false;
        }
        auto type = std::make_unique<LateType>();
        type->name = std::move(definition.name);
        if (!definition.base.empty()) {
            type->base = find(definition.base);
            if (type->base == nullptr) {
                error = "type " + Quoted(type->name) + ": its base " + Quoted(definition.base) +
                        " is not defined before it; define the base first or correct its name";
                return false;
            }
            type->attributes = type->base->attributes;
        }
        if (!AddAttributes(*type, std::move(definition.attributes), error)) {
            return false;
        }
        added.emplace(type->name, std::move(type));
    }
    _types.merge(added);
    return true;
}

bool LateTypes::AreLoaded(std::string& error)
{
    LoadCatalogues();
    if (_types.empty()) {
        error =
            "no catalogue of late types is loaded. Mend what was reported when it was read, or "
            "name "
            "the folder of another one in VEX_CATALOG_PATH.";
    }
    return !_types.empty();
}

std::vector<const LateType*> LateTypes::All()
{
    LoadCatalogues();
    std::vector<const LateType*> types;
    for (const auto& [name, type] : _types) {
        types.push_back(type.get());
    }
    return types;
}

}  // namespace vex
