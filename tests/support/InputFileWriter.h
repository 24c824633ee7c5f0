// SPDX-License-Identifier: Apache-2.0
// The product's input-file writer as tests use it beside the library.
#pragma once

#include "HLXIIfwTraverser.h"
#include "VEXComponents.h"
#include "support/FlatFileOption.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace hlxtest {

/// The platform calls that make up the writing of one input file.
inline const std::vector<std::string> inputFileCalls = {
    "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag", "VEXCreateExternalObject",
    "cast:HLXIfwTraverser", "HLXIIfwTraverser"};

inline HLXIIfwTraverser_var InputFileWriter()
{
    VEXBaseUnknown* const component =
        VEXCreateExternalObject("HLXIfwTraverser", nullptr, "HLXIfwExportTraverser", nullptr);
    return VEXShare(component);
}

/// What the product writes for a case with that option "write flat input file".
inline std::string InputFile(const VEXISamAnalysisCase_var& analysisCase, unsigned char option)
{
    const TemporaryFolder folder;
    const std::string path = folder.File("expected.inp");
    const auto former = static_cast<unsigned char>(FlatFileOption());
    SetFlatFileOption(option);
    VEXListValVEXBaseUnknown_var cases;
    cases.Append(analysisCase);
    EXPECT_EQ(InputFileWriter()->WriteInputFile(VEXUnicodeString(path), cases), S_OK);
    SetFlatFileOption(former);
    return ReadFile(path);
}

inline std::string StructuredInputFile(const VEXISamAnalysisCase_var& analysisCase)
{
    return InputFile(analysisCase, 0);
}

inline std::string FlatInputFile(const VEXISamAnalysisCase_var& analysisCase)
{
    return InputFile(analysisCase, 1);
}

}  // namespace hlxtest
