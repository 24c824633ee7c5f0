// SPDX-License-Identifier: Apache-2.0
// The two jobs of tests that write input files, made without a test case.
#include "library/setup/JobPairs.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(
    std::is_same_v<decltype(&Utils::AddJobsForWritingInputFiles),
                   HRESULT (*)(VEXDocument*, VEXISamAnalysisCase_var, const VEXUnicodeString&)>);

// --- What is made --------------------------------------------------------------------------------

TEST_F(JobPairTest, HasAPlainJobAndOneOfASinglePart)
{
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(JobsOf(Case(1)), bothJobs);
    EXPECT_EQ(JobsOf(Case(2)), Lines{});
    EXPECT_EQ(Told(), ToldOfExit(1, 3763));
}

TEST_F(JobPairTest, IsMadeForTheCaseGiven)
{
    analysisCase = Case(2);
    EXPECT_EQ(Create("b"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(JobsOf(Case(1)), Lines{});
    EXPECT_EQ(JobsOf(Case(2)), (Lines{"b, each part of Analysis Case.2",
                                      "b_SinglePart, one part of Analysis Case.2"}));
}

TEST_F(JobPairTest, IsMadeAgainBehindThoseThatAreThere)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    Lines expected = bothJobs;
    expected.insert(expected.end(), bothJobs.begin(), bothJobs.end());
    EXPECT_EQ(JobsOf(Case(1)), expected);
}

TEST_F(JobPairTest, AnyTextIsAName)
{
    for (const char* const name :
         {"", "two words", "\xC3\xA4\xE2\x82\xAC", "%s%n", "a/b", "Job_SinglePart"}) {
        EXPECT_EQ(Create(name), (Outcome{S_OK, "", ""})) << name;
        const Lines jobs = JobsOf(Case(1));
        ASSERT_GE(jobs.size(), 2U);
        EXPECT_EQ(jobs[jobs.size() - 2], name + std::string(", each part of Analysis Case.1"));
        EXPECT_EQ(jobs[jobs.size() - 1],
                  name + std::string("_SinglePart, one part of Analysis Case.1"));
    }
}

TEST_F(JobPairTest, ANameThatIsRefusedIsNoFailure)
{
    const Outcome outcome = Create("\xFF");
    EXPECT_EQ(outcome.result, S_OK);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(JobsOf(Case(1)),
              (Lines{", each part of Analysis Case.1", ", one part of Analysis Case.1"}));
    EXPECT_EQ(Told(), ToldOfExit(1, 3763));
}

TEST_F(JobPairTest, NothingIsHeld)
{
    EXPECT_EQ(HeldAfter("", [&] { return CreateUnseen(); }), HeldCounts{});
    EXPECT_EQ(References(*analysisCase.Get()), 1U);
}

TEST_F(JobPairTest, IsMadeInAFixedOrder)
{
    const std::string start = "VEXError::GetReturn(1, null, null, ";
    const std::string from = std::string("\"") + errorSource + "\", ";
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(); }, {"VEXError::", "VEXISamAnalysisScan::",
                                                     "HLXIJob", "VEXIAlias::", "cast:HLXJob"}),
              (Lines{
                  start + from + "3725)",
                  "VEXISamAnalysisScan::GetChildren(\"HLXJobContainerLT\", &, 3)",
                  "cast:HLXJobContainerLT->HLXIJobFactory(&)",
                  "HLXIJobFactory::CreateJob(VEXAnalysisDocument, &)",
                  "HLXIJob::SetAnalysisCase(HLXHacAnalysisCaseLT)",
                  "cast:HLXJobLT->VEXIAlias(&)",
                  "VEXIAlias::SetAlias(\"Job-1\")",
                  "HLXIJob::SetSinglePart(0)",
                  "VEXISamAnalysisScan::GetChildren(\"HLXJobContainerLT\", &, 3)",
                  "cast:HLXJobContainerLT->HLXIJobFactory(&)",
                  "HLXIJobFactory::CreateJob(VEXAnalysisDocument, &)",
                  "HLXIJob::SetAnalysisCase(HLXHacAnalysisCaseLT)",
                  "cast:HLXJobLT->VEXIAlias(&)",
                  "VEXIAlias::SetAlias(\"Job-1_SinglePart\")",
                  "HLXIJob::SetSinglePart(1)",
                  "HLXIJob::SetAnalysisCase(HLXHacAnalysisCaseLT)",
                  start + from + "3763)",
              }));
}

// --- The error service ---------------------------------------------------------------------------

TEST_F(JobPairTest, AnErrorThatIsPendingIsSettledAtEntryAndIsNoFailure)
{
    VEXError::SetPending(E_ACCESSDENIED);
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(JobsOf(Case(1)), bothJobs);
    EXPECT_EQ(VEXError::GetReturn(1, nullptr, nullptr, nullptr, 0), S_OK);
}

TEST_F(JobPairTest, WhatTheServiceAnswersAtEntryIsNotLookedAt)
{
    EXPECT_EQ(Create("Job-1", "VEXError::GetReturn#1=E_ACCESSDENIED"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(JobsOf(Case(1)), bothJobs);
    EXPECT_EQ(Told(), ToldOfExit(1, 3763));
}

}  // namespace
}  // namespace hlxtest::statics
