// SPDX-License-Identifier: Apache-2.0
// What comes in from a STEP file: structure, names, placements, units.
#include "host/system/MessageTexts.h"
#include "reference/topology/KernelFixture.h"

#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <unistd.h>

namespace hlxtest {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;
using vex::ImportedAssembly;
using vex::ImportedInstance;
using vex::ImportedProduct;
using vex::Placement;

class StepImport : public KernelTest
{};

std::vector<std::string> NamesOf(const std::vector<ImportedInstance>& children)
{
    std::vector<std::string> names;
    for (const ImportedInstance& child : children) {
        names.push_back(child.name);
    }
    return names;
}

const ImportedProduct& ProductOf(const ImportedAssembly& assembly, std::size_t parent,
                                 std::size_t child)
{
    return assembly.products.at(assembly.products.at(parent).children.at(child).product);
}

void ExpectPlacement(const Placement& found, const Placement& expected)
{
    EXPECT_THAT(found, Pointwise(DoubleNear(1e-9), expected));
}

TEST_F(StepImport, KeepsTheStructureOfTheBracketAssembly)
{
    const ImportedAssembly assembly = Import(kSample);
    ASSERT_EQ(assembly.products.size(), 4u);
    ASSERT_EQ(assembly.parts.size(), 3u);
    const ImportedProduct& root = assembly.products[0];
    EXPECT_EQ(root.name, "BracketAssembly");
    EXPECT_FALSE(root.partIndex);
    EXPECT_THAT(NamesOf(root.children), ElementsAre("Bracket.1", "Plate.1", "Bolt.1", "Bolt.2"));
    EXPECT_EQ(ProductOf(assembly, 0, 0).name, "Bracket");
    EXPECT_EQ(ProductOf(assembly, 0, 1).name, "Plate");
    EXPECT_EQ(ProductOf(assembly, 0, 2).name, "Bolt");
    for (std::size_t child = 0; child < 4; ++child) {
        const ImportedProduct& product = ProductOf(assembly, 0, child);
        EXPECT_TRUE(product.children.empty());
        ASSERT_TRUE(product.partIndex);
        EXPECT_EQ(assembly.parts.at(*product.partIndex).name, product.name);
    }
}

TEST_F(StepImport, NeedsNoStandardStream)
{
    const int end = InChild([&] {
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            ::close(stream);
        }
        EXPECT_EQ(Import(kSample).parts.size(), 3U);
    });
    EXPECT_EQ(end, 0);
}

TEST_F(StepImport, TheTwoBoltsAreOneProductAtTwoPlaces)
{
    const ImportedAssembly assembly = Import(kSample);
    const std::vector<ImportedInstance>& children = assembly.products.at(0).children;
    ASSERT_EQ(children.size(), 4u);
    EXPECT_EQ(children[2].product, children[3].product);
    EXPECT_NE(children[1].product, children[2].product);
    ExpectPlacement(children[2].placement, {1, 0, 0, 140, 0, 1, 0, 55, 0, 0, 1, 6});
    ExpectPlacement(children[3].placement, {1, 0, 0, 140, 0, 1, 0, 95, 0, 0, 1, 6});
}

TEST_F(StepImport, TheSampleHasSolidsWithAFewHundredFaces)
{
    const ImportedAssembly assembly = Import(kSample);
    std::size_t faces = 0;
    for (const vex::ImportedPart& part : assembly.parts) {
        const auto model = Load(part);
        ASSERT_NE(model, nullptr);
        EXPECT_EQ(model->BodyCount(), 1u) << part.name;
        EXPECT_EQ(model->CellCount(3), 1u) << part.name;
        EXPECT_GT(model->CellCount(1), model->CellCount(2)) << part.name;
        EXPECT_GT(model->CellMeasure(3, 1).value_or(0), 1000) << part.name;
        faces += model->CellCount(2);
    }
    EXPECT_GE(faces, 200u);
}

TEST_F(StepImport, GivesTheSameBytesEachTime)
{
    const ImportedAssembly first = Import(kSample);
    const ImportedAssembly second = Import(kSample);
    ASSERT_EQ(first.parts.size(), second.parts.size());
    for (std::size_t i = 0; i < first.parts.size(); ++i) {
        EXPECT_EQ(first.parts[i].shape, second.parts[i].shape) << first.parts[i].name;
    }
}

TEST_F(StepImport, APartAloneIsOneProductWithoutChildren)
{
    const ImportedAssembly assembly = Import(kStepData + "block.step");
    ASSERT_EQ(assembly.products.size(), 1u);
    ASSERT_EQ(assembly.parts.size(), 1u);
    EXPECT_EQ(assembly.products[0].name, "Block");
    EXPECT_EQ(assembly.products[0].partIndex, 0u);
    EXPECT_TRUE(assembly.products[0].children.empty());
}

