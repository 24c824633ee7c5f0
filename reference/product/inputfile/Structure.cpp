// SPDX-License-Identifier: Apache-2.0
// Walks the product structure, from the links of an analysis document down to the parts.
#include "product/inputfile/Structure.h"

#include "HLXProductUtilities.h"
#include "host/feature/DocumentSession.h"
#include "host/product/ProductStructure.h"
#include "host/system/MessageTexts.h"
#include "product/inputfile/UniqueNames.h"

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace hlx {

namespace {

using vex::Document;
using vex::DocumentType;
using vex::Feature;
using vex::Placement;
using vex::system::Quoted;

constexpr std::size_t deepestLevel = 256;
constexpr std::size_t mostNodes = 1'000'000;

/// The place in the top of something placed by `inner` in what is itself placed by `outer`.
Placement Compose(const Placement& outer, const Placement& inner)
{
    Placement result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            double sum = column == 3 ? outer[4 * row + 3] : 0.0;
            for (std::size_t i = 0; i < 3; ++i) {
                sum += outer[4 * row + i] * inner[4 * i + column];
            }
            result[4 * row + column] = sum;
        }
    }
    return result;
}

class StructureReader
{
public:
    StructureReader(Structure& structure, std::string& error) : _structure(structure), _error(error)
    {}

    bool Read(Document& analysis);

private:
    /// Nodes of one parent, on the way down.
    struct Level
    {
        const Feature* next;  ///< null: all of the level were visited
        const Document* document;
        bool areRoots;  ///< the one root of a structure adds no name: its use has one
        std::string name;
        Placement placement;
    };

    bool Fail(std::string reason)
    {
        _error = std::move(reason);
        return false;
    }
    bool ReadLinked(Document& document);
    bool Visit(const Feature& node, const Level& parent, std::vector<Level>& levels);
    Document* Open(const vex::DocumentLink& link, std::string& reason);
    bool Enter(Document& document, std::string name, const Placement& placement,
               std::string_view partNumber, std::vector<Level>& levels);
    bool Push(Level level, std::vector<Level>& levels);
    bool CountName(std::size_t bytes);
    std::size_t PartOf(const Document& document, std::string_view partNumber);

    Structure& _structure;
    std::string& _error;
    std::size_t _nodes = 0;
    std::size_t _bytesOfNames = 0;
    std::map<std::pair<std::string, std::optional<DocumentType>>, Document*> _documents;
    std::unordered_map<const Document*, std::size_t> _parts;
    UniqueNames _partNames;
    UniqueNames _instanceNames;
};

bool StructureReader::Read(Document& analysis)
{
    VEXISamAnalysisManager_var manager;
    VEXISamDocumentManager_var documents;
    VEXListPtrVEXDocument linked;
    if (FAILED(HLXAnalysisDocUtils::GetAnalysisManager(manager, analysis.AsVEXDocument())) ||
        manager == nullptr || FAILED(manager->GetDocumentManager(documents)) ||
        documents == nullptr || FAILED(documents->GetLinkedDocuments(linked))) {
        return Fail("the documents that the analysis is linked to cannot be listed");
    }
    for (int i = 1; i <= linked.Size(); ++i) {
        Document* const document = Document::From(linked[i]);
        if (document == nullptr) {
            return Fail("linked document " + std::to_string(i) +
                        " of the analysis cannot be opened; put it back in its place or link the "
                        "analysis anew");
        }
        // An analysis may be linked to another one, whose results it uses: that is no structure.
        const bool isStructure = document->DocType() != DocumentType::Analysis;
        if (isStructure && !ReadLinked(*document)) return false;
    }
    return true;
}

bool StructureReader::ReadLinked(Document& document)
{
    std::vector<Level> levels;
    if (!Enter(document, "", Placement{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0}, "", levels)) {
        return false;
    }
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == nullptr) {
            levels.pop_back();
            continue;
        }
        const Feature& node = *level.next;
        level.next = node.NextSibling();
        // Counted whatever it is: what is passed over takes its time too.
        if (++_nodes > mostNodes) {
            return Fail(
                "the product structure has more than a million nodes; link the analysis "
                "to a smaller product");
        }
        if (node.Kind().IsKindOf(vex::productNodeType) && !Visit(node, level, levels)) return false;
    }
    return true;
}

