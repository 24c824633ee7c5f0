// SPDX-License-Identifier: Apache-2.0
// What every document file has in common: its identity, its version, its tables.
#pragma once

#include "host/system/Schema.h"

namespace vex::store {

/// Stands in the header of every document ("VEXD").
inline constexpr int kApplicationId = 0x56455844;

/// The data version of documents written today.
inline constexpr int kDataVersion = 1;

/// The tables of a document (schema.sql).
const system::Schema& DocumentSchema();

}  // namespace vex::store
