// SPDX-License-Identifier: Apache-2.0
// Reading the catalogue's text.
#include "product/catalog/CatalogFile.h"

#include "product/catalog/CatalogLimits.h"
#include "product/catalog/CatalogMessage.h"
#include "product/catalog/CatalogValue.h"

#include <algorithm>
#include <map>
#include <set>

namespace hlx {

namespace {

using vex::AttributeDefinition;
using vex::LateTypeDefinition;

/// Letters, digits and '_', a letter first: what a tree dump and an input file can show unquoted.
bool IsName(std::string_view name)
{
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return !name.empty() && name.size() <= 100 && isLetter(name.front()) &&
           std::ranges::all_of(name, [&](char c) { return isLetter(c) || isDigit(c) || c == '_'; });
}

/// Reads one catalogue; the first mistake ends the reading.
class CatalogReader
{
public:
    CatalogReader(std::string_view fileName, std::vector<LateTypeDefinition>& types,
                  std::string& error)
        : _fileName(fileName), _types(types), _error(error)
    {}

    bool Read(std::string_view text)
    {
        if (const std::size_t line = LineWithTooManyDots(text); line != 0) {
            return Refuse(
                line, {},
                "more than " + std::to_string(mostDotsOfALine) + " dots in a line; break the line");
        }
        const toml::parse_result parsed = toml::parse(text);
        if (parsed.failed()) {
            return Refuse(parsed.error().source().begin.line, {},
                          "no TOML: " + vex::text::DoubleQuoted(parsed.error().description()) +
                              "; correct the line");
        }
        const toml::table& root = parsed.table();
        const toml::node* const types = root.get("type");
        if (!HasOnlyKeys(root, {"type"}, {})) {
            return false;
        }
        const toml::array* const list = types == nullptr ? nullptr : types->as_array();
        if (list == nullptr || list->empty()) {
            return Refuse(types == nullptr ? 1 : LineOf(*types), {},
                          "no types in it; write each type below a line [[type]]");
        }
        return std::ranges::all_of(*list,
                                   [this](const toml::node& type) { return ReadType(type); });
    }

private:
    /// What a type has, that of its bases included.
    struct Known
    {
        std::set<std::string, std::less<>> names;  ///< of attributes
        std::size_t held = 0;                      ///< see ThingsHeld; a base counts as one
    };

    bool Count(const toml::table& table, std::string_view entry, std::size_t held)
    {
        _held += held;
        return _held <= mostThingsHeld ||
               Refuse(LineOf(table), entry,
                      "up to here the types hold, with what they inherit, more than " +
                          std::to_string(mostThingsHeld) +
                          " bases, attributes and numbers; make the catalogue smaller");
    }

    static std::size_t LineOf(const toml::node& node) { return node.source().begin.line; }

    bool Refuse(std::size_t line, std::string_view entry, std::string_view reason)
    {
        _error = CatalogMessage(_fileName, line, entry, reason);
        return false;
    }

    bool HasOnlyKeys(const toml::table& table, std::initializer_list<std::string_view> known,
                     std::string_view entry)
    {
        for (const auto& [key, node] : table) {
            if (std::ranges::find(known, key.str()) == known.end()) {
                return Refuse(key.source().begin.line, entry,
                              "unknown key " + vex::text::DoubleQuoted(key.str()) +
                                  "; remove it or correct its name");
            }
        }
        return true;
    }

    /// The text under a key; `needed` refuses its absence.
    bool ReadText(const toml::table& table, std::string_view key, std::string_view entry,
                  bool needed, std::string& text)
    {
        const toml::node* const node = table.get(key);
        if (node == nullptr) {
            return !needed ||
                   Refuse(LineOf(table), entry, "no " + vex::text::DoubleQuoted(key) + "; add it");
        }
        if (!node->is_string()) {
            return Refuse(LineOf(*node), entry,
                          vex::text::DoubleQuoted(key) + " is no text; write it in quotes");
        }
        text = node->as_string()->get();
        return true;
    }

    bool ReadName(const toml::table& table, std::string_view entry, std::string& name)
    {
        if (!ReadText(table, "name", entry, true, name)) {
            return false;
        }
        return IsName(name) ||
               Refuse(LineOf(*table.get("name")), entry,
                      "the name " + vex::text::DoubleQuoted(name) +
                          " is none; use up to 100 letters, digits and '_', a letter first");
    }

