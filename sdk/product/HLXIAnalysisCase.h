// SPDX-License-Identifier: Apache-2.0
// The product's own side of an analysis case, and the factories of cases and element behaviours.
#pragma once

#include "VEXAnalysisModel.h"

/// An analysis case of the product.
/// Names of ours: GetAnalysisType.
class HLXIAnalysisCase : public VEXBaseUnknown
{
public:
    /// Kind of analysis that the case is meant for. Stored in the case; every kind takes every
    /// step.
    enum analysisTypeEnum : int {
        StructuralAnalysis = 0,
        ThermalAnalysis = 1,
        ThermalStructuralAnalysis = 2,
        ExplicitDynamicAnalysis = 3,
        FrequencyAnalysis = 4,
    };

    /// The kind of analysis that the case is meant for.
    virtual HRESULT GetAnalysisType(analysisTypeEnum& type) const = 0;
};

VEX_INTERFACE(HLXIAnalysisCase);

/// Factory of analysis cases; component "HLXHacAnalysisCaseFact".
/// Names of ours: CreateAnalysisCase.
class HLXIHacAnalysisCaseFact : public VEXBaseUnknown
{
public:
    /// Makes a case at the end of the document's current model, with its simulation history,
    /// initial step, job container and condition containers. Its alias is "Analysis Case." and its
    /// number.
    /// @param analysisCase  receives the case with a reference added that the caller releases; null
    /// on failure
    /// @return S_OK; E_INVALIDARG for a document that is not an open analysis document or an
    /// unknown type; E_FAIL
    virtual HRESULT CreateAnalysisCase(VEXISamAnalysisCase*& analysisCase, VEXDocument* document,
                                       HLXIAnalysisCase::analysisTypeEnum type) = 0;
};

VEX_INTERFACE(HLXIHacAnalysisCaseFact);

/// Factory of element behaviours; component "HLXElementBehaviorFact".
/// Names of ours: CreateElementBehavior.
class HLXIElementBehaviorFact : public VEXBaseUnknown
{
public:
    /// Makes the element behaviour of a case (feature "HLXElementBehaviorLT"); a second call for a
    /// case keeps the first.
    /// @return S_OK; E_INVALIDARG for a null case or one of another platform object; E_FAIL
    virtual HRESULT CreateElementBehavior(VEXISamAnalysisCase*& analysisCase) = 0;
};

VEX_INTERFACE(HLXIElementBehaviorFact);
