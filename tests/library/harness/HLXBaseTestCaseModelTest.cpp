// SPDX-License-Identifier: Apache-2.0
// The way from the document to the analysis manager and the model, the root of the feature-tree
// dump, and the children of the root product.
#include "HLXProductUtilities.h"
#include "support/AnalysisDocuments.h"
#include "support/ExposedTestCase.h"
#include "support/Outcome.h"

#include <gtest/gtest.h>

#include <memory>

namespace hlxtest {
namespace {

class ModelTest : public testing::Test
{
protected:
    ModelTest() { testCase._Document = document.Get(); }

    VEXISamAnalysisManager_var Manager()
    {
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(OutcomeOf([&] { return testCase.GetAnalysisManager(manager); }),
                  (Outcome{0, "", ""}));
        return manager;
    }

    VEXISamAnalysisModel_var Model()
    {
        VEXListValVEXBaseUnknown_var models;
        EXPECT_EQ(Manager()->GetAllAnalysisModels(models), S_OK);
        return models[1];
    }

    /// Lets go of container and model, also of references that the platform gave along with a
    /// failure: nobody takes those, and they would outlive the document.
    void LetGo()
    {
        testCase._AnalysisContainer = nullptr;
        const VEXISamAccess_var access = VEXShare(document.Get());
        VEXIContainer* container = nullptr;
        ASSERT_EQ(access->GetSpecContainer(container), S_OK);
        while (container->Release() > 0) {
        }
        VEXISamAnalysisManager_var manager;
        ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document.Get()), S_OK);
        VEXISamAnalysisModel* model = nullptr;
        ASSERT_EQ(manager->GetCurrentAnalysisModel(model), S_OK);
        while (model->Release() > 0) {
        }
    }

    AnalysisDocument document{0};
    ExposedTestCase testCase;
};

/// One exit: what is broken, what is answered and printed.
struct Exit
{
    const char* name;
    const char* faults;
    long result;
    const char* out;
};

std::string NameOf(const testing::TestParamInfo<Exit>& row)
{
    return row.param.name;
}

constexpr const char* noAccess = "**********ERROR in getting the FEM";
constexpr const char* noSpecContainer =
    "**********ERROR in getting the Sp"
    "ec Container";
constexpr const char* noAnalysisContainer = "**********ERROR in getting the Analysis Container";
constexpr const char* noManager = "**********ERROR in getting the Analysis Manager";

// --- GetAnalysisManager
// ---------------------------------------------------------------------------

TEST_F(ModelTest, ManagerIsFoundWithoutAWordAndTheContainerIsKeptOnTheWay)
{
    VEXISamAnalysisManager_var manager;
    EXPECT_EQ(OutcomeOf([&] { return testCase.GetAnalysisManager(manager); }),
              (Outcome{S_OK, "", ""}));
    ASSERT_NE(manager, nullptr);
    EXPECT_STREQ(manager->IsA(), "VEXSamAnalysisManager");
    ASSERT_NE(testCase._AnalysisContainer, nullptr);
    EXPECT_STREQ(testCase._AnalysisContainer->IsA(), "VEXSamAnalysisContainer");
}

TEST_F(ModelTest, ManagerIsReachedStepByStep)
{
    VEXISamAnalysisManager_var manager;
    EXPECT_EQ(CallsOf([&] { testCase.GetAnalysisManager(manager); },
                      {"VEXISam", "cast:VEXAnalysisDocument->VEXISam",
                       "cast:VEXSamAnalysisContainer->VEXISam"}),
              (std::vector<std::string>{
                  "cast:VEXAnalysisDocument->VEXISamAccess(&)",
                  "VEXISamAccess::GetSpecContainer(&)",
                  "cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer(&)",
                  "VEXISamAnalysisContainer::GetAnalysisManager(&)",
              }));
}

TEST_F(ModelTest, ManagerKeepsOnlyItsOwnReferenceAndTheMembers)
{
    VEXISamAnalysisManager_var manager;
    Recording recording;
    testCase.GetAnalysisManager(manager);
    const std::map<std::string, std::int64_t> held = vex::probe::HeldObjects();
    EXPECT_EQ(held, (std::map<std::string, std::int64_t>{{"VEXSamAnalysisContainer", 1},
                                                         {"VEXSamAnalysisManager", 1}}));
    EXPECT_EQ(References(*testCase._AnalysisContainer.Get()), 1U);
    EXPECT_EQ(References(*manager.Get()), 1U);
}

