// SPDX-License-Identifier: Apache-2.0
// A shape's bytes in a document: the kernel's binary form, without triangulation.
#pragma once

#include <TopoDS_Shape.hxx>

#include <cstddef>
#include <span>
#include <vector>

namespace vex::topology {

// The bytes depend on the shape only. Throws what the kernel throws.
std::vector<std::byte> WriteShape(const TopoDS_Shape& shape);

// The shape of `bytes`. Throws std::runtime_error when they are not of that form or hold no shape,
// and what the kernel throws.
TopoDS_Shape ReadShape(std::span<const std::byte> bytes);

}  // namespace vex::topology
