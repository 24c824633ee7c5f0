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

void LinkToProduct(VEXDocument* document, const std::string& path)
{
    VEXDocument* product = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
    ASSERT_EQ(VEXDocumentServices::SaveAs(*product, VEXUnicodeString(path), "", 1), S_OK);
    VEXISamAnalysisManager_var manager;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document), S_OK);
    VEXISamDocumentManager_var links;
    ASSERT_EQ(manager->GetDocumentManager(links), S_OK);
    ASSERT_EQ(links->AddLink(product), S_OK);
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
        LinkToProduct(document.Get(), place->second + "/product.VEXProduct");
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
    const VEXIDocRoots_var docRoots = VEXShare(product);
    VEXListValVEXBaseUnknown_var* const roots = docRoots->GetRoots();
    ASSERT_NE(roots, nullptr);
    test._RootProduct = (*roots)[1];
    delete roots;
    ASSERT_TRUE(test._RootProduct);
}

}  // namespace hlxtest::sweep
