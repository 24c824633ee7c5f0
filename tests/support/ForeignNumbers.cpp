// SPDX-License-Identifier: Apache-2.0
#include "support/ForeignNumbers.h"

#include <clocale>
#include <cstdlib>
#include <iostream>

namespace hlxtest {

namespace {

class CommaAndPoints : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

// Needs no installed locale and no installed charmap: what is missing is the C locale's. localedef
// warns of it and ends with 1; whether the locale is there shows when it is set.
void BuildLocale(const std::string& folder)
{
    const std::string source = folder + "/source";
    WriteFile(
        source,
        "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\nEND LC_NUMERIC\n");
    const std::string command = "localedef -c -i '" + source + "' -f ANSI_X3.4-1968 '" + folder +
                                "/hlx_COMMA' >/dev/null 2>&1";
    [[maybe_unused]] const int ignored = std::system(command.c_str());
}

}  // namespace

ForeignNumbers::ForeignNumbers()
    : _formerCLocale(std::setlocale(LC_ALL, nullptr)),
      _formerOutputLocale(std::cout.getloc()),
      _formerOutputFlags(std::cout.flags())
{
    _formerLocale = std::locale::global(std::locale(std::locale::classic(), new CommaAndPoints));
    std::cout.imbue(std::locale());
    std::cout << std::hex << std::showpos << std::showbase << std::uppercase;

    BuildLocale(_localeFolder.Path());
    setenv("LOCPATH", _localeFolder.Path().c_str(), 1);
    for (const char* const name : {"hlx_COMMA", "de_DE.UTF-8", "fr_FR.UTF-8", "pt_BR.UTF-8"}) {
        if (std::setlocale(LC_ALL, name) != nullptr && AreInForceInC()) {
            return;
        }
        unsetenv("LOCPATH");
    }
    std::setlocale(LC_ALL, _formerCLocale.c_str());
}

ForeignNumbers::~ForeignNumbers()
{
    unsetenv("LOCPATH");
    std::locale::global(_formerLocale);
    std::setlocale(LC_ALL, _formerCLocale.c_str());
    std::cout.imbue(_formerOutputLocale);
    std::cout.flags(_formerOutputFlags);
}

bool ForeignNumbers::AreInForceInC() const
{
    return *std::localeconv()->decimal_point == ',';
}

}  // namespace hlxtest
