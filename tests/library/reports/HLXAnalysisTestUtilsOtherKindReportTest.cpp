// SPDX-License-Identifier: Apache-2.0
// Reports on features of another kind than they are for: none is written. Those of a kind that is
// made in several ways are for each of these.
#include "library/reports/ReportFixture.h"

#include <algorithm>
#include <utility>

namespace hlxtest::reports {
namespace {

class OtherKindReport : public ReportKindTest
{
protected:
    using Named = std::pair<std::string, VEXISpecObject_var>;

    /// One feature of each kind that a step takes, with the name of the report on it, and some that
    /// there is no report on.
    std::vector<Named> Features()
    {
        std::vector<Named> features;
        for (const ReportKind& other : kAllReports) {
            features.emplace_back(other.name, other.create(place));
        }
        features.emplace_back("HeatFlux", HeatFlux(place, "HLXSurfaceHeatFlux"));
        features.emplace_back("HeatFlux", HeatFlux(place, "HLXBodyHeatFlux"));
        features.emplace_back("Temperature", InitialTemperature());
        features.emplace_back("", Clamp(place));
        features.emplace_back("", Velocity(place));
        features.emplace_back("", Amplitude(place));
        features.emplace_back("", place.step);
        features.emplace_back("", Case(1));
        features.emplace_back("", Model());
        return features;
    }

    VEXISpecObject_var InitialTemperature()
    {
        VEXListValVEXBaseUnknown_var steps;
        EXPECT_EQ(Case(1)->GetAnalysisSets(steps), S_OK);
        Place initial{analysis.Get(), steps[1]};
        return TemperatureOf(initial, "HLXInitialTemperatureLT");
    }

    /// Whether the kind's report is for the features that the report `other` is for. A temperature
    /// history is a temperature too.
    bool IsFor(const std::string& other) const
    {
        const std::string own = kind.name;
        return other == own || (own == "Temperature" && other == "TemperatureHistory");
    }
};

TEST_P(OtherKindReport, IsNotWritten)
{
    int refused = 0;
    for (const auto& [other, feature] : Features()) {
        if (IsFor(other)) {
            continue;
        }
        ++refused;
        ASSERT_TRUE(feature);
        EXPECT_EQ(Write(kind, feature), kRefused) << TypeOf(feature);
        EXPECT_EQ(folder.Names(), Lines{}) << TypeOf(feature);
        WriteFile(path, "before");
        EXPECT_EQ(Write(kind, feature), kRefused) << TypeOf(feature);
        EXPECT_EQ(Taken(), "before") << TypeOf(feature);
        EXPECT_EQ(HeldAfter([&, held = feature] { WriteUnseen(kind, held); }), HeldCounts{});
        EXPECT_EQ(Getters(kind, feature), Lines{});
    }
    EXPECT_GE(refused, 14);
}

TEST_P(OtherKindReport, IsWrittenOfEachThatHasTheInterface)
{
    int written = 0;
    for (const auto& [other, feature] : Features()) {
        if (IsFor(other)) {
            ++written;
            EXPECT_EQ(Write(kind, feature), kWritten) << TypeOf(feature);
            EXPECT_EQ(Taken(), kind.defaults) << TypeOf(feature);
            kind.value(feature);
            SetAmplitude(feature, NamedAmplitude(place, "Ramp"));
            EXPECT_EQ(Write(kind, feature), kWritten) << TypeOf(feature);
            EXPECT_EQ(Taken(), kind.valued) << TypeOf(feature);
        }
    }
    const std::string own = kind.name;
    EXPECT_EQ(written, own == "HeatFlux" || own == "Temperature" ? 3 : 1);
}

INSTANTIATE_TEST_SUITE_P(Of, OtherKindReport, testing::ValuesIn(kAllReports), NameOfReport);

}  // namespace
}  // namespace hlxtest::reports
