// SPDX-License-Identifier: Apache-2.0
// Makes product and part documents and walks across their links.
#include "host/product/ProductStructure.h"

#include "host/feature/DocumentSession.h"
#include "host/feature/FeatureSearch.h"
#include "host/system/MessageTexts.h"

#include <unordered_set>

namespace vex {

namespace {

void MakeStructure(Document& document, const char* container, const char* object)
{
    LateTypes& types = LateTypes::Instance();
    FeatureTree& tree = document.Tree();
    tree.Create(types.Require(object), &tree.Create(types.Require(container), nullptr));
    tree.Create(types.Require("VEXBRepContainer"), nullptr);
}

void AppendContents(const Document& document, std::vector<Feature*>& contents)
{
    const Feature* const container = document.SpecContainer();
    if (container == nullptr) {
        return;
    }
    for (Feature* const object : container->Children()) {
        if (object->Kind().IsKindOf(productNodeType)) {
            contents.insert(contents.end(), object->Children().begin(), object->Children().end());
        } else {
            contents.push_back(object);
        }
    }
}

}  // namespace

void MakeProductStructure(Document& document)
{
    MakeStructure(document, "VEXProductContainer", productNodeType);
}

void MakePartStructure(Document& document)
{
    MakeStructure(document, "VEXPrtContainer", partType);
    MainBody(*RootObject(document));
}

Feature& MainBody(Feature& part)
{
    if (Feature* const body = FirstChildOfType(part, mechanicalToolType)) {
        return *body;
    }
    Feature& body = AddFeature(part, mechanicalToolType);
    body.SetAlias("Main Body");
    return body;
}

Feature* RootObject(const Document& document)
{
    const Feature* const container = document.SpecContainer();
    if (container == nullptr || document.DocType() == DocumentType::Analysis ||
        container->Children().empty()) {
        return nullptr;
    }
    return container->Children().front();
}

Feature* PartOf(const Document& document)
{
    const Feature* const container = document.SpecContainer();
    return container == nullptr ? nullptr : FirstChildOfType(*container, partType);
}

Document* LinkedDocument(const Feature& node, std::string& error)
{
    error.clear();
    if (node.Tree() == nullptr || !node.Kind().IsKindOf(productNodeType)) {
        return nullptr;
    }
    const auto& link = node.GetAs<DocumentLink>("Document");
    const std::string& path = link.path;
    Document* const linked =
        path.empty() ? nullptr : DocumentSession::Instance().OpenLinked(link, error);
    if (linked == nullptr || linked->DocType() != DocumentType::Analysis) {
        return linked;
    }
    error = system::Quoted(path) +
            ": it is an analysis document, which cannot be used in a "
            "product. Put the product or part back in its place.";
    return nullptr;
}

bool StructureBelow(const Feature& object, std::vector<Feature*>& below, std::string& error)
{
    const Document* const linked = LinkedDocument(object, error);
    if (linked == nullptr && !error.empty()) {
        return false;
    }
    below.insert(below.end(), object.Children().begin(), object.Children().end());
    if (linked != nullptr) {
        AppendContents(*linked, below);
    }
    return true;
}

bool AllBelow(Feature& object, std::vector<Feature*>& below, std::string& error)
{
    std::unordered_set<const Document*> entered;
    if (object.Tree() != nullptr) {
        entered.insert(&object.Tree()->Owner());
    }
    std::vector<Feature*> open{&object};
    while (!open.empty()) {
        Feature* const next = open.back();
        open.pop_back();
        if (next != &object) {
            below.push_back(next);
        }
        std::vector<Feature*> children(next->Children().begin(), next->Children().end());
        const Document* const linked = LinkedDocument(*next, error);
        if (linked == nullptr && !error.empty()) {
            return false;
        }
        if (linked != nullptr && entered.insert(linked).second) {
            AppendContents(*linked, children);
        }
        open.insert(open.end(), children.rbegin(), children.rend());
    }
    return true;
}

}  // namespace vex
