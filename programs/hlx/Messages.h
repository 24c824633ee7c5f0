// SPDX-License-Identifier: Apache-2.0
// What `hlx` writes: its output to standard output, everything else to standard error. Nothing here
// throws when a stream is closed or full. Texts from outside are put in with vex::system::Quoted or
// Printable, so that no name forges a line.
#pragma once

#include <string>
#include <string_view>

namespace hlx {

/// Writes "hlx: REASON" as a line to standard error. False, so that a failure is told and answered
/// in one.
bool Report(std::string_view reason);

/// Writes a line about what is being done to standard error.
void Progress(std::string_view what);

/// Writes text as it is to standard output.
void Write(std::string_view text);

/// Sends what is buffered on its way. False when anything written to standard output was lost.
bool OutputArrived();

}  // namespace hlx
