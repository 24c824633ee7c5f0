// SPDX-License-Identifier: Apache-2.0
// The kinds of load. What is said of numbers and results in HLXConditions.h holds here.
#pragma once

#include "HLXConditions.h"

/// What loads have in common: every load has it at the same places. Names of ours: all.
class HLXILoad : public HLXICondition
{
public:
    /// Whether the size of the load comes from a user's subroutine of the solver (not 0).
    virtual HRESULT SetUserSubroutine(unsigned char flag) = 0;
    virtual HRESULT GetUserSubroutine(unsigned char& flag) const = 0;
};

VEX_INTERFACE(HLXILoad);

/// Force an area, against the outward normal. Names of ours: all.
class HLXIPressureLoad : public HLXILoad
{
public:
    /// The pressure: a parameter that gives it another value, and the value.
    /// @param pressure  receives the parameter; empty on failure
    virtual HRESULT GetPressureParameter(VEXIParameter_var& pressure) = 0;
    virtual HRESULT GetPressure(double& pressure) const = 0;
};

VEX_INTERFACE(HLXIPressureLoad);

/// An acceleration of everything that has mass. Names of ours: all.
class HLXIGravity : public HLXILoad
{
public:
    /// The components of the acceleration: parameters that give them other values, and the values.
    /// @param x, y, z  receive the parameters of the components; empty on failure
    virtual HRESULT GetComponentParameters(VEXIParameter_var& x, VEXIParameter_var& y,
                                           VEXIParameter_var& z) = 0;
    virtual HRESULT GetComponentX(double& acceleration) const = 0;
    virtual HRESULT GetComponentY(double& acceleration) const = 0;
    virtual HRESULT GetComponentZ(double& acceleration) const = 0;
};

VEX_INTERFACE(HLXIGravity);

/// What a rotation about an axis does to everything that has mass. Names of ours: all.
class HLXIRotationalBodyForce : public HLXILoad
{
public:
    /// How the rotation goes: parameters that give it other values.
    /// @param velocity      receives the parameter, radians a unit of time; empty on failure
    /// @param acceleration  likewise, radians a unit of time squared
    virtual HRESULT GetRotationParameters(VEXIParameter_var& velocity,
                                          VEXIParameter_var& acceleration) = 0;

    /// Replaces the axis.
    /// @param edge  as VEXISamAnalysisSupport::AddSupport: an edge, or a B-rep access to one
    /// @param part  the mechanical part that it is an edge of
    /// @return as AddSupport; E_INVALIDARG also for what is no edge
    virtual HRESULT SetAxis(const VEXILinkableObject_var& edge, const VEXISpecObject_var& part) = 0;

    /// How the rotation goes: the values.
    virtual HRESULT GetVelocity(double& velocity) const = 0;
    virtual HRESULT GetAcceleration(double& acceleration) const = 0;
};

VEX_INTERFACE(HLXIRotationalBodyForce);

/// A force at points. Names of ours: all.
class HLXIConcentratedForce : public HLXILoad
{
public:
    /// The components of the force, one by one.
    virtual HRESULT SetComponentX(double force) = 0;
    virtual HRESULT SetComponentY(double force) = 0;
    virtual HRESULT SetComponentZ(double force) = 0;
    virtual HRESULT GetComponentX(double& force) const = 0;
    virtual HRESULT GetComponentY(double& force) const = 0;
    virtual HRESULT GetComponentZ(double& force) const = 0;
};

VEX_INTERFACE(HLXIConcentratedForce);

/// Heat a unit of time: at points, a surface, a body, by its late type. Names of ours: all.
class HLXIHeatFlux : public HLXILoad
{
public:
    /// The heat a unit of time.
    virtual HRESULT SetMagnitude(double magnitude) = 0;
    virtual HRESULT GetMagnitude(double& magnitude) const = 0;
};

VEX_INTERFACE(HLXIHeatFlux);

/// Heat given to surroundings of a temperature. Names of ours: all.
class HLXIFilmCondition : public HLXILoad
{
public:
    /// The temperature of the surroundings, which the common amplitude goes with.
    virtual HRESULT SetTemperature(double temperature) = 0;
    virtual HRESULT GetTemperature(double& temperature) const = 0;

    /// An amplitude of its own for the film coefficient, as SetAmplitude and SetUseAmplitude.
    virtual HRESULT SetFilmAmplitude(const VEXISpecObject_var& amplitude) = 0;
    virtual HRESULT GetFilmAmplitude(VEXISpecObject_var& amplitude) const = 0;
    virtual HRESULT SetUseFilmAmplitude(unsigned char flag) = 0;
    virtual HRESULT GetUseFilmAmplitude(unsigned char& flag) const = 0;

    /// The table: film coefficients, each at the temperature of the same place in the other list.
    /// The lists are replaced one by one, so that their lengths may differ for a while.
    virtual HRESULT SetCoefficients(const VEXRawColldouble& coefficients) = 0;
    virtual HRESULT SetTemperatures(const VEXRawColldouble& temperatures) = 0;
    /// Replace what the list holds.
    virtual HRESULT GetCoefficients(VEXRawColldouble& coefficients) const = 0;
    virtual HRESULT GetTemperatures(VEXRawColldouble& temperatures) const = 0;

    /// Whether the coefficient goes with the temperature (not 0), or is the first of the list.
    virtual HRESULT SetTemperatureDependent(unsigned char flag) = 0;
    virtual HRESULT GetTemperatureDependent(unsigned char& flag) const = 0;

    /// The file that the table came from; not looked for.
    /// @return also E_INVALIDARG for a text that is not valid UTF-8
    virtual HRESULT SetFileName(const VEXUnicodeString& name) = 0;
    virtual HRESULT GetFileName(VEXUnicodeString& name) const = 0;
};

VEX_INTERFACE(HLXIFilmCondition);
