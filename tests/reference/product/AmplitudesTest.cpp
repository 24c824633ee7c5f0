// SPDX-License-Identifier: Apache-2.0
// Amplitudes: their factory, tables and time spans.
#include "reference/analysis/EntityFixture.h"

#include <cmath>
#include <limits>

namespace {

using Table = HLXCftArrayHLXCftArrayDouble;
using testing::Each;
using testing::Eq;

class Amplitudes : public hlxtest::EntityTest
{
protected:
    HLXIAmplitude_var Make()
    {
        VEXISpecObject_var made;
        EXPECT_EQ(factory->CreateTabularAmplitude(made, analysis.Get()), S_OK);
        return HLXIAmplitude_var(made);
    }

    static Table TableOf(const HLXIAmplitude_var& amplitude)
    {
        Table table{{7, 7}, {7}};
        EXPECT_EQ(amplitude->GetData(table), S_OK);
        return table;
    }

    const VEXVar<HLXIAmplitudeFact> factory =
        hlxtest::Service<HLXIAmplitudeFact>("HLXAmplitudeFact");
};

TEST_F(Amplitudes, AreMadeAtTheEndOfTheCurrentModel)
{
    VEXISpecObject_var tabular;
    ASSERT_EQ(factory->CreateTabularAmplitude(tabular, analysis.Get()), S_OK);
    EXPECT_EQ(FeatureOf(tabular).NextSibling(), nullptr);
    VEXISpecObject_var smooth;
    ASSERT_EQ(factory->CreateSmoothStepAmplitude(smooth, analysis.Get()), S_OK);
    EXPECT_EQ(FeatureOf(tabular).NextSibling(), &FeatureOf(smooth));
    for (const vex::Feature* const made : {&FeatureOf(tabular), &FeatureOf(smooth)}) {
        EXPECT_EQ(made->Parent(), model);
        EXPECT_FALSE(made->HasAlias());
        EXPECT_EQ(hlxtest::References(*made), 1U);
        EXPECT_TRUE(TableOf(vex::FaceOf<HLXIAmplitude>(made)).empty());
    }
    EXPECT_STREQ(FeatureOf(tabular).IsA(), "HLXTabularAmplitudeLT");
    EXPECT_TRUE(HLXITabularAmplitude_var(tabular));
    EXPECT_FALSE(HLXISmoothStepAmplitude_var(tabular));
    EXPECT_STREQ(FeatureOf(smooth).IsA(), "HLXSmoothStepAmplitudeLT");
    EXPECT_TRUE(HLXISmoothStepAmplitude_var(smooth));
    EXPECT_FALSE(HLXITabularAmplitude_var(smooth));
}

TEST_F(Amplitudes, AreNotMadeElsewhere)
{
    VEXDocument* product = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
    const VEXISpecObject_var given = vex::FaceOf<VEXISpecObject>(step);
    VEXISpecObject_var made = given;
    const auto expect = [&](VEXDocument* document, HRESULT result) {
        EXPECT_EQ(factory->CreateTabularAmplitude(made, document), result);
        EXPECT_EQ(factory->CreateSmoothStepAmplitude(made, document), result);
        EXPECT_EQ(made, given);
    };
    const std::size_t before = Inside(*analysis.Get()).Tree().Size();
    expect(nullptr, E_INVALIDARG);
    expect(product, E_INVALIDARG);
    ASSERT_EQ(VEXDocumentServices::Remove(*product, 1), S_OK);
    expect(product, E_INVALIDARG);
    model->Parent()->Set("CurrentModel", vex::Reference{step->Id()});
    expect(analysis.Get(), E_FAIL);
    model->Parent()->Set("CurrentModel", vex::Reference{});
    expect(analysis.Get(), E_FAIL);
    EXPECT_EQ(Inside(*analysis.Get()).Tree().Size(), before);
}

TEST_F(Amplitudes, KeepTheTableThatTheyAreGiven)
{
    const HLXIAmplitude_var amplitude = Make();
    const Table tables[] = {{{0, 1}},
                            {{0, 0}, {1, 1}},
                            {{-5, 2.5}, {-5, 3}, {-5, -1e300}, {1e-300, 0.1}},
                            {{0.1, 0.2}, {0.3, 0.4}, {0.3, 0.2}}};
    for (const Table& table : tables) {
        EXPECT_EQ(amplitude->SetData(table), S_OK);
        EXPECT_EQ(TableOf(amplitude), table);
    }
}

TEST_F(Amplitudes, RefuseOtherTablesAndKeepTheirs)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const Table kept{{0, 1}, {2, 3}};
    const Table others[] = {{},
                            {{}},
                            {{0}},
                            {{0, 1, 2}},
                            {{0, 1}, {}},
                            {{0, 1}, {1}},
                            {{0, 1}, {1, 1, 1}},
                            {{1, 0}, {0.5, 0}},
                            {{0, 0}, {2, 0}, {1, 0}},
                            {{0, std::nan("")}},
                            {{std::nan(""), 0}},
                            {{0, infinity}},
                            {{-infinity, 0}},
                            {{0, 1}, {infinity, 1}}};
    const HLXIAmplitude_var amplitude = Make();
    ASSERT_EQ(amplitude->SetData(kept), S_OK);
    for (const Table& table : others) {
        EXPECT_EQ(amplitude->SetData(table), E_INVALIDARG) << testing::PrintToString(table);
        EXPECT_EQ(TableOf(amplitude), kept);
    }
}

