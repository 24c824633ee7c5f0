// SPDX-License-Identifier: Apache-2.0
// The order of an input file.
#include "product/inputfile/InputFile.h"

#include "VEXAnalysisModel.h"
#include "host/feature/Document.h"
#include "product/inputfile/FeatureWriter.h"
#include "product/inputfile/StructureWriter.h"

namespace hlx {

bool MakeInputFile(const std::vector<vex::Feature*>& cases, InputFileForm form, std::string& text,
                   std::string& error)
{
    Structure structure;
    const vex::Feature& model = *cases.front()->Parent();
    if (!ReadStructure(model.Tree()->Owner(), structure, error)) {
        return false;
    }
    Deck deck;
    deck.KeywordLine("HEADING");
    for (const vex::Feature* const analysisCase : cases) {
        deck.QuotedData(analysisCase->Alias());
    }
    deck.Comment("structure");
    if (form == InputFileForm::Structured) {
        WriteStructured(deck, structure);
    } else {
        WriteFlat(deck, structure);
    }
    deck.Comment("model");
    FeatureWriter writer(deck, model);
    for (const vex::Feature* const feature : model.Children()) {
        if (!vex::Offers<VEXISamAnalysisCase>(*feature)) {
            writer.Write(*feature);
        }
    }
    deck.Comment("cases");
    for (const vex::Feature* const analysisCase : cases) {
        writer.Write(*analysisCase);
    }
    text += deck.Text();
    return true;
}

}  // namespace hlx
