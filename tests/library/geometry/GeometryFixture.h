// SPDX-License-Identifier: Apache-2.0
// A test case on an analysis document that is linked to documents with geometry, and the messages
// on the way from it to the cells of a part. Nothing may be held when a test has ended.
#pragma once

#include "HLXProductUtilities.h"
#include "VEXDocumentServices.h"
#include "VEXMechanicalPart.h"
#include "host/feature/DocumentSession.h"
#include "support/AnalysisDocuments.h"
#include "support/ExposedTestCase.h"
#include "support/GeometrySpecimens.h"
#include "support/Outcome.h"

#include <gmock/gmock.h>

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace hlxtest {

// --- Messages -----------------------------------------------------------------------------------

inline const std::string kNoDocumentManager = "***ERROR Could not get document manager";
inline const std::string kNoLinkedGeometry =
    "***ERROR VEXAnalysis Document has no linked geometry!";
inline const std::string kInvalidDocument = "***ERROR Analysis document is invalid";
inline const std::string kNoRootDocuments = "Could not get Root documents";
inline const std::string kNoProduct = "Could not find a Product inside the document";
inline const std::string kNoChildren = "Found no children";
inline const std::string kNoNavigation =
    "Navigation through the VEXProduct structure failed!"
    "                                                            "
    "Maybe this\n VEXAnalysis document is linked with"
    "                                                            "
    "something else than a VEXProduct.endl";
inline const std::string kNoPart = "Could not get the VEXPart";
inline const std::string kNoPartDocument = "Part Document not found";
inline const std::string kNoDocumentContainers =
    "Cannot find interface VEXIContainerOfDocument on VEXPart";
inline const std::string kNoSpecContainer = "Cannot Retrieve Spec container for the part";
inline const std::string kNoPrtContainer = "Cannot get interface VEXIPrtContainer!";
inline const std::string kNoMechanicalPart = "Cannot get MechanicalPart feature";
inline const std::string kNoPartRequest = "Cannot get VEXIPartRequest for MechanicalPart feature";
inline const std::string kNoMainBody = "Cannot retrieve MainBody";
inline const std::string kNoMechanicalTool = "Cannot get VEXIMechanicalTool";
inline const std::string kNoLastShape = "Could not get last shaped Object";
inline const std::string kNoElement = "Could not get the Geometrical Element";
inline const std::string kNoBRepContainer = "Could not get container for bReps.";
inline const std::string kNoBody = "Cannot get the Body!";
inline const std::string kNoCells = "Cannot get the cells of the body!";

/// What follows when there is no container to begin with.
inline const std::string kNoMechanicalPartAtAll =
    kNoSpecContainer + kNoPrtContainer + kNoMechanicalPart;

/// One exit: what is broken, what is answered and printed.
struct GeometryExit
{
    const char* name;
    const char* faults;
    long result;
    std::string out;

    friend void PrintTo(const GeometryExit& row, std::ostream* stream) { *stream << row.faults; }
};

inline std::string NameOfExit(const testing::TestParamInfo<GeometryExit>& row)
{
    return row.param.name;
}

using Cells = std::vector<VEXCell*>;

inline Cells CellsIn(const VEXListPtrVEXCell& list)
{
    Cells cells;
    for (int i = 1; i <= list.Size(); ++i) {
        cells.push_back(list[i]);
    }
    return cells;
}

// --- Fixture ------------------------------------------------------------------------------------

class GeometryTest : public testing::Test
{
protected:
    using Held = std::map<std::string, std::int64_t>;

    GeometryTest() { testCase._Document = document.Get(); }

    void TearDown() override
    {
        owned.reset();
        document.Release();
        const auto& documents = vex::DocumentSession::Instance().Documents();
        while (!documents.empty()) {
            ASSERT_EQ(VEXDocumentServices::Remove(*documents.back()->AsVEXDocument(), 1), S_OK);
        }
    }

    static VEXDocument* Open(const std::string& path)
    {
        VEXDocument* opened = nullptr;
        EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), opened, 0), S_OK);
        return opened;
    }

    VEXISamAnalysisManager_var Manager()
    {
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document.Get()), S_OK);
        return manager;
    }

    /// Links the analysis document to a stored one.
    void Link(const std::string& path)
    {
        VEXISamDocumentManager_var links;
        ASSERT_EQ(Manager()->GetDocumentManager(links), S_OK);
        ASSERT_EQ(links->AddLink(Open(path)), S_OK);
    }

    /// Links to a product with one part and finds its root.
    void BeginWith(const std::string& productPath)
    {
        Link(productPath);
        ASSERT_EQ(OutcomeOf([&] { return testCase.InitializeRootProduct(Manager()); }),
                  (Outcome{S_OK, "", ""}));
        ASSERT_NE(testCase._RootProduct, nullptr);
    }
    void BeginWithProduct(const char* name) { BeginWith(ProductSpecimen(folder, name)); }

    /// The same, on to the body.
    void BeginWithBody(const char* name)
    {
        BeginWithProduct(name);
        ASSERT_EQ(OutcomeOf([&] { return testCase.InitializeBody(); }), (Outcome{S_OK, "", ""}));
        ASSERT_NE(testCase._Body, nullptr);
    }

    /// The name under which a feature is shown.
    static std::string AliasOf(const VEXBaseUnknown_var& feature)
    {
        const VEXIAlias_var alias = feature;
        return alias ? std::string(alias->GetAlias().View()) : "(none)";
    }

    std::string NameOf(VEXDocument* opened) const
    {
        return opened == nullptr
                   ? "(none)"
                   : std::string(opened->StorageName().View()).substr(folder.Path().size() + 1);
    }

    /// Take away references that the platform gave along with a failure: nobody else does.
    static void LetGo(const VEXBaseUnknown& feature) { LetGoDownTo(0, feature); }
    static void LetGoOfDocument(const std::string& path)
    {
        LetGoDownTo(1, *Open(path));  // the session's own
    }

    TemporaryFolder folder;
    AnalysisDocument document{0};
    std::unique_ptr<ExposedTestCase> owned = std::make_unique<ExposedTestCase>();
    ExposedTestCase& testCase = *owned;

private:
    static void LetGoDownTo(unsigned long others, const VEXBaseUnknown& object)
    {
        object.AddRef();
        while (object.Release() > others) {
        }
    }
};

/// Records from the beginning, to see that nothing is held in the end.
class WatchedGeometryTest : public GeometryTest
{
protected:
    void TearDown() override
    {
        GeometryTest::TearDown();
        EXPECT_EQ(vex::probe::HeldObjects(), Held{});
    }

    Recording watch;
};

}  // namespace hlxtest
