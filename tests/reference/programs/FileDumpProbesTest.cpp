// SPDX-License-Identifier: Apache-2.0
// HLXFileDump seen and broken through the environment, and what it does not load.
#include "reference/programs/SampleAnalysis.h"
#include "support/AnalysisDocuments.h"

#include <fmt/format.h>

namespace hlxtest {

namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class FileDumpProbesTest : public testing::Test
{
protected:
    FileDumpProbesTest() { StoreAnalysisDocument(folder.File("sample.VEXAnalysis"), 2); }

    Ended Run(const std::vector<std::string>& environment)
    {
        return RunFileDump(folder.Path(), output.Path(), {environment});
    }

    TemporaryFolder folder;
    TemporaryFolder output;
    TemporaryFolder seen;
};

TEST_F(FileDumpProbesTest, TheTraceHasEveryCallInOrder)
{
    const std::string trace = seen.File("trace.txt");
    EXPECT_EQ(Run({"VEX_TRACE=" + trace}),
              (Ended{0, DumpMessages(folder.Path(), output.Path()), ""}));
    const std::string text = ReadFile(trace);
    const std::string document = folder.File("sample.VEXAnalysis");
    std::size_t place = 0;
    for (const std::string& call : {
             fmt::format("VEXMakePath(\"{}\", \"job.inp\", &) -> S_OK ", output.Path()),
             fmt::format("VEXDocumentServices::OpenDocument(\"{}\", &, 0) -> S_OK ", document),
             std::string("GetZPKWBGeneralSettingCtrl("),
             std::string("HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(0) -> S_OK"),
             std::string("VEXISamAccess::GetSpecContainer(&) -> S_OK"),
             std::string("VEXISamAnalysisModel::GetAnalysisCases(&) -> S_OK"),
             std::string("HLXZPKVersionManager::HandleZPKVersioning("),
             std::string("VEXSplitPath("),
             std::string("DumpFeatureTree("),
             std::string("VEXFOpen("),
             fmt::format("HLXIIfwTraverser::WriteInputFile(\"{}\", [1]) -> S_OK",
                         output.File("job.inp_case_1")),
             fmt::format("HLXIIfwTraverser::WriteInputFile(\"{}\", [1]) -> S_OK",
                         output.File("job.inp_case_2")),
             std::string("VEXDocumentServices::Remove(VEXAnalysis, 1) -> S_OK"),
             std::string("HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(1) -> S_OK"),
         }) {
        const std::size_t found = text.find("\n" + call, place == 0 ? 0 : place);
        const std::size_t next = place == 0 && text.starts_with(call) ? 0 : found;
        ASSERT_NE(next, std::string::npos) << call << " is not in the rest of " << text;
        place = next + 1;
    }
}

TEST_F(FileDumpProbesTest, TheTraceOfEventsIsValid)
{
    const std::string trace = seen.File("trace.json");
    EXPECT_EQ(Run({"VEX_TRACE=" + trace}).code, 0);
    const Ended checked = RunProgram(
        {"/usr/bin/env", "python3", "-c",
         "import json, sys\n"
         "events = json.load(open(sys.argv[1]))\n"
         "print(all(e['ph'] == 'X' and e['dur'] >= 0 and not e['args']['broken'] for e in "
         "events))\n"
         "print(sum(e['name'] == 'HLXIIfwTraverser::WriteInputFile' for e in events))\n"
         "print(*[e['args']['arguments'] for e in events if e['name'] == 'VEXSplitPath'])\n",
         trace});
    EXPECT_EQ(checked,
              (Ended{0, "True\n2\n['\"" + output.File("job.inp") + "\"', '&', '&']\n", ""}));
}

TEST_F(FileDumpProbesTest, TheCountsAreOfEachOperationAndNothingIsHeld)
{
    const std::string counts = seen.File("counts.txt");
    EXPECT_EQ(Run({"VEX_COUNTS=" + counts}).code, 0);
    const std::string text = ReadFile(counts);
    EXPECT_THAT(text, AllOf(StartsWith("calls\n"), HasSubstr("\n         1 VEXFWrite\n"),
                            HasSubstr("\n         2 HLXIIfwTraverser::WriteInputFile\n"),
                            HasSubstr("\n         1 VEXDocumentServices::Remove\n"),
                            testing::EndsWith("\nobjects still held\n")));
}

TEST_F(FileDumpProbesTest, ABrokenCallIsWhatTheProgramMeets)
{
    EXPECT_EQ(Run({"VEX_FAULTS=VEXFOpen=E_FAIL"}),
              (Ended{0, DumpMessages(folder.Path(), output.Path()), ""}));
    EXPECT_THAT(output.Names(), ElementsAre("job.inp_case_1", "job.inp_case_2"));

    const Ended refused = Run({"VEX_FAULTS=VEXDocumentServices::OpenDocument=E_FAIL"});
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.out, testing::EndsWith("\nERROR in opening document" +
                                               folder.File("sample.VEXAnalysis") + "\n"));

