// SPDX-License-Identifier: Apache-2.0
// Making amplitudes.
#pragma once

#include "HLXAmplitudes.h"
#include "library/AnalysisSetUp.h"

namespace hlxtest::statics {

using Table = HLXCftArrayHLXCftArrayDouble;

/// The rows that new amplitudes are filled with.
inline const Table tenRows = {{0.0, 0.0},  {1.0, 2.0},  {2.0, 4.0},  {3.0, 6.0},  {4.0, 8.0},
                              {5.0, 10.0}, {6.0, 12.0}, {7.0, 14.0}, {8.0, 16.0}, {9.0, 18.0}};

/// What an amplitude holds.
struct AmplitudeState
{
    std::string lateType;
    int timeSpan = -1;
    Table table;

    friend bool operator==(const AmplitudeState&, const AmplitudeState&) = default;
    friend void PrintTo(const AmplitudeState& state, std::ostream* stream)
    {
        *stream << state.lateType << ", time span " << state.timeSpan << ", "
                << testing::PrintToString(state.table);
    }
};

class AmplitudeTest : public AnalysisSetUp
{
protected:
    static constexpr const char* factoryName = "HLXAmplitudeFact";
    static constexpr const char* instantiation =
        "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)";

    static AmplitudeState StateOf(const VEXISpecObject_var& amplitude)
    {
        AmplitudeState state;
        state.lateType = TypeOf(amplitude);
        if (const HLXIAmplitude_var typed = amplitude) {
            EXPECT_EQ(typed->GetTimeSpan(state.timeSpan), S_OK);
            EXPECT_EQ(typed->GetData(state.table), S_OK);
        }
        return state;
    }

    /// The amplitudes of the document, in order.
    std::vector<AmplitudeState> Amplitudes()
    {
        const VEXListValVEXBaseUnknown_var found = Below(Model(), "HLXAmplitudeLT");
        std::vector<AmplitudeState> states;
        for (int i = 1; i <= found.Size(); ++i) {
            states.push_back(StateOf(found[i]));
        }
        return states;
    }

    static unsigned long ReferencesToFactory()
    {
        return FactoryReferences<HLXIAmplitudeFact>(factoryName);
    }
};

}  // namespace hlxtest::statics
