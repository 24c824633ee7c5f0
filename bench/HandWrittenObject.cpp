// SPDX-License-Identifier: Apache-2.0
// A query as one writes it for a class with five interfaces.
#include "HandWrittenObject.h"

#include "HLXIAnalysisCase.h"

namespace bench {

const std::array<IID, 5> HandWrittenObject::ids = {IID_VEXISpecObject, IID_VEXIAlias,
                                                   IID_VEXISamAnalysisScan, IID_VEXINavigateObject,
                                                   IID_VEXISamAnalysisModel};

HRESULT HandWrittenObject::QueryInterface(const IID& iid, void** object) const
{
    if (object == nullptr) {
        return E_POINTER;
    }
    if (iid == IID_VEXISpecObject || iid == IID_VEXIAlias || iid == IID_VEXISamAnalysisScan ||
        iid == IID_VEXINavigateObject || iid == IID_VEXISamAnalysisModel) {
        *object = const_cast<HandWrittenObject*>(this);
        ++_count;
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

unsigned long HandWrittenObject::Release() const
{
    const unsigned long left = --_count;
    if (left == 0) {
        delete this;
    }
    return left;
}

}  // namespace bench
