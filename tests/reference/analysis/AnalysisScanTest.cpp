// SPDX-License-Identifier: Apache-2.0
// Search below analysis objects, putting objects there, and making them from the catalogue.
#include "reference/analysis/AnalysisFixture.h"

namespace {

using hlxtest::AliasesOf;
using hlxtest::TypesOf;
using Names = std::vector<std::string>;

class Scan : public hlxtest::AnalysisTest
{
protected:
    Scan() : AnalysisTest(1) {}

    VEXISamAnalysisScan_var OfCase() { return VEXISamAnalysisScan_var(Case(1)); }

    static VEXListValVEXBaseUnknown_var Find(const VEXISamAnalysisScan_var& scan,
                                             const char* lateType, int depth)
    {
        VEXListValVEXBaseUnknown_var objects;
        EXPECT_EQ(scan->GetChildren(lateType, objects, depth), S_OK);
        return objects;
    }

    vex::Feature& AddFeature(vex::Feature& parent, const char* lateType, const char* alias)
    {
        vex::Feature& feature =
            parent.Tree()->Create(vex::LateTypes::Instance().Require(lateType), &parent);
        feature.SetAlias(alias);
        return feature;
    }
};

TEST_F(Scan, GoesDownToItsDepth)
{
    const char* const container = "HLXHacFieldContainerLT";
    EXPECT_EQ(Find(OfCase(), "HLXHacSimHistLT", 1).Size(), 1);
    EXPECT_EQ(Find(OfCase(), container, 2).Size(), 0);
    EXPECT_EQ(Find(OfCase(), container, 3).Size(), 1);
    EXPECT_EQ(Find(OfCase(), container, 1000000000).Size(), 1);
    EXPECT_EQ(Find(OfCase(), container, 0).Size(), 0);
    EXPECT_EQ(Find(OfCase(), container, -1).Size(), 0);
}

TEST_F(Scan, DoesNotFindTheObjectItself)
{
    EXPECT_EQ(Find(OfCase(), "HLXHacAnalysisCaseLT", 3).Size(), 0);
}

TEST_F(Scan, PutsTheNearestFirst)
{
    vex::Feature& analysisCase = FeatureOf(Case(1));
    vex::Feature& history = *analysisCase.Children().front();
    AddFeature(*history.Children().front(), "HLXJobLT", "third level");
    AddFeature(history, "HLXJobLT", "second level");
    AddFeature(*history.NextSibling(), "HLXJobLT", "second level, later");
    AddFeature(analysisCase, "HLXJobLT", "first level");
    EXPECT_EQ(AliasesOf(Find(OfCase(), "HLXJobLT", 3)),
              (Names{"first level", "second level", "second level, later", "third level"}));
    EXPECT_EQ(AliasesOf(Find(OfCase(), "HLXJobLT", 2)),
              (Names{"first level", "second level", "second level, later"}));
}

TEST_F(Scan, FindsTypesThatExtendTheOneAskedForAndAllForNone)
{
    EXPECT_EQ(TypesOf(Find(OfCase(), "HLXContainerLT", 3)),
              (Names{"HLXJobContainerLT", "HLXBoundaryConditionContainerLT",
                     "HLXInteractionContainerLT", "HLXHacFieldContainerLT"}));
    EXPECT_EQ(Find(OfCase(), "", 1).Size(), 3);
    EXPECT_EQ(Find(OfCase(), "NoSuchType", 3).Size(), 0);
}

TEST_F(Scan, AppendsToWhatTheListHolds)
{
    VEXListValVEXBaseUnknown_var objects;
    objects.Append(VEXBaseUnknown_var(Case(1)));
    EXPECT_EQ(OfCase()->GetChildren("HLXJobContainerLT", objects, 1), S_OK);
    EXPECT_EQ(TypesOf(objects), (Names{"HLXHacAnalysisCaseLT", "HLXJobContainerLT"}));
}

TEST_F(Scan, SearchesAChainOfAnyLength)
{
    vex::Feature* last = &FeatureOf(Case(1));
    for (int i = 0; i < 100000; ++i) {
        last = &AddFeature(*last, "HLXContainerLT", "");
    }
    EXPECT_EQ(Find(OfCase(), "HLXContainerLT", 1000000).Size(), 100000 + 4);
}

TEST_F(Scan, AddsAtTheEndOrInFront)
{
    vex::Feature& a = AddStep(1, "HLXRiksStepLT", "A");
    vex::Feature& b = AddStep(1, "HLXRiksStepLT", "B");
    const VEXISamAnalysisScan_var history(vex::HandleOf(a.Parent()));
    const auto names = [&] { return AliasesOf(Find(history, "HLXStepLT", 1)); };

    EXPECT_EQ(history->AddObject(vex::HandleOf(&b).Get(), vex::HandleOf(&a).Get()), S_OK);
    EXPECT_EQ(names(), (Names{"Initial", "B", "A"}));
    EXPECT_EQ(history->AddObject(vex::HandleOf(&b).Get(), nullptr), S_OK);
    EXPECT_EQ(names(), (Names{"Initial", "A", "B"}));
    EXPECT_EQ(OfCase()->AddObject(vex::HandleOf(&b).Get(), nullptr), S_OK);
    EXPECT_EQ(names(), (Names{"Initial", "A"}));
    EXPECT_EQ(b.Parent(), &FeatureOf(Case(1)));
}

TEST_F(Scan, RefusesWhatCannotStandThere)
{
    vex::Feature& step = AddStep(1, "HLXRiksStepLT", "A");
    const VEXISamAnalysisScan_var history(vex::HandleOf(step.Parent()));
    const VEXISamAnalysisScan_var inStep(vex::HandleOf(&step));
    const VEXBaseUnknown_var analysisCase(Case(1));
    const hlxtest::AnalysisDocument other(1);
    VEXListValVEXBaseUnknown_var otherCases;
    HLXAnalysisDocUtils::GetAllAnalysisCases(otherCases,
                                             const_cast<hlxtest::AnalysisDocument&>(other).Get());
    const VEXBaseUnknown_var root(vex::HandleOf(FeatureOf(Manager()).Parent()));

    EXPECT_EQ(history->AddObject(nullptr, nullptr), E_INVALIDARG);
    EXPECT_EQ(history->AddObject(otherCases[1].Get(), nullptr), E_INVALIDARG);
    EXPECT_EQ(history->AddObject(document.Get(), nullptr), E_INVALIDARG);
    EXPECT_EQ(history->AddObject(root.Get(), nullptr), E_INVALIDARG);
    EXPECT_EQ(history->AddObject(vex::HandleOf(&step).Get(), analysisCase.Get()), E_INVALIDARG);
    EXPECT_EQ(inStep->AddObject(analysisCase.Get(), nullptr), E_INVALIDARG);
    EXPECT_EQ(inStep->AddObject(vex::HandleOf(&step).Get(), nullptr), E_INVALIDARG);
    EXPECT_EQ(AliasesOf(Find(history, "HLXStepLT", 1)), (Names{"Initial", "A"}));
}

TEST_F(Scan, TakesWhatTheModelFactoryMakes)
{
    const VEXISamAnalysisModelFactory_var factory(vex::HandleOf(FeatureOf(Manager()).Parent()));
    ASSERT_TRUE(factory);
    const VEXISpecObject_var model(Model());
    const auto feature =
        VEXAdopt(factory->CreateFeature("HLXHollexPropertySetLT", nullptr, model.Get()));
    ASSERT_TRUE(feature);
    EXPECT_EQ(VEXISamAnalysisScan_var(Model())->AddObject(feature.Get(), nullptr), S_OK);
    EXPECT_EQ(TypesOf(Find(VEXISamAnalysisScan_var(Model()), "", 1)),
              (Names{"HLXHacAnalysisCaseLT", "HLXHollexPropertySetLT"}));

    EXPECT_EQ(factory->CreateFeature("NoSuchType", "", model.Get()), nullptr);
    EXPECT_EQ(factory->CreateFeature("HLXGravity", "", nullptr), nullptr);
    EXPECT_EQ(factory->CreateFeature("HLXGravity", "\xff", model.Get()), nullptr);
    hlxtest::AnalysisDocument other(0);
    VEXISamAnalysisManager_var otherManager;
    HLXAnalysisDocUtils::GetAnalysisManager(otherManager, other.Get());
    EXPECT_EQ(factory->CreateFeature("HLXGravity", "", VEXISpecObject_var(otherManager).Get()),
              nullptr);
    EXPECT_EQ(Find(VEXISamAnalysisScan_var(Model()), "HLXGravity", 9).Size(), 0);
}

}  // namespace
