// SPDX-License-Identifier: Apache-2.0
// The interfaces of product nodes, and that of objects which can be linked to. They cross from a
// product document into those it links to, which are opened when they are first needed.
#pragma once

#include "VEXProductStructure.h"
#include "host/feature/Document.h"
#include "host/feature/FeatureAdapters.h"
#include "host/system/Probe.h"

#include <span>

namespace vex {

class VEX_EXPORT ProductAdapter final : public Adapter<VEXIProduct, Feature>
{
public:
    using Adapter::Adapter;
    VEXListValVEXBaseUnknown_var* GetChildren(const char* interfaceName) const override;
    VEXUnicodeString GetPartNumber() const override;
};

/// Descendants across documents (AllBelow). E_FAIL, with the reason on standard error, when a
/// linked document cannot be opened.
class VEX_EXPORT ProductDescendantsAdapter final : public DescendantsAdapter
{
public:
    using DescendantsAdapter::DescendantsAdapter;

protected:
    bool AppendBelow(std::vector<Feature*>& below, std::string& error) const override;
};

/// The document that holds a feature; null when the feature is gone.
inline const Document* DocumentOf(const Feature& feature)
{
    return Document::OwnerOf(&feature);
}

/// Of whatever DocumentOf tells the document of.
template <class Object>
class LinkableAdapter final : public Adapter<VEXILinkableObject, Object>
{
public:
    using Adapter<VEXILinkableObject, Object>::Adapter;

    VEXDocument* GetDocument() const override
    {
        return Probe<"VEXILinkableObject::GetDocument">([&]() -> VEXDocument* {
            const Document* const document = DocumentOf(this->Self());
            return document == nullptr ? nullptr : document->AsVEXDocument();
        });
    }
};

using LinkableObjectAdapter = LinkableAdapter<Feature>;

/// Rows of VEXProductNode, on top of featureInterfaces.
VEX_EXPORT extern const std::span<const VEXInterfaceRow> productNodeInterfaces;

}  // namespace vex
