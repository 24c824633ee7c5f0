// SPDX-License-Identifier: Apache-2.0
// Sets the basic units of the analysis workbench for the life of an object: construct,
// SetBasicUnits, run the test, destroy to have the former units back. Owns its settings controller.
#pragma once

#include "HLXIZPKWBGeneralSettingAtt.h"
#include "VEXIIniSettingManagment.h"
#include "VEXMetaClass.h"

class VEX_EXPORT HLXSetUnitSystem : public VEXBaseUnknown
{
public:
    /// Looks the settings controller up; nothing is changed yet.
    HLXSetUnitSystem();

    /// Copies share the owned interfaces: only one of them may be destroyed. What an assignment
    /// replaces is not released.
    HLXSetUnitSystem(const HLXSetUnitSystem& other);
    HLXSetUnitSystem& operator=(const HLXSetUnitSystem& other);

    /// Puts the saved units back, even those that SetBasicUnits never or only partly saved (the
    /// settings refuse an empty unit), and stores them when SetBasicUnits came as far as storing.
    ~HLXSetUnitSystem() override;

    /// Saves the units in force, sets the four units in the order of the arguments and stores them.
    /// A second call saves what the first one set and drops the repository that the first one held,
    /// without releasing it.
    /// @param length, mass, time, temperature  units by their symbols, such as "mm", "kg", "s", "K"
    /// @return result of storing; E_FAIL without a controller or without a way to store; otherwise
    ///         the result of the first getter or setter that failed, with what was set before it
    ///         left set
    long SetBasicUnits(VEXUnicodeString length, VEXUnicodeString mass, VEXUnicodeString time,
                       VEXUnicodeString temperature);

    /// The run-time class "HLXSetUnitSystem", based on VEXBaseUnknown.
    static VEXMetaClass* MetaObject();
    VEXMetaClass* GetMetaObject() const override;
    static const GUID& ClassId();
    static const char* ClassName();
    const char* IsA() const override;
    int IsAKindOf(const char* name) const override;
    /// Always null: the framework's factory makes no unit setter.
    static VEXBaseUnknown* CreateItself();

private:
    long SaveUnits();

    static VEXMetaClass* meta_object;

    HLXIZPKWBGeneralSettingAtt* _SettingController = nullptr;
    VEXIIniSettingManagment* _IniSettingManagement = nullptr;
    VEXUnicodeString _SavedLengthUnit;
    VEXUnicodeString _SavedMassUnit;
    VEXUnicodeString _SavedTimeUnit;
    VEXUnicodeString _SavedTemperatureUnit;
};
