// SPDX-License-Identifier: Apache-2.0
// From construction to destruction: defaults, copies, what is released and what is not.
#include "support/AnalysisDocuments.h"
#include "support/ExposedTestCase.h"
#include "support/Outcome.h"
#include "support/StandIns.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <type_traits>

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Case = ExposedTestCase;
using TextMember = VEXUnicodeString HLXBaseTestCase::*;

const TextMember kTexts[] = {
    &Case::_InputDirectory,
    &Case::_InputFilePath,
    &Case::_OutputDirectory,
    &Case::_HollexFile1Path,
    &Case::_HollexFile2Path,
    &Case::_DumpTreeTitle,
    &Case::_DumpTreeFileName,
    &Case::_TimeLogFilePath,
    &Case::_HollexFile1Name,
    &Case::_HollexFile2Name,
    &Case::_IntermediateInputFilePath,
    &Case::_InputFileName,
};

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

/// A case all of whose members are set, to objects that tell when they die.
class FullCase : public testing::Test
{
protected:
    FullCase() : held(std::make_unique<Case>())
    {
        int number = 0;
        for (const TextMember text : kTexts) {
            (*held).*text = std::to_string(++number).c_str();
        }
        held->_PartIndex = 7;
        held->_Document = document;
        held->_AnalysisCases.Append(VEXAdopt<VEXBaseUnknown>(analysisCase));
        held->_RootProduct = VEXAdopt<VEXIProduct>(product);
        held->_Body = VEXAdopt<VEXBody>(body);
        held->_LoadFactory = loadFactory;
        held->_PartDocContainer = containers;
        held->_NavigateObject = VEXAdopt<VEXINavigateObject>(navigate);
        held->_MechanicalPart = VEXAdopt<VEXISpecObject>(mechanicalPart);
        held->_PartLink = VEXAdopt<VEXILinkableObject>(link);
        held->_AnalysisContainer = VEXAdopt<VEXISamAnalysisContainer>(analysisContainer);
        held->_AmplitudeFeature = VEXAdopt<VEXISpecObject>(amplitude);
        held->_TimeLogFile = stderr;
    }

    /// Whether every member of `copy` is what was set above.
    void ExpectAllMembers(const Case& copy)
    {
        int number = 0;
        for (const TextMember text : kTexts) {
            EXPECT_EQ(copy.*text, std::to_string(++number).c_str());
        }
        EXPECT_EQ(copy._PartIndex, 7);
        EXPECT_EQ(copy._Document, document);
        EXPECT_EQ(copy._AnalysisCases.Size(), 1);
        EXPECT_EQ(copy._AnalysisCases[1].Get(), analysisCase);
        EXPECT_EQ(copy._RootProduct.Get(), product);
        EXPECT_EQ(copy._Body.Get(), body);
        EXPECT_EQ(copy._LoadFactory, loadFactory);
        EXPECT_EQ(copy._PartDocContainer, containers);
        EXPECT_EQ(copy._NavigateObject.Get(), navigate);
        EXPECT_EQ(copy._MechanicalPart.Get(), mechanicalPart);
        EXPECT_EQ(copy._PartLink.Get(), link);
        EXPECT_EQ(copy._AnalysisContainer.Get(), analysisContainer);
        EXPECT_EQ(copy._AmplitudeFeature.Get(), amplitude);
        EXPECT_EQ(copy._TimeLogFile, stderr);
    }

    /// Whether the handles of `cases` cases are counted, and the two owned pointers only once.
    void ExpectCounts(unsigned long cases)
    {
        for (const VEXBaseUnknown* const object :
             {static_cast<const VEXBaseUnknown*>(analysisCase),
              static_cast<const VEXBaseUnknown*>(product), static_cast<const VEXBaseUnknown*>(body),
              static_cast<const VEXBaseUnknown*>(navigate),
              static_cast<const VEXBaseUnknown*>(mechanicalPart),
              static_cast<const VEXBaseUnknown*>(link),
              static_cast<const VEXBaseUnknown*>(analysisContainer),
              static_cast<const VEXBaseUnknown*>(amplitude)}) {
            EXPECT_EQ(References(*object), cases);
        }
        EXPECT_EQ(References(*loadFactory), 1U);
        EXPECT_EQ(References(*containers), 1U);
    }

    Deaths deaths;
    AnyStandIn* analysisCase = new AnyStandIn(deaths, "analysis case");
    ProductStandIn* product = new ProductStandIn(deaths, "product");
    BodyStandIn* body = new BodyStandIn(deaths, "body");
    AnyStandIn* loadFactory = new AnyStandIn(deaths, "load factory");
    DocumentContainersStandIn* containers = new DocumentContainersStandIn(deaths, "containers");
    NavigateStandIn* navigate = new NavigateStandIn(deaths, "navigate object");
    FeatureStandIn* mechanicalPart = new FeatureStandIn(deaths, "mechanical part");
    LinkStandIn* link = new LinkStandIn(deaths, "part link");
    AnalysisContainerStandIn* analysisContainer =
        new AnalysisContainerStandIn(deaths, "analysis container");
    FeatureStandIn* amplitude = new FeatureStandIn(deaths, "amplitude");
    /// Never looked at: whoever does ends the process.
    VEXDocument* document = reinterpret_cast<VEXDocument*>(std::uintptr_t{8});
    std::unique_ptr<Case> held;
};

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
