// SPDX-License-Identifier: Apache-2.0
// The products below the roots of a product document, across documents, as indented lines.
#pragma once

#include "VEXProductStructure.h"
#include "host/feature/Document.h"

#include <map>
#include <vector>

namespace hlx {

/// Writes what a document holds once, below its first use; a later use is a line that ends in
/// ", as above". So the text is no longer than the documents are, and documents that link to each
/// other in a circle end.
class ProductListing
{
public:
    /// @param shown  the document whose roots are listed
    explicit ProductListing(const vex::Document& shown) : _written{{&shown, true}} {}

    /// Writes a root and all below it. False when something could not be had; the reason is on
    /// standard error and the rest is written.
    bool Print(const VEXBaseUnknown_var& root);

private:
    struct Place
    {
        VEXIProduct_var product;
        std::size_t depth;
    };

    /// Adds the products below one that are to be written. `asAbove` when its document's products
    /// were written already.
    bool AppendBelow(const VEXIProduct_var& product, std::vector<VEXIProduct_var>& below,
                     bool& asAbove);

    std::map<const vex::Document*, bool> _written;  ///< and whether it holds any product
};

}  // namespace hlx
