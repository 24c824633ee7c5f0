// SPDX-License-Identifier: Apache-2.0
// Reports on parameters of features: what holds for each kind.
#include "library/reports/ReportFixture.h"

#include <type_traits>

namespace hlxtest::reports {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::DumpPressureParams), Report>);
static_assert(std::is_same_v<decltype(&Utils::DumpGravityParams), Report>);
static_assert(std::is_same_v<decltype(&Utils::DumpRBFParams), Report>);
static_assert(std::is_same_v<decltype(&Utils::DumpConcForceParams), Report>);
static_assert(std::is_same_v<decltype(&Utils::DumpDispBCParams), Report>);
static_assert(std::is_same_v<decltype(&Utils::DumpTempHistParams), Report>);
static_assert(std::is_same_v<decltype(&Utils::DumpTempBCParams), Report>);
static_assert(std::is_same_v<decltype(&Utils::DumpConcHeatFluxParams), Report>);
static_assert(std::is_same_v<decltype(&Utils::DumpFilmConditionParams), Report>);

using EachReport = ReportKindTest;

TEST_P(EachReport, OnANewFeatureHasItsDefaults)
{
    EXPECT_EQ(Write(kind, kind.create(place)), kWritten);
    EXPECT_EQ(Taken(), kind.defaults);
    EXPECT_EQ(folder.Names(), Lines{});
}

TEST_P(EachReport, HasTheValuesOfTheFeature)
{
    EXPECT_EQ(Write(kind, Valued(kind)), kWritten);
    EXPECT_EQ(Taken(), kind.valued);
}

TEST_P(EachReport, HasTheValuesOfThatMoment)
{
    const VEXISpecObject_var feature = kind.create(place);
    EXPECT_EQ(Write(kind, feature), kWritten);
    kind.value(feature);
    SetAmplitude(feature, NamedAmplitude(place, "Ramp"));
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(Taken(), kind.defaults + kind.valued);
}

// --- Amplitudes ---------------------------------------------------------------------------------

TEST_P(EachReport, OfAFeatureWithoutAnAmplitudeSaysNull)
{
    const VEXISpecObject_var feature = kind.create(place);
    kind.value(feature);
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(Taken(), ValuedWith(kind, "NULL"));
    SetAmplitude(feature, NamedAmplitude(place, "Ramp"));
    SetAmplitude(feature, VEXISpecObject_var());
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(Taken(), ValuedWith(kind, "NULL"));
}

TEST_P(EachReport, NamesAnAmplitudeThatIsNotUsed)
{
    const VEXISpecObject_var feature = kind.create(place);
    SetAmplitude(feature, NamedAmplitude(place, "Ramp"));
    EXPECT_EQ(Write(kind, feature), kWritten);
    const std::string unnamed = "Amplitude Spec is :NULL";
    std::string named = kind.defaults;
    named.replace(named.find(unnamed), unnamed.size(), "Amplitude Spec is :Ramp");
    EXPECT_EQ(Taken(), named);
}

TEST_P(EachReport, LeavesTheNameOfAnUnnamedAmplitudeEmpty)
{
    const VEXISpecObject_var feature = kind.create(place);
    kind.value(feature);
    SetAmplitude(feature, Amplitude(place));
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(Taken(), ValuedWith(kind, ""));
}

TEST_P(EachReport, OfAnAmplitudeThatCannotHaveANameSaysNull)
{
    const VEXISpecObject_var feature = Valued(kind);
    for (const char* const outcome : {"E_NOINTERFACE", "E_FAIL", "null"}) {
        EXPECT_EQ(
            Write(kind, feature, std::string("cast:HLXTabularAmplitudeLT->VEXIAlias=") + outcome),
            kWritten);
        EXPECT_EQ(Taken(), ValuedWith(kind, "NULL")) << outcome;
    }
}

TEST_P(EachReport, TakesAnEmptyNameForOne)
{
    EXPECT_EQ(Write(kind, Valued(kind), "VEXIAlias::GetAlias=empty"), kWritten);
    EXPECT_EQ(Taken(), ValuedWith(kind, ""));
}

TEST_P(EachReport, HasNamesAsTheyStand)
{
    const VEXISpecObject_var feature = kind.create(place);
    kind.value(feature);
    const VEXISpecObject_var amplitude = Amplitude(place);
    SetAmplitude(feature, amplitude);
    for (const std::string& name : kOddNames) {
        Name(amplitude, name);
        EXPECT_EQ(Write(kind, feature), kWritten);
        EXPECT_TRUE(Taken() == ValuedWith(kind, name)) << name.substr(0, 100);
    }
}

