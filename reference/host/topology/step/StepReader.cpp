// SPDX-License-Identifier: Apache-2.0
// Reads a STEP file: looks at it, has it translated in a child process, takes over the result.
#include "host/topology/step/StepReader.h"

#include "host/system/MessageTexts.h"
#include "host/topology/ChildProcess.h"
#include "host/topology/step/AssemblyStream.h"
#include "host/topology/step/StepFileCheck.h"
#include "host/topology/step/StepTranslation.h"

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string_view>

namespace vex::topology {
namespace {

constexpr int kDefaultSeconds = 300;

std::optional<int> SecondsAllowed(std::string& error)
{
    const char* setting = std::getenv("VEX_STEP_SECONDS");
    if (setting == nullptr) return kDefaultSeconds;
    const std::string_view text = setting;
    int seconds = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (failure != std::errc() || end != text.data() + text.size() || seconds < 1 ||
        seconds > 86400) {
        error = "VEX_STEP_SECONDS: " + system::Quoted(text) +
                " is not a number from 1 to 86400: correct or unset it";
        return {};
    }
    return seconds;
}

std::string Explain(const ChildOutcome& outcome, int seconds)
{
    switch (outcome.end) {
        case ChildOutcome::End::Failed:
            return outcome.text;
        case ChildOutcome::End::TimedOut:
            return "still " + outcome.phase + " after " + std::to_string(seconds) +
                   " s: give more time by VEX_STEP_SECONDS, or export it again";
        default:
            return "the geometry kernel broke down while " + outcome.phase + " (" + outcome.text +
                   "): the file is damaged or holds what the kernel cannot take; export it again";
    }
}

}  // namespace

bool ReadStep(const std::string& path, ImportedAssembly& out, std::string& error)
{
    const std::string place = system::Quoted(path) + ": ";
    const std::optional<int> seconds = SecondsAllowed(error);
    if (!seconds) return false;
    if (const std::string objection = CheckStepFile(path); !objection.empty()) {
        error = place + objection;
        return false;
    }
    const ChildOutcome outcome = RunInChild(
        [&path](const ChildReport& report) { return WriteAssembly(TranslateStep(path, report)); },
        {.seconds = *seconds});
    for (const std::string& warning : outcome.warnings) {
        std::cerr << place + system::Printable(warning) + "\n";
    }
    if (outcome.end != ChildOutcome::End::Done) {
        error = place + system::Printable(Explain(outcome, *seconds));
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
