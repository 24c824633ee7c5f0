// SPDX-License-Identifier: Apache-2.0
// From documents to their current models.
#include "product/cases/AnalysisDocuments.h"

#include "VEXAnalysisModel.h"
#include "host/analysis/AnalysisObjects.h"

namespace hlx {

const vex::Document* AnalysisDocument(const VEXDocument* document)
{
    const vex::Document* const found = vex::Document::From(document);
    return found == nullptr || found->DocType() != vex::DocumentType::Analysis ? nullptr : found;
}

vex::Feature* CurrentModelOf(const vex::Document& document)
{
    const vex::Feature* const manager = vex::AnalysisManagerOf(document);
    vex::Feature* const model = manager == nullptr ? nullptr : manager->Target("CurrentModel");
    return model == nullptr || !vex::Offers<VEXISamAnalysisModel>(*model) ? nullptr : model;
}

}  // namespace hlx
