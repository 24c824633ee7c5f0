// SPDX-License-Identifier: Apache-2.0
// Bodies and cells of a part's boundary representation, as types of handles: programs hold them,
// this release has no operation on them.
#pragma once

#include "VEXBaseUnknown.h"
#include "VEXVar.h"

/// A cell of a body: face, edge or vertex.
class VEXCell : public VEXBaseUnknown
{};

VEX_INTERFACE(VEXCell);

/// A body: the shape of a part, or of one of its features.
class VEXBody : public VEXBaseUnknown
{};

VEX_INTERFACE(VEXBody);
