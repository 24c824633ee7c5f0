// SPDX-License-Identifier: Apache-2.0
// Analysis cases and element behaviours through their factories.
#include "reference/analysis/AnalysisFixture.h"

#include "VEXComponents.h"

namespace {

using hlxtest::AliasesOf;
using Names = std::vector<std::string>;

template <class Interface>
VEXVar<Interface> Factory(const char* name)
{
    void* object = nullptr;
    EXPECT_EQ(VEXInstantiateComponent(name, VEXInterfaceTraits<Interface>::Id, &object), S_OK);
    return VEXAdopt(static_cast<Interface*>(object));
}

class CaseFactory : public hlxtest::AnalysisTest
{
protected:
    HRESULT Create(VEXISamAnalysisCase_var& made, HLXIAnalysisCase::analysisTypeEnum type,
                   VEXDocument* where)
    {
        VEXISamAnalysisCase* raw = nullptr;
        const HRESULT result = factory->CreateAnalysisCase(raw, where, type);
        made = VEXAdopt(raw);
        return result;
    }

    const VEXVar<HLXIHacAnalysisCaseFact> factory =
        Factory<HLXIHacAnalysisCaseFact>("HLXHacAnalysisCaseFact");
};

TEST_F(CaseFactory, AddsCasesAtTheEndWithTheirNumbersAndTypes)
{
    for (int type = 0; type <= 4; ++type) {
        VEXISamAnalysisCase_var made;
        ASSERT_EQ(Create(made, HLXIAnalysisCase::analysisTypeEnum(type), document.Get()), S_OK);
        EXPECT_EQ(made, Case(type + 1));
        HLXIAnalysisCase::analysisTypeEnum stored{};
        EXPECT_EQ(HLXIAnalysisCase_var(made)->GetAnalysisType(stored), S_OK);
        EXPECT_EQ(stored, type);
        EXPECT_EQ(HLXAnalysisDocUtils::GetDocument(made), document.Get());
    }
    EXPECT_EQ(AliasesOf(Cases()), (Names{"Analysis Case.1", "Analysis Case.2", "Analysis Case.3",
                                         "Analysis Case.4", "Analysis Case.5"}));
}

TEST_F(CaseFactory, GivesACaseAllThatANewOneHas)
{
    VEXISamAnalysisCase_var made;
    ASSERT_EQ(Create(made, HLXIAnalysisCase::ThermalAnalysis, document.Get()), S_OK);
    HLXGenString text;
    ASSERT_EQ(DumpFeatureTree(VEXINavigateObject_var(made).Get(), 0, text), S_OK);
    EXPECT_STREQ(text.c_str(),
                 "HLXHacAnalysisCaseLT \"Analysis Case.1\" AnalysisType=1\n"
                 "  HLXHacSimHistLT\n"
                 "    HLXHacInitialStepLT \"Initial\"\n"
                 "      HLXBoundaryConditionContainerLT\n"
                 "      HLXInteractionContainerLT\n"
                 "      HLXHacFieldContainerLT\n"
                 "  HLXJobContainerLT\n"
                 "  HLXHacSolutionLT\n");
}

TEST_F(CaseFactory, TakesANumberThatNoCaseBears)
{
    VEXISamAnalysisCase_var first;
    VEXISamAnalysisCase_var other;
    ASSERT_EQ(Create(first, HLXIAnalysisCase::StructuralAnalysis, document.Get()), S_OK);
    ASSERT_EQ(Create(other, HLXIAnalysisCase::StructuralAnalysis, document.Get()), S_OK);
    FeatureOf(first).Tree()->Delete(FeatureOf(first));
    ASSERT_EQ(Create(other, HLXIAnalysisCase::StructuralAnalysis, document.Get()), S_OK);
    EXPECT_EQ(AliasesOf(Cases()), (Names{"Analysis Case.2", "Analysis Case.3"}));
}

TEST_F(CaseFactory, RefusesOtherDocumentsAndTypes)
{
    VEXISamAnalysisCase_var made;
    EXPECT_EQ(Create(made, HLXIAnalysisCase::StructuralAnalysis, nullptr), E_INVALIDARG);
    EXPECT_EQ(Create(made, HLXIAnalysisCase::analysisTypeEnum(5), document.Get()), E_INVALIDARG);
    EXPECT_EQ(Create(made, HLXIAnalysisCase::analysisTypeEnum(-1), document.Get()), E_INVALIDARG);
    VEXDocument* product = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
    EXPECT_EQ(Create(made, HLXIAnalysisCase::StructuralAnalysis, product), E_INVALIDARG);
    ASSERT_EQ(VEXDocumentServices::Remove(*product, 1), S_OK);
    EXPECT_EQ(Create(made, HLXIAnalysisCase::StructuralAnalysis, product), E_INVALIDARG);
    EXPECT_FALSE(made);
    EXPECT_EQ(Cases().Size(), 0);
}

TEST_F(CaseFactory, FailsWithoutACurrentModel)
{
    FeatureOf(Manager()).Set("CurrentModel", vex::Reference{FeatureOf(Manager()).Id()});
    VEXISamAnalysisCase_var made;
    EXPECT_EQ(Create(made, HLXIAnalysisCase::StructuralAnalysis, document.Get()), E_FAIL);
    FeatureOf(Manager()).Set("CurrentModel", vex::Reference{});
    EXPECT_EQ(Create(made, HLXIAnalysisCase::StructuralAnalysis, document.Get()), E_FAIL);
    EXPECT_FALSE(made);
}

TEST_F(CaseFactory, DoesNotAnswerATypeThatIsNone)
{
    VEXISamAnalysisCase_var made;
    ASSERT_EQ(Create(made, HLXIAnalysisCase::FrequencyAnalysis, document.Get()), S_OK);
    FeatureOf(made).Set("AnalysisType", std::int64_t{1} << 32);
    auto type = HLXIAnalysisCase::ThermalAnalysis;
    EXPECT_EQ(HLXIAnalysisCase_var(made)->GetAnalysisType(type), E_FAIL);
    EXPECT_EQ(type, HLXIAnalysisCase::ThermalAnalysis);
}

TEST_F(CaseFactory, FindsCasesOfAllModels)
{
    vex::Feature& manager = FeatureOf(Manager());
    vex::Feature& second =
        manager.Tree()->Create(vex::LateTypes::Instance().Require("VEXSamAnalysisModel"), &manager);
    VEXISamAnalysisCase_var made;
    ASSERT_EQ(Create(made, HLXIAnalysisCase::StructuralAnalysis, document.Get()), S_OK);
    manager.Set("CurrentModel", vex::Reference{second.Id()});
    ASSERT_EQ(Create(made, HLXIAnalysisCase::StructuralAnalysis, document.Get()), S_OK);
    VEXListValVEXBaseUnknown_var cases;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document.Get()), S_OK);
    EXPECT_EQ(AliasesOf(cases), (Names{"Analysis Case.1", "Analysis Case.1"}));
    EXPECT_EQ(Cases().Size(), 1);
}

