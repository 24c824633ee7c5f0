// SPDX-License-Identifier: Apache-2.0
// Runs the registered test cases.
#include "HLXTestCaseDriver.h"

#include "HLXBaseTestCase.h"
#include "HLXClassRecord.h"

HLX_CLASS_RECORD(HLXTestCaseDriver, VEXBaseUnknown);

HLXTestCaseDriver::HLXTestCaseDriver() = default;
HLXTestCaseDriver::HLXTestCaseDriver(const HLXTestCaseDriver& other) = default;
HLXTestCaseDriver& HLXTestCaseDriver::operator=(const HLXTestCaseDriver& other) = default;

HLXTestCaseDriver::~HLXTestCaseDriver()
{
    _TestCases.RemoveAll();
}

int HLXTestCaseDriver::AddTestCase(HLXBaseTestCase* testCase)
{
    if (testCase != nullptr) _TestCases.Append(testCase);
    return _TestCases.Size();
}

void HLXTestCaseDriver::Run(int argc, char** const argv)
{
    const int count = _TestCases.Size();
    for (int i = 1; i <= count; ++i) {
        // Null when a case assigned a shorter driver to this one.
        auto* const testCase = static_cast<HLXBaseTestCase*>(_TestCases[i]);
        if (testCase != nullptr &&
            SUCCEEDED(testCase->PreProcess(argc, argv, HLXBaseTestCase::OpenExisting))) {
            // What these two answer is not looked at; kept.
            testCase->Process();
            testCase->PostProcess();
        }
    }
}
