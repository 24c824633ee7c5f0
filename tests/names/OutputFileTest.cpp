// SPDX-License-Identifier: Apache-2.0
// Files that are written under hostile names: the solver input file, the tree dump of a test case,
// a document that a test case saves.
#include "names/HostileNames.h"
#include "names/NamedAnalysis.h"
#include "support/Capture.h"
#include "support/ExposedTestCase.h"
#include "support/InputFileWriter.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

namespace hlxtest {

namespace {

using testing::IsEmpty;

class OutputFiles : public testing::Test
{
protected:
    OutputFiles() { SetFlatFileOption(0); }
    ~OutputFiles() override { SetFlatFileOption(_former); }

    HRESULT Write(const std::string& path)
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Document()), S_OK);
        HRESULT result = E_UNEXPECTED;
        said = Capture([&] {
                   result = InputFileWriter()->WriteInputFile(VEXUnicodeString(path), cases);
               }).err;
        return result;
    }

    NamedAnalysis analysis;
    TemporaryFolder folder;
    std::string said;

private:
    unsigned char _former = static_cast<unsigned char>(FlatFileOption());
};

TEST_F(OutputFiles, DecksAreMadeUnderExactlyTheirName)
{
    const std::string deck = analysis.Deck();
    std::vector<std::string> made;
    for (const HostileNames* const names : {&StorableFileNames(), &ForeignFileNames()}) {
        for (const HostileName& name : *names) {
            if (name.bytes.find('/') != std::string::npos) continue;
            SCOPED_TRACE(name.label);
            ASSERT_EQ(Write(folder.File(name.bytes)), S_OK) << said;
            EXPECT_EQ(ReadFile(folder.File(name.bytes)), deck);
            made.push_back(name.bytes);
        }
    }
    std::ranges::sort(made);
    EXPECT_EQ(folder.Names(), made);
}

TEST_F(OutputFiles, DecksAreMadeInFoldersOfThoseNames)
{
    for (const HostileNames* const names : {&StorableFileNames(), &ForeignFileNames()}) {
        for (const HostileName& name : *names) {
            SCOPED_TRACE(name.label);
            std::filesystem::create_directory(folder.File(name.bytes));
            EXPECT_EQ(Write(folder.File(name.bytes) + "/job.inp"), S_OK) << said;
            EXPECT_TRUE(FileExists(folder.File(name.bytes) + "/job.inp"));
        }
    }
    EXPECT_EQ(folder.Names().size(), StorableFileNames().size() + ForeignFileNames().size());
}

TEST_F(OutputFiles, DecksAreRefusedUnderNamesThatAreNone)
{
    HostileNames names = ImpossibleFileNames();
    for (const HostileName& name : UnstorableNames()) {
        if (name.bytes.find('\0') != std::string::npos) names.push_back(name);
    }
    for (const HostileName& name : names) {
        for (const std::string& path : {name.bytes, folder.File(name.bytes)}) {
            SCOPED_TRACE(name.label);
            EXPECT_LT(Write(path), 0);
            EXPECT_TRUE(said.starts_with("vex: HLXIIfwTraverser::WriteInputFile: '"));
            EXPECT_EQ(std::ranges::count(said, '\n'), 1);
        }
    }
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(OutputFiles, ThePathOfADeckIsNeverCut)
{
    for (const std::size_t size : {4095U, 4096U, 4097U, 1U << 20U}) {
        EXPECT_LT(Write(folder.Path() + Repeated("/.", size) + "/job.inp"), 0) << size;
        EXPECT_LT(Write(folder.File(Repeated("x/", size) + "job.inp")), 0) << size;
    }
    EXPECT_THAT(folder.Names(), IsEmpty());
}

class TestCaseFiles : public OutputFiles
{
protected:
    TestCaseFiles()
    {
        testCase._OutputDirectory = VEXUnicodeString(folder.Path());
        testCase._Document = analysis.Document();
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, analysis.Document()), S_OK);
        EXPECT_EQ(testCase.InitializeNavigateObject(manager), S_OK);
    }
    ~TestCaseFiles() override { testCase._Document = nullptr; }

    ExposedTestCase testCase;
};

TEST_F(TestCaseFiles, DumpsAreMadeUnderExactlyTheirName)
{
    std::vector<std::string> made;
    for (const HostileNames* const names : {&StorableFileNames(), &ForeignFileNames()}) {
        for (const HostileName& name : *names) {
            char mode[] = "w";
            testCase.SetDumpTreeParameters(name.bytes.c_str(), name.bytes.c_str());
            testCase.DumpFeatTree(mode);
            EXPECT_EQ(ReadFile(folder.File(name.bytes)),
                      name.bytes + ":\n\n" + analysis.Dump() + "\n")
                << name.label;
            made.push_back(name.bytes);
        }
    }
    std::ranges::sort(made);
    EXPECT_EQ(folder.Names(), made);
}

TEST_F(TestCaseFiles, DocumentsAreSavedUnderTheWholeNameOrNotAtAll)
{
    const Captured captured = Capture([&] {
        for (const HostileName& name : UnstorableNames()) {
            testCase.SaveAsDocument(testCase._Document, VEXUnicodeString(name.bytes));
        }
    });
    EXPECT_EQ(std::ranges::count(captured.err, '\n'), std::ssize(UnstorableNames()))
        << captured.err;
    EXPECT_THAT(folder.Names(), IsEmpty());
    for (const HostileName& name : StorableFileNames()) {
        testCase.SaveAsDocument(testCase._Document, VEXUnicodeString(name.bytes));
        EXPECT_EQ(analysis.Document()->StorageName().View(), folder.File(name.bytes)) << name.label;
    }
    EXPECT_EQ(folder.Names().size(), StorableFileNames().size());
}

}  // namespace

}  // namespace hlxtest
