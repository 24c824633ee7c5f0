// SPDX-License-Identifier: Apache-2.0
// Where no initial step is found: nothing is made either.
#include "reference/product/ValidateStepFixture.h"

namespace {

constexpr const char* fieldContainer = "HLXHacFieldContainerLT";

using ValidateStepRefusal = hlxtest::ValidateStepTest;

TEST_F(ValidateStepRefusal, FindsNoneOfAnotherName)
{
    for (const char* const name : {"Load up", "initial", "Initial ", "Initia", "No such"}) {
        ExpectNone("", name);
        ExpectNone(fieldContainer, name);
    }
}

TEST_F(ValidateStepRefusal, FindsNoneWithoutTheContainer)
{
    Delete(*vex::FirstChildOfType(initial, fieldContainer));
    ExpectNone(fieldContainer);
    EXPECT_EQ(Found(""), &initial);
}

TEST_F(ValidateStepRefusal, IsNotFoundWithoutAModelOrACase)
{
    vex::Feature& manager = *model->Parent();
    for (const vex::Feature* const wrong : {step, &manager, analysisCase}) {
        ASSERT_EQ(manager.Set("CurrentModel", vex::Reference{wrong->Id()}), S_OK);
        ExpectNone("");
        ExpectNone(fieldContainer, "Initial", 1);
    }
    ASSERT_EQ(manager.Set("CurrentModel", vex::Reference{}), S_OK);
    ExpectNone("", "", 1);
    ASSERT_EQ(manager.Set("CurrentModel", vex::Reference{model->Id()}), S_OK);
    EXPECT_EQ(Found("", "", 1), &initial);
    hlxtest::AnalysisDocument empty(0);
    ExpectNone(E_FAIL, empty.Get(), fieldContainer, "", 0);
    const std::size_t before = Inside(*empty.Get()).Tree().Size();
    ExpectNone(E_FAIL, empty.Get(), fieldContainer, "", 1);
    EXPECT_EQ(Inside(*empty.Get()).Tree().Size(), before);
    vex::FeatureTree& tree = Inside(*empty.Get()).Tree();
    tree.Delete(*vex::AnalysisManagerOf(Inside(*empty.Get())));
    ExpectNone(E_FAIL, empty.Get(), "", "", 1);
}

TEST_F(ValidateStepRefusal, RefusesTypesThatAreNoContainersOfInitialSteps)
{
    for (const char* const type :
         {"HLXTemperatureContainerLT", "HLXLoadContainerLT", "HLXJobContainerLT", "HLXContainerLT",
          "CndContainer", "CndFieldContainer", "HLXHacInitialStepLT", "HLXStepLT",
          "HLXHacSimHistLT", "HLXLoad", "CndStep", "HLXTemperatureLT", "hlxContainerLT", " ",
          "HLXHacFieldContainerLT ", "NoSuchType", "\xff"}) {
        for (const unsigned char make : std::initializer_list<unsigned char>{0, 1}) {
            ExpectNone(E_INVALIDARG, analysis.Get(), type, "", make);
            ExpectNone(E_INVALIDARG, analysis.Get(), type, "Other", make);
        }
    }
    ExpectNone(E_INVALIDARG, analysis.Get(), VEXUnicodeString(std::string(fieldContainer) + '\0'),
               "", 1);
}

TEST_F(ValidateStepRefusal, RefusesNamesThatCannotBeOnes)
{
    const std::string zero("Ini\0tial", 8);
    for (const std::string& name :
         {std::string("\xff"), std::string("Initial\x80"), std::string("\xed\xa0\x80"),
          std::string("\xc0\x80"), zero, std::string(1, '\0'), "Initial" + std::string(1, '\0')}) {
        for (const unsigned char make : std::initializer_list<unsigned char>{0, 1}) {
            ExpectNone(E_INVALIDARG, analysis.Get(), "", VEXUnicodeString(name), make);
            ExpectNone(E_INVALIDARG, analysis.Get(), fieldContainer, VEXUnicodeString(name), make);
        }
    }
}

TEST_F(ValidateStepRefusal, RefusesOtherDocuments)
{
    VEXDocument* product = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
    hlxtest::AnalysisDocument closed(1);
    VEXDocument* const stale = closed.Get();
    ASSERT_EQ(VEXDocumentServices::Remove(*closed.Release(), 1), S_OK);
    for (VEXDocument* const document :
         {static_cast<VEXDocument*>(nullptr), &Open("box"), product, stale}) {
        for (const unsigned char make : std::initializer_list<unsigned char>{0, 1}) {
            ExpectNone(E_INVALIDARG, document, "", "", make);
            ExpectNone(E_INVALIDARG, document, fieldContainer, "Initial", make);
            ExpectNone(E_INVALIDARG, document, "NoSuchType", "\xff", make);
        }
    }
}

}  // namespace
