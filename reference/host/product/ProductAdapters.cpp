// SPDX-License-Identifier: Apache-2.0
// Product nodes through their interfaces.
#include "host/product/ProductAdapters.h"

#include "host/feature/DocumentSession.h"
#include "host/feature/Refusal.h"
#include "host/product/ProductStructure.h"

namespace vex {

VEXListValVEXBaseUnknown_var* ProductAdapter::GetChildren(const char* interfaceName) const
{
    return Probe<"VEXIProduct::GetChildren">(
        [&]() -> VEXListValVEXBaseUnknown_var* {
            std::vector<Feature*> below;
            std::string error;
            if (Self().Tree() == nullptr) {
                return nullptr;
            }
            if (!StructureBelow(Self(), below, error)) {
                Refuse(E_FAIL, error);
                return nullptr;
            }
            KeepImplementing(interfaceName, below);
            auto* const children = new VEXListValVEXBaseUnknown_var;
            for (Feature* const feature : below) {
                children->Append(VEXShare<VEXBaseUnknown>(feature));
            }
            return children;
        },
        In(interfaceName));
}

VEXUnicodeString ProductAdapter::GetPartNumber() const
{
    return Probe<"VEXIProduct::GetPartNumber">([&] {
        return Self().Tree() == nullptr ? VEXUnicodeString()
                                        : VEXUnicodeString(Self().GetAs<std::string>("PartNumber"));
    });
}

bool ProductDescendantsAdapter::AppendBelow(std::vector<Feature*>& below, std::string& error) const
{
    return AllBelow(Self(), below, error);
}

namespace {

constexpr VEXInterfaceRow productNodeRows[] = {
    InterfaceRow<ProductAdapter>(), InterfaceRow<ProductDescendantsAdapter>(),
    InterfaceRow<LinkableObjectAdapter>(), InterfaceRow<NavigateAdapter>()};

}  // namespace

constinit const std::span<const VEXInterfaceRow> productNodeInterfaces = productNodeRows;

}  // namespace vex
