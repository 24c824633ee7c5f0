// SPDX-License-Identifier: Apache-2.0
// The load factory of a test case: made once, owned, told when it cannot be made.
#include "HLXILoadFact.h"
#include "VEXComponents.h"

#include "support/ExposedTestCase.h"
#include "support/Outcome.h"
#include "support/StandIns.h"

#include <gmock/gmock.h>

#include <optional>

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char kMessage[] = "********** Could not create HLXLoadFact";

TEST(LoadFactory, IsNullBeforeItIsMade)
{
    ExposedTestCase testCase;
    EXPECT_THAT(CallsOf([&] { EXPECT_EQ(testCase.GetLoadFactory(), nullptr); }), IsEmpty());
}

TEST(LoadFactory, IsMadeOnce)
{
    ExposedTestCase testCase;
    EXPECT_THAT(CallsOf([&] {
                    for (int call = 1; call <= 2; ++call) {
                        EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeLoadFactory(); }),
                                  (Outcome{S_OK, "", ""}));
                    }
                }),
                ElementsAre("VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)"));
    EXPECT_NE(testCase.GetLoadFactory(), nullptr);
}

TEST(LoadFactory, IsTheProductsFactoryAndPrintsNothing)
{
    ExposedTestCase testCase;
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeLoadFactory(); }), (Outcome{S_OK, "", ""}));
    void* object = nullptr;
    ASSERT_EQ(VEXInstantiateComponent("HLXLoadFact", IID_HLXILoadFact, &object), S_OK);
    const auto factory = VEXAdopt(static_cast<HLXILoadFact*>(object));
    EXPECT_EQ(testCase.GetLoadFactory(), factory.Get());
    EXPECT_EQ(testCase._LoadFactory, factory.Get());
}

TEST(LoadFactory, IsHandedOutUncountedAndReleasedByTheDestructor)
{
    void* object = nullptr;
    ASSERT_EQ(VEXInstantiateComponent("HLXLoadFact", IID_HLXILoadFact, &object), S_OK);
    const auto factory = VEXAdopt(static_cast<HLXILoadFact*>(object));
    const unsigned long before = References(*factory.Get());
    std::optional<ExposedTestCase> testCase(std::in_place);
    EXPECT_EQ(testCase->InitializeLoadFactory(), S_OK);
    EXPECT_EQ(References(*factory.Get()), before + 1);
    EXPECT_EQ(testCase->GetLoadFactory(), factory.Get());
    EXPECT_EQ(References(*factory.Get()), before + 1);
    testCase.reset();
    EXPECT_EQ(References(*factory.Get()), before);
}

TEST(LoadFactory, OneThatIsThereAlreadyIsKept)
{
    Deaths deaths;
    auto* const factory = new AnyStandIn(deaths, "factory");
    {
        ExposedTestCase testCase;
        testCase._LoadFactory = factory;
        EXPECT_THAT(CallsOf([&] {
                        EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeLoadFactory(); }),
                                  (Outcome{S_OK, "", ""}));
                    }),
                    IsEmpty());
        EXPECT_EQ(testCase.GetLoadFactory(), factory);
        EXPECT_EQ(References(*factory), 1U);
    }
    EXPECT_THAT(deaths, ElementsAre("factory"));
}

struct FailureRow
{
    const char* name;
    const char* outcome;
    long result;
};

class LoadFactoryFailure : public testing::TestWithParam<FailureRow>
{};

TEST_P(LoadFactoryFailure, IsToldWithoutALineEndAndLeavesNoFactory)
{
    ExposedTestCase testCase;
    EXPECT_EQ(RunWith(std::string("VEXInstantiateComponent=") + GetParam().outcome,
                      [&] { return testCase.InitializeLoadFactory(); }),
              (Outcome{GetParam().result, kMessage, ""}));
    EXPECT_EQ(testCase.GetLoadFactory(), nullptr);

    // Nothing is remembered of the failure.
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeLoadFactory(); }), (Outcome{S_OK, "", ""}));
    EXPECT_NE(testCase.GetLoadFactory(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Outcomes, LoadFactoryFailure,
    testing::Values(FailureRow{"Fails", "E_FAIL", -2147467259L},
                    FailureRow{"HasNoSuchInterface", "E_NOINTERFACE", -2147467262L},
                    FailureRow{"FailsWithMinusOne", "-1", -1},
                    FailureRow{"GivesNothing", "null", 0},
                    FailureRow{"GivesNothingWithOne", "1", 1},
                    FailureRow{"FailsAlthoughAFactoryCame", "E_FAIL,keep", -2147467259L}),
    [](const auto& row) { return row.param.name; });

TEST(LoadFactory, APositiveResultWithAFactoryIsPassedUp)
{
    ExposedTestCase testCase;
    EXPECT_EQ(
        RunWith("VEXInstantiateComponent=1,keep", [&] { return testCase.InitializeLoadFactory(); }),
        (Outcome{1, "", ""}));
    EXPECT_NE(testCase.GetLoadFactory(), nullptr);
}

}  // namespace

}  // namespace hlxtest
