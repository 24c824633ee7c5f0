// SPDX-License-Identifier: Apache-2.0
// Kinds of attribute and their defaults as a catalogue writes them.
#pragma once

#include "host/feature/LateType.h"

#define TOML_EXCEPTIONS 0
#include <toml++/toml.h>

namespace hlx {

struct CatalogKind
{
    std::string_view name;
    vex::ValueKind kind;
    std::string_view form;  ///< how its default is written
};

/// The kind of that name; null when there is none.
const CatalogKind* FindCatalogKind(std::string_view name);

/// Reads a default of a kind. False when the node holds no such value.
bool ReadDefault(const toml::node& node, vex::ValueKind kind, vex::Value& value);

}  // namespace hlx
