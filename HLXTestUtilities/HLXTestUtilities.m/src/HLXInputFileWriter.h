// SPDX-License-Identifier: Apache-2.0
// The product's writer of solver input files, as the component that it is.
#pragma once

#include "HLXIIfwTraverser.h"

namespace HLXInputFileWriter {

/// The writer component, owned by the host; null when it cannot be made.
VEXBaseUnknown* Create();

/// Asks the component for its writing interface.
/// @param traverser  receives it with a reference that the caller releases
/// @return result of the query
HRESULT FindTraverser(const VEXBaseUnknown& component, HLXIIfwTraverser*& traverser);

}  // namespace HLXInputFileWriter
