// SPDX-License-Identifier: Apache-2.0
// What must hold of any file that is opened as a document.
#pragma once

#include "FuzzProcess.h"

namespace hlxfuzz {

/// Opens the file through the platform's services, with all checks. It is refused, with nothing
/// left open; or it is walked, dumped, written out, stored under another path and opened from
/// there, where its dump is the same. Afterwards no document is open and the file is as it was.
void CheckDocument(const std::string& path);

}  // namespace hlxfuzz
