// SPDX-License-Identifier: Apache-2.0
// Lines of a keyword deck.
#include "product/inputfile/Deck.h"

#include "host/system/Texts.h"

namespace hlx {

void Deck::Comment(std::string_view text)
{
    _text += "** ";
    _text += text;
    EndLine();
}

void Deck::Keyword(std::string_view keyword)
{
    _text += '*';
    _text += keyword;
}

void Deck::Parameter(std::string_view name)
{
    _text += ", ";
    _text += name;
}

void Deck::Word(std::string_view name, std::string_view word)
{
    Parameter(name);
    _text += '=';
    _text += word;
}

void Deck::Number(std::string_view name, std::int64_t number)
{
    Word(name, "");
    vex::text::AppendNumber(_text, number);
}

void Deck::Quoted(std::string_view name, std::string_view text)
{
    Parameter(name);
    _text += '=';
    vex::text::AppendQuoted(_text, text);
}

void Deck::KeywordLine(std::string_view keyword)
{
    Keyword(keyword);
    EndLine();
}

void Deck::End(std::string_view keyword)
{
    _text += "*END ";
    _text += keyword;
    EndLine();
}

void Deck::QuotedData(std::string_view text)
{
    vex::text::AppendQuoted(_text, text);
    EndLine();
}

void Deck::Data(std::span<const double> numbers)
{
    if (numbers.empty()) {
        return;
    }
    std::string_view separator;
    for (const double number : numbers) {
        _text += separator;
        vex::text::AppendNumber(_text, number);
        separator = ", ";
    }
    EndLine();
}

}  // namespace hlx