TEST_F(CaseFactory, IsOneObjectOfTheProcess)
{
    EXPECT_EQ(factory, Factory<HLXIHacAnalysisCaseFact>("HLXHacAnalysisCaseFact"));
}

class ElementBehavior : public hlxtest::AnalysisTest
{
protected:
    ElementBehavior() : AnalysisTest(1) {}

    const VEXVar<HLXIElementBehaviorFact> factory =
        Factory<HLXIElementBehaviorFact>("HLXElementBehaviorFact");
};

TEST_F(ElementBehavior, IsMadeOnceACase)
{
    const VEXISamAnalysisCase_var handle = Case(1);
    VEXISamAnalysisCase* analysisCase = handle.Get();
    EXPECT_EQ(factory->CreateElementBehavior(analysisCase), S_OK);
    EXPECT_EQ(factory->CreateElementBehavior(analysisCase), S_OK);
    VEXListValVEXBaseUnknown_var found;
    VEXISamAnalysisScan_var(handle)->GetChildren("HLXElementBehaviorLT", found, 9);
    EXPECT_EQ(found.Size(), 1);
    EXPECT_EQ(FeatureOf(found[1]).Parent(), &FeatureOf(handle));
}

TEST_F(ElementBehavior, RefusesANullCase)
{
    VEXISamAnalysisCase* analysisCase = nullptr;
    EXPECT_EQ(factory->CreateElementBehavior(analysisCase), E_INVALIDARG);
}

}  // namespace
