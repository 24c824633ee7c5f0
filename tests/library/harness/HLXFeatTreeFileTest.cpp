// SPDX-License-Identifier: Apache-2.0
// The feature-tree file of an analysis document.
#include "HLXAnalysisTestUtils.h"
#include "HLXProductUtilities.h"
#include "support/AnalysisDocuments.h"
#include "support/ForeignNumbers.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace hlxtest {
namespace {

class FeatTreeFileTest : public testing::Test
{
protected:
    Outcome Write(std::string_view faults = "")
    {
        return RunWith(faults, [&] {
            return HLXAnalysisTestUtils::WriteFeatTreeFileForAnalysisCase(document.Get(),
                                                                          VEXUnicodeString(path));
        });
    }

    VEXISamAnalysisModel_var Model()
    {
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document.Get()), S_OK);
        VEXISamAnalysisModel* model = nullptr;
        EXPECT_EQ(manager->GetCurrentAnalysisModel(model), S_OK);
        return VEXAdopt(model);
    }

    /// The tree as the product gives it.
    std::string Tree()
    {
        const VEXINavigateObject_var root = Model();
        HLXGenString text;
        EXPECT_EQ(DumpFeatureTree(root.Get(), 0, text), S_OK);
        return text.c_str();
    }

    AnalysisDocument document{2};
    TemporaryFolder folder;
    const std::string path = folder.File("tree.txt");
};

constexpr const char* head = "   Propagation Load Test\n\nFeature tree:\n\n";

TEST_F(FeatTreeFileTest, TheFileHoldsHeadAndTreeByteForByte)
{
    const std::string tree = Tree();
    ASSERT_NE(tree, "");
    EXPECT_EQ(Write(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(ReadFile(path), head + tree + "\n");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"tree.txt"}));
}

TEST_F(FeatTreeFileTest, WrittenTwiceOnlyTheSecondContentIsLeft)
{
    AddCase(document.Get());
    EXPECT_EQ(Write(), (Outcome{S_OK, "", ""}));
    const std::string longer = ReadFile(path);
    VEXISpecObject_var last = [&] {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(Model()->GetAnalysisCases(cases), S_OK);
        return cases[cases.Size()];
    }();
    const VEXIAlias_var alias = last;
    ASSERT_EQ(alias->SetAlias("A"), S_OK);
    EXPECT_EQ(Write(), (Outcome{S_OK, "", ""}));
    const std::string shorter = ReadFile(path);
    EXPECT_EQ(shorter, head + Tree() + "\n");
    EXPECT_LT(shorter.size(), longer.size());
}

