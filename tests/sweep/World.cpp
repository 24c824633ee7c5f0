// SPDX-License-Identifier: Apache-2.0
#include "sweep/World.h"

#include "HLXProductUtilities.h"
#include "host/feature/Feature.h"
#include "product/steps/StepBuilder.h"
#include "support/AnalysisDocuments.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>

namespace hlxtest::sweep {

namespace {

void AddStepToEachCase(VEXDocument* document)
{
    VEXListValVEXBaseUnknown_var cases;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document), S_OK);
    for (int i = 1; i <= cases.Size(); ++i) {
        auto& feature = dynamic_cast<vex::Feature&>(*cases[i]->GetImpl());
        std::string error;
        ASSERT_NE(hlx::AddStep(feature, "HLXGeneralStaticStepLT", "Load up", error), nullptr)
            << error;
    }
}

VEXDocument* OpenFile(const std::string& path)
{
    VEXDocument* document = nullptr;
    EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0), S_OK);
    return document;
}

VEXBaseUnknown_var RootOf(VEXDocument* document)
{
    const VEXIDocRoots_var docRoots = VEXShare<VEXBaseUnknown>(document);
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> roots(docRoots->GetRoots());
    return (*roots)[1];
}

/// Links to product.VEXProduct in `folder`, which has one child, the part box.VEXPart.
void LinkToProduct(VEXDocument* document, const std::string& folder)
{
    std::filesystem::copy_file(HLX_BINARY_DIR "/tests/geometry/box.VEXPart",
                               folder + "/box.VEXPart");
    std::filesystem::copy_file(HLX_BINARY_DIR "/tests/geometry/box.VEXProduct",
                               folder + "/product.VEXProduct");
    VEXISamAnalysisManager_var manager;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document), S_OK);
    VEXISamDocumentManager_var links;
    ASSERT_EQ(manager->GetDocumentManager(links), S_OK);
    ASSERT_EQ(links->AddLink(OpenFile(folder + "/product.VEXProduct")), S_OK);
}

/// The folder that holds the standard document with `cases` cases. Made once a process.
const std::string& StoredDocument(int cases)
{
    static const TemporaryFolder parent;
    static std::map<int, std::string> folders;
    const auto [place, isNew] = folders.try_emplace(cases);
    if (isNew) {
        place->second = parent.File(std::to_string(cases));
        std::filesystem::create_directory(place->second);
        AnalysisDocument document(cases);
        AddStepToEachCase(document.Get());
        LinkToProduct(document.Get(), place->second);
        document.SaveAs(place->second + "/model.VEXAnalysis");
    }
    return place->second;
}

}  // namespace

World::World(const std::string& folder, int cases)
    : input(folder + "/in"),
      output(folder + "/out"),
      document(input + "/model.VEXAnalysis"),
      line{"program", input.c_str(), "model.VEXAnalysis", output.c_str(), "job.inp", "second.inp"}
{
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(output);
    std::filesystem::copy(StoredDocument(cases), input, std::filesystem::copy_options::recursive);
    test._InputFilePath = document.c_str();
    test._OutputDirectory = output.c_str();
    test._HollexFile1Path = Output("job.inp");
}

void World::Open()
{
    ASSERT_EQ(test.OpenDocument(), S_OK);
}

void World::ListCases()
{
    Open();
    ASSERT_EQ(test.InitializeAnalysisCaseFromDocument(), S_OK);
}

void World::FindTree()
{
    Open();
    VEXISamAnalysisManager_var manager;
    ASSERT_EQ(test.GetAnalysisManager(manager), S_OK);
    ASSERT_EQ(test.InitializeNavigateObject(manager), S_OK);
}

void World::MakeProduct()
{
    VEXDocument* product = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
    test._RootProduct = RootOf(product);
    ASSERT_TRUE(test._RootProduct);
}

void World::FindProduct()
{
    test._RootProduct = RootOf(OpenFile(input + "/product.VEXProduct"));
    ASSERT_TRUE(test._RootProduct);
}

void World::FindPart()
{
    test._MechanicalPart = RootOf(OpenFile(input + "/box.VEXPart"));
    ASSERT_TRUE(test._MechanicalPart);
}

void World::FindStep()
{
    Open();
    VEXListValVEXBaseUnknown_var steps;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisSets(steps, test._Document, "HLXGeneralStaticStepLT"),
              S_OK);
    step = steps[1];
    ASSERT_TRUE(step);
}

}  // namespace hlxtest::sweep
