// SPDX-License-Identifier: Apache-2.0
// Handles of an analysis document that outlive it answer failure or nothing.
#include "reference/analysis/AnalysisFixture.h"

#include "VEXComponents.h"
#include "host/system/Probes.h"

namespace {

class Detached : public hlxtest::AnalysisTest
{
protected:
    Detached() : AnalysisTest(1) {}

    void RemoveDocument() { ASSERT_EQ(VEXDocumentServices::Remove(*document.Release(), 1), S_OK); }
};

TEST_F(Detached, ManagerAnswersFailure)
{
    const VEXISamAnalysisManager_var manager = Manager();
    const VEXISamDocumentManager_var links(manager);
    const VEXISamAnalysisContainer_var container(
        VEXShare<VEXBaseUnknown>(FeatureOf(manager).Parent()));
    const VEXISamAnalysisModelFactory_var factory(container);
    const VEXISpecObject_var model(Model());
    RemoveDocument();

    VEXISamAnalysisModel* current = nullptr;
    EXPECT_EQ(manager->GetCurrentAnalysisModel(current), E_FAIL);
    EXPECT_EQ(current, nullptr);
    VEXListValVEXBaseUnknown_var list;
    EXPECT_EQ(manager->GetAllAnalysisModels(list), E_FAIL);
    EXPECT_EQ(list.Size(), 0);
    VEXISamDocumentManager_var found;
    EXPECT_EQ(manager->GetDocumentManager(found), E_FAIL);
    EXPECT_FALSE(found);
    VEXListPtrVEXDocument documents;
    EXPECT_EQ(links->GetLinkedDocuments(documents), E_FAIL);
    EXPECT_EQ(links->AddLink(nullptr), E_FAIL);
    VEXISamAnalysisManager_var other;
    EXPECT_EQ(container->GetAnalysisManager(other), E_FAIL);
    EXPECT_EQ(factory->CreateFeature("HLXGravity", "", model.Get()), nullptr);
    EXPECT_EQ(manager->IsNull(), 1);
}

TEST_F(Detached, ModelCaseSetAndScanAnswerFailure)
{
    const VEXISamAnalysisModel_var model = Model();
    VEXISamAnalysisCase_var analysisCase = Case(1);
    const VEXISamAnalysisScan_var scan(analysisCase);
    const HLXIAnalysisCase_var productCase(analysisCase);
    const VEXINavigateObject_var navigate(model);
    VEXListValVEXBaseUnknown_var sets;
    ASSERT_EQ(analysisCase->GetAnalysisSets(sets), S_OK);
    const VEXISamAnalysisSet_var set(sets[1]);
    RemoveDocument();

    VEXListValVEXBaseUnknown_var list;
    EXPECT_EQ(model->GetAnalysisCases(list), E_FAIL);
    EXPECT_EQ(analysisCase->GetAnalysisSets(list), E_FAIL);
    EXPECT_EQ(set->GetAnalysisFeatures("", list), E_FAIL);
    EXPECT_EQ(scan->GetChildren("", list, 3), E_FAIL);
    EXPECT_EQ(scan->AddObject(analysisCase.Get(), nullptr), E_FAIL);
    EXPECT_EQ(list.Size(), 0);
    HLXIAnalysisCase::analysisTypeEnum type{};
    EXPECT_EQ(productCase->GetAnalysisType(type), E_FAIL);
    EXPECT_EQ(HLXAnalysisDocUtils::GetDocument(analysisCase), nullptr);
    EXPECT_EQ(navigate->GetChildren(), nullptr);

    void* object = nullptr;
    ASSERT_EQ(
        VEXInstantiateComponent("HLXElementBehaviorFact", IID_HLXIElementBehaviorFact, &object),
        S_OK);
    VEXISamAnalysisCase* raw = analysisCase.Get();
    EXPECT_EQ(VEXAdopt(static_cast<HLXIElementBehaviorFact*>(object))->CreateElementBehavior(raw),
              E_INVALIDARG);
    std::string error;
    EXPECT_EQ(hlx::AddStep(static_cast<vex::Feature&>(*raw->GetImpl()), "HLXRiksStepLT", "", error),
              nullptr);
    EXPECT_NE(error, "");
}

TEST_F(Detached, DocumentPointersAreNotFollowed)
{
    VEXDocument* const stale = document.Get();
    const VEXISamAccess_var access(VEXShare(stale));
    RemoveDocument();
    VEXIContainer* container = nullptr;
    EXPECT_EQ(access->GetSpecContainer(container), E_FAIL);
    EXPECT_EQ(container, nullptr);
    VEXISamAnalysisManager_var manager;
    EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, stale), E_INVALIDARG);
    VEXListValVEXBaseUnknown_var cases;
    EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, stale), E_INVALIDARG);
    EXPECT_EQ(HLXZPKVersionManager::HandleZPKVersioning(stale, 0), E_INVALIDARG);
    EXPECT_EQ(HLXAnalysisDocUtils::GetDocument(nullptr), nullptr);
}

TEST_F(Detached, DocumentPointersAreNotFollowedByATraceEither)
{
    VEXDocument* const stale = document.Get();
    vex::probe::StartRecording();
    VEXISamAnalysisManager_var manager;
    HLXAnalysisDocUtils::GetAnalysisManager(manager, stale);
    manager.Reset();
    RemoveDocument();
    HLXAnalysisDocUtils::GetAnalysisManager(manager, stale);
    HLXAnalysisDocUtils::GetAnalysisManager(manager, nullptr);
    std::vector<std::string> seen;
    for (const vex::probe::Call& call : vex::probe::StopRecording()) {
        if (call.name == "HLXAnalysisDocUtils::GetAnalysisManager") {
            seen.push_back(call.arguments.back());
        }
    }
    EXPECT_EQ(seen, (std::vector<std::string>{"VEXAnalysisDocument", "no open document", "null"}));
}

}  // namespace
