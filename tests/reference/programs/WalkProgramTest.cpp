// SPDX-License-Identifier: Apache-2.0
// The example that walks from an analysis document to a part's cells, run as a user does.
#include "HLXProductUtilities.h"
#include "support/AnalysisDocuments.h"
#include "support/ChildProgram.h"
#include "support/GeometrySpecimens.h"

#include <gmock/gmock.h>

namespace {

using hlxtest::Ended;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class WalkProgram : public testing::Test
{
protected:
    static Ended Walk(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), hlxtest::Program("walk"));
        return hlxtest::RunProgram(arguments);
    }

    /// An analysis document that is linked to `target`; an empty one: to none.
    std::string AnalysisOf(const std::string& target)
    {
        hlxtest::AnalysisDocument analysis(0);
        if (!target.empty()) {
            VEXDocument* document = nullptr;
            EXPECT_EQ(VEXDocumentServices::OpenDocument(target.c_str(), document, 0), S_OK);
            VEXISamAnalysisManager_var manager;
            EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, analysis.Get()), S_OK);
            VEXISamDocumentManager_var links;
            EXPECT_EQ(manager->GetDocumentManager(links), S_OK);
            EXPECT_EQ(links->AddLink(document), S_OK);
            EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
        }
        analysis.SaveAs(folder.File("a.VEXAnalysis"));
        return folder.File("a.VEXAnalysis");
    }

    hlxtest::TemporaryFolder folder;
};

TEST_F(WalkProgram, PrintsALineForEachCell)
{
    const Ended ended = Walk({AnalysisOf(hlxtest::ProductSpecimen(folder, "wire_frame"))});
    EXPECT_EQ(ended.code, 0) << ended.err;
    EXPECT_THAT(ended.err, IsEmpty());
    EXPECT_THAT(ended.out, AllOf(StartsWith("edge 1 line 3 mm\nedge 2 line 5 mm\n"
                                            "edge 3 line 4 mm\nedge 4 circle 12.56637"),
                                 HasSubstr(" mm\nvertex 1 vertex\nvertex 2 vertex\n"),
                                 EndsWith("\nvertex 5 vertex\n")));
}

TEST_F(WalkProgram, TellsSizesInTheirUnits)
{
    const Ended ended = Walk({AnalysisOf(hlxtest::ProductSpecimen(folder, "box"))});
    EXPECT_EQ(ended.code, 0) << ended.err;
    EXPECT_THAT(ended.out, AllOf(StartsWith("volume 1 solid "), HasSubstr(" mm^3\nface 1 plane "),
                                 HasSubstr(" mm^2\nface 2 plane "), HasSubstr("edge 12 line ")));
}

TEST_F(WalkProgram, RefusesABadCommandLine)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, std::vector<std::string>{"a", "b"}}) {
        const Ended ended = Walk(arguments);
        EXPECT_EQ(ended.code, 1);
        EXPECT_THAT(ended.out, IsEmpty());
        EXPECT_EQ(ended.err, "usage: walk DOCUMENT.VEXAnalysis\n");
    }
}

TEST_F(WalkProgram, SaysWhyNoPartCanBeReached)
{
    hlxtest::WriteFile(folder.File("text.VEXAnalysis"), "no document");
    const std::pair<std::string, const char*> documents[] = {
        {folder.File("missing.VEXAnalysis"), ""},
        {folder.File("text.VEXAnalysis"), ""},
        {hlxtest::ProductSpecimen(folder, "box"), "**********ERROR in getting the FEM\n"},
        {AnalysisOf(""), "VEXAnalysis Document has no linked geometry!\n"}};
    for (const auto& [path, said] : documents) {
        const Ended ended = Walk({path});
        EXPECT_EQ(ended.code, 1) << path;
        EXPECT_EQ(ended.out, said);
        EXPECT_THAT(ended.err,
                    HasSubstr("walk: " + path + ": no part with a shape can be reached from it"));
    }
    const Ended shapeless =
        Walk({AnalysisOf(hlxtest::ProductSpecimen(folder, "without_geometry"))});
    EXPECT_EQ(shapeless.code, 1);
    EXPECT_THAT(shapeless.out, IsEmpty());
    EXPECT_THAT(shapeless.err, HasSubstr("no part with a shape can be reached from it"));
}

}  // namespace
