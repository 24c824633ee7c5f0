// SPDX-License-Identifier: Apache-2.0
// The text of input files, typed by hand: order, steps, every feature with all it has.
#include "product/steps/StepBuilder.h"
#include "reference/inputfile/InputFileFixture.h"
#include "reference/treedump/DumpTypes.h"

#include <algorithm>

namespace {

using vex::Feature;

class InputFile : public hlxtest::InputFileTest
{
protected:
    Feature& AddStep(int number, const char* type, const char* name)
    {
        std::string error;
        Feature* const step = hlx::AddStep(Case(number), type, name, error);
        EXPECT_NE(step, nullptr) << error;
        return *step;
    }

    static Feature& Container(const Feature& step, const char* type)
    {
        const auto found = std::ranges::find_if(
            step.Children(), [&](const Feature* child) { return child->Kind().name == type; });
        return **found;
    }

    /// What the deck says of a feature directly below the model, type by type of attribute.
    std::string TextOfModel() { return Between(Text(), "** model", "** cases"); }
};

TEST_F(InputFile, OfACaseWithOneStep)
{
    Feature& amplitude = Make("HLXTabularAmplitudeLT", Model(), "Ramp");
    amplitude.Set("Data", vex::Boxed<vex::DoubleTable>({2, {0, 0, 1, 0.5}}));
    Feature& step = AddStep(1, "HLXGeneralStaticStepLT", "Load up");
    Feature& gravity = Make("HLXGravity", Container(step, "HLXLoadContainerLT"), "Gravity.1");
    gravity.Set("ComponentY", -9810.0);
    gravity.Set("UseAmplitude", true);
    gravity.Set("Amplitude", vex::Reference{amplitude.Id()});
    Make("HLXHollexPropertySetLT", Model());
    EXPECT_EQ(Text(),
              "*HEADING\n"
              "\"Analysis Case.1\"\n"
              "** structure\n"
              "*ASSEMBLY\n"
              "*END ASSEMBLY\n"
              "** model\n"
              "*TABULAR AMPLITUDE, NAME=\"Ramp\", TotalTime=false, Data=[2x2], Smoothing=0\n"
              "0, 0\n"
              "1, 0.5\n"
              "*PROPERTY SET, AbsoluteZero=0, StefanBoltzmann=0\n"
              "** cases\n"
              "*CASE, NAME=\"Analysis Case.1\", AnalysisType=0\n"
              "*HISTORY, ActiveStep=none\n"
              "*INITIAL STEP, NAME=\"Initial\", Description=\"\"\n"
              "*BOUNDARY CONDITIONS\n"
              "*END BOUNDARY CONDITIONS\n"
              "*INTERACTIONS\n"
              "*END INTERACTIONS\n"
              "*INITIAL CONDITIONS\n"
              "*END INITIAL CONDITIONS\n"
              "*END INITIAL STEP\n"
              "*STEP, NAME=\"Load up\", Description=\"\", TimePeriod=1, AutomaticIncrements=true, "
              "InitialIncrement=1, MinimumIncrement=1e-05, MaximumIncrement=1, "
              "MaximumNumberOfIncrements=100, NonlinearGeometry=false, UnsymmetricSolver=false, "
              "Stabilize=false, StabilizationFraction=2e-04\n"
              "*STATIC\n"
              "*LOADS\n"
              "*GRAVITY, NAME=\"Gravity.1\", Active=true, FollowsMesh=false, Amplitude=\"Ramp\", "
              "UseAmplitude=true, UserSubroutine=false, ComponentX=0, ComponentY=-9810, "
              "ComponentZ=0\n"
              "*END LOADS\n"
              "*BOUNDARY CONDITIONS\n"
              "*END BOUNDARY CONDITIONS\n"
              "*INTERACTIONS\n"
              "*END INTERACTIONS\n"
              "*TEMPERATURES\n"
              "*END TEMPERATURES\n"
              "*END STEP\n"
              "*END HISTORY\n"
              "*END CASE\n");
}

TEST_F(InputFile, OfSeveralCasesInTheOrderOfTheList)
{
    const std::string text = Text({2, 1});
    EXPECT_TRUE(
        text.starts_with("*HEADING\n\"Analysis Case.2\"\n\"Analysis Case.1\"\n** structure\n"));
    const std::size_t second = text.find("*CASE, NAME=\"Analysis Case.2\"");
    const std::size_t first = text.find("*END CASE\n*CASE, NAME=\"Analysis Case.1\"");
    EXPECT_LT(second, first);
    EXPECT_TRUE(text.ends_with("*END CASE\n"));
}

TEST_F(InputFile, LeavesOutTheCasesThatAreNotInTheList)
{
    EXPECT_EQ(Text({2}).find("Analysis Case.1"), std::string::npos);
}

TEST_F(InputFile, EveryStepHasItsProcedure)
{
    const std::pair<const char*, const char*> procedures[] = {
        {"HLXGeneralStaticStepLT", "*STATIC\n"},
        {"HLXStaticLPStepLT", "*STATIC, PERTURBATION\n"},
        {"HLXRiksStepLT", "*STATIC, RIKS\n"},
        {"HLXHeatTransferStepLT", "*HEAT TRANSFER\n"},
        {"HLXExplicitDynamicLT", "*DYNAMIC, EXPLICIT\n"},
        {"HLXExplicitDynamicStepLT", "*DYNAMIC, EXPLICIT\n"},
        {"HLXFrequencyStepLT", "*FREQUENCY\n"},
    };
    for (const auto& [type, procedure] : procedures) {
        AddStep(1, type, type);
    }
    const std::string text = Text();
    std::size_t at = 0;
    for (const auto& [type, procedure] : procedures) {
        at = text.find("\n*STEP, NAME=\"" + std::string(type) + "\"", at);
        ASSERT_NE(at, std::string::npos) << type;
        const std::size_t next = text.find('\n', at + 1) + 1;
        EXPECT_TRUE(text.substr(next).starts_with(procedure)) << type;
    }
}

TEST_F(InputFile, EveryKindOfValueDefaultsToo)
{
    Make(hlxtest::Type("TstAll").name.c_str(), Model());
    EXPECT_EQ(TextOfModel(),
              "*FEATURE, TYPE=TstAll, Flag=true, Count=3, Size=1.5, Label=\"none\", Target=none, "
              "Model=\"\", Points=[2], Data=[0x0]\n"
              "1, 2\n");
}

TEST_F(InputFile, EveryKindOfValue)
{
    Feature& all = Make(hlxtest::Type("TstAll").name.c_str(), Model(), "All");
    all.Set("Flag", false);
    all.Set("Count", std::int64_t{-9});
    all.Set("Size", 0.1);
    all.Set("Label", vex::Boxed<std::string>(std::string("a, \"b\"\n*STEP")));
    all.Set("Target", vex::Reference{all.Id()});
    all.Set("Model", vex::Boxed<vex::DocumentLink>({"/somewhere/else/bolt.VEXPart"}));
    all.Set("Points", vex::Boxed<vex::DoubleList>());
    all.Set("Data", vex::Boxed<vex::DoubleTable>({3, {1, 2, 3, 4, 5, 1e30}}));
    EXPECT_EQ(TextOfModel(),
              "*FEATURE, TYPE=TstAll, NAME=\"All\", Flag=false, Count=-9, Size=0.1, "
              "Label=\"a, \\\"b\\\"\\n*STEP\", Target=\"All\", Model=\"bolt.VEXPart\", "
              "Points=[0], Data=[2x3]\n"
              "1, 2, 3\n"
              "4, 5, 1e+30\n");
}

TEST_F(InputFile, AttributesThatTheCatalogueDoesNotListAreLeftOutWithTheirData)
{
    std::string error;
    const vex::Boxed<vex::DoubleList> numbers({1, 2});
    if (vex::LateTypes::Instance().Find("TstUnlisted") == nullptr) {
        const auto kind = vex::ValueKind::List;
        ASSERT_TRUE(vex::LateTypes::Instance().Add(
            {{"TstUnlisted", "", {{"A", kind, numbers, false}, {"B", kind, numbers}}}}, error))
            << error;
    }
    Feature& feature = Make("TstUnlisted", Model());
    feature.Set("A", vex::Boxed<vex::DoubleList>({3, 4}));
    EXPECT_EQ(TextOfModel(), "*FEATURE, TYPE=TstUnlisted, B=[2]\n1, 2\n");
}

TEST_F(InputFile, FeaturesBelowOthersStandInBlocks)
{
    hlxtest::AddDumpTypes();
    Feature& outer = Make("TstPlain", Model(), "Outer");
    Feature& inner = Make("TstPlain", outer, "Inner");
    Make("TstPlain", inner, "Leaf");
    Make("HLXLoadContainerLT", outer);
    EXPECT_EQ(TextOfModel(),
              "*FEATURE, TYPE=TstPlain, NAME=\"Outer\", CONTENTS\n"
              "*FEATURE, TYPE=TstPlain, NAME=\"Inner\", CONTENTS\n"
              "*FEATURE, TYPE=TstPlain, NAME=\"Leaf\"\n"
              "*END FEATURE\n"
              "*LOADS\n"
              "*END LOADS\n"
              "*END FEATURE\n");
}

TEST_F(InputFile, JobsAndSolutionsAreNoInput)
{
    hlxtest::AddDumpTypes();
    Feature& owner = Make("TstPlain", Model());
    Make("HLXJobLT", owner, "Job-1");
    Make("TstPlain", Make("HLXJobContainerLT", Model()), "below a job container");
    Make("HLXHacSolutionLT", Model());
    EXPECT_EQ(TextOfModel(), "*FEATURE, TYPE=TstPlain\n");
}

TEST_F(InputFile, NoNameForgesALine)
{
    Case(1).SetAlias("a\"\n*END CASE\n\xE2\x80\xA8\\");
    const std::string quoted = "\"a\\\"\\n*END CASE\\n\\u{2028}\\\\\"";
    const std::string text = Text();
    EXPECT_TRUE(text.starts_with("*HEADING\n" + quoted + "\n** structure\n")) << text;
    EXPECT_NE(text.find("\n*CASE, NAME=" + quoted + ", AnalysisType=0\n"), std::string::npos);
    EXPECT_EQ(text.find("*END CASE\n"), text.size() - 10);
}

TEST_F(InputFile, LinesHaveNoGreatestLength)
{
    Feature& all = Make(hlxtest::Type("TstAll").name.c_str(), Model(), std::string(100'000, 'n'));
    all.Set("Points", vex::Boxed<vex::DoubleList>(vex::DoubleList(100'000, 7.0)));
    const std::string text = TextOfModel();
    EXPECT_EQ(std::ranges::count(text, '\n'), 2);
    EXPECT_NE(text.find(", Points=[100000], "), std::string::npos);
}

TEST_F(InputFile, AChainOfFeaturesIsWrittenLikeAnyOther)
{
    hlxtest::AddDumpTypes();
    Feature* last = &Model();
    for (int i = 0; i < 100'000; ++i) {
        last = &Make("TstPlain", *last);
    }
    const std::string text = TextOfModel();
    EXPECT_EQ(std::ranges::count(text, '\n'), 199'999);
    EXPECT_TRUE(text.ends_with("*END FEATURE\n*END FEATURE\n"));
}

TEST_F(InputFile, TwoWritesGiveTheSameBytes)
{
    AddStep(1, "HLXRiksStepLT", "Riks");
    EXPECT_EQ(Text(), Text());
}

/// The deck's own parameters can be told from attributes.
TEST_F(InputFile, NoAttributeOfTheCatalogueHasANameOfTheDecks)
{
    for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
        for (const char* const name : {"TYPE", "NAME", "CONTENTS"}) {
            EXPECT_EQ(type->IndexOf(name), -1) << type->name;
        }
    }
}

}  // namespace
