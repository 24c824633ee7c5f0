// SPDX-License-Identifier: Apache-2.0
// Hostile names in the environment: the settings store, trace and counts, the catalogue's folder.
#include "host/system/SettingsStore.h"
#include "names/ProgramFolders.h"

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class EnvironmentNames : public ProgramFolders
{
protected:
    EnvironmentNames() { Empty("out"); }

    Ended FileDump(const std::vector<std::string>& environment, const std::string& current)
    {
        return RunProgram({Program("HLXFileDump"), folder.Path(), "sample.VEXAnalysis",
                           folder.File("out"), "job.inp"},
                          {environment, current});
    }
};

/// Foreign names, and those that are as long as a name can be; the others stand on command lines
/// too (CommandLineNames).
TEST_F(EnvironmentNames, SettingsTraceAndCountsAreFilesOfExactlyThatName)
{
    const std::string settings = Empty("settings");
    const std::string trace = Empty("trace");
    const std::string counts = Empty("counts");
    std::vector<std::string> made;
    for (const HostileNames* const names : {&StorableFileNames(), &ForeignFileNames()}) {
        for (const HostileName& name : *names) {
            const bool isForeign = names == &ForeignFileNames();
            if (!isForeign && name.bytes.size() + 20 < 247) continue;
            if (name.bytes.find('/') != std::string::npos) continue;
            SCOPED_TRACE(name.label);
            // The settings without a folder: none but the current one is meant.
            const Ended ended =
                FileDump({"VEX_SETTINGS=" + name.bytes, "VEX_TRACE=" + trace + "/" + name.bytes,
                          "VEX_COUNTS=../counts/" + name.bytes},
                         settings);
            EXPECT_EQ(ended.code, 0) << ended.err;
            EXPECT_EQ(ended.err, "");
            made.push_back(name.bytes);
        }
    }
    made = Sorted(std::move(made));
    EXPECT_EQ(NamesIn(settings), made);
    EXPECT_EQ(NamesIn(trace), made);
    EXPECT_EQ(NamesIn(counts), made);
    EXPECT_THAT(NamesIn(folder.Path()),
                ElementsAre("counts", "out", "sample.VEXAnalysis", "settings", "trace"));
}

TEST(SettingsStoreNames, WithoutAFolderAreFilesOfTheCurrentOne)
{
    const TemporaryFolder folder;
    const std::filesystem::path former = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    for (const HostileName& name : StorableFileNames()) {
        SCOPED_TRACE(name.label);
        std::string error;
        vex::system::SettingsStore store(name.bytes);
        EXPECT_TRUE(store.Set(name.bytes, name.bytes, error)) << error;
        EXPECT_TRUE(store.Commit(error)) << error;
        vex::system::SettingsStore again(name.bytes);
        EXPECT_TRUE(again.Load(error)) << error;
        EXPECT_EQ(again.Get(name.bytes), name.bytes);
    }
    std::filesystem::current_path(former);
    EXPECT_EQ(folder.Names().size(), StorableFileNames().size());
    for (const HostileName& name : StorableFileNames()) {
        EXPECT_TRUE(FileExists(folder.File(name.bytes))) << name.label;
    }
}

TEST_F(EnvironmentNames, AFileThatCannotBeMadeEndsTheProgramBeforeItRuns)
{
    const std::string current = Empty("current");
    for (const char* const variable : {"VEX_TRACE", "VEX_COUNTS"}) {
        for (const std::string& name :
             {std::string("."), std::string(".."), std::string("none/a\n"), std::string("a\xFF/"),
              std::string(256, 'x'), std::string(256, '\n'), Repeated("./", 4096) + "a"}) {
            const Ended ended = FileDump({std::string(variable) + "=" + name}, current);
            EXPECT_EQ(ended.code, 2) << testing::PrintToString(name);
            EXPECT_EQ(ended.out, "");
            EXPECT_THAT(ended.err, testing::StartsWith(std::string(variable) + ": '"));
            EXPECT_THAT(ended.err, testing::EndsWith("Name a file that can be made.\n"));
            ExpectPlainLines(ended.err);
            EXPECT_THAT(NamesIn(current), IsEmpty());
            EXPECT_THAT(NamesIn(folder.File("out")), IsEmpty());
        }
    }
}

TEST_F(EnvironmentNames, ASettingsStoreThatCannotBeIsToldAndNotMadeElsewhere)
{
    const std::string current = Empty("current");
    for (const std::string& name :
         {std::string("."), std::string(".."), std::string("a/"), std::string("/"),
          std::string(248, 'x'), std::string(248, '\n'), std::string("a.VEXSettings.a1b2c3~")}) {
        const Ended ended = FileDump({"VEX_SETTINGS=" + name}, current);
        EXPECT_THAT(ended.err, HasSubstr("vex: ")) << testing::PrintToString(name);
        ExpectPlainLines(ended.err);
        EXPECT_THAT(NamesIn(current), IsEmpty()) << testing::PrintToString(name);
    }
}

/// A colon separates folders, so that no folder can have one in its name.
TEST_F(EnvironmentNames, TheCatalogueIsReadInExactlyThatFolder)
{
    const std::string catalogue = "HLXHacCatalog.VEXfct";
    for (const HostileNames* const names : {&StorableFileNames(), &ForeignFileNames()}) {
        for (const HostileName& name : *names) {
            if (name.bytes.find(':') != std::string::npos) continue;
            if (name.bytes.find('/') != std::string::npos) continue;
            SCOPED_TRACE(name.label);
            const std::string folders = Empty("folders");
            std::filesystem::create_directory(folders + "/" + name.bytes);
            WriteFile(folders + "/" + name.bytes + "/" + catalogue, "this is no TOML\n");
            const Ended ended = RunProgram({Program("hlx"), "tree", "../sample.VEXAnalysis"},
                                           {{"VEX_CATALOG_PATH=" + name.bytes}, folders});
            EXPECT_EQ(ended.code, 1);
            EXPECT_THAT(ended.err, HasSubstr(catalogue));
            EXPECT_THAT(ended.err, HasSubstr("correct the line"));
            ExpectPlainLines(ended.err);
        }
    }
}

}  // namespace

}  // namespace hlxtest
