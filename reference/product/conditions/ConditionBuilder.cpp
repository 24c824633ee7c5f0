// SPDX-License-Identifier: Apache-2.0
// Conditions stand in containers of their step, one for each subject.
#include "product/conditions/ConditionBuilder.h"

#include "host/feature/FeatureSearch.h"
#include "host/feature/FeatureTree.h"
#include "product/cases/AnalysisDocuments.h"

namespace hlx {

HRESULT MakeCondition(std::string_view lateType, std::string_view containerType,
                      VEXISpecObject_var& condition, const VEXDocument* document,
                      const VEXISamAnalysisSet_var& step)
{
    const vex::Document* const owner = AnalysisDocument(document);
    const vex::Feature* const found = vex::FeatureBehind(step.Get());
    if (owner == nullptr || found == nullptr || found->Tree() != &owner->Tree() ||
        !found->Kind().IsKindOf("HLXStepLT")) {
        return E_INVALIDARG;
    }
    vex::Feature* const container = vex::FirstChildOfType(*found, containerType);
    if (container == nullptr) {
        return E_FAIL;
    }
    condition = vex::FaceOf<VEXISpecObject>(&vex::AddFeature(*container, lateType));
    return S_OK;
}

}  // namespace hlx
