// SPDX-License-Identifier: Apache-2.0
// The example that sets an analysis of the bracket up, run as a user does.
#include "reference/programs/SampleAnalysis.h"

namespace hlxtest {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

Ended RunBracketLoads(const SampleAnalysis& sample, const Surroundings& surroundings = {})
{
    return RunProgram({Program("bracket_loads"), sample.Input(), "sample.VEXAnalysis",
                       sample.Output(), "loads.inp"},
                      surroundings);
}

TEST(BracketLoadsProgram, SaysWhatItDoes)
{
    const SampleAnalysis sample(1);
    const Ended ended = RunBracketLoads(sample);
    EXPECT_EQ(ended.code, 0);
    EXPECT_EQ(ended.err, "");
    EXPECT_THAT(ended.out, HasSubstr("GSS\nAdding General Static step succeeded !\n"
                                     "EDS\nAdding Explicit Dynamic step succeeded !\n"
                                     "HTS\nAdding Static HT step succeeded !\n"
                                     "subscription to MeshNegociator OK\n"));
}

TEST(BracketLoadsProgram, WritesDocumentInputFileFeatureTreeAndTimingLog)
{
    const SampleAnalysis sample(1);
    EXPECT_EQ(RunBracketLoads(sample).code, 0);
    const std::vector<std::string> names = NamesOf(FilesIn(sample.Output()));
    EXPECT_THAT(names,
                ElementsAre("BracketLoads.VEXAnalysis", "BracketLoads_FeatTree.txt",
                            AllOf(StartsWith("bracket_loads_"), EndsWith(".txt")), "loads.inp"));
}

TEST(BracketLoadsProgram, TheDocumentThatItSavedHoldsWhatItWrote)
{
    const SampleAnalysis sample(1);
    EXPECT_EQ(RunBracketLoads(sample).code, 0);
    const std::string again = sample.Path() + "/again";
    std::filesystem::create_directory(again);
    const Ended dumped = RunProgram(
        {Program("HLXFileDump"), sample.Output(), "BracketLoads.VEXAnalysis", again, "loads.inp"});
    EXPECT_EQ(dumped.code, 0) << dumped.err;
    const Files written = FilesIn(sample.Output());
    const Files read = FilesIn(again);
    EXPECT_EQ(read.at("loads.inp"), written.at("loads.inp"));
    EXPECT_EQ(TreeOf(read.at("loads.inp_FeatTree.txt")),
              TreeOf(written.at("BracketLoads_FeatTree.txt")));
}

TEST(BracketLoadsProgram, LeavesNothingHeld)
{
    const SampleAnalysis sample(1);
    const std::string counts = sample.Path() + "/counts.txt";
    EXPECT_EQ(RunBracketLoads(sample, {{"VEX_COUNTS=" + counts}}).code, 0);
    EXPECT_THAT(ReadFile(counts), EndsWith("\nobjects still held\n"));
}

TEST(BracketLoadsProgram, EndsWithOneWhenALoadCannotBeMade)
{
    const SampleAnalysis sample(1);
    const Ended ended =
        RunBracketLoads(sample, {{"VEX_FAULTS=HLXILoadFact::CreateFilmCondition=E_FAIL"}});
    EXPECT_EQ(ended.code, 1);
    EXPECT_EQ(ended.err, "bracket_loads: ended early, result -2147467259\n");
    EXPECT_THAT(ended.out, HasSubstr("could not create Film Condition entity!\n"));
}

TEST(BracketLoadsProgram, EndsWithOneWhenTheDocumentCannotBeSaved)
{
    const SampleAnalysis sample(1);
    const Ended ended =
        RunBracketLoads(sample, {{"VEX_FAULTS=VEXDocumentServices::SaveAs=E_FAIL"}});
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(NamesOf(FilesIn(sample.Output())),
                ElementsAre(AllOf(StartsWith("bracket_loads_"), EndsWith(".txt"))));
}

TEST(BracketLoadsProgram, TellsHowItIsCalled)
{
    const Ended ended = RunProgram({Program("bracket_loads")});
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(ended.err,
                StartsWith("usage: bracket_loads INPUT-DIR DOCUMENT OUTPUT-DIR INPUT-FILE\n"));
}

}  // namespace

}  // namespace hlxtest
