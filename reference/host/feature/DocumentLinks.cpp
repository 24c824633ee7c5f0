// SPDX-License-Identifier: Apache-2.0
// Follows the links between open documents.
#include "host/feature/DocumentLinks.h"

#include "host/feature/DocumentPath.h"
#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace vex {

namespace {

using Links = std::unordered_map<Document*, std::vector<Document*>>;

/// The open documents that each open document links to.
Links LinksAmong(const std::vector<Document*>& open)
{
    std::unordered_map<std::string, Document*> stored;
    for (Document* const document : open) {
        if (!document->Path().empty()) {
            stored.insert_or_assign(document->Path(), document);
            stored.try_emplace(document->PathIdentity(), document);
        }
    }
    Links links;
    for (Document* const document : open) {
        for (const std::string& path : LinkedPaths(*document)) {
            auto target = stored.find(path);
            if (target == stored.end()) {
                target = stored.find(DocumentPathIdentity(path));
            }
            if (target != stored.end() && target->second != document) {
                links[document].push_back(target->second);
            }
        }
    }
    return links;
}

using DocumentSet = std::unordered_set<const Document*>;

/// Adds to `reached` what can be reached from `starts` without entering what is in it already.
void Reach(Links& links, std::vector<Document*> starts, DocumentSet& reached)
{
    while (!starts.empty()) {
        Document* const document = starts.back();
        starts.pop_back();
        if (reached.insert(document).second) {
            const std::vector<Document*>& next = links[document];
            starts.insert(starts.end(), next.begin(), next.end());
        }
    }
}

}  // namespace

bool IsAsLinked(const Document& document, const DocumentLink& link, std::string& error)
{
    if (!link.kind || *link.kind == document.DocType()) return true;
    error = fmt::format(
        "{}: it is a document of type {}, and the link to it says {}. Put that one back in its "
        "place, or link to this one anew.",
        system::Quoted(document.Path()), Document::TypeName(document.DocType()),
        Document::TypeName(*link.kind));
    return false;
}

std::vector<std::string> LinkedPaths(const Document& document)
{
    std::unordered_map<const LateType*, bool> hasLinks;
    std::unordered_set<std::string_view> seen;
    std::vector<std::string> paths;
    const auto visit = [&](const Feature& feature, int) {
        const auto [kind, isNew] = hasLinks.try_emplace(&feature.Kind());
        if (isNew) {
            kind->second = std::ranges::any_of(feature.Kind().attributes,
                                               [](const AttributeDefinition& attribute) {
                                                   return attribute.kind == ValueKind::DocumentLink;
                                               });
        }
        if (!kind->second) {
            return;
        }
        feature.ForEachSet([&](int, const Value& value) {
            const auto* const link = std::get_if<Boxed<DocumentLink>>(&value);
            if (link == nullptr) {
                return;
            }
            const std::string& path = (*link)->path;
            if (!path.empty() && seen.insert(path).second) {
                paths.push_back(path);
            }
        });
    };
    for (Feature* const root : document.Tree().Roots()) {
        FeatureTree::Walk(*root, visit);
    }
    return paths;
}

Removal PlanRemoval(const std::vector<Document*>& open, Document& removed)
{
    Links links = LinksAmong(open);
    DocumentSet below;
    Reach(links, {&removed}, below);

    // What is there without the removed document, and what the program opened, keeps what it links
    // to.
    std::vector<Document*> others;
    for (Document* const document : open) {
        if (document != &removed && (document->IsOfProgram() || !below.contains(document))) {
            others.push_back(document);
        }
    }
    DocumentSet kept{&removed};
    Reach(links, others, kept);
    Removal removal;
    for (Document* const document : open) {
        if (document == &removed || !kept.contains(document)) {
            removal.going.push_back(document);
        } else if (std::ranges::find(links[document], &removed) != links[document].end()) {
            removal.user = document;
        }
    }
    return removal;
}

}  // namespace vex
