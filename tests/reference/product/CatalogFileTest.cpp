// SPDX-License-Identifier: Apache-2.0
// The catalogue's text: what it makes, and how everything that is not as the format says is
// refused.
#include "product/catalog/CatalogFile.h"

#include "VEXDocumentServices.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using hlxtest::TemporaryFolder;
using hlxtest::WriteFile;
using vex::LateTypeDefinition;
using vex::ValueKind;

struct BadCatalog
{
    const char* name;
    std::string text;
    const char* reason;  ///< what follows 'catalogue "c.VEXfct", '
};

void PrintTo(const BadCatalog& bad, std::ostream* stream)
{
    *stream << bad.name;
}

class RefusedCatalog : public testing::TestWithParam<BadCatalog>
{};

TEST_P(RefusedCatalog, NamesFileLineEntryAndRemedy)
{
    std::vector<LateTypeDefinition> types;
    std::string error;
    EXPECT_FALSE(hlx::ReadCatalog(GetParam().text, "c.VEXfct", types, error));
    EXPECT_EQ(error, std::string("catalogue \"c.VEXfct\", ") + GetParam().reason);
}

/// A catalogue of one type "T" with one attribute, in line 3.
std::string WithAttribute(const std::string& attribute)
{
    return "[[type]]\nname = \"T\"\nattributes = [ " + attribute + " ]\n";
}

#define DEFAULT_REASON(kind, form) \
    "line 3, type \"T\", attribute \"A\": the default is none of kind \"" kind "\"; write " form

