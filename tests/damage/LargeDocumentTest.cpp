// SPDX-License-Identifier: Apache-2.0
// A chain of 100,000 features and a fan of a million: opened, walked, dumped, saved and removed
// through the platform, within the limits of any other document.
#include "DocumentContents.h"
#include "HLXProductUtilities.h"
#include "LimitedChild.h"
#include "VEXDocumentServices.h"
#include "host/feature/DocumentSession.h"
#include "support/AnalysisDocuments.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include <sys/resource.h>

namespace {

using namespace damagetest;

constexpr std::size_t kChain = 100'000;
constexpr std::size_t kFan = 1'000'000;
constexpr rlim_t kLittleMemory = rlim_t{160} << 20U;

/// The model.
vex::Feature& Hub(VEXDocument* document)
{
    const vex::Feature& container = *vex::Document::From(document)->SpecContainer();
    return *container.Children().front()->Children().front();
}

/// Stores an analysis document with what `add` puts below its container.
int Store(const std::string& path, const std::function<void(vex::Feature& hub)>& add)
{
    hlxtest::AnalysisDocument document(0);
    add(Hub(document.Get()));
    return VEXDocumentServices::SaveAs(*document.Get(), VEXUnicodeString(path), "", 1) == S_OK ? 0
                                                                                               : 1;
}

void AddFan(vex::Feature& hub)
{
    const vex::LateType& type = vex::LateTypes::Instance().Require("HLXPressure");
    for (std::size_t i = 0; i < kFan; ++i) {
        hub.Tree()->Create(type, &hub);
    }
}

int Fault(const char* what)
{
    std::fprintf(stderr, "%s\n", what);
    return 1;
}

/// Opens the document, walks and dumps all of it, saves it under another path, removes it.
int Use(const std::string& path, const std::string& copy, std::size_t features)
{
    VEXDocument* document = nullptr;
    if (FAILED(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0))) {
        return Fault("not opened");
    }
    {
        VEXIContainer* container = nullptr;
        const VEXIContainerOfDocument_var containers = VEXShare(document);
        if (FAILED(containers->GetSpecContainer(container))) {
            return Fault("no container");
        }
        const VEXIContainer_var held = VEXAdopt(container);
        const std::unique_ptr<VEXListValVEXBaseUnknown_var> members(
            held->ListMembers("VEXISpecObject"));
        if (members == nullptr || static_cast<std::size_t>(members->Size()) < features) {
            return Fault("not all walked");
        }
    }
    HLXGenString dump;
    const auto root = vex::FaceOf<VEXINavigateObject>(&Hub(document));
    if (!root || FAILED(DumpFeatureTree(root.Get(), 0, dump))) {
        return Fault("not dumped");
    }
    const auto lines =
        static_cast<std::size_t>(std::count(dump.c_str(), dump.c_str() + dump.Length(), '\n'));
    if (lines < features) {
        return Fault("not all dumped");
    }
    // A change, or the file would be copied.
    Hub(document).SetAlias(Hub(document).Alias());
    if (FAILED(VEXDocumentServices::SaveAs(*document, VEXUnicodeString(copy), "", 1))) {
        return Fault("not saved");
    }
    return FAILED(VEXDocumentServices::Remove(*document, 0)) ? Fault("not removed") : 0;
}

class LargeDocument : public testing::Test
{
protected:
    void ExpectUsable(std::size_t features, const std::function<void(vex::Feature& hub)>& add)
    {
        const ChildEnd stored = RunLimited([&] { return Store(path, add); });
        ASSERT_EQ(stored.code, 0) << testing::PrintToString(stored);
        const ChildEnd used = RunLimited([&] { return Use(path, copy, features); });
        EXPECT_EQ(used.code, 0) << testing::PrintToString(used);
        EXPECT_EQ(used.err, "");
        EXPECT_TRUE(hlxtest::ReadFile(copy) == hlxtest::ReadFile(path)) << "the copy differs";
        std::printf(
            "built and stored in %.2f s; opened, walked, dumped, stored, removed in %.2f "
            "s, %ld MiB\n",
            stored.seconds, used.seconds, used.kibibytes / 1024);
    }

    hlxtest::TemporaryFolder folder;
    std::string path = folder.File("large.VEXAnalysis");
    std::string copy = folder.File("copy.VEXAnalysis");
};

TEST_F(LargeDocument, AChainOf100000Features)
{
    ExpectUsable(kChain, [](vex::Feature& hub) {
        const vex::LateType& type = vex::LateTypes::Instance().Require("HLXPressure");
        vex::Feature* bottom = &hub;
        for (std::size_t i = 0; i < kChain; ++i) {
            bottom = &hub.Tree()->Create(type, bottom);
        }
    });
}

TEST_F(LargeDocument, AFanOfAMillionFeatures)
{
    ExpectUsable(kFan, AddFan);
}

TEST_F(LargeDocument, OneThatDoesNotFitIntoMemoryIsRefusedAndTheNextOneOpens)
{
    if (kSanitized) {
        GTEST_SKIP() << "a sanitizer ends a program that runs out of memory";
    }
    const std::string small = folder.File("small.VEXAnalysis");
    hlxtest::StoreAnalysisDocument(small, 1);
    ASSERT_EQ(RunLimited([&] { return Store(path, AddFan); }).code, 0);
    const ChildEnd end = RunLimited([&] {
        const rlimit limit{kLittleMemory, kLittleMemory};
        setrlimit(RLIMIT_AS, &limit);
        VEXDocument* document = nullptr;
        if (VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0) != E_FAIL ||
            document != nullptr) {
            return Fault("not refused");
        }
        return VEXDocumentServices::OpenDocument(VEXUnicodeString(small), document, 0) == S_OK
                   ? 0
                   : Fault("the next one is not opened");
    });
    EXPECT_EQ(end.code, 0) << testing::PrintToString(end);
    EXPECT_EQ(end.err, "vex: '" + path +
                           "': there is not enough memory for it. Remove other documents and try "
                           "again.\n");
}

}  // namespace
