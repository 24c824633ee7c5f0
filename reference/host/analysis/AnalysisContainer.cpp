// SPDX-License-Identifier: Apache-2.0
// From the document to its container of features and on to the manager; new features by late type.
#include "host/analysis/AnalysisAdapters.h"
#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"
#include "host/system/Texts.h"

namespace vex {

HRESULT AnalysisAccessAdapter::GetSpecContainer(VEXIContainer*& container) const
{
    return Probe<"VEXISamAccess::GetSpecContainer">(
        [&]() -> HRESULT {
            container = FaceOf<VEXIContainer>(Self().SpecContainer()).Detach();
            return container == nullptr ? E_FAIL : S_OK;
        },
        Out(container));
}

HRESULT AnalysisContainerAdapter::GetAnalysisManager(VEXISamAnalysisManager_var& manager) const
{
    return Probe<"VEXISamAnalysisContainer::GetAnalysisManager">(
        [&]() -> HRESULT {
            manager = FaceOf<VEXISamAnalysisManager>(FirstChild<VEXISamAnalysisManager>(Self()));
            return manager == nullptr ? E_FAIL : S_OK;
        },
        Out(manager));
}

VEXBaseUnknown* AnalysisModelFactoryAdapter::CreateFeature(const VEXUnicodeString& lateType,
                                                           const VEXUnicodeString& name,
                                                           VEXISpecObject* father)
{
    return Probe<"VEXISamAnalysisModelFactory::CreateFeature">(
        [&]() -> VEXBaseUnknown* {
            Feature* const parent = FeatureBehind(father);
            const LateType* const kind = LateTypes::Instance().Find(lateType.View());
            if (parent == nullptr || parent->Tree() != Self().Tree() || kind == nullptr ||
                !text::IsValid(name.View())) {
                return nullptr;
            }
            Feature& feature = parent->Tree()->Create(*kind, parent);
            if (!name.IsEmpty()) {
                feature.SetAlias(name.View());
            }
            return HandleOf(&feature).Detach();
        },
        In(lateType), In(name), In(father));
}

}  // namespace vex
