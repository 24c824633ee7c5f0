// SPDX-License-Identifier: Apache-2.0
// Every word of the model's vocabulary, as it is stored in documents and settings.
#include "HLXModelVocabulary.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <type_traits>

namespace hlxtest {

namespace {

namespace V = HLXModelVocabulary;

struct Word
{
    const VEXUnicodeString* constant;
    std::string_view text;
};

// clang-format off
const Word kWords[] = {
    // Catalogs.
    {&V::HLXHacCatalog, "HLXHacCatalog"},
    {&V::HLXHacCatalog_VEXfct, "HLXHacCatalog.VEXfct"},
    // Structure of an analysis case.
    {&V::HLXHacSolutionLT, "HLXHacSolutionLT"},
    {&V::HLXHacInitialStepLT, "HLXHacInitialStepLT"},
    {&V::HLXHacSimHistLT, "HLXHacSimHistLT"},
    {&V::HLXHacAnaStepSolLT, "HLXHacAnaStepSolLT"},
    {&V::HLXHollexPropertySetLT, "HLXHollexPropertySetLT"},
    {&V::HLXPropagatingFeatureLT, "HLXPropagatingFeatureLT"},
    // Containers.
    {&V::HLXBoundaryConditionContainerLT, "HLXBoundaryConditionContainerLT"},
    {&V::HLXLoadContainerLT, "HLXLoadContainerLT"},
    {&V::HLXInteractionContainerLT, "HLXInteractionContainerLT"},
    {&V::HLXHacFieldContainerLT, "HLXHacFieldContainerLT"},
    {&V::HLXTemperatureContainerLT, "HLXTemperatureContainerLT"},
    {&V::HLXJobContainerLT, "HLXJobContainerLT"},
    {&V::HLXDisplayGrpContainerLT, "HLXDisplayGrpContainerLT"},
    {&V::HLXFieldOutputRequestContainerLT, "HLXFieldOutputRequestContainerLT"},
    {&V::HLXHistoryOutputRequestContainerLT, "HLXHistoryOutputRequestContainerLT"},
    {&V::HLXDatOutputRequestContainerLT, "HLXDatOutputRequestContainerLT"},
    {&V::HLXMassScalingContainerLT, "HLXMassScalingContainerLT"},
    // Steps.
    {&V::HLXGeneralStaticStepLT, "HLXGeneralStaticStepLT"},
    {&V::HLXStaticLPStepLT, "HLXStaticLPStepLT"},
    {&V::HLXFrequencyStepLT, "HLXFrequencyStepLT"},
    {&V::HLXRiksStepLT, "HLXRiksStepLT"},
    {&V::HLXExplicitDynamicStepLT, "HLXExplicitDynamicStepLT"},
    {&V::HLXHeatTransferStepLT, "HLXHeatTransferStepLT"},
    // Loads and boundary conditions.
    {&V::HLXPressure, "HLXPressure"},
    {&V::HLXDisplacementBC, "HLXDisplacementBC"},
    {&V::HLXClamp, "HLXClamp"},
    {&V::HLXConcentratedForce, "HLXConcentratedForce"},
    {&V::HLXGravity, "HLXGravity"},
    {&V::HLXRotationalBodyForce, "HLXRotationalBodyForce"},
    {&V::HLXConcHeatFlux, "HLXConcHeatFlux"},
    {&V::HLXSurfaceHeatFlux, "HLXSurfaceHeatFlux"},
    {&V::HLXBodyHeatFlux, "HLXBodyHeatFlux"},
    {&V::HLXFilmCondition, "HLXFilmCondition"},
    {&V::HLXStringBC, "HLXStringBC"},
    // Boundary, temperature and initial conditions.
    {&V::HLXMotionBCLT, "HLXMotionBCLT"},
    {&V::HLXVelocityBCLT, "HLXVelocityBCLT"},
    {&V::HLXAccelerationBCLT, "HLXAccelerationBCLT"},
    {&V::HLXTemperatureLT, "HLXTemperatureLT"},
    {&V::HLXInitialTemperatureLT, "HLXInitialTemperatureLT"},
    {&V::HLXTemperatureHistoryLT, "HLXTemperatureHistoryLT"},
    {&V::HLXInitialVelocityLT, "HLXInitialVelocityLT"},
    {&V::HLXSubmodelBCLT, "HLXSubmodelBCLT"},
    // Output requests.
    {&V::HLXBaseOutputLT, "HLXBaseOutputLT"},
    {&V::HLXFieldOutputLT, "HLXFieldOutputLT"},
    {&V::HLXNewFieldOutputLT, "HLXNewFieldOutputLT"},
    {&V::HLXHistoryOutputLT, "HLXHistoryOutputLT"},
    {&V::HLXDatOutputLT, "HLXDatOutputLT"},
    // Sections, properties and elements.
    {&V::HLXShellSectionEnhLT, "HLXShellSectionEnhLT"},
    {&V::HLXMatOrientLT, "HLXMatOrientLT"},
    {&V::HLXElementTypeLT, "HLXElementTypeLT"},
    {&V::HLXLayupLT, "HLXLayupLT"},
    {&V::HLXElementBehaviorLT, "HLXElementBehaviorLT"},
    {&V::HLXSubmodelPropertyLT, "HLXSubmodelPropertyLT"},
    {&V::HLXCyclicSymmetryPropertyLT, "HLXCyclicSymmetryPropertyLT"},
    // Interactions, contacts and constraints.
    {&V::HLXRigidBodyConstraintLT, "HLXRigidBodyConstraintLT"},
    {&V::HLXTiedContactLT, "HLXTiedContactLT"},
    {&V::HLXSurfaceToSurfaceContactLT, "HLXSurfaceToSurfaceContactLT"},
    {&V::HLXContactConnectionEnhancementLT, "HLXContactConnectionEnhancementLT"},
    {&V::HLXContactConnectionEnhancementStdLT, "HLXContactConnectionEnhancementStdLT"},
    {&V::HLXContactConnectionEnhancementExplicitLT, "HLXContactConnectionEnhancementExplicitLT"},
    {&V::HLXInterferenceFitLT, "HLXInterferenceFitLT"},
    {&V::HLXInteractionPropertyLT, "HLXInteractionPropertyLT"},
    {&V::HLXThermalConnBehaviorLT, "HLXThermalConnBehaviorLT"},
    {&V::HLXContactDomainLT, "HLXContactDomainLT"},
    {&V::HLXContactBehaviorLT, "HLXContactBehaviorLT"},
    {&V::HLXGeneralContactLT, "HLXGeneralContactLT"},
    {&V::HLXEquationLT, "HLXEquationLT"},
    // Connectors, couplings and mesh parts.
    {&V::HLXBaseConnectorLT, "HLXBaseConnectorLT"},
    {&V::HLXSpringLT, "HLXSpringLT"},
    {&V::HLXSpringMeshPartLT, "HLXSpringMeshPartLT"},
    {&V::HLXDamperLT, "HLXDamperLT"},
    {&V::HLXDamperMeshPartLT, "HLXDamperMeshPartLT"},
    {&V::HLXRBCMeshPartLT, "HLXRBCMeshPartLT"},
    {&V::HLXRigidCouplingLT, "HLXRigidCouplingLT"},
    {&V::HLXRigidCouplingMeshPartLT, "HLXRigidCouplingMeshPartLT"},
    {&V::HLXSmoothCouplingLT, "HLXSmoothCouplingLT"},
    {&V::HLXSmoothCouplingMeshPartLT, "HLXSmoothCouplingMeshPartLT"},
    {&V::HLXARSurfLT, "HLXARSurfLT"},
    {&V::HLXARSurfMeshPartLT, "HLXARSurfMeshPartLT"},
    // Jobs, amplitudes and mass scaling.
    {&V::HLXJobLT, "HLXJobLT"},
    {&V::HLXTabularAmplitudeLT, "HLXTabularAmplitudeLT"},
    {&V::HLXSmoothStepAmplitudeLT, "HLXSmoothStepAmplitudeLT"},
    {&V::HLXMassScalingLT, "HLXMassScalingLT"},
    // Keys of attributes and settings.
    {&V::SensorSet, "SensorSet"},
    {&V::StepSolutions, "StepSolutions"},
    {&V::ActiveStep, "ActiveStep"},
    {&V::AnalysisStep, "AnalysisStep"},
    {&V::AnalysisCase, "AnalysisCase"},
    {&V::AnalysisType, "AnalysisType"},
    {&V::FileLink, "FileLink"},
    {&V::ResultKeys, "ResultKeys"},
    {&V::FrameType, "FrameType"},
    {&V::UniqueFemIdStr, "UniqueFemIdStr"},
    {&V::ShellToSolidSubmodel, "ShellToSolidSubmodel"},
    {&V::SubmodelGlobalJobNameBC, "SubmodelGlobalJobNameBC"},
    {&V::NumSectors, "NumSectors"},
    {&V::CyclicSymmetryProperty, "CyclicSymmetryProperty"},
    {&V::AxisOfRotation, "AxisOfRotation"},
    {&V::SAMInertiaMass, "SAMInertiaMass"},
    // Keys of the basic units.
    {&V::BasicUnitLength, "BasicUnitLength"},
    {&V::BasicUnitMass, "BasicUnitMass"},
    {&V::BasicUnitTime, "BasicUnitTime"},
    {&V::BasicUnitTepmerature, "BasicUnitTepmerature"},
    // Value marker.
    {&V::Not_Set, "Not_Set"},
};
// clang-format on

static_assert(std::is_same_v<decltype(V::Not_Set), const VEXUnicodeString>);

/// Read while this program is being loaded, before main.
const VEXUnicodeString kReadAtLoad = V::HLXHacCatalog_VEXfct;

TEST(HLXModelVocabulary, HoldsEveryWordAsItIsStored)
{
    EXPECT_EQ(std::size(kWords), 106U);
    for (const Word& word : kWords) {
        EXPECT_EQ(word.constant->View(), word.text);
    }
}

TEST(HLXModelVocabulary, NoTwoWordsAreTheSame)
{
    std::set<std::string_view> texts;
    for (const Word& word : kWords) {
        EXPECT_TRUE(texts.insert(word.constant->View()).second) << word.text;
    }
}

TEST(HLXModelVocabulary, IsBuiltBeforeAProgramThatUsesItBegins)
{
    EXPECT_EQ(kReadAtLoad, "HLXHacCatalog.VEXfct");
}

TEST(HLXModelVocabulary, UnusualSpellingsEqualNoCorrectedOrShortenedOne)
{
    for (const char* const corrected :
         {"BasicUnitTemperature", "BasicUnitTemp", "BasicUnitTempreature", "basicUnitTepmerature",
          "BasicUnitTepmeratur"}) {
        EXPECT_NE(V::BasicUnitTepmerature.Compare(corrected), VEXUnicodeString::Identical);
        EXPECT_FALSE(V::BasicUnitTepmerature == corrected) << corrected;
    }
    for (const char* const corrected :
         {"HLXContactConnectionEnhancementStandardLT", "HLXContactConnectionEnhancementLT",
          "HLXContactConnectionEnhancementStd", "HLXContactConnEnhancementStdLT"}) {
        EXPECT_NE(V::HLXContactConnectionEnhancementStdLT.Compare(corrected),
                  VEXUnicodeString::Identical);
        EXPECT_FALSE(V::HLXContactConnectionEnhancementStdLT == corrected) << corrected;
    }
}

TEST(HLXModelVocabulary, LoadsHaveNoLateTypeEndingAndConditionsHaveOne)
{
    for (const VEXUnicodeString* const load :
         {&V::HLXPressure, &V::HLXDisplacementBC, &V::HLXClamp, &V::HLXConcentratedForce,
          &V::HLXGravity, &V::HLXRotationalBodyForce, &V::HLXConcHeatFlux, &V::HLXSurfaceHeatFlux,
          &V::HLXBodyHeatFlux, &V::HLXFilmCondition, &V::HLXStringBC}) {
        EXPECT_FALSE(load->View().ends_with("LT")) << *load;
    }
    for (const VEXUnicodeString* const condition :
         {&V::HLXMotionBCLT, &V::HLXVelocityBCLT, &V::HLXAccelerationBCLT, &V::HLXTemperatureLT,
          &V::HLXInitialTemperatureLT, &V::HLXTemperatureHistoryLT, &V::HLXInitialVelocityLT,
          &V::HLXSubmodelBCLT}) {
        EXPECT_TRUE(condition->View().ends_with("LT")) << *condition;
    }
}

}  // namespace

}  // namespace hlxtest
