// SPDX-License-Identifier: Apache-2.0
// Runs test cases one after the other with the command line of the test program.
// The test program owns the cases and keeps them alive while the driver may run; the driver only
// points at them.
#pragma once

#include "VEXLists.h"
#include "VEXMetaClass.h"

class HLXBaseTestCase;

class VEX_EXPORT HLXTestCaseDriver : public VEXBaseUnknown
{
public:
    HLXTestCaseDriver();

    /// Copies point at the same cases.
    HLXTestCaseDriver(const HLXTestCaseDriver& other);
    HLXTestCaseDriver& operator=(const HLXTestCaseDriver& other);

    /// Forgets the cases; they are not deleted or released.
    ~HLXTestCaseDriver() override;

    /// Registers a case at the end. Null is ignored; a case registered twice is run twice.
    /// @param testCase  stays the caller's
    /// @return the number of registered cases after the call
    int AddTestCase(HLXBaseTestCase* testCase);

    /// Runs the cases registered at the time of the call, in order: PreProcess with OpenExisting,
    /// then, unless that failed, Process and PostProcess. What these two answer is not looked at,
    /// and a case whose PreProcess failed is skipped without a word: the driver always goes on with
    /// the next case.
    /// @param argc, argv  command line of the test program, handed to each case
    void Run(int argc, char** const argv);

    /// The run-time class "HLXTestCaseDriver", based on VEXBaseUnknown.
    static VEXMetaClass* MetaObject();
    VEXMetaClass* GetMetaObject() const override;
    static const GUID& ClassId();
    static const char* ClassName();
    const char* IsA() const override;
    int IsAKindOf(const char* name) const override;
    /// Always null: the framework's factory makes no driver.
    static VEXBaseUnknown* CreateItself();

private:
    static VEXMetaClass* meta_object;

    VEXRawCollPV _TestCases;
};
