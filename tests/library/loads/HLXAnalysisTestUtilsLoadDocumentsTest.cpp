// SPDX-License-Identifier: Apache-2.0
// Pressure, rotational body force, concentrated force, heat flux and film condition on documents
// with other parts, or without what a load needs.
#include "library/OtherDocuments.h"
#include "library/loads/LoadKinds.h"

namespace hlxtest::statics {
namespace {

std::string NameOfKind(const testing::TestParamInfo<LoadKind>& row)
{
    return row.param.name;
}

// --- Parts --------------------------------------------------------------------------------------

using KindAndPart = std::tuple<LoadKind, const char*>;

class LoadOnPartTest : public LoadKindTest, public testing::WithParamInterface<KindAndPart>
{
protected:
    LoadOnPartTest() : LoadKindTest(std::get<1>(GetParam())) {}

    const LoadKind& kind = std::get<0>(GetParam());
    const char* const part = std::get<1>(GetParam());
};

TEST_P(LoadOnPartTest, IsPutOnTheFirstCellOfItsKind)
{
    ExpectExit(kind, {"", "", {S_OK, kind.done, ""}, kind.Whole(part), kind.AmplitudeCount()});
}

INSTANTIATE_TEST_SUITE_P(Of, LoadOnPartTest,
                         testing::Combine(testing::ValuesIn(kAllKinds),
                                          testing::ValuesIn(completeParts)),
                         nameOfKindAndPart);

class LoadOnIncompletePartTest : public LoadOnPartTest
{};

TEST_P(LoadOnIncompletePartTest, FailsWithoutAWordWhenTheLoadIsThere)
{
    ExpectExit(kind, {"", "", {E_FAIL, "", ""}, kind.ready, kind.AmplitudeCount()});
}

INSTANTIATE_TEST_SUITE_P(Of, LoadOnIncompletePartTest,
                         testing::Combine(testing::ValuesIn(kAllKinds),
                                          testing::ValuesIn(incompleteParts)),
                         nameOfKindAndPart);

// --- Links --------------------------------------------------------------------------------------

class LoadOnLinksTest : public OtherDocuments<LoadKindTest>,
                        public testing::WithParamInterface<LoadKind>
{
protected:
    LoadOnLinksTest() : OtherDocuments(nullptr) {}

    /// The part is not found, with what is printed on the way to it.
    void ExpectNoPart(const std::string& out)
    {
        LoadExit exit{"", "", {E_FAIL, out, ""}};
        if (!kind.asksPartFirst) {
            exit.text = kind.ready;
            exit.amplitudes = kind.AmplitudeCount();
        }
        ExpectExit(kind, exit);
    }

    const LoadKind& kind = GetParam();
};

TEST_P(LoadOnLinksTest, ADocumentThatIsNotLinkedHasNoPart)
{
    ExpectNoPart(noLinkedGeometry);
}

TEST_P(LoadOnLinksTest, ADocumentThatIsLinkedToAPartHasNoProduct)
{
    Link(PartSpecimen(folder, "box"));
    ExpectNoPart("");
}

TEST_P(LoadOnLinksTest, AProductWithoutChildrenHasNoMechanicalPart)
{
    LinkToProductWithoutChildren();
    ExpectNoPart(noProductStructure);
}

TEST_P(LoadOnLinksTest, OfSeveralPartsTheFirstIsTaken)
{
    Link(SeveralPartsSpecimen(folder));
    ExpectExit(kind, {"", "", {S_OK, kind.done, ""}, kind.Whole(), kind.AmplitudeCount()});
}

INSTANTIATE_TEST_SUITE_P(Of, LoadOnLinksTest, testing::ValuesIn(kAllKinds), NameOfKind);

// --- Document and step --------------------------------------------------------------------------

class LoadArgumentsTest : public OtherDocuments<LoadKindTest>,
                          public testing::WithParamInterface<LoadKind>
{
protected:
    Outcome CreateIn(VEXDocument* document, VEXISamAnalysisSet_var place)
    {
        load = former;
        return OutcomeOf([&] { return kind.create(document, "Load", load, place); });
    }

    void ExpectNothingMade()
    {
        EXPECT_TRUE(load == former);
        EXPECT_EQ(AliasOf(former), "Former");
        EXPECT_EQ(Loads().Size(), 0);
        EXPECT_EQ(Amplitudes().Size(), 0);
    }

    const LoadKind& kind = GetParam();
    const Outcome notCreated{E_FAIL, kind.notCreated, ""};
};

TEST_P(LoadArgumentsTest, NoDocumentHasNoLoad)
{
    EXPECT_EQ(CreateIn(nullptr, step),
              kind.asksPartFirst ? (Outcome{E_FAIL, "**********ERROR in getting the FEM\n", ""})
                                 : notCreated);
    ExpectNothingMade();
}

TEST_P(LoadArgumentsTest, ADocumentOfAnotherTypeHasNoLoad)
{
    EXPECT_EQ(CreateIn(Open(folder.File("box.VEXPart")), step),
              kind.asksPartFirst ? (Outcome{E_FAIL, "**********ERROR in getting the FEM\n", ""})
                                 : notCreated);
    ExpectNothingMade();
}

TEST_P(LoadArgumentsTest, NoStepHasNoLoad)
{
    EXPECT_EQ(CreateIn(analysis.Get(), VEXISamAnalysisSet_var()), notCreated);
    ExpectNothingMade();
}

TEST_P(LoadArgumentsTest, AStepOfAnotherDocumentHasNoLoad)
{
    AnalysisDocument other(1);
    const VEXISpecObject_var foreign = ForeignStep(other);
    ASSERT_TRUE(foreign);
    EXPECT_EQ(CreateIn(analysis.Get(), foreign), notCreated);
    ExpectNothingMade();
    EXPECT_EQ(Below(foreign, "HLXLoad").Size(), 0);
}

TEST_P(LoadArgumentsTest, AStepThatIsGoneHasNoLoad)
{
    EXPECT_EQ(CreateIn(analysis.Get(), StepThatIsGone()), notCreated);
    ExpectNothingMade();
}

TEST_P(LoadArgumentsTest, AStepOfEveryKindTakesALoad)
{
    for (const char* const type : {"HLXStaticLPStepLT", "HLXRiksStepLT", "HLXFrequencyStepLT",
                                   "HLXHeatTransferStepLT", "HLXExplicitDynamicStepLT"}) {
        const VEXISpecObject_var other = AddStep(1, type, type);
        EXPECT_EQ(CreateIn(analysis.Get(), other), (Outcome{S_OK, kind.done, ""})) << type;
        ASSERT_EQ(Below(other, "HLXLoad").Size(), 1) << type;
        EXPECT_TRUE(load == Below(other, "HLXLoad")[1]) << type;
    }
    EXPECT_EQ(Loads().Size(), 0);
}

INSTANTIATE_TEST_SUITE_P(Of, LoadArgumentsTest, testing::ValuesIn(kAllKinds), NameOfKind);

}  // namespace
}  // namespace hlxtest::statics
