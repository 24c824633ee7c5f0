// SPDX-License-Identifier: Apache-2.0
// The driver: which cases it runs, in which order, what of their results it heeds.
#include "HLXTestCaseDriver.h"

#include "support/AnalysisDocuments.h"
#include "support/CommandLine.h"
#include "support/ExposedTestCase.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <array>
#include <limits>
#include <memory>
#include <new>

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Diary = std::vector<std::string>;

/// A case that does nothing but tell, with results that the test gives.
class ToldCase : public HLXBaseTestCase
{
public:
    ToldCase(Diary& diary, std::string name) : _diary(diary), _name(std::move(name)) {}
    ~ToldCase() override { _diary.push_back(_name + " dies"); }

    long preProcessResult = S_OK;
    long processResult = S_OK;
    long postProcessResult = S_OK;
    std::function<void()> duringProcess;

    int argc = -1;
    char** argv = nullptr;
    int mode = -1;

    long PreProcess(int count, char** const values, FileMode fileMode) override
    {
        _diary.push_back(_name + " PreProcess");
        argc = count;
        argv = values;
        mode = fileMode;
        return preProcessResult;
    }

    long Process() override
    {
        _diary.push_back(_name + " Process");
        if (duringProcess) {
            duringProcess();
        }
        return processResult;
    }

    long PostProcess() override
    {
        _diary.push_back(_name + " PostProcess");
        return postProcessResult;
    }

protected:
    unsigned char VerifyArguments(int) override
    {
        _diary.push_back(_name + " VerifyArguments");
        return 1;
    }

private:
    Diary& _diary;
    std::string _name;
};

class HLXTestCaseDriverTest : public testing::Test
{
protected:
    Diary RunAll(HLXTestCaseDriver& ofDriver)
    {
        diary.clear();
        CommandLine line{"program"};
        ofDriver.Run(line.Count(), line.Values());
        return diary;
    }

    Outcome Add(HLXBaseTestCase* testCase)
    {
        return OutcomeOf([&] { return driver.AddTestCase(testCase); });
    }

    Diary diary;
    ToldCase a{diary, "a"};
    ToldCase b{diary, "b"};
    ToldCase c{diary, "c"};
    HLXTestCaseDriver driver;
};

TEST_F(HLXTestCaseDriverTest, AddTestCaseAnswersTheNumberOfCases)
{
    EXPECT_EQ(Add(&a), (Outcome{1, "", ""}));
    EXPECT_EQ(Add(&b), (Outcome{2, "", ""}));
    EXPECT_EQ(Add(&a), (Outcome{3, "", ""}));
    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(HLXTestCaseDriverTest, NullIsNotRegistered)
{
    EXPECT_EQ(Add(nullptr), (Outcome{0, "", ""}));
    EXPECT_EQ(Add(&a), (Outcome{1, "", ""}));
    EXPECT_EQ(Add(nullptr), (Outcome{1, "", ""}));
    EXPECT_EQ(Add(&b), (Outcome{2, "", ""}));
    EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess",
                                            "b PreProcess", "b Process", "b PostProcess"));
}

TEST_F(HLXTestCaseDriverTest, CasesRunOneAfterTheOtherInTheOrderOfRegistration)
{
    for (ToldCase* const testCase : {&c, &a, &b}) {
        driver.AddTestCase(testCase);
    }
    EXPECT_THAT(RunAll(driver), ElementsAre("c PreProcess", "c Process", "c PostProcess",
                                            "a PreProcess", "a Process", "a PostProcess",
                                            "b PreProcess", "b Process", "b PostProcess"));
}

TEST_F(HLXTestCaseDriverTest, ACaseRegisteredTwiceRunsTwice)
{
    driver.AddTestCase(&a);
    driver.AddTestCase(&a);
    EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess",
                                            "a PreProcess", "a Process", "a PostProcess"));
}

TEST_F(HLXTestCaseDriverTest, WithoutCasesNothingHappens)
{
    CommandLine line{"program", "in", "document", "out", "job"};
    Diary calls;
    EXPECT_EQ(OutcomeOf([&] { calls = CallsOf([&] { driver.Run(line.Count(), line.Values()); }); }),
              (Outcome{0, "", ""}));
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(HLXTestCaseDriverTest, EachCaseGetsTheCommandLineItselfAndOpensAnExistingDocument)
{
    driver.AddTestCase(&a);
    driver.AddTestCase(&b);
    CommandLine line{"program", "in", nullptr, "out"};
    driver.Run(3, line.Values());
    for (const ToldCase* const testCase : {&a, &b}) {
        EXPECT_EQ(testCase->argc, 3);
        EXPECT_EQ(testCase->argv, line.Values());
        EXPECT_EQ(testCase->mode, 0);
    }
}

TEST_F(HLXTestCaseDriverTest, ACaseWhosePreProcessFailsIsSkippedWithoutAWord)
{
    for (const long failure : {static_cast<long>(E_FAIL), -1L, std::numeric_limits<long>::min()}) {
        HLXTestCaseDriver fresh;
        fresh.AddTestCase(&a);
        fresh.AddTestCase(&b);
        a.preProcessResult = failure;
        const Outcome outcome = OutcomeOf([&] { RunAll(fresh); });
        EXPECT_EQ(outcome, (Outcome{0, "", ""}));
        EXPECT_THAT(diary,
                    ElementsAre("a PreProcess", "b PreProcess", "b Process", "b PostProcess"));
    }
}

TEST_F(HLXTestCaseDriverTest, APreProcessThatIsNotNegativeHasSucceeded)
{
    driver.AddTestCase(&a);
    for (const long success : {0L, 1L, 2147500037L, std::numeric_limits<long>::max()}) {
        a.preProcessResult = success;
        EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess"));
    }
}

TEST_F(HLXTestCaseDriverTest, WhatProcessAndPostProcessAnswerIsNotLookedAt)
{
    driver.AddTestCase(&a);
    driver.AddTestCase(&b);
    for (const long result : {static_cast<long>(E_FAIL), -1L, 1L}) {
        a.processResult = result;
        a.postProcessResult = result;
        EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess",
                                                "b PreProcess", "b Process", "b PostProcess"));
    }
}

