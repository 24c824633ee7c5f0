// SPDX-License-Identifier: Apache-2.0
// `hlx`: what it makes and shows of the sample, its help, and what it says when it cannot.
#include "reference/programs/SampleAnalysis.h"
#include "support/AnalysisDocuments.h"

namespace hlxtest {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

Ended Hlx(std::vector<std::string> arguments, const Surroundings& surroundings = {})
{
    arguments.insert(arguments.begin(), Program("hlx"));
    return RunProgram(arguments, surroundings);
}

// --- new, info, tree ----------------------------------------------------------------------------

TEST(HlxProgram, MakesTheDocumentsOfASampleAndShowsThem)
{
    const SampleAnalysis sample(1, "GSS,HTS");
    EXPECT_THAT(NamesOf(FilesIn(sample.Input())),
                ElementsAre("Bolt.VEXPart", "Bracket.VEXPart", "Plate.VEXPart",
                            "sample.VEXAnalysis", "sample.VEXProduct"));
    const std::string in = sample.Input() + "/";

    EXPECT_EQ(Hlx({"info", in + "sample.VEXAnalysis"}),
              (Ended{0,
                     "type: VEXAnalysis\n"
                     "data version: 1\n"
                     "features: 23\n"
                     "linked to: \"" +
                         in +
                         "sample.VEXProduct\"\n"
                         "model \"Finite Element Model.1\"\n"
                         "  case \"Analysis Case.1\"\n"
                         "    step \"Initial\" (HLXHacInitialStepLT)\n"
                         "    step \"General_Static_Step_1\" (HLXGeneralStaticStepLT)\n"
                         "    step \"Heat_Transfer_Step_2\" (HLXHeatTransferStepLT)\n",
                     ""}));
    EXPECT_EQ(Hlx({"info", in + "sample.VEXProduct"}),
              (Ended{0,
                     "type: VEXProduct\n"
                     "data version: 1\n"
                     "features: 7\n"
                     "product \"BracketAssembly\"\n"
                     "  product \"Bracket.1\" of \"Bracket\"\n"
                     "  product \"Plate.1\" of \"Plate\"\n"
                     "  product \"Bolt.1\" of \"Bolt\"\n"
                     "  product \"Bolt.2\" of \"Bolt\"\n",
                     ""}));
    const Ended part = Hlx({"info", in + "Bolt.VEXPart"});
    EXPECT_EQ(part.code, 0);
    EXPECT_THAT(part.out, StartsWith("type: VEXPart\ndata version: 1\nfeatures: 5\nbodies: 1\n"));
}

TEST(HlxProgram, ShowsTheTreeOfEveryKindOfDocument)
{
    const SampleAnalysis sample(1);
    const std::pair<const char*, const char*> rows[] = {
        {"sample.VEXAnalysis",
         "VEXSamAnalysisModel \"Finite Element Model.1\"\n"
         "  HLXHacAnalysisCaseLT \"Analysis Case.1\"\n"},
        {"sample.VEXProduct",
         "VEXProductNode \"BracketAssembly\" PartNumber=\"BracketAssembly\"\n"
         "  VEXProductNode \"Bracket.1\" PartNumber=\"Bracket\" "},
        {"Bolt.VEXPart",
         "VEXPart \"Bolt\" Geometry=1\n  VEXMechanicalTool \"Main Body\"\n    VEXImportedShape\n"}};
    for (const auto& [name, start] : rows) {
        const Ended tree = Hlx({"tree", sample.Input() + "/" + name});
        EXPECT_EQ(tree.code, 0) << name;
        EXPECT_EQ(tree.err, "") << name;
        EXPECT_THAT(tree.out, StartsWith(start)) << name;
    }
}

TEST(HlxProgram, TheTreeIsThatOfTheFileDump)
{
    const TemporaryFolder folder;
    StoreAnalysisDocument(folder.File("sample.VEXAnalysis"), 2);
    EXPECT_EQ(RunFileDump(folder.Path(), folder.Path()).code, 0);
    const Ended tree = Hlx({"tree", folder.File("sample.VEXAnalysis")});
    EXPECT_EQ(tree.code, 0);
    EXPECT_EQ("   job.inpFeature Tree Dump:\n\n" + tree.out + "\n",
              ReadFile(folder.File("job.inp_FeatTree.txt")));
}

TEST(HlxProgram, TheProbesAreListedWithTheirWaysToBreak)
{
    const Ended plain = Hlx({"probes"});
    EXPECT_EQ(plain.code, 0);
    EXPECT_THAT("\n" + plain.out,
                AllOf(HasSubstr("\nVEXFOpen  E_FAIL E_FAIL,keep\n"),
                      HasSubstr("\nHLXAnalysisDocUtils::GetDocument  null\n"),
                      HasSubstr("\nVEXIAlias::GetAlias  empty\n"), Not(HasSubstr("cast:"))));
    const Ended casts = Hlx({"probes", "--casts"});
    EXPECT_EQ(casts.code, 0);
    EXPECT_THAT(
        casts.out,
        AllOf(StartsWith(plain.out),
              HasSubstr("\ncast:VEXAnalysisDocument->VEXISamAccess  E_NOINTERFACE null\n")));
}

// --- Help ---------------------------------------------------------------------------------------

TEST(HlxProgram, EveryCommandExplainsItself)
{
    for (const char* const command : {"", "new", "tree", "info", "probes"}) {
        std::vector<std::string> arguments = {"--help"};
        if (*command != '\0') {
            arguments.insert(arguments.begin(), command);
        }
        const Ended ended = Hlx(arguments);
        EXPECT_EQ(ended.code, 0) << command;
        EXPECT_EQ(ended.err, "") << command;
        EXPECT_THAT(ended.out, AllOf(HasSubstr("Usage: hlx"), HasSubstr("exit codes: 0 done")))
            << command;
    }
    EXPECT_THAT(Hlx({"--help"}).out, AllOf(HasSubstr("\n  new "), HasSubstr("\n  tree "),
                                           HasSubstr("\n  info "), HasSubstr("\n  probes ")));
}

// --- Wrong command lines: 2; failures: 1, the reason on standard error, nothing made ------------

struct WrongLine
{
    const char* name;
    std::vector<std::string> arguments;
    const char* reason;  ///< stands in what is on standard error
};

void PrintTo(const WrongLine& line, std::ostream* stream)
{
    *stream << line.name;
}

class WrongLineTest : public testing::TestWithParam<WrongLine>
{};

TEST_P(WrongLineTest, IsExplained)
{
    const TemporaryFolder folder;
    const Ended ended = Hlx(GetParam().arguments, {{}, folder.Path()});
    EXPECT_EQ(ended.code, 2);
    EXPECT_EQ(ended.out, "");
    EXPECT_THAT(ended.err, HasSubstr(GetParam().reason));
    EXPECT_THAT(folder.Names(), IsEmpty());
}

const WrongLine wrongLines[] = {
    {"Nothing", {}, "subcommand is required"},
    {"UnknownCommand", {"polish"}, "polish"},
    {"UnknownOption", {"--polish"}, "--polish"},
    {"NoDocument", {"tree"}, "DOC is required"},
    {"TooMany", {"info", "a", "b"}, "not expected: b"},
    {"NoStepFile", {"new", "a.VEXAnalysis"}, "--from is required"},
    {"NoAnalysisName", {"new", "a.txt", "--from", kSampleStep}, "'a.txt' is no name"},
    {"NegativeCases", {"new", "a.VEXAnalysis", "--from", kSampleStep, "--cases", "-1"}, "--cases"},
    {"TooManyCases", {"new", "a.VEXAnalysis", "--from", kSampleStep, "--cases", "1001"}, "--cases"},
    {"CasesInWords", {"new", "a.VEXAnalysis", "--from", kSampleStep, "--cases", "two"}, "--cases"},
    {"UnknownStep",
     {"new", "a.VEXAnalysis", "--from", kSampleStep, "--steps", "GSS,XX"},
     "'XX' is no step code"},
};

INSTANTIATE_TEST_SUITE_P(HlxProgram, WrongLineTest, testing::ValuesIn(wrongLines),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HlxProgram, NewRefusesWhatItCannotReadOrMustNotReplace)
{
    const TemporaryFolder folder;
    const std::string out = folder.File("a.VEXAnalysis");
    const Ended missing = Hlx({"new", out, "--from", folder.File("none.step")});
    EXPECT_EQ(missing.code, 1);
    EXPECT_THAT(missing.err, HasSubstr("none.step': there is no such file"));

    WriteFile(folder.File("text.step"), "no STEP file\n");
    const Ended foreign = Hlx({"new", out, "--from", folder.File("text.step")});
    EXPECT_EQ(foreign.code, 1);
    EXPECT_THAT(foreign.err, HasSubstr("text.step"));

    const Ended nowhere = Hlx({"new", folder.File("b/a.VEXAnalysis"), "--from", kSampleStep});
    EXPECT_EQ(nowhere.code, 1);
    EXPECT_THAT(nowhere.err, HasSubstr(folder.File("b")));
    EXPECT_THAT(folder.Names(), ElementsAre("text.step"));

    WriteFile(out, "mine");
    const Ended existing = Hlx({"new", out, "--from", kSampleStep});
    EXPECT_EQ(existing.code, 1);
    EXPECT_THAT(existing.err, HasSubstr("'" + out + "' exists"));
    EXPECT_EQ(ReadFile(out), "mine");
    EXPECT_THAT(folder.Names(), ElementsAre("a.VEXAnalysis", "text.step"));
}

TEST(HlxProgram, ShowsNothingOfWhatIsNoSoundDocument)
{
    const TemporaryFolder folder;
    StoreAnalysisDocument(folder.File("sound.VEXAnalysis"), 1);
    const std::string sound = ReadFile(folder.File("sound.VEXAnalysis"));
    std::string changed = sound;
    changed.at(changed.find("Finite Element Model.1")) = 'f';
    WriteFile(folder.File("changed.VEXAnalysis"), changed);
    WriteFile(folder.File("short.VEXAnalysis"), sound.substr(0, sound.size() - 4096));
    WriteFile(folder.File("empty.VEXAnalysis"), "");
    WriteFile(folder.File("text.VEXAnalysis"), std::string(5000, 'x'));
    for (const char* const name : {"changed.VEXAnalysis", "short.VEXAnalysis", "empty.VEXAnalysis",
                                   "text.VEXAnalysis", "missing.VEXAnalysis"}) {
        for (const char* const command : {"tree", "info"}) {
            const Ended ended = Hlx({command, folder.File(name)});
            EXPECT_EQ(ended.code, 1) << command << ' ' << name;
            EXPECT_EQ(ended.out, "") << command << ' ' << name;
            EXPECT_THAT(ended.err, HasSubstr("'" + folder.File(name) + "': "));
        }
    }
}

}  // namespace

}  // namespace hlxtest
