// SPDX-License-Identifier: Apache-2.0
// What stands in a new analysis case.
#include "product/cases/AnalysisCaseBuilder.h"

#include "host/feature/FeatureSearch.h"
#include "host/feature/FeatureTree.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_set>

namespace hlx {

namespace {

using vex::AddFeature;
using vex::Feature;

constexpr const char* caseType = "HLXHacAnalysisCaseLT";
constexpr const char* behaviorType = "HLXElementBehaviorLT";

/// What can hold before the first step: conditions, contacts and fields, no loads.
constexpr std::string_view initialContainers[] = {
    "HLXBoundaryConditionContainerLT",
    "HLXInteractionContainerLT",
    "HLXHacFieldContainerLT",
};

std::string NextAlias(const Feature& model)
{
    const std::string prefix = "Analysis Case.";
    std::unordered_set<std::string_view> taken;
    std::size_t cases = 0;
    for (const Feature* const child : model.Children()) {
        taken.insert(child->Alias());
        cases += child->Kind().IsKindOf(caseType) ? 1U : 0U;
    }
    std::string alias;
    do {
        alias = prefix + std::to_string(++cases);
    } while (taken.contains(alias));
    return alias;
}

}  // namespace

Feature& AddAnalysisCase(Feature& model, HLXIAnalysisCase::analysisTypeEnum type)
{
    const std::string alias = NextAlias(model);
    Feature& analysisCase = AddFeature(model, caseType);
    analysisCase.SetAlias(alias);
    analysisCase.Set("AnalysisType", std::int64_t{type});
    AddInitialStep(AddFeature(analysisCase, "HLXHacSimHistLT"), "Initial");
    AddFeature(analysisCase, "HLXJobContainerLT");
    AddFeature(analysisCase, "HLXHacSolutionLT");
    return analysisCase;
}

bool IsInInitialSteps(std::string_view containerType)
{
    return std::ranges::find(initialContainers, containerType) != std::end(initialContainers);
}

Feature& AddInitialStep(Feature& history, std::string_view alias)
{
    Feature& step = AddFeature(history, "HLXHacInitialStepLT", history.Children().front());
    step.SetAlias(alias);
    for (const std::string_view container : initialContainers) {
        AddFeature(step, container);
    }
    return step;
}

Feature& AddElementBehavior(Feature& analysisCase)
{
    Feature* const behavior = vex::FirstChildOfType(analysisCase, behaviorType);
    return behavior == nullptr ? AddFeature(analysisCase, behaviorType) : *behavior;
}

}  // namespace hlx
