// SPDX-License-Identifier: Apache-2.0
// Bodies and cells of a part's boundary representation. Cells belong to their body and live as long
// as it is held.
#pragma once

#include "VEXBaseUnknown.h"
#include "VEXVar.h"

/// A cell of a body: face, edge or vertex.
class VEXCell : public VEXBaseUnknown
{
public:
    /// 3 volume, 2 face, 1 edge, 0 vertex.
    virtual short GetDimension() const = 0;
};

VEX_INTERFACE(VEXCell);

/// A body: the shape of a part, or of one of its features.
class VEXBody : public VEXBaseUnknown
{
public:
    /// Number of cells of a dimension (2 face, 1 edge, 0 vertex); 0 for another one.
    virtual int GetCellCount(short dimension) const = 0;
};

VEX_INTERFACE(VEXBody);
