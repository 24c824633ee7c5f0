// SPDX-License-Identifier: Apache-2.0
// An input of the fuzzer as changes to the rows of a document. It is a byte of switches (what is
// made right again afterwards) and then edits, each of them of an operation, a table, a row, a
// column and what the operation needs; every input means something.
#pragma once

#include "FuzzProcess.h"
#include "InputReader.h"

#include <vector>

namespace hlxfuzz {

/// A stored document whose columns take values of any type: as a file may hold them, though no
/// statement can put them there.
class EditableDocument
{
public:
    explicit EditableDocument(const std::string& file);

    /// The file to which the statements of EditsOf are to be applied.
    const std::string& Bytes() const { return _bytes; }

    /// The input as statements. The last of them give the columns their types again.
    std::string EditsOf(Input input) const;

private:
    struct Table
    {
        const char* name;
        std::vector<const char*> columns;  ///< the key, if there is one, in front
    };
    std::string EditOf(InputReader& input) const;

    std::string _bytes;
    std::vector<Table> _tables;
};

}  // namespace hlxfuzz
