// SPDX-License-Identifier: Apache-2.0
// `hlx tree DOC`: the feature tree of a document, as the tree dump of the test cases shows it.
#include "Commands.h"
#include "HLXProductUtilities.h"
#include "OpenedDocument.h"

#include <cstdio>

namespace hlx {

namespace {

/// What a document's tree is shown from: the models of an analysis document, the roots of another
/// one.
VEXListValVEXBaseUnknown_var TreeRoots(VEXDocument* document)
{
    VEXListValVEXBaseUnknown_var roots;
    VEXISamAnalysisManager_var manager;
    if (SUCCEEDED(HLXAnalysisDocUtils::GetAnalysisManager(manager, document)) && manager) {
        manager->GetAllAnalysisModels(roots);
    } else if (const VEXIDocRoots_var docRoots = VEXShare(document)) {
        if (VEXListValVEXBaseUnknown_var* const list = docRoots->GetRoots(); list != nullptr) {
            roots.Append(*list);
            delete list;
        }
    }
    return roots;
}

int PrintTree(const std::string& path)
{
    const OpenedDocument opened(path);
    if (opened.Get() == nullptr) {
        return Failed;
    }
    const VEXListValVEXBaseUnknown_var roots = TreeRoots(opened.Get());
    for (int i = 1; i <= roots.Size(); ++i) {
        const VEXINavigateObject_var root = roots[i];
        HLXGenString text;
        if (FAILED(DumpFeatureTree(root.Get(), 0, text))) {
            std::fprintf(stderr, "hlx: the tree of %s cannot be shown\n", path.c_str());
            return Failed;
        }
        std::fwrite(text.c_str(), 1, text.Length(), stdout);
    }
    return Done;
}

}  // namespace

void AddTreeCommand(CLI::App& program, int& exitCode)
{
    CLI::App* const command =
        program.add_subcommand("tree", "Print the feature tree of a document");
    static std::string path;
    command->add_option("DOC", path, "Document (.VEXAnalysis, .VEXProduct or .VEXPart)")
        ->required();
    command->callback([&exitCode] { exitCode = PrintTree(path); });
}

}  // namespace hlx
