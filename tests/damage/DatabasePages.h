// SPDX-License-Identifier: Apache-2.0
// The pages of an SQLite database as bytes, to be put together as no program writes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace damagetest {

class DatabasePages
{
public:
    /// The kinds of page: of tables, and of indexes and tables without row numbers.
    enum Kind : unsigned char { Interior = 0x05, IndexLeaf = 0x0A, TableLeaf = 0x0D };

    /// A database file's content.
    explicit DatabasePages(std::string bytes);

    /// The file's content as it is now; its header tells the number of pages.
    const std::string& Bytes() const { return _bytes; }

    /// The cells of a leaf; a page's number is from 1.
    std::size_t CellCount(std::size_t page) const;

    /// Adds a copy of a leaf that has only its `cell`-th cell, from 0. Answers its number.
    std::size_t AddLeafOf(std::size_t page, std::size_t cell);

    /// Adds a page that leads `times` times to the page `child`. Answers its number.
    std::size_t AddInterior(std::size_t child, std::size_t times);

    /// Makes the first page lead to `first` and then to `second`.
    void LeadFromFirstPage(std::size_t first, std::size_t second);

    /// Makes the leaf `page` name its last cell again and again, as often as a page may.
    void RepeatLastCell(std::size_t page);

    /// The leaf of this kind whose last cell has more than `size` bytes; 0 when there is none.
    std::size_t FindLeafOfLong(Kind kind, std::size_t size) const;

    /// Adds, behind the last cell of a leaf, one that shares its overflow pages. What tells it from
    /// that one is one higher: the row's number, or the first byte of its first value.
    void AddSharingCell(std::size_t page);

private:
    struct Cell
    {
        std::size_t start;    ///< in the file
        std::size_t payload;  ///< bytes, those on overflow pages included
        std::size_t size;     ///< on this page
        std::size_t name;     ///< the byte, in the file, that tells it from its neighbours
    };
    std::uint64_t Number(std::size_t place, std::size_t size) const;
    void SetNumber(std::size_t place, std::size_t size, std::uint64_t number);
    std::size_t Start(std::size_t page) const;   ///< in the file
    std::size_t HeadOf(std::size_t page) const;  ///< the same of the page's own header
    Cell LastCell(std::size_t page) const;
    std::size_t Add(const std::string& page);
    void WriteInterior(std::size_t page, const std::string& cells, std::size_t size,
                       std::size_t last);

    std::string _bytes;
    std::size_t _pageSize;
};

}  // namespace damagetest
