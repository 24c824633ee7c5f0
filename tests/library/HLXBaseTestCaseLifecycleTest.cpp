// SPDX-License-Identifier: Apache-2.0
// From construction to destruction: defaults, copies, PreProcess, PostProcess, what is released and
// what is not.
#include "support/AnalysisDocuments.h"
#include "support/CommandLine.h"
#include "support/ExposedTestCase.h"
#include "support/Outcome.h"
#include "support/StandIns.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>
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

// --- PreProcess ---------------------------------------------------------------------------------

const char kPreProcess[] = "\n In HLXBaseTestCase::PreProcess() \n";
const char kPostProcess[] = "\n In HLXBaseTestCase::PostProcess() \n";

class PreProcessTest : public testing::Test
{
protected:
    ~PreProcessTest() override
    {
        if (testCase._Document != nullptr) {
            EXPECT_EQ(VEXDocumentServices::Remove(*testCase._Document, 1), S_OK);
        }
    }

    Outcome PreProcess(int mode, std::string_view faults = "")
    {
        CommandLine line{"program", folder.Path().c_str(), "a.VEXAnalysis"};
        return RunWith(faults, [&] {
            return testCase.PreProcess(line.Count(), line.Values(),
                                       static_cast<HLXBaseTestCase::FileMode>(mode));
        });
    }

    const TemporaryFolder folder;
    const std::string path = folder.File("a.VEXAnalysis");
    const std::string inputLine = "**********Input file name : " + path + "\n";
    Case testCase;
};

TEST_F(PreProcessTest, OpensAnExistingDocument)
{
    StoreAnalysisDocument(path, 0);
    EXPECT_EQ(PreProcess(0),
              (Outcome{S_OK, kPreProcess + inputLine + "Open Document " + path + " OK\n", ""}));
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_EQ(testCase._Document->StorageName(), path.c_str());
}

TEST_F(PreProcessTest, MakesANewDocument)
{
    EXPECT_EQ(PreProcess(1),
              (Outcome{S_OK, kPreProcess + inputLine + "**********create doc ok\n", ""}));
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_TRUE(testCase._Document->StorageName().IsEmpty());
    EXPECT_FALSE(FileExists(path));
}