    bool ReadType(const toml::node& node)
    {
        const toml::table* const table = node.as_table();
        const std::string count = "type " + std::to_string(_types.size() + 1);
        if (table == nullptr) {
            return Refuse(LineOf(node), count, "no table; write each type below a line [[type]]");
        }
        LateTypeDefinition type;
        if (!ReadName(*table, count, type.name)) {
            return false;
        }
        const std::string entry = "type " + vex::text::DoubleQuoted(type.name);
        if (!HasOnlyKeys(*table, {"name", "base", "attributes"}, entry) ||
            !ReadText(*table, "base", entry, false, type.base)) {
            return false;
        }
        if (_known.contains(type.name)) {
            return Refuse(LineOf(*table), entry, "defined twice; remove or rename one of the two");
        }
        Known known;
        if (table->contains("base")) {
            const auto base = _known.find(type.base);
            if (base == _known.end()) {
                return Refuse(LineOf(*table->get("base")), entry,
                              "its base " + vex::text::DoubleQuoted(type.base) +
                                  " does not stand further up; correct the name or the order");
            }
            if (!Count(*table, entry, base->second.held)) {
                return false;
            }
            known = base->second;
        }
        if (const toml::node* const attributes = table->get("attributes")) {
            const toml::array* const list = attributes->as_array();
            if (list == nullptr) {
                return Refuse(LineOf(*attributes), entry,
                              "\"attributes\" is no list; write [{ name = …, kind = … }, …]");
            }
            for (const toml::node& attribute : *list) {
                if (!ReadAttribute(attribute, entry, type, known)) {
                    return false;
                }
            }
        }
        ++known.held;
        _known.emplace(type.name, std::move(known));
        _types.push_back(std::move(type));
        return true;
    }

    bool ReadAttribute(const toml::node& node, const std::string& owner, LateTypeDefinition& type,
                       Known& known)
    {
        const toml::table* const table = node.as_table();
        const std::string count =
            owner + ", attribute " + std::to_string(type.attributes.size() + 1);
        if (table == nullptr) {
            return Refuse(LineOf(node), count, "no table; write { name = …, kind = … }");
        }
        AttributeDefinition attribute;
        if (!ReadName(*table, count, attribute.name)) {
            return false;
        }
        const std::string entry = owner + ", attribute " + vex::text::DoubleQuoted(attribute.name);
        std::string kindText;
        if (!HasOnlyKeys(*table, {"name", "kind", "default", "listed"}, entry) ||
            !ReadText(*table, "kind", entry, true, kindText)) {
            return false;
        }
        const CatalogKind* const kind = FindCatalogKind(kindText);
        if (kind == nullptr) {
            return Refuse(
                LineOf(*table->get("kind")), entry,
                "unknown kind " + vex::text::DoubleQuoted(kindText) +
                    "; use boolean, integer, double, text, reference, link, list or table");
        }
        if (!known.names.insert(attribute.name).second) {
            return Refuse(LineOf(*table), entry,
                          "the type or its base has it already; remove or rename one of the two");
        }
        attribute.kind = kind->kind;
        attribute.defaultValue = vex::EmptyValue(attribute.kind);
        if (const toml::node* const given = table->get("default");
            given != nullptr && !ReadDefault(*given, attribute.kind, attribute.defaultValue)) {
            return Refuse(LineOf(*given), entry,
                          "the default is none of kind " + vex::text::DoubleQuoted(kind->name) +
                              "; write " + std::string(kind->form));
        }
        if (const toml::node* const listed = table->get("listed"); listed != nullptr) {
            if (!listed->is_boolean()) {
                return Refuse(LineOf(*listed), entry,
                              "\"listed\" is no boolean; write true or false");
            }
            attribute.listed = listed->as_boolean()->get();
        }
        const std::size_t held = ThingsHeld(attribute);
        known.held += held;
        type.attributes.push_back(std::move(attribute));
        return Count(*table, entry, held);
    }

    std::string_view _fileName;
    std::vector<LateTypeDefinition>& _types;
    std::string& _error;
    std::map<std::string, Known, std::less<>> _known;  ///< by type
    std::size_t _held = 0;                             ///< by all types together
};

}  // namespace

bool ReadCatalog(std::string_view text, std::string_view fileName,
                 std::vector<LateTypeDefinition>& types, std::string& error)
{
    types.clear();
    return CatalogReader(fileName, types, error).Read(text);
}

}  // namespace hlx
