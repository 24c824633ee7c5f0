// SPDX-License-Identifier: Apache-2.0
// HLXBaseTestCase: steps and amplitudes made for the test case.
#include "HLXBaseTestCase.h"
#include "HLXConsole.h"
#include "HLXSteps.h"
#include "VEXComponents.h"

HRESULT HLXBaseTestCase::CreateStep(const VEXUnicodeString& stepType,
                                    const VEXUnicodeString& stepName, VEXISamAnalysisSet*& step)
{
    // The factory is not released; kept.
    void* made = nullptr;
    const HRESULT instantiated =
        VEXInstantiateComponent("HLXAnalysisStepFact", IID_HLXIAnalysisStepFact, &made);
    if (FAILED(instantiated) || made == nullptr || _AnalysisCases.Size() == 0) return E_FAIL;
    const VEXISamAnalysisCase_var analysisCase = _AnalysisCases[1];
    if (analysisCase == nullptr) return E_FAIL;

    const VEXISamAnalysisScan_var scan = analysisCase;
    VEXListValVEXBaseUnknown_var histories;
    VEXISamAnalysisScan_var history;
    // Without a history the step is made all the same; kept.
    if (scan && SUCCEEDED(scan->GetChildren("HLXHacSimHistLT", histories, 3))) {
        history = histories[1];
    }
    const HRESULT rc = static_cast<HLXIAnalysisStepFact*>(made)->CreateStep(
        history.Get(), analysisCase.Get(), step, stepType);
    if (SUCCEEDED(rc) && step != nullptr) {
        const VEXIAlias_var alias = VEXShare(step);
        // Whether the name was taken is not looked at; kept.
        if (alias) alias->SetAlias(stepName);
    }
    return rc;
}

HRESULT HLXBaseTestCase::CreateTabularAmplitude(HLXITabularAmplitude*& amplitude)
{
    void* made = nullptr;
    const HRESULT instantiated =
        VEXInstantiateComponent("HLXAmplitudeFact", IID_HLXIAmplitudeFact, &made);
    const HLXIAmplitudeFact_var factory = VEXAdopt(static_cast<HLXIAmplitudeFact*>(made));
    if (FAILED(instantiated) || factory == nullptr) {
        // Spelled so, and without an end of line; kept.
        HLXConsole::Print("Could not instanciate the Amplitude factory");
        return E_FAIL;
    }
    _AmplitudeFeature.Reset();
    if (FAILED(factory->CreateTabularAmplitude(_AmplitudeFeature, _Document)) ||
        _AmplitudeFeature == nullptr) {
        HLXConsole::Print("Could not create tabular amplitude.");
        return E_FAIL;
    }
    void* found = nullptr;
    const HRESULT rc = _AmplitudeFeature->QueryInterface(IID_HLXITabularAmplitude, &found);
    amplitude = static_cast<HLXITabularAmplitude*>(found);
    if (SUCCEEDED(rc) && amplitude != nullptr) return rc;
    HLXConsole::Print("Could not get interface Tabular Amplitude");
    return E_FAIL;
}
