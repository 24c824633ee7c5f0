// SPDX-License-Identifier: Apache-2.0
// A test of one way to save, in a folder of its own that holds the old state.
#pragma once

#include "durability/Interception.h"
#include "durability/WaysToSave.h"
#include "host/system/UnfinishedFile.h"
#include "support/ChildProcess.h"

#include <string>

namespace durabilitytest {

class SavingTest : public vex::store::test::FolderTest,
                   public testing::WithParamInterface<KindOfSave>
{
protected:
    SavingTest() { way->StoreOld(); }

    std::string Path() const { return In(WayToSave::kFile); }

    /// The number of file operations of a save; puts the old state back.
    int CountOperations()
    {
        const std::string old = vex::store::test::ReadFile(Path());
        const hlxtest::Shared<int> count;
        const auto save = [&] {
            way->Prepare();
            const Interception counting([&](std::string_view) { return ++*count, 0; });
            std::string error;
            EXPECT_TRUE(way->Save(error)) << error;
        };
        EXPECT_EQ(hlxtest::InChild(save), 0);
        EXPECT_EQ(way->State(), "new");
        vex::store::test::WriteFile(Path(), old);
        return *count;
    }

    /// What stands beside the saved file.
    std::vector<std::string> Strays() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            const std::string name = entry.path().filename().string();
            if (name != WayToSave::kFile) names.push_back(name);
        }
        return names;
    }

    const std::unique_ptr<WayToSave> way = GetParam().make(folder.string());
};

inline std::string NameOfKind(const testing::TestParamInfo<KindOfSave>& info)
{
    return info.param.name;
}

}  // namespace durabilitytest
