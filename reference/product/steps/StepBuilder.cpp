// SPDX-License-Identifier: Apache-2.0
// What stands in a new step.
#include "product/steps/StepBuilder.h"

#include "host/feature/FeatureSearch.h"
#include "host/feature/FeatureTree.h"
#include "host/system/Texts.h"

#include <algorithm>

namespace hlx {

namespace {

using vex::Feature;
using vex::LateType;

constexpr const char* stepContainers[] = {
    "HLXLoadContainerLT",
    "HLXBoundaryConditionContainerLT",
    "HLXInteractionContainerLT",
    "HLXTemperatureContainerLT",
};

/// Kinds of step that cannot be added, besides the initial ones: the bases.
constexpr std::string_view otherSteps[] = {
    "HLXStepLT",
    "HLXIncrementedStepLT",
};

}  // namespace

Feature* HistoryOf(const Feature& analysisCase)
{
    return vex::FirstChildOfType(analysisCase, "HLXHacSimHistLT");
}

Feature* AddStep(Feature& analysisCase, std::string_view lateType, std::string_view name,
                 std::string& error)
{
    vex::LateTypes& types = vex::LateTypes::Instance();
    Feature* const history = HistoryOf(analysisCase);
    const LateType* const kind = types.Find(lateType);
    if (history == nullptr) {
        error = "the feature is no analysis case with a simulation history; give an analysis case";
        return nullptr;
    }
    if (kind == nullptr || !kind->IsKindOf("HLXStepLT") || kind->IsKindOf("HLXHacInitialStepLT") ||
        std::ranges::find(otherSteps, kind->name) != std::end(otherSteps)) {
        error = vex::text::DoubleQuoted(lateType) +
                " is no kind of step that can be added; give one such as HLXGeneralStaticStepLT";
        return nullptr;
    }
    if (!vex::text::IsValid(name)) {
        error = "the step's name " + vex::text::DoubleQuoted(name) +
                " is not valid UTF-8; give another name";
        return nullptr;
    }
    Feature& step = history->Tree()->Create(*kind, history);
    if (!name.empty()) {
        step.SetAlias(name);
    }
    for (const char* const container : stepContainers) {
        vex::AddFeature(step, container);
    }
    return &step;
}

}  // namespace hlx
