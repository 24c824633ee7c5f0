// SPDX-License-Identifier: Apache-2.0
// A part with one face, one edge and one vertex is enough for every load.
#include "host/part/Body.h"
#include "library/loads/LoadKinds.h"
#include "library/loads/ReplacedInterface.h"

#include <memory>

namespace hlxtest::statics {
namespace {

/// Lists only the first cell of a dimension.
class BodyOfFirstCells : public vex::Adapter<VEXBody, vex::Body>
{
public:
    using Adapter::Adapter;

    HRESULT GetAllCells(VEXListPtrVEXCell& cells, short dimension) const override
    {
        const std::unique_ptr<VEXBaseUnknown> whole(
            ReplacedInterface<BodyOfFirstCells>::Former()(Self()));
        VEXListPtrVEXCell all;
        const HRESULT result = static_cast<VEXBody&>(*whole).GetAllCells(all, dimension);
        EXPECT_GT(all.Size(), 1);
        cells.Append(all[1]);
        return result;
    }
    VEXDomain* GetDomain(int, int) const override { return nullptr; }
};

class LoadOnSingleCellsTest : public LoadKindTest, public testing::WithParamInterface<LoadKind>
{};

TEST_P(LoadOnSingleCellsTest, IsSupported)
{
    const LoadKind& kind = GetParam();
    {
        const ReplacedInterface<BodyOfFirstCells> replaced("VEXBody");
        EXPECT_EQ(Create(kind.create), (Outcome{S_OK, kind.done, ""}));
    }
    load.Reset();
    ASSERT_EQ(Loads().Size(), 1);
    EXPECT_EQ(SupportsOf(Loads()[1]).size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Of, LoadOnSingleCellsTest, testing::ValuesIn(kAllKinds),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace hlxtest::statics
