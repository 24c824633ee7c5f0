// SPDX-License-Identifier: Apache-2.0
// A sound document, and what becomes of it when its file is damaged and opened.
#pragma once

#include "LimitedChild.h"
#include "support/TemporaryFolder.h"

#include <functional>
#include <string>

namespace damagetest {

/// What a child answers that opened a damaged file.
enum Opening : int {
    kSame = 0,              ///< opened, and its contents are those of the sound document
    kRefused = 10,          ///< refused, nothing left open, and the mended file opened as ever
    kGeometryRefused = 11,  ///< opened with the same features; the geometry was refused when read
    kDifferent = 20,        ///< opened with other contents: a silent change
    kUnclean = 21,          ///< refused, but something stayed behind, or the mended file is refused
};

/// A stored document with something in every table and a feature of every late type.
class DamagedDocument
{
public:
    DamagedDocument();

    const std::string& Path() const { return _path; }
    /// The sound file, and all that the document in it holds.
    const std::string& Bytes() const { return _bytes; }
    const std::string& Contents() const { return _contents; }

    /// Lets a child put `damage` to the file's path, which holds the sound file, and open it.
    ChildEnd Open(const std::function<void(const std::string& path)>& damage) const;

    /// The same with other bytes in the file.
    ChildEnd OpenBytes(const std::string& bytes) const;

    /// The same with rows changed by SQL and the digest made right again.
    ChildEnd OpenResealed(const std::string& sql) const;

private:
    int TryToOpen() const;

    hlxtest::TemporaryFolder _folder;
    std::string _path;
    std::string _bytes;
    std::string _contents;
};

/// What a refusal says behind "vex: 'PATH': ": its one line to standard error, which the test
/// expects to be one and to end as a sentence does.
std::string ReasonOf(const ChildEnd& end, const std::string& path);

}  // namespace damagetest