TEST_F(HLXTestCaseDriverTest, ACaseAddedWhileRunningWaitsForTheNextRun)
{
    driver.AddTestCase(&a);
    driver.AddTestCase(&b);
    int count = 0;
    a.duringProcess = [&] { count = driver.AddTestCase(&c); };
    EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess",
                                            "b PreProcess", "b Process", "b PostProcess"));
    EXPECT_EQ(count, 3);
    a.duringProcess = nullptr;
    EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess",
                                            "b PreProcess", "b Process", "b PostProcess",
                                            "c PreProcess", "c Process", "c PostProcess"));
}

TEST_F(HLXTestCaseDriverTest, CasesThatAreGoneWhenTheirTurnComesArePassedOver)
{
    HLXTestCaseDriver shorter;
    shorter.AddTestCase(&a);
    for (ToldCase* const testCase : {&a, &b, &c}) {
        driver.AddTestCase(testCase);
    }
    a.duringProcess = [&] { driver = shorter; };
    EXPECT_EQ(OutcomeOf([&] { RunAll(driver); }), (Outcome{0, "", ""}));
    EXPECT_THAT(diary, ElementsAre("a PreProcess", "a Process", "a PostProcess"));
}

TEST_F(HLXTestCaseDriverTest, ACopyHasTheCasesOfTheTimeOfCopying)
{
    driver.AddTestCase(&a);
    HLXTestCaseDriver copy(driver);
    EXPECT_EQ(driver.AddTestCase(&b), 2);
    EXPECT_EQ(copy.AddTestCase(&c), 2);
    EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess",
                                            "b PreProcess", "b Process", "b PostProcess"));
    EXPECT_THAT(RunAll(copy), ElementsAre("a PreProcess", "a Process", "a PostProcess",
                                          "c PreProcess", "c Process", "c PostProcess"));
}

TEST_F(HLXTestCaseDriverTest, AssignmentReplacesTheCases)
{
    driver.AddTestCase(&a);
    HLXTestCaseDriver other;
    other.AddTestCase(&b);
    other.AddTestCase(&c);
    HLXTestCaseDriver& answer = (other = driver);
    EXPECT_EQ(&answer, &other);
    EXPECT_THAT(RunAll(other), ElementsAre("a PreProcess", "a Process", "a PostProcess"));
    EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess"));
}

TEST_F(HLXTestCaseDriverTest, AssignmentToItselfKeepsTheCases)
{
    driver.AddTestCase(&a);
    HLXTestCaseDriver& same = driver;
    driver = same;
    EXPECT_THAT(RunAll(driver), ElementsAre("a PreProcess", "a Process", "a PostProcess"));
}

TEST_F(HLXTestCaseDriverTest, CopiesDoNotShareTheReferenceCount)
{
    driver.AddRef();
    HLXTestCaseDriver copy(driver);
    EXPECT_EQ(References(copy), 1U);
    copy = driver;
    EXPECT_EQ(References(copy), 1U);
    EXPECT_EQ(References(driver), 2U);
}

TEST_F(HLXTestCaseDriverTest, NeitherRegisteringNorRunningNorDyingTouchesACaseThatLivesOn)
{
    {
        HLXTestCaseDriver shortLived;
        shortLived.AddTestCase(&a);
        EXPECT_EQ(References(a), 1U);
        RunAll(shortLived);
        EXPECT_EQ(References(a), 1U);
    }
    EXPECT_EQ(References(a), 1U);
    EXPECT_THAT(diary, ElementsAre("a PreProcess", "a Process", "a PostProcess"));
}

TEST(HLXTestCaseDriver, DiesAfterItsCasesWithoutTouchingThem)
{
    Diary diary;
    alignas(ToldCase) std::array<unsigned char, sizeof(ToldCase)> place{};
    auto driver = std::make_unique<HLXTestCaseDriver>();
    auto* const shortLived = new (place.data()) ToldCase(diary, "a");
    driver->AddTestCase(shortLived);
    shortLived->~ToldCase();
    place.fill(0xA5);
    EXPECT_EQ(OutcomeOf([&] { driver.reset(); }), (Outcome{0, "", ""}));
    EXPECT_THAT(place, testing::Each(0xA5));
    EXPECT_THAT(diary, ElementsAre("a dies"));
}

