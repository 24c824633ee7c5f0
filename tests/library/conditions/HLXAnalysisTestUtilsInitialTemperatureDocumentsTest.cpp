// SPDX-License-Identifier: Apache-2.0
// Initial temperatures on documents with other parts, cases and initial steps, without what they
// need; and stored.
#include "library/conditions/TemperatureDocuments.h"

namespace hlxtest::statics {
namespace {

constexpr const TemperatureKind& kKind = kInitialTemperature;

// --- Parts and links ----------------------------------------------------------------------------

class InitialTemperatureOnPartTest : public TemperatureDocumentTest,
                                     public testing::WithParamInterface<const char*>
{
protected:
    InitialTemperatureOnPartTest() : TemperatureDocumentTest(GetParam()) {}
};

TEST_P(InitialTemperatureOnPartTest, IsPutOnTheBodyWhateverCellsItHas)
{
    ExpectExit(kKind, {"", "", S_OK, "", kKind.Whole("Name", GetParam()), 0});
}

INSTANTIATE_TEST_SUITE_P(Of, InitialTemperatureOnPartTest,
                         testing::Values("cylinder", "bare_sphere", "sheets", "wire_frame",
                                         "two_solids"),
                         [](const auto& row) { return std::string(row.param); });

class InitialTemperatureOnNothingTest : public TemperatureDocumentTest
{
protected:
    InitialTemperatureOnNothingTest() : TemperatureDocumentTest("without_geometry") {}
};

TEST_F(InitialTemperatureOnNothingTest, IsRefusedByThePlatformWithItsReason)
{
    ExpectRefusedWithoutGeometry(kKind);
}

class InitialTemperatureWithoutLinksTest : public TemperatureDocumentTest
{
protected:
    InitialTemperatureWithoutLinksTest() : TemperatureDocumentTest(nullptr) {}
};

TEST_F(InitialTemperatureWithoutLinksTest, LinksLeadToTheFirstPart)
{
    ExpectLinksFollowed(kKind);
}

TEST_F(InitialTemperatureWithoutLinksTest, AProductWithoutAPartIsNotEnough)
{
    ExpectNoPartInAnEmptyProduct(kKind);
}

TEST_F(InitialTemperatureWithoutLinksTest, APartLinkedDirectlyIsNoProduct)
{
    ExpectNoProductInALinkToAPart(kKind);
}

// --- The initial step ---------------------------------------------------------------------------

class InitialTemperatureStepTest : public TemperatureDocumentTest
{
protected:
    VEXISpecObject_var InitialStep() { return Below(Model(), "HLXHacInitialStepLT")[1]; }

    static void Delete(const VEXISpecObject_var& object)
    {
        auto& feature = dynamic_cast<vex::Feature&>(*object->GetImpl());
        feature.Tree()->Delete(feature);
    }

    void ExpectMadeIn(const VEXISpecObject_var& initial)
    {
        TemperatureArguments arguments = Arguments();
        EXPECT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
        ASSERT_TRUE(arguments.temperature);
        EXPECT_TRUE(arguments.temperature->GetFather()->GetFather() == initial);
    }
};

TEST_F(InitialTemperatureStepTest, IsThatOfTheFirstCaseWhateverCasesAndModelsThereAre)
{
    hlxtest::AddCase(analysis.Get());
    AddModel(analysis.Get());
    AddStep(2, "HLXGeneralStaticStepLT", "Of the second case");
    const VEXISpecObject_var initial = InitialStep();
    ExpectMadeIn(initial);
    EXPECT_EQ(Below(initial, "HLXInitialTemperatureLT").Size(), 1);
    EXPECT_EQ(Temperatures().Size(), 1);
}

TEST_F(InitialTemperatureStepTest, MayHaveAnyName)
{
    const VEXISpecObject_var initial = InitialStep();
    ASSERT_EQ(VEXIAlias_var(initial)->SetAlias("Before all"), S_OK);
    ExpectMadeIn(initial);
    EXPECT_EQ(AliasOf(initial), "Before all");
    EXPECT_EQ(Below(Model(), "HLXHacInitialStepLT").Size(), 1);
}

TEST_F(InitialTemperatureStepTest, IsMadeWhereThereIsNone)
{
    Delete(InitialStep());
    ASSERT_EQ(Below(Model(), "HLXHacInitialStepLT").Size(), 0);
    TemperatureArguments arguments = Arguments();
    EXPECT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    ASSERT_EQ(Below(Model(), "HLXHacInitialStepLT").Size(), 1);
    EXPECT_TRUE(arguments.temperature->GetFather()->GetFather() == InitialStep());
}

TEST_F(InitialTemperatureStepTest, GetsItsContainerOfFieldsWhereItHasNone)
{
    const VEXISpecObject_var initial = InitialStep();
    Delete(Below(initial, "HLXHacFieldContainerLT")[1]);
    ExpectMadeIn(initial);
    EXPECT_EQ(Below(initial, "HLXHacFieldContainerLT").Size(), 1);
}

TEST_F(InitialTemperatureStepTest, IsNotThereWithoutACase)
{
    AnalysisDocument empty(0);
    TemperatureArguments arguments = Arguments(former);
    arguments.document = empty.Get();
    ExpectRefused(kKind, arguments);
}

TEST_F(InitialTemperatureStepTest, NoDocumentAndOtherDocumentsHaveNone)
{
    ExpectRefusedByOtherDocuments(kKind);
}

TEST_F(InitialTemperatureStepTest, IsTheSameOnceStoredAndOpenedAgain)
{
    ExpectSameOnceStored(kKind);
}

}  // namespace
}  // namespace hlxtest::statics
