// SPDX-License-Identifier: Apache-2.0
// Parameter reports: text files that grow by one block a feature.
//
//     (an empty line)
//     **************Load Feature Properties**************(a blank)
//      Pressure Pressure is :1.25
//     ...
//     (two empty lines)
//
// A line is a label and how its value is read from the feature, through its interface. All values
// of a block are read before a byte is written (WriteGathered), or each when it is its turn
// (Block).
#pragma once

#include "HLXNumber.h"
#include "VEXFeatures.h"

#include <fstream>
#include <span>
#include <string_view>
#include <vector>

namespace HLXReport {

template <class Interface>
struct Line
{
    const char* label;
    /// Reads the value's text, or, of the lines that name a feature, finds that feature; the other
    /// one is null. Both answer the platform's result.
    HRESULT (*read)(const Interface& feature, VEXUnicodeString& value);
    HRESULT (*find)(const Interface& feature, VEXISpecObject_var& found) = nullptr;
};

// --- Values: what a getter gives, as text -------------------------------------------------------

template <auto Getter, class Interface>
HRESULT Number(const Interface& feature, VEXUnicodeString& value)
{
    double number = 0;
    const HRESULT rc = (feature.*Getter)(number);
    value = HLXNumber::General(number);
    return rc;
}

/// Of a getter that answers the number itself.
template <auto Getter, class Interface>
HRESULT Integer(const Interface& feature, VEXUnicodeString& value)
{
    value = HLXNumber::Decimal((feature.*Getter)());
    return S_OK;
}

/// Five characters both.
inline const char* TextOf(unsigned char flag)
{
    return flag != 0 ? "TRUE " : "FALSE";
}

/// True when the getter gives nothing.
template <auto Getter, class Interface>
HRESULT Flag(const Interface& feature, VEXUnicodeString& value)
{
    unsigned char flag = 1;
    const HRESULT rc = (feature.*Getter)(flag);
    value = TextOf(flag);
    return rc;
}

/// The text as it stands.
template <auto Getter, class Interface>
HRESULT Text(const Interface& feature, VEXUnicodeString& value)
{
    return (feature.*Getter)(value);
}

/// The first number of a list; 0 of an empty one.
template <auto Getter, class Interface>
HRESULT FirstNumber(const Interface& feature, VEXUnicodeString& value)
{
    VEXRawColldouble numbers;
    const HRESULT rc = (feature.*Getter)(numbers);
    value = HLXNumber::General(numbers[1]);
    return rc;
}

/// Of one degree of freedom, from 1.
template <auto Getter, int DegreeOfFreedom, class Interface>
HRESULT NumberAt(const Interface& feature, VEXUnicodeString& value)
{
    double number = 0;
    const HRESULT rc = (feature.*Getter)(DegreeOfFreedom, number);
    value = HLXNumber::General(number);
    return rc;
}

template <auto Getter, int DegreeOfFreedom, class Interface>
HRESULT FlagAt(const Interface& feature, VEXUnicodeString& value)
{
    unsigned char flag = 1;
    const HRESULT rc = (feature.*Getter)(DegreeOfFreedom, flag);
    value = TextOf(flag);
    return rc;
}

template <auto Getter, class Interface>
HRESULT Feature(const Interface& feature, VEXISpecObject_var& found)
{
    return (feature.*Getter)(found);
}

/// What a report calls a feature: its alias, be it empty; "NULL" when there is none, or it can have
/// none.
VEXUnicodeString NameOf(const VEXISpecObject_var& feature);

// --- Blocks -------------------------------------------------------------------------------------

/// A block that is written as it goes; it ends where its lines do. The file is closed when the
/// block dies.
class Block
{
public:
    /// Opens the file and writes the header; whether it opens is not looked at.
    Block(const VEXUnicodeString& path, const char* header);

    void Write(const char* label, const VEXUnicodeString& value);
    void End() { _file << "\n\n"; }

    /// Reads what stands behind the label and writes the line. A getter that fails leaves "TRUE ",
    /// 0 or "NULL" there.
    template <class Interface>
    void Write(const Interface& feature, const Line<Interface>& line)
    {
        VEXUnicodeString value;
        if (line.find == nullptr) {
            line.read(feature, value);
        } else {
            VEXISpecObject_var found;
            line.find(feature, found);
            value = NameOf(found);
        }
        Write(line.label, value);
    }

    /// As Write, of a value; without a line when it cannot be read. @return S_OK; E_FAIL
    template <class Interface>
    HRESULT WriteChecked(const Interface& feature, const Line<Interface>& line)
    {
        VEXUnicodeString value;
        if (FAILED(line.read(feature, value))) return E_FAIL;
        Write(line.label, value);
        return S_OK;
    }

private:
    std::ofstream _file;
};

/// Writes a block when everything in it could be read, in the order of its lines: first the values,
/// then the features that are named.
/// @return S_OK; E_FAIL, and nothing is written, at the first getter that fails and for a feature
/// without the interface
template <class Interface>
HRESULT WriteGathered(const VEXISpecObject_var& feature, const VEXUnicodeString& path,
                      const char* header, std::span<const Line<Interface>> lines)
{
    const VEXVar<Interface> source = feature;
    if (source == nullptr) return E_FAIL;
    std::vector<VEXUnicodeString> values(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].find == nullptr && FAILED(lines[i].read(*source.Get(), values[i]))) {
            return E_FAIL;
        }
    }
    std::vector<VEXISpecObject_var> found(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].find != nullptr && FAILED(lines[i].find(*source.Get(), found[i]))) {
            return E_FAIL;
        }
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].find != nullptr) values[i] = NameOf(found[i]);
    }
    Block block(path, header);
    for (std::size_t i = 0; i < lines.size(); ++i)
        block.Write(lines[i].label, values[i]);
    block.End();
    return S_OK;
}

}  // namespace HLXReport
