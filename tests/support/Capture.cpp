// SPDX-License-Identifier: Apache-2.0
#include "support/Capture.h"

#include <gtest/gtest.h>

#include <cstdio>

#include <sys/mman.h>
#include <unistd.h>

namespace hlxtest {

namespace {

/// Leads a stream of this process to memory while it lives, and then writes down what came.
class MemoryStream
{
public:
    MemoryStream(std::FILE* stream, std::string& text)
        : _stream(stream),
          _text(text),
          _kept(::dup(::fileno(stream))),
          _memory(::memfd_create("captured", MFD_CLOEXEC))
    {
        EXPECT_GE(_kept, 0);
        std::fflush(_stream);
        EXPECT_GE(::dup2(_memory, ::fileno(_stream)), 0);
    }
    ~MemoryStream()
    {
        std::fflush(_stream);
        EXPECT_GE(::dup2(_kept, ::fileno(_stream)), 0);
        ::close(_kept);
        const off_t size = ::lseek(_memory, 0, SEEK_END);
        EXPECT_GE(size, 0);
        _text.resize(static_cast<std::size_t>(size));
        EXPECT_EQ(::pread(_memory, _text.data(), _text.size(), 0), size);
        ::close(_memory);
    }
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;

private:
    std::FILE* _stream;
    std::string& _text;
    int _kept;
    int _memory;
};

}  // namespace

Captured Capture(const std::function<void()>& body)
{
    Captured captured;
    {
        const MemoryStream out(stdout, captured.out);
        const MemoryStream err(stderr, captured.err);
        body();
    }
    return captured;
}

std::string StandardErrorOf(const std::function<void()>& body)
{
    std::string text;
    {
        const MemoryStream err(stderr, text);
        body();
    }
    return text;
}

}  // namespace hlxtest