    const Ended early = Run({"VEX_FAULTS=HLXZPKVersionManager::HandleZPKVersioning=-5"});
    EXPECT_EQ(early.code, 1);
    EXPECT_THAT(early.out, Not(HasSubstr("PostProcess")));

    const Ended stays = Run({"VEX_FAULTS=VEXDocumentServices::Remove=E_FAIL"});
    EXPECT_EQ(stays.code, 1);
    EXPECT_THAT(stays.out, testing::EndsWith("\n In HLXBaseTestCase::PostProcess() \n"
                                             "Failure removing the document."));
}

TEST_F(FileDumpProbesTest, AWrongSettingEndsTheProgramBeforeItDoesAnything)
{
    for (const char* const wrong :
         {"VEX_FAULTS=VEXNoSuchCall=E_FAIL", "VEX_FAULTS=VEXFOpen", "VEX_FAULTS=VEXFOpen=null",
          "VEX_FAULTS=VEXFOpen#0=E_FAIL", "VEX_FAULTS=VEXFOpen=E_NOSUCHCODE",
          "VEX_FAULTS=VEXFOpen=E_FAIL;;VEXFClose", "VEX_TRACE=/nowhere/trace.txt",
          "VEX_COUNTS=/nowhere/counts.txt"}) {
        const Ended ended = Run({wrong});
        EXPECT_EQ(ended.code, 2) << wrong;
        EXPECT_EQ(ended.out, "") << wrong;
        EXPECT_THAT(ended.err, AnyOf(StartsWith("VEX_FAULTS: fault "), StartsWith("VEX_TRACE: '"),
                                     StartsWith("VEX_COUNTS: '")))
            << wrong;
    }
    EXPECT_THAT(output.Names(), IsEmpty());
}

// --- Libraries ----------------------------------------------------------------------------------

/// What the dynamic linker tells of the libraries that a program loads.
std::string LibrariesOf(const std::vector<std::string>& command)
{
    const TemporaryFolder folder;
    EXPECT_EQ(
        RunProgram(command, {{"LD_DEBUG=files", "LD_DEBUG_OUTPUT=" + folder.File("files")}}).code,
        0);
    std::string text;
    for (const std::string& name : folder.Names()) {
        text += ReadFile(folder.File(name));
    }
    return text;
}

TEST(LoadedLibraries, TheGeometryKernelIsLoadedForGeometryOnly)
{
    const SampleAnalysis sample(1);
    EXPECT_THAT(LibrariesOf({Program("HLXFileDump"), sample.Input(), "sample.VEXAnalysis",
                             sample.Output(), "job.inp"}),
                AllOf(HasSubstr("libHLXIfwExportTraverser.so"), Not(HasSubstr("libTK")),
                      Not(HasSubstr("libVEXTopology")), Not(HasSubstr("libVEXStepReader"))));
    EXPECT_THAT(LibrariesOf({Program("hlx"), "info", sample.Input() + "/sample.VEXAnalysis"}),
                AllOf(HasSubstr("libVEXHost.so"), Not(HasSubstr("libTK"))));
    EXPECT_THAT(LibrariesOf({Program("hlx"), "info", sample.Input() + "/Bolt.VEXPart"}),
                AllOf(HasSubstr("libVEXTopology.so"), HasSubstr("libTK")));
}

}  // namespace

}  // namespace hlxtest
