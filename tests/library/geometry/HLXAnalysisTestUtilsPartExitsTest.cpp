// SPDX-License-Identifier: Apache-2.0
// Every exit on the way from a product to its mechanical part: result, message, which results were
// given by then, what is held.
#include "library/geometry/StaticPart.h"

#include <optional>

namespace hlxtest::statics {
namespace {

struct PartExit : Exit
{
    /// What becomes of link, container and part, in this order: 'n' new, 'f' the former, 'e' empty.
    const char* outputs;

    friend void PrintTo(const PartExit& row, std::ostream* stream) { *stream << row.faults; }
};

class StaticPartExitTest : public StaticPartTest, public testing::WithParamInterface<PartExit>
{
protected:
    StaticPartExitTest()
    {
        former.emplace(New("VEXPart"));
        Open(ProductSpecimen(folder, "box"));
        found.emplace(Open(folder.File("box.VEXPart")));
        product = RootOf(Open(folder.File("box.VEXProduct")));
    }

    static std::string FateOf(const VEXBaseUnknown_var& output, const VEXBaseUnknown_var& isNew,
                              const VEXBaseUnknown_var& isFormer)
    {
        return output == nullptr ? "e" : output == isNew ? "n" : output == isFormer ? "f" : "?";
    }

    std::string Fates()
    {
        return FateOf(link, found->part, former->part) +
               FateOf(VEXShare<VEXBaseUnknown>(container), found->accesses, former->accesses) +
               FateOf(part, found->part, former->part);
    }

    void FindAndForget()
    {
        VEXISpecObject_var forgottenPart;
        VEXILinkableObject_var forgottenLink;
        VEXIContainer* forgotten = nullptr;
        HLXAnalysisTestUtils::GetMechPartFeatFromProductDoc(product, forgottenPart, forgottenLink,
                                                            forgotten);
        if (forgotten != nullptr) {
            forgotten->Release();
        }
    }

