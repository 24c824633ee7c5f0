// SPDX-License-Identifier: Apache-2.0
#include "sweep/Run.h"

#include "VEXDocumentServices.h"
#include "VEXSession.h"
#include "VEXSystem.h"
#include "host/feature/DocumentSession.h"
#include "support/Capture.h"
#include "support/FakeClock.h"
#include "support/FlatFileOption.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <filesystem>

namespace hlxtest::sweep {

namespace {

namespace fs = std::filesystem;

/// The same folder for each run: paths are part of what is written.
const std::string& RunFolder()
{
    static const TemporaryFolder parent;
    static const std::string folder = parent.File("run");
    return folder;
}

/// Settings outlive a run, and a broken one may not have put them back.
void ResetSettings()
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    ASSERT_EQ(settings->SetBasicUnitLength("mm"), S_OK);
    ASSERT_EQ(settings->SetBasicUnitMass("kg"), S_OK);
    ASSERT_EQ(settings->SetBasicUnitTime("s"), S_OK);
    ASSERT_EQ(settings->SetBasicUnitTemperature("K"), S_OK);
    ASSERT_EQ(settings->SetWriteFlatInputFileFlag(1), S_OK);
}

int OpenDescriptors()
{
    return static_cast<int>(std::distance(fs::directory_iterator("/proc/self/fd"), {}));
}

std::map<std::string, std::string> FilesBelow(const std::string& folder)
{
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files[entry.path().lexically_relative(folder)] = ReadFile(entry.path());
        }
    }
    return files;
}

// --- The calls of the operation: those between two calls that the harness makes itself ----------

constexpr const char* kMark = "between the operation and the harness";

void Mark()
{
    char path[VEXMaxPathSize];
    VEXMakePath("", kMark, path);
}

std::vector<vex::probe::Call> CallsBetweenMarks(std::vector<vex::probe::Call> calls)
{
    const auto isMark = [](const vex::probe::Call& call) {
        return call.name == "VEXMakePath" && call.arguments[1].find(kMark) != std::string::npos;
    };
    const auto first = std::find_if(calls.begin(), calls.end(), isMark);
    const auto last = first == calls.end() ? first : std::find_if(first + 1, calls.end(), isMark);
    if (last == calls.end()) {
        ADD_FAILURE() << "the calls of the operation were not recorded";
        return {};
    }
    return {std::make_move_iterator(first + 1), std::make_move_iterator(last)};
}

/// Runs the operation alone with the platform as it is to be.
long RunBroken(const Operation& operation, World& world, const std::optional<Breakage>& breakage)
{
    Mark();
    if (breakage) {
        std::string error;
        EXPECT_TRUE(vex::probe::SetFaultAt(breakage->call, breakage->onwards, breakage->way, error))
            << error;
    }
    long result = E_UNEXPECTED;
    try {
        result = operation.run(world);
    } catch (const std::exception& thrown) {
        ADD_FAILURE() << "threw: " << thrown.what();
    } catch (...) {
        ADD_FAILURE() << "threw";
    }
    vex::probe::ClearFaults();
    Mark();
    return result;
}

// --- Afterwards ---------------------------------------------------------------------------------

/// Saves the analysis documents that are still open; answers where.
std::vector<std::string> SaveOpenDocuments()
{
    std::vector<std::string> paths;
    fs::create_directory(RunFolder() + "/saved");
    for (const vex::Document* const document : vex::DocumentSession::Instance().Documents()) {
        if (document->DocType() != vex::DocumentType::Analysis) {
            continue;
        }
        paths.push_back(RunFolder() + "/saved/" + std::to_string(paths.size()) + ".VEXAnalysis");
        EXPECT_EQ(VEXDocumentServices::SaveAs(*document->AsVEXDocument(),
                                              VEXUnicodeString(paths.back()), "", 1),
                  S_OK)
            << "a document that is still open cannot be saved";
    }
    return paths;
}

void RemoveAllDocuments()
{
    const auto& documents = vex::DocumentSession::Instance().Documents();
    while (!documents.empty()) {
        ASSERT_EQ(VEXDocumentServices::Remove(*documents.back()->AsVEXDocument(), 1), S_OK);
    }
}

void Reopen(const std::vector<std::string>& paths)
{
    for (const std::string& path : paths) {
        VEXDocument* document = nullptr;
        EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0), S_OK)
            << "a document that was saved after the run cannot be opened";
    }
    RemoveAllDocuments();
}

unsigned int NumberIn(std::string_view text)
{
    unsigned int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// Gives back what a program cannot, because the fault took the call that would have done it or
/// because the fault told of a failure where there was something to give back.
void UndoWhatFaultsLeft(const std::vector<vex::probe::Call>& calls)
{
    for (const vex::probe::Call& call : calls) {
        if (!call.broken) {
            continue;
        }
        if (call.name == "VEXFOpen") {
            VEXFClose(NumberIn(call.result.substr(call.result.find(' ') + 1)));
        } else if (call.name == "VEXFClose") {
            VEXFClose(NumberIn(call.arguments[0]));
        } else if (call.name == "Delete_Session") {
            std::string name = call.arguments[0].substr(1, call.arguments[0].size() - 2);
            Delete_Session(name.data(), 0, 0);
        }
    }
}

int TestParts()
{
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

}  // namespace

RunResult RunOnce(const Operation& operation, const std::optional<Breakage>& breakage)
{
    RunResult run;
    FakeClock clock;
    clock.time = [] { return std::time_t{1'209'988'800}; };
    clock.clock = [] { return std::clock_t{0}; };
    std::optional<World> world(std::in_place, RunFolder(), operation.cases);
    const std::string stored = ReadFile(world->document);
    ResetSettings();
    const int openBefore = OpenDescriptors();

    vex::probe::StartRecording();
    std::vector<std::string> saved;
    const int partsBefore = TestParts();
    Captured captured = Capture([&] {
        ((*world).*operation.prepare)();
        run.result = RunBroken(operation, *world, breakage);
        saved = SaveOpenDocuments();
    });
    if (TestParts() != partsBefore) {
        std::fputs(captured.out.c_str(), stdout);  // what failed is told in there
    }
    run.out = std::move(captured.out);
    run.err = std::move(captured.err);
    run.files = FilesBelow(RunFolder());
    EXPECT_TRUE(ReadFile(world->document) == stored) << "the stored document has changed";
    world.reset();
    RemoveAllDocuments();
    Reopen(saved);
    run.held = vex::probe::HeldObjects();
    run.calls = CallsBetweenMarks(vex::probe::StopRecording());

    UndoWhatFaultsLeft(run.calls);
    run.leftOpen = OpenDescriptors() - openBefore;
    return run;
}

}  // namespace hlxtest::sweep
