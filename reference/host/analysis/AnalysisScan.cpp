// SPDX-License-Identifier: Apache-2.0
// Search below an analysis object, level by level, so that the nearest stands first; and moving an
// object there.
#include "host/analysis/AnalysisAdapters.h"
#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"

namespace vex {

HRESULT AnalysisScanAdapter::AddObject(VEXBaseUnknown* object, VEXBaseUnknown* before)
{
    return Probe<"VEXISamAnalysisScan::AddObject">(
        [&]() -> HRESULT {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            Feature* const feature = FeatureBehind(object);
            Feature* const successor = FeatureBehind(before);
            const bool isPlace =
                before == nullptr || (successor != nullptr && successor->Parent() == &Self());
            // A document's containers stay where they are.
            if (feature == nullptr || feature->Tree() != Self().Tree() ||
                feature->Parent() == nullptr || !isPlace) {
                return E_INVALIDARG;
            }
            return Self().Tree()->Move(*feature, &Self(), successor) ? S_OK : E_INVALIDARG;
        },
        In(object), In(before));
}

HRESULT AnalysisScanAdapter::GetChildren(const VEXUnicodeString& lateType,
                                         VEXListValVEXBaseUnknown_var& objects, int depth) const
{
    return Probe<"VEXISamAnalysisScan::GetChildren">(
        [&]() -> HRESULT {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            std::vector<const Feature*> level{&Self()};
            for (int distance = 1; distance <= depth && !level.empty(); ++distance) {
                std::vector<const Feature*> next;
                for (const Feature* const parent : level) {
                    for (Feature* const child : parent->Children()) {
                        if (lateType.IsEmpty() || child->Kind().IsKindOf(lateType.View())) {
                            objects.Append(HandleOf(child));
                        }
                        next.push_back(child);
                    }
                }
                level = std::move(next);
            }
            return S_OK;
        },
        In(lateType), Out(objects), In(depth));
}

}  // namespace vex
