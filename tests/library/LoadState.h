// SPDX-License-Identifier: Apache-2.0
// A load as one line of text, so that a test compares what an operation left with what was typed:
//
//     Load: 1.25 subroutine amplitude 1 used on face 1 of box.VEXPart, GeometrySmartConnector
//
// The alias, the values of the kind; whether its size comes from a subroutine; the place of its
// amplitude among those of the document, whether it is used; its supports; whether it follows the
// mesh. What is not there or not so is left out.
#pragma once

#include "host/part/Region.h"
#include "library/LoadFixture.h"

#include <charconv>

namespace hlxtest::statics {

class LoadStateTest : public LoadTest
{
protected:
    using LoadTest::LoadTest;

    std::string TextOf(const VEXBaseUnknown_var& created)
    {
        const HLXILoad_var common = created;
        EXPECT_TRUE(common);
        unsigned char subroutine = 0;
        unsigned char used = 0;
        VEXISpecObject_var amplitude;
        EXPECT_EQ(common->GetUserSubroutine(subroutine), S_OK);
        EXPECT_EQ(common->GetUseAmplitude(used), S_OK);
        EXPECT_EQ(common->GetAmplitude(amplitude), S_OK);
        std::string text = AliasOf(created) + ": " + ValuesOf(created);
        text += subroutine != 0 ? " subroutine" : "";
        text += amplitude ? " amplitude " + PlaceOf(amplitude) : "";
        text += used != 0 ? " used" : "";
        for (const std::string& support : SupportsOf(created)) {
            text += " on " + support;
        }
        return text + (FeatureOf(created).GetAs<bool>("FollowsMesh") ? " follows mesh" : "");
    }

    /// The loads in the step, a text each.
    std::vector<std::string> LoadTexts()
    {
        std::vector<std::string> texts;
        const VEXListValVEXBaseUnknown_var loads = Loads();
        for (int i = 1; i <= loads.Size(); ++i) {
            texts.push_back(TextOf(loads[i]));
        }
        return texts;
    }

    /// All amplitudes are such as every load gets: tabular, times from the start of the step, rows
    /// (0, 0), (1, 2) and so on to (9, 18).
    void ExpectUsualAmplitudes(int count)
    {
        HLXCftArrayHLXCftArrayDouble usual;
        for (int row = 0; row <= 9; ++row) {
            usual.push_back({1.0 * row, 2.0 * row});
        }
        const VEXListValVEXBaseUnknown_var amplitudes = Amplitudes();
        ASSERT_EQ(amplitudes.Size(), count);
        for (int i = 1; i <= count; ++i) {
            const HLXITabularAmplitude_var amplitude = amplitudes[i];
            ASSERT_TRUE(amplitude);
            int timeSpan = -1;
            EXPECT_EQ(amplitude->GetTimeSpan(timeSpan), S_OK);
            EXPECT_EQ(timeSpan, 0);
            HLXCftArrayHLXCftArrayDouble table;
            EXPECT_EQ(amplitude->GetData(table), S_OK);
            EXPECT_EQ(table, usual);
        }
    }

    /// The shortest text that reads back as the number.
    static std::string TextOf(double number)
    {
        char digits[32];
        return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
    }

    /// Of an amplitude among those of the document, from 1.
    std::string PlaceOf(const VEXISpecObject_var& amplitude)
    {
        const VEXListValVEXBaseUnknown_var amplitudes = Amplitudes();
        int place = 1;
        while (place <= amplitudes.Size() && !(amplitudes[place] == amplitude)) {
            ++place;
        }
        return std::to_string(place);
    }

private:
    static vex::Feature& FeatureOf(const VEXBaseUnknown_var& object)
    {
        return dynamic_cast<vex::Feature&>(*object->GetImpl());
    }

    static std::string TextOf(const VEXRawColldouble& numbers)
    {
        std::string text = "(";
        for (int i = 1; i <= numbers.Size(); ++i) {
            text += (i > 1 ? " " : "") + TextOf(numbers[i]);
        }
        return text + ")";
    }

    template <class Interface>
    static std::string Ask(const VEXVar<Interface>& object,
                           HRESULT (Interface::*getter)(double&) const)
    {
        double number = -1;
        EXPECT_EQ((object.Get()->*getter)(number), S_OK);
        return TextOf(number);
    }

    std::string ValuesOf(const VEXBaseUnknown_var& created)
    {
        if (const HLXIPressureLoad_var pressure = created) {
            return Ask(pressure, &HLXIPressureLoad::GetPressure);
        }
        if (const HLXIHeatFlux_var flux = created) {
            return Ask(flux, &HLXIHeatFlux::GetMagnitude);
        }
        if (const HLXIConcentratedForce_var force = created) {
            return Ask(force, &HLXIConcentratedForce::GetComponentX) + " " +
                   Ask(force, &HLXIConcentratedForce::GetComponentY) + " " +
                   Ask(force, &HLXIConcentratedForce::GetComponentZ);
        }
        if (const HLXIGravity_var gravity = created) {
            return Ask(gravity, &HLXIGravity::GetComponentX) + " " +
                   Ask(gravity, &HLXIGravity::GetComponentY) + " " +
                   Ask(gravity, &HLXIGravity::GetComponentZ);
        }
        if (const HLXIRotationalBodyForce_var rotation = created) {
            const vex::Feature* const axis = FeatureOf(created).Target("AxisOfRotation");
            return Ask(rotation, &HLXIRotationalBodyForce::GetVelocity) + " " +
                   Ask(rotation, &HLXIRotationalBodyForce::GetAcceleration) +
                   (axis == nullptr ? "" : " about " + vex::RegionName(*axis));
        }
        return ValuesOfFilm(created);
    }

    std::string ValuesOfFilm(const HLXIFilmCondition_var& film)
    {
        VEXISpecObject_var amplitude;
        unsigned char used = 0;
        unsigned char dependent = 0;
        VEXRawColldouble coefficients;
        VEXRawColldouble temperatures;
        EXPECT_EQ(film->GetFilmAmplitude(amplitude), S_OK);
        EXPECT_EQ(film->GetUseFilmAmplitude(used), S_OK);
        EXPECT_EQ(film->GetTemperatureDependent(dependent), S_OK);
        EXPECT_EQ(film->GetCoefficients(coefficients), S_OK);
        EXPECT_EQ(film->GetTemperatures(temperatures), S_OK);
        return Ask(film, &HLXIFilmCondition::GetTemperature) +
               (amplitude ? " film amplitude " + PlaceOf(amplitude) : "") +
               (used != 0 ? " film amplitude used" : "") + (dependent != 0 ? " dependent" : "") +
               " " + TextOf(coefficients) + " " + TextOf(temperatures);
    }
};

}  // namespace hlxtest::statics
