// SPDX-License-Identifier: Apache-2.0
// Between a document in memory and its file.
#pragma once

#include "host/feature/Document.h"
#include "host/system/AtomicFile.h"

#include <string>

namespace vex {

/// Reads a document whole. It is handed out only when everything in it was checked: late types,
/// attributes and their kinds, references. Null otherwise, with file, feature and remedy in
/// `error`. Geometry stays in the file, which is kept open, until it is asked for.
/// @param path absolute
VEX_EXPORT DocumentHolder LoadDocument(const std::string& path, std::string& error);

/// Stores a document in a file, whole or not at all; the document's own path stays as it is. One
/// that is as it was stored in another file is stored as a copy of that file. References to
/// features that are gone are stored as not set, links relative to the file. @param path absolute
VEX_EXPORT bool SaveDocument(Document& document, const std::string& path, std::string& error,
                             system::Existing existing = system::Existing::Replace);

}  // namespace vex
