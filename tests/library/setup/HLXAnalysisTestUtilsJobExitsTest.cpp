// SPDX-License-Identifier: Apache-2.0
// One job for an analysis case where something on the way fails or is missing.
#include "library/setup/Jobs.h"

namespace hlxtest::statics {
namespace {

using namespace jobcalls;

struct Broken
{
    const char* name;
    const char* faults;
    long result;
    Lines jobs;  ///< of the case
    Lines calls;
    bool isGiven = true;

    friend void PrintTo(const Broken& row, std::ostream* stream) { *stream << row.faults; }
};

class JobExitTest : public JobTest, public testing::WithParamInterface<Broken>
{};

TEST_P(JobExitTest, AnswersAndMakesWhatItCan)
{
    const Broken& row = GetParam();
    Outcome outcome{};
    const Lines calls =
        QuietCallsOf([&] { outcome = OutcomeOf([&] { return CreateUnseen(); }); }, {}, row.faults);
    EXPECT_EQ(outcome, (Outcome{row.result, "", ""}));
    EXPECT_EQ(calls, row.calls);
    EXPECT_EQ(static_cast<bool>(job), row.isGiven);
    EXPECT_EQ(JobsOf(Case(1)), row.jobs);
    job.Reset();
    EXPECT_EQ(HeldAfter(row.faults,
                        [&] {
                            HLXIJob_var forgotten;
                            return HLXAnalysisTestUtils::CreateJob(document, analysisCase,
                                                                   forgotten);
                        }),
              HeldCounts{});
}

const Lines allCalls = {toScan, search, toFactory, creation, toFeature, setting};

INSTANTIATE_TEST_SUITE_P(
    Of, JobExitTest,
    testing::Values(
        Broken{"NoSearch",
               "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisScan=E_NOINTERFACE",
               E_FAIL,
               {},
               {toScan},
               false},
        Broken{"EmptySearch",
               "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisScan=null",
               E_FAIL,
               {},
               {toScan},
               false},
        Broken{"FailingSearch",
               "VEXISamAnalysisScan::GetChildren=E_ACCESSDENIED",
               E_FAIL,
               {},
               {toScan, search},
               false},
        Broken{"NothingFound",
               "VEXISamAnalysisScan::GetChildren=empty",
               E_FAIL,
               {},
               {toScan, search},
               false},
        Broken{"FailingSearchThoughFound",
               "VEXISamAnalysisScan::GetChildren=E_ACCESSDENIED,keep",
               S_OK,
               {jobOfTheCase},
               allCalls},
        Broken{"PositiveSearch",
               "VEXISamAnalysisScan::GetChildren=S_FALSE,keep",
               S_OK,
               {jobOfTheCase},
               allCalls},
        Broken{"NoFactory",
               "cast:HLXJobContainerLT->HLXIJobFactory=E_NOINTERFACE",
               E_FAIL,
               {},
               {toScan, search, toFactory},
               false},
        Broken{"FailingFactory",
               "cast:HLXJobContainerLT->HLXIJobFactory=E_ACCESSDENIED",
               E_FAIL,
               {},
               {toScan, search, toFactory},
               false},
        Broken{"EmptyFactory",
               "cast:HLXJobContainerLT->HLXIJobFactory=null",
               E_FAIL,
               {},
               {toScan, search, toFactory},
               false},
        Broken{"PositiveFactory",
               "cast:HLXJobContainerLT->HLXIJobFactory=S_FALSE,keep",
               S_OK,
               {jobOfTheCase},
               allCalls},
        Broken{"FailingCreation",
               "HLXIJobFactory::CreateJob=E_ACCESSDENIED",
               E_FAIL,
               {},
               {toScan, search, toFactory, creation},
               false},
        Broken{"NothingCreated",
               "HLXIJobFactory::CreateJob=null",
               E_FAIL,
               {},
               {toScan, search, toFactory, creation},
               false},
        Broken{"NothingCreatedWithSeven",
               "HLXIJobFactory::CreateJob=7",
               E_FAIL,
               {},
               {toScan, search, toFactory, creation},
               false},
        Broken{"FailingCreationThoughGiven",
               "HLXIJobFactory::CreateJob=E_UNEXPECTED,keep",
               S_OK,
               {jobOfTheCase},
               allCalls},
        Broken{
            "PositiveCreation", "HLXIJobFactory::CreateJob=7,keep", S_OK, {jobOfTheCase}, allCalls},
        Broken{"FailingSetting",
               "HLXIJob::SetAnalysisCase=E_ACCESSDENIED",
               S_OK,
               {jobOfNoCase},
               allCalls},
        Broken{"PositiveSetting", "HLXIJob::SetAnalysisCase=7", S_OK, {jobOfNoCase}, allCalls}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(JobTest, ACaseThatIsNoFeatureIsNotGivenToTheJob)
{
    for (const char* const outcome : {"E_NOINTERFACE", "null"}) {
        EXPECT_EQ(Create(std::string("cast:HLXHacAnalysisCaseLT->VEXISpecObject=") + outcome),
                  (Outcome{S_OK, "", ""}));
        VEXISpecObject_var written = analysisCase;
        ASSERT_EQ(job->GetAnalysisCase(written), S_OK);
        EXPECT_FALSE(written);
    }
}

// --- A former job stands for one that was not made -----------------------------------------------

class FormerJobTest : public JobTest, public testing::WithParamInterface<const char*>
{};

TEST_P(FormerJobTest, IsTakenAndGivenTheCase)
{
    analysisCase = Case(2);
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    ASSERT_EQ(job->SetAnalysisCase({}), S_OK);
    const HLXIJob_var former = job;
    EXPECT_EQ(Create(GetParam()), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(job == former);
    EXPECT_EQ(JobsOf(Case(2)), (Lines{", each part of Analysis Case.2"}));
}

INSTANTIATE_TEST_SUITE_P(Of, FormerJobTest,
                         testing::Values("cast:HLXJobContainerLT->HLXIJobFactory=E_NOINTERFACE",
                                         "cast:HLXJobContainerLT->HLXIJobFactory=null"),
                         [](const auto& row) { return "Number" + std::to_string(row.index); });

TEST_F(JobTest, AFormerOneIsTakenWhenTheFactoryRefusesTheDocument)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    ASSERT_EQ(job->SetAnalysisCase({}), S_OK);
    const HLXIJob_var former = job;
    document = nullptr;
    const Outcome outcome = Create();
    EXPECT_EQ(outcome.result, S_OK);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(job == former);
    EXPECT_EQ(JobsOf(Case(1)), (Lines{jobOfTheCase}));
}

TEST_F(JobTest, AFormerOneIsNoJobWhereThereIsNoContainer)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const HLXIJob_var former = job;
    EXPECT_EQ(Create("VEXISamAnalysisScan::GetChildren=empty"), (Outcome{E_FAIL, "", ""}));
    EXPECT_TRUE(job == former);
    EXPECT_EQ(JobsOf(Case(1)), (Lines{jobOfTheCase}));
}

}  // namespace
}  // namespace hlxtest::statics