TEST_F(Amplitudes, GiveNoRowsOfAStoredTableThatIsNone)
{
    const HLXIAmplitude_var amplitude = Make();
    const auto store = [&](vex::DoubleTable table) {
        FeatureOf(amplitude).Set("Data", vex::Boxed<vex::DoubleTable>(std::move(table)));
    };
    store({2, {1, 2, 3, 4, 5, 6}});
    EXPECT_EQ(TableOf(amplitude), (Table{{1, 2}, {3, 4}, {5, 6}}));
    const vex::DoubleTable others[] = {
        {3, {1, 2, 3, 4, 5, 6}},
        {1, {1, 2}},
        {2, {3, 4, 1, 2}},
        {2, {0, std::numeric_limits<double>::quiet_NaN()}},
        {},
    };
    for (const vex::DoubleTable& other : others) {
        store(other);
        EXPECT_TRUE(TableOf(amplitude).empty()) << other.columns;
    }
}

TEST_F(Amplitudes, HaveATimeSpanOfTwo)
{
    const HLXIAmplitude_var amplitude = Make();
    int option = 7;
    EXPECT_EQ(amplitude->GetTimeSpan(option), S_OK);
    EXPECT_EQ(option, 0);
    for (const int wanted : {1, 0, 1}) {
        EXPECT_EQ(amplitude->SetTimeSpan(wanted), S_OK);
        EXPECT_EQ(amplitude->GetTimeSpan(option), S_OK);
        EXPECT_EQ(option, wanted);
        EXPECT_EQ(FeatureOf(amplitude).GetAs<bool>("TotalTime"), wanted == 1);
    }
    for (const int other : {-1, 2, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(amplitude->SetTimeSpan(other), E_INVALIDARG);
        EXPECT_EQ(amplitude->GetTimeSpan(option), S_OK);
        EXPECT_EQ(option, 1);
    }
}

TEST_F(Amplitudes, HaveTheSameOperationsBehindEachInterface)
{
    VEXISpecObject_var smooth;
    ASSERT_EQ(factory->CreateSmoothStepAmplitude(smooth, analysis.Get()), S_OK);
    const HLXISmoothStepAmplitude_var own(smooth);
    const HLXIAmplitude_var common(smooth);
    EXPECT_EQ(own->SetTimeSpan(1), S_OK);
    EXPECT_EQ(own->SetData({{0, 2}}), S_OK);
    int option = 0;
    EXPECT_EQ(common->GetTimeSpan(option), S_OK);
    EXPECT_EQ(option, 1);
    EXPECT_EQ(TableOf(common), (Table{{0, 2}}));
}

TEST_F(Amplitudes, ThatAreGoneFail)
{
    const HLXIAmplitude_var amplitude = Make();
    ASSERT_EQ(amplitude->SetTimeSpan(1), S_OK);
    RemoveAnalysis();
    int option = 7;
    Table table{{1, 2}};
    EXPECT_EQ(amplitude->SetTimeSpan(0), E_FAIL);
    EXPECT_EQ(amplitude->SetTimeSpan(9), E_FAIL);
    EXPECT_EQ(amplitude->GetTimeSpan(option), E_FAIL);
    EXPECT_EQ(option, 0);
    EXPECT_EQ(amplitude->SetData(table), E_FAIL);
    EXPECT_EQ(amplitude->SetData({}), E_FAIL);
    EXPECT_EQ(amplitude->GetData(table), E_FAIL);
    EXPECT_TRUE(table.empty());
}

}  // namespace
