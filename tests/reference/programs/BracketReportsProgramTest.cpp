// SPDX-License-Identifier: Apache-2.0
// The example that reports what an analysis of the bracket prescribes, run as a user does.
#include "reference/programs/SampleAnalysis.h"

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

Ended RunBracketReports(const SampleAnalysis& sample, const Surroundings& surroundings = {})
{
    return RunProgram({Program("bracket_reports"), sample.Input(), "sample.VEXAnalysis",
                       sample.Output(), "reports.inp"},
                      surroundings);
}

TEST(BracketReportsProgram, WritesReportsOfEachStepDocumentFeatureTreeAndInputFile)
{
    const SampleAnalysis sample(1);
    const Ended ended = RunBracketReports(sample);
    EXPECT_EQ(ended.code, 0);
    EXPECT_EQ(ended.err, "");
    EXPECT_THAT(
        NamesOf(FilesIn(sample.Output())),
        ElementsAre("BracketReports.VEXAnalysis", "BracketReports_FeatTree.txt", "Heated.txt",
                    "Mounted.txt", "Moved.txt", "Working.txt", "reports.inp"));
}

TEST(BracketReportsProgram, ReportsWhatIsPrescribedInASecondRunToo)
{
    const SampleAnalysis sample(1);
    for (int run = 1; run <= 2; ++run) {
        EXPECT_EQ(RunBracketReports(sample).code, 0);
        // Typed from the program's values; the second run begins its files anew.
        EXPECT_EQ(FilesIn(sample.Output()).at("Moved.txt"),
                  "\n"
                  "**************Load Feature Properties************** \n"
                  " RBF Velocity is :1.73205\n"
                  " RBF Accelaration is :5.25\n"
                  " RBF Use Amplitude is :TRUE \n"
                  " RBF Amplitude Spec is :\n"
                  "\n"
                  "\n");
    }
}

TEST(BracketReportsProgram, TheDocumentThatItSavedHoldsWhatItWrote)
{
    const SampleAnalysis sample(1);
    EXPECT_EQ(RunBracketReports(sample).code, 0);
    const std::string again = sample.Path() + "/again";
    std::filesystem::create_directory(again);
    const Ended dumped = RunProgram({Program("HLXFileDump"), sample.Output(),
                                     "BracketReports.VEXAnalysis", again, "reports.inp"});
    EXPECT_EQ(dumped.code, 0) << dumped.err;
    const Files written = FilesIn(sample.Output());
    const Files read = FilesIn(again);
    EXPECT_EQ(read.at("reports.inp"), written.at("reports.inp"));
    EXPECT_EQ(TreeOf(read.at("reports.inp_FeatTree.txt")),
              TreeOf(written.at("BracketReports_FeatTree.txt")));
}

TEST(BracketReportsProgram, LeavesNothingHeld)
{
    const SampleAnalysis sample(1);
    const std::string counts = sample.Path() + "/counts.txt";
    EXPECT_EQ(RunBracketReports(sample, {{"VEX_COUNTS=" + counts}}).code, 0);
    EXPECT_THAT(ReadFile(counts), EndsWith("\nobjects still held\n"));
}

/// What the program asks the platform for on the way, so that each has its own operation to break.
class EachOperation : public testing::TestWithParam<const char*>
{};

TEST_P(EachOperation, EndsTheProgramWithOneWhenItFails)
{
    const SampleAnalysis sample(1);
    const Ended ended =
        RunBracketReports(sample, {{std::string("VEX_FAULTS=") + GetParam() + "=E_FAIL"}});
    EXPECT_EQ(ended.code, 1);
    EXPECT_EQ(ended.err, "bracket_reports: ended early, result -2147467259\n");
}

INSTANTIATE_TEST_SUITE_P(
    BracketReportsProgram, EachOperation,
    testing::Values(
        // What is made.
        "HLXITemperatureFact::CreateTemperature", "HLXIBoundaryConditionsFact::CreateClamp",
        "HLXILoadFact::CreateGravity", "HLXIBoundaryConditionsFact::CreateVelocity",
        "HLXITemperature::SetMagnitude", "HLXIBoundaryConditionsFact::CreateDisplacement",
        "HLXITemperatureHistory::SetUniformValue",
        // What is reported.
        "HLXIGravity::GetComponentX", "HLXIConcentratedForce::GetComponentX",
        "HLXIRotationalBodyForce::GetVelocity", "HLXITemperature::GetMagnitude",
        "HLXIHeatFlux::GetMagnitude", "HLXIFilmCondition::GetTemperature",
        "HLXIDisplacementBC::GetValue", "HLXIPressureLoad::GetPressure",
        "HLXITemperatureHistory::GetUniformValue",
        // What is written.
        "VEXDocumentServices::SaveAs", "VEXFOpen", "HLXIIfwTraverser::WriteInputFile"),
    [](const auto& operation) {
        std::string name = operation.param;
        std::erase(name, ':');
        return name;
    });

TEST(BracketReportsProgram, EndsWithOneWhenAReportCannotBeWritten)
{
    const SampleAnalysis sample(1);
    std::filesystem::create_directory(sample.Output() + "/Heated.txt");
    const Ended ended = RunBracketReports(sample);
    EXPECT_EQ(ended.code, 1);
    EXPECT_EQ(ended.err, "bracket_reports: ended early, result -2147467259\n");
    EXPECT_EQ(std::filesystem::exists(sample.Output() + "/Working.txt"), false);
}

TEST(BracketReportsProgram, EndsWithOneWhenTheTreeIsEmpty)
{
    const SampleAnalysis sample(1);
    EXPECT_EQ(RunBracketReports(sample, {{"VEX_FAULTS=DumpFeatureTree=E_FAIL"}}).code, 1);
}

TEST(BracketReportsProgram, TellsHowItIsCalled)
{
    const Ended ended = RunProgram({Program("bracket_reports")});
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(ended.err,
                StartsWith("usage: bracket_reports INPUT-DIR DOCUMENT OUTPUT-DIR INPUT-FILE\n"));
}

}  // namespace

}  // namespace hlxtest
