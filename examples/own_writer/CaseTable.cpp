// SPDX-License-Identifier: Apache-2.0
// A writer of its own in the place of the product's: instead of an input file it writes a table of
// the case's features, nearest to the case first, as comma-separated values: case, late type, name.
// Everything it knows it asks through the public interfaces.
#include "HLXIIfwTraverser.h"
#include "VEXOwnComponent.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <system_error>

#include <unistd.h>

namespace {

constexpr int allLevels = std::numeric_limits<int>::max();

/// A value as RFC 4180 has it: in quotes, those within it twice.
std::string Quoted(const VEXUnicodeString& value)
{
    std::string quoted = "\"";
    for (const char c : value.View()) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + '"';
}

HRESULT Refuse(HRESULT result, const std::string& reason)
{
    std::fprintf(stderr, "own_writer: %s; nothing was written\n", reason.c_str());
    return result;
}

std::string NameOf(const VEXBaseUnknown_var& object)
{
    const VEXIAlias_var alias = object;
    return Quoted(alias == nullptr ? VEXUnicodeString() : alias->GetAlias());
}

HRESULT AppendRows(const VEXISamAnalysisCase_var& analysisCase, std::string& rows)
{
    const VEXISamAnalysisScan_var tree = analysisCase;
    VEXListValVEXBaseUnknown_var features;
    if (tree == nullptr || FAILED(tree->GetChildren("", features, allLevels))) {
        return Refuse(E_FAIL, "an analysis case does not tell its features");
    }
    const std::string nameOfCase = NameOf(analysisCase);
    for (int i = 1; i <= features.Size(); ++i) {
        const VEXISpecObject_var feature = features[i];
        const VEXUnicodeString type = feature == nullptr ? "" : feature->GetType();
        rows += nameOfCase + ',' + Quoted(type) + ',' + NameOf(feature) + '\n';
    }
    return S_OK;
}

/// Replaces the file, whole or not at all, as the interface promises. Processes that write the same
/// file at the same time have an unfinished one each.
HRESULT ReplaceFile(const std::string& path, const std::string& text)
{
    const std::string unfinished = path + '.' + std::to_string(getpid()) + ".unfinished";
    std::ofstream file(unfinished, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    std::error_code fault;
    if (file.good()) {
        std::filesystem::rename(unfinished, path, fault);
    }
    if (file.good() && !fault) {
        return S_OK;
    }
    std::filesystem::remove(unfinished, fault);
    return Refuse(E_FAIL,
                  path + " cannot be written: see whether its folder is there and has room");
}

HRESULT Write(const VEXUnicodeString& path, const VEXListValVEXBaseUnknown_var& cases)
{
    std::string table = "case,type,name\n";
    for (int i = 1; i <= cases.Size(); ++i) {
        const VEXISamAnalysisCase_var analysisCase = cases[i];
        if (analysisCase == nullptr) {
            return Refuse(E_INVALIDARG, "entry " + std::to_string(i) + " is no analysis case");
        }
        if (const HRESULT rc = AppendRows(analysisCase, table); FAILED(rc)) {
            return rc;
        }
    }
    return cases.Size() == 0 ? Refuse(E_INVALIDARG, "the list of cases is empty")
                             : ReplaceFile(path.ConvertToChar(), table);
}

class CaseTable final : public VEXOwnComponent<CaseTable, HLXIIfwTraverser>
{
public:
    static constexpr const char* ComponentName = "HLXIfwTraverser";
    static constexpr const char* LibraryName = "HLXIfwExportTraverser";

    HRESULT WriteInputFile(const VEXUnicodeString& path,
                           VEXListValVEXBaseUnknown_var& cases) override
    {
        try {
            return Write(path, cases);
        } catch (const std::exception& exception) {
            return Refuse(E_FAIL, exception.what());
        }
    }
};

}  // namespace

const VEXComponentLibrary* VEXGetComponentLibrary()
{
    return VEXOwnComponentLibrary<CaseTable>();
}