// The frame of HLXBaseTestCase under the driver, on documents that are there and one that is not.

TEST(HLXTestCaseDriver, RunsTheWholeFrameOnAStoredDocument)
{
    const TemporaryFolder folder;
    StoreAnalysisDocument(folder.File("a.VEXAnalysis"), 0);
    ExposedTestCase testCase;
    VEXDocument* duringProcess = nullptr;
    testCase.process = [&] {
        duringProcess = testCase._Document;
        std::fputs("the test\n", stdout);
        return static_cast<long>(E_FAIL);
    };
    HLXTestCaseDriver driver;
    driver.AddTestCase(&testCase);
    CommandLine line{"program", folder.Path().c_str(), "a.VEXAnalysis"};
    EXPECT_EQ(OutcomeOf([&] { driver.Run(line.Count(), line.Values()); }),
              (Outcome{0,
                       "\n In HLXBaseTestCase::PreProcess() \n"
                       "**********Input file name : " +
                           folder.File("a.VEXAnalysis") +
                           "\n"
                           "Open Document " +
                           folder.File("a.VEXAnalysis") +
                           " OK\n"
                           "the test\n"
                           "\n In HLXBaseTestCase::PostProcess() \n",
                       ""}));
    EXPECT_NE(duringProcess, nullptr);
    EXPECT_EQ(testCase._Document, nullptr);
}

TEST(HLXTestCaseDriver, GoesOnAfterACaseWhoseCommandLineIsRefused)
{
    const TemporaryFolder folder;
    StoreAnalysisDocument(folder.File("a.VEXAnalysis"), 0);
    ExposedTestCase refusing;
    refusing.verifyArguments = [](int) {
        std::fputs("usage\n", stdout);
        return static_cast<unsigned char>(0);
    };
    refusing.process = [] {
        ADD_FAILURE() << "a case without a document was run";
        return 0L;
    };
    ExposedTestCase accepting;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&refusing);
    driver.AddTestCase(&accepting);
    CommandLine line{"program", folder.Path().c_str(), "a.VEXAnalysis"};
    EXPECT_EQ(OutcomeOf([&] { driver.Run(line.Count(), line.Values()); }),
              (Outcome{0,
                       "\n In HLXBaseTestCase::PreProcess() \n"
                       "usage\n"
                       "\n In HLXBaseTestCase::PreProcess() \n"
                       "**********Input file name : " +
                           folder.File("a.VEXAnalysis") +
                           "\n"
                           "Open Document " +
                           folder.File("a.VEXAnalysis") +
                           " OK\n"
                           "\n In HLXBaseTestCase::PostProcess() \n",
                       ""}));
}

TEST(HLXTestCaseDriver, ADocumentLeftByAFailedPreProcessStaysLoaded)
{
    const TemporaryFolder folder;
    StoreAnalysisDocument(folder.File("a.VEXAnalysis"), 0);
    ExposedTestCase testCase;
    testCase.process = [] {
        ADD_FAILURE() << "a case whose PreProcess failed was run";
        return 0L;
    };
    HLXTestCaseDriver driver;
    driver.AddTestCase(&testCase);
    CommandLine line{"program", folder.Path().c_str(), "a.VEXAnalysis"};
    EXPECT_EQ(RunWith("VEXDocumentServices::OpenDocument=E_ACCESSDENIED,keep",
                      [&] { driver.Run(line.Count(), line.Values()); }),
              (Outcome{0,
                       "\n In HLXBaseTestCase::PreProcess() \n"
                       "**********Input file name : " +
                           folder.File("a.VEXAnalysis") +
                           "\n"
                           "ERROR in opening document" +
                           folder.File("a.VEXAnalysis") + "\n",
                       ""}));
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_EQ(testCase._Document->StorageName(), folder.File("a.VEXAnalysis").c_str());
    EXPECT_EQ(VEXDocumentServices::Remove(*testCase._Document, 1), S_OK);
}

TEST(HLXTestCaseDriver, RunsACaseWhosePreProcessSucceededWithoutADocument)
{
    ExposedTestCase testCase;
    testCase.process = [&] {
        EXPECT_EQ(testCase._Document, nullptr);
        std::fputs("the test\n", stdout);
        return 0L;
    };
    HLXTestCaseDriver driver;
    driver.AddTestCase(&testCase);
    CommandLine line{"program", "in", "a.VEXAnalysis"};
    EXPECT_EQ(RunWith("VEXDocumentServices::OpenDocument=null",
                      [&] { driver.Run(line.Count(), line.Values()); }),
              (Outcome{0,
                       "\n In HLXBaseTestCase::PreProcess() \n"
                       "**********Input file name : in/a.VEXAnalysis\n"
                       "ERROR in opening documentin/a.VEXAnalysis\n"
                       "the test\n"
                       "\n In HLXBaseTestCase::PostProcess() \n",
                       ""}));
}

}  // namespace

}  // namespace hlxtest
