// SPDX-License-Identifier: Apache-2.0
// Hostile names on the command lines of HLXFileDump and hlx.
#include "names/ProgramFolders.h"

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kLongestEnding = 13;  // "_FeatTree.txt"
const std::string kStep = HLX_SOURCE_DIR "/tests/reference/topology/data/block.step";

class CommandLineNames : public ProgramFolders
{
protected:
    static Ended FileDump(const std::vector<std::string>& arguments, const std::string& current,
                          const std::vector<std::string>& environment = {})
    {
        std::vector<std::string> command = {Program("HLXFileDump")};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return RunProgram(command, {environment, current});
    }

    static Ended Hlx(const std::vector<std::string>& arguments, const std::string& current)
    {
        std::vector<std::string> command = {Program("hlx")};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return RunProgram(command, {{}, current});
    }
};

TEST_F(CommandLineNames, FileDumpReadsAndWritesExactlyTheNamedFilesSettingsTraceAndCountsToo)
{
    Place(Empty("in") + "/a");
    ASSERT_EQ(FileDump({folder.File("in"), "a", Empty("out"), "a"}, folder.Path()).code, 0);
    const std::string deck = ReadFile(folder.File("out/a"));
    const std::string title = "Feature Tree Dump:\n\n";
    const std::string tree = ReadFile(folder.File("out/a_FeatTree.txt"));
    const std::string dump = tree.substr(tree.find(title));
    for (const HostileName& name : WithRoom(StorableFileNames(), kLongestEnding)) {
        SCOPED_TRACE(name.label);
        const std::string in = Empty("in");
        const std::string out = Empty("out");
        Place(in + "/" + name.bytes);
        // Without a folder: no file but in the current one is meant.
        const Ended ended =
            FileDump({in, name.bytes, "", name.bytes}, out,
                     {"VEX_SETTINGS=../" + Empty("settings", name.bytes),
                      "VEX_TRACE=" + folder.File(Empty("trace", name.bytes)) + ".json",
                      "VEX_COUNTS=" + folder.File(Empty("counts", name.bytes))});
        EXPECT_EQ(ended.code, 0) << ended.err;
        EXPECT_EQ(ended.err, "");
        EXPECT_EQ(NamesIn(out), Sorted({name.bytes, name.bytes + "_FeatTree.txt"}));
        EXPECT_EQ(ReadFile(out + "/" + name.bytes), deck);
        EXPECT_EQ(ReadFile(out + "/" + name.bytes + "_FeatTree.txt"), "   " + name.bytes + dump);
        for (const char* const each : {"in", "settings", "counts"}) {
            EXPECT_THAT(NamesIn(folder.File(each)), ElementsAre(name.bytes)) << each;
        }
        EXPECT_THAT(NamesIn(folder.File("trace")), ElementsAre(name.bytes + ".json"));
        ExpectTheNameIn(folder.File("trace/") + name.bytes + ".json", name.bytes);
    }
}

TEST_F(CommandLineNames, FileDumpWritesUnderForeignNamesToo)
{
    Place(Empty("in") + "/a");
    for (const HostileName& name : ForeignFileNames()) {
        SCOPED_TRACE(name.label);
        const std::string out = Empty("out");
        const Ended ended = FileDump({folder.File("in"), "a", out, name.bytes}, folder.Path());
        EXPECT_EQ(ended.code, 0) << ended.err;
        if (name.bytes.find('/') == std::string::npos) {
            EXPECT_EQ(NamesIn(out), Sorted({name.bytes, name.bytes + "_FeatTree.txt"}));
        }
    }
}

TEST_F(CommandLineNames, HlxShowsExactlyTheNamedDocument)
{
    Place(folder.File("a"));
    const Ended expected = Hlx({"tree", "a"}, folder.Path());
    ASSERT_EQ(expected.code, 0) << expected.err;
    const std::string current = Empty("current");
    for (const HostileName& name : StorableFileNames()) {
        SCOPED_TRACE(name.label);
        Place(current + "/" + name.bytes);
        EXPECT_EQ(Hlx({"tree", "--", name.bytes}, current), expected);
        EXPECT_THAT(NamesIn(current), ElementsAre(name.bytes));
        std::filesystem::remove(current + "/" + name.bytes);
    }
}

