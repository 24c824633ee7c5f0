// SPDX-License-Identifier: Apache-2.0
// The text of feature trees, typed by hand.
#include "host/feature/Document.h"
#include "product/treedump/TreeDump.h"
#include "reference/treedump/DumpTypes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>

namespace {

using hlxtest::Type;
using vex::Feature;

class TreeDump : public testing::Test
{
protected:
    Feature& Make(const char* type, Feature* parent, std::string_view alias = {})
    {
        Feature& feature = document->Tree().Create(Type(type), parent);
        if (!alias.empty()) {
            EXPECT_EQ(feature.SetAlias(alias), S_OK);
        }
        return feature;
    }

    static void Refer(Feature& feature, const Feature& target)
    {
        EXPECT_EQ(feature.Set("Target", vex::Reference{target.Id()}), S_OK);
    }

    static void Link(Feature& feature, std::string path)
    {
        EXPECT_EQ(feature.Set("Model", vex::Boxed<vex::DocumentLink>({std::move(path)})), S_OK);
    }

    static std::string Dump(Feature& root, int depth = 0)
    {
        std::string text;
        hlx::AppendFeatureTree(text, root, depth);
        return text;
    }

    vex::DocumentHolder document{new vex::Document(vex::DocumentType::Analysis)};
};

TEST_F(TreeDump, OneLineAFeatureTwoBlanksALevelInTheOrderOfTheTree)
{
    Feature& root = Make("TstPlain", nullptr, "Model");
    Feature& first = Make("TstPlain", &root, "First");
    Make("TstLoad", &first);
    Make("TstLoad", &root, "Last");
    EXPECT_EQ(Dump(root),
              "TstPlain \"Model\"\n"
              "  TstPlain \"First\"\n"
              "    TstLoad\n"
              "  TstLoad \"Last\"\n");
}

TEST_F(TreeDump, DepthIndentsEveryLine)
{
    Feature& root = Make("TstPlain", nullptr);
    Make("TstPlain", &root);
    EXPECT_EQ(Dump(root, 2), "    TstPlain\n      TstPlain\n");
    EXPECT_EQ(Dump(root, -7), "TstPlain\n  TstPlain\n");
}

TEST_F(TreeDump, AppendsToWhatIsThere)
{
    std::string text = "before\n";
    hlx::AppendFeatureTree(text, Make("TstPlain", nullptr), 0);
    EXPECT_EQ(text, "before\nTstPlain\n");
}

TEST_F(TreeDump, EveryKindOfValueInCatalogueOrder)
{
    Feature& root = Make("TstAll", nullptr, "All");
    document->SetPath("/models/a/case.VEXAnalysis");
    root.Set("Data", vex::Boxed<vex::DoubleTable>({2, {0, 0, 1, 2}}));
    root.Set("Points", vex::Boxed<vex::DoubleList>({1, 2.5, 1e30}));
    Link(root, "/models/a/parts/bolt.VEXPart");
    Refer(root, root);
    root.Set("Label", vex::Boxed<std::string>(std::string("two words")));
    root.Set("Size", 0.1);
    root.Set("Count", std::int64_t{-9});
    root.Set("Flag", false);
    EXPECT_EQ(Dump(root),
              "TstAll \"All\" Flag=false Count=-9 Size=0.1 Label=\"two words\" Target=. "
              "Model=\"parts/bolt.VEXPart\" Points=(1 2.5 1e+30) Data=((0 0) (1 2))\n");
}

TEST_F(TreeDump, EmptyValuesThatAreNotTheDefault)
{
    Feature& root = Make("TstAll", nullptr);
    root.Set("Label", vex::Boxed<std::string>());
    root.Set("Points", vex::Boxed<vex::DoubleList>());
    root.Set("Data", vex::Boxed<vex::DoubleTable>({3, {}}));
    EXPECT_EQ(Dump(root), "TstAll Label=\"\" Points=() Data=()\n");
}

TEST_F(TreeDump, WhatTheCatalogueDoesNotListIsLeftOut)
{
    Feature& root = Make("TstAll", nullptr);
    EXPECT_EQ(root.Set("Digest", std::int64_t{7}), S_OK);
    EXPECT_EQ(root.Set("Count", std::int64_t{7}), S_OK);
    EXPECT_EQ(Dump(root), "TstAll Count=7\n");
}

TEST_F(TreeDump, DefaultsAreLeftOutEvenWhenSet)
{
    Feature& root = Make("TstAll", nullptr);
    root.Set("Flag", true);
    root.Set("Count", std::int64_t{3});
    root.Set("Size", 1.5);
    root.Set("Label", vex::Boxed<std::string>(std::string("none")));
    root.Set("Points", vex::Boxed<vex::DoubleList>({1, 2}));
    EXPECT_EQ(Dump(root), "TstAll\n");
}

TEST_F(TreeDump, NumbersThatAreNone)
{
    Feature& root = Make("TstLoad", nullptr);
    root.Set("X", std::numeric_limits<double>::quiet_NaN());
    root.Set("Y", -std::numeric_limits<double>::infinity());
    EXPECT_EQ(Dump(root), "TstLoad X=nan Y=-inf\n");
}

TEST_F(TreeDump, NoLocaleChangesANumber)
{
    struct Commas : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    Feature& root = Make("TstLoad", nullptr);
    root.Set("X", 1234567.5);
    const std::locale before = std::locale::global(std::locale(std::locale(), new Commas));
    const std::string text = Dump(root);
    std::locale::global(before);
    EXPECT_EQ(text, "TstLoad X=1234567.5\n");
}

TEST_F(TreeDump, NoNameForgesALine)
{
    Feature& root = Make("TstPlain", nullptr, "a\n  TstLoad \"b\" X=1\\");
    Make("TstPlain", &root,
         "\xE2\x80\xAE"
         "evil\r\t\x1b[2J");
    EXPECT_EQ(Dump(root),
              "TstPlain \"a\\n  TstLoad \\\"b\\\" X=1\\\\\"\n"
              "  TstPlain \"\\u{202e}evil\\r\\t\\u{1b}[2J\"\n");
}

TEST_F(TreeDump, ReferencesByAliasOrByTypeAndOrdinal)
{
    Feature& root = Make("TstPlain", nullptr, "Model");
    Feature& named = Make("TstPlain", &root, "Ramp");
    Feature& twin1 = Make("TstPlain", &root, "Twin");
    Feature& load = Make("TstLoad", &root, "Twin");
    Feature& nameless = Make("TstPlain", &root);
    Feature& below = Make("TstLoad", &nameless, "Deep/\"er\"");
    Refer(load, named);
    EXPECT_EQ(Dump(load), "TstLoad \"Twin\" Target=/\"Model\"/\"Ramp\"\n");
    Refer(load, below);
    Refer(below, twin1);
    EXPECT_EQ(Dump(root),
              "TstPlain \"Model\"\n"
              "  TstPlain \"Ramp\"\n"
              "  TstPlain \"Twin\"\n"
              "  TstLoad \"Twin\" Target=TstPlain[3]/\"Deep/\\\"er\\\"\"\n"
              "  TstPlain\n"
              "    TstLoad \"Deep/\\\"er\\\"\" Target=TstPlain[2]\n");
}

TEST_F(TreeDump, ReferencesOutOfTheRootStartAtTheContainer)
{
    Feature& container = Make("TstPlain", nullptr);
    Feature& other = Make("TstPlain", nullptr, "Other");
    Feature& target = Make("TstPlain", &other, "Target");
    Feature& load = Make("TstLoad", &container);
    Refer(load, target);
    EXPECT_EQ(Dump(container), "TstPlain\n  TstLoad Target=/\"Other\"/\"Target\"\n");
    Refer(load, container);
    EXPECT_EQ(Dump(load), "TstLoad Target=/TstPlain[1]\n");
}

TEST_F(TreeDump, AReferenceWhoseTargetWasDeletedIsEmpty)
{
    Feature& root = Make("TstPlain", nullptr);
    Feature& load = Make("TstLoad", &root);
    Feature& target = Make("TstPlain", &root, "Gone");
    Refer(load, target);
    document->Tree().Delete(target);
    EXPECT_EQ(Dump(root), "TstPlain\n  TstLoad\n");
}

TEST_F(TreeDump, LinksNeverTellWhereTheDocumentStands)
{
    Feature& root = Make("TstAll", nullptr);
    Link(root, "/models/a/b.VEXPart");
    EXPECT_EQ(Dump(root), "TstAll Model=\"b.VEXPart\"\n") << "never saved";
    document->SetPath("/models/case.VEXAnalysis");
    EXPECT_EQ(Dump(root), "TstAll Model=\"a/b.VEXPart\"\n") << "below";
    document->SetPath("/models/a/case.VEXAnalysis");
    EXPECT_EQ(Dump(root), "TstAll Model=\"b.VEXPart\"\n") << "beside";
    document->SetPath("/models/c/case.VEXAnalysis");
    EXPECT_EQ(Dump(root), "TstAll Model=\"b.VEXPart\"\n") << "elsewhere";
    Link(root, "/models");
    EXPECT_EQ(Dump(root), "TstAll Model=\"models\"\n") << "the folder above";
    Link(root, "/models/c/..b/x.VEXPart");
    EXPECT_EQ(Dump(root), "TstAll Model=\"..b/x.VEXPart\"\n")
        << "a folder whose name starts with two dots";
}

TEST_F(TreeDump, LinesBelowLevel100SayTheirLevel)
{
    Feature& root = Make("TstPlain", nullptr);
    Feature& below = Make("TstPlain", &root);
    Make("TstPlain", &below);
    const std::string indent(200, ' ');
    EXPECT_EQ(Dump(root, 99), std::string(198, ' ') + "TstPlain\n" + indent + "TstPlain\n" +
                                  indent + "@101 TstPlain\n");
    EXPECT_EQ(Dump(root, std::numeric_limits<int>::max()), indent + "@2147483647 TstPlain\n" +
                                                               indent + "@2147483648 TstPlain\n" +
                                                               indent + "@2147483649 TstPlain\n");
}

TEST_F(TreeDump, ATargetWithALongPathIsGivenByItsPlaceInTheDocument)
{
    Feature& root = Make("TstPlain", nullptr);
    Make("TstPlain", &root);
    Feature& load = Make("TstLoad", &root);
    Feature& fits = Make("TstPlain", &root, std::string(1022, 'a'));
    Feature& tooLong = Make("TstPlain", &root, std::string(1023, 'b'));
    Refer(load, fits);
    EXPECT_EQ(Dump(load), "TstLoad Target=#4\n") << "the way from the container makes it too long";
    std::string text = Dump(root);
    EXPECT_NE(text.find("  TstLoad Target=\"aaa"), std::string::npos);
    Refer(load, tooLong);
    text = Dump(root);
    EXPECT_NE(text.find("  TstLoad Target=#5\n"), std::string::npos);
}

TEST_F(TreeDump, AChainOfReferencesStaysSmall)
{
    constexpr int length = 100'000;
    Feature& root = Make("TstLoad", nullptr);
    std::vector<Feature*> chain{&root};
    for (int i = 1; i < length; ++i) {
        chain.push_back(&Make("TstLoad", chain.back()));
    }
    for (Feature* const feature : chain) {
        Refer(*feature, *chain.back());
    }
    const std::string text = Dump(root);
    EXPECT_EQ(std::ranges::count(text, '\n'), length);
    EXPECT_LT(text.size(), 240U * length);
    EXPECT_TRUE(text.starts_with("TstLoad Target=#100000\n  TstLoad Target=#100000\n"));
    EXPECT_TRUE(text.ends_with("@99999 TstLoad Target=#100000\n"));
}

TEST_F(TreeDump, LargeFanOfReferencesTakesLinearTime)
{
    constexpr int size = 1'000'000;
    Feature& root = Make("TstPlain", nullptr);
    Feature* previous = &Make("TstLoad", &root, "Load.0");
    for (int i = 1; i < size; ++i) {
        Feature& load = Make("TstLoad", &root, "Load." + std::to_string(i));
        Refer(load, *previous);
        previous = &load;
    }
    const std::string text = Dump(root);
    EXPECT_EQ(std::ranges::count(text, '\n'), size + 1);
    EXPECT_TRUE(text.ends_with("  TstLoad \"Load.999999\" Target=\"Load.999998\"\n"));
}

}  // namespace
