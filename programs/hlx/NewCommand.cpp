// SPDX-License-Identifier: Apache-2.0
// `hlx new`: an analysis document linked to a part or an assembly that is read from STEP.
#include "Commands.h"
#include "DocumentContents.h"
#include "HLXIAnalysisCase.h"
#include "Messages.h"
#include "StepCodes.h"
#include "VEXComponents.h"
#include "VEXDocumentServices.h"
#include "host/feature/Feature.h"
#include "host/product/StepImport.h"
#include "host/system/MessageTexts.h"
#include "host/system/Path.h"
#include "product/steps/StepBuilder.h"

#include <fmt/format.h>

#include <filesystem>
#include <system_error>

namespace hlx {

namespace {

namespace fs = std::filesystem;
using vex::system::Quoted;

/// Adds a case with its steps at the end of the document's current model.
bool AddCase(VEXDocument* document, const std::vector<StepCode>& steps)
{
    void* object = nullptr;
    const HRESULT had =
        VEXInstantiateComponent("HLXHacAnalysisCaseFact", IID_HLXIHacAnalysisCaseFact, &object);
    const auto factory = VEXAdopt(static_cast<HLXIHacAnalysisCaseFact*>(object));
    if (FAILED(had) || !factory) {
        return Report("the factory of analysis cases cannot be had");
    }
    VEXISamAnalysisCase* raw = nullptr;
    const HRESULT made =
        factory->CreateAnalysisCase(raw, document, HLXIAnalysisCase::StructuralAnalysis);
    const auto analysisCase = VEXAdopt(raw);
    if (FAILED(made) || !analysisCase) {
        return Report("the analysis case cannot be made");
    }
    auto& feature = static_cast<vex::Feature&>(*analysisCase->GetImpl());
    int position = 0;
    for (const StepCode& step : steps) {
        std::string error;
        const std::string name = fmt::format("{}{}", step.namePrefix, ++position);
        if (!AddStep(feature, step.lateType, name, error)) {
            return Report(error);
        }
    }
    return true;
}

/// Links the analysis document to the stored document that holds its geometry.
bool Link(VEXDocument* document, const std::string& geometryPath)
{
    VEXDocument* geometry = nullptr;
    if (FAILED(VEXDocumentServices::OpenDocument(VEXUnicodeString(geometryPath), geometry, 1)) ||
        geometry == nullptr) {
        return Report(Quoted(geometryPath) + " cannot be opened");
    }
    const VEXISamAnalysisManager_var manager = AnalysisManagerOf(*document);
    if (!manager) {
        return false;
    }
    const VEXISamDocumentManager_var documentManager = DocumentManagerOf(*manager.Get());
    return documentManager &&
           (SUCCEEDED(documentManager->AddLink(geometry)) ||
            Report("the analysis document cannot be linked to " + Quoted(geometryPath)));
}

bool Fill(VEXDocument* document, const std::string& out, int cases,
          const std::vector<StepCode>& steps)
{
    for (int i = 0; i < cases; ++i) {
        if (!AddCase(document, steps)) return false;
    }
    // The host tells the reason of a refusal itself.
    return SUCCEEDED(VEXDocumentServices::SaveAs(*document, VEXUnicodeString(out), "", 0));
}

/// Imports the STEP file beside the analysis document that is to be written.
bool Import(const NewOptions& options, std::string& geometryPath)
{
    std::error_code code;
    const fs::path out = fs::absolute(options.out, code);
    if (code) {
        return Report(fmt::format("{}: the current folder cannot be had ({}). Give the whole path.",
                                  Quoted(options.out), vex::system::SystemReason(code.value())));
    }
    std::string error;
    Progress("reading " + Quoted(options.from));
    const auto progress = [](std::size_t done, std::size_t total, const std::string& fileName) {
        Progress(fmt::format("[{}/{}] writing {}", done + 1, total, Quoted(fileName)));
    };
    return vex::ImportStep(options.from, out.parent_path().string(), out.stem().string(),
                           geometryPath, error, progress) ||
           Report(error);
}

/// Whether a file can be made under that path, as far as this can be seen beforehand.
bool IsFree(const std::string& path)
{
    std::string error;
    if (!vex::system::CheckPath(path, error)) {
        return Report(error);
    }
    std::error_code code;
    const fs::file_status status = fs::symlink_status(path, code);
    if (fs::exists(status)) {
        return Report(Quoted(path) + " exists: name another file or remove it");
    }
    return status.type() == fs::file_type::not_found ||
           Report(fmt::format("{}: {}. Name a file in a folder that can be reached.", Quoted(path),
                              vex::system::SystemReason(code.value())));
}

/// Writes the analysis document that is linked to the imported geometry.
bool WriteAnalysis(const NewOptions& options, const std::vector<StepCode>& steps,
                   const std::string& geometryPath)
{
    VEXDocument* document = nullptr;
    if (FAILED(VEXDocumentServices::New("VEXAnalysis", document)) || document == nullptr) {
        return Report("an analysis document cannot be made");
    }
    const bool written =
        Link(document, geometryPath) && Fill(document, options.out, options.cases, steps);
    VEXDocumentServices::Remove(*document, 1);
    return written;
}

}  // namespace

int MakeDocument(const NewOptions& options)
{
    std::vector<StepCode> steps;
    std::string error;
    if (!ParseStepCodes(options.steps, steps, error)) {
        Report(error);
        return WrongCommandLine;
    }
    if (!options.out.ends_with(".VEXAnalysis")) {
        Report(Quoted(options.out) +
               " is no name for an analysis document: end it in .VEXAnalysis");
        return WrongCommandLine;
    }
    std::string geometryPath;
    if (!IsFree(options.out) || !Import(options, geometryPath)) {
        return Failed;
    }
    if (!WriteAnalysis(options, steps, geometryPath)) {
        Report(Quoted(options.out) + " was not written; the documents of its geometry stay");
        return Failed;
    }
    Progress(fmt::format("wrote {} with {} analysis case(s), linked to {}", Quoted(options.out),
                         options.cases, Quoted(geometryPath)));
    return Done;
}

}  // namespace hlx
