// SPDX-License-Identifier: Apache-2.0
// The documents that an analysis document is linked to. A link is a feature below the manager, so
// that links keep their order and are stored like everything else.
#include "host/analysis/AnalysisAdapters.h"
#include "host/analysis/AnalysisObjects.h"
#include "host/feature/DocumentSession.h"
#include "host/feature/Refusal.h"
#include "host/system/Probe.h"

namespace vex {

namespace {

constexpr const char* linkType = "VEXSamDocumentLink";

/// A link to nothing for another feature.
DocumentLink LinkOf(const Feature& feature)
{
    if (!feature.Kind().IsKindOf(linkType)) return {};
    return feature.GetAs<DocumentLink>("Document");
}

}  // namespace

HRESULT DocumentManagerAdapter::GetLinkedDocuments(VEXListPtrVEXDocument& documents) const
{
    return Probe<"VEXISamDocumentManager::GetLinkedDocuments">(
        [&]() -> HRESULT {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            for (const Feature* const child : Self().Children()) {
                const DocumentLink link = LinkOf(*child);
                if (link.path == SharedText()) {
                    continue;
                }
                std::string error;
                const Document* const document =
                    DocumentSession::Instance().OpenLinked(link, error);
                if (document == nullptr) {
                    Tell("linked document: " + error);
                }
                documents.Append(document == nullptr ? nullptr : document->AsVEXDocument());
            }
            return S_OK;
        },
        Out(documents));
}

HRESULT DocumentManagerAdapter::AddLink(VEXDocument* document)
{
    return Probe<"VEXISamDocumentManager::AddLink">(
        [&]() -> HRESULT {
            FeatureTree* const tree = Self().Tree();
            if (tree == nullptr) {
                return E_FAIL;
            }
            const Document* const target = Document::From(document);
            if (target == nullptr || target->Path().empty() || target == &tree->Owner()) {
                return E_INVALIDARG;
            }
            const DocumentLink wanted{target->Path(), target->DocType()};
            for (Feature* const child : Self().Children()) {
                const DocumentLink link = LinkOf(*child);
                if (link == wanted) {
                    return S_OK;
                }
                if (link.path == wanted.path) {  // to a document of another kind, once there
                    return child->Set("Document", Boxed<DocumentLink>(wanted));
                }
            }
            Feature& link = AddFeature(Self(), linkType);
            return link.Set("Document", Boxed<DocumentLink>(wanted));
        },
        In(DocumentArgument{document}));
}

}  // namespace vex
