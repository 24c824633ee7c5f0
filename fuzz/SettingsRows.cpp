// SPDX-License-Identifier: Apache-2.0
// Rows of settings into a file whose columns were relaxed.
#include "SettingsRows.h"

#include "Literals.h"
#include "host/system/MessageTexts.h"
#include "host/system/SettingsStore.h"
#include "support/ResealedDocument.h"

#include <filesystem>
#include <set>

namespace hlxfuzz {

namespace {

/// A settings file as the host writes it, with small pages and columns of any type.
std::string MakeEmptyFile()
{
    const std::string path = InFolder("editable.VEXSettings");
    vex::system::SettingsStore store(path);
    std::string error;
    Require(store.Set("a", "b", error) && store.Commit(error) &&
                hlxtest::ChangeBySql(
                    path, std::string("PRAGMA page_size = 512; VACUUM;") + kRelaxColumns, error) &&
                hlxtest::ChangeBySql(path, "DELETE FROM setting", error),
            error);
    std::string bytes = ReadFile(path);
    std::filesystem::remove(path);
    return bytes;
}

void AppendNumber(std::string& bytes, std::size_t number)
{
    for (unsigned shift = 0; shift < 64; shift += 8) {
        bytes += static_cast<char>(static_cast<std::uint64_t>(number) >> shift);
    }
}

}  // namespace

SettingsRows::SettingsRows(Input bytes)
{
    InputReader input(bytes);
    _countOff = input.Below(16) == 15 ? 1 : 0;
    _sound = _countOff == 0;
    std::set<Cell> keys;
    while (!input.AtEnd()) {
        const Cell key = CellOf(input);
        const Cell value = CellOf(input);
        if (!keys.insert(key).second) {
            continue;
        }
        _rows.emplace_back(key, value);
        const auto* const keyText = std::get_if<std::string>(&key);
        const auto* const valueText = std::get_if<std::string>(&value);
        if (keyText != nullptr && valueText != nullptr && !keyText->empty() &&
            vex::system::TextFault(*keyText) == nullptr &&
            vex::system::TextFault(*valueText) == nullptr) {
            _settings.emplace(*keyText, *valueText);
        } else {
            _sound = false;
        }
    }
}

SettingsRows::Cell SettingsRows::CellOf(InputReader& input)
{
    switch (input.Below(16)) {
        case 13:
            return input.Number();
        case 14:
            return Blob{input.Bytes()};
        default:
            return input.Bytes();
    }
}

std::string SettingsRows::Literal(const Cell& cell)
{
    if (const auto* const text = std::get_if<std::string>(&cell)) {
        return TextLiteral(*text);
    }
    if (const auto* const blob = std::get_if<Blob>(&cell)) {
        return BlobLiteral(blob->bytes);
    }
    return std::to_string(std::get<std::int64_t>(cell));
}

std::string SettingsRows::Digested() const
{
    std::string bytes;
    AppendNumber(bytes, 1);  // the data version
    AppendNumber(bytes, _settings.size());
    for (const auto& [key, value] : _settings) {
        AppendNumber(bytes, key.size());
        bytes += key;
        AppendNumber(bytes, value.size());
        bytes += value;
    }
    return bytes;
}

void SettingsRows::Store(const std::string& path) const
{
    static const std::string emptyFile = MakeEmptyFile();
    WriteFile(path, emptyFile);
    std::string statements;
    for (const auto& [key, value] : _rows) {
        statements += "INSERT INTO setting VALUES (" + Literal(key) + ", " + Literal(value) + ");";
    }
    statements +=
        fmt::format("UPDATE repository SET setting_count = {}, digest = digest_of({});",
                    static_cast<std::int64_t>(_rows.size()) + _countOff, BlobLiteral(Digested()));
    std::string error;
    Require(hlxtest::ChangeBySql(path, statements + kRestoreColumns, error), error);
}

}  // namespace hlxfuzz
