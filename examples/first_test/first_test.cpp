// SPDX-License-Identifier: Apache-2.0
// A first test program: opens a document, writes the input file of its first analysis case.
#include "HLXBaseTestCase.h"
#include "HLXTestCaseDriver.h"

class FirstTest : public HLXBaseTestCase
{
public:
    long Process() override
    {
        const long rc = InitializeAnalysisCaseFromDocument();
        return rc < 0 ? rc : WriteInputFileForAnalysisCase(1, nullptr);
    }

protected:
    unsigned char VerifyArguments(int argc) override { return argc == 5 ? 1 : 0; }
};

int main(int argc, char** argv)
{
    FirstTest firstTest;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&firstTest);
    driver.Run(argc, argv);
}