TEST_F(FeatTreeFileTest, AnExistingFileIsReplacedWhole)
{
    WriteFile(path, std::string(100000, 'x'));
    EXPECT_EQ(Write("DumpFeatureTree=E_FAIL"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(ReadFile(path), std::string(head) + "\n");
}

TEST_F(FeatTreeFileTest, ThePlatformIsAskedInThisOrder)
{
    EXPECT_EQ(CallsOf([&] { Write(); }),
              (std::vector<std::string>{
                  "HLXAnalysisDocUtils::GetAnalysisManager(&, VEXAnalysisDocument)",
                  "VEXISamAnalysisManager::GetCurrentAnalysisModel(&)",
                  "cast:VEXSamAnalysisModel->VEXINavigateObject(&)",
                  "DumpFeatureTree(VEXSamAnalysisModel, 0, &)",
              }));
}

TEST_F(FeatTreeFileTest, NothingIsKeptOfTheModel)
{
    const VEXISamAnalysisModel_var model = Model();
    const unsigned long before = References(*model.Get());
    Write();
    Write("cast:VEXSamAnalysisModel->VEXINavigateObject=E_NOINTERFACE");
    Write("DumpFeatureTree=E_FAIL");
    EXPECT_EQ(References(*model.Get()), before);
}

struct Exit
{
    const char* name;
    const char* faults;
    long result;
    const char* out;
    bool writes;
    bool withTree;
};

class FeatTreeFileExitTest : public FeatTreeFileTest, public testing::WithParamInterface<Exit>
{};

TEST_P(FeatTreeFileExitTest, AnswersPrintsAndWrites)
{
    const Exit& exit = GetParam();
    const std::string former = "what was there before";
    WriteFile(path, former);
    const std::string tree = exit.withTree ? Tree() : "";
    EXPECT_EQ(Write(exit.faults), (Outcome{exit.result, exit.out, ""}));
    EXPECT_EQ(ReadFile(path), exit.writes ? head + tree + "\n" : former);
}

constexpr const char* noModel = "Failed to get the Analysis Model\n";

INSTANTIATE_TEST_SUITE_P(
    Of, FeatTreeFileExitTest,
    testing::Values(
        Exit{"FailingManager", "HLXAnalysisDocUtils::GetAnalysisManager=E_ACCESSDENIED", E_FAIL, "",
             false, false},
        Exit{"FailingManagerThoughGiven",
             "HLXAnalysisDocUtils::GetAnalysisManager=E_ACCESSDENIED,keep", E_FAIL, "", false,
             false},
        Exit{"PositiveManager", "HLXAnalysisDocUtils::GetAnalysisManager=S_FALSE,keep", S_OK, "",
             true, true},
        Exit{"NoManager", "HLXAnalysisDocUtils::GetAnalysisManager=null", E_FAIL, noModel, false,
             false},
        Exit{"NoModel", "VEXISamAnalysisManager::GetCurrentAnalysisModel=null", E_FAIL, noModel,
             false, false},
        Exit{"FailingModel", "VEXISamAnalysisManager::GetCurrentAnalysisModel=E_ACCESSDENIED",
             E_FAIL, noModel, false, false},
        Exit{"FailingModelThoughGiven",
             "VEXISamAnalysisManager::GetCurrentAnalysisModel=E_ACCESSDENIED,keep", S_OK, "", true,
             true},
        Exit{"NoNavigateObject", "cast:VEXSamAnalysisModel->VEXINavigateObject=E_NOINTERFACE", S_OK,
             "", true, false},
        Exit{"EmptyNavigateObject", "cast:VEXSamAnalysisModel->VEXINavigateObject=null", S_OK, "",
             true, false},
        Exit{"FailingTree", "DumpFeatureTree=E_FAIL", S_OK, "", true, false},
        Exit{"FailingTreeThoughGiven", "DumpFeatureTree=E_FAIL,keep", S_OK, "", true, true},
        Exit{"NoTree", "DumpFeatureTree=null", S_OK, "", true, false}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(FeatTreeFileTest, WithoutADocumentItFailsSilently)
{
    VEXDocument* none = nullptr;
    const Outcome outcome = OutcomeOf([&] {
        return HLXAnalysisTestUtils::WriteFeatTreeFileForAnalysisCase(none, VEXUnicodeString(path));
    });
    EXPECT_EQ(outcome.result, E_FAIL);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST_F(FeatTreeFileTest, TheDocumentPointerIsLeftAsItIs)
{
    VEXDocument* const before = document.Get();
    Write();
    EXPECT_EQ(document.Get(), before);
}

TEST_F(FeatTreeFileTest, AFullDiskIsNotDetected)
{
    std::filesystem::create_symlink("/dev/full", path);
    EXPECT_EQ(Write(), (Outcome{S_OK, "", ""}));
}

TEST_F(FeatTreeFileTest, TheFileIsTheSameInAForeignLocale)
{
    const std::string tree = Tree();
    const ForeignNumbers foreign;
    EXPECT_EQ(Write(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(ReadFile(path), head + tree + "\n");
}

TEST_F(FeatTreeFileTest, AFileThatCannotBeOpenedIsNotDetected)
{
    for (const std::string& name :
         {folder.Path(), folder.File("missing/tree.txt"), std::string()}) {
        EXPECT_EQ(OutcomeOf([&] {
                      return HLXAnalysisTestUtils::WriteFeatTreeFileForAnalysisCase(
                          document.Get(), VEXUnicodeString(name));
                  }),
                  (Outcome{S_OK, "", ""}))
            << name;
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

}  // namespace
}  // namespace hlxtest
