// SPDX-License-Identifier: Apache-2.0
// What the creations of pressure, rotational body force, concentrated force, heat flux and film
// condition share up to the amplitude: factory, load, name.
#include "library/loads/LoadKinds.h"

namespace hlxtest::statics {
namespace {

class LoadCreationTest : public LoadKindTest, public testing::WithParamInterface<LoadKind>
{
protected:
    const LoadKind& kind = GetParam();

    Outcome Done() const { return {S_OK, kind.done, ""}; }

    std::string Alias(const char* outcome) const
    {
        return std::string("cast:") + (kind.namesFormer ? "HLXClamp" : kind.type) + "->VEXIAlias" +
               outcome;
    }

    /// The whole load without a name.
    std::string Nameless() const
    {
        const std::string whole = kind.Whole();
        return whole.substr(whole.find(':'));
    }
};

TEST_P(LoadCreationTest, PutsTheLoadIntoTheStepAndGivesIt)
{
    ExpectExit(kind, {"", "", Done(), kind.Whole(), kind.AmplitudeCount()});
    EXPECT_EQ(std::string(Loads()[1]->IsA()), kind.type);
    ExpectFlushed(kind, {"", "", Done()});
}

TEST_P(LoadCreationTest, TheAmplitudesAreTheUsualOnes)
{
    EXPECT_EQ(Create(kind.create), Done());
    ExpectUsualAmplitudes(kind.AmplitudeCount());
}

TEST_P(LoadCreationTest, OnlyTheLoadIsHeld)
{
    load = former;
    HeldCounts held = HeldAfter([&] { Create(kind.create); });
    held.erase("HLXLoadFact");
    EXPECT_EQ(held, (HeldCounts{{kind.type, 1}}));
    EXPECT_EQ(References(*load.Get()), 1U);
    EXPECT_EQ(References(*former.Get()), 1U);
    EXPECT_EQ(References(*step.Get()), 1U);
}

TEST_P(LoadCreationTest, AnEmptyHandleIsFilled)
{
    ASSERT_FALSE(load);
    EXPECT_EQ(Create(kind.create), Done());
    EXPECT_EQ(LoadTexts(), std::vector{kind.namesFormer ? Nameless() : kind.Whole()});
    EXPECT_TRUE(load == Loads()[1]);
}

TEST_P(LoadCreationTest, ASecondCallGivesASecondLoad)
{
    EXPECT_EQ(Create(kind.create, "", "First"), Done());
    const VEXISpecObject_var first = load;
    EXPECT_EQ(Create(kind.create, "", "Second"), Done());
    ASSERT_EQ(Loads().Size(), 2);
    EXPECT_TRUE(first == Loads()[1]);
    EXPECT_TRUE(load == Loads()[2]);
    EXPECT_EQ(AliasOf(first), kind.namesFormer ? "Second" : "First");
    EXPECT_EQ(AliasOf(load), kind.namesFormer ? "" : "Second");
    ExpectUsualAmplitudes(2 * kind.AmplitudeCount());
}

TEST_P(LoadCreationTest, NamesAreTakenAsTheyAre)
{
    const std::string name = "100% \"of\" \xC3\xA4\n\\";
    load = former;
    EXPECT_EQ(Create(kind.create, "", name.c_str()), Done());
    EXPECT_EQ(AliasOf(kind.namesFormer ? former : load), name);
}

// --- Factory ------------------------------------------------------------------------------------

TEST_P(LoadCreationTest, WithoutAFactoryThereIsNoLoad)
{
    for (const char* const outcome : {"E_FAIL", "E_ACCESSDENIED", "null", "S_FALSE"}) {
        ExpectExit(kind, {"",
                          std::string("VEXInstantiateComponent#1=") + outcome,
                          {E_FAIL, kind.NoFactory(), ""}});
    }
}

TEST_P(LoadCreationTest, AFactoryGivenAlongWithAFailureIsTakenOnlyByThoseThatDoNotLookAtIt)
{
    const char* const faults = "VEXInstantiateComponent#1=E_UNEXPECTED,keep";
    load = former;
    if (kind.checksFactory) {
        EXPECT_EQ(Create(kind.create, faults), (Outcome{E_FAIL, kind.NoFactory(), ""}));
        EXPECT_TRUE(load == former);
        EXPECT_EQ(Loads().Size(), 0);
    } else {
        EXPECT_EQ(Create(kind.create, faults), Done());
        EXPECT_EQ(LoadTexts(), std::vector{kind.Whole()});
    }
}

TEST_P(LoadCreationTest, AFactoryGivenWithAPositiveResultIsTaken)
{
    load = former;
    EXPECT_EQ(Create(kind.create, "VEXInstantiateComponent#1=S_FALSE,keep"), Done());
    EXPECT_EQ(LoadTexts(), std::vector{kind.Whole()});
}

// --- Load ---------------------------------------------------------------------------------------

TEST_P(LoadCreationTest, ALoadThatCannotBeCreatedIsToldAndNamesNothing)
{
    for (const char* const outcome : {"=E_FAIL", "=E_ACCESSDENIED", "=null", "=S_FALSE"}) {
        load = former;
        EXPECT_EQ(Create(kind.create, kind.factory + std::string(outcome)),
                  (Outcome{E_FAIL, kind.notCreated, ""}))
            << outcome;
        // The pressure alone is created straight into the handle, which the platform empties.
        EXPECT_TRUE(load == (kind.type == kPressure.type ? VEXISpecObject_var() : former));
        EXPECT_EQ(AliasOf(former), "Former");
        EXPECT_EQ(Loads().Size(), 0);
        EXPECT_EQ(Amplitudes().Size(), 0);
        load.Reset();
        ExpectNothingHeld(kind, kind.factory + std::string(outcome));
        ExpectFlushed(kind,
                      {"", kind.factory + std::string(outcome), {E_FAIL, kind.notCreated, ""}});
    }
}

TEST_P(LoadCreationTest, ALoadCreatedAlongWithAFailureStaysInTheStepAndIsNotNamed)
{
    load = former;
    const std::string faults = kind.factory + std::string("=E_UNEXPECTED,keep");
    EXPECT_EQ(Create(kind.create, faults), (Outcome{E_FAIL, kind.notCreated, ""}));
    ASSERT_EQ(Loads().Size(), 1);
    EXPECT_EQ(AliasOf(Loads()[1]), "");
    EXPECT_TRUE(load == (kind.type == kPressure.type ? VEXISpecObject_var(Loads()[1]) : former));
    EXPECT_EQ(AliasOf(former), "Former");
    EXPECT_EQ(Amplitudes().Size(), 0);
    load.Reset();
    ExpectNothingHeld(kind, faults);
}

TEST_P(LoadCreationTest, ALoadCreatedWithAPositiveResultIsTaken)
{
    ExpectExit(kind, {"", kind.factory + std::string("=S_FALSE,keep"), Done(), kind.Whole(),
                      kind.AmplitudeCount()});
}

// --- Name ---------------------------------------------------------------------------------------

TEST_P(LoadCreationTest, WhatHasNoAliasIsNotNamed)
{
    for (const std::string& faults : {Alias("=E_NOINTERFACE"), Alias("=null"),
                                      std::string("VEXIAlias::SetAlias=E_ACCESSDENIED")}) {
        load = former;
        EXPECT_EQ(Create(kind.create, faults), Done()) << faults;
        EXPECT_EQ(AliasOf(load), "") << faults;
        EXPECT_EQ(AliasOf(former), "Former") << faults;
        load.Reset();
        ExpectNothingHeld(kind, faults);
    }
    EXPECT_EQ(LoadTexts().front(), Nameless());
}

TEST_P(LoadCreationTest, ANameThatIsNoTextLeavesTheAliasAsItWas)
{
    load = former;
    EXPECT_EQ(Create(kind.create, "", "\xFF"), Done());
    EXPECT_EQ(AliasOf(load), "");
    EXPECT_EQ(AliasOf(former), "Former");
}

// --- Amplitude ----------------------------------------------------------------------------------

TEST_P(LoadCreationTest, AnAmplitudeMadeWithAPositiveResultIsTaken)
{
    for (const char* const faults : {"HLXIAmplitude::SetData=S_FALSE,keep",
                                     "HLXIAmplitudeFact::CreateTabularAmplitude=S_FALSE,keep"}) {
        load = former;
        EXPECT_EQ(Create(kind.create, faults), Done()) << faults;
        EXPECT_EQ(SupportsOf(load).size(), 1U) << faults;
    }
    ExpectUsualAmplitudes(2 * kind.AmplitudeCount());
}

INSTANTIATE_TEST_SUITE_P(Of, LoadCreationTest, testing::ValuesIn(kAllKinds),
                         [](const auto& row) { return std::string(row.param.name); });

struct AmplitudeFailure
{
    const char* name;
    const char* faults;
    int amplitudes;  ///< that are in the document all the same
};

class LoadAmplitudeTest : public LoadKindTest,
                          public testing::WithParamInterface<std::tuple<LoadKind, AmplitudeFailure>>
{};

TEST_P(LoadAmplitudeTest, FailsWithoutAWordAndKeepsTheLoad)
{
    const auto& [kind, failure] = GetParam();
    ExpectExit(kind, {"", failure.faults, {E_FAIL, "", ""}, kind.valued, failure.amplitudes});
}

INSTANTIATE_TEST_SUITE_P(
    Of, LoadAmplitudeTest,
    testing::Combine(
        testing::ValuesIn(kAllKinds),
        testing::Values(
            AmplitudeFailure{"NoFactory", "VEXInstantiateComponent#2=E_FAIL", 0},
            AmplitudeFailure{"NoAccessToFactory", "VEXInstantiateComponent#2=E_ACCESSDENIED", 0},
            AmplitudeFailure{"EmptyFactory", "VEXInstantiateComponent#2=null", 0},
            AmplitudeFailure{"NotCreated",
                             "HLXIAmplitudeFact::CreateTabularAmplitude#1=E_ACCESSDENIED", 0},
            AmplitudeFailure{"CreatedAlongWithAFailure",
                             "HLXIAmplitudeFact::CreateTabularAmplitude#1=E_UNEXPECTED,keep", 1},
            AmplitudeFailure{"NotGiven", "HLXIAmplitudeFact::CreateTabularAmplitude#1=null", 0},
            AmplitudeFailure{"NotTabular",
                             "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude#1=E_NOINTERFACE", 1},
            AmplitudeFailure{"NoTable", "HLXIAmplitude::SetData#1=E_ACCESSDENIED", 1})),
    [](const auto& row) {
        return std::string(std::get<0>(row.param).name) + std::get<1>(row.param).name;
    });

}  // namespace
}  // namespace hlxtest::statics