const BadCatalog badCatalogs[] = {
    {"Empty", "", "line 1: no types in it; write each type below a line [[type]]"},
    {"EmptyList", "type = []", "line 1: no types in it; write each type below a line [[type]]"},
    {"TypeIsText", "\ntype = \"T\"",
     "line 2: no types in it; write each type below a line [[type]]"},
    {"TypesAreTexts", "type = [\"T\"]",
     "line 1, type 1: no table; write each type below a line [[type]]"},
    {"UnknownTopKey", "[[type]]\nname = \"T\"\n[kinds]\n",
     "line 3: unknown key \"kinds\"; remove it or correct its name"},
    {"NoName", "[[type]]\nbase = \"B\"", "line 1, type 1: no \"name\"; add it"},
    {"NameIsNumber", "[[type]]\nname = 7",
     "line 2, type 1: \"name\" is no text; write it in quotes"},
    {"NameWithBlank", "[[type]]\nname = \"a b\"",
     "line 2, type 1: the name \"a b\" is none; use up to 100 letters, digits and '_', a letter "
     "first"},
    {"NameForgingALine", "[[type]]\nname = \"a\\nb\"",
     "line 2, type 1: the name \"a\\nb\" is none; use up to 100 letters, digits and '_', a letter "
     "first"},
    {"NameWithDigitFirst", "[[type]]\nname = \"3T\"",
     "line 2, type 1: the name \"3T\" is none; use up to 100 letters, digits and '_', a letter "
     "first"},
    {"NameIsEmpty", "[[type]]\nname = \"\"",
     "line 2, type 1: the name \"\" is none; use up to 100 letters, digits and '_', a letter "
     "first"},
    {"UnknownTypeKey", "[[type]]\nname = \"T\"\nbasis = \"B\"",
     "line 3, type \"T\": unknown key \"basis\"; remove it or correct its name"},
    {"UnknownBase", "[[type]]\nname = \"T\"\nbase = \"B\"",
     "line 3, type \"T\": its base \"B\" does not stand further up; correct the name or the order"},
    {"BaseIsItself", "[[type]]\nname = \"T\"\nbase = \"T\"",
     "line 3, type \"T\": its base \"T\" does not stand further up; correct the name or the order"},
    {"BaseFollows", "[[type]]\nname = \"T\"\nbase = \"B\"\n[[type]]\nname = \"B\"",
     "line 3, type \"T\": its base \"B\" does not stand further up; correct the name or the order"},
    {"TypeTwice", "[[type]]\nname = \"T\"\n[[type]]\nname = \"T\"",
     "line 3, type \"T\": defined twice; remove or rename one of the two"},
    {"AttributesAreText", "[[type]]\nname = \"T\"\nattributes = \"A\"",
     "line 3, type \"T\": \"attributes\" is no list; write [{ name = …, kind = … }, …]"},
    {"AttributeIsText", WithAttribute("\"A\""),
     "line 3, type \"T\", attribute 1: no table; write { name = …, kind = … }"},
    {"AttributeWithoutName", WithAttribute("{ kind = \"text\" }"),
     "line 3, type \"T\", attribute 1: no \"name\"; add it"},
    {"AttributeWithoutKind", WithAttribute("{ name = \"A\" }"),
     "line 3, type \"T\", attribute \"A\": no \"kind\"; add it"},
    {"UnknownKind", WithAttribute("{ name = \"A\", kind = \"float\" }"),
     "line 3, type \"T\", attribute \"A\": unknown kind \"float\"; use boolean, integer, double, "
     "text, reference, link, list or table"},
    {"UnknownAttributeKey", WithAttribute("{ name = \"A\", kind = \"text\", value = \"x\" }"),
     "line 3, type \"T\", attribute \"A\": unknown key \"value\"; remove it or correct its name"},
    {"AttributeTwice",
     WithAttribute("{ name = \"A\", kind = \"text\" }, { name = \"A\", kind = \"list\" }"),
     "line 3, type \"T\", attribute \"A\": the type or its base has it already; remove or rename "
     "one of the two"},
    {"AttributeOfBase",
     WithAttribute("{ name = \"A\", kind = \"text\" }") +
         "[[type]]\nname = \"U\"\nbase = \"T\"\nattributes = [{ name = \"A\", kind = \"text\" }]",
     "line 7, type \"U\", attribute \"A\": the type or its base has it already; remove or rename "
     "one of the two"},
    {"ListedIsText", WithAttribute("{ name = \"A\", kind = \"text\", listed = \"no\" }"),
     "line 3, type \"T\", attribute \"A\": \"listed\" is no boolean; write true or false"},
    {"BooleanDefault", WithAttribute("{ name = \"A\", kind = \"boolean\", default = 1 }"),
     DEFAULT_REASON("boolean", "true or false")},
    {"IntegerDefault", WithAttribute("{ name = \"A\", kind = \"integer\", default = 1.0 }"),
     DEFAULT_REASON("integer", "a whole number")},
    {"DoubleDefault", WithAttribute("{ name = \"A\", kind = \"double\", default = 1 }"),
     DEFAULT_REASON("double", "a finite number with a point, such as 1.0")},
    {"InfiniteDefault", WithAttribute("{ name = \"A\", kind = \"double\", default = inf }"),
     DEFAULT_REASON("double", "a finite number with a point, such as 1.0")},
    {"TextDefault", WithAttribute("{ name = \"A\", kind = \"text\", default = true }"),
     DEFAULT_REASON("text", "a text in quotes, without a zero byte")},
    {"TextDefaultWithZero",
     WithAttribute("{ name = \"A\", kind = \"text\", default = \"\\u0000\" }"),
     DEFAULT_REASON("text", "a text in quotes, without a zero byte")},
    {"ReferenceDefault", WithAttribute("{ name = \"A\", kind = \"reference\", default = \"\" }"),
     DEFAULT_REASON("reference", "nothing: remove the default")},
    {"LinkDefault", WithAttribute("{ name = \"A\", kind = \"link\", default = \"/x\" }"),
     DEFAULT_REASON("link", "nothing: remove the default")},
    {"ListDefault", WithAttribute("{ name = \"A\", kind = \"list\", default = [1.0, 2] }"),
     DEFAULT_REASON("list", "finite numbers with a point in brackets, such as [1.0, 2.0]")},
    {"ListDefaultIsNumber", WithAttribute("{ name = \"A\", kind = \"list\", default = 1.0 }"),
     DEFAULT_REASON("list", "finite numbers with a point in brackets, such as [1.0, 2.0]")},
    {"TableDefaultIsList", WithAttribute("{ name = \"A\", kind = \"table\", default = [1.0] }"),
     DEFAULT_REASON("table", "rows of one length, such as [[0.0, 0.0], [1.0, 2.0]]")},
    {"TableDefaultIsRagged",
     WithAttribute("{ name = \"A\", kind = \"table\", default = [[1.0, 2.0], [3.0]] }"),
     DEFAULT_REASON("table", "rows of one length, such as [[0.0, 0.0], [1.0, 2.0]]")},
    {"TableDefaultHasEmptyRow", WithAttribute("{ name = \"A\", kind = \"table\", default = [[]] }"),
     DEFAULT_REASON("table", "rows of one length, such as [[0.0, 0.0], [1.0, 2.0]]")},
};

INSTANTIATE_TEST_SUITE_P(Catalog, RefusedCatalog, testing::ValuesIn(badCatalogs),
                         [](const auto& entry) { return std::string(entry.param.name); });

