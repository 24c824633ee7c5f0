// SPDX-License-Identifier: Apache-2.0
// Static utilities that set an analysis up: steps, amplitudes, jobs, in the order of their header.
#include "HLXAmplitudes.h"
#include "HLXAnalysisTestUtils.h"
#include "HLXConsole.h"
#include "HLXNumber.h"
#include "HLXSteps.h"
#include "VEXComponents.h"
#include "VEXError.h"

#include <algorithm>
#include <iterator>

// --- Steps ------------------------------------------------------------------------------------

namespace {

struct StepKind
{
    const char* code;
    const char* namePrefix;
    const char* lateType;
    const char* success;
};

/// "Staic", the "Static HT" of the heat transfer, and the late type without "Step" are kept.
constexpr StepKind stepKinds[] = {
    {"GSS", "General_Static_Step_", "HLXGeneralStaticStepLT",
     "Adding General Static step succeeded !"},
    {"SPS", "Staic_Perturbation_Step_", "HLXStaticLPStepLT", "Adding Static LP step succeeded !"},
    {"RS", "Riks_Step_", "HLXRiksStepLT", "Adding Riks step succeeded !"},
    {"HTS", "Heat_Transfer_Step_", "HLXHeatTransferStepLT", "Adding Static HT step succeeded !"},
    {"EDS", "Explicit_Dynamic_Step_", "HLXExplicitDynamicLT",
     "Adding Explicit Dynamic step succeeded !"},
};

}  // namespace

HRESULT HLXAnalysisTestUtils::CreateSteps(VEXListValVEXUnicodeString& stepCodes,
                                          VEXISamAnalysisCase* analysisCase,
                                          VEXListPtrVEXBaseUnknown& steps)
{
    for (int i = 1; i <= stepCodes.Size(); ++i) {
        const VEXUnicodeString code = stepCodes[i];
        HLXConsole::PrintLine(code);
        const StepKind* const kind = std::ranges::find_if(
            stepKinds, [&](const StepKind& each) { return code == each.code; });
        // An unknown code is no error, and takes a number all the same; kept.
        if (kind == std::end(stepKinds)) continue;

        VEXUnicodeString name = kind->namePrefix;
        name.Append(HLXNumber::Decimal(i));
        VEXISamAnalysisSet* step = nullptr;
        const HRESULT rc = HLXStepUtils::AddStep(name, analysisCase, step, kind->lateType);
        if (FAILED(rc) || step == nullptr) {
            return HLXConsole::Fail("Add Step failed !");
        }
        HLXConsole::PrintLine(kind->success);
        steps.Append(step);
    }
    return S_OK;
}

// --- Amplitudes -------------------------------------------------------------------------------

namespace {

/// The table of every amplitude made here: ten rows (k, 2k).
HLXCftArrayHLXCftArrayDouble AmplitudeTable()
{
    HLXCftArrayHLXCftArrayDouble table;
    for (int time = 0; time < 10; ++time) {
        HLXCftArraydouble row;
        row.push_back(time);
        row.push_back(2 * time);
        table.push_back(row);
    }
    return table;
}

/// Makes an amplitude by one operation of the factory and fills it through its interface.
template <class Amplitude>
HRESULT CreateAmplitude(HRESULT (HLXIAmplitudeFact::*create)(VEXISpecObject_var&, VEXDocument*),
                        const IID& iid, VEXDocument* document, unsigned char setOption,
                        VEXISpecObject_var& amplitude)
{
    void* made = nullptr;
    HRESULT rc = VEXInstantiateComponent("HLXAmplitudeFact", IID_HLXIAmplitudeFact, &made);
    const HLXIAmplitudeFact_var factory = VEXAdopt(static_cast<HLXIAmplitudeFact*>(made));
    if (FAILED(rc)) return rc;
    if (factory) rc = (factory.Get()->*create)(amplitude, document);
    if (FAILED(rc)) return rc;

    void* found = nullptr;
    if (amplitude == nullptr || FAILED(amplitude->QueryInterface(iid, &found)) ||
        found == nullptr) {
        return E_FAIL;
    }
    const VEXVar<Amplitude> filled = VEXAdopt(static_cast<Amplitude*>(found));
    // The option's result is not looked at; kept.
    if (setOption != 0) filled->SetTimeSpan(1);
    return filled->SetData(AmplitudeTable());
}

}  // namespace

