// SPDX-License-Identifier: Apache-2.0
// A component library with one component, which is an alias. Definitions make it a bad one (see
// CMakeLists.txt).
#include "VEXComponentLibrary.h"
#include "VEXFeatures.h"
#include "host/component/Adapter.h"

#ifndef LIBRARY_NAME
#define LIBRARY_NAME SPECIMEN_NAME
#endif
#ifndef COMPONENT_NAME
#define COMPONENT_NAME SPECIMEN_NAME "Object"
#endif
#ifndef LIBRARY_VERSION
#define LIBRARY_VERSION VEXComponentLibraryVersion
#endif
#ifndef START_RESULT
#define START_RESULT S_OK
#endif

#ifndef WITHOUT_ENTRY

namespace {

class SpecimenAlias final : public vex::Adapter<VEXIAlias, vex::Component>
{
public:
    using Adapter::Adapter;
    HRESULT SetAlias(const VEXUnicodeString&) override { return E_FAIL; }
    VEXUnicodeString GetAlias() const override { return LIBRARY_NAME; }
};

[[maybe_unused]] VEXBaseUnknown* Create(void*)
{
#ifdef UNMAKEABLE
    return nullptr;
#else
    return new vex::Component(vex::ComponentTypes::Instance().Require(COMPONENT_NAME));
#endif
}

constexpr VEXInterfaceRow interfaces[] = {vex::InterfaceRow<SpecimenAlias>()};
const VEXComponentRow components[] = {{COMPONENT_NAME, nullptr, interfaces, &Create}};

HRESULT Start()
{
    return START_RESULT;
}

[[maybe_unused]] const VEXComponentLibrary library = {LIBRARY_VERSION, LIBRARY_NAME, components,
                                                      &Start};

}  // namespace

const VEXComponentLibrary* VEXGetComponentLibrary()
{
#ifdef WITHOUT_TABLE
    return nullptr;
#else
    return &library;
#endif
}

#endif
