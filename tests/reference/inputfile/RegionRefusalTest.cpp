// SPDX-License-Identifier: Apache-2.0
// Regions that are not found in their parts: no deck is written of them, and what was there stays.
#include "reference/inputfile/SupportFixture.h"

#include <limits>

namespace {

using vex::Feature;

class InputFileRegionRefusal : public hlxtest::SupportTest
{
protected:
    InputFileRegionRefusal() { LinkToUses(box, {"Box.1"}); }

    /// The refusal of a deck, an old file in its place, after the support was changed.
    std::string RefusalOf(const char* attribute, const vex::Value& value)
    {
        support.Set(attribute, value);
        return RefusalOfAll();
    }

    std::string RefusalOfAll()
    {
        const std::string path = folder.File("case.inp");
        hlxtest::WriteFile(path, "old");
        EXPECT_EQ(Write(path, {Entry(1)}), E_FAIL);
        EXPECT_EQ(hlxtest::ReadFile(path), "old");
        return said;
    }

    /// How each refusal begins: which support it is about.
    const std::string beginning =
        "vex: HLXIIfwTraverser::WriteInputFile: \"Analysis Case.1\"/HLXHacSimHistLT[1]/\"Loading\"/"
        "HLXLoadContainerLT[1]/\"Gravity.1\"/VEXSamSupport[2]: ";

    std::string box = hlxtest::PartSpecimen(folder, "box");
    Feature& gravity = Load("HLXGravity", AddStep("HLXStaticLPStepLT"), "Gravity.1");
    Feature& first = Region(gravity, box, 2, 1);
    Feature& support = Region(gravity, box, 2, 6);
};

TEST_F(InputFileRegionRefusal, OfAPartThatIsMissing)
{
    const std::string gone = folder.File("gone.VEXPart");
    const std::string reason =
        RefusalOf("Document", vex::Boxed<vex::DocumentLink>({gone, vex::DocumentType::Part}));
    EXPECT_TRUE(reason.starts_with(beginning)) << reason;
    EXPECT_NE(reason.find(gone), std::string::npos) << reason;
    EXPECT_TRUE(reason.ends_with(". Nothing was written\n")) << reason;
}

TEST_F(InputFileRegionRefusal, OfNoPart)
{
    const std::string reason = RefusalOf("Document", vex::Boxed<vex::DocumentLink>());
    EXPECT_TRUE(reason.starts_with(beginning)) << reason;
}

TEST_F(InputFileRegionRefusal, OfAnotherShape)
{
    const std::string reason =
        RefusalOf("Shape", vex::Boxed<std::string>(std::string("another digest")));
    EXPECT_TRUE(reason.starts_with(beginning)) << reason;
    EXPECT_NE(reason.find("'" + box + "': its shape is not the one"), std::string::npos) << reason;
    EXPECT_TRUE(reason.ends_with(" present shape. Nothing was written\n")) << reason;
}

TEST_F(InputFileRegionRefusal, OfAPartThatWasGivenAnotherShapeMeanwhile)
{
    Text();
    vex::Document& part = *vex::DocumentSession::Instance().Find(box);
    ASSERT_TRUE(vex::GiveGeometry(part, {std::byte{1}, std::byte{2}}));
    const std::string reason = RefusalOfAll();
    EXPECT_NE(reason.find("/\"Gravity.1\"/VEXSamSupport[1]: "), std::string::npos) << reason;
    EXPECT_NE(reason.find("'" + box + "': its shape is not the one"), std::string::npos) << reason;
}

TEST_F(InputFileRegionRefusal, OfGeometryThatThePartDoesNotHave)
{
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const std::pair<std::int64_t, std::int64_t> none[] = {
        {2, 7}, {2, 0},  {2, -1},   {3, 2},     {4, 1},    {-1, 1},
        {0, 9}, {1, 13}, {most, 1}, {least, 1}, {2, most}, {2, least}};
    for (const auto& [dimension, index] : none) {
        support.Set("Dimension", dimension);
        support.Set("Index", index);
        const std::string reason = RefusalOfAll();
        EXPECT_TRUE(reason.starts_with(beginning)) << reason;
        EXPECT_NE(reason.find("'" + box + "': "), std::string::npos) << reason;
    }
}

TEST_F(InputFileRegionRefusal, IsNoneOfThoseThatAreThere)
{
    EXPECT_NE(Text().find("\"Box.1/Face-6\"\n"), std::string::npos);
}

/// One long name for each support would make a text of any length from a small document.
TEST_F(InputFileRegionRefusal, OfNamesThatTakeTooMuch)
{
    const std::string cylinder = hlxtest::PartSpecimen(folder, "cylinder");
    Feature& root = Product();
    Use(root, std::string(std::size_t{50} << 20U, 'n'), "Part-2", cylinder);
    Link(SaveProduct(root, "long"));
    const std::string tooLong =
        "the names of the regions, one for each use of their parts, take more than 256 MiB; link "
        "the analysis to a smaller product or write fewer cases at once. Nothing was written\n";
    for (int use = 1; use <= 6; ++use) {
        Region(gravity, cylinder, 2, 1);
    }
    const std::string reason = RefusalOfAll();
    EXPECT_TRUE(reason.ends_with("/VEXSamSupport[8]: " + tooLong)) << reason;
}

}  // namespace
