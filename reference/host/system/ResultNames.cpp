// SPDX-License-Identifier: Apache-2.0
// The table of result codes.
#include "host/system/ResultNames.h"

namespace vex {

namespace {

struct NamedResult
{
    std::string_view name;
    HRESULT result;
};

constexpr NamedResult namedResults[] = {
    {"S_OK", S_OK},
    {"S_FALSE", S_FALSE},
    {"E_NOTIMPL", E_NOTIMPL},
    {"E_NOINTERFACE", E_NOINTERFACE},
    {"E_POINTER", E_POINTER},
    {"E_FAIL", E_FAIL},
    {"E_UNEXPECTED", E_UNEXPECTED},
    {"E_ACCESSDENIED", E_ACCESSDENIED},
    {"E_OUTOFMEMORY", E_OUTOFMEMORY},
    {"E_INVALIDARG", E_INVALIDARG},
};

}  // namespace

std::string_view NameOfResult(HRESULT result)
{
    for (const NamedResult& named : namedResults) {
        if (named.result == result) {
            return named.name;
        }
    }
    return {};
}

std::optional<HRESULT> ResultOfName(std::string_view name)
{
    for (const NamedResult& named : namedResults) {
        if (named.name == name) {
            return named.result;
        }
    }
    return std::nullopt;
}

}  // namespace vex
