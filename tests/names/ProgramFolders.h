// SPDX-License-Identifier: Apache-2.0
// Folders for one program that reads a document and writes files, and what a program may say.
#pragma once

#include "names/HostileNames.h"
#include "names/NamedAnalysis.h"
#include "names/QuotedText.h"
#include "names/StrictJson.h"
#include "support/ChildProgram.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

namespace hlxtest {

class ProgramFolders : public testing::Test
{
protected:
    ProgramFolders()
    {
        NamedAnalysis analysis;
        analysis.Reopen("sample.VEXAnalysis");
        _document = folder.File("sample.VEXAnalysis");
        std::filesystem::copy_file(analysis.Folder().File("sample.VEXAnalysis"), _document);
    }

    /// An empty folder of that name; what was in it is gone.
    std::string Empty(const std::string& name)
    {
        std::filesystem::remove_all(folder.File(name));
        std::filesystem::create_directory(folder.File(name));
        return folder.File(name);
    }

    /// Empties that folder; answers the way to a file in it from the folder that holds both.
    std::string Empty(const std::string& name, const std::string& fileName)
    {
        Empty(name);
        return name + "/" + fileName;
    }

    /// A copy of the sample document there.
    void Place(const std::string& path) { std::filesystem::copy_file(_document, path); }

    static std::vector<std::string> NamesIn(const std::string& path)
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            names.push_back(entry.path().filename().string());
        }
        std::ranges::sort(names);
        return names;
    }

    static std::vector<std::string> Sorted(std::vector<std::string> names)
    {
        std::ranges::sort(names);
        return names;
    }

    /// Names with room for an ending behind them.
    static HostileNames WithRoom(const HostileNames& names, std::size_t size)
    {
        HostileNames chosen;
        std::ranges::copy_if(names, std::back_inserter(chosen), [&](const HostileName& name) {
            return name.bytes.size() + size <= 247;
        });
        return chosen;
    }

    /// Messages are whole lines that no name can end, begin or disturb.
    static void ExpectPlainLines(const std::string& messages)
    {
        for (const std::string_view line : LinesOf(messages)) {
            EXPECT_TRUE(IsPlain(line)) << testing::PrintToString(std::string(line));
        }
    }

    /// A trace of HLXFileDump as JSON shows the name of its document byte for byte.
    static void ExpectTheNameIn(const std::string& path, const std::string& name)
    {
        const auto trace = ReadJson(ReadFile(path));
        ASSERT_TRUE(trace) << "the trace is no JSON";
        const Json& join = trace->items.at(1);
        EXPECT_EQ(join.Find("name")->text, "VEXMakePath");
        EXPECT_EQ(Unquoted(join.Find("args")->Find("arguments")->items.at(1).text), name);
    }

    TemporaryFolder folder;

private:
    std::string _document;
};

}  // namespace hlxtest
