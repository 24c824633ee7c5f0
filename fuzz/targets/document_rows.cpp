// SPDX-License-Identifier: Apache-2.0
// A document whose rows the input changes (RowEdits.h says how) and whose digest is right again:
// the checks behind the digest meet it, and what gets past these is used. Two bits of the input's
// first byte choose the document.
#include "DocumentCheck.h"
#include "RowEdits.h"
#include "SampleDocuments.h"
#include "support/ResealedDocument.h"

namespace {

const hlxfuzz::EditableDocument& Original(unsigned choice)
{
    using namespace hlxfuzz;
    static const EditableDocument analysis(SampleAnalysis());
    static const EditableDocument product(SampleProduct());
    static const EditableDocument part(SamplePart());
    return choice < 2 ? analysis : choice == 2 ? product : part;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool linked = hlxfuzz::StoreLinkedSamples();
    hlxfuzz::Require(linked, "what the document links to is there");
    const hlxfuzz::EditableDocument& original = Original(size == 0 ? 0U : data[0] >> 6U);
    const std::string path = hlxfuzz::InFolder("in.VEXAnalysis");
    hlxfuzz::WriteFile(path, original.Bytes());
    std::string error;
    const bool changed = hlxtest::ChangeAndReseal(path, original.EditsOf({data, size}), error);
    hlxfuzz::Require(changed, "the edits of an input are statements that run: " + error);
    hlxfuzz::CheckDocument(path);
    return 0;
}
