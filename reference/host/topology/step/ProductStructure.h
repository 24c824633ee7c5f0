// SPDX-License-Identifier: Apache-2.0
// From the kernel's document of labels to products, instances and parts.
#pragma once

#include "host/product/GeometryKernel.h"

#include <XCAFDoc_ShapeTool.hxx>

namespace vex::topology {

// `rootName` names the assembly that is made when the document has several roots. Throws
// std::runtime_error with place and remedy when there is no shape, or a product contains itself.
ImportedAssembly CollectProducts(const Handle(XCAFDoc_ShapeTool) & shapes,
                                 const std::string& rootName);

}  // namespace vex::topology
