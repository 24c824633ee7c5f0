// SPDX-License-Identifier: Apache-2.0
// Boundary conditions, and their factory. What is said of numbers and results in HLXConditions.h
// holds here.
//
// Degrees of freedom: 1 to 3 are the translations along X, Y, Z, 4 to 6 the rotations about them.
// An operation that is given another one answers E_INVALIDARG.
#pragma once

#include "HLXConditions.h"
#include "VEXAnalysisModel.h"

/// Every boundary condition, a clamp too.
class HLXIBoundaryCondition : public HLXICondition
{};

VEX_INTERFACE(HLXIBoundaryCondition);

/// Displacements of a region. The values of degrees 1 to 3 are the components of the vector
/// parameter "DisplBCTrans", those of 4 to 6 of "DisplBCRotation"
/// (VEXISamAnalysisEntity::GetVectorParameter). The switches are attributes (VEXISpecAttrAccess):
/// "u1ON", "u2ON", "u3ON", "ur1ON", "ur2ON", "ur3ON"; so are "fixON", whether all degrees are fixed
/// whatever the switches say, and "userSub". Values and switches are given as they are, also when
/// all are fixed. Names of ours: all.
class HLXIDisplacementBC : public HLXIBoundaryCondition
{
public:
    /// A displacement (length) or rotation (radians), also where it is switched off.
    virtual HRESULT GetValue(int degreeOfFreedom, double& value) const = 0;
    /// Whether a degree of freedom is prescribed: 0 or 1.
    virtual HRESULT GetSwitch(int degreeOfFreedom, unsigned char& flag) const = 0;

    /// Whether the values come from a user's subroutine of the solver ("userSub"): 0 or 1.
    virtual HRESULT GetUserSubroutine(unsigned char& flag) const = 0;
};

VEX_INTERFACE(HLXIDisplacementBC);

/// Velocities or accelerations of a region, by its late type; the factory makes velocities, a
/// VEXISamAnalysisModelFactory accelerations too. Values and switches are kept in the attributes
/// "Values" and "Switches", vector parameters that take any number: a switch is on that is not 0.
/// Names of ours: all.
class HLXIMotionBC : public HLXIBoundaryCondition
{
public:
    /// A velocity or acceleration: length or radians, a unit of time (squared).
    virtual HRESULT SetValue(int degreeOfFreedom, double value) = 0;
    virtual HRESULT GetValue(int degreeOfFreedom, double& value) const = 0;
    /// Whether a degree of freedom is prescribed (not 0); its value is kept while it is not.
    virtual HRESULT SetSwitch(int degreeOfFreedom, unsigned char flag) = 0;
    virtual HRESULT GetSwitch(int degreeOfFreedom, unsigned char& flag) const = 0;

    /// Whether the values come from a user's subroutine of the solver (not 0).
    virtual HRESULT SetUserSubroutine(unsigned char flag) = 0;
    virtual HRESULT GetUserSubroutine(unsigned char& flag) const = 0;
};

VEX_INTERFACE(HLXIMotionBC);

/// Factory of boundary conditions; component "HLXBoundaryConditionsFact". Each operation makes one
/// kind, without an alias, at the end of the container of boundary conditions of a step; the
/// initial step takes them too. Names of ours: all.
/// @param condition  receives the new condition; left as it is on failure
/// @param document   an open analysis document
/// @param step       a step of that document
/// @return S_OK; E_INVALIDARG for another document or step; E_FAIL for a step without that
/// container
class HLXIBoundaryConditionsFact : public VEXBaseUnknown
{
public:
    /// Displacements.
    virtual HRESULT CreateDisplacement(VEXISpecObject_var& condition, VEXDocument* document,
                                       VEXISamAnalysisSet_var& step) = 0;
    /// A clamp: nothing of the region moves.
    virtual HRESULT CreateClamp(VEXISpecObject_var& condition, VEXDocument* document,
                                VEXISamAnalysisSet_var& step) = 0;
    /// Velocities.
    virtual HRESULT CreateVelocity(VEXISpecObject_var& condition, VEXDocument* document,
                                   VEXISamAnalysisSet_var& step) = 0;
};

VEX_INTERFACE(HLXIBoundaryConditionsFact);
