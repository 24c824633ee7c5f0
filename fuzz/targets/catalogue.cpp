// SPDX-License-Identifier: Apache-2.0
// Bytes as the catalogue file: they are refused with a reason, or what was read keeps the rules of
// the format.
#include "FuzzProcess.h"
#include "product/catalog/CatalogFile.h"

#include <set>

namespace {

using hlxfuzz::Require;

void CheckType(const vex::LateTypeDefinition& type, std::set<std::string>& known)
{
    Require(type.base.empty() || known.contains(type.base), "a base stands before its types");
    Require(known.insert(type.name).second, "no type stands twice");
    std::set<std::string> names;
    for (const vex::AttributeDefinition& attribute : type.attributes) {
        Require(names.insert(attribute.name).second, "no attribute stands twice");
        Require(vex::KindOf(attribute.defaultValue) == attribute.kind, "a default is of its kind");
        Require(vex::IsStorable(attribute.defaultValue), "a default can be stored");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<vex::LateTypeDefinition> types;
    std::string error;
    if (!hlx::ReadCatalog(hlxfuzz::TextOf({data, size}), "fuzz", types, error)) {
        hlxfuzz::RequireMessage(error);
        return 0;
    }
    Require(error.empty(), "what is read gives no message");
    Require(!types.empty(), "a catalogue has types");
    std::set<std::string> known;
    for (const vex::LateTypeDefinition& type : types) {
        CheckType(type, known);
    }
    return 0;
}
