// SPDX-License-Identifier: Apache-2.0
// Hostile texts in traces, as lines and as JSON, and in what hlx prints.
#include "host/feature/FeatureTree.h"
#include "names/ProgramFolders.h"
#include "support/Platform.h"

namespace hlxtest {

namespace {

/// A document whose one case has a step of each name.
class TracedNames : public ProgramFolders
{
protected:
    TracedNames()
    {
        NamedAnalysis analysis;
        vex::Feature& history = analysis.Only("HLXHacSimHistLT");
        names.push_back("");  // the step that the analysis has
        for (const HostileName& name : StorableNames()) {
            vex::Feature& step = history.Tree()->Create(
                vex::LateTypes::Instance().Require("HLXGeneralStaticStepLT"), &history);
            EXPECT_EQ(SetAlias(step, name.bytes), S_OK);
            names.push_back(name.bytes);
        }
        analysis.Reopen();
        std::filesystem::copy_file(analysis.Folder().File("names.VEXAnalysis"),
                                   folder.File("steps"));
    }

    /// Runs `hlx info` on it with that trace; answers what it printed.
    std::string Info(const std::string& trace)
    {
        const Ended ended =
            RunProgram({Program("hlx"), "info", "steps"}, {{"VEX_TRACE=" + trace}, folder.Path()});
        EXPECT_EQ(ended.code, 0) << ended.err;
        return ended.out;
    }

    /// The aliases of the steps among all that were asked for: model, case and initial step come
    /// first.
    static std::vector<std::string> OfSteps(const std::vector<std::string>& aliases)
    {
        EXPECT_GT(aliases.size(), 3U);
        return {aliases.begin() + std::min<std::ptrdiff_t>(3, std::ssize(aliases)), aliases.end()};
    }

    std::vector<std::string> names;
};

TEST_F(TracedNames, CanBeReadBackFromWhatIsPrinted)
{
    std::vector<std::string> printed;
    const std::string out = Info("trace.txt");
    for (std::string_view line : LinesOf(out)) {
        EXPECT_TRUE(IsPlain(line));
        if (!Take(line, "    step ")) continue;
        EXPECT_TRUE(TakeQuoted(line, printed.emplace_back())) << line;
        EXPECT_TRUE(line == " (HLXGeneralStaticStepLT)" || line == " (HLXHacInitialStepLT)");
    }
    ASSERT_EQ(printed.size(), names.size() + 1);
    EXPECT_EQ(std::vector(printed.begin() + 1, printed.end()), names);
}

TEST_F(TracedNames, CanBeReadBackFromTheLinesOfATrace)
{
    Info("trace.txt");
    std::vector<std::string> traced;
    const std::string trace = ReadFile(folder.File("trace.txt"));
    for (std::string_view line : LinesOf(trace)) {
        EXPECT_TRUE(IsPlain(line));
        EXPECT_TRUE(line.starts_with("VEX") || line.starts_with("HLX") ||
                    line.starts_with("DumpFeatureTree(") || line.starts_with("cast:") ||
                    line.starts_with("Get"))
            << line;
        EXPECT_TRUE(line.ends_with(" us")) << line;
        if (!Take(line, "VEXIAlias::GetAlias() -> ")) continue;
        EXPECT_TRUE(TakeQuoted(line, traced.emplace_back())) << line;
        EXPECT_TRUE(Take(line, ", ")) << line;
        EXPECT_EQ(line.find_first_not_of("0123456789. us"), std::string_view::npos) << line;
    }
    EXPECT_EQ(OfSteps(traced), names);
}

TEST_F(TracedNames, CanBeReadBackFromATraceOfJson)
{
    Info("trace.json");
    const auto trace = ReadJson(ReadFile(folder.File("trace.json")));
    ASSERT_TRUE(trace) << "the trace is no JSON";
    ASSERT_EQ(trace->kind, Json::Array);
    std::vector<std::string> traced;
    for (const Json& event : trace->items) {
        const Json* const name = event.Find("name");
        const Json* const arguments = event.Find("args");
        ASSERT_TRUE(name != nullptr && arguments != nullptr);
        const Json* const result = arguments->Find("result");
        ASSERT_NE(result, nullptr);
        if (name->text == "VEXIAlias::GetAlias") traced.push_back(Unquoted(result->text));
    }
    EXPECT_EQ(OfSteps(traced), names);
}

TEST_F(TracedNames, ThatAreForeignArgumentsOfAProgramKeepATraceOfJsonValid)
{
    for (const HostileName& name : ForeignFileNames()) {
        SCOPED_TRACE(name.label);
        RunProgram({Program("HLXFileDump"), folder.Path(), name.bytes, folder.Path(), "job"},
                   {{"VEX_TRACE=" + folder.File("trace.json")}, folder.Path()});
        ExpectTheNameIn(folder.File("trace.json"), name.bytes);
    }
}

TEST(RecordedNames, TellEachArgumentByteForByte)
{
    NamedAnalysis analysis;
    vex::Feature& step = analysis.Only("HLXGeneralStaticStepLT");
    std::vector<std::string> given;
    Recording recording;
    for (const HostileNames* const table : {&StorableNames(), &UnstorableNames()}) {
        for (const HostileName& name : *table) {
            SetAlias(step, name.bytes);
            given.push_back(name.bytes);
        }
    }
    std::vector<std::string> recorded;
    for (const vex::probe::Call& call : recording.Stop()) {
        if (call.name == "VEXIAlias::SetAlias") {
            recorded.push_back(Unquoted(call.arguments.at(0)));
        }
    }
    EXPECT_EQ(recorded, given);
}

}  // namespace

}  // namespace hlxtest