bool StructureReader::Visit(const Feature& node, const Level& parent, std::vector<Level>& levels)
{
    const std::string& partNumber = node.GetAs<std::string>("PartNumber");
    const auto& numbers = node.GetAs<vex::DoubleList>("Placement");
    const auto& link = node.GetAs<vex::DocumentLink>("Document");
    const std::string& path = link.path;
    std::string name = parent.name;
    if (!parent.areRoots) {
        name += name.empty() ? "" : "/";
        name += node.Alias().empty() ? std::string_view(partNumber) : node.Alias();
    }
    if (!CountName(name.size())) return false;
    Placement own{};
    if (numbers.size() != own.size()) {
        return Fail("the placement of " + Quoted(name) + " has " + std::to_string(numbers.size()) +
                    " numbers and not 12; correct the product document " +
                    Quoted(parent.document->Path()));
    }
    std::ranges::copy(numbers, own.begin());
    const Placement placement = Compose(parent.placement, own);
    if (path.empty()) {
        return Push({node.Children().front(), parent.document, false, std::move(name), placement},
                    levels);
    }
    std::string reason;
    Document* const document = Open(link, reason);
    if (document == nullptr) {
        return Fail("the document " + Quoted(path) + " of " + Quoted(name) + " cannot be opened (" +
                    reason + "); put it back in its place or correct the product document " +
                    Quoted(parent.document->Path()));
    }
    return Enter(*document, std::move(name), placement, partNumber, levels);
}

// A part may be used a thousand times: it is looked for once.
Document* StructureReader::Open(const vex::DocumentLink& link, std::string& reason)
{
    const auto [known, isNew] = _documents.try_emplace({link.path, link.kind}, nullptr);
    if (isNew) {
        known->second = vex::DocumentSession::Instance().OpenLinked(link, reason);
    }
    return known->second;
}

// `parent` of Visit stands in `levels`: what is pushed there is made of copies.
bool StructureReader::Enter(Document& document, std::string name, const Placement& placement,
                            std::string_view partNumber, std::vector<Level>& levels)
{
    const Feature* const container = document.SpecContainer();
    if (document.DocType() == DocumentType::Analysis || container == nullptr) {
        return Fail("the document " + Quoted(document.Path()) +
                    " is no product or part; correct what leads to it");
    }
    if (document.DocType() == DocumentType::Part) {
        const std::size_t index = PartOf(document, partNumber);
        StructurePart& part = _structure.parts[index];
        if (!CountName(part.name.size())) return false;
        part.instances.push_back(_structure.instances.size());
        const std::string& wish = name.empty() ? part.name + ".1" : name;
        _structure.instances.push_back({_instanceNames.Make(wish), index, placement});
        return true;
    }
    if (std::ranges::find(levels, &document, &Level::document) != levels.end()) {
        return Fail("the product document " + Quoted(document.Path()) +
                    " holds itself; take out the use that leads back to it");
    }
    return Push({container->Children().front(), &document, true, std::move(name), placement},
                levels);
}

bool StructureReader::Push(Level level, std::vector<Level>& levels)
{
    if (levels.size() == deepestLevel) {
        return Fail(
            "the product structure is deeper than 256 levels; link the analysis to a "
            "smaller product");
    }
    levels.push_back(std::move(level));
    return true;
}

bool StructureReader::CountName(std::size_t bytes)
{
    _bytesOfNames += bytes;
    return _bytesOfNames <= mostBytesOfNames ||
           Fail(
               "the names of the product structure, each with those above it, take more than "
               "256 MiB; shorten the aliases in the product documents");
}

std::size_t StructureReader::PartOf(const Document& document, std::string_view partNumber)
{
    const auto [part, isNew] = _parts.emplace(&document, _structure.parts.size());
    if (isNew) {
        std::string name(partNumber);
        if (const Feature* const found = vex::PartOf(document); name.empty() && found != nullptr) {
            name = found->Alias();
        }
        _structure.parts.push_back({_partNames.Make(name.empty() ? "Part" : name), &document, {}});
    }
    return part->second;
}

}  // namespace

bool ReadStructure(Document& analysis, Structure& structure, std::string& error)
{
    return StructureReader(structure, error).Read(analysis);
}

}  // namespace hlx
