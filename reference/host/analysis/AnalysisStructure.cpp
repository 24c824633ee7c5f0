// SPDX-License-Identifier: Apache-2.0
// Makes the structure of a new analysis document.
#include "host/analysis/AnalysisStructure.h"

namespace vex {

void MakeAnalysisStructure(Document& document)
{
    LateTypes& types = LateTypes::Instance();
    FeatureTree& tree = document.Tree();
    Feature& container = tree.Create(types.Require("VEXSamAnalysisContainer"), nullptr);
    Feature& manager = tree.Create(types.Require("VEXSamAnalysisManager"), &container);
    Feature& model = tree.Create(types.Require("VEXSamAnalysisModel"), &manager);
    model.SetAlias("Finite Element Model.1");
    manager.Set("CurrentModel", Reference{model.Id()});
    tree.Create(types.Require("VEXBRepContainer"), nullptr);
}

}  // namespace vex
