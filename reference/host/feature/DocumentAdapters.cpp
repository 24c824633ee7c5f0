// SPDX-License-Identifier: Apache-2.0
// Documents through their interfaces.
#include "host/feature/DocumentAdapters.h"

#include "host/feature/FeatureAdapters.h"
#include "host/system/Probe.h"

namespace vex {

VEXUnicodeString DocumentAdapter::StorageName() const
{
    return Probe<"VEXDocument::StorageName">(
        [&] { return Self().IsOpen() ? VEXUnicodeString(Self().Path()) : VEXUnicodeString(); });
}

VEXUnicodeString DocumentAdapter::GetType() const
{
    return Probe<"VEXDocument::GetType">([&] {
        return Self().IsOpen() ? VEXUnicodeString(Document::TypeName(Self().DocType()))
                               : VEXUnicodeString();
    });
}

HRESULT ContainerOfDocumentAdapter::GetSpecContainer(VEXIContainer*& container) const
{
    return Probe<"VEXIContainerOfDocument::GetSpecContainer">(
        [&] {
            container = FaceOf<VEXIContainer>(Self().SpecContainer()).Detach();
            return container == nullptr ? E_FAIL : S_OK;
        },
        Out(container));
}

HRESULT ContainerOfDocumentAdapter::GetBRepContainer(VEXIContainer*& container) const
{
    return Probe<"VEXIContainerOfDocument::GetBRepContainer">(
        [&] {
            container = FaceOf<VEXIContainer>(Self().BRepContainer()).Detach();
            return container == nullptr ? E_FAIL : S_OK;
        },
        Out(container));
}

VEXListValVEXBaseUnknown_var* DocRootsAdapter::GetRoots() const
{
    return Probe<"VEXIDocRoots::GetRoots">([&]() -> VEXListValVEXBaseUnknown_var* {
        if (!Self().IsOpen()) {
            return nullptr;
        }
        auto* const roots = new VEXListValVEXBaseUnknown_var;
        if (const Feature* const container = Self().SpecContainer()) {
            for (Feature* const root : container->Children()) {
                roots->Append(VEXShare<VEXBaseUnknown>(root));
            }
        }
        return roots;
    });
}

namespace {

constexpr VEXInterfaceRow documentRows[] = {InterfaceRow<DocumentAdapter>(),
                                            InterfaceRow<ContainerOfDocumentAdapter>()};
constexpr VEXInterfaceRow docRootsRows[] = {InterfaceRow<DocRootsAdapter>()};

}  // namespace

constinit const std::span<const VEXInterfaceRow> documentInterfaces = documentRows;
constinit const std::span<const VEXInterfaceRow> docRootsInterfaces = docRootsRows;

}  // namespace vex
