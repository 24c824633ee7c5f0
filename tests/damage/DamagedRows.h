// SPDX-License-Identifier: Apache-2.0
// A sound document whose rows a test changes, and what its refusal then says.
#pragma once

#include "DamagedDocument.h"
#include "support/ResealedDocument.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>

namespace damagetest {

struct Row
{
    const char* sql;
    std::string reason;
};

class DamagedRows : public testing::Test
{
protected:
    static void SetUpTestSuite() { _document = new DamagedDocument; }
    static void TearDownTestSuite()
    {
        delete _document;
        _document = nullptr;
    }

    static void ExpectRefused(std::initializer_list<Row> rows)
    {
        for (const Row& row : rows) {
            ExpectDamaged(row, _document->OpenResealed(row.sql));
        }
    }

    /// As ExpectRefused; counts and digest stay as they were.
    static void ExpectRefusedUnsealed(std::initializer_list<Row> rows)
    {
        for (const Row& row : rows) {
            ExpectDamaged(row, OpenUnsealed(row.sql));
        }
    }

    static ChildEnd OpenUnsealed(const std::string& sql)
    {
        return _document->Open([&](const std::string& path) {
            std::string error;
            EXPECT_TRUE(hlxtest::ChangeBySql(path, sql, error)) << sql << ": " << error;
        });
    }

    static void ExpectDamaged(const Row& row, const ChildEnd& end)
    {
        EXPECT_EQ(end.code, kRefused) << row.sql << ' ' << testing::PrintToString(end);
        EXPECT_EQ(ReasonOf(end, _document->Path()),
                  "the file is damaged: " + row.reason + ". Restore it from a copy.")
            << row.sql;
    }

    static inline DamagedDocument* _document = nullptr;
};

}  // namespace damagetest
