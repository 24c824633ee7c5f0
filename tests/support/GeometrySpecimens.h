// SPDX-License-Identifier: Apache-2.0
// Documents with geometry, made by samples/make_test_documents.cpp at build time. Each function
// copies what it is named after into a test's folder and answers the path of the copy.
#pragma once

#include "support/TemporaryFolder.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace hlxtest {

/// NAME.VEXPart: "box" (10 x 20 x 30), "cylinder" (radius 5, height 20), "sphere" (radius 10),
/// "torus" (radii 20 and 5), "bare_sphere" (radius 10, one face without bounds), "sheets" (a shell
/// of six faces, a face apart), "wire_frame" (a triangle of sides 3, 4, 5, a circle of radius 2, a
/// point), "two_solids" (the box and the cylinder), "without_geometry".
inline std::string PartSpecimen(const TemporaryFolder& folder, std::string_view name)
{
    const std::string file = std::string(name) + ".VEXPart";
    WriteFile(folder.File(file), ReadFile(HLX_BINARY_DIR "/tests/geometry/" + file));
    return folder.File(file);
}

/// NAME.VEXProduct, with one node that links to NAME.VEXPart, which is copied too.
inline std::string ProductSpecimen(const TemporaryFolder& folder, std::string_view name)
{
    const std::string file = std::string(name) + ".VEXProduct";
    PartSpecimen(folder, name);
    WriteFile(folder.File(file), ReadFile(HLX_BINARY_DIR "/tests/geometry/" + file));
    return folder.File(file);
}

/// several.VEXProduct, with nodes that link to box, cylinder and torus in this order, and these.
inline std::string SeveralPartsSpecimen(const TemporaryFolder& folder)
{
    for (const std::string_view name : {"box", "cylinder", "torus"}) {
        PartSpecimen(folder, name);
    }
    WriteFile(folder.File("several.VEXProduct"),
              ReadFile(HLX_BINARY_DIR "/tests/geometry/several.VEXProduct"));
    return folder.File("several.VEXProduct");
}

}  // namespace hlxtest
