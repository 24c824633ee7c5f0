// SPDX-License-Identifier: Apache-2.0
// Documents to files and back; files that do not fit this process's catalogues.
#include "StorageTest.h"
#include "host/store/AttributePacker.h"
#include "host/store/DocumentWriter.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using namespace vex;
using featuretest::Add;
using featuretest::MakeDocument;
using featuretest::Outline;
using testing::HasSubstr;

class DocumentStorageTest : public featuretest::StorageTest
{};

std::vector<std::byte> Bytes(std::string_view text)
{
    const auto* const first = reinterpret_cast<const std::byte*>(text.data());
    return {first, first + text.size()};
}

TEST_F(DocumentStorageTest, EverythingComesBackAsItWas)
{
    Feature& one = Add(root, "TestThing", "one \"1\"\nΩ");
    Feature& two = Add(one, "TestDerived");
    Feature& three = Add(root, "TestThing");
    three.SetAlias("");
    document->Tree().Create(featuretest::Type("VEXBRepContainer"), nullptr);
    one.Set("Flag", false);
    one.Set("Count", std::numeric_limits<std::int64_t>::max());
    one.Set("Size", -0.0);
    one.Set("Label", Boxed<std::string>(std::string(1 << 20, 'x')));
    one.Set("Other", Reference{three.Id()});
    two.Set("Other", Reference{two.Id()});
    three.Set("Other", Reference{one.Id()});
    two.Set("File",
            Boxed<DocumentLink>(DocumentLink{folder.File("sub/b.VEXPart"), DocumentType::Part}));
    two.Set("Samples", Boxed<DoubleList>());
    two.Set("Rows", Boxed<DoubleTable>(DoubleTable{3, {1, 2, 3, 4, 5, 6}}));
    two.Set("Extra", std::numeric_limits<double>::denorm_min());
    three.Set("Flag", true);
    ASSERT_TRUE(SaveDocument(*document, path, error)) << error;

    const DocumentHolder read = Load(path);
    ASSERT_EQ(read->Tree().Size(), document->Tree().Size());
    ASSERT_EQ(read->Tree().Roots().size(), 2U);
    EXPECT_EQ(Outline(*read->Tree().Roots().front()), Outline(root));
    EXPECT_EQ(read->Path(), path);
    EXPECT_EQ(read->DocType(), DocumentType::Part);
    FeatureTree::Walk(root, [&](const Feature& before, int) {
        const Feature* const after = read->Tree().Find(before.Id());
        ASSERT_NE(after, nullptr);
        EXPECT_EQ(&after->Kind(), &before.Kind());
        EXPECT_EQ(after->HasAlias(), before.HasAlias());
        for (int index = 0; index < static_cast<int>(before.Kind().attributes.size()); ++index) {
            EXPECT_EQ(after->IsSet(index), before.IsSet(index));
            EXPECT_EQ(after->Get(index), before.Get(index));
        }
    });
    // Written again from what was read, the file is the same to the byte.
    const std::string before = hlxtest::ReadFile(path);
    ASSERT_TRUE(SaveDocument(*read, path, error)) << error;
    EXPECT_EQ(hlxtest::ReadFile(path), before);
}

TEST_F(DocumentStorageTest, AReferenceToADeletedFeatureIsStoredAsNotSet)
{
    Feature& one = Add(root);
    Feature& two = Add(root);
    one.Set("Other", Reference{two.Id()});
    document->Tree().Delete(two);
    ASSERT_TRUE(SaveDocument(*document, path, error)) << error;
    const DocumentHolder read = Load(path);
    EXPECT_FALSE(read->Tree().Find(one.Id())->IsSet(one.Kind().IndexOf("Other")));
    // The deleted feature's id may be given again now: nothing may refer to it.
    Add(*read->Tree().Roots().front());
    EXPECT_EQ(read->Tree().Find(one.Id())->Target("Other"), nullptr);
}

TEST_F(DocumentStorageTest, WhatIsDeletedOrMovedAfterReadingIsStoredSo)
{
    Feature& one = Add(root, "TestThing", "one");
    Feature& two = Add(root, "TestThing", "two");
    Feature& three = Add(root, "TestThing", "three");
    ASSERT_TRUE(SaveDocument(*document, path, error)) << error;
    const DocumentHolder read = Load(path);
    read->Tree().Delete(*read->Tree().Find(one.Id()));
    ASSERT_TRUE(SaveDocument(*read, path, error)) << error;
    const DocumentHolder again = Load(path);
    EXPECT_EQ(again->Tree().Find(one.Id()), nullptr);
    ASSERT_TRUE(again->Tree().Move(*again->Tree().Find(three.Id()), nullptr,
                                   again->Tree().Roots().front()));
    ASSERT_TRUE(SaveDocument(*again, path, error)) << error;
    const DocumentHolder last = Load(path);
    EXPECT_EQ(last->Tree().Roots().front()->Id(), three.Id());
    EXPECT_NE(last->Tree().Find(two.Id()), nullptr);
}

