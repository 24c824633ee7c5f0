// SPDX-License-Identifier: Apache-2.0
// An open file that closes itself.
#pragma once

#include "VEXTypes.h"

#include <utility>

namespace vex::system {

/// Owns one file descriptor, or none (-1). Moving hands it on.
class VEX_EXPORT Descriptor
{
public:
    Descriptor() = default;
    /// Takes ownership of `number`; a negative number is none.
    explicit Descriptor(int number) : _number(number) {}
    Descriptor(Descriptor&& other) noexcept : _number(std::exchange(other._number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        if (this != &other) {
            Close();
            _number = std::exchange(other._number, -1);
        }
        return *this;
    }
    ~Descriptor() { Close(); }

    int Number() const { return _number; }
    bool IsOpen() const { return _number >= 0; }

    /// Hands the number to the caller, who owns it from then on.
    int Release() { return std::exchange(_number, -1); }

    /// Closes the file now. Returns 0, or the error number by which closing reports that bytes
    /// written earlier were lost.
    int Close();

    /// `number`, or its copy above the three standard streams: a process started with a standard
    /// stream closed gets that number for its next file, and whatever is printed would go into it.
    static int AboveStandardStreams(int number);

private:
    int _number = -1;
};

}  // namespace vex::system
