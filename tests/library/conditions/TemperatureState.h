// SPDX-License-Identifier: Apache-2.0
// Temperatures of a document, each as one line of text, so that a test compares what an operation
// left with what was typed:
//
//     HLXTemperatureLT in Loading, Name: 25.89 subroutine amplitude 1 used on face 1 of
//     box.VEXPart, GeometrySmartConnector
//
// The late type and the step; the alias, the magnitude; whether it comes from a subroutine; the
// place of its amplitude among those of the document, whether it is used; its supports. What is not
// there or not so is left out.
#pragma once

#include "HLXTemperatures.h"
#include "library/LoadState.h"

namespace hlxtest::statics {

/// What a temperature is created from, and the handle that it is given through.
struct TemperatureArguments
{
    VEXDocument* document;
    VEXISamAnalysisSet_var step;
    VEXUnicodeString name = "Name";
    VEXISpecObject_var temperature = {};
    VEXISamAnalysisEntity_var history = {};  ///< for a history; `temperature` for the others
};

using TemperatureCreation = HRESULT (*)(TemperatureArguments&);

/// There is a clamp of the name "Former" in the step, which handles hold at first.
class TemperatureStateTest : public LoadStateTest
{
protected:
    using LoadStateTest::LoadStateTest;

    TemperatureArguments Arguments(const VEXISpecObject_var& held = {})
    {
        return {analysis.Get(), step, "Name", held, held};
    }

    /// The temperatures of the document by late type.
    VEXListValVEXBaseUnknown_var Temperatures()
    {
        VEXListValVEXBaseUnknown_var temperatures;
        for (const char* const type :
             {"HLXTemperatureLT", "HLXInitialTemperatureLT", "HLXTemperatureHistoryLT"}) {
            const VEXListValVEXBaseUnknown_var found = Below(Model(), type);
            for (int i = 1; i <= found.Size(); ++i) {
                if (VEXISpecObject_var(found[i])->GetType() == type) {
                    temperatures.Append(found[i]);
                }
            }
        }
        return temperatures;
    }

    std::vector<std::string> TemperatureTexts()
    {
        std::vector<std::string> texts;
        const VEXListValVEXBaseUnknown_var temperatures = Temperatures();
        for (int i = 1; i <= temperatures.Size(); ++i) {
            texts.push_back(TemperatureText(temperatures[i]));
        }
        return texts;
    }

    std::string TemperatureText(const VEXISpecObject_var& feature)
    {
        const HLXITemperature_var temperature = feature;
        EXPECT_TRUE(temperature);
        double magnitude = -1;
        int distribution = -1;
        unsigned char subroutine = 77;
        unsigned char used = 77;
        VEXISpecObject_var amplitude;
        EXPECT_EQ(temperature->GetMagnitude(magnitude), S_OK);
        EXPECT_EQ(temperature->GetDistribution(distribution), S_OK);
        EXPECT_EQ(distribution, 0);
        EXPECT_EQ(temperature->GetUserSubroutine(subroutine), S_OK);
        EXPECT_EQ(temperature->GetUseAmplitude(used), S_OK);
        EXPECT_EQ(temperature->GetAmplitude(amplitude), S_OK);
        std::string text = std::string(feature->GetType().View()) + " in " +
                           AliasOf(feature->GetFather()->GetFather()) + ", " + AliasOf(feature) +
                           ": " + TextOf(magnitude);
        text += subroutine != 0 ? " subroutine" : "";
        text += amplitude ? " amplitude " + PlaceOf(amplitude) : "";
        text += used != 0 ? " used" : "";
        for (const std::string& support : SupportsOf(feature)) {
            text += " on " + support;
        }
        return text;
    }

    const VEXISpecObject_var former = Add(step, "HLXClamp", "Former");
};

}  // namespace hlxtest::statics
