// SPDX-License-Identifier: Apache-2.0
// A program whose locale writes 1.234,5, in C and in C++, and that left its flags on standard
// output.
#pragma once

#include "support/TemporaryFolder.h"

#include <cstddef>
#include <ios>
#include <locale>
#include <string>

namespace hlxtest {

/// While it lives, the C locale and the global C++ locale group digits and write a decimal comma,
/// and so does standard output, which besides writes numbers in hexadecimal with their sign.
class ForeignNumbers
{
public:
    ForeignNumbers();
    ~ForeignNumbers();
    ForeignNumbers(const ForeignNumbers&) = delete;
    ForeignNumbers& operator=(const ForeignNumbers&) = delete;

    /// Whether such a C locale could be had. The C++ one always can.
    bool AreInForceInC() const;

private:
    TemporaryFolder _localeFolder;
    std::string _formerCLocale;
    std::locale _formerLocale;
    std::locale _formerOutputLocale;
    std::ios::fmtflags _formerOutputFlags;
};

}  // namespace hlxtest
