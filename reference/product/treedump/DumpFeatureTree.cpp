// SPDX-License-Identifier: Apache-2.0
// The tree dump as the SDK offers it.
#include "HLXProductUtilities.h"
#include "host/system/Probe.h"
#include "product/treedump/TreeDump.h"

#include <new>
#include <utility>

/// A dump in a trace: how long it is, for it may have a million lines.
static std::string TextOf(const HLXGenString& text)
{
    return "[" + vex::probe::TextOfNumber(static_cast<std::int64_t>(text.Length())) + " bytes]";
}

namespace {

HRESULT Dump(VEXINavigateObject* root, int depth, HLXGenString& text)
{
    auto* const feature = root == nullptr ? nullptr : dynamic_cast<vex::Feature*>(root->GetImpl());
    if (feature == nullptr) {
        return E_INVALIDARG;
    }
    if (feature->Tree() == nullptr) {
        return E_FAIL;
    }
    try {
        std::string lines;
        hlx::AppendFeatureTree(lines, *feature, depth);
        if (text.Length() == 0) {
            text = HLXGenString(std::move(lines));
        } else {
            text.Append(lines);
        }
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
    return S_OK;
}

}  // namespace

HRESULT DumpFeatureTree(VEXINavigateObject* root, int depth, HLXGenString& text)
{
    return vex::Probe<"DumpFeatureTree">([&] { return Dump(root, depth, text); }, vex::In(root),
                                         vex::In(depth), vex::Out(text));
}
