// SPDX-License-Identifier: Apache-2.0
// Displacement, velocity and clamp on documents with other parts, or without what they need; in
// every step.
#include "library/OtherDocuments.h"
#include "library/conditions/BoundaryConditionKinds.h"

namespace hlxtest::statics {
namespace {

// --- Parts --------------------------------------------------------------------------------------

using KindAndPart = std::tuple<ConditionKind, const char*>;

class ConditionOnPartTest : public BoundaryConditionTest,
                            public testing::WithParamInterface<KindAndPart>
{
protected:
    ConditionOnPartTest() : BoundaryConditionTest(std::get<1>(GetParam())) {}

    const ConditionKind& kind = std::get<0>(GetParam());
};

TEST_P(ConditionOnPartTest, IsPutOnTheFirstFace)
{
    ExpectExit(kind, {"", "", {S_OK, "", ""}, kind.Whole(std::get<1>(GetParam()))});
}

INSTANTIATE_TEST_SUITE_P(Of, ConditionOnPartTest,
                         testing::Combine(testing::ValuesIn(kAllConditions),
                                          testing::ValuesIn(completeParts)),
                         nameOfKindAndPart);

class ConditionOnIncompletePartTest : public ConditionOnPartTest
{};

TEST_P(ConditionOnIncompletePartTest, FailsWithoutAWordWhenTheConditionIsThere)
{
    ExpectExit(kind, {"", "", {E_FAIL, "", ""}, kind.ready});
}

INSTANTIATE_TEST_SUITE_P(Of, ConditionOnIncompletePartTest,
                         testing::Combine(testing::ValuesIn(kAllConditions),
                                          testing::ValuesIn(incompleteParts)),
                         nameOfKindAndPart);

// --- Links --------------------------------------------------------------------------------------

class ConditionOnLinksTest : public OtherDocuments<BoundaryConditionTest>,
                             public testing::WithParamInterface<ConditionKind>
{
protected:
    ConditionOnLinksTest() : OtherDocuments(nullptr) {}

    /// The part is not found, with what is printed on the way to it.
    void ExpectNoPart(const char* out)
    {
        ExpectExit(kind, {"", "", {E_FAIL, out, ""}, kind.ready});
    }

    const ConditionKind& kind = GetParam();
};

TEST_P(ConditionOnLinksTest, ADocumentThatIsNotLinkedHasNoPart)
{
    ExpectNoPart(noLinkedGeometry);
}

TEST_P(ConditionOnLinksTest, ADocumentThatIsLinkedToAPartHasNoProduct)
{
    Link(PartSpecimen(folder, "box"));
    ExpectNoPart("");
}

TEST_P(ConditionOnLinksTest, AProductWithoutChildrenHasNoMechanicalPart)
{
    LinkToProductWithoutChildren();
    ExpectNoPart(noProductStructure);
}

TEST_P(ConditionOnLinksTest, OfSeveralPartsTheFirstIsTaken)
{
    Link(SeveralPartsSpecimen(folder));
    ExpectExit(kind, {"", "", {S_OK, "", ""}, kind.Whole()});
}

INSTANTIATE_TEST_SUITE_P(Of, ConditionOnLinksTest, testing::ValuesIn(kAllConditions),
                         NameOfCondition);

// --- Document and step --------------------------------------------------------------------------

class ConditionArgumentsTest : public OtherDocuments<BoundaryConditionTest>,
                               public testing::WithParamInterface<ConditionKind>
{
protected:
    void ExpectNothingMade(VEXDocument* document, VEXISamAnalysisSet_var place)
    {
        condition = former;
        EXPECT_EQ(OutcomeOf([&] { return kind.create(document, "Name", condition, place); }),
                  (Outcome{E_FAIL, kind.notCreated, ""}));
        EXPECT_TRUE(condition == former);
        EXPECT_EQ(TextsIn(step), std::vector<std::string>{});
        ExpectFormerUntouched();
    }

    VEXISamAnalysisCase_var Case()
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Get()), S_OK);
        return cases[1];
    }

    const ConditionKind& kind = GetParam();
};

TEST_P(ConditionArgumentsTest, NoDocumentHasNoCondition)
{
    ExpectNothingMade(nullptr, step);
}

TEST_P(ConditionArgumentsTest, ADocumentOfAnotherTypeHasNoCondition)
{
    ExpectNothingMade(Open(folder.File("box.VEXPart")), step);
}

TEST_P(ConditionArgumentsTest, NoStepHasNoCondition)
{
    ExpectNothingMade(analysis.Get(), VEXISamAnalysisSet_var());
}

TEST_P(ConditionArgumentsTest, AStepOfAnotherDocumentHasNoCondition)
{
    AnalysisDocument other(1);
    const VEXISpecObject_var foreign = ForeignStep(other);
    ASSERT_TRUE(foreign);
    ExpectNothingMade(analysis.Get(), foreign);
    EXPECT_EQ(TextsIn(foreign), std::vector<std::string>{});
}

TEST_P(ConditionArgumentsTest, AStepThatIsGoneHasNoCondition)
{
    ExpectNothingMade(analysis.Get(), StepThatIsGone());
}

TEST_P(ConditionArgumentsTest, AStepWithoutTheContainerHasNoCondition)
{
    Delete(Below(step, "HLXBoundaryConditionContainerLT")[1]);
    ExpectNothingMade(analysis.Get(), step);
}

TEST_P(ConditionArgumentsTest, AStepOfEveryKindTakesACondition)
{
    for (const char* const type : {"HLXStaticLPStepLT", "HLXRiksStepLT", "HLXFrequencyStepLT",
                                   "HLXHeatTransferStepLT", "HLXExplicitDynamicStepLT"}) {
        AddStep(1, type, type);
    }
    VEXListValVEXBaseUnknown_var sets;
    ASSERT_EQ(Case()->GetAnalysisSets(sets), S_OK);
    ASSERT_EQ(sets.Size(), 7);  // the initial one in front
    for (int i = 1; i <= sets.Size(); ++i) {
        VEXISamAnalysisSet_var place = sets[i];
        EXPECT_EQ(OutcomeOf([&] { return kind.create(analysis.Get(), "", condition, place); }),
                  (Outcome{S_OK, "", ""}))
            << i;
        EXPECT_EQ(TextsIn(place), std::vector{kind.Whole()}) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, ConditionArgumentsTest, testing::ValuesIn(kAllConditions),
                         NameOfCondition);

}  // namespace
}  // namespace hlxtest::statics
