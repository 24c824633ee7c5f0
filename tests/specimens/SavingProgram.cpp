// SPDX-License-Identifier: Apache-2.0
// A program as a user writes one: it opens the document that it is given, stores it, stores it
// under another path, unchanged, and stores a setting.
#include "HLXIZPKWBGeneralSettingAtt.h"
#include "VEXDocumentServices.h"
#include "VEXIIniSettingManagment.h"
#include "VEXUnicodeString.h"
#include "VEXVar.h"

#include <cstdio>

namespace {

bool StoreSetting()
{
    void* object = nullptr;
    if (FAILED(GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, &object))) {
        return false;
    }
    const VEXVar<HLXIZPKWBGeneralSettingAtt> settings =
        VEXAdopt(static_cast<HLXIZPKWBGeneralSettingAtt*>(object));
    const VEXVar<VEXIIniSettingManagment> repository(settings);
    return SUCCEEDED(settings->SetBasicUnitLength("in")) && SUCCEEDED(repository->Commit());
}

}  // namespace

int main(int argc, char** argv)
{
    VEXDocument* document = nullptr;
    if (argc != 3 || FAILED(VEXDocumentServices::OpenDocument(argv[1], document, 0)) ||
        FAILED(VEXDocumentServices::Save(*document)) ||
        FAILED(VEXDocumentServices::SaveAs(*document, argv[2], "", 1)) || !StoreSetting()) {
        std::fputs("usage: saving_program DOCUMENT OTHER_DOCUMENT\n", stderr);
        return 1;
    }
    return 0;
}
