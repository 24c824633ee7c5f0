// SPDX-License-Identifier: Apache-2.0
// Documents with other parts, links and steps than those in which loads and conditions are usually
// made.
#pragma once

#include "library/StaticSteps.h"

#include <tuple>

namespace hlxtest::statics {

/// Parts with faces, edges and vertices, and parts that lack some of them.
inline constexpr const char* completeParts[] = {"cylinder", "sphere", "torus", "sheets",
                                                "two_solids"};
inline constexpr const char* incompleteParts[] = {"bare_sphere", "wire_frame", "without_geometry"};

/// Of a row of a kind and a part.
inline constexpr auto nameOfKindAndPart = [](const auto& row) {
    return std::string(std::get<0>(row.param).name) + "_" + std::get<1>(row.param);
};

inline constexpr const char* noLinkedGeometry = "VEXAnalysis Document has no linked geometry!\n";
inline constexpr const char* noProductStructure =
    "Navigation through the VEXProduct structure failed! Maybe this\n"
    "VEXAnalysis document is linked with something else than a VEXProduct.\n";

/// A new step in the first case of another document.
inline VEXISpecObject_var ForeignStep(AnalysisDocument& other)
{
    VEXListValVEXBaseUnknown_var cases;
    EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, other.Get()), S_OK);
    std::string error;
    vex::Feature* const made = hlx::AddStep(dynamic_cast<vex::Feature&>(*cases[1]->GetImpl()),
                                            "HLXGeneralStaticStepLT", "Foreign", error);
    EXPECT_NE(made, nullptr) << error;
    return VEXShare<VEXBaseUnknown>(made);
}

inline void Delete(const VEXBaseUnknown_var& object)
{
    auto& feature = dynamic_cast<vex::Feature&>(*object->GetImpl());
    feature.Tree()->Delete(feature);
}

/// A fixture of loads or conditions, with other documents.
template <class Fixture>
class OtherDocuments : public Fixture
{
protected:
    using Fixture::Fixture;

    void LinkToProductWithoutChildren()
    {
        VEXDocument* const product = this->New("VEXProduct");
        const VEXUnicodeString path(this->folder.File("bare.VEXProduct"));
        ASSERT_EQ(VEXDocumentServices::SaveAs(*product, path, "", 1), S_OK);
        ASSERT_EQ(this->Links()->AddLink(product), S_OK);
    }

    VEXISpecObject_var StepThatIsGone()
    {
        const VEXISpecObject_var gone = this->AddStep(1, "HLXFrequencyStepLT", "Gone");
        Delete(gone);
        return gone;
    }

    /// What the platform tells when something is to be put on the body of a part without geometry.
    std::string ReasonWithoutGeometry(const VEXISamAnalysisSupport_var& supported)
    {
        const VEXISpecObject_var part =
            this->RootOf(this->Open(this->folder.File("without_geometry.VEXPart")));
        VEXISpecObject_var body;
        EXPECT_EQ(VEXIPartRequest_var(part)->GetMainBody("", body), S_OK);
        const Outcome platform =
            OutcomeOf([&] { return supported->AddSupport(body, part, "GeometrySmartConnector"); });
        EXPECT_EQ(platform.result, E_FAIL);
        EXPECT_NE(platform.err, "");
        return platform.err;
    }
};

}  // namespace hlxtest::statics
