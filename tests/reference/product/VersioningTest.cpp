// SPDX-License-Identifier: Apache-2.0
// Upgrades of older documents, with steps of the test's own.
#include "product/versioning/VersionSteps.h"
#include "reference/analysis/AnalysisFixture.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

namespace {

using hlx::VersionStep;
using hlx::VersionSteps;

/// A step that is in the list as long as the object lives.
class ScopedStep
{
public:
    explicit ScopedStep(const VersionStep& step) : _from(step.from)
    {
        EXPECT_TRUE(VersionSteps::Instance().Add(step));
    }
    ~ScopedStep() { VersionSteps::Instance().Remove(_from); }
    ScopedStep(const ScopedStep&) = delete;
    ScopedStep& operator=(const ScopedStep&) = delete;

private:
    unsigned _from;
};

HRESULT Mark(vex::Document& document, const char* mark)
{
    vex::Feature& model = *vex::AnalysisManagerOf(document)->Target("CurrentModel");
    return model.SetAlias(std::string(model.Alias()) + mark);
}

HRESULT MarkOne(vex::Document& document)
{
    return Mark(document, "+1");
}

HRESULT MarkTwo(vex::Document& document)
{
    return Mark(document, "+2");
}

HRESULT Fail(vex::Document&)
{
    return E_ACCESSDENIED;
}

class Versioning : public hlxtest::AnalysisTest
{
protected:
    void StoreAndOpen()
    {
        path = folder.File("a.VEXAnalysis");
        document.SaveAs(path);
        ASSERT_EQ(VEXDocumentServices::Remove(*document.Release(), 1), S_OK);
        ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document.Get(), 0),
                  S_OK);
    }

    /// Result and what was told.
    std::pair<HRESULT, std::string> Handle(int mode)
    {
        HRESULT result = S_OK;
        const hlxtest::Captured captured = hlxtest::Capture(
            [&] { result = HLXZPKVersionManager::HandleZPKVersioning(document.Get(), mode); });
        EXPECT_EQ(captured.out, "");
        return {result, captured.err};
    }

    std::string ModelName() { return hlxtest::AliasOf(Model()); }
    unsigned Version() { return vex::Document::From(document.Get())->DataVersion(); }

    hlxtest::TemporaryFolder folder;
    std::string path;
};

using Outcome = std::pair<HRESULT, std::string>;

TEST_F(Versioning, LeavesCurrentDocumentsAsTheyAre)
{
    EXPECT_EQ(Handle(1), Outcome(S_OK, ""));
    StoreAndOpen();
    EXPECT_EQ(Handle(1), Outcome(S_OK, ""));
    EXPECT_EQ(ModelName(), "Finite Element Model.1");
    EXPECT_EQ(Version(), 1U);
}

TEST_F(Versioning, RunsTheStepsInOrderAndOnce)
{
    const ScopedStep two({2, "adds two", MarkTwo});
    const ScopedStep one({1, "adds one", MarkOne});
    StoreAndOpen();
    EXPECT_EQ(Handle(1), Outcome(S_OK, "vex: document \"" + path +
                                           "\": data version 1 to 2: adds one\nvex: document \"" +
                                           path + "\": data version 2 to 3: adds two\n"));
    EXPECT_EQ(ModelName(), "Finite Element Model.1+1+2");
    EXPECT_EQ(Version(), 3U);
    EXPECT_EQ(Handle(1), Outcome(S_OK, ""));
    EXPECT_EQ(ModelName(), "Finite Element Model.1+1+2");
}

TEST_F(Versioning, WhatCouldNotBeOpenedAgainIsNotSaved)
{
    const ScopedStep one({1, "adds one", MarkOne});
    StoreAndOpen();
    const std::string before = hlxtest::ReadFile(path);
    EXPECT_EQ(Handle(0), Outcome(S_OK, ""));
    const hlxtest::Captured captured =
        hlxtest::Capture([&] { EXPECT_EQ(VEXDocumentServices::Save(*document.Get()), E_FAIL); });
    EXPECT_NE(captured.err.find(path), std::string::npos) << captured.err;
    EXPECT_NE(captured.err.find("its data version 2 is newer than 1"), std::string::npos)
        << captured.err;
    EXPECT_EQ(hlxtest::ReadFile(path), before);
}

TEST_F(Versioning, IsQuietInModeZero)
{
    const ScopedStep one({1, "adds one", MarkOne});
    StoreAndOpen();
    EXPECT_EQ(Handle(0), Outcome(S_OK, ""));
    EXPECT_EQ(ModelName(), "Finite Element Model.1+1");
}

TEST_F(Versioning, StopsAtAFailingStepAndGoesOnThere)
{
    const ScopedStep one({1, "adds one", MarkOne});
    StoreAndOpen();
    {
        const ScopedStep failing({2, "cannot", Fail});
        EXPECT_EQ(Handle(0), Outcome(E_ACCESSDENIED, "vex: document \"" + path +
                                                         "\": upgrade from data version 2 failed: "
                                                         "cannot\n"));
    }
    EXPECT_EQ(Version(), 2U);
    const ScopedStep two({2, "adds two", MarkTwo});
    EXPECT_EQ(Handle(0), Outcome(S_OK, ""));
    EXPECT_EQ(ModelName(), "Finite Element Model.1+1+2");
}

TEST_F(Versioning, SaysWhenAStepIsMissing)
{
    const ScopedStep two({2, "adds two", MarkTwo});
    StoreAndOpen();
    EXPECT_EQ(Handle(0),
              Outcome(E_FAIL, "vex: document \"" + path +
                                  "\": nothing upgrades data version 1; open and store it with the "
                                  "release before this one\n"));
    EXPECT_EQ(Version(), 1U);
}

TEST_F(Versioning, RefusesASecondStepFromAVersion)
{
    const ScopedStep one({1, "adds one", MarkOne});
    EXPECT_FALSE(VersionSteps::Instance().Add({1, "adds two", MarkTwo}));
}

TEST_F(Versioning, RefusesWhatIsNoOpenAnalysisDocument)
{
    EXPECT_EQ(HLXZPKVersionManager::HandleZPKVersioning(nullptr, 0), E_INVALIDARG);
    VEXDocument* part = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXPart", part), S_OK);
    EXPECT_EQ(HLXZPKVersionManager::HandleZPKVersioning(part, 0), E_INVALIDARG);
    EXPECT_EQ(VEXDocumentServices::Remove(*part, 1), S_OK);
}

}  // namespace