class ManagerExitTest : public ModelTest, public testing::WithParamInterface<Exit>
{};

TEST_P(ManagerExitTest, ReportsWithoutAnEndOfLine)
{
    VEXISamAnalysisManager_var manager;
    EXPECT_EQ(RunWith(GetParam().faults, [&] { return testCase.GetAnalysisManager(manager); }),
              (Outcome{GetParam().result, GetParam().out, ""}));
    LetGo();
}

INSTANTIATE_TEST_SUITE_P(
    Of, ManagerExitTest,
    testing::Values(
        Exit{"NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE", E_FAIL, noAccess},
        Exit{"EmptyAccess", "cast:VEXAnalysisDocument->VEXISamAccess=null", E_FAIL, noAccess},
        Exit{"FailingFeatures", "VEXISamAccess::GetSpecContainer=E_ACCESSDENIED", E_ACCESSDENIED,
             noSpecContainer},
        Exit{"FailingFeaturesThoughGiven", "VEXISamAccess::GetSpecContainer=E_UNEXPECTED,keep",
             E_UNEXPECTED, noSpecContainer},
        Exit{"PositiveFeatures", "VEXISamAccess::GetSpecContainer=S_FALSE,keep", S_OK, ""},
        Exit{"NoFeatures", "VEXISamAccess::GetSpecContainer=null", E_FAIL, noAnalysisContainer},
        Exit{"NoContainer", "cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer=E_NOINTERFACE",
             E_FAIL, noAnalysisContainer},
        Exit{"EmptyContainer", "cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer=null",
             E_FAIL, noAnalysisContainer},
        Exit{"FailingManager", "VEXISamAnalysisContainer::GetAnalysisManager=E_ACCESSDENIED",
             E_ACCESSDENIED, noManager},
        Exit{"FailingManagerThoughGiven",
             "VEXISamAnalysisContainer::GetAnalysisManager=E_UNEXPECTED,keep", E_UNEXPECTED,
             noManager},
        Exit{"NoManager", "VEXISamAnalysisContainer::GetAnalysisManager=null", S_OK, ""},
        Exit{"PositiveManager", "VEXISamAnalysisContainer::GetAnalysisManager=S_FALSE,keep",
             S_FALSE, ""}),
    NameOf);

TEST_F(ModelTest, ManagerNeedsADocument)
{
    testCase._Document = nullptr;
    VEXISamAnalysisManager_var manager;
    EXPECT_EQ(OutcomeOf([&] { return testCase.GetAnalysisManager(manager); }),
              (Outcome{E_FAIL, noAccess, ""}));
}

TEST_F(ModelTest, ManagerNeedsAnAnalysisDocument)
{
    VEXDocument* part = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXPart", part), S_OK);
    testCase._Document = part;
    VEXISamAnalysisManager_var manager;
    EXPECT_EQ(OutcomeOf([&] { return testCase.GetAnalysisManager(manager); }),
              (Outcome{E_FAIL, noAccess, ""}));
    ASSERT_EQ(VEXDocumentServices::Remove(*part, 1), S_OK);
}

TEST_F(ModelTest, AMissingContainerIsForgottenAndItsFeaturesAreLetGo)
{
    Manager();
    ASSERT_NE(testCase._AnalysisContainer, nullptr);
    const Faults faults("cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer=E_NOINTERFACE");
    Recording recording;
    VEXISamAnalysisManager_var manager;
    Capture([&] { testCase.GetAnalysisManager(manager); });
    EXPECT_EQ(testCase._AnalysisContainer, nullptr);
    EXPECT_EQ(vex::probe::HeldObjects(), (std::map<std::string, std::int64_t>{}));
}

TEST_F(ModelTest, AFailingManagerLeavesTheContainerInItsMember)
{
    const Faults faults("VEXISamAnalysisContainer::GetAnalysisManager=E_FAIL");
    VEXISamAnalysisManager_var manager;
    Capture([&] { testCase.GetAnalysisManager(manager); });
    EXPECT_NE(testCase._AnalysisContainer, nullptr);
}

// --- GetAnalysisModel
// -----------------------------------------------------------------------------

