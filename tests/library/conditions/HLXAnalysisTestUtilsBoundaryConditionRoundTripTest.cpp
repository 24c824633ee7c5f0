// SPDX-License-Identifier: Apache-2.0
// Displacement, velocity and clamp in a document that is saved and opened again: the same values,
// the same supports, the same tree.
#include "library/conditions/BoundaryConditionKinds.h"

namespace hlxtest::statics {
namespace {

class ConditionRoundTripTest : public BoundaryConditionStateTest
{
protected:
    /// The step that the document's case has behind its initial one.
    VEXISamAnalysisSet_var Step()
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Get()), S_OK);
        VEXListValVEXBaseUnknown_var sets;
        EXPECT_EQ(VEXISamAnalysisCase_var(cases[1])->GetAnalysisSets(sets), S_OK);
        return sets[2];
    }

    std::string Tree()
    {
        HLXGenString text;
        const VEXINavigateObject_var root = Model();
        EXPECT_EQ(DumpFeatureTree(root.Get(), 0, text), S_OK);
        return text.c_str();
    }

    void Reopen(const std::string& path)
    {
        analysis.SaveAs(path);
        ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
        Forget(Open(folder.File("box.VEXProduct")));
        Forget(Open(folder.File("box.VEXPart")));
        ASSERT_TRUE(vex::DocumentSession::Instance().Documents().empty());
        ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), analysis.Get(), 0),
                  S_OK);
    }
};

TEST_F(ConditionRoundTripTest, EverythingIsTheSameInADocumentOpenedAgain)
{
    for (const ConditionKind& kind : kAllConditions) {
        EXPECT_EQ(Create(kind.create), (Outcome{S_OK, "", ""})) << kind.name;
    }
    EXPECT_EQ(HLXAnalysisTestUtils::CreateDispBC(analysis.Get(), "", 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,
                                                 1, 1, 1, load, step),
              S_OK);
    const std::vector<std::string> typed{
        kDisplacement.Whole(), kVelocity.Whole(), kClamp.Whole(),
        "HLXDisplacementBC: 0 0 0 0 0 0, 111111 fixed subroutine used on face 1 of box.VEXPart, "
        "GeometrySmartConnector"};
    EXPECT_EQ(TextsIn(step), typed);
    const std::string tree = Tree();
    load.Reset();
    step.Reset();
    Reopen(folder.File("model.VEXAnalysis"));
    EXPECT_EQ(TextsIn(Step()), typed);
    EXPECT_EQ(Tree(), tree);
}

}  // namespace
}  // namespace hlxtest::statics
