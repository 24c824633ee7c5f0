// SPDX-License-Identifier: Apache-2.0
// Lets SQLite work on a file that is open already, and on nothing else.
//
// SQLite's own way to a file reads its name (a URI, `:memory:`, 512 bytes at most), looks for
// journals and logs beside it and takes locks. A stored file needs none of that: it is written
// once, under a name of its own, and after that only read. Here SQLite sees one descriptor. When
// writing, every write goes through CurrentFileOperations(); when reading, the file counts as
// unchangeable: what changes under a reader shows in the digest of its content.
#pragma once

#include <string>

namespace vex::system {

/// The name under which SQLite knows these operations; registers them when first asked for. Null
/// when SQLite cannot be initialised.
const char* DescriptorVfs();

/// The name that makes SQLite work on the open file `descriptor` through DescriptorVfs(). The
/// descriptor stays the caller's and must outlive the connection.
std::string DescriptorName(int descriptor);

/// The error number of this thread's last operation that failed since it began with a descriptor:
/// SQLite itself does not keep it in every case. 0: none did.
int DescriptorError();

}  // namespace vex::system
