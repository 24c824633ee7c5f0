// SPDX-License-Identifier: Apache-2.0
// Dumps the feature tree of an analysis document and writes one solver input file per analysis
// case. This is what a test program looks like: a case, a driver, the command line handed over.
//
// Exit code: 0 when the case ran to its end, reported no failure and all messages were written; 1
// otherwise.
#include "HLXFileDumpTestCase.h"
#include "HLXTestCaseDriver.h"

#include <cstdio>
#include <cstring>
#include <iostream>

namespace {

/// The file-dump case, noting what the driver does not look at.
class ReportedFileDump : public HLXFileDumpTestCase
{
public:
    long PreProcess(int argc, char** const argv, FileMode mode) override
    {
        return Noted(HLXFileDumpTestCase::PreProcess(argc, argv, mode));
    }

    long PostProcess() override
    {
        _reachedEnd = true;
        return Noted(HLXFileDumpTestCase::PostProcess());
    }

    bool Succeeded() const { return _reachedEnd && !_failed; }

private:
    long Noted(long result)
    {
        _failed = _failed || result < 0;
        return result;
    }

    bool _reachedEnd = false;
    bool _failed = false;
};

constexpr const char* usage =
    "usage: HLXFileDump INPUT_DIR DOCUMENT.VEXAnalysis OUTPUT_DIR INPUT_FILE.inp\n"
    "\n"
    "Opens the analysis document INPUT_DIR/DOCUMENT.VEXAnalysis and writes into OUTPUT_DIR its\n"
    "feature tree, INPUT_FILE.inp_FeatTree.txt, and a solver input file for each analysis case:\n"
    "INPUT_FILE.inp for a single case, INPUT_FILE.inp_case_1, INPUT_FILE.inp_case_2, ... for\n"
    "several.\n"
    "\n"
    "exit codes: 0 all went well, 1 the document could not be opened, a step failed (the messages\n"
    "say which) or the messages could not be written\n";

/// Whether all that was written to standard output has left this process.
bool OutputArrived()
{
    std::cout.flush();
    const bool flushed = std::fflush(stdout) == 0;
    return flushed && std::cout.good() && std::ferror(stdout) == 0;
}

int LostOutput()
{
    std::fputs("HLXFileDump: standard output could not be written\n", stderr);
    return 1;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        std::cout << usage;
        return OutputArrived() ? 0 : LostOutput();
    }
    ReportedFileDump fileDump;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&fileDump);
    driver.Run(argc, argv);
    if (!OutputArrived()) {
        return LostOutput();
    }
    return fileDump.Succeeded() ? 0 : 1;
}
