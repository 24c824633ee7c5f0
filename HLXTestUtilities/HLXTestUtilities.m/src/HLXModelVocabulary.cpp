// SPDX-License-Identifier: Apache-2.0
// The texts of the model vocabulary.
#include "HLXModelVocabulary.h"

// A constant and its text are one word, typed once.
#define HLX_WORD(Name) const VEXUnicodeString HLXModelVocabulary::Name(#Name)

// Catalogs: the analysis-case feature catalog, by name and by file name.
HLX_WORD(HLXHacCatalog);
const VEXUnicodeString HLXModelVocabulary::HLXHacCatalog_VEXfct("HLXHacCatalog.VEXfct");

// Late types of the structure of an analysis case.
HLX_WORD(HLXHacSolutionLT);
HLX_WORD(HLXHacInitialStepLT);
HLX_WORD(HLXHacSimHistLT);
HLX_WORD(HLXHacAnaStepSolLT);
HLX_WORD(HLXHollexPropertySetLT);
HLX_WORD(HLXPropagatingFeatureLT);

// Late types of containers.
HLX_WORD(HLXBoundaryConditionContainerLT);
HLX_WORD(HLXLoadContainerLT);
HLX_WORD(HLXInteractionContainerLT);
HLX_WORD(HLXHacFieldContainerLT);
HLX_WORD(HLXTemperatureContainerLT);
HLX_WORD(HLXJobContainerLT);
HLX_WORD(HLXDisplayGrpContainerLT);
HLX_WORD(HLXFieldOutputRequestContainerLT);
HLX_WORD(HLXHistoryOutputRequestContainerLT);
HLX_WORD(HLXDatOutputRequestContainerLT);
HLX_WORD(HLXMassScalingContainerLT);

// Late types of steps.
HLX_WORD(HLXGeneralStaticStepLT);
HLX_WORD(HLXStaticLPStepLT);
HLX_WORD(HLXFrequencyStepLT);
HLX_WORD(HLXRiksStepLT);
HLX_WORD(HLXExplicitDynamicStepLT);
HLX_WORD(HLXHeatTransferStepLT);

// Feature types of loads and boundary conditions; these have no LT ending.
HLX_WORD(HLXPressure);
HLX_WORD(HLXDisplacementBC);
HLX_WORD(HLXClamp);
HLX_WORD(HLXConcentratedForce);
HLX_WORD(HLXGravity);
HLX_WORD(HLXRotationalBodyForce);
HLX_WORD(HLXConcHeatFlux);
HLX_WORD(HLXSurfaceHeatFlux);
HLX_WORD(HLXBodyHeatFlux);
HLX_WORD(HLXFilmCondition);
HLX_WORD(HLXStringBC);

// Late types of boundary, temperature and initial conditions.
HLX_WORD(HLXMotionBCLT);
HLX_WORD(HLXVelocityBCLT);
HLX_WORD(HLXAccelerationBCLT);
HLX_WORD(HLXTemperatureLT);
HLX_WORD(HLXInitialTemperatureLT);
HLX_WORD(HLXTemperatureHistoryLT);
HLX_WORD(HLXInitialVelocityLT);
HLX_WORD(HLXSubmodelBCLT);

// Late types of output requests.
HLX_WORD(HLXBaseOutputLT);
HLX_WORD(HLXFieldOutputLT);
HLX_WORD(HLXNewFieldOutputLT);
HLX_WORD(HLXHistoryOutputLT);
HLX_WORD(HLXDatOutputLT);

// Late types of sections, properties and elements.
HLX_WORD(HLXShellSectionEnhLT);
HLX_WORD(HLXMatOrientLT);
HLX_WORD(HLXElementTypeLT);
HLX_WORD(HLXLayupLT);
HLX_WORD(HLXElementBehaviorLT);
HLX_WORD(HLXSubmodelPropertyLT);
HLX_WORD(HLXCyclicSymmetryPropertyLT);

// Late types of interactions, contacts and constraints.
HLX_WORD(HLXRigidBodyConstraintLT);
HLX_WORD(HLXTiedContactLT);
HLX_WORD(HLXSurfaceToSurfaceContactLT);
HLX_WORD(HLXContactConnectionEnhancementLT);
HLX_WORD(HLXContactConnectionEnhancementStdLT);
HLX_WORD(HLXContactConnectionEnhancementExplicitLT);
HLX_WORD(HLXInterferenceFitLT);
HLX_WORD(HLXInteractionPropertyLT);
HLX_WORD(HLXThermalConnBehaviorLT);
HLX_WORD(HLXContactDomainLT);
HLX_WORD(HLXContactBehaviorLT);
HLX_WORD(HLXGeneralContactLT);
HLX_WORD(HLXEquationLT);

// Late types of connectors, couplings and mesh parts.
HLX_WORD(HLXBaseConnectorLT);
HLX_WORD(HLXSpringLT);
HLX_WORD(HLXSpringMeshPartLT);
HLX_WORD(HLXDamperLT);
HLX_WORD(HLXDamperMeshPartLT);
HLX_WORD(HLXRBCMeshPartLT);
HLX_WORD(HLXRigidCouplingLT);
HLX_WORD(HLXRigidCouplingMeshPartLT);
HLX_WORD(HLXSmoothCouplingLT);
HLX_WORD(HLXSmoothCouplingMeshPartLT);
HLX_WORD(HLXARSurfLT);
HLX_WORD(HLXARSurfMeshPartLT);

// Late types of jobs, amplitudes and mass scaling.
HLX_WORD(HLXJobLT);
HLX_WORD(HLXTabularAmplitudeLT);
HLX_WORD(HLXSmoothStepAmplitudeLT);
HLX_WORD(HLXMassScalingLT);

// Keys of attributes and settings.
HLX_WORD(SensorSet);
HLX_WORD(StepSolutions);
HLX_WORD(ActiveStep);
HLX_WORD(AnalysisStep);
HLX_WORD(AnalysisCase);
HLX_WORD(AnalysisType);
HLX_WORD(FileLink);
HLX_WORD(ResultKeys);
HLX_WORD(FrameType);
HLX_WORD(UniqueFemIdStr);
HLX_WORD(ShellToSolidSubmodel);
HLX_WORD(SubmodelGlobalJobNameBC);
HLX_WORD(NumSectors);
HLX_WORD(CyclicSymmetryProperty);
HLX_WORD(AxisOfRotation);
HLX_WORD(SAMInertiaMass);

// Keys of the four basic units.
HLX_WORD(BasicUnitLength);
HLX_WORD(BasicUnitMass);
HLX_WORD(BasicUnitTime);
HLX_WORD(BasicUnitTepmerature);  // misspelt, and kept: stored settings have this key

// Value that marks what was not set.
HLX_WORD(Not_Set);

#undef HLX_WORD
