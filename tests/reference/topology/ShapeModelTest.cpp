// SPDX-License-Identifier: Apache-2.0
// A shape's bytes become cells: how many, of what kind, how large, where.
#include "reference/topology/KernelFixture.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstring>
#include <map>
#include <set>

namespace hlxtest {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;
using vex::Point;
using vex::ShapeModel;

class Shapes : public KernelTest
{
protected:
    std::unique_ptr<ShapeModel> block = nullptr;
    std::unique_ptr<ShapeModel> pin = nullptr;

    void SetUp() override
    {
        KernelTest::SetUp();
        ASSERT_NE(kernel, nullptr);
        block = LoadOnlyPart(kStepData + "block.step");
        pin = LoadOnlyPart(kStepData + "nested.step");
        ASSERT_TRUE(block && pin);
    }
};

std::map<std::string, int> KindsOf(const ShapeModel& model, int dimension)
{
    std::map<std::string, int> kinds;
    for (std::size_t index = 1; index <= model.CellCount(dimension); ++index) {
        ++kinds[model.CellKind(dimension, index)];
    }
    return kinds;
}

double SumOf(const ShapeModel& model, int dimension)
{
    double sum = 0;
    for (std::size_t index = 1; index <= model.CellCount(dimension); ++index) {
        sum += model.CellMeasure(dimension, index).value_or(-1e9);
    }
    return sum;
}

TEST_F(Shapes, CellsOfABlock)
{
    EXPECT_EQ(block->BodyCount(), 1u);
    EXPECT_THAT(KindsOf(*block, 0), ElementsAre(Pair("vertex", 8)));
    EXPECT_THAT(KindsOf(*block, 1), ElementsAre(Pair("line", 12)));
    EXPECT_THAT(KindsOf(*block, 2), ElementsAre(Pair("plane", 6)));
    EXPECT_THAT(KindsOf(*block, 3), ElementsAre(Pair("solid", 1)));
}

TEST_F(Shapes, CellsOfAPin)
{
    EXPECT_THAT(KindsOf(*pin, 1), ElementsAre(Pair("circle", 2), Pair("line", 1)));
    EXPECT_THAT(KindsOf(*pin, 2), ElementsAre(Pair("cylinder", 1), Pair("plane", 2)));
}

TEST_F(Shapes, BoundariesAreOfTheNextLowerDimension)
{
    EXPECT_THAT(block->CellBoundary(3, 1), ElementsAre(1, 2, 3, 4, 5, 6));
    for (std::size_t face = 1; face <= 6; ++face) {
        EXPECT_EQ(block->CellBoundary(2, face).size(), 4u);
    }
    EXPECT_TRUE(block->CellBoundary(0, 1).empty());
    // The seam bounds the side of the pin twice, the end of its circle the circle twice.
    std::multiset<std::size_t> faces;
    std::multiset<std::size_t> edges;
    for (std::size_t index = 1; index <= 3; ++index) {
        faces.insert(pin->CellBoundary(2, index).size());
        edges.insert(pin->CellBoundary(1, index).size());
    }
    EXPECT_THAT(faces, ElementsAre(1, 1, 3));
    EXPECT_THAT(edges, ElementsAre(1, 1, 2));
}

TEST_F(Shapes, DomainsAreSolidsOrSheets)
{
    EXPECT_EQ(block->DomainCount(0), 1u);
    EXPECT_THAT(block->DomainCells(0, 1, 2), ElementsAre(1, 2, 3, 4, 5, 6));
    const auto sheet = LoadOnlyPart(kStepData + "sheet.step");
    EXPECT_EQ(sheet->DomainCount(0), 0u);
    EXPECT_EQ(sheet->DomainCount(1), 1u);
    EXPECT_EQ(sheet->DomainCells(1, 1, 2).size(), 6u);
    EXPECT_TRUE(sheet->DomainCells(1, 1, 3).empty());
}

TEST_F(Shapes, MeasuresAreMillimetres)
{
    EXPECT_EQ(SumOf(*block, 0), 0);
    EXPECT_NEAR(SumOf(*block, 1), 4 * (25.4 + 50.8 + 76.2), 1e-9);
    EXPECT_NEAR(SumOf(*block, 2), 2 * (25.4 * 50.8 + 50.8 * 76.2 + 76.2 * 25.4), 1e-6);
    EXPECT_NEAR(SumOf(*block, 3), 25.4 * 50.8 * 76.2, 1e-6);
    const double pi = 3.14159265358979;
    EXPECT_NEAR(SumOf(*pin, 2), 2 * pi * 2 * 10 + 2 * pi * 4, 1e-6);
    EXPECT_NEAR(SumOf(*pin, 3), pi * 4 * 10, 1e-6);
}

void ExpectPoint(const std::optional<Point>& found, const Point& expected)
{
    ASSERT_TRUE(found);
    EXPECT_THAT(*found, testing::Pointwise(testing::DoubleNear(1e-9), expected));
}

TEST_F(Shapes, CentresAreCentresOfMass)
{
    ExpectPoint(block->CellCentre(3, 1), {12.7, 25.4, 38.1});
    ExpectPoint(pin->CellCentre(3, 1), {0, 0, 5});
    Point sum{};
    for (std::size_t index = 1; index <= 8; ++index) {
        const std::optional<Point> corner = block->CellCentre(0, index);
        ASSERT_TRUE(corner);
        for (std::size_t axis = 0; axis < 3; ++axis)
            sum[axis] += (*corner)[axis] / 8;
    }
    ExpectPoint(sum, {12.7, 25.4, 38.1});
}

TEST_F(Shapes, ACellThatDoesNotExistIsEmpty)
{
    const std::pair<int, std::size_t> absent[] = {{2, 0}, {2, 7}, {-1, 1},
                                                  {4, 1}, {3, 2}, {2, ~std::size_t{0}}};
    for (const auto& [dimension, index] : absent) {
        EXPECT_EQ(block->CellKind(dimension, index), "") << dimension << ' ' << index;
        EXPECT_FALSE(block->CellMeasure(dimension, index)) << dimension << ' ' << index;
        EXPECT_FALSE(block->CellCentre(dimension, index)) << dimension << ' ' << index;
        EXPECT_TRUE(block->CellBoundary(dimension, index).empty()) << dimension << ' ' << index;
        EXPECT_TRUE(block->DomainCells(0, index == 1 ? 2 : index, 2).empty()) << index;
    }
    EXPECT_EQ(block->DomainCount(-1), 0u);
    EXPECT_EQ(block->DomainCount(4), 0u);
    EXPECT_TRUE(block->DomainCells(4, 1, 2).empty());
    EXPECT_TRUE(block->DomainCells(0, 1, -1).empty());
    EXPECT_TRUE(block->DomainCells(0, 1, 4).empty());
    EXPECT_EQ(block->CellCount(-1), 0u);
    EXPECT_EQ(block->CellCount(4), 0u);
}

TEST_F(Shapes, TheSameBytesGiveTheSameCellsInTheSameOrder)
{
    for (const vex::ImportedPart& part : Import(kSample).parts) {
        const auto first = Load(part);
        const auto second = Load(part);
        for (int dimension = 0; dimension <= 3; ++dimension) {
            ASSERT_EQ(first->CellCount(dimension), second->CellCount(dimension));
            for (std::size_t index = 1; index <= first->CellCount(dimension); ++index) {
                EXPECT_EQ(first->CellKind(dimension, index), second->CellKind(dimension, index));
                EXPECT_EQ(first->CellMeasure(dimension, index),
                          second->CellMeasure(dimension, index));
                EXPECT_EQ(first->CellCentre(dimension, index),
                          second->CellCentre(dimension, index));
                EXPECT_EQ(first->CellBoundary(dimension, index),
                          second->CellBoundary(dimension, index));
            }
        }
    }
}

TEST_F(Shapes, AModelOutlivesItsBytes)
{
    std::unique_ptr<ShapeModel> model;
    {
        const vex::ImportedAssembly assembly = Import(kStepData + "block.step");
        model = Load(assembly.parts.at(0));
    }
    ASSERT_NE(model, nullptr);
    EXPECT_NEAR(SumOf(*model, 3), 25.4 * 50.8 * 76.2, 1e-6);
}

TEST_F(Shapes, BytesAreTheBinaryForm)
{
    const vex::ImportedAssembly assembly = Import(kStepData + "block.step");
    const std::vector<std::byte>& shape = assembly.parts.at(0).shape;
    const std::string text(reinterpret_cast<const char*>(shape.data()), shape.size());
    EXPECT_THAT(text, HasSubstr("Open CASCADE Topology V"));
    EXPECT_NE(text.find('\0'), std::string::npos);
}

class WrongBytes : public Shapes, public testing::WithParamInterface<std::string>
{};

TEST_P(WrongBytes, AreNoShape)
{
    std::string error;
    EXPECT_EQ(kernel->LoadShape(std::as_bytes(std::span(GetParam())), error), nullptr);
    EXPECT_THAT(error, AllOf(HasSubstr("bytes"), HasSubstr("import the part again")));
}

INSTANTIATE_TEST_SUITE_P(Kinds, WrongBytes,
                         testing::Values(std::string(),
                                         std::string("CASCADE Topology V1, (c) Matra-Datavision\n"),
                                         std::string("DBRep_DrawableShape\n"),
                                         std::string(1000, '\0'),
                                         std::string("\nOpen CASCADE Topology V4, (c)\n")));

TEST_F(Shapes, TruncatedBytesAreNoShape)
{
    const vex::ImportedAssembly assembly = Import(kStepData + "nested.step");
    const std::span<const std::byte> shape = assembly.parts.at(0).shape;
    for (std::size_t length = 0; length < 40; ++length) {
        std::string error;
        EXPECT_EQ(kernel->LoadShape(shape.first(length), error), nullptr) << length;
        EXPECT_NE(error, "");
    }
}

// Such a number where a curve has one of its own is read without a word; asked for the cell's
// length, the kernel needs more stack than there is.
TEST_F(Shapes, BytesThatTheKernelReadsAndThenBreaksDownOverAreNoShape)
{
    const vex::ImportedAssembly assembly = Import(kStepData + "loose_parts.step");
    std::vector<std::byte> shape = assembly.parts.at(1).shape;
    const double number = -1e18;
    constexpr std::size_t place = 212;
    ASSERT_GT(shape.size(), place + sizeof number);
    std::memcpy(shape.data() + place, &number, sizeof number);
    std::string error;
    EXPECT_EQ(kernel->LoadShape(shape, error), nullptr);
    EXPECT_EQ(error,
              "the geometry kernel breaks down over the bytes (signal 11): import the part again");
}

}  // namespace
}  // namespace hlxtest
