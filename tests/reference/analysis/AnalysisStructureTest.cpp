// SPDX-License-Identifier: Apache-2.0
// What a new analysis document holds, and the way from the document to its cases and their sets.
#include "reference/analysis/AnalysisFixture.h"
#include "support/TemporaryFolder.h"

namespace {

using hlxtest::AliasesOf;
using hlxtest::AliasOf;
using hlxtest::AnalysisTest;
using hlxtest::TypeOf;
using hlxtest::TypesOf;
using Names = std::vector<std::string>;

class NewDocument : public AnalysisTest
{};

class OneCase : public AnalysisTest
{
protected:
    OneCase() : AnalysisTest(1) {}
};

TEST_F(NewDocument, LeadsFromTheDocumentToItsModel)
{
    const VEXISamAccess_var access(VEXShare(document.Get()));
    ASSERT_TRUE(access);
    VEXIContainer* raw = nullptr;
    ASSERT_EQ(access->GetSpecContainer(raw), S_OK);
    const auto container = VEXAdopt(raw);
    EXPECT_EQ(TypeOf(container), "VEXSamAnalysisContainer");

    const VEXISamAnalysisContainer_var analysisContainer(container);
    ASSERT_TRUE(analysisContainer);
    VEXISamAnalysisManager_var manager;
    ASSERT_EQ(analysisContainer->GetAnalysisManager(manager), S_OK);
    EXPECT_EQ(manager, Manager());

    VEXListValVEXBaseUnknown_var models;
    ASSERT_EQ(manager->GetAllAnalysisModels(models), S_OK);
    EXPECT_EQ(AliasesOf(models), Names{"Finite Element Model.1"});
    VEXISamAnalysisModel* model = nullptr;
    ASSERT_EQ(manager->GetCurrentAnalysisModel(model), S_OK);
    EXPECT_EQ(VEXAdopt(model), models[1]);
}

TEST_F(NewDocument, HasNoCase)
{
    EXPECT_EQ(Cases().Size(), 0);
    VEXListValVEXBaseUnknown_var cases;
    EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document.Get()), S_OK);
    EXPECT_EQ(cases.Size(), 0);
}

TEST_F(NewDocument, HasAnEmptyContainerOfBRepAccesses)
{
    const VEXIContainerOfDocument_var containers(VEXShare(document.Get()));
    ASSERT_TRUE(containers);
    VEXIContainer* raw = nullptr;
    ASSERT_EQ(containers->GetBRepContainer(raw), S_OK);
    const auto container = VEXAdopt(raw);
    EXPECT_EQ(TypeOf(container), "VEXBRepContainer");
    EXPECT_EQ(container->GetMemberCount("VEXISpecObject"), 0);
}

TEST_F(NewDocument, ListsOnlyModelsBelowTheManager)
{
    vex::Feature& manager = FeatureOf(Manager());
    vex::LateTypes& types = vex::LateTypes::Instance();
    manager.Tree()->Create(types.Require("HLXHollexPropertySetLT"), &manager);
    manager.Tree()->Create(types.Require("VEXSamAnalysisModel"), &manager).SetAlias("Second");
    VEXListValVEXBaseUnknown_var models;
    ASSERT_EQ(Manager()->GetAllAnalysisModels(models), S_OK);
    EXPECT_EQ(AliasesOf(models), (Names{"Finite Element Model.1", "Second"}));
}

TEST_F(NewDocument, SaysSoWhenThereIsNoCurrentModel)
{
    vex::Feature& model = FeatureOf(Model());
    model.Tree()->Delete(model);
    VEXISamAnalysisModel* current = nullptr;
    EXPECT_EQ(Manager()->GetCurrentAnalysisModel(current), E_FAIL);
    EXPECT_EQ(current, nullptr);
}

TEST_F(NewDocument, HasNoManagerWithoutTheFeature)
{
    const VEXISamAnalysisContainer_var container(
        VEXShare<VEXBaseUnknown>(FeatureOf(Manager()).Parent()));
    vex::Feature& manager = FeatureOf(Manager());
    manager.Tree()->Delete(manager);
    VEXISamAnalysisManager_var found;
    EXPECT_EQ(container->GetAnalysisManager(found), E_FAIL);
    EXPECT_FALSE(found);
    EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(found, document.Get()), E_FAIL);
    VEXListValVEXBaseUnknown_var cases;
    EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document.Get()), E_FAIL);
}

