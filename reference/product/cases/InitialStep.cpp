// SPDX-License-Identifier: Apache-2.0
// Finding initial steps, and making what is missing.
#include "product/cases/InitialStep.h"

#include "host/feature/FeatureSearch.h"
#include "host/feature/FeatureTree.h"
#include "product/cases/AnalysisCaseBuilder.h"

namespace hlx {

namespace {

using vex::Feature;

constexpr const char* historyType = "HLXHacSimHistLT";

bool Fits(const Feature& step, const InitialStepRequest& request)
{
    return step.Kind().IsKindOf("HLXHacInitialStepLT") &&
           (request.alias.empty() || step.Alias() == request.alias) &&
           (request.make || request.containerType.empty() ||
            vex::FirstChildOfType(step, request.containerType) != nullptr);
}

/// Where a case lists its steps: below it, and below what stands there.
Feature* Find(const Feature& analysisCase, const InitialStepRequest& request)
{
    for (Feature* const child : analysisCase.Children()) {
        if (Fits(*child, request)) {
            return child;
        }
        for (Feature* const step : child->Children()) {
            if (Fits(*step, request)) {
                return step;
            }
        }
    }
    return nullptr;
}

}  // namespace

Feature* FindInitialStep(Feature& analysisCase, const InitialStepRequest& request)
{
    Feature* step = Find(analysisCase, request);
    if (!request.make) {
        return step;
    }
    if (step == nullptr) {
        Feature* const known = vex::FirstChildOfType(analysisCase, historyType);
        Feature& history = known != nullptr ? *known
                                            : vex::AddFeature(analysisCase, historyType,
                                                              analysisCase.Children().front());
        step = &AddInitialStep(history, request.alias.empty() ? "Initial" : request.alias);
    }
    if (!request.containerType.empty() &&
        vex::FirstChildOfType(*step, request.containerType) == nullptr) {
        vex::AddFeature(*step, request.containerType);
    }
    return step;
}

}  // namespace hlx
