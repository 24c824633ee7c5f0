// SPDX-License-Identifier: Apache-2.0
// The files that HLXFileDump writes for the sample, compared with those in tests/golden.
#include "reference/programs/SampleAnalysis.h"

namespace hlxtest {

namespace {

TEST(GoldenFiles, TheDumpOfTheSampleIsUnchanged)
{
    const SampleAnalysis sample(3, "GSS,SPS,RS,HTS,EDS");
    EXPECT_EQ(RunFileDump(sample.Input(), sample.Output()).code, 0);
    const Files written = FilesIn(sample.Output());
    Files golden = FilesIn(HLX_SOURCE_DIR "/tests/golden");
    EXPECT_EQ(golden.erase("README.md"), 1u);
    EXPECT_EQ(NamesOf(written), NamesOf(golden));
    for (const auto& [name, bytes] : golden) {
        const auto found = written.find(name);
        EXPECT_EQ(found == written.end() ? "" : found->second, bytes) << name;
    }
}

}  // namespace

}  // namespace hlxtest
