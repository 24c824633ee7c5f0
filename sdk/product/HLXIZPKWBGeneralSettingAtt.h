// SPDX-License-Identifier: Apache-2.0
// General settings of the analysis workbench: basic units and options. Changes are in force at once
// in this process and stored by VEXIIniSettingManagment::Commit, which the same controller offers.
#pragma once

#include "VEXUnicodeString.h"
#include "VEXVar.h"

/// Names of ours: all.
class HLXIZPKWBGeneralSettingAtt : public VEXBaseUnknown
{
public:
    /// The basic unit of a quantity, by its symbol. The first one is the default:
    ///   length       mm, um, cm, m, km, in, ft, yd, mi
    ///   mass         kg, mg, g, t, oz, lb, slug
    ///   time         s, us, ms, min, h
    ///   temperature  K, C, F, R
    /// A setter refuses a text that is no unit of its quantity, the empty text too: E_INVALIDARG.
    virtual HRESULT GetBasicUnitLength(VEXUnicodeString& unit) const = 0;
    virtual HRESULT SetBasicUnitLength(const VEXUnicodeString& unit) = 0;
    virtual HRESULT GetBasicUnitMass(VEXUnicodeString& unit) const = 0;
    virtual HRESULT SetBasicUnitMass(const VEXUnicodeString& unit) = 0;
    virtual HRESULT GetBasicUnitTime(VEXUnicodeString& unit) const = 0;
    virtual HRESULT SetBasicUnitTime(const VEXUnicodeString& unit) = 0;
    virtual HRESULT GetBasicUnitTemperature(VEXUnicodeString& unit) const = 0;
    virtual HRESULT SetBasicUnitTemperature(const VEXUnicodeString& unit) = 0;

    /// 1 (the default, as any other value set but 0): input files are written flat; 0: structured.
    virtual HRESULT GetWriteFlatInputFileFlag(unsigned char& flag) const = 0;
    virtual HRESULT SetWriteFlatInputFileFlag(unsigned char flag) = 0;
};

VEX_INTERFACE(HLXIZPKWBGeneralSettingAtt);

/// The controller of the general settings, asked for the interface `iid`.
/// @param controller  receives the interface with a reference added that the caller releases; null
/// on failure
/// @return S_OK; E_NOINTERFACE; E_FAIL with the reason on standard error when the settings cannot
/// be read
VEX_EXPORT HRESULT GetZPKWBGeneralSettingCtrl(const IID& iid, void** controller);