TEST_F(CommandLineNames, ThatCannotBeAreRefusedInPlainLinesAndMakeNothing)
{
    HostileNames names = ForeignFileNames();
    for (const HostileName& name : ImpossibleFileNames()) {
        // The system takes no argument of a mebibyte.
        if (name.bytes.size() < 1000) names.push_back(name);
    }
    names.push_back({"4096 bytes", Repeated("x/", 4096)});
    names.push_back({"100,000 bytes", Repeated("x/", 100'000)});
    for (const HostileName& name : names) {
        SCOPED_TRACE(name.label);
        const std::string current = Empty("current");
        const std::string out = Empty("out");
        for (const char* const command : {"tree", "info"}) {
            const Ended ended = Hlx({command, "--", name.bytes}, current);
            EXPECT_EQ(ended.code, name.bytes.empty() ? ended.code : 1);
            EXPECT_NE(ended.code, 0);
            EXPECT_EQ(ended.out, "");
            EXPECT_THAT(ended.err, testing::HasSubstr("hlx: "));
            ExpectPlainLines(ended.err);
        }
        const Ended made = Hlx({"new", "--from", kStep, "--", name.bytes}, current);
        EXPECT_NE(made.code, 0);
        ExpectPlainLines(made.err);
        const Ended dumped = FileDump({"", name.bytes, out, "job.inp"}, current);
        EXPECT_EQ(dumped.code, 1);
        ExpectPlainLines(dumped.err);
        EXPECT_THAT(NamesIn(current), IsEmpty());
        EXPECT_THAT(NamesIn(out), IsEmpty());
    }
}

TEST_F(CommandLineNames, FileDumpWritesNoDeckUnderANameThatIsNone)
{
    Place(Empty("in") + "/a");
    for (const HostileName& name : ImpossibleFileNames()) {
        if (name.bytes.size() >= 1000) continue;  // no argument can be so long
        SCOPED_TRACE(name.label);
        const std::string out = Empty("out");
        const std::string current = Empty("current");
        const Ended ended = FileDump({folder.File("in"), "a", out, name.bytes}, current);
        EXPECT_THAT(ended.out, testing::HasSubstr("Input file writing failed"));
        EXPECT_THAT(ended.err, testing::StartsWith("vex: HLXIIfwTraverser::WriteInputFile: "));
        ExpectPlainLines(ended.err);
        for (const std::string& made : NamesIn(out)) {
            EXPECT_TRUE(made.ends_with("_FeatTree.txt")) << testing::PrintToString(made);
        }
        EXPECT_THAT(NamesIn(current), IsEmpty());
        EXPECT_THAT(NamesIn(folder.File("in")), ElementsAre("a"));
    }
}

/// Reading STEP takes its time: every twelfth name.
TEST_F(CommandLineNames, HlxMakesExactlyTheNamedDocument)
{
    const HostileNames names = WithRoom(StorableFileNames(), 12);
    for (std::size_t i = 0; i < names.size(); i += 12) {
        const std::string& name = names[i].bytes;
        SCOPED_TRACE(names[i].label);
        const std::string current = Empty("current");
        std::filesystem::copy_file(kStep, current + "/" + name);
        const std::string document = name + ".VEXAnalysis";
        const Ended ended = Hlx({"new", "--from=" + name, "--", document}, current);
        ASSERT_EQ(ended.code, 0) << ended.err;
        ExpectPlainLines(ended.err);
        std::vector<std::string> made = NamesIn(current);
        std::erase(made, name);
        std::erase(made, document);
        ASSERT_EQ(made.size(), 1U) << testing::PrintToString(made);
        EXPECT_TRUE(made[0].ends_with(".VEXPart"));
        const Ended shown = Hlx({"info", "./" + document}, current);
        EXPECT_EQ(shown.code, 0) << shown.err;
        ExpectPlainLines(shown.out);
        EXPECT_THAT(shown.out, testing::HasSubstr("\nlinked to: \""));
    }
}

}  // namespace

}  // namespace hlxtest
