// SPDX-License-Identifier: Apache-2.0
// From construction to destruction: defaults, copies, what is released and what is not.
#include "library/harness/FullCase.h"
#include "support/AnalysisDocuments.h"

#include <gmock/gmock.h>

#include <functional>
#include <type_traits>

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Case = ExposedTestCase;
static_assert(std::is_same_v<decltype(Case::_PartIndex), int>);
static_assert(std::is_same_v<decltype(Case::_Document), VEXDocument*>);
static_assert(std::is_same_v<decltype(Case::_AnalysisCases), VEXListValVEXBaseUnknown_var>);
static_assert(std::is_same_v<decltype(Case::_RootProduct), VEXIProduct_var>);
static_assert(std::is_same_v<decltype(Case::_Body), VEXBody_var>);
static_assert(std::is_same_v<decltype(Case::_LoadFactory), VEXBaseUnknown*>);
static_assert(std::is_same_v<decltype(Case::_PartDocContainer), VEXIContainerOfDocument*>);
static_assert(std::is_same_v<decltype(Case::_NavigateObject), VEXINavigateObject_var>);
static_assert(std::is_same_v<decltype(Case::_MechanicalPart), VEXISpecObject_var>);
static_assert(std::is_same_v<decltype(Case::_PartLink), VEXILinkableObject_var>);
static_assert(std::is_same_v<decltype(Case::_AnalysisContainer), VEXISamAnalysisContainer_var>);
static_assert(std::is_same_v<decltype(Case::_AmplitudeFeature), VEXISpecObject_var>);
static_assert(std::is_same_v<decltype(Case::_TimeLogFile), std::FILE*>);

static_assert(HLXBaseTestCase::OpenExisting == 0);
static_assert(HLXBaseTestCase::CreateNew == 1);

using FullCase = FullCaseOf<Case>;

// --- Construction and copies --------------------------------------------------------------------

TEST(HLXBaseTestCaseLifecycle, StartsWithTheDefaults)
{
    const Case testCase;
    for (const TextMember text : kTexts) {
        EXPECT_TRUE((testCase.*text).IsEmpty());
    }
    EXPECT_EQ(testCase._PartIndex, 1);
    EXPECT_EQ(testCase._Document, nullptr);
    EXPECT_EQ(testCase._AnalysisCases.Size(), 0);
    EXPECT_TRUE(testCase._RootProduct == nullptr);
    EXPECT_TRUE(testCase._Body == nullptr);
    EXPECT_EQ(testCase._LoadFactory, nullptr);
    EXPECT_EQ(testCase._PartDocContainer, nullptr);
    EXPECT_TRUE(testCase._NavigateObject == nullptr);
    EXPECT_TRUE(testCase._MechanicalPart == nullptr);
    EXPECT_TRUE(testCase._PartLink == nullptr);
    EXPECT_TRUE(testCase._AnalysisContainer == nullptr);
    EXPECT_TRUE(testCase._AmplitudeFeature == nullptr);
    EXPECT_EQ(testCase._TimeLogFile, nullptr);
    EXPECT_EQ(References(testCase), 1U);
}

TEST(HLXBaseTestCaseLifecycle, HoldsItsMembersInTheirOrder)
{
    const Case testCase;
    const void* const members[] = {
        &testCase._InputDirectory,
        &testCase._InputFilePath,
        &testCase._OutputDirectory,
        &testCase._HollexFile1Path,
        &testCase._HollexFile2Path,
        &testCase._DumpTreeTitle,
        &testCase._DumpTreeFileName,
        &testCase._TimeLogFilePath,
        &testCase._HollexFile1Name,
        &testCase._HollexFile2Name,
        &testCase._IntermediateInputFilePath,
        &testCase._InputFileName,
        &testCase._PartIndex,
        &testCase._Document,
        &testCase._AnalysisCases,
        &testCase._RootProduct,
        &testCase._Body,
        &testCase._LoadFactory,
        &testCase._PartDocContainer,
        &testCase._NavigateObject,
        &testCase._MechanicalPart,
        &testCase._PartLink,
        &testCase._AnalysisContainer,
        &testCase._AmplitudeFeature,
        &testCase._TimeLogFile,
    };
    EXPECT_EQ(std::size(members), 25U);
    for (std::size_t i = 1; i < std::size(members); ++i) {
        EXPECT_TRUE(std::less<>()(members[i - 1], members[i])) << "member " << i + 1;
    }
}

TEST_F(FullCase, ACopyHasEveryMemberAndCountsTheHandlesOnly)
{
    Case copy(*held);
    ExpectAllMembers(copy);
    ExpectAllMembers(*held);
    ExpectCounts(2);
    copy.InitializeClassMembers();
}

TEST_F(FullCase, AssignmentGivesEveryMemberAndCountsTheHandlesOnly)
{
    Case other;
    Case& answer = (other = *held);
    EXPECT_EQ(&answer, &other);
    ExpectAllMembers(other);
    ExpectAllMembers(*held);
    ExpectCounts(2);
    other.InitializeClassMembers();
}

