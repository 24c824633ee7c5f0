// SPDX-License-Identifier: Apache-2.0
// An input of the fuzzer as the rows of a settings file.
#pragma once

#include "InputReader.h"

#include <compare>
#include <map>
#include <variant>
#include <vector>

namespace hlxfuzz {

class SettingsRows
{
public:
    explicit SettingsRows(Input input);

    /// Whether a settings file can hold these rows: texts without a fault, keys that are not empty.
    bool AreSound() const { return _sound; }

    /// The settings of those rows that are sound.
    const std::map<std::string, std::string>& Sound() const { return _settings; }

    /// Writes a settings file with these rows, their number and their digest.
    void Store(const std::string& path) const;

private:
    struct Blob
    {
        std::string bytes;
        auto operator<=>(const Blob&) const = default;
    };
    using Cell = std::variant<std::string, Blob, std::int64_t>;
    static Cell CellOf(InputReader& input);
    static std::string Literal(const Cell& cell);
    std::string Digested() const;  ///< what the digest is of, when the rows are sound

    std::vector<std::pair<Cell, Cell>> _rows;
    std::map<std::string, std::string> _settings;
    bool _sound = true;
    std::int64_t _countOff = 0;  ///< by how much the stated number of rows is wrong
};

}  // namespace hlxfuzz
