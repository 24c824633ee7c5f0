// SPDX-License-Identifier: Apache-2.0
// What the analysis interfaces share: handles of features, the features below one that offer an
// interface, and document pointers that may be stale.
#pragma once

#include "VEXLists.h"
#include "host/feature/Document.h"
#include "host/feature/FeatureSearch.h"

namespace vex {

/// A counted handle of a feature; empty for null.
inline VEXBaseUnknown_var HandleOf(Feature* feature)
{
    return VEXShare<VEXBaseUnknown>(feature);
}

/// Appends the children that offer an interface, in order. @return S_OK; E_FAIL when the parent is
/// gone
template <class Interface>
HRESULT AppendChildren(const Feature& parent, VEXListValVEXBaseUnknown_var& list)
{
    if (parent.Tree() == nullptr) {
        return E_FAIL;
    }
    for (Feature* const child : parent.Children()) {
        if (Offers<Interface>(*child)) {
            list.Append(HandleOf(child));
        }
    }
    return S_OK;
}

/// The manager of an analysis document; null for a document that has none.
VEX_EXPORT Feature* AnalysisManagerOf(const Document& document);

/// A document pointer that a caller gave: it may be stale, so a probe looks it up and does not
/// follow it.
struct DocumentArgument
{
    const VEXDocument* document;
};

VEX_EXPORT std::string TextOf(const DocumentArgument& argument);

}  // namespace vex
