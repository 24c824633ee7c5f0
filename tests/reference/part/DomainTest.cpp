// SPDX-License-Identifier: Apache-2.0
// The connected pieces of a body and their cells.
#include "PartFixture.h"

#include <climits>

namespace {

using testing::ElementsAreArray;

class Domains : public hlxtest::PartTest
{
protected:
    static int Count(const VEXBody_var& body, int codimension)
    {
        int count = 0;
        while (body->GetDomain(count + 1, codimension) != nullptr) {
            ++count;
        }
        return count;
    }

    static std::vector<VEXCell*> CellsOf(const VEXDomain* domain, int codimension)
    {
        std::vector<VEXCell*> cells;
        for (int i = 1; VEXCell* const cell = domain->GetCell(i, codimension); ++i) {
            cells.push_back(cell);
        }
        return cells;
    }
};

TEST_F(Domains, AreSolidsSheetsWiresAndPoints)
{
    const struct
    {
        const char* name;
        int solids, sheets, wires, points;
    } specimens[] = {{"box", 1, 0, 0, 0},         {"sphere", 1, 0, 0, 0},
                     {"bare_sphere", 1, 0, 0, 0}, {"sheets", 0, 2, 0, 0},
                     {"wire_frame", 0, 0, 2, 1},  {"two_solids", 2, 0, 0, 0}};
    for (const auto& specimen : specimens) {
        SCOPED_TRACE(specimen.name);
        const VEXBody_var body = BodyOf(Open(specimen.name));
        EXPECT_EQ(Count(body, 0), specimen.solids);
        EXPECT_EQ(Count(body, 1), specimen.sheets);
        EXPECT_EQ(Count(body, 2), specimen.wires);
        EXPECT_EQ(Count(body, 3), specimen.points);
    }
}

TEST_F(Domains, OfOneSolidHaveTheBodysCellsInItsOrder)
{
    for (const char* const name : {"box", "cylinder", "sphere", "torus", "bare_sphere"}) {
        SCOPED_TRACE(name);
        const VEXBody_var body = BodyOf(Open(name));
        const VEXDomain* const domain = body->GetDomain(1, 0);
        ASSERT_NE(domain, nullptr);
        for (int codimension = 0; codimension <= 3; ++codimension) {
            EXPECT_EQ(CellsOf(domain, codimension),
                      Cells(body, static_cast<short>(3 - codimension)));
        }
    }
}

TEST_F(Domains, ShareOutTheCellsOfSeveralPieces)
{
    const struct
    {
        const char* name;
        int codimension;
        std::vector<std::size_t> first, second;  ///< how many volumes, faces, edges, vertices
    } specimens[] = {{"two_solids", 0, {1, 6, 12, 8}, {1, 3, 3, 2}},
                     {"sheets", 1, {0, 6, 12, 8}, {0, 1, 4, 4}},
                     {"wire_frame", 2, {0, 0, 3, 3}, {0, 0, 1, 1}}};
    for (const auto& specimen : specimens) {
        SCOPED_TRACE(specimen.name);
        const VEXBody_var body = BodyOf(Open(specimen.name));
        const VEXDomain* const first = body->GetDomain(1, specimen.codimension);
        const VEXDomain* const second = body->GetDomain(2, specimen.codimension);
        ASSERT_TRUE(first != nullptr && second != nullptr);
        for (int codimension = 0; codimension <= 3; ++codimension) {
            const auto place = static_cast<std::size_t>(codimension);
            std::vector<VEXCell*> cells = CellsOf(first, codimension);
            EXPECT_EQ(cells.size(), specimen.first[place]);
            const std::vector<VEXCell*> others = CellsOf(second, codimension);
            EXPECT_EQ(others.size(), specimen.second[place]);
            if (codimension < 3 || specimen.codimension < 2) {
                cells.insert(cells.end(), others.begin(), others.end());
                EXPECT_EQ(cells, Cells(body, static_cast<short>(3 - codimension)));
            }
        }
    }
}

TEST_F(Domains, PointIsOneVertex)
{
    const VEXBody_var body = BodyOf(Open("wire_frame"));
    const VEXDomain* const point = body->GetDomain(1, 3);
    ASSERT_NE(point, nullptr);
    EXPECT_THAT(CellsOf(point, 3), ElementsAreArray({Cells(body, 0).back()}));
    EXPECT_TRUE(CellsOf(point, 2).empty());
}

TEST_F(Domains, AreTheSameObjectsEachTime)
{
    const VEXBody_var body = BodyOf(Open("two_solids"));
    EXPECT_EQ(body->GetDomain(1, 0), body->GetDomain(1, 0));
    EXPECT_NE(body->GetDomain(1, 0), body->GetDomain(2, 0));
}

TEST_F(Domains, OutsideTheNumbersAreNone)
{
    const VEXBody_var body = BodyOf(Open("box"));
    const VEXDomain* const domain = body->GetDomain(1, 0);
    ASSERT_NE(domain, nullptr);
    for (const int bad : {INT_MIN, -1, INT_MAX}) {
        EXPECT_EQ(body->GetDomain(bad, 0), nullptr);
        EXPECT_EQ(body->GetDomain(1, bad), nullptr);
        EXPECT_EQ(domain->GetCell(bad, 1), nullptr);
        EXPECT_EQ(domain->GetCell(1, bad), nullptr);
    }
    EXPECT_EQ(body->GetDomain(0, 0), nullptr);
    EXPECT_EQ(body->GetDomain(2, 0), nullptr);
    EXPECT_EQ(domain->GetCell(0, 1), nullptr);
    EXPECT_EQ(domain->GetCell(7, 1), nullptr);
    EXPECT_EQ(domain->GetCell(1, 4), nullptr);
}

TEST_F(Domains, OfARemovedDocumentAnswerNothing)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    const VEXDomain* const domain = body->GetDomain(1, 0);
    ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    EXPECT_EQ(domain->GetCell(1, 0), nullptr);
    EXPECT_EQ(domain->IsNull(), 1);
    EXPECT_EQ(body->GetDomain(1, 0), nullptr);
}

}  // namespace