TEST_F(DocumentStorageTest, GeometryIsReadWhenAskedForFromTheFileThatWasOpened)
{
    const std::uint64_t first = document->AddGeometry(Bytes("first shape"));
    const std::uint64_t second = document->AddGeometry(Bytes("second"));
    ASSERT_TRUE(SaveDocument(*document, path, error)) << error;
    const DocumentHolder read = Load(path);
    // Another document takes the file's place: what was opened is what is read.
    const DocumentHolder other = MakeDocument();
    other->AddGeometry(Bytes("other shape"));
    ASSERT_TRUE(SaveDocument(*other, path, error)) << error;

    std::span<const std::byte> bytes;
    ASSERT_TRUE(read->Geometry(second, bytes, error)) << error;
    EXPECT_EQ(std::vector(bytes.begin(), bytes.end()), Bytes("second"));
    std::span<const std::byte> otherBytes;
    ASSERT_TRUE(read->Geometry(first, otherBytes, error)) << error;
    EXPECT_EQ(std::vector(otherBytes.begin(), otherBytes.end()), Bytes("first shape"));
    EXPECT_EQ(bytes.data()[0], std::byte{'s'});
    EXPECT_FALSE(read->Geometry(3, bytes, error));
    EXPECT_THAT(error, HasSubstr("no geometry of number 3"));
}

TEST_F(DocumentStorageTest, SavingKeepsGeometryThatWasNeverAskedFor)
{
    const std::uint64_t number = document->AddGeometry(Bytes("shape"));
    ASSERT_TRUE(SaveDocument(*document, path, error)) << error;
    const DocumentHolder read = Load(path);
    ASSERT_TRUE(SaveDocument(*read, path, error)) << error;
    const DocumentHolder again = Load(path);
    std::span<const std::byte> bytes;
    ASSERT_TRUE(again->Geometry(number, bytes, error)) << error;
    EXPECT_EQ(std::vector(bytes.begin(), bytes.end()), Bytes("shape"));
    EXPECT_EQ(again->AddGeometry(Bytes("more")), number + 1);
}

TEST_F(DocumentStorageTest, AFailedSaveLeavesTheOldFile)
{
    ASSERT_TRUE(SaveDocument(*document, path, error)) << error;
    const std::string before = hlxtest::ReadFile(path);
    EXPECT_FALSE(SaveDocument(*document, folder.File("no/such/folder.VEXPart"), error));
    EXPECT_THAT(error, HasSubstr("no/such/folder.VEXPart"));
    EXPECT_EQ(hlxtest::ReadFile(path), before);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.VEXPart"});
}

/// A file with one feature of a late type, with one attribute packed by `pack`.
template <class Pack>
void WriteRow(const std::string& path, std::string_view type, std::string_view attribute, Pack pack)
{
    store::DocumentWriter writer;
    ASSERT_TRUE(writer.Begin(path, store::DocumentKind::Part));
    store::AttributePacker packer;
    ASSERT_TRUE(pack(packer, *writer.AttributeName(attribute)));
    store::FeatureRow row;
    row.id = 42;
    row.lateType = *writer.LateType(type);
    row.alias = "the thing";
    row.attributes = packer.Packed();
    ASSERT_TRUE(writer.AddFeature(row));
    std::string error;
    ASSERT_TRUE(writer.Commit(error)) << error;
}

TEST_F(DocumentStorageTest, RefusesWhatTheCataloguesDoNotHave)
{
    featuretest::Type("TestThing");
    const auto number = [](store::AttributePacker& packer, store::NameIndex name) {
        return packer.AddDouble(name, 1);
    };
    const auto reference = [](store::AttributePacker& packer, store::NameIndex name) {
        return packer.AddReference(name, 42);
    };
    const auto refused = [&](const char* reason) {
        EXPECT_EQ(LoadDocument(path, error), nullptr) << reason;
        EXPECT_THAT(error, HasSubstr("'" + path + "': feature 42 'the thing': ")) << reason;
        EXPECT_THAT(error, HasSubstr(reason));
    };
    WriteRow(path, "TestThing", "Size", number);
    EXPECT_NE(LoadDocument(path, error), nullptr) << error;
    WriteRow(path, "NoSuchType", "Size", number);
    refused("no catalogue defines its late type 'NoSuchType'. Install the library that does.");
    WriteRow(path, "TestThing", "Missing", number);
    refused("the late type 'TestThing' has no attribute 'Missing'. Use the catalogue");
    WriteRow(path, "TestThing", "Label", number);
    refused(
        "the value of attribute 'Label' is not of the kind that the late type 'TestThing' has.");
    WriteRow(path, "TestThing", "Label", reference);
    refused("the value of attribute 'Label' is not of the kind");
    WriteRow(path, "TestThing", "Other", number);
    refused("the value of attribute 'Other' is not of the kind");
    WriteRow(path, "TestThing", "Other", reference);
    EXPECT_NE(LoadDocument(path, error), nullptr) << error;
}

TEST_F(DocumentStorageTest, RefusesIdsThatCannotBe)
{
    featuretest::Type("TestThing");
    store::DocumentWriter writer;
    ASSERT_TRUE(writer.Begin(path, store::DocumentKind::Part));
    store::AttributePacker packer;
    store::FeatureRow row;
    row.id = std::numeric_limits<store::Id>::max();
    row.lateType = *writer.LateType("TestThing");
    row.attributes = packer.Packed();
    ASSERT_TRUE(writer.AddFeature(row));
    ASSERT_TRUE(writer.Commit(error)) << error;
    EXPECT_EQ(LoadDocument(path, error), nullptr);
    EXPECT_THAT(error, HasSubstr("its id or its name cannot be"));
}

TEST_F(DocumentStorageTest, RefusesAFileThatIsNoDocument)
{
    hlxtest::WriteFile(path, "some text");
    EXPECT_EQ(LoadDocument(path, error), nullptr);
    EXPECT_THAT(error, HasSubstr(path));
    EXPECT_EQ(LoadDocument(folder.File("missing.VEXPart"), error), nullptr);
    EXPECT_THAT(error, HasSubstr("missing.VEXPart"));
}

}  // namespace
