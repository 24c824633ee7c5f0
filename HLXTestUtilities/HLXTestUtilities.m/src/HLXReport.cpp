// SPDX-License-Identifier: Apache-2.0
// The file of a report, and names in it.
#include "HLXReport.h"

HLXReport::Block::Block(const VEXUnicodeString& path, const char* header)
{
    // Before it is opened: what the global locale would make of the bytes.
    _file.imbue(std::locale::classic());
    // A name with a zero in it would be cut there: nothing is written under another name.
    if (path.View().find('\0') == std::string_view::npos) {
        _file.open(path.ConvertToChar(), std::ios::out | std::ios::app);
    }
    Write(header, "");
}

void HLXReport::Block::Write(const char* label, const VEXUnicodeString& value)
{
    _file << label << value.View() << '\n';
}

VEXUnicodeString HLXReport::NameOf(const VEXISpecObject_var& feature)
{
    const VEXIAlias_var alias = feature;
    return alias ? alias->GetAlias() : VEXUnicodeString("NULL");
}
