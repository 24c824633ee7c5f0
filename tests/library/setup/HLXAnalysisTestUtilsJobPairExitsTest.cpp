// SPDX-License-Identifier: Apache-2.0
// The two jobs of tests that write input files where something on the way fails or is missing.
#include "library/setup/JobPairs.h"

namespace hlxtest::statics {
namespace {

struct Broken
{
    const char* name;
    const char* faults;
    int line;    ///< of the exit
    Lines jobs;  ///< of the case

    int Status() const { return line == 3763 ? 1 : 0; }
    friend void PrintTo(const Broken& row, std::ostream* stream) { *stream << row.faults; }
};

class JobPairExitTest : public JobPairTest, public testing::WithParamInterface<Broken>
{};

TEST_P(JobPairExitTest, IsToldByItsLineAndKeepsWhatWasMade)
{
    const Broken& row = GetParam();
    EXPECT_EQ(Create("Job-1", row.faults), (Outcome{row.Status() == 1 ? S_OK : E_FAIL, "", ""}));
    EXPECT_EQ(Told(), ToldOfExit(row.Status(), row.line));
    EXPECT_EQ(JobsOf(Case(1)), row.jobs);
    EXPECT_EQ(HeldAfter(row.faults, [&] { return CreateUnseen(); }), HeldCounts{});
}

TEST_P(JobPairExitTest, IsAnsweredAsTheServiceSays)
{
    for (const auto& [outcome, result] :
         std::map<std::string, long>{{"E_ACCESSDENIED", E_ACCESSDENIED}, {"7", 7}}) {
        EXPECT_EQ(Create("Job-1", GetParam().faults + (";VEXError::GetReturn#2=" + outcome)),
                  (Outcome{result, "", ""}));
    }
}

const Lines noJobs = {};
const Lines plainJob = {bothJobs[0]};
const Lines namelessJob = {", each part of Analysis Case.1"};
const Lines secondNameless = {bothJobs[0], ", each part of Analysis Case.1"};

INSTANTIATE_TEST_SUITE_P(
    First, JobPairExitTest,
    testing::Values(
        Broken{"NoSearch", "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisScan=null", 3736, noJobs},
        Broken{"NoContainer", "VEXISamAnalysisScan::GetChildren=empty", 3736, noJobs},
        Broken{"NoFactory", "cast:HLXJobContainerLT->HLXIJobFactory=E_NOINTERFACE", 3736, noJobs},
        Broken{"FailingCreation", "HLXIJobFactory::CreateJob=E_ACCESSDENIED", 3736, noJobs},
        Broken{"NothingCreated", "HLXIJobFactory::CreateJob=null", 3736, noJobs},
        Broken{"NoAlias", "cast:HLXJobLT->VEXIAlias=E_NOINTERFACE", 3740, namelessJob},
        Broken{"EmptyAlias", "cast:HLXJobLT->VEXIAlias=null", 3740, namelessJob}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Second, JobPairExitTest,
    testing::Values(
        Broken{"NoSearch", "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisScan#2=null", 3753, plainJob},
        Broken{"NoContainer", "VEXISamAnalysisScan::GetChildren#2=empty", 3753, plainJob},
        Broken{"FailingCreation", "HLXIJobFactory::CreateJob#2=E_ACCESSDENIED", 3753, plainJob},
        Broken{"NothingCreated", "HLXIJobFactory::CreateJob#2=null", 3753, plainJob},
        Broken{"NoAlias", "cast:HLXJobLT->VEXIAlias#2=E_NOINTERFACE", 3757, secondNameless},
        Broken{"EmptyAlias", "cast:HLXJobLT->VEXIAlias#2=null", 3757, secondNameless}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    NotLookedAt, JobPairExitTest,
    testing::Values(
        Broken{"Names",
               "VEXIAlias::SetAlias=E_FAIL",
               3763,
               {", each part of Analysis Case.1", ", one part of Analysis Case.1"}},
        Broken{"FirstName",
               "VEXIAlias::SetAlias#1=E_ACCESSDENIED",
               3763,
               {", each part of Analysis Case.1", bothJobs[1]}},
        Broken{"Options",
               "HLXIJob::SetSinglePart=E_FAIL",
               3763,
               {bothJobs[0], "Job-1_SinglePart, each part of Analysis Case.1"}},
        Broken{"FirstCase",
               "HLXIJob::SetAnalysisCase#1=E_FAIL",
               3763,
               {"Job-1, each part of (none)", bothJobs[1]}},
        Broken{"SecondCaseIsGivenTwice", "HLXIJob::SetAnalysisCase#2=E_FAIL", 3763, bothJobs},
        Broken{"SecondCaseAgain", "HLXIJob::SetAnalysisCase#3=E_ACCESSDENIED", 3763, bothJobs},
        Broken{"JobsGivenAlongWithAFailure", "HLXIJobFactory::CreateJob=E_UNEXPECTED,keep", 3763,
               bothJobs},
        Broken{"ContainersGivenAlongWithAFailure",
               "VEXISamAnalysisScan::GetChildren=E_UNEXPECTED,keep", 3763, bothJobs},
        Broken{"AContainerThatIsNoFactoryTheSecondTimeLeavesTheFirstJobForTheSecond",
               "cast:HLXJobContainerLT->HLXIJobFactory#2=E_NOINTERFACE",
               3763,
               {bothJobs[1]}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(JobPairTest, NothingFollowsAFailure)
{
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(); }, {"VEXIAlias::", "HLXIJob::", "HLXIJobFactory"},
                           "cast:HLXJobLT->VEXIAlias=null"),
              (Lines{"HLXIJobFactory::CreateJob(VEXAnalysisDocument, &)",
                     "HLXIJob::SetAnalysisCase(HLXHacAnalysisCaseLT)"}));
}

// --- Nothing to make them in ---------------------------------------------------------------------

TEST_F(JobPairTest, AnEmptyCaseOrOneWithoutAContainerIsTheFirstExit)
{
    for (const VEXISamAnalysisCase_var& wrong : {VEXISamAnalysisCase_var(), BareCase()}) {
        analysisCase = wrong;
        EXPECT_EQ(Create(), (Outcome{E_FAIL, "", ""}));
        EXPECT_EQ(Told(), ToldOfExit(0, 3736));
    }
}

TEST_F(JobPairTest, ADocumentThatIsNoneOrOfAnotherTypeIsTheFirstExit)
{
    for (VEXDocument* const wrong : {static_cast<VEXDocument*>(nullptr), New("VEXPart")}) {
        document = wrong;
        const Outcome outcome = Create();
        EXPECT_EQ(outcome.result, E_FAIL);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(Told(), ToldOfExit(0, 3736));
    }
    EXPECT_EQ(JobsOf(Case(1)), Lines{});
}

}  // namespace
}  // namespace hlxtest::statics
