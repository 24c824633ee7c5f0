// SPDX-License-Identifier: Apache-2.0
// A library with the kernel's name and entries, built for a version there will never be.

extern "C" {
__attribute__((visibility("default"))) unsigned VEXGeometryKernelVersion();
__attribute__((visibility("default"))) void* VEXGeometryKernelInstance();
}

unsigned VEXGeometryKernelVersion()
{
    return ~0U;
}

void* VEXGeometryKernelInstance()
{
    return nullptr;
}