TEST_F(PreProcessTest, TouchesNoDocumentInAnotherMode)
{
    StoreAnalysisDocument(path, 0);
    for (const int mode : {2, -1, 255, 256, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(PreProcess(mode), (Outcome{S_OK, kPreProcess + inputLine, ""})) << mode;
        EXPECT_EQ(testCase._Document, nullptr);
    }
    EXPECT_THAT(CallsOf([&] { PreProcess(2); }, {"VEXDocumentServices"}), IsEmpty());
}

TEST_F(PreProcessTest, AnswersWhatOpeningAnswers)
{
    StoreAnalysisDocument(path, 0);
    EXPECT_EQ(PreProcess(0, "VEXDocumentServices::OpenDocument=E_ACCESSDENIED").result,
              E_ACCESSDENIED);
    EXPECT_EQ(PreProcess(0, "VEXDocumentServices::OpenDocument=1,keep").result, 1);
}

TEST_F(PreProcessTest, AnswersWhatMakingAnswers)
{
    EXPECT_EQ(PreProcess(1, "VEXDocumentServices::New=E_ACCESSDENIED").result, E_ACCESSDENIED);
    EXPECT_EQ(PreProcess(1, "VEXDocumentServices::New=1,keep").result, 1);
}

TEST_F(PreProcessTest, GoesOnAfterARefusedCommandLine)
{
    StoreAnalysisDocument(path, 0);
    testCase._InputFilePath = path.c_str();
    testCase.verifyArguments = [](int) -> unsigned char {
        std::fputs("usage\n", stdout);
        return 0;
    };
    EXPECT_EQ(
        PreProcess(0),
        (Outcome{S_OK, std::string(kPreProcess) + "usage\nOpen Document " + path + " OK\n", ""}));
    EXPECT_NE(testCase._Document, nullptr);
}

TEST_F(PreProcessTest, FailsWithoutAWordOnTheEmptyPathOfARefusedCommandLine)
{
    testCase.verifyArguments = [](int) { return static_cast<unsigned char>(0); };
    EXPECT_EQ(PreProcess(0), (Outcome{E_FAIL, kPreProcess, ""}));
    EXPECT_EQ(testCase._Document, nullptr);
}

TEST_F(PreProcessTest, FailsOnTheEmptyPathOfFourArguments)
{
    CommandLine line{"program", folder.Path().c_str(), "a.VEXAnalysis", folder.Path().c_str()};
    StoreAnalysisDocument(path, 0);
    EXPECT_EQ(OutcomeOf([&] {
                  return testCase.PreProcess(line.Count(), line.Values(), Case::OpenExisting);
              }),
              (Outcome{E_FAIL, kPreProcess, ""}));
}

TEST(HLXBaseTestCaseLifecycle, PreProcessHandsTheCommandLineToAnOverride)
{
    class Overriding : public Case
    {
    public:
        int argc = 0;
        char** argv = nullptr;
        unsigned char ProcessArguments(int count, char** const values) override
        {
            std::fputs("override\n", stdout);
            argc = count;
            argv = values;
            return 0;
        }
    } testCase;
    CommandLine line{"program", "in", "a.VEXAnalysis", "out", "one", "two"};
    EXPECT_EQ(OutcomeOf([&] {
                  return testCase.PreProcess(5, line.Values(),
                                             static_cast<HLXBaseTestCase::FileMode>(2));
              }),
              (Outcome{S_OK, std::string(kPreProcess) + "override\n", ""}));
    EXPECT_EQ(testCase.argc, 5);
    EXPECT_EQ(testCase.argv, line.Values());
}

// --- PostProcess --------------------------------------------------------------------------------

TEST(HLXBaseTestCasePostProcess, WithoutADocumentPrintsItsBannerOnly)
{
    Case testCase;
    EXPECT_EQ(OutcomeOf([&] { return testCase.PostProcess(); }), (Outcome{S_OK, kPostProcess, ""}));
    EXPECT_THAT(CallsOf([&] { testCase.PostProcess(); }), IsEmpty());
}

TEST(HLXBaseTestCasePostProcess, RemovesTheDocumentWhateverLinksToIt)
{
    AnalysisDocument document(0);
    Case testCase;
    testCase._Document = document.Release();
    Recording recording;
    EXPECT_EQ(OutcomeOf([&] { return testCase.PostProcess(); }), (Outcome{S_OK, kPostProcess, ""}));
    const std::vector<vex::probe::Call> calls = recording.Stop();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].name, "VEXDocumentServices::Remove");
    EXPECT_EQ(calls[0].arguments.back(), "1");
    EXPECT_EQ(calls[0].result, "S_OK");
    EXPECT_EQ(testCase._Document, nullptr);

    EXPECT_EQ(OutcomeOf([&] { return testCase.PostProcess(); }), (Outcome{S_OK, kPostProcess, ""}));
}

TEST(HLXBaseTestCasePostProcess, ForgetsADocumentThatCouldNotBeRemoved)
{
    for (const long code : {static_cast<long>(E_FAIL), static_cast<long>(E_ACCESSDENIED), -1L}) {
        AnalysisDocument document(0);
        Case testCase;
        testCase._Document = document.Get();
        EXPECT_EQ(
            RunWith("VEXDocumentServices::Remove=" + std::to_string(code),
                    [&] { return testCase.PostProcess(); }),
            (Outcome{code, std::string(kPostProcess) + "Failure removing the document.", ""}));
        EXPECT_EQ(testCase._Document, nullptr);
        EXPECT_EQ(OutcomeOf([&] { return testCase.PostProcess(); }),
                  (Outcome{S_OK, kPostProcess, ""}));
    }
}

TEST(HLXBaseTestCasePostProcess, APositiveResultIsNoFailureAndIsPassedUp)
{
    AnalysisDocument document(0);
    Case testCase;
    testCase._Document = document.Release();
    EXPECT_EQ(RunWith("VEXDocumentServices::Remove=1,keep", [&] { return testCase.PostProcess(); }),
              (Outcome{1, kPostProcess, ""}));
    EXPECT_EQ(testCase._Document, nullptr);
}

}  // namespace

}  // namespace hlxtest
