// SPDX-License-Identifier: Apache-2.0
// Reads a STEP file: looks at it, has it translated in a child process, takes over the result.
#include "host/topology/step/StepReader.h"

#include "host/system/MessageTexts.h"
#include "host/topology/ChildProcess.h"
#include "host/topology/step/AssemblyStream.h"
#include "host/topology/step/StepFileCheck.h"
#include "host/topology/step/StepTranslation.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string_view>

namespace vex::topology {
namespace {

constexpr const char* kSeconds = "VEX_STEP_SECONDS";
constexpr const char* kMebibytes = "VEX_STEP_MEBIBYTES";

// What a variable of the environment says, or `unset`. None with the reason when it is no number
// from 1 to `most`.
std::optional<int> NumberOf(const char* variable, int unset, int most, std::string& error)
{
    const char* setting = std::getenv(variable);
    if (setting == nullptr) return unset;
    const std::string_view text = setting;
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || end != text.data() + text.size() || number < 1 || number > most) {
        error = std::string(variable) + ": " + system::Quoted(text) +
                " is not a number from 1 to " + std::to_string(most) + ": correct or unset it";
        return {};
    }
    return number;
}

// Ten times what the translation of sound files took (10 bytes for each of theirs), and something
// for small ones.
int MebibytesFor(const std::string& path)
{
    std::error_code code;
    const std::uintmax_t size = std::filesystem::file_size(path, code);
    return 1024 + static_cast<int>(code ? 0 : std::min<std::uintmax_t>(size / 10'000, 1'000'000));
}

std::string Explain(const ChildOutcome& outcome, int seconds, int mebibytes)
{
    switch (outcome.end) {
        case ChildOutcome::End::Failed:
            return outcome.text;
        case ChildOutcome::End::TimedOut:
            return "still " + outcome.phase + " after " + std::to_string(seconds) +
                   " s: give more time by " + kSeconds + ", or export it again";
        case ChildOutcome::End::OutOfMemory:
            return "there was not enough memory for its translation while " + outcome.phase +
                   ": it may take " + std::to_string(mebibytes) + " MiB; give more by " +
                   kMebibytes + ", free some, or export it again";
        default:
            return "the geometry kernel broke down while " + outcome.phase + " (" + outcome.text +
                   "): the file is damaged or holds what the kernel cannot take; export it again";
    }
}

}  // namespace

bool ReadStep(const std::string& path, ImportedAssembly& out, std::string& error)
{
    const std::string place = system::Quoted(path) + ": ";
    const std::optional<int> seconds = NumberOf(kSeconds, 300, 86400, error);
    if (!seconds) return false;
    const std::optional<int> mebibytes =
        NumberOf(kMebibytes, MebibytesFor(path), 16 * 1024 * 1024, error);
    if (!mebibytes) return false;
    if (const std::string objection = CheckStepFile(path); !objection.empty()) {
        error = place + objection;
        return false;
    }
    const ChildOutcome outcome = RunInChild(
        [&path](const ChildReport& report) { return WriteAssembly(TranslateStep(path, report)); },
        {.seconds = *seconds, .bytes = static_cast<std::size_t>(*mebibytes) << 20U});
    for (const std::string& warning : outcome.warnings) {
        std::cerr << place + system::Printable(warning) + "\n";
    }
    if (outcome.end != ChildOutcome::End::Done) {
        error = place + system::Printable(Explain(outcome, *seconds, *mebibytes));
        return false;
    }
    std::optional<ImportedAssembly> assembly = ReadAssembly(outcome.result);
    if (!assembly) {
        error = place + "its translation came back incomplete: try again";
        return false;
    }
    out = std::move(*assembly);
    return true;
}

}  // namespace vex::topology

extern "C" bool VEXStepReaderRead(const std::string& path, vex::ImportedAssembly& out,
                                  std::string& error)
{
    return vex::topology::ReadStep(path, out, error);
}

extern "C" unsigned VEXStepReaderVersion()
{
    return vex::kGeometryKernelVersion;
}
