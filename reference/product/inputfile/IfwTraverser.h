// SPDX-License-Identifier: Apache-2.0
// The component behind HLXIIfwTraverser: checks what it is given, asks for the form, makes the
// text, replaces the file.
#pragma once

#include "HLXIIfwTraverser.h"
#include "host/component/Component.h"

namespace hlx {

class IfwTraverser final : public vex::Component
{
public:
    IfwTraverser();

    /// HLXIIfwTraverser::WriteInputFile.
    HRESULT WriteInputFile(const VEXUnicodeString& path,
                           const VEXListValVEXBaseUnknown_var& cases) const;
};

}  // namespace hlx
