// SPDX-License-Identifier: Apache-2.0
// A stored document with some analysis cases, opened by the file-dump test case.
#pragma once

#include "HLXProductUtilities.h"
#include "support/AnalysisDocuments.h"
#include "support/CommandLine.h"
#include "support/ExposedFileDumpTestCase.h"
#include "support/FlatFileOption.h"
#include "support/InputFileWriter.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace hlxtest {

inline constexpr const char* kPostProcessBanner = "\n In HLXBaseTestCase::PostProcess() \n";

/// A stored document with some cases, dumped into an empty folder as job.inp.
class FileDumpTest : public testing::Test
{
protected:
    FileDumpTest() { SetFlatFileOption(1); }
    ~FileDumpTest() override
    {
        EXPECT_EQ(FlatFileOption(), 1);
        if (testCase._Document != nullptr) {
            EXPECT_EQ(VEXDocumentServices::Remove(*testCase._Document, 1), S_OK);
        }
    }

    /// Opens a document with `cases` cases as the command line would.
    void Open(int cases)
    {
        StoreAnalysisDocument(documentPath, cases);
        CommandLine line{"program", input.Path().c_str(), "model.VEXAnalysis",
                         output.Path().c_str(), "job.inp"};
        Capture([&] {
            EXPECT_EQ(testCase.PreProcess(line.Count(), line.Values(), testCase.OpenExisting),
                      S_OK);
        });
        ASSERT_NE(testCase._Document, nullptr);
    }

    Outcome PostProcess(std::string_view faults = "")
    {
        return RunWith(faults, [&] { return testCase.PostProcess(); });
    }

    /// What the frame, asked directly, gives for the document: kept for comparison with the files.
    VEXListValVEXBaseUnknown_var Cases()
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, testCase._Document), S_OK);
        return cases;
    }

    std::string Tree()
    {
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, testCase._Document), S_OK);
        VEXListValVEXBaseUnknown_var models;
        EXPECT_EQ(manager->GetAllAnalysisModels(models), S_OK);
        const VEXINavigateObject_var root = models[1];
        HLXGenString text;
        EXPECT_EQ(DumpFeatureTree(root.Get(), 0, text), S_OK);
        return text.c_str();
    }

    /// The bytes of a dump with that tree.
    static std::string DumpOf(const std::string& tree)
    {
        return "   job.inpFeature Tree Dump:\n\n" + tree + "\n";
    }

    TemporaryFolder input;
    TemporaryFolder output;
    const std::string documentPath = input.File("model.VEXAnalysis");
    const std::string dump = output.File("job.inp_FeatTree.txt");
    ExposedFileDumpTestCase testCase;
};

}  // namespace hlxtest