HRESULT HLXAnalysisTestUtils::CreateTabularAmplitude(VEXDocument* document, unsigned char setOption,
                                                     VEXISpecObject_var& amplitude)
{
    return CreateAmplitude<HLXITabularAmplitude>(&HLXIAmplitudeFact::CreateTabularAmplitude,
                                                 IID_HLXITabularAmplitude, document, setOption,
                                                 amplitude);
}

HRESULT HLXAnalysisTestUtils::CreateSmoothStepAmplitude(VEXDocument* document,
                                                        unsigned char setOption,
                                                        VEXISpecObject_var& amplitude)
{
    return CreateAmplitude<HLXISmoothStepAmplitude>(&HLXIAmplitudeFact::CreateSmoothStepAmplitude,
                                                    IID_HLXISmoothStepAmplitude, document,
                                                    setOption, amplitude);
}

// --- Jobs -------------------------------------------------------------------------------------

HRESULT HLXAnalysisTestUtils::CreateJob(VEXDocument* document,
                                        VEXISamAnalysisCase_var& analysisCase, HLXIJob_var& job)
{
    const VEXISamAnalysisScan_var scan = analysisCase;
    VEXListValVEXBaseUnknown_var containers;
    // The list tells, the result is not looked at; kept.
    if (scan) scan->GetChildren("HLXJobContainerLT", containers, 3);
    if (containers.Size() == 0) return E_FAIL;

    const VEXBaseUnknown_var container = containers[1];
    void* found = nullptr;
    if (container) container->QueryInterface(IID_HLXIJobFactory, &found);
    const HLXIJobFactory_var factory = VEXAdopt(static_cast<HLXIJobFactory*>(found));
    // The handle tells, the result is not looked at: a job that was in it before stays one; kept.
    if (factory) factory->CreateJob(document, job);
    if (job == nullptr) return E_FAIL;
    // Whether the job took the case is not looked at; kept.
    job->SetAnalysisCase(analysisCase);
    return S_OK;
}

namespace {

/// What the error service makes of a status (1 success, 0 failure) at one of the exits, each of
/// which is known by its line; kept, whatever the lines of this file are.
HRESULT ReturnAt(int line, int status)
{
    return VEXError::GetReturn(status, nullptr, nullptr,
                               "HLXTestUtilities.m/src/HLXAnalysisTestUtils", line);
}

}  // namespace

HRESULT HLXAnalysisTestUtils::AddJobsForWritingInputFiles(VEXDocument* document,
                                                          VEXISamAnalysisCase_var analysisCase,
                                                          const VEXUnicodeString& jobName)
{
    // Its answer is replaced by that of the exit; the call is kept.
    ReturnAt(3725, 1);

    HLXIJob_var job;
    if (FAILED(CreateJob(document, analysisCase, job))) return ReturnAt(3736, 0);
    VEXIAlias_var alias = job;
    if (alias == nullptr) return ReturnAt(3740, 0);
    alias->SetAlias(jobName);
    job->SetSinglePart(0);

    VEXUnicodeString singlePartName = jobName;
    singlePartName.Append("_SinglePart");
    // The handle still holds the first job; kept.
    if (FAILED(CreateJob(document, analysisCase, job))) return ReturnAt(3753, 0);
    alias = job;
    if (alias == nullptr) return ReturnAt(3757, 0);
    alias->SetAlias(singlePartName);
    job->SetSinglePart(1);
    // CreateJob gave it the case already; kept.
    job->SetAnalysisCase(analysisCase);
    return ReturnAt(3763, 1);
}