TEST_F(ModelTest, ModelIsTheCurrentOneAndItsRawReferenceIsReleased)
{
    VEXISamAnalysisModel_var model;
    EXPECT_EQ(OutcomeOf([&] { return testCase.GetAnalysisModel(model); }), (Outcome{S_OK, "", ""}));
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(References(*model.Get()), 1U);
    EXPECT_TRUE(model == Model());
}

TEST_F(ModelTest, ModelIsAskedOfTheManager)
{
    VEXISamAnalysisModel_var model;
    EXPECT_EQ(CallsOf([&] { testCase.GetAnalysisModel(model); }, {"VEXISamAnalysisManager::"}),
              (std::vector<std::string>{"VEXISamAnalysisManager::GetCurrentAnalysisModel(&)"}));
}

TEST_F(ModelTest, ModelThatFailedThoughGivenLeavesTheHandle)
{
    VEXISamAnalysisModel_var model = Model();
    EXPECT_EQ(RunWith("VEXISamAnalysisManager::GetCurrentAnalysisModel=E_FAIL,keep",
                      [&] { return testCase.GetAnalysisModel(model); }),
              (Outcome{E_FAIL, "", ""}));
    EXPECT_NE(model, nullptr);
    model = nullptr;
    LetGo();
}

class ModelExitTest : public ModelTest, public testing::WithParamInterface<Exit>
{};

