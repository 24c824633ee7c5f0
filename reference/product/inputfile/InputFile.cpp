// SPDX-License-Identifier: Apache-2.0
// The order of an input file.
#include "product/inputfile/InputFile.h"

#include "HLXJobs.h"
#include "HLXProductUtilities.h"
#include "VEXAnalysisModel.h"
#include "host/feature/Document.h"
#include "host/feature/FeatureSearch.h"
#include "host/system/Texts.h"
#include "product/inputfile/FeatureWriter.h"
#include "product/inputfile/StructureWriter.h"

namespace hlx {

namespace {

void AppendJob(std::string& text, const HLXIJob_var& job)
{
    const vex::Feature* const feature = vex::FeatureBehind(job.Get());
    if (feature == nullptr || feature->Alias().empty()) {
        text += "(no name)";
    } else {
        vex::text::AppendQuoted(text, feature->Alias());
    }
    unsigned char singlePart = 0;
    if (SUCCEEDED(job->GetSinglePart(singlePart)) && singlePart != 0) {
        text += " (one part)";
    }
}

/// A comment that names the jobs of a case. What they hold besides is of the machine that runs
/// them.
void WriteJobs(Deck& deck, vex::Feature& analysisCase)
{
    VEXListValVEXBaseUnknown_var cases;
    VEXListValVEXBaseUnknown_var jobs;
    cases.Append(vex::FaceOf<VEXISamAnalysisCase>(&analysisCase));
    if (FAILED(HLXAnalysisDocUtils::GetJobs(cases, jobs)) || jobs.Size() == 0) {
        return;
    }
    std::string text = "jobs of ";
    vex::text::AppendQuoted(text, analysisCase.Alias());
    for (int i = 1; i <= jobs.Size(); ++i) {
        text += i == 1 ? ": " : ", ";
        AppendJob(text, jobs[i]);
    }
    deck.Comment(text);
}

void WriteHeading(Deck& deck, const std::vector<vex::Feature*>& cases)
{
    deck.KeywordLine("HEADING");
    for (const vex::Feature* const analysisCase : cases) {
        deck.QuotedData(analysisCase->Alias());
    }
    for (vex::Feature* const analysisCase : cases) {
        WriteJobs(deck, *analysisCase);
    }
}

bool WriteFeatures(Deck& deck, const std::vector<vex::Feature*>& cases, Regions& regions,
                   std::string& error)
{
    const vex::Feature& model = *cases.front()->Parent();
    FeatureWriter writer(deck, model, regions);
    deck.Comment("model");
    for (const vex::Feature* const feature : model.Children()) {
        if (!vex::Offers<VEXISamAnalysisCase>(*feature) && !writer.Write(*feature, error)) {
            return false;
        }
    }
    deck.Comment("cases");
    for (const vex::Feature* const analysisCase : cases) {
        if (!writer.Write(*analysisCase, error)) {
            return false;
        }
    }
    return true;
}

}  // namespace

// The regions that the features are about stand with the structure, in front of them.
bool MakeInputFile(const std::vector<vex::Feature*>& cases, InputFileForm form, std::string& text,
                   std::string& error)
{
    Structure structure;
    if (!ReadStructure(cases.front()->Tree()->Owner(), structure, error)) {
        return false;
    }
    Regions regions(structure);
    Deck features;
    if (!WriteFeatures(features, cases, regions, error)) {
        return false;
    }
    Deck deck;
    WriteHeading(deck, cases);
    deck.Comment("structure");
    if (form == InputFileForm::Structured) {
        WriteStructured(deck, structure, regions);
    } else {
        WriteFlat(deck, structure, regions);
    }
    text += deck.Text();
    text += features.Text();
    return true;
}

}  // namespace hlx
