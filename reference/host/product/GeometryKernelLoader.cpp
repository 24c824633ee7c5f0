// SPDX-License-Identifier: Apache-2.0
// Finds and opens the geometry kernel's component library.
#include "host/product/GeometryKernelLoader.h"

#include "host/product/KernelModule.h"

#include <mutex>

namespace vex {

GeometryKernel* LoadGeometryKernel(const std::vector<std::string>& directories, std::string& error)
{
    static std::mutex guard;
    static GeometryKernel* kernel = nullptr;
    const std::scoped_lock lock(guard);
    if (kernel == nullptr) {
        void* entry = OpenKernelModule(directories, "libVEXTopology.so", "VEXGeometryKernelVersion",
                                       "VEXGeometryKernelInstance", error);
        if (entry != nullptr) {
            kernel = reinterpret_cast<GeometryKernel* (*)()>(entry)();
        }
    }
    return kernel;
}

}  // namespace vex
