// SPDX-License-Identifier: Apache-2.0
// Features behind interfaces, and documents behind pointers.
#include "host/analysis/AnalysisObjects.h"

#include "VEXAnalysisModel.h"

namespace vex {

Feature* AnalysisManagerOf(const Document& document)
{
    const Feature* const container = document.SpecContainer();
    return container == nullptr ? nullptr : FirstChild<VEXISamAnalysisManager>(*container);
}

std::string TextOf(const DocumentArgument& argument)
{
    if (argument.document == nullptr) {
        return "null";
    }
    const Document* const document = Document::From(argument.document);
    return document == nullptr ? "no open document" : Document::ComponentName(document->DocType());
}

}  // namespace vex
