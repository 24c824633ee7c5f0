// SPDX-License-Identifier: Apache-2.0
// Writes features in batches: SQLite takes twice the time for a row when each is a statement of its
// own, so rows are collected here and SQLite reads them as the rows of a (virtual) table.
#pragma once

#include "host/store/ContentCheck.h"
#include "host/store/Rows.h"
#include "host/system/Database.h"

#include <string>
#include <vector>

namespace vex::store {

/// Collects rows of the table `feature` and inserts them. It must outlive the connection it is
/// attached to, or be detached first.
class FeatureBatch
{
public:
    FeatureBatch() = default;
    FeatureBatch(const FeatureBatch&) = delete;
    FeatureBatch& operator=(const FeatureBatch&) = delete;

    /// Begins: the table exists in `database` and has no rows. False with the reason.
    bool Attach(system::Database& database, std::string& reason);

    /// Ends, before the database is closed; rows not yet inserted are dropped.
    void Detach();

    /// Adds a row; its texts and bytes are copied. When the batch is full it is inserted: false
    /// then when that failed.
    bool Add(const FeatureRow& feature, std::int64_t ordinal);

    /// Inserts the rows that are waiting. False when that failed.
    bool Flush();

private:
    friend struct FeatureBatchTable;  // SQLite's view of the rows that wait
    struct Waiting
    {
        FeatureRow row;  // its views are set anew when the batch is inserted
        std::int64_t ordinal;
        std::size_t aliasStart;
        std::size_t aliasSize;
        std::size_t attributesStart;
        std::size_t attributesSize;
    };

    system::Statement _insert;
    std::vector<Waiting> _waiting;
    std::vector<char> _bytes;  // aliases and attributes of the waiting rows
};

}  // namespace vex::store
