// SPDX-License-Identifier: Apache-2.0
// Bytes as a document file. Few get past the digest; document_rows is for what comes behind it.
#include "DocumentCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string path = hlxfuzz::InFolder("in.VEXAnalysis");
    hlxfuzz::WriteFile(path, hlxfuzz::TextOf({data, size}));
    hlxfuzz::CheckDocument(path);
    return 0;
}
