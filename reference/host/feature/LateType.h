// SPDX-License-Identifier: Apache-2.0
// Late types: what kinds of feature there are, with their attributes and defaults. The catalogue
// file defines them; the registry owns them to the end of the process.
#pragma once

#include "VEXTypes.h"
#include "host/feature/Value.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vex {

struct ComponentType;

struct AttributeDefinition
{
    std::string name;
    ValueKind kind = ValueKind::Text;
    Value defaultValue;
    bool listed = true;  ///< in tree dumps and input files
};

/// One type as a catalogue writes it: the name of its base (empty for none) and the attributes it
/// adds.
struct LateTypeDefinition
{
    std::string name;
    std::string base;
    std::vector<AttributeDefinition> attributes;
};

/// Attributes include those of the base type, base first; an attribute's index is its place in this
/// list.
struct VEX_EXPORT LateType
{
    std::string name;
    const LateType* base = nullptr;
    std::vector<AttributeDefinition> attributes;

    int IndexOf(std::string_view attributeName) const;  ///< -1 when there is none
    bool IsKindOf(std::string_view typeName) const;

    /// The row of the component table under this name, else under the nearest base's, else the row
    /// of plain features (featureComponent): a kind needs a row of its own only for interfaces of
    /// its own.
    const ComponentType& Row() const;

private:
    mutable const ComponentType* _row = nullptr;  ///< resolved when the first feature is made
};

/// The row of features whose kind has none.
inline constexpr const char* featureComponent = "VEXFeature";

/// The value that an attribute of this kind has when the catalogue gives no default: false, 0 or
/// empty.
VEX_EXPORT Value EmptyValue(ValueKind kind);

/// Whether a value can be stored: texts are valid UTF-8, a link is empty or absolute, a table has
/// whole rows.
VEX_EXPORT bool IsStorable(const Value& value);

class VEX_EXPORT LateTypes
{
public:
    static LateTypes& Instance();

    /// Null when no catalogue holds it. Loads the resident libraries (and with them their
    /// catalogues) on first use.
    const LateType* Find(std::string_view name);

    /// As Find, for a type that the program text names: its absence ends the process with a
    /// message.
    const LateType& Require(std::string_view name);

    /// Adds the types of one catalogue, bases before the types that extend them. False, with the
    /// reason in `error` and nothing changed, for a duplicate type or attribute, an unknown base or
    /// a default that does not fit.
    bool Add(std::vector<LateTypeDefinition> types, std::string& error);

    /// False, with the reason in `error`, when no catalogue could be loaded: nothing can be made
    /// then.
    bool AreLoaded(std::string& error);

    /// All types, by name.
    std::vector<const LateType*> All();

private:
    LateTypes() = default;
    void LoadCatalogues();

    std::map<std::string, std::unique_ptr<const LateType>, std::less<>> _types;
    bool _loaded = false;
};

}  // namespace vex
