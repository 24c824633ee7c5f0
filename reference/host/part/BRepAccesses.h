// SPDX-License-Identifier: Apache-2.0
// Accesses to cells as features of the document's container of B-rep accesses. An access tells its
// cell by part, dimension, index and the digest of the part's shape: a cell's index says something
// within one shape only.
#pragma once

#include "host/part/Body.h"

#include <cstdint>
#include <unordered_map>

namespace vex {

/// The late type of accesses: attributes Part, Dimension, Index, Shape.
inline constexpr const char* brepAccessType = "VEXBRepAccess";

/// Finds the cell of an access again. False, with file, access and remedy in `error`, when it
/// cannot be found in the part's present shape; it never is another cell.
bool FindAccessedCell(const Feature& access, BodyHolder& body, Cell*& cell, std::string& error);

/// The accesses to the cells of one body. They are looked through once, when one is first asked
/// for, so that as many as there are cells take no longer together than the cells do.
class BRepAccesses
{
public:
    explicit BRepAccesses(Body& body) : _body(&body) {}

    /// The access to a face, edge or vertex of the body, made when there is none yet; null when the
    /// document has no container of accesses or no part, or the cell is a volume.
    Feature* FindOrMake(const Cell& cell);

private:
    void ReadAll(const Feature& container);

    Body* _body;
    bool _areRead = false;
    std::array<std::unordered_map<std::size_t, FeatureId>, 3> _accesses;  ///< by dimension, index
};

}  // namespace vex