TEST(CatalogFile, RefusesAnOverlongName)
{
    const std::string name(101, 'a');
    std::vector<LateTypeDefinition> types;
    std::string error;
    EXPECT_FALSE(hlx::ReadCatalog("[[type]]\nname = \"" + name + "\"", "c", types, error));
    EXPECT_EQ(error, "catalogue \"c\", line 2, type 1: the name \"" + name +
                         "\" is none; use up to 100 letters, digits and '_', a letter first");
}

TEST(CatalogFile, RefusesWhatIsNoTomlWithItsLine)
{
    for (const std::string text :
         {"[[type]]\nname = \"T\"\nname = \"U\"\n", "[[type]]\nname = T\n", "\n\xff\xfe",
          "[[type]]\nname = \"T", "[[type]]\nname = 99999999999999999999\n"}) {
        std::vector<LateTypeDefinition> types;
        std::string error;
        EXPECT_FALSE(hlx::ReadCatalog(text, "c.VEXfct", types, error)) << text;
        EXPECT_TRUE(error.starts_with("catalogue \"c.VEXfct\", line ")) << error;
        EXPECT_NE(error.find(": no TOML: "), std::string::npos) << error;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
    }
}

TEST(CatalogFile, RefusesDeepNesting)
{
    const std::string text = "type = " + std::string(100'000, '[');
    std::vector<LateTypeDefinition> types;
    std::string error;
    EXPECT_FALSE(hlx::ReadCatalog(text, "c.VEXfct", types, error));
    EXPECT_NE(error.find(": no TOML: "), std::string::npos) << error;
}

TEST(CatalogFile, ReadsWhatIsListed)
{
    std::vector<LateTypeDefinition> types;
    std::string error;
    ASSERT_TRUE(hlx::ReadCatalog(WithAttribute("{ name = \"A\", kind = \"text\" }, "
                                               "{ name = \"B\", kind = \"text\", listed = false }, "
                                               "{ name = \"C\", kind = \"text\", listed = true }"),
                                 "c.VEXfct", types, error))
        << error;
    std::vector<bool> listed;
    for (const vex::AttributeDefinition& attribute : types.at(0).attributes) {
        listed.push_back(attribute.listed);
    }
    EXPECT_EQ(listed, (std::vector{true, false, true}));
}

TEST(CatalogFile, ReadsTypesAttributesAndDefaults)
{
    const std::string text = R"(
[[type]]
name = "Base"
attributes = [{ name = "On", kind = "boolean", default = true }]
[[type]]
name = "Kind"
base = "Base"
attributes = [
    { name = "Count", kind = "integer", default = -3 },
    { name = "Size", kind = "double", default = 2.5e-3 },
    { name = "Text", kind = "text", default = "é" },
    { name = "Target", kind = "reference" },
    { name = "Other", kind = "link" },
    { name = "List", kind = "list", default = [1.0, -0.5] },
    { name = "Table", kind = "table", default = [[0.0, 1.0], [2.0, 3.0]] },
    { name = "Plain", kind = "double" },
]
)";
    std::vector<LateTypeDefinition> types;
    std::string error;
    ASSERT_TRUE(hlx::ReadCatalog(text, "c.VEXfct", types, error)) << error;
    ASSERT_EQ(types.size(), 2U);
    EXPECT_EQ(types[0].base, "");
    ASSERT_EQ(types[0].attributes.size(), 1U);
    EXPECT_EQ(types[0].attributes[0].defaultValue, vex::Value(true));

    EXPECT_EQ(types[1].name, "Kind");
    EXPECT_EQ(types[1].base, "Base");
    const vex::Value values[] = {
        std::int64_t{-3},
        2.5e-3,
        vex::Boxed<std::string>("é"),
        vex::Reference{},
        vex::Boxed<vex::DocumentLink>(),
        vex::Boxed<vex::DoubleList>(vex::DoubleList{1.0, -0.5}),
        vex::Boxed<vex::DoubleTable>(vex::DoubleTable{2, {0.0, 1.0, 2.0, 3.0}}),
        0.0,
    };
    ASSERT_EQ(types[1].attributes.size(), std::size(values));
    for (std::size_t i = 0; i < std::size(values); ++i) {
        const vex::AttributeDefinition& attribute = types[1].attributes[i];
        EXPECT_EQ(attribute.kind, vex::KindOf(values[i])) << attribute.name;
        EXPECT_EQ(attribute.defaultValue, values[i]) << attribute.name;
    }
}

TEST(CatalogLoader, SaysWhereItLooked)
{
    const TemporaryFolder folder;
    std::string error;
    EXPECT_FALSE(hlx::LoadCatalog({folder.Path(), folder.Path() + "/none"}, error));
    EXPECT_EQ(error, "catalogue \"HLXHacCatalog.VEXfct\": found in none of the folders \"" +
                         folder.Path() + "\" \"" + folder.Path() +
                         "/none\"; name the folder that holds it in VEX_CATALOG_PATH");
}

TEST(CatalogLoader, RefusesAFolderInPlaceOfTheFile)
{
    const TemporaryFolder folder;
    std::string error;
    const std::string path = folder.File("HLXHacCatalog.VEXfct");
    ASSERT_EQ(std::system(("mkdir '" + path + "'").c_str()), 0);
    EXPECT_FALSE(hlx::LoadCatalog({folder.Path()}, error));
    EXPECT_EQ(error,
              "catalogue \"" + path + "\": no readable file; put the catalogue in its place");
}

TEST(CatalogLoader, TakesTheFirstFileEvenWhenItIsDamaged)
{
    const TemporaryFolder folder;
    WriteFile(folder.File("HLXHacCatalog.VEXfct"), "[[type]]\n");
    std::string error;
    EXPECT_FALSE(hlx::LoadCatalog({folder.Path(), HLX_BINARY_DIR "/share/hlx"}, error));
    EXPECT_EQ(error, "catalogue \"" + folder.File("HLXHacCatalog.VEXfct") +
                         "\", line 1, type 1: no \"name\"; add it");
}

TEST(CatalogLoader, RefusesTypesThatAreThereAlready)
{
    const TemporaryFolder folder;
    ASSERT_NE(vex::LateTypes::Instance().Find("HLXGravity"), nullptr);
    WriteFile(folder.File("HLXHacCatalog.VEXfct"),
              "[[type]]\nname = \"NewKind\"\n[[type]]\nname = \"HLXGravity\"\n");
    std::string error;
    EXPECT_FALSE(hlx::LoadCatalog({folder.Path()}, error));
    EXPECT_NE(error.find("HLXGravity"), std::string::npos) << error;
    EXPECT_EQ(vex::LateTypes::Instance().Find("NewKind"), nullptr);
}

TEST(CatalogLoader, LooksAlongTheEnvironmentFirst)
{
    setenv("VEX_CATALOG_PATH", "/first::/second:", 1);
    const std::vector<std::string> folders = hlx::CatalogFolders();
    unsetenv("VEX_CATALOG_PATH");
    ASSERT_EQ(folders.size(), 3U);
    EXPECT_EQ(folders[0], "/first");
    EXPECT_EQ(folders[1], "/second");
    EXPECT_TRUE(folders[2].ends_with("/../share/hlx"));
}

/// In a process of its own: a catalogue is loaded once.
class CatalogDeathTest : public testing::Test
{
protected:
    CatalogDeathTest() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

    /// Tries to make a document with the catalogue that the folder holds; exits with 0 when that is
    /// refused.
    [[noreturn]] static void TryNew(const std::string& catalogFolder)
    {
        setenv("VEX_CATALOG_PATH", catalogFolder.c_str(), 1);
        VEXDocument* document = nullptr;
        const HRESULT result = VEXDocumentServices::New("VEXAnalysis", document);
        std::_Exit(result == E_FAIL && document == nullptr ? 0 : 1);
    }
};

TEST_F(CatalogDeathTest, DamagedRefusesTheLibraryAndNewDocuments)
{
    const TemporaryFolder folder;
    WriteFile(folder.File("HLXHacCatalog.VEXfct"), "[[type]]\nname = \"T\"\ncolour = 1\n");
    EXPECT_EXIT(
        TryNew(folder.Path()), testing::ExitedWithCode(0),
        "line 3, type \"T\": unknown key \"colour\".*\n.*HLXProduct.*\n.*no catalogue of late "
        "types is loaded");
}

TEST(Catalog, HasTheKindsOfTheVocabulary)
{
    vex::LateTypes& types = vex::LateTypes::Instance();
    for (const char* const name :
         {"HLXExplicitDynamicLT", "HLXExplicitDynamicStepLT", "HLXFrequencyStepLT", "HLXGravity",
          "HLXDisplacementBC", "HLXTemperatureHistoryLT", "HLXNewFieldOutputLT", "HLXJobLT",
          "HLXTabularAmplitudeLT", "HLXContactConnectionEnhancementStdLT", "VEXProductNode"}) {
        EXPECT_NE(types.Find(name), nullptr) << name;
    }
    const vex::LateType& gravity = types.Require("HLXGravity");
    EXPECT_TRUE(gravity.IsKindOf("HLXLoad"));
    EXPECT_EQ(gravity.attributes.front().name, "Active");
    EXPECT_EQ(gravity.attributes.back().name, "ComponentZ");
}

}  // namespace
