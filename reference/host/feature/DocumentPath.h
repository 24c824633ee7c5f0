// SPDX-License-Identifier: Apache-2.0
// Paths of documents.
#pragma once

#include <string>
#include <string_view>

namespace vex {

/// The absolute form of a path under which a document can be stored (system::CheckPath, valid
/// UTF-8), without "." and "..". A symbolic link is kept. Empty, with the reason in `error`, when
/// no document can be stored there.
std::string AbsoluteDocumentPath(std::string_view path, std::string& error);

/// A text that is the same for all ways to write one path, symbolic links resolved as far as the
/// path exists.
std::string DocumentPathIdentity(const std::string& absolutePath);

}  // namespace vex
