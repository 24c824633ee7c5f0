// SPDX-License-Identifier: Apache-2.0
// The product's writer of solver input files, as the component that it is.
#include "HLXInputFileWriter.h"

#include "VEXComponents.h"

namespace HLXInputFileWriter {

VEXBaseUnknown* Create()
{
    return VEXCreateExternalObject("HLXIfwTraverser", nullptr, "HLXIfwExportTraverser", nullptr);
}

HRESULT FindTraverser(const VEXBaseUnknown& component, HLXIIfwTraverser*& traverser)
{
    void* object = nullptr;
    const HRESULT rc = component.QueryInterface(IID_HLXIIfwTraverser, &object);
    traverser = static_cast<HLXIIfwTraverser*>(object);
    return rc;
}

}  // namespace HLXInputFileWriter
