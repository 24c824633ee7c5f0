// SPDX-License-Identifier: Apache-2.0
// The geometry kernel under test, and what tests of it ask again and again.
#pragma once

#include "host/product/GeometryKernelLoader.h"

#include <gtest/gtest.h>

#include <string>

namespace hlxtest {

inline const std::string kStepData = HLX_SOURCE_DIR "/tests/reference/topology/data/";
inline const std::string kSample = HLX_SOURCE_DIR "/samples/bracket_assembly.step";
inline const std::string kLibraries = HLX_BINARY_DIR "/lib";

/// `text` with `to` in place of its first `from`; the test fails when there is none.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

class KernelTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string error;
        kernel = vex::LoadGeometryKernel({kLibraries}, error);
        ASSERT_NE(kernel, nullptr) << error;
    }

    /// What the file holds; the test fails when it cannot be read.
    vex::ImportedAssembly Import(const std::string& path)
    {
        vex::ImportedAssembly assembly;
        std::string error;
        EXPECT_TRUE(kernel->ReadStep(path, assembly, error)) << error;
        return assembly;
    }

    /// Why the file is refused; the test fails when it is not, or when something is handed out all
    /// the same.
    std::string Refusal(const std::string& path)
    {
        vex::ImportedAssembly assembly;
        assembly.products.push_back({"untouched", {}, {}});
        std::string error;
        EXPECT_FALSE(kernel->ReadStep(path, assembly, error)) << path;
        EXPECT_EQ(assembly.products.size(), 1u);
        EXPECT_EQ(assembly.products.at(0).name, "untouched");
        EXPECT_TRUE(assembly.parts.empty());
        return error;
    }

    /// The model of a part; the test fails when its bytes are refused.
    std::unique_ptr<vex::ShapeModel> Load(const vex::ImportedPart& part)
    {
        std::string error;
        std::unique_ptr<vex::ShapeModel> model = kernel->LoadShape(part.shape, error);
        EXPECT_NE(model, nullptr) << error;
        return model;
    }

    /// The model of the only part of a file.
    std::unique_ptr<vex::ShapeModel> LoadOnlyPart(const std::string& path)
    {
        const vex::ImportedAssembly assembly = Import(path);
        EXPECT_EQ(assembly.parts.size(), 1u);
        return assembly.parts.empty() ? nullptr : Load(assembly.parts[0]);
    }

    vex::GeometryKernel* kernel = nullptr;
};

}  // namespace hlxtest
