// SPDX-License-Identifier: Apache-2.0
// The interfaces of product nodes and parts. They cross from a product document into those it links
// to, which are opened when they are first needed.
#pragma once

#include "VEXProductStructure.h"
#include "host/feature/FeatureAdapters.h"

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

class VEX_EXPORT LinkableObjectAdapter final : public Adapter<VEXILinkableObject, Feature>
{
public:
    using Adapter::Adapter;
    VEXDocument* GetDocument() const override;
};

/// Rows: of VEXProductNode and of VEXPart, both on top of featureInterfaces.
VEX_EXPORT extern const std::span<const VEXInterfaceRow> productNodeInterfaces;
VEX_EXPORT extern const std::span<const VEXInterfaceRow> partInterfaces;

}  // namespace vex
