// SPDX-License-Identifier: Apache-2.0
// An analysis document with cases, and the writer as a program gets it.
#pragma once

#include "HLXIIfwTraverser.h"
#include "HLXIZPKWBGeneralSettingAtt.h"
#include "HLXProductUtilities.h"
#include "VEXComponents.h"
#include "host/feature/DocumentSession.h"
#include "support/AnalysisDocuments.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace hlxtest {

class InputFileTest : public testing::Test
{
protected:
    /// Puts the option "write flat input file" in force; the tests start structured.
    static void SetFlat(bool flat)
    {
        void* object = nullptr;
        ASSERT_EQ(GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, &object), S_OK);
        const auto settings = VEXAdopt(static_cast<HLXIZPKWBGeneralSettingAtt*>(object));
        ASSERT_EQ(settings->SetWriteFlatInputFileFlag(flat ? 1 : 0), S_OK);
    }

    InputFileTest() { SetFlat(false); }

    /// Case `number` (from 1) of the document as an entry of a list, and as a feature.
    VEXBaseUnknown_var Entry(int number)
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document.Get()), S_OK);
        return cases[number];
    }
    vex::Feature& Case(int number)
    {
        return dynamic_cast<vex::Feature&>(*Entry(number)->GetImpl());
    }
    vex::Feature& Model() { return *Case(1).Parent(); }

    static vex::Feature& Make(const char* type, vex::Feature& parent, std::string_view alias = {})
    {
        vex::Feature& feature =
            parent.Tree()->Create(vex::LateTypes::Instance().Require(type), &parent);
        if (!alias.empty()) {
            EXPECT_EQ(feature.SetAlias(alias), S_OK);
        }
        return feature;
    }

    HRESULT Write(const std::string& path, const std::vector<VEXBaseUnknown_var>& entries)
    {
        VEXListValVEXBaseUnknown_var list;
        for (const VEXBaseUnknown_var& entry : entries) {
            list.Append(entry);
        }
        VEXBaseUnknown* const writer =
            VEXCreateExternalObject("HLXIfwTraverser", nullptr, "HLXIfwExportTraverser", nullptr);
        if (writer == nullptr) {
            ADD_FAILURE() << "the writer cannot be made";
            return E_UNEXPECTED;
        }
        const HLXIIfwTraverser_var traverser = VEXShare(writer);
        HRESULT result = E_UNEXPECTED;
        const Captured captured =
            Capture([&] { result = traverser->WriteInputFile(VEXUnicodeString(path), list); });
        EXPECT_EQ(captured.out, "");
        said = captured.err;
        return result;
    }

    /// The text of an input file of these cases.
    std::string Text(const std::vector<int>& numbers = {1})
    {
        std::vector<VEXBaseUnknown_var> entries;
        for (const int number : numbers) {
            entries.push_back(Entry(number));
        }
        const std::string path = folder.File("case.inp");
        EXPECT_EQ(Write(path, entries), S_OK);
        EXPECT_EQ(said, "");
        return ReadFile(path);
    }

    /// What the text says between two of its comments ("** model" to "** cases"), without them.
    static std::string Between(const std::string& text, const std::string& from,
                               const std::string& to)
    {
        const std::size_t begin = text.find(from + "\n");
        const std::size_t end = text.find(to + "\n");
        EXPECT_TRUE(begin < end && end != std::string::npos) << text;
        return begin < end && end != std::string::npos
                   ? text.substr(begin + from.size() + 1, end - begin - from.size() - 1)
                   : "";
    }

    TemporaryFolder folder;
    AnalysisDocument document{2};
    std::string said;  ///< on standard error by the last Write
};

}  // namespace hlxtest
