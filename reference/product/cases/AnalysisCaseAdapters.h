// SPDX-License-Identifier: Apache-2.0
// The product's interface of an analysis case, and the factories of cases and element behaviours.
#pragma once

#include "HLXIAnalysisCase.h"
#include "host/component/Adapter.h"
#include "host/feature/Feature.h"

namespace hlx {

class AnalysisCaseAdapter final : public vex::Adapter<HLXIAnalysisCase, vex::Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetAnalysisType(analysisTypeEnum& type) const override;
};

class AnalysisCaseFactory final : public vex::Adapter<HLXIHacAnalysisCaseFact, vex::Component>
{
public:
    using Adapter::Adapter;
    HRESULT CreateAnalysisCase(VEXISamAnalysisCase*& analysisCase, VEXDocument* document,
                               HLXIAnalysisCase::analysisTypeEnum type) override;
};

class ElementBehaviorFactory final : public vex::Adapter<HLXIElementBehaviorFact, vex::Component>
{
public:
    using Adapter::Adapter;
    HRESULT CreateElementBehavior(VEXISamAnalysisCase*& analysisCase) override;
};

}  // namespace hlx
