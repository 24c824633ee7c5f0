// SPDX-License-Identifier: Apache-2.0
// Makes the containers of output requests.
#include "product/steps/StepContainerFactory.h"

#include "host/feature/FeatureTree.h"
#include "host/system/Probe.h"

#include <algorithm>

namespace hlx {

namespace {

HRESULT MakeOnce(vex::Feature& step, const char* container)
{
    if (step.Tree() == nullptr) {
        return E_FAIL;
    }
    const auto isThere = [&](const vex::Feature* child) {
        return child->Kind().IsKindOf(container);
    };
    if (std::ranges::none_of(step.Children(), isThere)) {
        step.Tree()->Create(vex::LateTypes::Instance().Require(container), &step);
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
