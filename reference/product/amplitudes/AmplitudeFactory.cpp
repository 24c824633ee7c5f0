// SPDX-License-Identifier: Apache-2.0
// Amplitudes are made below the document's current model.
#include "product/amplitudes/AmplitudeFactory.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/feature/FeatureTree.h"
#include "host/system/Probe.h"
#include "product/cases/AnalysisDocuments.h"

namespace hlx {

namespace {

HRESULT Make(const char* lateType, VEXISpecObject_var& amplitude, const VEXDocument* document)
{
    const vex::Document* const owner = AnalysisDocument(document);
    if (owner == nullptr) {
        return E_INVALIDARG;
    }
    vex::Feature* const model = CurrentModelOf(*owner);
    if (model == nullptr) {
        return E_FAIL;
    }
    amplitude = vex::FaceOf<VEXISpecObject>(&vex::AddFeature(*model, lateType));
    return S_OK;
}

}  // namespace

HRESULT AmplitudeFactory::CreateTabularAmplitude(VEXISpecObject_var& amplitude,
                                                 VEXDocument* document)
{
    return vex::Probe<"HLXIAmplitudeFact::CreateTabularAmplitude">(
        [&] { return Make("HLXTabularAmplitudeLT", amplitude, document); }, vex::Out(amplitude),
        vex::In(vex::DocumentArgument{document}));
}

HRESULT AmplitudeFactory::CreateSmoothStepAmplitude(VEXISpecObject_var& amplitude,
                                                    VEXDocument* document)
{
    return vex::Probe<"HLXIAmplitudeFact::CreateSmoothStepAmplitude">(
        [&] { return Make("HLXSmoothStepAmplitudeLT", amplitude, document); }, vex::Out(amplitude),
        vex::In(vex::DocumentArgument{document}));
}

}  // namespace hlx
