// SPDX-License-Identifier: Apache-2.0
// Gravity in a step, what it prints, and all that an attempt to create it left behind, as a text.
#pragma once

#include "library/LoadState.h"

namespace hlxtest::statics {

inline constexpr const char* noGravityFactory = "********** Could not create HLXLoadFact\n";
inline constexpr const char* noGravity = "********** could not create gravity entity!\n";
inline constexpr const char* noGravityValue = "********** Could not valuate gravity\n";
inline constexpr const char* noGravitySupport = "Could not add support to gravity load\n";

/// What is left when the creation of "Name" went on to the end.
inline constexpr const char* completeGravity =
    "Name; : 0 0 -9.81 amplitude 1 used on body of box.VEXPart, GeometrySmartConnector; 10 rows";

/// The handle that receives the load holds a clamp named "Former" from the beginning.
class GravityTest : public LoadStateTest
{
protected:
    GravityTest() : GravityTest("box") {}
    explicit GravityTest(const char* specimen) : LoadStateTest(specimen) { load = former; }

    Outcome Create(std::string_view faults = "", const char* name = "Name")
    {
        return LoadTest::Create(&HLXAnalysisTestUtils::CreateGravity, faults, name);
    }

    /// The factories of loads and amplitudes are the same objects for the whole process.
    HeldCounts HeldBesidesFactories(std::string_view faults = "")
    {
        HeldCounts held = HeldAfterCreation(&HLXAnalysisTestUtils::CreateGravity, faults);
        held.erase("HLXLoadFact");
        held.erase("HLXAmplitudeFact");
        return held;
    }

    /// The name of the clamp, the loads, the lengths of the amplitudes.
    std::string Left()
    {
        std::string text = AliasOf(former);
        for (const std::string& one : LoadTexts()) {
            text += "; " + one;
        }
        const VEXListValVEXBaseUnknown_var amplitudes = Amplitudes();
        for (int i = 1; i <= amplitudes.Size(); ++i) {
            const HLXITabularAmplitude_var amplitude = amplitudes[i];
            EXPECT_TRUE(amplitude);
            HLXCftArrayHLXCftArrayDouble rows;
            EXPECT_EQ(amplitude->GetData(rows), S_OK);
            text += "; " + std::to_string(rows.size()) + " rows";
        }
        return text;
    }

    const VEXISpecObject_var former = Add(step, "HLXClamp", "Former");
};

}  // namespace hlxtest::statics
