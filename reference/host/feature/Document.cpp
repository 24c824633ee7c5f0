// SPDX-License-Identifier: Apache-2.0
// A document's identity and contents.
#include "host/feature/Document.h"

#include "host/feature/DocumentPath.h"
#include "host/feature/DocumentSession.h"

namespace vex {

namespace {

constexpr const char* brepContainer = "VEXBRepContainer";

}  // namespace

Document::Document(DocumentType type)
    : Component(ComponentTypes::Instance().Require(ComponentName(type))), _type(type), _tree(*this)
{
    KeepByHost(true);
}

const char* Document::ComponentName(DocumentType type)
{
    switch (type) {
        case DocumentType::Analysis:
            return "VEXAnalysisDocument";
        case DocumentType::Product:
            return "VEXProductDocument";
        case DocumentType::Part:
            break;
    }
    return "VEXPartDocument";
}

Feature* Document::SpecContainer() const
{
    for (Feature* const root : _tree.Roots()) {
        if (!root->Kind().IsKindOf(brepContainer)) {
            return root;
        }
    }
    return nullptr;
}

Feature* Document::BRepContainer() const
{
    for (Feature* const root : _tree.Roots()) {
        if (root->Kind().IsKindOf(brepContainer)) {
            return root;
        }
    }
    return nullptr;
}

void Document::SetPath(std::string absolutePath)
{
    _pathIdentity = absolutePath.empty() ? std::string() : DocumentPathIdentity(absolutePath);
    _path = std::move(absolutePath);
}

void Document::SetStored(const std::string& path, const std::optional<system::FileSummary>& summary,
                         bool hasLinks)
{
    _stored.reset();
    if (summary) {
        _stored = StoredForm{path, *summary, hasLinks, _dataVersion, _tree.Changes()};
    }
}

const Document::StoredForm* Document::Stored() const
{
    const bool unchanged = _stored && _stored->changes == _tree.Changes() &&
                           _stored->dataVersion == _dataVersion && _blobs.Numbers().empty();
    return unchanged ? &*_stored : nullptr;
}

bool Document::Geometry(std::uint64_t number, std::span<const std::byte>& bytes, std::string& error)
{
    return _blobs.Read(number, bytes, error);
}

void Document::Close()
{
    _open = false;
    _tree.Clear();
}

Document* Document::From(const VEXDocument* document)
{
    if (document == nullptr) {
        return nullptr;
    }
    for (Document* const live : DocumentSession::Instance().Documents()) {
        if (live->AsVEXDocument() == document) {
            return live;
        }
    }
    return nullptr;
}

Document* Document::OwnerOf(const VEXBaseUnknown* featureInterface)
{
    VEXBaseUnknown* const component =
        featureInterface == nullptr ? nullptr : featureInterface->GetImpl();
    if (const auto* const feature = dynamic_cast<Feature*>(component)) {
        return feature->Tree() == nullptr ? nullptr : &feature->Tree()->Owner();
    }
    auto* const document = dynamic_cast<Document*>(component);
    return document == nullptr || !document->IsOpen() ? nullptr : document;
}

}  // namespace vex
