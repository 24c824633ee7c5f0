// SPDX-License-Identifier: Apache-2.0
// What a job holds, and where a new one stands.
#include "product/jobs/JobAdapters.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/feature/AttributeValues.h"
#include "host/feature/FeatureTree.h"
#include "host/system/Probe.h"

namespace hlx {

using vex::In;
using vex::Out;
using vex::Probe;

HRESULT JobAdapter::SetSinglePart(unsigned char flag)
{
    return Probe<"HLXIJob::SetSinglePart">([&] { return vex::SetFlag(Self(), "SinglePart", flag); },
                                           In(flag));
}

HRESULT JobAdapter::GetSinglePart(unsigned char& flag) const
{
    return Probe<"HLXIJob::GetSinglePart">([&] { return vex::GetFlag(Self(), "SinglePart", flag); },
                                           Out(flag));
}

HRESULT JobAdapter::SetAnalysisCase(const VEXISpecObject_var& analysisCase)
{
    return Probe<"HLXIJob::SetAnalysisCase">(
        [&] { return vex::SetTarget<VEXISamAnalysisCase>(Self(), "AnalysisCase", analysisCase); },
        In(analysisCase));
}

HRESULT JobAdapter::GetAnalysisCase(VEXISpecObject_var& analysisCase) const
{
    return Probe<"HLXIJob::GetAnalysisCase">(
        [&] { return vex::GetTarget<VEXISamAnalysisCase>(Self(), "AnalysisCase", analysisCase); },
        Out(analysisCase));
}

HRESULT JobAdapter::SetResultsDirectory(const VEXUnicodeString& folder)
{
    return Probe<"HLXIJob::SetResultsDirectory">(
        [&] { return vex::SetText(Self(), "ResultsDirectory", folder); }, In(folder));
}

HRESULT JobAdapter::SetScratchDirectory(const VEXUnicodeString& folder)
{
    return Probe<"HLXIJob::SetScratchDirectory">(
        [&] { return vex::SetText(Self(), "ScratchDirectory", folder); }, In(folder));
}

HRESULT JobAdapter::GetResultsDirectory(VEXUnicodeString& folder) const
{
    return Probe<"HLXIJob::GetResultsDirectory">(
        [&] { return vex::GetText(Self(), "ResultsDirectory", folder); }, Out(folder));
}

HRESULT JobAdapter::GetScratchDirectory(VEXUnicodeString& folder) const
{
    return Probe<"HLXIJob::GetScratchDirectory">(
        [&] { return vex::GetText(Self(), "ScratchDirectory", folder); }, Out(folder));
}

HRESULT JobFactory::CreateJob(VEXDocument* document, HLXIJob_var& job)
{
    return Probe<"HLXIJobFactory::CreateJob">(
        [&]() -> HRESULT {
            vex::FeatureTree* const tree = Self().Tree();
            if (tree == nullptr) {
                return E_FAIL;
            }
            if (vex::Document::From(document) != &tree->Owner()) {
                return E_INVALIDARG;
            }
            job = vex::FaceOf<HLXIJob>(&vex::AddFeature(Self(), "HLXJobLT"));
            return S_OK;
        },
        In(vex::DocumentArgument{document}), Out(job));
}

}  // namespace hlx
