// SPDX-License-Identifier: Apache-2.0
// Small shapes of every kind of cell, for tests. No kernel type appears here, so that the host's
// headers can be included beside it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct TestShape
{
    std::string name;
    std::vector<std::byte> bytes;  ///< in the kernel's binary form
};

/// box, cylinder, sphere, torus; bare_sphere (a face without bounds); sheets (the six faces of a
/// box as a shell, one face apart); wire_frame (a triangle, a circle, a point); two_solids (a box
/// and a cylinder in one part). Throws std::runtime_error when one cannot be made.
std::vector<TestShape> TestShapes();
