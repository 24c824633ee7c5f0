// SPDX-License-Identifier: Apache-2.0
// `hlx` where the platform fails it or its surroundings do: a message and exit code 1, no crash.
#include "reference/programs/SampleAnalysis.h"

namespace hlxtest {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// Runs a command line of the shell with the program as $0 and the arguments as $1, $2, ...
Ended Shell(const std::string& line, std::vector<std::string> arguments,
            const std::string& program = Program("hlx"))
{
    arguments.insert(arguments.begin(), {"/bin/sh", "-c", line, program});
    return RunProgram(arguments);
}

// --- Surroundings -------------------------------------------------------------------------------

TEST(HlxFailure, LostOutputIsAFailure)
{
    const SampleAnalysis sample(1);
    const std::string document = sample.Input() + "/sample.VEXAnalysis";
    for (const char* const line :
         {"exec \"$0\" info \"$1\" >/dev/full", "exec \"$0\" info \"$1\" >&-",
          "exec \"$0\" tree \"$1\" >/dev/full", "exec \"$0\" probes >/dev/full",
          "exec \"$0\" --help >/dev/full"}) {
        const Ended ended = Shell(line, {document});
        EXPECT_EQ(ended.code, 1) << line;
        EXPECT_THAT(ended.err, HasSubstr("standard output could not be written")) << line;
    }
    const std::vector<std::string> dump = {sample.Input(), "sample.VEXAnalysis", sample.Output(),
                                           "job.inp"};
    for (const char* const line :
         {"exec \"$0\" \"$@\" >/dev/full", "exec \"$0\" --help >/dev/full"}) {
        const Ended ended = Shell(line, dump, Program("HLXFileDump"));
        EXPECT_EQ(ended.code, 1) << line;
        EXPECT_THAT(ended.err, HasSubstr("standard output could not be written")) << line;
    }
}

TEST(HlxFailure, NewWorksWithoutStandardError)
{
    const TemporaryFolder folder;
    const Ended ended = Shell("exec \"$0\" new \"$1\" --from \"$2\" 2>&-",
                              {folder.File("a.VEXAnalysis"), kSampleStep});
    EXPECT_EQ(ended.code, 0);
    EXPECT_TRUE(FileExists(folder.File("a.VEXAnalysis")));
}

TEST(HlxFailure, NewRefusesAFolderThatIsGone)
{
    const TemporaryFolder folder;
    const Ended ended = Shell(
        "mkdir \"$1/gone\" && cd \"$1/gone\" && rmdir \"$1/gone\" && "
        "exec \"$0\" new a.VEXAnalysis --from \"$2\"",
        {folder.Path(), kSampleStep});
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(ended.err, HasSubstr("'a.VEXAnalysis': the current folder cannot be had"));
}

TEST(HlxFailure, NewRefusesNamesThatAreTooLong)
{
    const TemporaryFolder folder;
    const std::string longName(300, 'x');
    for (const std::string& out : {longName + ".VEXAnalysis", longName + "/a.VEXAnalysis"}) {
        const Ended ended =
            RunProgram({Program("hlx"), "new", folder.File(out), "--from", kSampleStep});
        EXPECT_EQ(ended.code, 1) << ended.err;
        EXPECT_THAT(ended.err, HasSubstr("name"));
        EXPECT_THAT(folder.Names(), IsEmpty());
    }
}

TEST(HlxFailure, NoNameForgesALine)
{
    const std::string forged = "a\nhlx: forged";
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {"info", forged},
             {"info", "a", forged},
             {"new", forged, "--from", kSampleStep},
             {"new", forged + ".VEXAnalysis", "--from", forged},
             {"new", "a.VEXAnalysis", "--from", kSampleStep, "--steps", forged}}) {
        std::vector<std::string> command = arguments;
        command.insert(command.begin(), Program("hlx"));
        const TemporaryFolder folder;
        const Ended ended = RunProgram(command, {{}, folder.Path()});
        EXPECT_NE(ended.code, 0);
        EXPECT_THAT(ended.err, Not(HasSubstr("\nhlx: forged"))) << ended.err;
        EXPECT_THAT(ended.err, HasSubstr("a\\nhlx: forged"));
    }
}

// --- The platform -------------------------------------------------------------------------------

struct Broken
{
    const char* fault;
    const char* reason;  ///< stands in what is on standard error
};

