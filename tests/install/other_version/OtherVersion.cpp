// SPDX-License-Identifier: Apache-2.0
// A component library of the next version, to be refused.
#include "VEXComponentLibrary.h"

const VEXComponentLibrary* VEXGetComponentLibrary()
{
    static const VEXComponentLibrary library = {
        VEXComponentLibraryVersion + 1, "HLXIfwExportTraverser", {}, nullptr};
    return &library;
}
