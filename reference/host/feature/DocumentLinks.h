// SPDX-License-Identifier: Apache-2.0
// Which documents link to which.
#pragma once

#include "host/feature/Document.h"

#include <string>
#include <vector>

namespace vex {

/// Whether a document is what a link to it says of its kind. False with the reason in `error`.
VEX_EXPORT bool IsAsLinked(const Document& document, const DocumentLink& link, std::string& error);

/// The paths of the documents that a document links to, each once, in the order of its features.
VEX_EXPORT std::vector<std::string> LinkedPaths(const Document& document);

/// What the removal of one document means to the others.
struct Removal
{
    /// It and those of `open` that are reached through it only and that the program did not open.
    std::vector<Document*> going;
    /// One that stays and links to the removed one; null when there is none.
    const Document* user = nullptr;
};

/// @param open  all documents of the session, `removed` among them
Removal PlanRemoval(const std::vector<Document*>& open, Document& removed);

}  // namespace vex
