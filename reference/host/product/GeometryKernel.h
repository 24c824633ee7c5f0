// SPDX-License-Identifier: Apache-2.0
// What the host asks of a geometry kernel, in the host's own terms.
//
// No kernel type appears here. The kernel is a component library of its own (libVEXTopology.so),
// found and opened by LoadGeometryKernel when a part's geometry is first asked for. The kernel
// object is owned by that library and lives as long as the process; everything it hands out is
// owned by the caller. No operation throws, none writes to standard output. The SDK is not
// included: it and Open CASCADE both have a global GUID. Lengths are millimetres, areas mm²,
// volumes mm³.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vex {

// Placement of an instance in its parent: three rows of a 3x4 matrix, rotation in columns 0..2,
// translation in 3.
using Placement = std::array<double, 12>;
using Point = std::array<double, 3>;

// One use of a product inside another; `product` indexes ImportedAssembly::products.
struct ImportedInstance
{
    std::string name;
    std::size_t product = 0;
    Placement placement{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};
};

// A product: a leaf that has a part, or an assembly that has children in the order of the file.
struct ImportedProduct
{
    std::string name;
    std::vector<ImportedInstance> children;
    std::optional<std::size_t> partIndex;  // indexes ImportedAssembly::parts
};

// The shape of a part in the kernel's binary form, without triangulation: the same file gives the
// same bytes.
struct ImportedPart
{
    std::string name;
    std::vector<std::byte> shape;
};

// What a file holds. Products are listed parents first, the root at index 0, and no product
// contains itself; one used several times is listed once. A file with a part only gives one
// product, which has that part and no children. Names are UTF-8, as the file has them; they may be
// empty or repeat.
struct ImportedAssembly
{
    std::vector<ImportedProduct> products;
    std::vector<ImportedPart> parts;
};

// A part's shape in memory. Cells are numbered from 1 in each dimension (0 vertex, 1 edge, 2 face,
// 3 solid) in the kernel's map order, which depends on the shape's bytes only. A dimension or an
// index that does not exist gives an empty value; so does what the kernel breaks off with an error.
class __attribute__((visibility("default"))) ShapeModel
{
public:
    virtual ~ShapeModel() = default;

    virtual std::size_t CellCount(int dimension) const = 0;

    // Cells of the next lower dimension that bound a cell, by index: each once, in the order of the
    // boundary. Those of a vertex are none.
    virtual std::vector<std::size_t> CellBoundary(int dimension, std::size_t index) const = 0;

    // Pieces by codimension (0 to 3): solids; sheets (shells outside of solids, then faces outside
    // of shells); wires (wires outside of faces, then edges outside of wires); points (vertices
    // outside of edges).
    virtual std::size_t DomainCount(int codimension) const = 0;

    // The cells of a dimension in a domain, which counts from 1, by index, ascending.
    virtual std::vector<std::size_t> DomainCells(int codimension, std::size_t domain,
                                                 int dimension) const = 0;

    // All domains.
    std::size_t BodyCount() const
    {
        return DomainCount(0) + DomainCount(1) + DomainCount(2) + DomainCount(3);
    }

    // "vertex"; "line", "circle", "ellipse", "hyperbola", "parabola", "bezier", "bspline",
    // "offset", "other" or "degenerate" (an edge without length, as at a sphere's pole); "plane",
    // "cylinder", "cone", "sphere", "torus", "bezier", "bspline", "revolution", "extrusion",
    // "offset" or "other"; "solid".
    virtual std::string CellKind(int dimension, std::size_t index) const = 0;

    // Length, area or volume; 0 for a vertex. A volume is negative where a solid is turned inside
    // out.
    virtual std::optional<double> CellMeasure(int dimension, std::size_t index) const = 0;

    // Centre of mass of the cell (of constant density): a full circle's centre need not lie on the
    // circle.
    virtual std::optional<Point> CellCentre(int dimension, std::size_t index) const = 0;
};

class __attribute__((visibility("default"))) GeometryKernel
{
public:
    virtual ~GeometryKernel() = default;

    // Reads a STEP file into `out`. False when the file is missing, broken or without a shape:
    // `out` is then as it was and `error` names the file, the place and what can be done. The file
    // is translated in a child process, so that no file can end or block this one, or take its
    // memory. The limits are 300 s, or VEX_STEP_SECONDS of the environment, and as many MiB as a
    // sound file of that size can take, or VEX_STEP_MEBIBYTES.
    virtual bool ReadStep(const std::string& path, ImportedAssembly& out, std::string& error) = 0;

    // Makes a model of bytes that came from ReadStep and whose digest was checked; null with a
    // reason in `error` when they are no shape. The kernel sees them in a child process first, so
    // that no bytes can end or block this one. Damage that gives another shape is not found, hence
    // the digest.
    virtual std::unique_ptr<ShapeModel> LoadShape(std::span<const std::byte> bytes,
                                                  std::string& error) = 0;
};

// Counts up with any change of the declarations above: a library built for another version is
// refused.
inline constexpr unsigned kGeometryKernelVersion = 2;

}  // namespace vex
