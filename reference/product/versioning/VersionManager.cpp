// SPDX-License-Identifier: Apache-2.0
// Runs the version steps that a document needs. Its version rises with each, so that a failing step
// is where the next try starts.
#include "HLXProductUtilities.h"
#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"
#include "host/system/Texts.h"
#include "product/versioning/VersionSteps.h"

#include <cstdio>

namespace {

/// The document as messages name it.
std::string NameOf(const vex::Document& document)
{
    std::string name;
    vex::text::AppendQuoted(name, document.Path());
    return name;
}

HRESULT Upgrade(vex::Document& document, bool tell)
{
    const hlx::VersionSteps& steps = hlx::VersionSteps::Instance();
    while (document.DataVersion() < steps.Current()) {
        const unsigned from = document.DataVersion();
        const hlx::VersionStep* const step = steps.Find(from);
        if (step == nullptr) {
            std::fprintf(stderr,
                         "hlx: document %s: nothing upgrades data version %u; open and store it "
                         "with the release before this one\n",
                         NameOf(document).c_str(), from);
            return E_FAIL;
        }
        const HRESULT result = step->upgrade(document);
        if (FAILED(result)) {
            std::fprintf(stderr, "hlx: document %s: upgrade from data version %u failed: %s\n",
                         NameOf(document).c_str(), from, step->title);
            return result;
        }
        if (tell) {
            std::fprintf(stderr, "hlx: document %s: data version %u to %u: %s\n",
                         NameOf(document).c_str(), from, from + 1, step->title);
        }
        document.SetDataVersion(from + 1);
    }
    return S_OK;
}

}  // namespace

HRESULT HLXZPKVersionManager::HandleZPKVersioning(VEXDocument* document, int mode)
{
    return vex::Probe<"HLXZPKVersionManager::HandleZPKVersioning">(
        [&]() -> HRESULT {
            vex::Document* const found = vex::Document::From(document);
            if (found == nullptr || found->DocType() != vex::DocumentType::Analysis) {
                return E_INVALIDARG;
            }
            return Upgrade(*found, mode == 1);
        },
        vex::In(vex::DocumentArgument{document}), vex::In(mode));
}
