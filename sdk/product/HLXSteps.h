// SPDX-License-Identifier: Apache-2.0
// Making analysis steps.
//
// Kinds of step, by late type: HLXGeneralStaticStepLT, HLXStaticLPStepLT (linear perturbation),
// HLXRiksStepLT, HLXFrequencyStepLT, HLXHeatTransferStepLT, HLXExplicitDynamicStepLT, and
// HLXExplicitDynamicLT, the last one by another name. A new step stands at the end of the case's
// simulation history with its containers of conditions.
#pragma once

#include "VEXAnalysisModel.h"

class VEX_EXPORT HLXStepUtils
{
public:
    /// Makes a step.
    /// @param name          its alias; empty for none
    /// @param analysisCase  the case
    /// @param step          receives the step with a reference added that the caller releases; null
    ///                      on failure
    /// @param lateType      kind of step
    /// @return S_OK; E_INVALIDARG for a null case; E_FAIL, with the reason on standard error and
    /// nothing made, for a case that is gone, a type that is no kind of step, and a name that is
    /// not valid UTF-8
    static HRESULT AddStep(VEXUnicodeString name, VEXISamAnalysisCase* analysisCase,
                           VEXISamAnalysisSet*& step, VEXUnicodeString lateType);
};

/// Factory of steps; component "HLXAnalysisStepFact". Names of ours: CreateStep.
class HLXIAnalysisStepFact : public VEXBaseUnknown
{
public:
    /// Makes a step without an alias.
    /// @param history       the simulation history of the case; null: the factory finds it
    /// @param analysisCase  the case
    /// @param step          receives the step with a reference added that the caller releases; null
    ///                      on failure
    /// @param lateType      kind of step
    /// @return as HLXStepUtils::AddStep; E_INVALIDARG also for a history that is not of the case
    virtual HRESULT CreateStep(VEXISamAnalysisScan* history, VEXISamAnalysisCase* analysisCase,
                               VEXISamAnalysisSet*& step, const VEXUnicodeString& lateType) = 0;
};

VEX_INTERFACE(HLXIAnalysisStepFact);
