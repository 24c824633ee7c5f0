// SPDX-License-Identifier: Apache-2.0
// Ready-made test case: dumps the feature tree of an analysis document and writes one solver input
// file per analysis case.
//
//     program INPUT_DIRECTORY DOCUMENT.VEXAnalysis OUTPUT_DIRECTORY JOB.inp
//
// The output directory then holds JOB.inp_FeatTree.txt and JOB.inp, or with two cases and more
// JOB.inp_case_1, JOB.inp_case_2 and so on. It owns nothing beyond what HLXBaseTestCase does and
// answers that class's name (IsA).
#pragma once

#include "HLXBaseTestCase.h"

class VEX_EXPORT HLXFileDumpTestCase : public HLXBaseTestCase
{
public:
    /// Does nothing: all the work is in PostProcess. @return S_OK
    long Process() override;

    /// Switches flat input files off for its duration, brings the document's data up to this
    /// release, dumps the feature tree, writes the input files, removes the document and prints
    /// "Program Ends". A document without an analysis case is only removed, as is one that cannot
    /// be navigated and has none; with cases at hand the files are written even then. What the
    /// input-file writing answers is not looked at.
    /// @return result of the removal; E_FAIL, or the negative result of the data upgrade, when the
    ///         first analysis case is none, has no document, or its document cannot be upgraded:
    ///         the document then stays loaded and "Program Ends" is not printed
    long PostProcess() override;

protected:
    /// @return 1 when `argc` is 5; otherwise 0, with the list of arguments on standard output
    unsigned char VerifyArguments(int argc) override;
};
