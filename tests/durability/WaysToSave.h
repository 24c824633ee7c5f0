// SPDX-License-Identifier: Apache-2.0
// The ways by which something is saved, each with a state "old" that is stored and a state "new"
// that a save brings.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace durabilitytest {

class WayToSave
{
public:
    virtual ~WayToSave() = default;

    /// Stores the old state. Called once, by the test's own process.
    virtual void StoreOld() = 0;
    /// Makes all ready for Save; then Save brings the new state. False when it is refused, the
    /// message in `error`. Called in a child: what they open stays open.
    virtual void Prepare() = 0;
    virtual bool Save(std::string& error) = 0;
    /// "old" or "new" when the stored file is whole and its state is that; otherwise what is wrong.
    /// After it Save needs Prepare again.
    virtual std::string State() = 0;

    /// Where it is stored: the name of the only file of the folder.
    static constexpr const char* kFile = "saved.VEXAnalysis";
};

/// How a way is made for a folder, and its name for reports.
struct KindOfSave
{
    const char* name;
    std::unique_ptr<WayToSave> (*make)(const std::string& folder);

    friend void PrintTo(const KindOfSave& kind, std::ostream* stream) { *stream << kind.name; }
};

/// The store's writer; VEXDocumentServices::Save, SaveAs of a changed document and of an unchanged
/// one; VEXIIniSettingManagment::Commit.
std::vector<KindOfSave> KindsOfSaves();

}  // namespace durabilitytest
