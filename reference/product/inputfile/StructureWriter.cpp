// SPDX-License-Identifier: Apache-2.0
// The structure of the model in a deck.
#include "product/inputfile/StructureWriter.h"

#include "host/system/Texts.h"

#include <span>

namespace hlx {

namespace {

constexpr std::string_view noMesh = "mesh: none";

void WriteRegion(Deck& deck, std::string_view name, const Regions::OfPart::key_type& geometry)
{
    deck.Keyword("REGION");
    deck.Quoted("NAME", name);
    deck.Number("DIMENSION", geometry.first);
    deck.Number("INDEX", geometry.second);
    deck.EndLine();
}

}  // namespace

void WriteStructured(Deck& deck, const Structure& structure, const Regions& regions)
{
    for (std::size_t part = 0; part < structure.parts.size(); ++part) {
        deck.Keyword("PART");
        deck.Quoted("NAME", structure.parts[part].name);
        deck.EndLine();
        deck.Comment(noMesh);
        for (const auto& [geometry, name] : regions.Used(part)) {
            WriteRegion(deck, name, geometry);
        }
        deck.End("PART");
    }
    deck.KeywordLine("ASSEMBLY");
    for (const PartInstance& instance : structure.instances) {
        deck.Keyword("INSTANCE");
        deck.Quoted("NAME", instance.name);
        deck.Quoted("PART", structure.parts[instance.part].name);
        deck.EndLine();
        for (std::size_t row = 0; row < 3; ++row) {
            deck.Data(std::span(instance.placement).subspan(4 * row, 4));
        }
        deck.End("INSTANCE");
    }
    deck.End("ASSEMBLY");
}

void WriteFlat(Deck& deck, const Structure& structure, const Regions& regions)
{
    for (const PartInstance& instance : structure.instances) {
        std::string text = "instance ";
        vex::text::AppendQuoted(text, instance.name);
        text += " of part ";
        vex::text::AppendQuoted(text, structure.parts[instance.part].name);
        deck.Comment(text);
        deck.Comment(noMesh);
        for (const auto& [geometry, name] : regions.Used(instance.part)) {
            WriteRegion(deck, RegionOfInstance(instance, name), geometry);
        }
    }
}

}  // namespace hlx
