// SPDX-License-Identifier: Apache-2.0
// The files that programs write for the sample, compared with those in tests/golden.
#include "reference/programs/SampleAnalysis.h"

namespace hlxtest {

namespace {

/// Each file of tests/golden/NAME is among the written ones, byte for byte.
void ExpectGolden(const std::string& name, const Files& written)
{
    for (const auto& [file, bytes] : FilesIn(HLX_SOURCE_DIR "/tests/golden/" + name)) {
        const auto found = written.find(file);
        EXPECT_EQ(found == written.end() ? "" : found->second, bytes) << file;
    }
}

TEST(GoldenFiles, TheDumpOfTheSampleIsUnchanged)
{
    const SampleAnalysis sample(3, "GSS,SPS,RS,HTS,EDS");
    EXPECT_EQ(RunFileDump(sample.Input(), sample.Output()).code, 0);
    const Files written = FilesIn(sample.Output());
    ExpectGolden("HLXFileDump", written);
    EXPECT_EQ(NamesOf(written), NamesOf(FilesIn(HLX_SOURCE_DIR "/tests/golden/HLXFileDump")));
}

/// What an example writes for the sample.
Files WrittenBy(const std::string& program, const std::string& inputFile)
{
    const SampleAnalysis sample(1);
    const Ended ended = RunProgram(
        {Program(program), sample.Input(), "sample.VEXAnalysis", sample.Output(), inputFile});
    EXPECT_EQ(ended.code, 0) << ended.err;
    return FilesIn(sample.Output());
}

TEST(GoldenFiles, TheLoadsOfTheBracketAreUnchanged)
{
    ExpectGolden("bracket_loads", WrittenBy("bracket_loads", "loads.inp"));
}

TEST(GoldenFiles, TheReportsOfTheBracketAreUnchanged)
{
    Files written = WrittenBy("bracket_reports", "reports.inp");
    ExpectGolden("bracket_reports", written);
    EXPECT_EQ(written.erase("BracketReports.VEXAnalysis"), 1u);
    EXPECT_EQ(NamesOf(written), NamesOf(FilesIn(HLX_SOURCE_DIR "/tests/golden/bracket_reports")));
}

}  // namespace

}  // namespace hlxtest