TEST_F(FullCase, AssignmentDropsTheOwnedPointersAndReleasesTheHandlesOfBefore)
{
    const Case empty;
    *held = empty;
    EXPECT_EQ(held->_LoadFactory, nullptr);
    EXPECT_EQ(held->_PartDocContainer, nullptr);
    EXPECT_THAT(deaths, testing::UnorderedElementsAre(
                            "analysis case", "product", "body", "navigate object",
                            "mechanical part", "part link", "analysis container", "amplitude"));
    loadFactory->Release();
    containers->Release();
}

TEST_F(FullCase, AssignmentToItselfKeepsEverything)
{
    Case& same = *held;
    *held = same;
    ExpectAllMembers(*held);
    ExpectCounts(1);
}

TEST_F(FullCase, TheListOfACopyIsItsOwn)
{
    Case copy(*held);
    copy._AnalysisCases.RemoveAll();
    EXPECT_EQ(held->_AnalysisCases.Size(), 1);
    copy.InitializeClassMembers();
}

TEST_F(FullCase, CopiesDoNotShareTheReferenceCount)
{
    held->AddRef();
    Case copy(*held);
    EXPECT_EQ(References(copy), 1U);
    copy = *held;
    EXPECT_EQ(References(copy), 1U);
    EXPECT_EQ(References(*held), 2U);
    copy.InitializeClassMembers();
}

TEST_F(FullCase, InitializeClassMembersResetsFourMembersAndReleasesNothing)
{
    held->InitializeClassMembers();
    EXPECT_EQ(held->_PartIndex, 1);
    EXPECT_EQ(held->_Document, nullptr);
    EXPECT_EQ(held->_LoadFactory, nullptr);
    EXPECT_EQ(held->_PartDocContainer, nullptr);
    EXPECT_THAT(deaths, IsEmpty());
    ExpectCounts(1);
    held->_PartIndex = 7;
    held->_Document = document;
    held->_LoadFactory = loadFactory;
    held->_PartDocContainer = containers;
    ExpectAllMembers(*held);
}

// --- Destruction --------------------------------------------------------------------------------

TEST_F(FullCase, DiesInOrderContainerThenFactoryThenCasesThenHandles)
{
    Outcome outcome = OutcomeOf([&] { held.reset(); });
    EXPECT_EQ(outcome, (Outcome{0, "", ""}));
    EXPECT_THAT(deaths, ElementsAre("containers", "load factory", "analysis case", "amplitude",
                                    "analysis container", "part link", "mechanical part",
                                    "navigate object", "body", "product"));
}

TEST_F(FullCase, DyingDropsOneReferenceToWhatItOwns)
{
    loadFactory->AddRef();
    containers->AddRef();
    held.reset();
    EXPECT_EQ(References(*loadFactory), 1U);
    EXPECT_EQ(References(*containers), 1U);
    loadFactory->Release();
    containers->Release();
}

/// A feature that looks around when it dies.
class Witness : public FeatureStandIn
{
public:
    Witness(Deaths& deaths, std::function<void()> atDeath)
        : FeatureStandIn(deaths, "witness"), _atDeath(std::move(atDeath))
    {}
    ~Witness() override { _atDeath(); }

private:
    std::function<void()> _atDeath;
};

TEST_F(FullCase, FourMembersAreResetBeforeTheHandlesDie)
{
    const int* const partIndex = &held->_PartIndex;
    VEXDocument* const* const heldDocument = &held->_Document;
    VEXBaseUnknown* const* const heldFactory = &held->_LoadFactory;
    VEXIContainerOfDocument* const* const heldContainers = &held->_PartDocContainer;
    int looks = 0;
    const auto look = [&] {
        ++looks;
        EXPECT_EQ(*partIndex, 1);
        EXPECT_EQ(*heldDocument, nullptr);
        EXPECT_EQ(*heldFactory, nullptr);
        EXPECT_EQ(*heldContainers, nullptr);
    };
    held->_AmplitudeFeature = VEXAdopt<VEXISpecObject>(new Witness(deaths, look));
    held->_MechanicalPart = VEXAdopt<VEXISpecObject>(new Witness(deaths, look));
    held.reset();
    EXPECT_EQ(looks, 2);
}

TEST_F(FullCase, OwnedPointersAreReleasedEachOnItsOwn)
{
    held->_PartDocContainer = nullptr;
    held.reset();
    EXPECT_EQ(deaths.front(), "load factory");
    EXPECT_EQ(References(*containers), 1U);
    {
        Case other;
        other._PartDocContainer = containers;
    }
    EXPECT_EQ(deaths.back(), "containers");
}

TEST(HLXBaseTestCaseLifecycle, DyingRemovesNoDocumentAndClosesNoLog)
{
    AnalysisDocument document(0);
    std::FILE* const log = std::tmpfile();
    ASSERT_NE(log, nullptr);
    EXPECT_THAT(CallsOf([&] {
                    Case testCase;
                    testCase._Document = document.Get();
                    testCase._TimeLogFile = log;
                }),
                IsEmpty());
    EXPECT_EQ(document.Get()->GetType(), "VEXAnalysis");
    EXPECT_EQ(std::fputs("still open", log), 1);
    EXPECT_EQ(std::fclose(log), 0);
}

}  // namespace

}  // namespace hlxtest
