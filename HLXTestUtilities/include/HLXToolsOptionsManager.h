// SPDX-License-Identifier: Apache-2.0
// Sets tool options of the analysis workbench for the life of an object; its destruction puts the
// former values back. Owns its settings controller and the controller's repository.
#pragma once

#include "HLXIZPKWBGeneralSettingAtt.h"
#include "VEXIIniSettingManagment.h"
#include "VEXMetaClass.h"

class VEX_EXPORT HLXToolsOptionsManager : public VEXBaseUnknown
{
public:
    /// Looks the settings controller up and saves the option in force.
    HLXToolsOptionsManager();

    HLXToolsOptionsManager(const HLXToolsOptionsManager&) = delete;
    HLXToolsOptionsManager& operator=(const HLXToolsOptionsManager&) = delete;

    /// Puts the saved option back and stores it. Of two living managers the one destroyed last has
    /// the last word.
    ~HLXToolsOptionsManager() override;

    /// Sets the option "write flat input file" and stores it.
    /// @param flag  1: input files are written flat; 0: structured
    /// @return result of storing; E_FAIL without a controller; the setter's result when that failed
    ///         or there is no repository to store in
    long SetWriteFlatInputFileFlag(unsigned char flag);

    /// The run-time class "HLXToolsOptionsManager", based on VEXBaseUnknown.
    static VEXMetaClass* MetaObject();
    VEXMetaClass* GetMetaObject() const override;
    static const GUID& ClassId();
    static const char* ClassName();
    const char* IsA() const override;
    int IsAKindOf(const char* name) const override;
    /// Always null: the framework's factory makes no options manager.
    static VEXBaseUnknown* CreateItself();

private:
    static VEXMetaClass* meta_object;

    HLXIZPKWBGeneralSettingAtt* _SettingController = nullptr;
    VEXIIniSettingManagment* _IniSettingManagement = nullptr;
    unsigned char _SavedWriteFlatFlag = 1;
};
