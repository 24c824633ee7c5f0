// SPDX-License-Identifier: Apache-2.0
// What documents, links and steps do to the creation of a temperature, whatever its kind.
#pragma once

#include "library/OtherDocuments.h"
#include "library/conditions/TemperatureKinds.h"

namespace hlxtest::statics {

class TemperatureDocumentTest : public OtherDocuments<TemperatureKindTest>
{
protected:
    using OtherDocuments<TemperatureKindTest>::OtherDocuments;

    // --- Links: the document has none at first ------------------------------------------------

    /// The first part of the first product is taken; without links, or with one to a part only,
    /// there is none.
    void ExpectLinksFollowed(const TemperatureKind& kind)
    {
        TemperatureArguments arguments = Arguments();
        EXPECT_EQ(Create(kind, arguments), (Outcome{E_FAIL, noLinkedGeometry, ""}));
        EXPECT_EQ(TemperatureTexts(), std::vector{kind.Ready()});
        EXPECT_TRUE(kind.Given(arguments) && kind.Given(arguments) == Temperatures()[1]);

        Link(SeveralPartsSpecimen(folder));
        Link(ProductSpecimen(folder, "sphere"));
        arguments.name = "Second";
        EXPECT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""}));
        ASSERT_EQ(Temperatures().Size(), 2);
        EXPECT_TRUE(kind.Given(arguments) == Temperatures()[2]);
        const std::string support = kind.support;
        EXPECT_EQ(
            SupportsOf(Temperatures()[2]),
            std::vector{std::string(kind.support).replace(support.find('*'), 1, "box.VEXPart")});
    }

    void ExpectNoPartInAnEmptyProduct(const TemperatureKind& kind)
    {
        LinkToProductWithoutChildren();
        ExpectExit(kind, {"", "", E_FAIL, noProductStructure, kind.Ready(), kind.amplitudes});
    }

    void ExpectNoProductInALinkToAPart(const TemperatureKind& kind)
    {
        Link(PartSpecimen(folder, "box"));
        ExpectExit(kind, {"", "", E_FAIL, "", kind.Ready(), kind.amplitudes});
    }

    /// Of a kind that is put on the body, with a part that has none: the platform tells why.
    void ExpectRefusedWithoutGeometry(const TemperatureKind& kind)
    {
        TemperatureArguments arguments = Arguments();
        EXPECT_EQ(Create(kind, arguments, "VEXISamAnalysisSupport::AddSupport=E_FAIL"),
                  (Outcome{E_FAIL, kind.notSupported, ""}));
        const std::string reason = ReasonWithoutGeometry(Temperatures()[1]);
        EXPECT_EQ(Create(kind, arguments), (Outcome{E_FAIL, kind.notSupported, reason}));
        EXPECT_EQ(TemperatureTexts(), (std::vector{kind.Ready(), kind.Ready()}));
    }

    // --- Steps --------------------------------------------------------------------------------

    void ExpectTakenByEveryStep(const TemperatureKind& kind)
    {
        for (const char* const type :
             {"HLXStaticLPStepLT", "HLXRiksStepLT", "HLXFrequencyStepLT", "HLXHeatTransferStepLT",
              "HLXExplicitDynamicStepLT", "HLXExplicitDynamicLT"}) {
            const VEXISpecObject_var other = AddStep(1, type, type);
            TemperatureArguments arguments = Arguments();
            arguments.step = other;
            EXPECT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""})) << type;
            const VEXListValVEXBaseUnknown_var made = Below(other, kind.type);
            ASSERT_EQ(made.Size(), 1) << type;
            EXPECT_TRUE(kind.Given(arguments) == made[1]) << type;
        }
        hlxtest::AddCase(analysis.Get());
        TemperatureArguments arguments = Arguments();
        arguments.step = AddStep(2, "HLXGeneralStaticStepLT", "Of the second case");
        EXPECT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""}));
        EXPECT_EQ(Below(VEXISpecObject_var(arguments.step), kind.type).Size(), 1);
        EXPECT_EQ(Below(step, kind.type).Size(), 0);
    }

    /// No step, the initial one, one that is gone, one of another document.
    void ExpectRefusedByOtherSteps(const TemperatureKind& kind)
    {
        const VEXISpecObject_var gone = StepThatIsGone();
        AnalysisDocument other(1);
        const VEXISpecObject_var foreign = ForeignStep(other);
        ASSERT_TRUE(foreign);
        const VEXISpecObject_var initial = Below(Model(), "HLXHacInitialStepLT")[1];
        ASSERT_TRUE(initial);
        for (const VEXISpecObject_var& wrong : {VEXISpecObject_var(), initial, gone, foreign}) {
            TemperatureArguments arguments = Arguments(former);
            arguments.step = wrong;
            ExpectRefused(kind, arguments);
        }
        EXPECT_EQ(Below(foreign, kind.type).Size(), 0);
    }

    /// No document, documents of other types, another analysis document.
    void ExpectRefusedByOtherDocuments(const TemperatureKind& kind)
    {
        AnalysisDocument other(0);
        for (VEXDocument* const wrong :
             {static_cast<VEXDocument*>(nullptr), New("VEXPart"), New("VEXProduct"), other.Get()}) {
            TemperatureArguments arguments = Arguments(former);
            arguments.document = wrong;
            ExpectRefused(kind, arguments);
        }
    }

    /// The creation is told to have failed, and the handle is left as it was.
    void ExpectRefused(const TemperatureKind& kind, TemperatureArguments& arguments)
    {
        EXPECT_EQ(Create(kind, arguments), (Outcome{E_FAIL, kind.notCreated, ""}));
        EXPECT_TRUE(kind.Given(arguments) == kind.Given(Arguments(former)));
        EXPECT_EQ(AliasOf(former), "Former");
        EXPECT_EQ(TemperatureTexts(), std::vector<std::string>{});
        EXPECT_EQ(Amplitudes().Size(), 0);
    }

    // --- Storage ------------------------------------------------------------------------------

    std::string Tree()
    {
        HLXGenString text;
        const VEXINavigateObject_var root = Model();
        EXPECT_EQ(DumpFeatureTree(root.Get(), 0, text), S_OK);
        return text.c_str();
    }

    std::string InputFile()
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Get()), S_OK);
        const std::string file = folder.File("job.inp");
        const VEXISamAnalysisCase_var first = cases[1];
        EXPECT_EQ(OutcomeOf([&] {
                      return HLXAnalysisTestUtils::WriteInputFileForAnalysisCase(
                          first, VEXUnicodeString(file));
                  }),
                  (Outcome{S_OK, "", ""}));
        return ReadFile(file);
    }

    void ExpectSameOnceStored(const TemperatureKind& kind)
    {
        TemperatureArguments arguments = Arguments();
        ASSERT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""}));
        arguments = {};
        const std::string path = folder.File("model.VEXAnalysis");
        analysis.SaveAs(path);
        const std::string tree = Tree();
        const std::string inputFile = InputFile();
        EXPECT_NE(inputFile.find("NAME=\"Name\""), std::string::npos);
        ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
        Forget(Open(folder.File("box.VEXProduct")));
        Forget(Open(folder.File("box.VEXPart")));
        ASSERT_TRUE(vex::DocumentSession::Instance().Documents().empty());
        ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), analysis.Get(), 0),
                  S_OK);
        EXPECT_EQ(TemperatureTexts(), std::vector{kind.Whole()});
        EXPECT_EQ(Tree(), tree);
        EXPECT_EQ(InputFile(), inputFile);
    }
};

}  // namespace hlxtest::statics
