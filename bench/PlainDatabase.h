// SPDX-License-Identifier: Apache-2.0
// The baseline of documents: the same features in plain SQLite, a row a feature and a row an
// attribute, as straight and as fast as it can be written by hand. Nothing is checked.
#pragma once

#include "PlainFeature.h"

#include <string>
#include <vector>

namespace bench {

/// How the rows of attributes are kept.
enum class AttributeTable { Rowid, WithoutRowid };

/// Writes a new file in one transaction with prepared statements.
void WritePlain(const std::string& path, AttributeTable table,
                const std::vector<PlainFeature>& features);

/// Reads it back whole.
std::vector<PlainFeature> ReadPlain(const std::string& path, AttributeTable table);

}  // namespace bench
