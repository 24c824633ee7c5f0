// SPDX-License-Identifier: Apache-2.0
// The interfaces of documents. A removed document answers failure or nothing.
#pragma once

#include "VEXDocument.h"
#include "VEXProductStructure.h"
#include "host/component/Adapter.h"
#include "host/feature/Document.h"

#include <span>

namespace vex {

class VEX_EXPORT DocumentAdapter final : public Adapter<VEXDocument, Document>
{
public:
    using Adapter::Adapter;
    VEXUnicodeString StorageName() const override;
    VEXUnicodeString GetType() const override;
};

class VEX_EXPORT ContainerOfDocumentAdapter final
    : public Adapter<VEXIContainerOfDocument, Document>
{
public:
    using Adapter::Adapter;
    HRESULT GetSpecContainer(VEXIContainer*& container) const override;
    HRESULT GetBRepContainer(VEXIContainer*& container) const override;
};

/// The roots are the features that stand directly in the container of features.
class VEX_EXPORT DocRootsAdapter final : public Adapter<VEXIDocRoots, Document>
{
public:
    using Adapter::Adapter;
    VEXListValVEXBaseUnknown_var* GetRoots() const override;
};

/// Rows: of all documents; of product and part documents in addition.
VEX_EXPORT extern const std::span<const VEXInterfaceRow> documentInterfaces;
VEX_EXPORT extern const std::span<const VEXInterfaceRow> docRootsInterfaces;

}  // namespace vex
