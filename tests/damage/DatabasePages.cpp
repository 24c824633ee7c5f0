// SPDX-License-Identifier: Apache-2.0
// A page's header is its kind (1 byte), the first free block (2), the number of cells (2), where
// the cells' contents begin (2), one byte and, of an interior page, its last child (4). Behind it
// stand the places of its cells (2 each). All numbers are big-endian.
#include "DatabasePages.h"

#include <stdexcept>

namespace damagetest {

namespace {

constexpr std::size_t kLeafHead = 8;
constexpr std::size_t kInteriorHead = 12;
constexpr std::size_t kCells = 3;
constexpr std::size_t kContents = 5;

}  // namespace

DatabasePages::DatabasePages(std::string bytes) : _bytes(std::move(bytes)), _pageSize(0)
{
    const std::uint64_t stored = Number(16, 2);
    _pageSize = stored == 1 ? 65536 : stored;
}

std::uint64_t DatabasePages::Number(std::size_t place, std::size_t size) const
{
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
        number = number << 8U | static_cast<unsigned char>(_bytes.at(place + i));
    }
    return number;
}

void DatabasePages::SetNumber(std::size_t place, std::size_t size, std::uint64_t number)
{
    for (std::size_t i = size; i > 0; --i, number >>= 8U) {
        _bytes.at(place + i - 1) = static_cast<char>(number & 0xFFU);
    }
}

std::size_t DatabasePages::Start(std::size_t page) const
{
    return (page - 1) * _pageSize;
}

std::size_t DatabasePages::HeadOf(std::size_t page) const
{
    return Start(page) + (page == 1 ? 100 : 0);
}

std::size_t DatabasePages::CellCount(std::size_t page) const
{
    return Number(HeadOf(page) + kCells, 2);
}

std::size_t DatabasePages::Add(const std::string& page)
{
    _bytes += page;
    const std::size_t count = _bytes.size() / _pageSize;
    SetNumber(28, 4, count);
    return count;
}

std::size_t DatabasePages::AddLeafOf(std::size_t page, std::size_t cell)
{
    const std::string contents = _bytes.substr(Start(page), _pageSize);
    const std::uint64_t place = Number(HeadOf(page) + kLeafHead + 2 * cell, 2);
    const std::size_t added = Add(contents);
    SetNumber(HeadOf(added), 1, TableLeaf);
    SetNumber(HeadOf(added) + 1, 2, 0);
    SetNumber(HeadOf(added) + kCells, 2, 1);
    SetNumber(HeadOf(added) + kContents, 2, place);
    SetNumber(HeadOf(added) + 7, 1, 0);
    SetNumber(HeadOf(added) + kLeafHead, 2, place);
    return added;
}

// Cells of five bytes: a child, and a row's number that nothing depends on.
void DatabasePages::WriteInterior(std::size_t page, const std::string& cells, std::size_t size,
                                  std::size_t last)
{
    const std::size_t head = HeadOf(page);
    const std::size_t count = cells.size() / size;
    _bytes.replace(Start(page) + _pageSize - cells.size(), cells.size(), cells);
    SetNumber(head, 1, Interior);
    SetNumber(head + 1, 2, 0);
    SetNumber(head + kCells, 2, count);
    SetNumber(head + kContents, 2, _pageSize - cells.size());
    SetNumber(head + 7, 1, 0);
    SetNumber(head + 8, 4, last);
    for (std::size_t i = 0; i < count; ++i) {
        SetNumber(head + kInteriorHead + 2 * i, 2, _pageSize - cells.size() + i * size);
    }
}

namespace {

std::string CellOf(std::size_t child)
{
    std::string cell;
    for (int shift = 24; shift >= 0; shift -= 8) {
        cell += static_cast<char>(child >> static_cast<unsigned>(shift) & 0xFFU);
    }
    return cell + '\x01';
}

}  // namespace

std::size_t DatabasePages::AddInterior(std::size_t child, std::size_t times)
{
    std::string cells;
    for (std::size_t i = 1; i < times; ++i) {
        cells += CellOf(child);
    }
    const std::size_t added = Add(std::string(_pageSize, '\0'));
    WriteInterior(added, cells, 5, child);
    return added;
}

void DatabasePages::LeadFromFirstPage(std::size_t first, std::size_t second)
{
    WriteInterior(1, CellOf(first), 5, second);
}

void DatabasePages::RepeatLastCell(std::size_t page)
{
    const std::size_t head = HeadOf(page);
    std::size_t count = CellCount(page);
    const std::uint64_t place = Number(head + kLeafHead + 2 * (count - 1), 2);
    const std::size_t room = Start(page) + Number(head + kContents, 2) - head - kLeafHead;
    const std::size_t most = (_pageSize - 8) / 6;
    for (; 2 * (count + 1) <= room && count < most; ++count) {
        SetNumber(head + kLeafHead + 2 * count, 2, place);
    }
    SetNumber(head + kCells, 2, count);
}

DatabasePages::Cell DatabasePages::LastCell(std::size_t page) const
{
    const std::size_t head = HeadOf(page);
    const bool isTable = Number(head, 1) == TableLeaf;
    const auto place = Number(head + kLeafHead + 2 * (CellCount(page) - 1), 2);
    Cell cell{Start(page) + place, 0, 0, 0};
    std::size_t next = cell.start;
    bool more = true;
    while (more) {
        const std::uint64_t byte = Number(next++, 1);
        cell.payload = cell.payload << 7U | (byte & 0x7FU);
        more = byte >= 0x80U;
    }
    cell.name = isTable ? next : next + Number(next, 1);
    next += isTable ? 1 : 0;
    const std::size_t most = isTable ? _pageSize - 35 : (_pageSize - 12) * 64 / 255 - 23;
    const std::size_t least = (_pageSize - 12) * 32 / 255 - 23;
    std::size_t local = cell.payload;
    if (local > most) {
        local = least + (cell.payload - least) % (_pageSize - 4);
        local = local > most ? least : local;
    }
    cell.size = next - cell.start + local + (local < cell.payload ? 4 : 0);
    return cell;
}

std::size_t DatabasePages::FindLeafOfLong(Kind kind, std::size_t size) const
{
    for (std::size_t page = 1; page <= _bytes.size() / _pageSize; ++page) {
        if (Number(HeadOf(page), 1) == kind && CellCount(page) > 0 &&
            LastCell(page).payload > size) {
            return page;
        }
    }
    return 0;
}

void DatabasePages::AddSharingCell(std::size_t page)
{
    const std::size_t head = HeadOf(page);
    const std::size_t count = CellCount(page);
    const Cell cell = LastCell(page);
    const std::size_t place = Number(head + kContents, 2) - cell.size;
    if (Start(page) + place < head + kLeafHead + 2 * (count + 1)) {
        throw std::length_error("the page has no room for the cell");
    }
    _bytes.replace(Start(page) + place, cell.size, _bytes.substr(cell.start, cell.size));
    const std::size_t name = Start(page) + place + (cell.name - cell.start);
    SetNumber(name, 1, Number(name, 1) + 1);
    SetNumber(head + kLeafHead + 2 * count, 2, place);
    SetNumber(head + kCells, 2, count + 1);
    SetNumber(head + kContents, 2, place);
}

}  // namespace damagetest
