// SPDX-License-Identifier: Apache-2.0
// What tests of the store share: a folder of their own, and documents as plain values.
#pragma once

#include "host/store/AttributePacker.h"
#include "host/store/DocumentReader.h"
#include "host/store/DocumentWriter.h"
#include "host/system/FileOperations.h"
#include "support/ResealedDocument.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vex::store::test {

namespace fs = std::filesystem;

/// A test with an empty folder that is removed with it.
class FolderTest : public testing::Test
{
public:
    FolderTest(const FolderTest&) = delete;
    FolderTest& operator=(const FolderTest&) = delete;
    ~FolderTest() override
    {
        std::error_code code;
        fs::remove_all(folder, code);
    }

protected:
    FolderTest()
    {
        std::string pattern = (fs::temp_directory_path() / "vex-store-XXXXXX").string();
        folder = ::mkdtemp(pattern.data());
    }
    std::string In(const std::string& name) const { return (folder / name).string(); }

    std::size_t FileCount() const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    fs::path folder;
};

/// The process's file operations as they were, whatever the test puts there.
class OperationsGuard
{
public:
    OperationsGuard() : _kept(system::CurrentFileOperations()) {}
    OperationsGuard(const OperationsGuard&) = delete;
    OperationsGuard& operator=(const OperationsGuard&) = delete;
    ~OperationsGuard() { system::CurrentFileOperations() = _kept; }

private:
    system::FileOperations _kept;
};

struct StoredFeature
{
    Id id = 0;
    Id parent = 0;
    std::int32_t container = 0;
    std::string lateType;
    std::optional<std::string> alias;
    std::vector<std::byte> attributes;

    bool operator==(const StoredFeature&) const = default;
};

struct StoredLink
{
    Id id = 0;
    DocumentKind kind = DocumentKind::Part;
    std::string path;

    bool operator==(const StoredLink&) const = default;
};

/// A whole document.
struct Content
{
    DocumentKind kind = DocumentKind::Analysis;
    int dataVersion = 1;
    std::vector<std::string> attributeNames;
    std::vector<StoredLink> links;
    std::map<Id, std::vector<std::byte>> geometry;
    std::vector<StoredFeature> features;

    bool operator==(const Content&) const = default;
};

inline std::vector<std::byte> ToVector(Bytes bytes)
{
    return {bytes.begin(), bytes.end()};
}

inline bool Save(const Content& content, const std::string& path, std::string& error)
{
    DocumentWriter writer;
    writer.Begin(path, content.kind, content.dataVersion);
    for (const std::string& name : content.attributeNames)
        writer.AttributeName(name);
    for (const StoredLink& link : content.links)
        writer.AddLink({link.id, link.kind, link.path});
    for (const auto& [id, bytes] : content.geometry)
        writer.AddGeometry(id, bytes);
    for (const StoredFeature& feature : content.features) {
        FeatureRow row{feature.id, feature.parent, feature.container, 0, {}, feature.attributes};
        row.lateType = writer.LateType(feature.lateType).value_or(0);
        if (feature.alias) row.alias = *feature.alias;
        writer.AddFeature(row);
    }
    return writer.Commit(error);
}

/// All of a document, its geometry included; none, and the message, when any of it is refused.
inline std::optional<Content> Load(const std::string& path, std::string& error,
                                   int newestDataVersion = kDataVersion)
{
    DocumentReader reader;
    if (!reader.Open(path, error, newestDataVersion)) return std::nullopt;
    Content content;
    content.kind = reader.Kind();
    content.dataVersion = reader.DataVersion();
    content.attributeNames = reader.AttributeNames();
    for (const LinkRow& link : reader.Links()) {
        content.links.push_back({link.id, link.kind, std::string(link.path)});
    }
    for (FeatureRow row; reader.Next(row);) {
        StoredFeature feature{row.id,
                              row.parent,
                              row.container,
                              reader.LateTypes()[row.lateType],
                              {},
                              ToVector(row.attributes)};
        if (row.alias) feature.alias = *row.alias;
        content.features.push_back(std::move(feature));
    }
    if (!reader.Finish(error)) return std::nullopt;
    for (const Id id : reader.Geometries()) {
        if (!reader.ReadGeometry(id, content.geometry[id], error)) return std::nullopt;
    }
    return content;
}

using hlxtest::ReadFile;
using hlxtest::WriteFile;

/// Changes a database with SQL, as any program could.
inline void ChangeBySql(const std::string& path, const std::string& sql)
{
    std::string error;
    ASSERT_TRUE(hlxtest::ChangeBySql(path, sql, error)) << error;
}

/// A document that has something in every table: features 1 (child 2 (child 3), child 5) and 4.
inline Content SmallContent()
{
    Content content;
    content.attributeNames = {"Active", "Count",   "Value", "Note",
                              "Target", "Support", "Times", "Amplitude"};
    content.links = {{1, DocumentKind::Part, "../parts/plate.VEXPart"},
                     {7, DocumentKind::Product, "bracket.VEXProduct"}};
    content.geometry[2] = std::vector<std::byte>(100'000, std::byte{0x5A});
    content.geometry[9] = {};
    AttributePacker packer;
    const double values[] = {0.0, 0.5, 1.0, -2.5, 1e300, 7.0};
    packer.AddBoolean(0, true);
    packer.AddInteger(1, -5);
    packer.AddDouble(2, 0.1);
    packer.AddText(3, "Grüße, 世界");
    packer.AddReference(4, 5);
    packer.AddLink(5, 7);
    packer.AddList(6, values);
    packer.AddTable(7, 3, 2, values);
    const std::vector<std::byte> all = ToVector(packer.Packed());
    packer.Clear();
    const std::vector<std::byte> none = ToVector(packer.Packed());
    content.features = {{1, 0, 0, "Root", "Model", none},
                        {2, 1, 0, "Load", "", all},
                        {3, 2, 1, "Support", std::nullopt, none},
                        {5, 1, 1, "Load", "größer", all},
                        {4, 0, 2, "Root", std::nullopt, none}};
    return content;
}

}  // namespace vex::store::test
