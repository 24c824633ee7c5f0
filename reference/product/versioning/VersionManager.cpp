// SPDX-License-Identifier: Apache-2.0
// Runs the version steps that a document needs. Its version rises with each, so that a failing step
// is where the next try starts.
#include "HLXProductUtilities.h"
#include "host/analysis/AnalysisObjects.h"
#include "host/feature/Refusal.h"
#include "host/system/Probe.h"
#include "host/system/Texts.h"
#include "product/versioning/VersionSteps.h"

#include <fmt/format.h>

namespace {

HRESULT Upgrade(vex::Document& document, bool tell)
{
    const hlx::VersionSteps& steps = hlx::VersionSteps::Instance();
    while (document.DataVersion() < steps.Current()) {
        const unsigned from = document.DataVersion();
        const hlx::VersionStep* const step = steps.Find(from);
        if (step == nullptr) {
            return vex::Refuse(
                E_FAIL, fmt::format("document {}: nothing upgrades data version {}; open and store "
                                    "it with the release before this one",
                                    vex::text::DoubleQuoted(document.Path()), from));
        }
        const HRESULT result = step->upgrade(document);
        if (FAILED(result)) {
            return vex::Refuse(
                result, fmt::format("document {}: upgrade from data version {} failed: {}",
                                    vex::text::DoubleQuoted(document.Path()), from, step->title));
        }
        if (tell) {
            vex::Tell(fmt::format("document {}: data version {} to {}: {}",
                                  vex::text::DoubleQuoted(document.Path()), from, from + 1,
                                  step->title));
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
