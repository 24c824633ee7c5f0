// SPDX-License-Identifier: Apache-2.0
// `hlx new`: an analysis document linked to a part or an assembly that is read from STEP.
#include "Commands.h"
#include "HLXIAnalysisCase.h"
#include "HLXProductUtilities.h"
#include "StepCodes.h"
#include "VEXComponents.h"
#include "VEXDocumentServices.h"
#include "host/feature/Feature.h"
#include "host/product/StepImport.h"
#include "product/steps/StepBuilder.h"

#include <fmt/format.h>

#include <filesystem>

namespace hlx {

namespace {

struct NewOptions
{
    std::string out;
    std::string from;
    int cases = 1;
    std::string steps;
};

bool Report(std::string_view reason)
{
    fmt::print(stderr, "hlx: {}\n", reason);
    return false;
}

void Progress(std::string_view what)
{
    fmt::print(stderr, "{}\n", what);
}

/// Adds a case with its steps at the end of the document's current model.
bool AddCase(VEXDocument* document, const std::vector<StepCode>& steps)
{
    void* object = nullptr;
    if (FAILED(VEXInstantiateComponent("HLXHacAnalysisCaseFact", IID_HLXIHacAnalysisCaseFact,
                                       &object))) {
        return Report("the factory of analysis cases cannot be had");
    }
    const auto factory = VEXAdopt(static_cast<HLXIHacAnalysisCaseFact*>(object));
    VEXISamAnalysisCase* raw = nullptr;
    if (FAILED(factory->CreateAnalysisCase(raw, document, HLXIAnalysisCase::StructuralAnalysis))) {
        return Report("the analysis case cannot be made");
    }
    const auto analysisCase = VEXAdopt(raw);
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
    if (FAILED(VEXDocumentServices::OpenDocument(VEXUnicodeString(geometryPath), geometry, 1))) {
        return false;
    }
    VEXISamAnalysisManager_var manager;
    VEXISamDocumentManager_var documentManager;
    const bool linked = SUCCEEDED(HLXAnalysisDocUtils::GetAnalysisManager(manager, document)) &&
                        SUCCEEDED(manager->GetDocumentManager(documentManager)) &&
                        SUCCEEDED(documentManager->AddLink(geometry));
    return linked || Report("the analysis document cannot be linked to " + geometryPath);
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
    const std::filesystem::path out = std::filesystem::absolute(options.out);
    std::string error;
    Progress(fmt::format("reading {}", options.from));
    const auto progress = [](std::size_t done, std::size_t total, const std::string& fileName) {
        Progress(fmt::format("[{}/{}] writing {}", done + 1, total, fileName));
    };
    return vex::ImportStep(options.from, out.parent_path().string(), out.stem().string(),
                           geometryPath, error, progress) ||
           Report(error);
}

int MakeDocument(const NewOptions& options)
{
    std::vector<StepCode> steps;
    std::string error;
    if (!ParseStepCodes(options.steps, steps, error)) {
        Report(error);
        return WrongCommandLine;
    }
    if (!options.out.ends_with(".VEXAnalysis")) {
        Report(fmt::format("'{}' is no name for an analysis document: end it in .VEXAnalysis",
                           options.out));
        return WrongCommandLine;
    }
    if (std::filesystem::exists(options.out)) {
        Report(fmt::format("{} exists: name another file or remove it", options.out));
        return Failed;
    }
    std::string geometryPath;
    VEXDocument* document = nullptr;
    if (!Import(options, geometryPath) ||
        FAILED(VEXDocumentServices::New("VEXAnalysis", document))) {
        return Failed;
    }
    const bool written =
        Link(document, geometryPath) && Fill(document, options.out, options.cases, steps);
    VEXDocumentServices::Remove(*document, 1);
    if (!written) {
        Report(fmt::format("{} was not written; the documents of its geometry stay", options.out));
        return Failed;
    }
    Progress(fmt::format("wrote {} with {} analysis case(s), linked to {}", options.out,
                         options.cases, geometryPath));
    return Done;
}

}  // namespace

void AddNewCommand(CLI::App& program, int& exitCode)
{
    CLI::App* const command = program.add_subcommand(
        "new", "Make an analysis document linked to a part or an assembly read from a STEP file");
    static NewOptions options;
    command
        ->add_option("OUT", options.out,
                     "Analysis document to write (.VEXAnalysis); the documents of parts and "
                     "assemblies are written beside it")
        ->required();
    command->add_option("--from", options.from, "STEP file of a part or an assembly")->required();
    command->add_option("--cases", options.cases, "Number of analysis cases")
        ->capture_default_str()
        ->check(CLI::Range(0, 1000));
    command->add_option(
        "--steps", options.steps,
        "Steps of each case, codes separated by commas: GSS general static, SPS static linear "
        "perturbation, RS Riks, HTS heat transfer, EDS explicit dynamic");
    command->callback([&exitCode] { exitCode = MakeDocument(options); });
}

}  // namespace hlx
