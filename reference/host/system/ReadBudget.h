// SPDX-License-Identifier: Apache-2.0
// What reading a stored file may cost: no more than the file has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace vex::system {

/// Counts the bytes that rows hand out. Rows that share their bytes, as no writer makes them, would
/// let a small file cost memory and time without end.
class ReadBudget
{
public:
    /// For the open file `file`.
    explicit ReadBudget(int file);

    /// Accounts for a value's bytes. False with the reason when the rows had more than the file.
    bool Take(std::size_t bytes, std::string& reason)
    {
        if (bytes <= _left) {
            _left -= bytes;
            return true;
        }
        _left = 0;
        reason = "the rows hold more bytes than the file has";
        return false;
    }

private:
    std::uint64_t _left;
};

}  // namespace vex::system
