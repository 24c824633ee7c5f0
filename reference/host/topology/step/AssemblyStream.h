// SPDX-License-Identifier: Apache-2.0
// An imported assembly as bytes, for the way from the child process to this one.
#pragma once

#include "host/product/GeometryKernel.h"

namespace vex::topology {

std::vector<std::byte> WriteAssembly(const ImportedAssembly& assembly);

// Empty when `bytes` are not exactly one assembly whose indices are all in range.
std::optional<ImportedAssembly> ReadAssembly(std::span<const std::byte> bytes);

}  // namespace vex::topology
