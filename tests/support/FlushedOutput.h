// SPDX-License-Identifier: Apache-2.0
// Stands in for standard output while it lives, and tells what had been flushed.
#pragma once

#include <functional>
#include <iostream>
#include <sstream>
#include <string>

namespace hlxtest {

class FlushedOutput : private std::stringbuf
{
public:
    FlushedOutput() : _former(std::cout.rdbuf(this)) {}
    ~FlushedOutput() override { std::cout.rdbuf(_former); }
    FlushedOutput(const FlushedOutput&) = delete;
    FlushedOutput& operator=(const FlushedOutput&) = delete;

    /// Called at each flush, if given.
    std::function<void()> atFlush;

    /// What was written up to the last flush.
    const std::string& Text() const { return _flushed; }

private:
    int sync() override
    {
        _flushed = str();
        if (atFlush) {
            atFlush();
        }
        return 0;
    }

    std::streambuf* _former;
    std::string _flushed;
};

}  // namespace hlxtest