TEST_P(ModelExitTest, AnswersAndPrintsWithoutAnEndOfLine)
{
    VEXISamAnalysisModel_var model;
    EXPECT_EQ(RunWith(GetParam().faults, [&] { return testCase.GetAnalysisModel(model); }),
              (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(model != nullptr, GetParam().result >= 0);
    model = nullptr;
    LetGo();
}

INSTANTIATE_TEST_SUITE_P(
    Of, ModelExitTest,
    testing::Values(
        Exit{"NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE", E_FAIL,
             "**********ERROR in getting the FEMNo current analysis model found"},
        Exit{"FailingFeatures", "VEXISamAccess::GetSpecContainer=E_ACCESSDENIED", E_FAIL,
             "**********ERROR in getting the Sp"
             "ec ContainerNo current analysis model found"},
        Exit{"NoContainer", "cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer=null", E_FAIL,
             "**********ERROR in getting the Analysis ContainerNo current analysis model found"},
        Exit{"FailingManager", "VEXISamAnalysisContainer::GetAnalysisManager=E_ACCESSDENIED",
             E_FAIL,
             "**********ERROR in getting the Analysis ManagerNo current analysis model found"},
        Exit{"NoManager", "VEXISamAnalysisContainer::GetAnalysisManager=null", E_FAIL,
             "No current analysis model found"},
        Exit{"FailingManagerThoughGiven",
             "VEXISamAnalysisContainer::GetAnalysisManager=E_ACCESSDENIED,keep", S_OK, noManager},
        Exit{"NoModel", "VEXISamAnalysisManager::GetCurrentAnalysisModel=null", E_FAIL,
             "No current analysis model found"},
        Exit{"FailingModel", "VEXISamAnalysisManager::GetCurrentAnalysisModel=E_ACCESSDENIED",
             E_FAIL, "No current analysis model found"},
        Exit{"FailingModelThoughGiven",
             "VEXISamAnalysisManager::GetCurrentAnalysisModel=E_ACCESSDENIED,keep", E_ACCESSDENIED,
             ""},
        Exit{"PositiveModel", "VEXISamAnalysisManager::GetCurrentAnalysisModel=S_FALSE,keep",
             S_FALSE, ""}),
    NameOf);

// --- InitializeNavigateObject
// ---------------------------------------------------------------------

TEST_F(ModelTest, NavigateObjectIsTheFirstModel)
{
    const VEXISamAnalysisManager_var manager = Manager();
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeNavigateObject(manager); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(testCase._NavigateObject == Model());
}

TEST_F(ModelTest, NavigateObjectIsTheFirstOfSeveralModels)
{
    AddModel(document.Get());
    const VEXISamAnalysisManager_var manager = Manager();
    VEXListValVEXBaseUnknown_var models;
    ASSERT_EQ(manager->GetAllAnalysisModels(models), S_OK);
    ASSERT_EQ(models.Size(), 2);
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeNavigateObject(manager); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(testCase._NavigateObject == models[1]);
}

class NavigateExitTest : public ModelTest, public testing::WithParamInterface<Exit>
{};

TEST_P(NavigateExitTest, AnswersAndPrintsWithoutAnEndOfLine)
{
    const VEXISamAnalysisManager_var manager = Manager();
    EXPECT_EQ(
        RunWith(GetParam().faults, [&] { return testCase.InitializeNavigateObject(manager); }),
        (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(testCase._NavigateObject != nullptr, GetParam().result >= 0);
}

INSTANTIATE_TEST_SUITE_P(
    Of, NavigateExitTest,
    testing::Values(Exit{"FailingList",
                         "VEXISamAnalysisManager::GetAllAnalysisModels=E_ACCESSDENIED",
                         E_ACCESSDENIED, ""},
                    Exit{"FailingListThoughGiven",
                         "VEXISamAnalysisManager::GetAllAnalysisModels=E_ACCESSDENIED,keep",
                         E_ACCESSDENIED, ""},
                    Exit{"EmptyList", "VEXISamAnalysisManager::GetAllAnalysisModels=empty", E_FAIL,
                         "Navigate Object not found"},
                    Exit{"NoInterface",
                         "cast:VEXSamAnalysisModel->VEXINavigateObject=E_NOINTERFACE", E_FAIL,
                         "Navigate Object not found"},
                    Exit{"EmptyCast", "cast:VEXSamAnalysisModel->VEXINavigateObject=null", E_FAIL,
                         "Navigate Object not found"},
                    Exit{"PositiveList",
                         "VEXISamAnalysisManager::GetAllAnalysisModels=S_FALSE,keep", S_FALSE, ""}),
    NameOf);

TEST_F(ModelTest, NavigateObjectIsKeptWhenTheListingFailsAndForgottenWhenThereIsNone)
{
    const VEXISamAnalysisManager_var manager = Manager();
    ASSERT_EQ(testCase.InitializeNavigateObject(manager), S_OK);
    RunWith("VEXISamAnalysisManager::GetAllAnalysisModels=E_FAIL",
            [&] { return testCase.InitializeNavigateObject(manager); });
    EXPECT_TRUE(testCase._NavigateObject == Model());
    RunWith("VEXISamAnalysisManager::GetAllAnalysisModels=empty",
            [&] { return testCase.InitializeNavigateObject(manager); });
    EXPECT_EQ(testCase._NavigateObject, nullptr);
}

TEST_F(ModelTest, NavigateObjectOfNoManagerIsNotFound)
{
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeNavigateObject(nullptr); }),
              (Outcome{E_FAIL, "Navigate Object not found", ""}));
}

// --- GetChildren
// ----------------------------------------------------------------------------------

/// A product with two children of the wanted kind, which notes what it was asked for.
class Product : public VEXIProduct
{
public:
    VEXListValVEXBaseUnknown_var* GetChildren(const char* interfaceName) const override
    {
        asked.emplace_back(interfaceName);
        auto* const children = new VEXListValVEXBaseUnknown_var();
        children->Append(first);
        children->Append(second);
        return children;
    }
    VEXUnicodeString GetPartNumber() const override { return "Product"; }

    VEXBaseUnknown_var first = VEXAdopt(new VEXBaseUnknown());
    VEXBaseUnknown_var second = VEXAdopt(new VEXBaseUnknown());
    mutable std::vector<std::string> asked;
};

TEST_F(ModelTest, ChildrenOfTheRootProductAreItsProducts)
{
    Product& product = *new Product();
    testCase._RootProduct = VEXAdopt<VEXIProduct>(&product);
    std::unique_ptr<VEXListValVEXBaseUnknown_var> children;
    const Captured text = Capture([&] { children.reset(testCase.GetChildren()); });
    ASSERT_NE(children, nullptr);
    ASSERT_EQ(children->Size(), 2);
    EXPECT_TRUE((*children)[1] == product.first);
    EXPECT_TRUE((*children)[2] == product.second);
    EXPECT_EQ(product.asked, (std::vector<std::string>{"VEXIProduct"}));
    EXPECT_EQ(text.out + text.err, "");
}

TEST_F(ModelTest, ChildrenOfNoRootProductAreNoList)
{
    VEXListValVEXBaseUnknown_var none;
    VEXListValVEXBaseUnknown_var* children = &none;
    const Captured text = Capture([&] { children = testCase.GetChildren(); });
    EXPECT_EQ(children, nullptr);
    EXPECT_EQ(text.out + text.err, "");
}

}  // namespace
}  // namespace hlxtest
