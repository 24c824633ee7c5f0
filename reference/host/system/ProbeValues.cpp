// SPDX-License-Identifier: Apache-2.0
// Texts of arguments and results.
#include "host/system/ProbeValues.h"

#include "host/system/ProbePoints.h"
#include "host/system/ResultNames.h"
#include "host/system/Texts.h"

#include <fmt/format.h>

namespace vex::probe {

std::string TextOf(const char* text)
{
    return text == nullptr ? "null" : text::DoubleQuoted(text);
}

std::string TextOf(const VEXUnicodeString& text)
{
    return text::DoubleQuoted(text.View());
}

std::string TextOfNumber(std::int64_t number)
{
    std::string digits;
    text::AppendNumber(digits, number);
    return digits;
}

std::string TextOfNumber(double number)
{
    std::string digits;
    text::AppendNumber(digits, number);
    return digits;
}

std::string TextOfResult(HRESULT result)
{
    if (const std::string_view name = NameOfResult(result); !name.empty()) {
        return std::string(name);
    }
    return result < 0 ? fmt::format("0x{:08X}", static_cast<std::uint32_t>(result))
                      : TextOfNumber(std::int64_t{result});
}

std::string TextOfObject(const VEXBaseUnknown* object)
{
    return object == nullptr ? "null" : object->IsA();
}

std::string TextOf(const IID& iid)
{
    const std::string_view name = InterfaceName(iid);
    return name.empty() ? fmt::format("{:016x}{:016x}", iid.High, iid.Low) : std::string(name);
}

}  // namespace vex::probe
