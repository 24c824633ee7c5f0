// SPDX-License-Identifier: Apache-2.0
// `hlx tree DOC`: the feature tree of a document, as the tree dump of the test cases shows it.
#include "Commands.h"
#include "DocumentContents.h"
#include "HLXProductUtilities.h"
#include "OpenedDocument.h"

namespace hlx {

namespace {

/// What a document's tree is shown from: the models of an analysis document, the roots of another
/// one. False when they could not all be had.
bool AppendTreeRoots(const OpenedDocument& opened, VEXListValVEXBaseUnknown_var& roots)
{
    if (opened.Inside()->DocType() != vex::DocumentType::Analysis) {
        return AppendRoots(*opened.Get(), roots);
    }
    const VEXISamAnalysisManager_var manager = AnalysisManagerOf(*opened.Get());
    return manager && AppendModels(*manager.Get(), roots);
}

}  // namespace

int PrintTree(const std::string& path)
{
    const OpenedDocument opened(path);
    if (opened.Inside() == nullptr) {
        return Failed;
    }
    VEXListValVEXBaseUnknown_var roots;
    bool complete = AppendTreeRoots(opened, roots);
    for (int i = 1; i <= roots.Size(); ++i) {
        const VEXINavigateObject_var root = roots[i];
        HLXGenString text;
        if (root && SUCCEEDED(DumpFeatureTree(root.Get(), 0, text)) && text.Length() > 0) {
            Write({text.c_str(), text.Length()});
        } else {
            complete = Report("a tree of " + vex::system::Quoted(path) + " cannot be shown");
        }
    }
    return complete ? Done : Failed;
}

}  // namespace hlx
