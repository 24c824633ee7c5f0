// SPDX-License-Identifier: Apache-2.0
// An analysis document linked to documents with geometry, the platform's own way through them to
// compare with, and what an operation leaves held.
#pragma once

#include "HLXAnalysisTestUtils.h"
#include "HLXProductUtilities.h"
#include "VEXDocumentServices.h"
#include "host/feature/DocumentSession.h"
#include "support/AnalysisDocuments.h"
#include "support/GeometrySpecimens.h"
#include "support/Outcome.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace hlxtest::statics {

using HeldCounts = std::map<std::string, std::int64_t>;

/// What `operation` leaves held, by class or late type.
template <class Operation>
HeldCounts HeldAfter(Operation operation)
{
    Recording recording;
    operation();
    return vex::probe::HeldObjects();
}

/// The same while faults are in force; what it writes is not looked at.
template <class Operation>
HeldCounts HeldAfter(std::string_view faults, Operation operation)
{
    return HeldAfter([&] { RunWith(faults, operation); });
}

/// Whether faults make the platform fail and give a counted reference all the same: nobody takes
/// it.
inline bool GiveToNobody(std::string_view faults)
{
    return faults.find("=E_") != faults.npos && faults.ends_with(",keep") &&
           (faults.starts_with("cast:") || faults.find("Container=") != faults.npos);
}

/// One exit: what is broken, what is answered and printed.
struct Exit
{
    const char* name;
    const char* faults;
    long result;
    const char* out;

    friend void PrintTo(const Exit& row, std::ostream* stream) { *stream << row.faults; }
};

inline std::string NameOf(const testing::TestParamInfo<Exit>& row)
{
    return row.param.name;
}

/// At its end every document can be removed, and none is left.
class StaticNavigation : public testing::Test
{
protected:
    StaticNavigation() = default;

    ~StaticNavigation() override
    {
        for (VEXDocument* const document : _opened) {
            EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
        }
        if (analysis.Get() != nullptr) {
            EXPECT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
        }
        EXPECT_TRUE(vex::DocumentSession::Instance().Documents().empty());
    }

    VEXDocument* Open(const std::string& path)
    {
        VEXDocument* document = nullptr;
        EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0), S_OK);
        if (std::ranges::find(_opened, document) == _opened.end()) {
            _opened.push_back(document);
        }
        return document;
    }

    VEXDocument* New(const char* type)
    {
        VEXDocument* document = nullptr;
        EXPECT_EQ(VEXDocumentServices::New(type, document), S_OK);
        _opened.push_back(document);
        return document;
    }

    /// Removes a document that was opened here.
    void Forget(VEXDocument* document)
    {
        ASSERT_EQ(std::erase(_opened, document), 1U);
        ASSERT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
    }

    VEXISamAnalysisManager_var Manager()
    {
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, analysis.Get()), S_OK);
        return manager;
    }

    VEXISamDocumentManager_var Links()
    {
        VEXISamDocumentManager_var links;
        EXPECT_EQ(Manager()->GetDocumentManager(links), S_OK);
        return links;
    }

    /// Opens the document at `path` and links the analysis document to it.
    VEXDocument* Link(const std::string& path)
    {
        VEXDocument* const document = Open(path);
        EXPECT_EQ(Links()->AddLink(document), S_OK);
        return document;
    }

    /// The first object that stands in a product or part document.
    static VEXBaseUnknown_var RootOf(VEXDocument* document)
    {
        const VEXIDocRoots_var docRoots = VEXShare<VEXBaseUnknown>(document);
        const std::unique_ptr<VEXListValVEXBaseUnknown_var> roots(docRoots->GetRoots());
        return roots == nullptr ? VEXBaseUnknown_var() : (*roots)[1];
    }

    /// Lets go of references that the platform gave along with a failure: nobody takes those, and
    /// they would outlive the document. No handle to `object` may be left.
    template <class Interface>
    static void LetGo(VEXVar<Interface> object)
    {
        const VEXBaseUnknown* const component = object.Detach();
        while (component->Release() > 0) {
        }
    }

    TemporaryFolder folder;
    AnalysisDocument analysis{1};

private:
    std::vector<VEXDocument*> _opened;
};

}  // namespace hlxtest::statics
