// SPDX-License-Identifier: Apache-2.0
// The example of docs/tree-dump.md is what a dump gives.
#include "reference/analysis/EntityFixture.h"

#include "HLXJobs.h"
#include "HLXProductUtilities.h"

#include <algorithm>

namespace {

class DocumentedDump : public hlxtest::EntityTest
{
protected:
    /// The first block of a document that is set as code.
    static std::string FirstBlock(const std::string& path)
    {
        const std::string text = hlxtest::ReadFile(path);
        const std::string fence = "```\n";
        const std::size_t start = text.find(fence) + fence.size();
        return text.substr(start, text.find(fence, start) - start);
    }

    vex::Feature& Named(const char* lateType, vex::Feature& parent, const char* alias)
    {
        vex::Feature& feature = Make(lateType, parent);
        EXPECT_EQ(feature.SetAlias(alias), S_OK);
        return feature;
    }

    /// Leaves of the new step and case what the example shows.
    void Prune()
    {
        const auto keepOnly = [](vex::Feature& parent, std::initializer_list<const char*> types) {
            std::vector<vex::Feature*> others;
            for (vex::Feature* const child : parent.Children()) {
                if (std::ranges::find(types, std::string_view(child->IsA())) == types.end()) {
                    others.push_back(child);
                }
            }
            for (vex::Feature* const other : others) {
                parent.Tree()->Delete(*other);
            }
        };
        keepOnly(*analysisCase, {"HLXHacSimHistLT", "HLXJobContainerLT"});
        keepOnly(*step->Parent(), {"HLXGeneralStaticStepLT"});
        keepOnly(*step, {"HLXLoadContainerLT", "HLXBoundaryConditionContainerLT"});
    }
};

TEST_F(DocumentedDump, IsAsDocumented)
{
    analysis.SaveAs(folder.File("loads.VEXAnalysis"));
    Prune();
    step->Set("TimePeriod", 2.5);
    VEXISpecObject_var ramp;
    ASSERT_EQ(hlxtest::Service<HLXIAmplitudeFact>("HLXAmplitudeFact")
                  ->CreateTabularAmplitude(ramp, analysis.Get()),
              S_OK);
    ASSERT_EQ(VEXIAlias_var(ramp)->SetAlias("Ramp"), S_OK);
    ASSERT_EQ(HLXIAmplitude_var(ramp)->SetData({{0, 0}, {1, 1}}), S_OK);

    for (const double size : {-9.81, 1.0}) {
        const auto gravity = vex::FaceOf<HLXIGravity>(&Named("HLXGravity", *loads, "Gravity.1"));
        VEXIParameter_var x;
        VEXIParameter_var y;
        VEXIParameter_var z;
        ASSERT_EQ(gravity->GetComponentParameters(x, y, z), S_OK);
        ASSERT_EQ(y->Valuate(size), S_OK);
        if (size < 0) {
            ASSERT_EQ(gravity->SetAmplitude(ramp), S_OK);
            ASSERT_EQ(gravity->SetUseAmplitude(1), S_OK);
        }
    }
    const auto pressure =
        vex::FaceOf<HLXIPressureLoad>(&Named("HLXPressure", *loads, "Pressure.1"));
    VEXIParameter_var size;
    ASSERT_EQ(pressure->GetPressureParameter(size), S_OK);
    ASSERT_EQ(size->Valuate(1.25), S_OK);
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    ASSERT_EQ(VEXISamAnalysisSupport_var(pressure)->AddSupport(CellOf(body, 2, 2), PartFeature(box),
                                                               "GeometrySmartConnector"),
              S_OK);
    vex::Feature& settling =
        Named("HLXDisplacementBC", *vex::FirstChildOfType(*step, "HLXBoundaryConditionContainerLT"),
              "Settling");
    settling.Set("DisplBCTrans", vex::Boxed<vex::DoubleList>({0, 0, -0.5}));
    settling.Set("u3ON", true);
    HLXIJob_var job;
    ASSERT_EQ(vex::FaceOf<HLXIJobFactory>(vex::FirstChildOfType(*analysisCase, "HLXJobContainerLT"))
                  ->CreateJob(analysis.Get(), job),
              S_OK);
    ASSERT_EQ(VEXIAlias_var(job)->SetAlias("Job-1"), S_OK);
    ASSERT_EQ(job->SetAnalysisCase(vex::FaceOf<VEXISpecObject>(analysisCase)), S_OK);

    HLXGenString text;
    ASSERT_EQ(DumpFeatureTree(vex::FaceOf<VEXINavigateObject>(model).Get(), 0, text), S_OK);
    EXPECT_EQ(text.c_str(), FirstBlock(HLX_SOURCE_DIR "/docs/tree-dump.md"));
}

}  // namespace
