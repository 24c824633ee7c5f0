// SPDX-License-Identifier: Apache-2.0
// The file-dump case in a program whose locale writes 1.234,5 and groups digits, in C and in C++.
// Tells on standard error how it writes numbers.
#include "HLXFileDumpTestCase.h"
#include "HLXTestCaseDriver.h"
#include "support/ForeignNumbers.h"

#include <cstdio>
#include <sstream>

int main(int argc, char** argv)
{
    const hlxtest::ForeignNumbers foreign;
    std::ostringstream number;
    number << 1234.5;
    std::fprintf(stderr, "%s in %s\n", number.str().c_str(),
                 foreign.AreInForceInC() ? "C and C++" : "C++ only");

    HLXFileDumpTestCase fileDump;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&fileDump);
    driver.Run(argc, argv);
}
