// SPDX-License-Identifier: Apache-2.0
// The table of hostile names.
#include "names/HostileNames.h"

#include <string_view>

namespace hlxtest {

namespace {

HostileNames Storable()
{
    HostileNames names = {
        {"line feed", "a\nb"},
        {"line feed at the end", "a\n"},
        {"only a line feed", "\n"},
        {"carriage return", "a\rb"},
        {"both", "a\r\nb"},
        {"backslash and n", "a\\nb"},
        {"two backslashes and n", "a\\\\nb"},
        {"next line, U+0085", "a\u0085b"},
        {"line separator, U+2028", "a\u2028b"},
        {"paragraph separator, U+2029", "a\u2029b"},
        {"an escape as text", "a\\u{2028}b"},
        {"another escape as text", "a\\x80b"},
        {"format", "%n%s%n%s%p"},
        {"format of another kind", "{} {0} {:>1000000000}"},
        {"single quote", "a'b"},
        {"double quote", "a\"b"},
        {"only a double quote", "\""},
        {"quoted already", "\"a\""},
        {"back quote", "`touch x`"},
        {"command substitution", "$(touch x)"},
        {"variable", "$HOME"},
        {"home folder", "~"},
        {"comma", "a, b, c"},
        {"comma and parameter", "a\", NAME=\"b"},
        {"asterisk", "*"},
        {"keyword of the deck", "*STEP"},
        {"first keyword of the deck", "*HEADING"},
        {"end of a block", "x\"\n*END CASE\n*END HISTORY"},
        {"comment of the deck", "** cases"},
        {"data line of the deck", "1, 0, 0, 25"},
        {"line of the dump", "a\"\n  HLXGravity \"b\" ComponentX=1"},
        {"reference of the dump", "a\"/\"b"},
        {"ordinal of the dump", "HLXGravity[1]"},
        {"place in the document", "#1"},
        {"level of the dump", "@101 HLXGravity"},
        {"attribute of the dump", "ComponentX=1"},
        {"list", "((1 2) (3 4))"},
        {"arrow", "VEXIAlias::SetAlias(\"x\") -> S_OK, 1.250 us"},
        {"object of JSON", "\"},{\"name\":\"x\""},
        {"none", "none"},
        {"true", "true"},
        {"null", "null"},
        {"zero", "0"},
        {"number", "-1.5e+30"},
        {"not a number", "nan"},
        {"backslash", "a\\b"},
        {"backslash at the end", "a\\"},
        {"only a backslash", "\\"},
        {"only a blank", " "},
        {"blanks around", "  a  "},
        {"blank at the end", "a "},
        {"plain, as the others have it in them", "a"},
        {"capital", "A"},
        {"tab", "a\tb"},
        {"tab at the end", "a\t"},
        {"accent in one", "\u00e9"},
        {"accent apart", "e\u0301"},
        {"angstrom sign", "\u212b"},
        {"letter with a ring", "\u00c5"},
        {"right to left", "\u05d0\u05d1 \u0627"},
        {"override of the direction", "a\u202e\"b"},
        {"isolated direction", "a\u2066b\u2069"},
        {"mark of the direction", "a\u200fb\u061cc"},
        {"zero width", "a\u200bb"},
        {"joiner", "a\u200db"},
        {"byte order mark", "\ufeffa"},
        {"soft hyphen", "a\u00adb"},
        {"blank that does not break", "a\u00a0b"},
        {"no character", "a\uffffb"},
        {"outside the first plane", "\U0001d11e"},
        {"last code point", "\U0010ffff"},
        {"last before the surrogates", "\ud7ff"},
        {"control of terminals", "\x1b[2J\x1b]0;x\x07"},
        {"control of eight bits", "a\u009b2Jb"},
        {"dot", "."},
        {"two dots", ".."},
        {"three dots", "..."},
        {"dot in front", ".a"},
        {"slash", "/"},
        {"slash inside", "a/b"},
        {"way up", "../../a"},
        {"file of the system", "/etc/passwd"},
        {"database in memory", ":memory:"},
        {"URI of a database in memory", "file:x?mode=memory"},
        {"escaped URI", "file:%2e"},
        {"search path", "a:b:"},
        {"option", "-rf"},
        {"long option", "--help"},
        {"end of options", "--"},
        {"word of a command line", "tree"},
        {"value in brackets", "[a,b]"},
        {"braces", "{}"},
        {"name of a new file in the making", "a.VEXAnalysis.a1b2c3~"},
        {"ending of JSON", "a.json"},
        {"247 bytes", std::string(247, 'x')},
        {"247 bytes of long characters", Repeated("\u00e9", 246) + "x"},
        {"248 bytes", std::string(248, 'x')},
        {"255 bytes", std::string(255, 'x')},
        {"256 bytes", std::string(256, 'x')},
    };
    for (char control = 1; control < ' '; ++control) {
        if (control != '\n' && control != '\r' && control != '\t') {
            names.push_back({"control " + std::to_string(control), std::string("a") + control});
        }
    }
    names.push_back({"control 127", "a\x7f"});
    return names;
}

HostileNames Unstorable()
{
    using std::string_view_literals::operator""sv;
    HostileNames names;
    const std::pair<const char*, std::string_view> rows[] = {
        {"NUL", "a\0b"sv},
        {"NUL at the end", "a\0"sv},
        {"only a NUL", "\0"sv},
        {"overlong slash", "a\xC0\xAF"},
        {"overlong NUL", "a\xC0\x80"},
        {"overlong in three bytes", "a\xE0\x80\xAF"},
        {"overlong in four bytes", "a\xF0\x80\x80\xAF"},
        {"high surrogate", "a\xED\xA0\x80"},
        {"pair of surrogates", "a\xED\xA0\xB4\xED\xB4\x9E"},
        {"lone continuation", "a\x80"},
        {"another lone continuation", "a\x81"},
        {"cut after one byte of two", "a\xC3"},
        {"cut after two bytes of three", "a\xE2\x82"},
        {"cut after three bytes of four", "a\xF0\x9D\x84"},
        {"cut by a letter", "\xE2\x82z"},
        {"above U+10FFFF", "a\xF4\x90\x80\x80"},
        {"five bytes", "a\xF8\x88\x80\x80\x80"},
        {"byte FF", "a\xFF"},
        {"byte FE and a line", "a\xFE\n*STEP"},
        {"Latin-1",
         "Gr\xF6\xDF"
         "e"},
    };
    for (const auto& [label, bytes] : rows) {
        names.push_back({label, std::string(bytes)});
    }
    return names;
}

template <class Condition>
HostileNames Those(const HostileNames& names, Condition condition)
{
    HostileNames chosen;
    for (const HostileName& name : names) {
        if (condition(name.bytes)) {
            chosen.push_back(name);
        }
    }
    return chosen;
}

}  // namespace

std::string Repeated(const std::string& piece, std::size_t size)
{
    std::string text;
    text.reserve(size + piece.size());
    while (text.size() < size) {
        text += piece;
    }
    return text;
}

const HostileNames& StorableNames()
{
    static const HostileNames names = Storable();
    return names;
}

const HostileNames& StorableFileNames()
{
    static const HostileNames names = Those(StorableNames(), [](const std::string& name) {
        return name.find('/') == std::string::npos && name.size() <= 247 && name != "." &&
               name != ".." && !name.ends_with(".a1b2c3~");
    });
    return names;
}

const HostileNames& UnstorableNames()
{
    static const HostileNames names = Unstorable();
    return names;
}

const HostileNames& ForeignFileNames()
{
    static const HostileNames names = Those(UnstorableNames(), [](const std::string& name) {
        return name.find('\0') == std::string::npos;
    });
    return names;
}

const HostileNames& ImpossibleFileNames()
{
    static const HostileNames names = {
        {"empty", ""},
        {"dot", "."},
        {"two dots", ".."},
        {"slash at the end", "a/"},
        {"248 bytes", std::string(248, 'x')},
        {"255 bytes", std::string(255, 'x')},
        {"256 bytes", std::string(256, 'x')},
        {"248 bytes of long characters", Repeated("\u00e9", 248)},
        {"a mebibyte", std::string(std::size_t{1} << 20U, 'x')},
        {"name of a new file in the making", "a.VEXAnalysis.a1b2c3~"},
    };
    return names;
}

}  // namespace hlxtest
