// SPDX-License-Identifier: Apache-2.0
// The way from a product to its mechanical part, what it prints, and where it should lead.
#pragma once

#include "VEXMechanicalPart.h"
#include "library/StaticNavigation.h"

namespace hlxtest::statics {

inline constexpr const char* noStructure =
    "Navigation through the VEXProduct structure failed! Maybe this\n"
    "VEXAnalysis document is linked with something else than a VEXProduct.\n";
inline constexpr const char* noPart = "Could not get the VEXPart\n";
inline constexpr const char* noContainers =
    "Cannot find interface VEXIContainerOfDocument on VEXPart\n";
inline constexpr const char* noFeatures =
    "Cannot Retrieve Sp"
    "ec container\n";
inline constexpr const char* noPartContainer = "Cannot get interface VEXIPrtContainer!\n";
inline constexpr const char* noMechanicalPart = "Cannot get MechanicalPart feature\n";

/// What a part document holds, found by asking the platform.
struct PartDocument
{
    explicit PartDocument(VEXDocument* document)
    {
        const VEXIContainerOfDocument_var containers = VEXShare<VEXBaseUnknown>(document);
        VEXIContainer* container = nullptr;
        EXPECT_EQ(containers->GetSpecContainer(container), S_OK);
        features = VEXAdopt(container);
        EXPECT_EQ(containers->GetBRepContainer(container), S_OK);
        accesses = VEXAdopt(container);
        part = VEXIPrtContainer_var(features)->GetMechanicalPart();
    }

    VEXIContainer_var features;
    VEXIContainer_var accesses;
    VEXISpecObject_var part;
};

class StaticPartTest : public StaticNavigation
{
protected:
    ~StaticPartTest() override { ReleaseContainer(); }

    Outcome Find(std::string_view faults = "")
    {
        return RunWith(faults, [&] {
            return HLXAnalysisTestUtils::GetMechPartFeatFromProductDoc(product, part, link,
                                                                       container);
        });
    }

    void ReleaseContainer()
    {
        if (VEXIContainer* const held = std::exchange(container, nullptr); held != nullptr) {
            held->Release();
        }
    }

    void ExpectPartOf(const PartDocument& document)
    {
        EXPECT_TRUE(part && part == document.part);
        EXPECT_TRUE(link && link == document.part);
        EXPECT_TRUE(container != nullptr && VEXShare(container) == document.accesses);
        EXPECT_FALSE(VEXShare(container) == document.features);
    }

    VEXIProduct_var product;
    VEXISpecObject_var part;
    VEXILinkableObject_var link;
    VEXIContainer* container = nullptr;
};

}  // namespace hlxtest::statics
