// SPDX-License-Identifier: Apache-2.0
// Sets of ids, dense ones and others.
#include "host/store/IdSet.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using vex::store::Id;
using vex::store::IdSet;

constexpr Id largest = std::numeric_limits<Id>::max();

struct Case
{
    const char* what;
    std::vector<Id> ids;
    Id twice;
};

const Case cases[] = {
    {"none", {}, 0},
    {"dense, in order", {1, 2, 3}, 0},
    {"dense, in no order", {3, 1, 2}, 0},
    {"dense, one twice", {3, 1, 3}, 3},
    {"one far away", {1, largest, 2}, 0},
    {"far away, twice", {largest, 1, largest}, largest},
    {"the last that is dense", {8}, 0},
    {"the first that is not", {9}, 0},
};

TEST(IdSetTest, KnowsEachIdAndTheOneThatStandsTwice)
{
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const IdSet set(each.ids);
        EXPECT_EQ(set.Twice(), each.twice);
        EXPECT_EQ(set.FirstMissing(each.ids), 0);
        for (const Id id : each.ids) {
            EXPECT_TRUE(set.Has(id)) << id;
        }
    }
}

TEST(IdSetTest, KnowsNoOther)
{
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const IdSet set(each.ids);
        for (const Id id : {Id{-1}, Id{0}, Id{4}, Id{64}, Id{1} << 40U, largest - 1}) {
            EXPECT_FALSE(set.Has(id)) << id;
            std::vector<Id> wanted = each.ids;
            wanted.push_back(id);
            EXPECT_EQ(set.FirstMissing(wanted), id);
        }
    }
}

}  // namespace
