// SPDX-License-Identifier: Apache-2.0
// A document with steps, amplitudes, jobs and loads of all kinds, saved, removed and opened again:
// the same tree, the same supports, the same input file.
#include "library/LoadFixture.h"
#include "library/loads/LoadedTree.h"

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

/// All that a reader sees of a document.
struct Content
{
    std::string tree;
    std::vector<std::string> supports;  ///< of each load, in order
    std::string inputFile;

    friend bool operator==(const Content&, const Content&) = default;
    friend void PrintTo(const Content& content, std::ostream* stream)
    {
        *stream << content.tree << testing::PrintToString(content.supports) << content.inputFile;
    }
};

/// Whether the part's document is saved before it is removed, with the accesses to its cells.
class LoadRoundTripTest : public LoadTest, public testing::WithParamInterface<bool>
{
protected:
    LoadRoundTripTest()
    {
        MakeSteps();
        MakeLoads();
        MakeAmplitudesAndJobs();
        load.Reset();
        step.Reset();
        analysis.SaveAs(path);
    }

    void MakeSteps()
    {
        VEXListValVEXUnicodeString codes;
        for (const char* const code : {"GSS", "SPS", "RS", "HTS", "EDS"}) {
            codes.Append(code);
        }
        VEXListPtrVEXBaseUnknown made;
        EXPECT_EQ(OutcomeOf([&] { return Utils::CreateSteps(codes, Case().Get(), made); }).result,
                  S_OK);
        for (int i = 1; i <= made.Size(); ++i) {
            steps.push_back(VEXAdopt(made[i]));
        }
        ASSERT_EQ(steps.size(), 5U);
    }

    void MakeLoad(LoadCreation create, const char* name, std::size_t stepIndex,
                  const char* printed = "")
    {
        step = steps[stepIndex];
        load.Reset();
        EXPECT_EQ(Create(create, "", name), (Outcome{S_OK, printed, ""})) << name;
    }

    void MakeLoads()
    {
        MakeLoad(&Utils::CreateGravity, "nobody's", 0);
        MakeLoad(
            [](VEXDocument* document, VEXUnicodeString name, VEXISpecObject_var& pressure,
               VEXISamAnalysisSet_var& inStep) {
                return Utils::CreatePressureLoad(document, name, pressure, inStep);
            },
            "Pressure-1", 0, "subscription to MeshNegociator OK\n");
        MakeLoad(&Utils::CreateRBF, "nobody's", 1);
        MakeLoad(&Utils::CreatedConcForce, "Force-1", 2);
        MakeLoad(&Utils::CreateConcHTFlux, "Flux-1", 3);
        MakeLoad(&Utils::CreateFilmCondition, "Film-1", 3);
        steps.clear();
    }

    void MakeAmplitudesAndJobs()
    {
        VEXISpecObject_var amplitude;
        EXPECT_EQ(Utils::CreateTabularAmplitude(analysis.Get(), 1, amplitude), S_OK);
        EXPECT_EQ(Utils::CreateSmoothStepAmplitude(analysis.Get(), 0, amplitude), S_OK);
        EXPECT_EQ(Utils::AddJobsForWritingInputFiles(analysis.Get(), Case(), "Job-1"), S_OK);
    }

    VEXISamAnalysisCase_var Case()
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Get()), S_OK);
        return cases[1];
    }

    Content Read()
    {
        Content content;
        HLXGenString text;
        const VEXINavigateObject_var root = Model();
        EXPECT_EQ(DumpFeatureTree(root.Get(), 0, text), S_OK);
        content.tree = text.c_str();
        const VEXListValVEXBaseUnknown_var loads = Below(Model(), "HLXLoad");
        for (int i = 1; i <= loads.Size(); ++i) {
            for (const std::string& support : SupportsOf(loads[i])) {
                content.supports.push_back(support);
            }
        }
        const std::string file = folder.File("job.inp");
        EXPECT_EQ(OutcomeOf([&] {
                      return Utils::WriteInputFileForAnalysisCase(Case(), VEXUnicodeString(file));
                  }),
                  (Outcome{S_OK, "", ""}));
        content.inputFile = ReadFile(file);
        return content;
    }

    /// Removes the analysis document and those that it is linked to, and opens it again.
    void Reopen()
    {
        VEXDocument* const part = Open(folder.File("box.VEXPart"));
        if (GetParam()) {
            EXPECT_EQ(VEXDocumentServices::Save(*part), S_OK);
        }
        ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
        Forget(Open(folder.File("box.VEXProduct")));
        Forget(part);
        ASSERT_TRUE(vex::DocumentSession::Instance().Documents().empty());
        ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), analysis.Get(), 0),
                  S_OK);
    }

    const std::string path = folder.File("model.VEXAnalysis");
    std::vector<VEXISamAnalysisSet_var> steps;
};

TEST_P(LoadRoundTripTest, TheTreeHoldsWhatTheOperationsGaveBeforeAndAfter)
{
    EXPECT_EQ(Read().tree, typedTree + TypedAmplitudes());
    Reopen();
    EXPECT_EQ(Read().tree, typedTree + TypedAmplitudes());
}

TEST_P(LoadRoundTripTest, SupportsLeadToTheSameGeometryBeforeAndAfter)
{
    const std::vector<std::string> typed{
        "body of box.VEXPart, GeometrySmartConnector",
        "face 1 of box.VEXPart, GeometrySmartConnector",
        "body of box.VEXPart, GeometrySmartConnector",
        "vertex 1 of box.VEXPart, ",
        "vertex 1 of box.VEXPart, ",
        "face 1 of box.VEXPart, GeometrySmartConnector",
    };
    EXPECT_EQ(Read().supports, typed);
    Reopen();
    EXPECT_EQ(Read().supports, typed);
}

TEST_P(LoadRoundTripTest, EverythingIsTheSameByteForByteTwice)
{
    const Content before = Read();
    EXPECT_NE(before.inputFile, "");
    Reopen();
    EXPECT_EQ(Read(), before);
    ASSERT_EQ(VEXDocumentServices::Save(*analysis.Get()), S_OK);
    Reopen();
    EXPECT_EQ(Read(), before);
}

INSTANTIATE_TEST_SUITE_P(Of, LoadRoundTripTest, testing::Bool(), [](const auto& row) {
    return row.param ? "ASavedPart" : "APartThatIsNotSaved";
});

}  // namespace
}  // namespace hlxtest::statics
