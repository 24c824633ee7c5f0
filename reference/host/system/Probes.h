// SPDX-License-Identifier: Apache-2.0
// Seeing and breaking the platform from a test: what VEX_TRACE, VEX_COUNTS and VEX_FAULTS do from
// outside, and more.
#pragma once

#include "VEXBaseUnknown.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vex::probe {

/// One observed call.
struct Call
{
    std::string
        name;  ///< "VEXIAlias::SetAlias", "VEXMakePath", "cast:VEXAnalysisDocument->VEXISamAccess"
    std::vector<std::string> arguments;  ///< as text; "&" for outputs
    std::string result;                  ///< result, then outputs, separated by blanks
    bool broken = false;                 ///< a fault changed it
    std::int64_t nanoseconds = 0;
};

/// One call of VEXError::GetReturn.
struct ErrorRecord
{
    int status;
    std::string source;
    int line;
};

/// Puts faults in force, in place of those before: 'NAME[#N]=OUTCOME;…' (docs/probes.md). Answers
/// false, with the reason and the place in `error`, and changes nothing, when a NAME is unknown or
/// an OUTCOME does not fit it.
VEX_EXPORT bool SetFaults(std::string_view script, std::string& error);

/// Breaks by position among all calls observed from now on: the `first`-th one, and all after it
/// when `onwards`. `outcome` as in a fault; a call that it does not fit takes its first way to
/// break, one without any is left alone.
VEX_EXPORT bool SetFaultAt(std::uint64_t first, bool onwards, std::string_view outcome,
                           std::string& error);

VEX_EXPORT void ClearFaults();

/// The outcomes that fit a call of this name and change it ("E_FAIL", "E_FAIL,keep", "null",
/// "empty", …), the plainest first.
VEX_EXPORT std::vector<std::string> WaysToBreak(std::string_view name);

/// Records calls from now on, forgetting those before.
VEX_EXPORT void StartRecording();
VEX_EXPORT std::vector<Call> StopRecording();

/// Components that got outside references since StartRecording and still had them at StopRecording,
/// or now when the recording goes on, by class or late type: what a program still holds.
VEX_EXPORT std::map<std::string, std::int64_t> HeldObjects();

/// Calls of VEXError::GetReturn in this thread, the last 1000 of them.
VEX_EXPORT std::vector<ErrorRecord> ErrorRecords();
VEX_EXPORT void ClearErrorRecords();

/// All names, in the order of the table, for `hlx probes`.
VEX_EXPORT std::vector<std::string> AllNames();

/// Called by a component, while probes are active, when its outside references leave zero and when
/// they reach it. The host lets go of what it keeps for itself.
VEX_EXPORT void NoteHeld(const VEXBaseUnknown* object, const char* type);
VEX_EXPORT void NoteLetGo(const VEXBaseUnknown* object);

}  // namespace vex::probe
