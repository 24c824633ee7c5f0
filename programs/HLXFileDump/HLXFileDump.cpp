// SPDX-License-Identifier: Apache-2.0
// Dumps the feature tree of an analysis document and writes one solver input file per analysis case. This is what a test
// program looks like: a case, a driver, the command line handed over.
//
// Exit code: 0 when the case ran to its end and reported no failure; 1 otherwise.
#include "HLXFileDumpTestCase.h"
#include "HLXTestCaseDriver.h"

#include <cstring>
#include <iostream>

namespace {

/// The file-dump case, noting what the driver does not look at.
class ReportedFileDump : public HLXFileDumpTestCase {
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
    "Opens the analysis document INPUT_DIR/DOCUMENT.VEXAnalysis and writes into OUTPUT_DIR its feature tree,\n"
    "INPUT_FILE.inp_FeatTree.txt, and a solver input file for each analysis case: INPUT_FILE.inp for a single case,\n"
    "INPUT_FILE.inp_case_1, INPUT_FILE.inp_case_2, ... for several.\n"
    "\n"
    "exit codes: 0 all went well, 1 the document could not be opened or a step failed (the messages say which)\n";

}  // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        std::cout << usage;
        return 0;
    }
    ReportedFileDump fileDump;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&fileDump);
    driver.Run(argc, argv);
    return fileDump.Succeeded() ? 0 : 1;
}