    std::optional<PartDocument> former;
    std::optional<PartDocument> found;
};

TEST_P(StaticPartExitTest, ReportsALineAndGivesWhatWasFound)
{
    link = former->part;
    part = former->part;
    container = former->accesses.Get();
    EXPECT_EQ(Find(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(Fates(), GetParam().outputs);
    if (container == former->accesses.Get()) {
        container = nullptr;  // not the test's to release
    }
}

TEST_P(StaticPartExitTest, LeavesNothingHeld)
{
    found.reset();
    former.reset();
    EXPECT_EQ(HeldAfter(GetParam().faults, [&] { FindAndForget(); }), HeldCounts{});
}

INSTANTIATE_TEST_SUITE_P(
    Of, StaticPartExitTest,
    testing::Values(
        PartExit{{"NoChildren", "VEXIProduct::GetChildren=null", E_FAIL, noStructure}, "fff"},
        PartExit{{"EmptyChildren", "VEXIProduct::GetChildren=empty", E_FAIL, noStructure}, "fff"},
        PartExit{{"NoDescendants", "cast:VEXProductNode->VEXIDescendants=E_NOINTERFACE", E_FAIL,
                  noStructure},
                 "fff"},
        PartExit{
            {"EmptyDescendants", "cast:VEXProductNode->VEXIDescendants=null", E_FAIL, noStructure},
            "fff"},
        PartExit{{"FailingList", "VEXIDescendants::GetAllChildren=E_ACCESSDENIED", E_FAIL, noPart},
                 "fff"},
        PartExit{{"EmptyList", "VEXIDescendants::GetAllChildren=empty", E_FAIL, noPart}, "fff"},
        PartExit{{"FailingListThoughGiven", "VEXIDescendants::GetAllChildren=E_UNEXPECTED,keep",
                  S_OK, ""},
                 "nnn"},
        PartExit{{"NoLink", "cast:VEXPart->VEXILinkableObject=E_NOINTERFACE", E_FAIL, noContainers},
                 "eff"},
        PartExit{{"EmptyLink", "cast:VEXPart->VEXILinkableObject=null", E_FAIL, noContainers},
                 "eff"},
        PartExit{{"NoDocument", "VEXILinkableObject::GetDocument=null", E_FAIL, noContainers},
                 "nff"},
        PartExit{{"NoContainers", "cast:VEXPartDocument->VEXIContainerOfDocument=E_NOINTERFACE",
                  E_NOINTERFACE, noContainers},
                 "nff"},
        PartExit{
            {"FailingContainers", "cast:VEXPartDocument->VEXIContainerOfDocument=E_ACCESSDENIED",
             E_ACCESSDENIED, noContainers},
            "nff"},
        PartExit{{"PositiveContainers",
                  "cast:VEXPartDocument->VEXIContainerOfDocument=S_FALSE,keep", S_OK, ""},
                 "nnn"},
        PartExit{{"EmptyContainers", "cast:VEXPartDocument->VEXIContainerOfDocument=null", E_FAIL,
                  noPartContainer},
                 "nff"},
        PartExit{{"FailingFeatures", "VEXIContainerOfDocument::GetSpecContainer=E_ACCESSDENIED",
                  E_FAIL, noFeatures},
                 "nff"},
        PartExit{{"PositiveFeatures", "VEXIContainerOfDocument::GetSpecContainer=S_FALSE,keep",
                  S_OK, ""},
                 "nnn"},
        PartExit{{"NoFeatures", "VEXIContainerOfDocument::GetSpecContainer=null", E_FAIL,
                  noPartContainer},
                 "nnf"},
        PartExit{{"FailingAccesses", "VEXIContainerOfDocument::GetBRepContainer=E_ACCESSDENIED",
                  S_OK, ""},
                 "nen"},
        PartExit{{"NoAccesses", "VEXIContainerOfDocument::GetBRepContainer=null", S_OK, ""}, "nen"},
        PartExit{{"FailingAccessesThoughGiven",
                  "VEXIContainerOfDocument::GetBRepContainer=E_UNEXPECTED,keep", S_OK, ""},
                 "nnn"},
        PartExit{{"NoPartContainer", "cast:VEXPrtContainer->VEXIPrtContainer=E_NOINTERFACE", E_FAIL,
                  noPartContainer},
                 "nnf"},
        PartExit{{"EmptyPartContainer", "cast:VEXPrtContainer->VEXIPrtContainer=null", E_FAIL,
                  noPartContainer},
                 "nnf"},
        PartExit{{"NoMechanicalPart", "VEXIPrtContainer::GetMechanicalPart=null", E_FAIL,
                  noMechanicalPart},
                 "nne"}),
    [](const auto& row) { return std::string(row.param.name); });

// --- Failures that give something all the same ---------------------------------------------------

TEST_F(StaticPartTest, ContainersGivenAlongWithAFailureAreNotTaken)
{
    product = RootOf(Open(ProductSpecimen(folder, "box")));
    EXPECT_EQ(Find("cast:VEXPartDocument->VEXIContainerOfDocument=E_UNEXPECTED,keep"),
              (Outcome{E_UNEXPECTED, noContainers, ""}));
    EXPECT_EQ(container, nullptr);
    EXPECT_FALSE(part);
    Open(folder.File("box.VEXPart"))->Release();  // given to nobody
}

TEST_F(StaticPartTest, FeaturesGivenAlongWithAFailureAreNotTaken)
{
    product = RootOf(Open(ProductSpecimen(folder, "box")));
    EXPECT_EQ(Find("VEXIContainerOfDocument::GetSpecContainer=E_UNEXPECTED,keep"),
              (Outcome{E_FAIL, noFeatures, ""}));
    EXPECT_EQ(container, nullptr);
    EXPECT_FALSE(part);
    LetGo(PartDocument(Open(folder.File("box.VEXPart"))).features);
}

}  // namespace
}  // namespace hlxtest::statics
