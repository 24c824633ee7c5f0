// SPDX-License-Identifier: Apache-2.0
// Gravity in documents of all kinds: other steps and parts, no step, no document, no part.
#include "library/OtherDocuments.h"
#include "library/loads/GravityFixture.h"

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

// --- Parts ---------------------------------------------------------------------------------------

class GravityOnPartTest : public GravityTest, public testing::WithParamInterface<const char*>
{
protected:
    GravityOnPartTest() : GravityTest(GetParam()) {}
};

TEST_P(GravityOnPartTest, ActsOnTheBodyWhateverCellsItHas)
{
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(SupportsOf(load), (std::vector<std::string>{"body of " + std::string(GetParam()) +
                                                          ".VEXPart, GeometrySmartConnector"}));
}

INSTANTIATE_TEST_SUITE_P(Of, GravityOnPartTest,
                         testing::Values("box", "cylinder", "sphere", "torus", "bare_sphere",
                                         "sheets", "wire_frame", "two_solids"),
                         [](const auto& row) { return std::string(row.param); });

class GravityOnNothingTest : public OtherDocuments<GravityTest>
{
protected:
    GravityOnNothingTest() : OtherDocuments("without_geometry") {}
};

TEST_F(GravityOnNothingTest, IsRefusedByThePlatformWithItsReason)
{
    EXPECT_EQ(Create("VEXISamAnalysisSupport::AddSupport=E_FAIL"),
              (Outcome{E_FAIL, noGravitySupport, ""}));
    const std::string reason = ReasonWithoutGeometry(Loads()[1]);
    EXPECT_EQ(Create(), (Outcome{E_FAIL, noGravitySupport, reason}));
    EXPECT_TRUE(load == former);
    EXPECT_EQ(Left(),
              "Name; : 0 0 -9.81 amplitude 1 used; : 0 0 -9.81 amplitude 2 used; 10 rows; "
              "10 rows");
}

class GravityWithoutLinksTest : public OtherDocuments<GravityTest>
{
protected:
    GravityWithoutLinksTest() : OtherDocuments(nullptr) {}
};

constexpr const char* unsupported = "Name; : 0 0 -9.81 amplitude 1 used; 10 rows";

TEST_F(GravityWithoutLinksTest, IsMadeAndThenLacksAProduct)
{
    EXPECT_EQ(Create(), (Outcome{E_FAIL, noLinkedGeometry, ""}));
    EXPECT_EQ(Left(), unsupported);
    EXPECT_TRUE(load == former);
}

TEST_F(GravityWithoutLinksTest, APartLinkedDirectlyIsNoProduct)
{
    Link(PartSpecimen(folder, "box"));
    EXPECT_EQ(Create(), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(Left(), unsupported);
    EXPECT_TRUE(load == former);
}

TEST_F(GravityWithoutLinksTest, AProductWithoutAPartIsNotEnough)
{
    LinkToProductWithoutChildren();
    EXPECT_EQ(Create(), (Outcome{E_FAIL, noProductStructure, ""}));
    EXPECT_EQ(Left(), unsupported);
    EXPECT_TRUE(load == former);
}

TEST_F(GravityWithoutLinksTest, OfSeveralPartsTheFirstIsTaken)
{
    Link(SeveralPartsSpecimen(folder));
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(SupportsOf(load),
              (std::vector<std::string>{"body of box.VEXPart, GeometrySmartConnector"}));
}

TEST_F(GravityWithoutLinksTest, OfSeveralProductsTheFirstIsTaken)
{
    Link(ProductSpecimen(folder, "torus"));
    Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(SupportsOf(load),
              (std::vector<std::string>{"body of torus.VEXPart, GeometrySmartConnector"}));
}

// --- Steps ---------------------------------------------------------------------------------------

class GravityInStepTest : public GravityTest, public testing::WithParamInterface<const char*>
{};

TEST_P(GravityInStepTest, StandsInThatStepAlone)
{
    const VEXISpecObject_var second = AddStep(1, GetParam(), "Second");
    const VEXISamAnalysisSet_var first = step;
    step = second;
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Left(), completeGravity);
    EXPECT_TRUE(load->GetFather() == Below(second, "HLXLoadContainerLT")[1]);
    EXPECT_EQ(Below(first, "HLXLoad").Size(), 0);
}

INSTANTIATE_TEST_SUITE_P(Of, GravityInStepTest,
                         testing::Values("HLXGeneralStaticStepLT", "HLXStaticLPStepLT",
                                         "HLXRiksStepLT", "HLXFrequencyStepLT",
                                         "HLXHeatTransferStepLT", "HLXExplicitDynamicStepLT",
                                         "HLXExplicitDynamicLT"),
                         [](const auto& row) { return std::string(row.param); });

TEST_F(GravityTest, StandsInTheStepOfAnotherCase)
{
    hlxtest::AddCase(analysis.Get());
    step = AddStep(2, "HLXGeneralStaticStepLT", "Of the second case");
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Left(), completeGravity);
}

TEST_F(GravityTest, NoStepAndNoStepOfTheDocumentRefuseIt)
{
    const VEXISamAnalysisSet_var loading = step;
    const VEXISpecObject_var initial = Below(Manager(), "HLXHacInitialStepLT")[1];
    ASSERT_TRUE(initial);
    AnalysisDocument other{1};
    VEXListValVEXBaseUnknown_var sets;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisSets(sets, other.Get(), ""), S_OK);
    for (const VEXISamAnalysisSet_var& wrong :
         {VEXISamAnalysisSet_var(), VEXISamAnalysisSet_var(initial),
          VEXISamAnalysisSet_var(sets[1])}) {
        step = wrong;
        EXPECT_EQ(Create(), (Outcome{E_FAIL, noGravity, ""}));
        EXPECT_TRUE(load == former);
    }
    sets.RemoveAll();
    step = loading;
    EXPECT_EQ(Left(), "Former");
}

TEST_F(GravityTest, NoDocumentAndDocumentsOfOtherKindsRefuseIt)
{
    AnalysisDocument other{1};
    for (VEXDocument* const wrong :
         {static_cast<VEXDocument*>(nullptr), New("VEXPart"), New("VEXProduct"), other.Get()}) {
        EXPECT_EQ(OutcomeOf([&] { return Utils::CreateGravity(wrong, "Name", load, step); }),
                  (Outcome{E_FAIL, noGravity, ""}));
        EXPECT_TRUE(load == former);
    }
    EXPECT_EQ(Left(), "Former");
}

// --- What the handle holds on entry --------------------------------------------------------------

TEST_F(GravityTest, AFeatureOfAnotherDocumentIsNamedToo)
{
    VEXDocument* const part = Open(folder.File("box.VEXPart"));
    load = RootOf(part);
    const VEXISpecObject_var named = load;
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(AliasOf(named), "Name");
    EXPECT_EQ(AliasOf(former), "Former");
    EXPECT_TRUE(load == Loads()[1]);
}

TEST_F(GravityTest, AFeatureWhoseDocumentIsGoneIsReplaced)
{
    VEXDocument* const part = New("VEXPart");
    load = RootOf(part);
    Forget(part);
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(load == Loads()[1]);
}

}  // namespace
}  // namespace hlxtest::statics