TEST_P(EachReport, TakesAnAmplitudeWithAnyResultThatIsNoFailure)
{
    const VEXISpecObject_var feature = Valued(kind);
    EXPECT_EQ(Write(kind, feature, "HLXICondition::GetAmplitude=S_FALSE,keep"), kWritten);
    EXPECT_EQ(Taken(), kind.valued);
    EXPECT_EQ(Write(kind, feature, "HLXICondition::GetAmplitude=null"), kWritten);
    EXPECT_EQ(Taken(), ValuedWith(kind, "NULL"));
}

// --- Calls --------------------------------------------------------------------------------------

TEST_P(EachReport, AsksForEachValueInTurnAndForAmplitudesLast)
{
    EXPECT_EQ(Getters(kind, Valued(kind)), kind.getters);
    EXPECT_EQ(Getters(kind, kind.create(place)), kind.getters);
}

TEST_P(EachReport, CastsTheFeatureAndNamesItsAmplitude)
{
    const VEXISpecObject_var feature = Valued(kind);
    const std::string type = TypeOf(feature);
    Lines typed;
    for (const std::string& interface : kind.casts) {
        typed.push_back("cast:" + type + "->" + interface + "(&)");
    }
    typed.push_back("cast:HLXTabularAmplitudeLT->VEXIAlias(&)");
    typed.push_back("VEXIAlias::GetAlias()");
    const auto write = [&] { WriteUnseen(kind, feature); };
    EXPECT_EQ(QuietCallsOf(write, {"cast:", "VEX"}), typed);

    const Lines all = QuietCallsOf(write);
    EXPECT_EQ(all.front(), typed.front());
    EXPECT_EQ(all.size(), typed.size() + kind.getters.size());
}

TEST_P(EachReport, LeavesNothingHeldAndTheFeatureAsItWas)
{
    const VEXISpecObject_var feature = Valued(kind);
    const unsigned long references = References(*feature.Get());
    EXPECT_EQ(HeldAfter([&] { WriteUnseen(kind, feature); }), HeldCounts{});
    std::vector<std::string> ways{"cast:HLXTabularAmplitudeLT->VEXIAlias=null",
                                  "HLXICondition::GetAmplitude=E_FAIL,keep"};
    for (const std::string& getter : kind.getters) {
        ways.push_back(getter.substr(0, getter.find('(')) + "=E_FAIL");
        ways.push_back(getter.substr(0, getter.find('(')) + "=E_FAIL,keep");
    }
    for (const std::string& way : ways) {
        EXPECT_EQ(HeldAfter(way, [&] { return WriteUnseen(kind, feature); }), HeldCounts{}) << way;
    }
    EXPECT_EQ(References(*feature.Get()), references);
    std::filesystem::remove(path);
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(Taken(), kind.valued);
}

// --- Features that are none of the kind ---------------------------------------------------------

TEST_P(EachReport, OnNothingIsRefused)
{
    EXPECT_EQ(Write(kind, VEXISpecObject_var()), kRefused);
    EXPECT_EQ(folder.Names(), Lines{});
    WriteFile(path, "before");
    EXPECT_EQ(Write(kind, VEXISpecObject_var()), kRefused);
    EXPECT_EQ(Taken(), "before");
}

TEST_P(EachReport, WithoutTheInterfaceOfTheKindIsRefused)
{
    const VEXISpecObject_var feature = Valued(kind);
    const std::string cast = "cast:" + TypeOf(feature) + "->" + kind.casts.front();
    for (const char* const outcome : {"=E_NOINTERFACE", "=E_FAIL", "=null"}) {
        EXPECT_EQ(Write(kind, feature, cast + outcome), kRefused) << outcome;
        EXPECT_EQ(folder.Names(), Lines{});
        EXPECT_EQ(QuietCallsOf([&] { WriteUnseen(kind, feature); }, {}, cast + outcome),
                  Lines{cast + "(&)"});
    }
    WriteFile(path, "before");
    EXPECT_EQ(Write(kind, feature, cast + "=null"), kRefused);
    EXPECT_EQ(Taken(), "before");
}

INSTANTIATE_TEST_SUITE_P(Of, EachReport, testing::ValuesIn(kAllReports), NameOfReport);

}  // namespace
}  // namespace hlxtest::reports