TEST(HlxFailure, NewTellsWhatThePlatformDidNotGive)
{
    for (const Broken& row : std::vector<Broken>{
             {"VEXDocumentServices::New", "an analysis document cannot be made"},
             {"VEXDocumentServices::OpenDocument", "cannot be opened"},
             {"HLXAnalysisDocUtils::GetAnalysisManager", "the analysis manager"},
             {"VEXISamAnalysisManager::GetDocumentManager", "the links of the document"},
             {"VEXInstantiateComponent", "the factory of analysis cases"},
             {"HLXIHacAnalysisCaseFact::CreateAnalysisCase", "the analysis case cannot be made"}}) {
        for (const char* const outcome : {"=null", "=E_FAIL"}) {
            const TemporaryFolder folder;
            const std::string fault = std::string("VEX_FAULTS=") + row.fault + outcome;
            const Ended ended = RunProgram(
                {Program("hlx"), "new", folder.File("a.VEXAnalysis"), "--from", kSampleStep},
                {{fault}, ""});
            EXPECT_EQ(ended.code, 1) << fault;
            EXPECT_THAT(ended.err, HasSubstr(std::string("hlx: "))) << fault;
            EXPECT_THAT(ended.err, HasSubstr(row.reason)) << fault;
            EXPECT_FALSE(FileExists(folder.File("a.VEXAnalysis"))) << fault;
        }
    }
}

struct BrokenShow
{
    const char* command;
    const char* document;
    const char* fault;
};

TEST(HlxFailure, WhatCannotBeShownIsTold)
{
    const SampleAnalysis sample(1, "GSS");
    for (const BrokenShow& row : std::vector<BrokenShow>{
             {"info", "sample.VEXAnalysis", "VEXDocumentServices::OpenDocument=null"},
             {"info", "sample.VEXAnalysis", "HLXAnalysisDocUtils::GetAnalysisManager=null"},
             {"info", "sample.VEXAnalysis", "VEXISamAnalysisManager::GetDocumentManager=null"},
             {"info", "sample.VEXAnalysis", "VEXISamDocumentManager::GetLinkedDocuments=E_FAIL"},
             {"info", "sample.VEXAnalysis", "VEXISamAnalysisManager::GetAllAnalysisModels=E_FAIL"},
             {"info", "sample.VEXAnalysis", "VEXISamAnalysisModel::GetAnalysisCases=E_FAIL"},
             {"info", "sample.VEXAnalysis", "VEXISamAnalysisCase::GetAnalysisSets=E_FAIL"},
             {"info", "sample.VEXAnalysis", "cast:*->VEXISamAnalysisModel=null"},
             {"info", "sample.VEXAnalysis", "cast:*->VEXISamAnalysisCase=null"},
             {"info", "sample.VEXAnalysis", "cast:*->VEXISpecObject=null"},
             {"info", "sample.VEXAnalysis", "cast:*->VEXIAlias=null"},
             {"info", "sample.VEXProduct", "VEXIDocRoots::GetRoots=null"},
             {"info", "sample.VEXProduct", "cast:*->VEXIDocRoots=null"},
             {"info", "sample.VEXProduct", "cast:*->VEXIProduct=null"},
             {"info", "sample.VEXProduct", "VEXIProduct::GetChildren=null"},
             {"tree", "sample.VEXAnalysis", "HLXAnalysisDocUtils::GetAnalysisManager=null"},
             {"tree", "sample.VEXAnalysis", "VEXISamAnalysisManager::GetAllAnalysisModels=E_FAIL"},
             {"tree", "sample.VEXAnalysis", "cast:*->VEXINavigateObject=null"},
             {"tree", "sample.VEXAnalysis", "DumpFeatureTree=E_FAIL"},
             {"tree", "sample.VEXAnalysis", "DumpFeatureTree=null"},
             {"tree", "sample.VEXProduct", "VEXIDocRoots::GetRoots=null"},
             {"tree", "sample.VEXProduct", "cast:*->VEXINavigateObject=null"},
             {"tree", "Bolt.VEXPart", "cast:*->VEXINavigateObject=null"}}) {
        const Ended ended =
            RunProgram({Program("hlx"), row.command, sample.Input() + "/" + row.document},
                       {{std::string("VEX_FAULTS=") + row.fault}, ""});
        EXPECT_EQ(ended.code, 1) << row.command << ' ' << row.fault << '\n' << ended.err;
        EXPECT_THAT(ended.err, HasSubstr("hlx: ")) << row.command << ' ' << row.fault;
    }
}

TEST(HlxFailure, ALinkedDocumentThatIsGoneIsTold)
{
    const SampleAnalysis sample(1);
    std::filesystem::remove(sample.Input() + "/sample.VEXProduct");
    const Ended ended =
        RunProgram({Program("hlx"), "info", sample.Input() + "/sample.VEXAnalysis"});
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(ended.out, HasSubstr("\nlinked to: a document that cannot be opened\nmodel "));
    EXPECT_THAT(ended.out, HasSubstr("\n    step \"Initial\""));
}

}  // namespace

}  // namespace hlxtest