TEST_F(StepImport, InchesComeInAsMillimetres)
{
    const auto millimetres = LoadOnlyPart(kStepData + "block.step");
    const auto inches = LoadOnlyPart(kStepData + "block_in_inches.step");
    ASSERT_TRUE(millimetres && inches);
    // The block is 1 x 2 x 3 inches; its file says so in the unit's own numbers.
    EXPECT_NE(ReadFile(kStepData + "block_in_inches.step").find("(1.,2.,3.)"), std::string::npos);
    EXPECT_NEAR(inches->CellMeasure(3, 1).value_or(0), 25.4 * 50.8 * 76.2, 1e-6);
    EXPECT_NEAR(millimetres->CellMeasure(3, 1).value_or(0), 25.4 * 50.8 * 76.2, 1e-6);
}

TEST_F(StepImport, ASubassemblyUsedTwiceIsListedOnceAndTurned)
{
    const ImportedAssembly assembly = Import(kStepData + "nested.step");
    ASSERT_EQ(assembly.products.size(), 3u);
    ASSERT_EQ(assembly.parts.size(), 1u);
    const std::vector<ImportedInstance>& top = assembly.products[0].children;
    EXPECT_THAT(NamesOf(top), ElementsAre("PinPair.1", "PinPair.2", "Pin.3"));
    ASSERT_EQ(top.size(), 3u);
    EXPECT_EQ(top[0].product, top[1].product);
    ExpectPlacement(top[0].placement, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 5});
    ExpectPlacement(top[1].placement, {0, -1, 0, 100, 1, 0, 0, 0, 0, 0, 1, 0});
    const ImportedProduct& pair = ProductOf(assembly, 0, 0);
    EXPECT_FALSE(pair.partIndex);
    EXPECT_THAT(NamesOf(pair.children), ElementsAre("Pin.1", "Pin.2"));
    ASSERT_EQ(pair.children.size(), 2u);
    EXPECT_EQ(pair.children[0].product, top[2].product);
    ExpectPlacement(pair.children[1].placement, {1, 0, 0, 20, 0, 1, 0, 0, 0, 0, 1, 0});
}

TEST_F(StepImport, LoosePartsGetARootNamedAfterTheFile)
{
    const ImportedAssembly assembly = Import(kStepData + "loose_parts.step");
    ASSERT_EQ(assembly.products.size(), 3u);
    EXPECT_EQ(assembly.products[0].name, "loose_parts");
    EXPECT_THAT(NamesOf(assembly.products[0].children), ElementsAre("Block", "Pin"));
    EXPECT_EQ(assembly.parts.size(), 2u);
}

TEST_F(StepImport, ASheetIsABodyWithoutASolid)
{
    const auto model = LoadOnlyPart(kStepData + "sheet.step");
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->BodyCount(), 1u);
    EXPECT_EQ(model->CellCount(3), 0u);
    EXPECT_EQ(model->CellCount(2), 6u);
}

// The root's name in the file is "Träger" in UTF-8; other systems write it otherwise.
class StepName : public StepImport,
                 public testing::WithParamInterface<std::pair<std::string, std::string>>
{};

TEST_P(StepName, IsReadAsUtf8)
{
    const TemporaryFolder folder;
    std::string text = ReadFile(kStepData + "nested.step");
    const std::string old = "Träger";
    for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos;
         at += GetParam().first.size()) {
        text.replace(at, old.size(), GetParam().first);
    }
    WriteFile(folder.File("named.step"), text);
    EXPECT_EQ(Import(folder.File("named.step")).products.at(0).name, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Encodings, StepName,
                         testing::Values(std::pair{"Träger", "Träger"},
                                         std::pair{"Tr\\X2\\00E4\\X0\\ger", "Träger"},
                                         std::pair{"It''s", "It's"},
                                         std::pair{"\\X4\\0001F529\\X0\\", "\U0001F529"},
                                         std::pair{"a\\X2\\D83D\\X0\\b", "ab"}));

// The kernel makes something of any bytes; the store takes valid UTF-8 only.
TEST_F(StepImport, NamesAreValidUtf8WhateverTheFileHolds)
{
    const TemporaryFolder folder;
    const std::string text = ReadFile(kStepData + "nested.step");
    for (const char* bytes :
         {"Tr\xE4ger", "\xFF\xFE\x80", "\xED\xA0\xBD", "\xF7\xBF\xBF\xBF", "\xF5\x80\x80\x80",
          "\\X2\\DD29D83D\\X0\\", "\\X2\\0000\\X0\\", "\xC0\x80", "\xF0"}) {
        std::string named = text;
        const std::string old = "'Tr\xC3\xA4ger'";
        for (std::size_t at = 0; (at = named.find(old)) != std::string::npos;) {
            named.replace(at, old.size(), "'" + std::string(bytes) + "'");
        }
        WriteFile(folder.File("named.step"), named);
        const std::string name = Import(folder.File("named.step")).products.at(0).name;
        EXPECT_EQ(vex::system::TextFault(name), nullptr) << testing::PrintToString(name);
    }
}

}  // namespace
}  // namespace hlxtest
