// SPDX-License-Identifier: Apache-2.0
// The structure of the model in a deck.
#include "product/inputfile/StructureWriter.h"

#include "host/system/Texts.h"

#include <span>

namespace hlx {

namespace {

constexpr std::string_view noMesh = "mesh: none";

}  // namespace

void WriteStructured(Deck& deck, const Structure& structure)
{
    for (const std::string& part : structure.parts) {
        deck.Keyword("PART");
        deck.Quoted("NAME", part);
        deck.EndLine();
        deck.Comment(noMesh);
        deck.End("PART");
    }
    deck.KeywordLine("ASSEMBLY");
    for (const PartInstance& instance : structure.instances) {
        deck.Keyword("INSTANCE");
        deck.Quoted("NAME", instance.name);
        deck.Quoted("PART", structure.parts[instance.part]);
        deck.EndLine();
        for (std::size_t row = 0; row < 3; ++row) {
            deck.Data(std::span(instance.placement).subspan(4 * row, 4));
        }
        deck.End("INSTANCE");
    }
    deck.End("ASSEMBLY");
}

void WriteFlat(Deck& deck, const Structure& structure)
{
    for (const PartInstance& instance : structure.instances) {
        std::string text = "instance ";
        vex::text::AppendQuoted(text, instance.name);
        text += " of part ";
        vex::text::AppendQuoted(text, structure.parts[instance.part]);
        deck.Comment(text);
        deck.Comment(noMesh);
    }
}

}  // namespace hlx
