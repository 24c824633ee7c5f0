// SPDX-License-Identifier: Apache-2.0
// Makes the containers of output requests.
#include "product/steps/StepContainerFactory.h"

#include "host/feature/FeatureSearch.h"
#include "host/feature/FeatureTree.h"
#include "host/system/Probe.h"

namespace hlx {

namespace {

HRESULT MakeOnce(vex::Feature& step, const char* container)
{
    if (step.Tree() == nullptr) {
        return E_FAIL;
    }
    if (vex::FirstChildOfType(step, container) == nullptr) {
        vex::AddFeature(step, container);
    }
    return S_OK;
}

}  // namespace

HRESULT StepContainerFactory::CreateFieldOutputRequestContainer()
{
    return vex::Probe<"HLXIContainerFactoryStep::CreateFieldOutputRequestContainer">(
        [&] { return MakeOnce(Self(), "HLXFieldOutputRequestContainerLT"); });
}

HRESULT StepContainerFactory::CreateHistoryOutputRequestContainer()
{
    return vex::Probe<"HLXIContainerFactoryStep::CreateHistoryOutputRequestContainer">(
        [&] { return MakeOnce(Self(), "HLXHistoryOutputRequestContainerLT"); });
}

}  // namespace hlx