TEST(OtherDocuments, HaveNoAnalysisAccess)
{
    for (const char* const type : {"VEXProduct", "VEXPart"}) {
        VEXDocument* document = nullptr;
        ASSERT_EQ(VEXDocumentServices::New(type, document), S_OK);
        EXPECT_FALSE(VEXISamAccess_var(VEXShare(document)));
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document), E_INVALIDARG);
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document), E_INVALIDARG);
        EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
    }
}

TEST_F(OneCase, ListsItsStepsAsSetsInOrder)
{
    AddStep(1, "HLXGeneralStaticStepLT", "First");
    AddStep(1, "HLXHeatTransferStepLT", "Second");
    VEXListValVEXBaseUnknown_var sets;
    ASSERT_EQ(Case(1)->GetAnalysisSets(sets), S_OK);
    EXPECT_EQ(AliasesOf(sets), (Names{"Initial", "First", "Second"}));
    for (int i = 1; i <= sets.Size(); ++i) {
        EXPECT_TRUE(VEXISamAnalysisSet_var(sets[i])) << i;
    }
}

TEST_F(OneCase, ASetListsWhatItHolds)
{
    vex::Feature& step = AddStep(1, "HLXGeneralStaticStepLT", "Step");
    vex::LateTypes& types = vex::LateTypes::Instance();
    vex::Feature& loads = *step.Children().front();
    step.Tree()->Create(types.Require("HLXGravity"), &loads).SetAlias("G");
    step.Tree()->Create(types.Require("HLXPressure"), &loads).SetAlias("P");
    const VEXISamAnalysisSet_var set(vex::HandleOf(&step));

    const auto list = [&](const char* lateType) {
        VEXListValVEXBaseUnknown_var features;
        EXPECT_EQ(set->GetAnalysisFeatures(lateType, features), S_OK);
        return features;
    };
    EXPECT_EQ(AliasesOf(list("HLXGravity")), Names{"G"});
    EXPECT_EQ(AliasesOf(list("HLXLoad")), (Names{"G", "P"}));
    EXPECT_EQ(list("HLXClamp").Size(), 0);
    EXPECT_EQ(list("NoSuchType").Size(), 0);
    EXPECT_EQ(TypesOf(list("")), (Names{"HLXLoadContainerLT", "HLXGravity", "HLXPressure",
                                        "HLXBoundaryConditionContainerLT",
                                        "HLXInteractionContainerLT", "HLXTemperatureContainerLT"}));
}

TEST_F(OneCase, CanBeShownFromModelAndCase)
{
    const VEXINavigateObject_var model(Model());
    ASSERT_TRUE(model);
    std::unique_ptr<VEXListValVEXBaseUnknown_var> children(model->GetChildren());
    ASSERT_NE(children, nullptr);
    EXPECT_EQ(AliasesOf(*children), Names{"Analysis Case.1"});

    const VEXINavigateObject_var analysisCase(Case(1));
    ASSERT_TRUE(analysisCase);
    children.reset(analysisCase->GetChildren());
    EXPECT_EQ(TypesOf(*children),
              (Names{"HLXHacSimHistLT", "HLXJobContainerLT", "HLXHacSolutionLT"}));
    EXPECT_FALSE(VEXINavigateObject_var(Manager()));
}

TEST_F(OneCase, IsTheSameAfterStoringAndOpening)
{
    const hlxtest::TemporaryFolder folder;
    const std::string path = folder.File("a.VEXAnalysis");
    AddStep(1, "HLXRiksStepLT", "Riks");
    HLXGenString before;
    ASSERT_EQ(DumpFeatureTree(VEXINavigateObject_var(Model()).Get(), 0, before), S_OK);
    document.SaveAs(path);
    ASSERT_EQ(VEXDocumentServices::Remove(*document.Release(), 1), S_OK);

    ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document.Get(), 0), S_OK);
    HLXGenString after;
    ASSERT_EQ(DumpFeatureTree(VEXINavigateObject_var(Model()).Get(), 0, after), S_OK);
    EXPECT_STREQ(after.c_str(), before.c_str());
    EXPECT_EQ(AliasesOf(Cases()), Names{"Analysis Case.1"});
}

}  // namespace
