// SPDX-License-Identifier: Apache-2.0
// The table of keywords. A late type of another catalogue need not stand here: it is written as
// *FEATURE, TYPE=...
#include "product/inputfile/Keywords.h"

#include <algorithm>
#include <iterator>

namespace hlx {

namespace {

using enum KeywordShape;

/// Sorted by late type. Jobs say how a deck is run and solutions what came of it: neither is input.
constexpr KeywordRule rules[] = {
    {"HLXARSurfLT", "ADVANCED SURFACE"},
    {"HLXARSurfMeshPartLT", "ADVANCED SURFACE MESH PART"},
    {"HLXAccelerationBCLT", "ACCELERATION"},
    {"HLXBaseConnectorLT", "CONNECTOR"},
    {"HLXBaseOutputLT", "OUTPUT"},
    {"HLXBodyHeatFlux", "BODY HEAT FLUX"},
    {"HLXBoundaryConditionContainerLT", "BOUNDARY CONDITIONS", Block},
    {"HLXClamp", "CLAMP"},
    {"HLXConcHeatFlux", "CONCENTRATED HEAT FLUX"},
    {"HLXConcentratedForce", "CONCENTRATED FORCE"},
    {"HLXContactBehaviorLT", "CONTACT BEHAVIOR"},
    {"HLXContactConnectionEnhancementExplicitLT", "CONTACT CONNECTION EXPLICIT"},
    {"HLXContactConnectionEnhancementLT", "CONTACT CONNECTION"},
    {"HLXContactConnectionEnhancementStdLT", "CONTACT CONNECTION STANDARD"},
    {"HLXContactDomainLT", "CONTACT DOMAIN"},
    {"HLXCyclicSymmetryPropertyLT", "CYCLIC SYMMETRY"},
    {"HLXDamperLT", "DAMPER"},
    {"HLXDamperMeshPartLT", "DAMPER MESH PART"},
    {"HLXDatOutputLT", "DATA OUTPUT"},
    {"HLXDatOutputRequestContainerLT", "DATA OUTPUTS", Block},
    {"HLXDisplacementBC", "DISPLACEMENT"},
    {"HLXDisplayGrpContainerLT", "DISPLAY GROUPS", Block},
    {"HLXElementBehaviorLT", "ELEMENT BEHAVIOR"},
    {"HLXElementTypeLT", "ELEMENT TYPE"},
    {"HLXEquationLT", "EQUATION"},
    {"HLXExplicitDynamicLT", "STEP", Block, "DYNAMIC, EXPLICIT"},
    {"HLXExplicitDynamicStepLT", "STEP", Block, "DYNAMIC, EXPLICIT"},
    {"HLXFieldOutputLT", "FIELD OUTPUT"},
    {"HLXFieldOutputRequestContainerLT", "FIELD OUTPUTS", Block},
    {"HLXFilmCondition", "FILM CONDITION"},
    {"HLXFrequencyStepLT", "STEP", Block, "FREQUENCY"},
    {"HLXGeneralContactLT", "GENERAL CONTACT"},
    {"HLXGeneralStaticStepLT", "STEP", Block, "STATIC"},
    {"HLXGravity", "GRAVITY"},
    {"HLXHacAnaStepSolLT", "", Omitted},
    {"HLXHacAnalysisCaseLT", "CASE", Block},
    {"HLXHacFieldContainerLT", "INITIAL CONDITIONS", Block},
    {"HLXHacInitialStepLT", "INITIAL STEP", Block},
    {"HLXHacSimHistLT", "HISTORY", Block},
    {"HLXHacSolutionLT", "", Omitted},
    {"HLXHeatTransferStepLT", "STEP", Block, "HEAT TRANSFER"},
    {"HLXHistoryOutputLT", "HISTORY OUTPUT"},
    {"HLXHistoryOutputRequestContainerLT", "HISTORY OUTPUTS", Block},
    {"HLXHollexPropertySetLT", "PROPERTY SET"},
    {"HLXInitialTemperatureLT", "INITIAL TEMPERATURE"},
    {"HLXInitialVelocityLT", "INITIAL VELOCITY"},
    {"HLXInteractionContainerLT", "INTERACTIONS", Block},
    {"HLXInteractionPropertyLT", "INTERACTION PROPERTY"},
    {"HLXInterferenceFitLT", "INTERFERENCE FIT"},
    {"HLXJobContainerLT", "", Omitted},
    {"HLXJobLT", "", Omitted},
    {"HLXLayupLT", "LAYUP"},
    {"HLXLoadContainerLT", "LOADS", Block},
    {"HLXMassScalingContainerLT", "MASS SCALINGS", Block},
    {"HLXMassScalingLT", "MASS SCALING"},
    {"HLXMatOrientLT", "MATERIAL ORIENTATION"},
    {"HLXMotionBCLT", "MOTION"},
    {"HLXNewFieldOutputLT", "NEW FIELD OUTPUT"},
    {"HLXPressure", "PRESSURE"},
    {"HLXPropagatingFeatureLT", "PROPAGATING FEATURE"},
    {"HLXRBCMeshPartLT", "RIGID BODY MESH PART"},
    {"HLXRigidBodyConstraintLT", "RIGID BODY"},
    {"HLXRigidCouplingLT", "RIGID COUPLING"},
    {"HLXRigidCouplingMeshPartLT", "RIGID COUPLING MESH PART"},
    {"HLXRiksStepLT", "STEP", Block, "STATIC, RIKS"},
    {"HLXRotationalBodyForce", "ROTATIONAL BODY FORCE"},
    {"HLXShellSectionEnhLT", "SHELL SECTION"},
    {"HLXSmoothCouplingLT", "SMOOTH COUPLING"},
    {"HLXSmoothCouplingMeshPartLT", "SMOOTH COUPLING MESH PART"},
    {"HLXSmoothStepAmplitudeLT", "SMOOTH STEP AMPLITUDE"},
    {"HLXSpringLT", "SPRING"},
    {"HLXSpringMeshPartLT", "SPRING MESH PART"},
    {"HLXStaticLPStepLT", "STEP", Block, "STATIC, PERTURBATION"},
    {"HLXStringBC", "STRING"},
    {"HLXSubmodelBCLT", "SUBMODEL BOUNDARY"},
    {"HLXSubmodelPropertyLT", "SUBMODEL PROPERTY"},
    {"HLXSurfaceHeatFlux", "SURFACE HEAT FLUX"},
    {"HLXSurfaceToSurfaceContactLT", "SURFACE CONTACT"},
    {"HLXTabularAmplitudeLT", "TABULAR AMPLITUDE"},
    {"HLXTemperatureContainerLT", "TEMPERATURES", Block},
    {"HLXTemperatureHistoryLT", "TEMPERATURE HISTORY"},
    {"HLXTemperatureLT", "TEMPERATURE"},
    {"HLXThermalConnBehaviorLT", "THERMAL CONNECTION"},
    {"HLXTiedContactLT", "TIED CONTACT"},
    {"HLXVelocityBCLT", "VELOCITY"},
    {"VEXSamAxis", "AXIS"},
    {"VEXSamSupport", "SUPPORT"},
};

constexpr KeywordRule genericRule = {"", "FEATURE"};

static_assert(std::ranges::is_sorted(rules, {}, &KeywordRule::lateType), "found by bisection");

constexpr bool EachKeywordIsOneType()
{
    for (auto rule = std::begin(rules); rule != std::end(rules); ++rule) {
        const bool shared = rule->shape == Omitted || !rule->procedure.empty();
        if (!shared && (std::ranges::count(rules, rule->keyword, &KeywordRule::keyword) != 1 ||
                        rule->keyword == genericRule.keyword)) {
            return false;
        }
    }
    return true;
}

static_assert(EachKeywordIsOneType(), "a keyword tells the late type; only steps share theirs");

}  // namespace

const KeywordRule& RuleFor(std::string_view lateType)
{
    const auto* const found = std::ranges::lower_bound(rules, lateType, {}, &KeywordRule::lateType);
    return found != std::end(rules) && found->lateType == lateType ? *found : genericRule;
}

bool IsGeneric(const KeywordRule& rule)
{
    return &rule == &genericRule;
}

}  // namespace hlx
