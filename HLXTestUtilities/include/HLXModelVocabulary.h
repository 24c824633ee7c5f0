// SPDX-License-Identifier: Apache-2.0
// The words by which an analysis model is addressed: late types, catalogs, attribute and setting
// keys. Each constant bears the name of its text ('_' for '.'). They are built when the library is
// loaded, before any of its operations can run, and never change.
#pragma once

#include "VEXTypes.h"
#include "VEXUnicodeString.h"

namespace HLXModelVocabulary {

// Catalogs: the analysis-case feature catalog, by name and by file name.
extern VEX_EXPORT const VEXUnicodeString HLXHacCatalog;
extern VEX_EXPORT const VEXUnicodeString HLXHacCatalog_VEXfct;  ///< "HLXHacCatalog.VEXfct"

// Late types of the structure of an analysis case.
extern VEX_EXPORT const VEXUnicodeString HLXHacSolutionLT;
extern VEX_EXPORT const VEXUnicodeString HLXHacInitialStepLT;
extern VEX_EXPORT const VEXUnicodeString HLXHacSimHistLT;
extern VEX_EXPORT const VEXUnicodeString HLXHacAnaStepSolLT;
extern VEX_EXPORT const VEXUnicodeString HLXHollexPropertySetLT;
extern VEX_EXPORT const VEXUnicodeString HLXPropagatingFeatureLT;

// Late types of containers.
extern VEX_EXPORT const VEXUnicodeString HLXBoundaryConditionContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXLoadContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXInteractionContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXHacFieldContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXTemperatureContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXJobContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXDisplayGrpContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXFieldOutputRequestContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXHistoryOutputRequestContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXDatOutputRequestContainerLT;
extern VEX_EXPORT const VEXUnicodeString HLXMassScalingContainerLT;

// Late types of steps.
extern VEX_EXPORT const VEXUnicodeString HLXGeneralStaticStepLT;
extern VEX_EXPORT const VEXUnicodeString HLXStaticLPStepLT;
extern VEX_EXPORT const VEXUnicodeString HLXFrequencyStepLT;
extern VEX_EXPORT const VEXUnicodeString HLXRiksStepLT;
extern VEX_EXPORT const VEXUnicodeString HLXExplicitDynamicStepLT;
extern VEX_EXPORT const VEXUnicodeString HLXHeatTransferStepLT;

// Feature types of loads and boundary conditions; these have no LT ending.
extern VEX_EXPORT const VEXUnicodeString HLXPressure;
extern VEX_EXPORT const VEXUnicodeString HLXDisplacementBC;
extern VEX_EXPORT const VEXUnicodeString HLXClamp;
extern VEX_EXPORT const VEXUnicodeString HLXConcentratedForce;
extern VEX_EXPORT const VEXUnicodeString HLXGravity;
extern VEX_EXPORT const VEXUnicodeString HLXRotationalBodyForce;
extern VEX_EXPORT const VEXUnicodeString HLXConcHeatFlux;
extern VEX_EXPORT const VEXUnicodeString HLXSurfaceHeatFlux;
extern VEX_EXPORT const VEXUnicodeString HLXBodyHeatFlux;
extern VEX_EXPORT const VEXUnicodeString HLXFilmCondition;
extern VEX_EXPORT const VEXUnicodeString HLXStringBC;

// Late types of boundary, temperature and initial conditions.
extern VEX_EXPORT const VEXUnicodeString HLXMotionBCLT;
extern VEX_EXPORT const VEXUnicodeString HLXVelocityBCLT;
extern VEX_EXPORT const VEXUnicodeString HLXAccelerationBCLT;
extern VEX_EXPORT const VEXUnicodeString HLXTemperatureLT;
extern VEX_EXPORT const VEXUnicodeString HLXInitialTemperatureLT;
extern VEX_EXPORT const VEXUnicodeString HLXTemperatureHistoryLT;
extern VEX_EXPORT const VEXUnicodeString HLXInitialVelocityLT;
extern VEX_EXPORT const VEXUnicodeString HLXSubmodelBCLT;

// Late types of output requests.
extern VEX_EXPORT const VEXUnicodeString HLXBaseOutputLT;
extern VEX_EXPORT const VEXUnicodeString HLXFieldOutputLT;
extern VEX_EXPORT const VEXUnicodeString HLXNewFieldOutputLT;
extern VEX_EXPORT const VEXUnicodeString HLXHistoryOutputLT;
extern VEX_EXPORT const VEXUnicodeString HLXDatOutputLT;

// Late types of sections, properties and elements.
extern VEX_EXPORT const VEXUnicodeString HLXShellSectionEnhLT;
extern VEX_EXPORT const VEXUnicodeString HLXMatOrientLT;
extern VEX_EXPORT const VEXUnicodeString HLXElementTypeLT;
extern VEX_EXPORT const VEXUnicodeString HLXLayupLT;
extern VEX_EXPORT const VEXUnicodeString HLXElementBehaviorLT;
extern VEX_EXPORT const VEXUnicodeString HLXSubmodelPropertyLT;
extern VEX_EXPORT const VEXUnicodeString HLXCyclicSymmetryPropertyLT;

// Late types of interactions, contacts and constraints.
extern VEX_EXPORT const VEXUnicodeString HLXRigidBodyConstraintLT;
extern VEX_EXPORT const VEXUnicodeString HLXTiedContactLT;
extern VEX_EXPORT const VEXUnicodeString HLXSurfaceToSurfaceContactLT;
extern VEX_EXPORT const VEXUnicodeString HLXContactConnectionEnhancementLT;
extern VEX_EXPORT const VEXUnicodeString HLXContactConnectionEnhancementStdLT;
extern VEX_EXPORT const VEXUnicodeString HLXContactConnectionEnhancementExplicitLT;
extern VEX_EXPORT const VEXUnicodeString HLXInterferenceFitLT;
extern VEX_EXPORT const VEXUnicodeString HLXInteractionPropertyLT;
extern VEX_EXPORT const VEXUnicodeString HLXThermalConnBehaviorLT;
extern VEX_EXPORT const VEXUnicodeString HLXContactDomainLT;
extern VEX_EXPORT const VEXUnicodeString HLXContactBehaviorLT;
extern VEX_EXPORT const VEXUnicodeString HLXGeneralContactLT;
extern VEX_EXPORT const VEXUnicodeString HLXEquationLT;

// Late types of connectors, couplings and mesh parts.
extern VEX_EXPORT const VEXUnicodeString HLXBaseConnectorLT;
extern VEX_EXPORT const VEXUnicodeString HLXSpringLT;
extern VEX_EXPORT const VEXUnicodeString HLXSpringMeshPartLT;
extern VEX_EXPORT const VEXUnicodeString HLXDamperLT;
extern VEX_EXPORT const VEXUnicodeString HLXDamperMeshPartLT;
extern VEX_EXPORT const VEXUnicodeString HLXRBCMeshPartLT;
extern VEX_EXPORT const VEXUnicodeString HLXRigidCouplingLT;
extern VEX_EXPORT const VEXUnicodeString HLXRigidCouplingMeshPartLT;
extern VEX_EXPORT const VEXUnicodeString HLXSmoothCouplingLT;
extern VEX_EXPORT const VEXUnicodeString HLXSmoothCouplingMeshPartLT;
extern VEX_EXPORT const VEXUnicodeString HLXARSurfLT;
extern VEX_EXPORT const VEXUnicodeString HLXARSurfMeshPartLT;

// Late types of jobs, amplitudes and mass scaling.
extern VEX_EXPORT const VEXUnicodeString HLXJobLT;
extern VEX_EXPORT const VEXUnicodeString HLXTabularAmplitudeLT;
extern VEX_EXPORT const VEXUnicodeString HLXSmoothStepAmplitudeLT;
extern VEX_EXPORT const VEXUnicodeString HLXMassScalingLT;

// Keys of attributes and settings.
extern VEX_EXPORT const VEXUnicodeString SensorSet;
extern VEX_EXPORT const VEXUnicodeString StepSolutions;
extern VEX_EXPORT const VEXUnicodeString ActiveStep;
extern VEX_EXPORT const VEXUnicodeString AnalysisStep;
extern VEX_EXPORT const VEXUnicodeString AnalysisCase;
extern VEX_EXPORT const VEXUnicodeString AnalysisType;
extern VEX_EXPORT const VEXUnicodeString FileLink;
extern VEX_EXPORT const VEXUnicodeString ResultKeys;
extern VEX_EXPORT const VEXUnicodeString FrameType;
extern VEX_EXPORT const VEXUnicodeString UniqueFemIdStr;
extern VEX_EXPORT const VEXUnicodeString ShellToSolidSubmodel;
extern VEX_EXPORT const VEXUnicodeString SubmodelGlobalJobNameBC;
extern VEX_EXPORT const VEXUnicodeString NumSectors;
extern VEX_EXPORT const VEXUnicodeString CyclicSymmetryProperty;
extern VEX_EXPORT const VEXUnicodeString AxisOfRotation;
extern VEX_EXPORT const VEXUnicodeString SAMInertiaMass;

// Keys of the four basic units.
extern VEX_EXPORT const VEXUnicodeString BasicUnitLength;
extern VEX_EXPORT const VEXUnicodeString BasicUnitMass;
extern VEX_EXPORT const VEXUnicodeString BasicUnitTime;
extern VEX_EXPORT const VEXUnicodeString
    BasicUnitTepmerature;  // misspelt, and kept: stored settings have this key

// Value that marks what was not set.
extern VEX_EXPORT const VEXUnicodeString Not_Set;

}  // namespace HLXModelVocabulary
