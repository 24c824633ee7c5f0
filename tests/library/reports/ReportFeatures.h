// SPDX-License-Identifier: Apache-2.0
// Features to report on, made by the product's own factories.
#pragma once

#include "HLXAmplitudes.h"
#include "HLXBoundaryConditions.h"
#include "HLXILoadFact.h"
#include "HLXLoads.h"
#include "HLXTemperatures.h"
#include "VEXComponents.h"

#include <gtest/gtest.h>

#include <string>

namespace hlxtest::reports {

/// Where features are made.
struct Place
{
    VEXDocument* document;
    VEXISamAnalysisSet_var step;
};

template <class Factory>
VEXVar<Factory> FactoryOf(const char* name)
{
    void* object = nullptr;
    EXPECT_EQ(VEXInstantiateComponent(name, VEXInterfaceTraits<Factory>::Id, &object), S_OK);
    return VEXAdopt(static_cast<Factory*>(object));
}

/// A feature by an operation of a factory that takes document and step.
template <class Factory>
VEXISpecObject_var Made(const char* factory, Place& place,
                        HRESULT (Factory::*create)(VEXISpecObject_var&, VEXDocument*,
                                                   VEXISamAnalysisSet_var&))
{
    VEXISpecObject_var made;
    EXPECT_EQ((FactoryOf<Factory>(factory).Get()->*create)(made, place.document, place.step), S_OK);
    EXPECT_TRUE(made);
    return made;
}

inline VEXISpecObject_var Pressure(Place& place)
{
    return Made("HLXLoadFact", place, &HLXILoadFact::CreatePressure);
}

inline VEXISpecObject_var Gravity(Place& place)
{
    return Made("HLXLoadFact", place, &HLXILoadFact::CreateGravity);
}

inline VEXISpecObject_var RotationalBodyForce(Place& place)
{
    return Made("HLXLoadFact", place, &HLXILoadFact::CreateRotationalBodyForce);
}

inline VEXISpecObject_var ConcentratedForce(Place& place)
{
    return Made("HLXLoadFact", place, &HLXILoadFact::CreateConcentratedForce);
}

inline VEXISpecObject_var FilmCondition(Place& place)
{
    return Made("HLXLoadFact", place, &HLXILoadFact::CreateFilmCondition);
}

/// @param lateType  "HLXConcHeatFlux", "HLXSurfaceHeatFlux" or "HLXBodyHeatFlux"
inline VEXISpecObject_var HeatFlux(Place& place, const char* lateType)
{
    VEXISpecObject_var made;
    EXPECT_EQ(FactoryOf<HLXILoadFact>("HLXLoadFact")
                  ->CreateHeatFlux(made, lateType, place.document, place.step),
              S_OK);
    EXPECT_TRUE(made);
    return made;
}

inline VEXISpecObject_var ConcentratedHeatFlux(Place& place)
{
    return HeatFlux(place, "HLXConcHeatFlux");
}

inline VEXISpecObject_var Displacement(Place& place)
{
    return Made("HLXBoundaryConditionsFact", place,
                &HLXIBoundaryConditionsFact::CreateDisplacement);
}

inline VEXISpecObject_var Clamp(Place& place)
{
    return Made("HLXBoundaryConditionsFact", place, &HLXIBoundaryConditionsFact::CreateClamp);
}

inline VEXISpecObject_var Velocity(Place& place)
{
    return Made("HLXBoundaryConditionsFact", place, &HLXIBoundaryConditionsFact::CreateVelocity);
}

/// @param lateType  as HLXITemperatureFact has it
inline VEXISpecObject_var TemperatureOf(Place& place, const char* lateType)
{
    VEXISpecObject_var made;
    EXPECT_EQ(FactoryOf<HLXITemperatureFact>("HLXTemperatureFact")
                  ->CreateTemperature(made, lateType, place.document, place.step),
              S_OK);
    EXPECT_TRUE(made);
    return made;
}

inline VEXISpecObject_var Temperature(Place& place)
{
    return TemperatureOf(place, "HLXTemperatureLT");
}

inline VEXISpecObject_var TemperatureHistory(Place& place)
{
    return TemperatureOf(place, "HLXTemperatureHistoryLT");
}

inline void Name(const VEXISpecObject_var& feature, const std::string& name)
{
    EXPECT_EQ(VEXIAlias_var(feature)->SetAlias(VEXUnicodeString(name)), S_OK);
}

/// An amplitude without a name.
inline VEXISpecObject_var Amplitude(const Place& place)
{
    VEXISpecObject_var made;
    EXPECT_EQ(FactoryOf<HLXIAmplitudeFact>("HLXAmplitudeFact")
                  ->CreateTabularAmplitude(made, place.document),
              S_OK);
    EXPECT_TRUE(made);
    return made;
}

inline VEXISpecObject_var NamedAmplitude(const Place& place, const std::string& name)
{
    const VEXISpecObject_var amplitude = Amplitude(place);
    Name(amplitude, name);
    return amplitude;
}

inline void SetAmplitude(const VEXISpecObject_var& feature, const VEXISpecObject_var& amplitude)
{
    EXPECT_EQ(HLXICondition_var(feature)->SetAmplitude(amplitude), S_OK);
}

}  // namespace hlxtest::reports
