// SPDX-License-Identifier: Apache-2.0
// The boundary representation of a part: a body, the domains it consists of, and their cells, which
// bound each other: a volume is bounded by faces, a face by edges, an edge by vertices.
//
// A body owns its domains and cells: pointers to them are not counted and live as long as somebody
// holds the body. The same cell is the same object each time. Once the part's document was removed,
// or the part has another shape, a body and its cells answer nothing.
#pragma once

#include "VEXLists.h"

class VEXBoundedCellsIterator;

/// A cell of a body. Names of ours: all.
class VEXCell : public VEXBaseUnknown
{
public:
    /// 0 vertex, 1 edge, 2 face, 3 volume; -1 when the cell is gone.
    virtual int GetDimension() const = 0;

    /// An iterator over the cells that bound this one, of the next lower dimension; those of a
    /// vertex are none. The caller deletes it. Null when the cell is gone.
    virtual VEXBoundedCellsIterator* CreateBoundedCellsIterator() const = 0;

    /// The shape that carries the cell: "vertex"; "line", "circle", "ellipse", "hyperbola",
    /// "parabola", "bezier", "bspline", "offset", "other", "degenerate" (an edge without length, as
    /// at a sphere's pole); "plane", "cylinder", "cone", "sphere", "torus", "bezier", "bspline",
    /// "revolution", "extrusion", "offset", "other"; "solid". Empty when the cell is gone or its
    /// shape cannot be told.
    virtual VEXUnicodeString GetKind() const = 0;

    /// Length (mm), area (mm²) or volume (mm³; negative where a solid is turned inside out); 0 for
    /// a vertex.
    /// @return S_OK; E_FAIL when the cell is gone or cannot be measured
    virtual HRESULT GetMeasure(double& measure) const = 0;
};

VEX_INTERFACE(VEXCell);

/// A cell of dimension 2. Only faces have this interface.
class VEXFace : public VEXCell
{};

VEX_INTERFACE(VEXFace);

/// A cell of dimension 1. Only edges have this interface.
class VEXEdge : public VEXCell
{};

VEX_INTERFACE(VEXEdge);

/// A cell of dimension 0. Only vertices have this interface.
class VEXVertex : public VEXCell
{};

VEX_INTERFACE(VEXVertex);

using VEXListPtrVEXFace = VEXListPtr<VEXFace>;
using VEXListPtrVEXEdge = VEXListPtr<VEXEdge>;
using VEXListPtrVEXVertex = VEXListPtr<VEXVertex>;

/// Goes through the cells that bound a cell, each once however often it does (a seam bounds its
/// face twice), in the order of the boundary, which depends on the shape only. It is the caller's
/// to delete, and keeps the body as long as it lives. Names of ours: all.
class VEXBoundedCellsIterator
{
public:
    virtual ~VEXBoundedCellsIterator() = default;

    /// Begins, or begins anew: the next cell is the first one.
    /// @return S_OK; E_FAIL when the cell is gone
    virtual HRESULT Initialize() = 0;

    /// The next cell, owned by the body; null at the end and before Initialize.
    virtual VEXCell* Next() = 0;
};

/// One piece of a body: a solid, or where nothing encloses a volume a sheet of faces, a wire of
/// edges, a point.
///
/// Domains and their cells are numbered by codimension, how many dimensions a cell has less than
/// space: 0 volume, 1 face, 2 edge, 3 vertex. Names of ours: all.
class VEXDomain : public VEXBaseUnknown
{
public:
    /// A cell of the domain, owned by the body.
    /// @param index        from 1, in the order of the body's lists
    /// @param codimension  see above; 0: its volume
    /// @return null when there is none and when the body is gone
    virtual VEXCell* GetCell(int index, int codimension) const = 0;
};

VEX_INTERFACE(VEXDomain);

/// The shape of a part. Names of ours: all.
class VEXBody : public VEXBaseUnknown
{
public:
    /// Appends all cells of a dimension, each once, in an order that depends on the shape only.
    /// @param dimension  0 to 3, as VEXCell::GetDimension
    /// @return S_OK, also when there is none; E_INVALIDARG for another dimension; E_FAIL when the
    /// body is gone
    virtual HRESULT GetAllCells(VEXListPtrVEXCell& cells, short dimension) const = 0;

    /// A domain of the body, owned by it.
    /// @param index        from 1
    /// @param codimension  of the cells that fill it: 0: solids; 1: shells that stand outside of
    ///                     solids, and faces outside of shells; 2: wires outside of faces, and
    ///                     edges outside of wires; 3: vertices outside of edges
    /// @return null when there is none and when the body is gone
    virtual VEXDomain* GetDomain(int index, int codimension) const = 0;
};

VEX_INTERFACE(VEXBody);
