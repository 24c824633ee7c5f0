// SPDX-License-Identifier: Apache-2.0
// The table of the component library HLXIfwExportTraverser.
#include "host/component/Adapter.h"
#include "host/system/Probe.h"
#include "product/inputfile/IfwTraverser.h"

namespace {

class IfwTraverserAdapter final : public vex::Adapter<HLXIIfwTraverser, hlx::IfwTraverser>
{
public:
    using Adapter::Adapter;

    HRESULT WriteInputFile(const VEXUnicodeString& inputFilePath,
                           VEXListValVEXBaseUnknown_var& cases) override
    {
        return vex::Probe<"HLXIIfwTraverser::WriteInputFile">(
            [&] { return Self().WriteInputFile(inputFilePath, cases); }, vex::In(inputFilePath),
            vex::In(cases));
    }
};

VEXBaseUnknown* MakeIfwTraverser(void*)
{
    return new hlx::IfwTraverser();
}

constexpr VEXInterfaceRow traverserInterfaces[] = {vex::InterfaceRow<IfwTraverserAdapter>()};

constexpr VEXComponentRow components[] = {
    {"HLXIfwTraverser", nullptr, traverserInterfaces, &MakeIfwTraverser},
};

constexpr VEXComponentLibrary library{VEXComponentLibraryVersion, "HLXIfwExportTraverser",
                                      components, nullptr};

}  // namespace

const VEXComponentLibrary* VEXGetComponentLibrary()
{
    return &library;
}
