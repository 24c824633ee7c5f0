// SPDX-License-Identifier: Apache-2.0
// The parts of an analysis and where they stand, as the product structure of its linked documents
// tells it, without levels: sub-assemblies are resolved into the names and places of their parts.
#pragma once

#include "host/product/GeometryKernel.h"

#include <string>
#include <vector>

namespace vex {
class Document;
}

namespace hlx {

/// How many bytes names may take, those of instances and parts together, and those of regions:
/// names that are made of one another could make a text of any length.
inline constexpr std::size_t mostBytesOfNames = std::size_t{256} << 20U;

struct StructurePart
{
    std::string name;  ///< unique
    const vex::Document* document;
    std::vector<std::size_t> instances;  ///< index Structure::instances
};

struct PartInstance
{
    std::string name;      ///< unique: aliases from the top down, joined by '/'
    std::size_t part = 0;  ///< indexes Structure::parts
    vex::Placement placement{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};
};

struct Structure
{
    std::vector<StructurePart> parts;  ///< in the order of their first use
    std::vector<PartInstance> instances;
};

/// Reads the structure of what `analysis` is linked to, opening documents as needed; they stay
/// open. False, with the reason in `error`, when a document cannot be opened, when the structure
/// holds itself or a placement is none, or when it is deeper than 256 levels or has more than a
/// million parts or products, or names of more than 256 MiB.
bool ReadStructure(vex::Document& analysis, Structure& structure, std::string& error);

}  // namespace hlx
