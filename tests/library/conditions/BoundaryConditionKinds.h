// SPDX-License-Identifier: Apache-2.0
// The three operations that create a boundary condition, and where they differ.
#pragma once

#include "library/CreationChecks.h"
#include "library/WaysToSupports.h"
#include "library/conditions/BoundaryConditionState.h"

namespace hlxtest::statics {

/// Texts are BoundaryConditionStateTest's.
struct ConditionKind
{
    const char* name;
    LoadCreation create;  ///< with values and switches of the kind
    const char* type;     ///< late type of the condition
    const char* factory;  ///< the factory's operation
    const char* notCreated;
    const char* noEntity;  ///< what is printed without VEXISamAnalysisEntity
    const char* notDecoded;
    const char* notSupported;
    std::string created;   ///< the condition when it was just created
    std::string attached;  ///< when it is cast into the handle
    std::string ready;     ///< when the part is looked for

    std::string Whole(const std::string& part = "box") const
    {
        return ready + " on face 1 of " + part + ".VEXPart, GeometrySmartConnector";
    }

    friend void PrintTo(const ConditionKind& kind, std::ostream* stream) { *stream << kind.name; }
};

inline constexpr const char* kNoPointer = "Error in Getting the BC pointer \n";
inline constexpr const char* kNoLinkToFace = "Could not get VEXILinkable for face!\n";

inline HRESULT CreateDisplacement(VEXDocument* document, VEXUnicodeString name,
                                  VEXISpecObject_var& condition, VEXISamAnalysisSet_var& step)
{
    return HLXAnalysisTestUtils::CreateDispBC(document, name, 1, 1.5, 0, 2.5, 1, 3.5, 2, 0.25, 1,
                                              -0.5, 0, 0.75, 0, condition, step);
}

inline HRESULT CreateVelocity(VEXDocument* document, VEXUnicodeString name,
                              VEXISpecObject_var& condition, VEXISamAnalysisSet_var& step)
{
    return HLXAnalysisTestUtils::CreateVelocityBC(document, name, 1, 1.5, 0, 2.5, 1, 3.5, 2, 0.25,
                                                  1, -0.5, 0, 0.75, condition, step);
}

inline const ConditionKind kDisplacement{
    .name = "Displacement",
    .create = &CreateDisplacement,
    .type = "HLXDisplacementBC",
    .factory = "HLXIBoundaryConditionsFact::CreateDisplacement",
    .notCreated = "could not create Clamp entity!\n",
    .noEntity = "Failed to get Tranlation Component\n",
    .notDecoded = kNoLinkToFace,
    .notSupported = "Could not add support to TestBC.1\n",
    .created = "HLXDisplacementBC: 0 0 0 0 0 0, 000000",
    .attached = "HLXDisplacementBC: 1.5 0 3.5 0 -0.5 0, 101110 subroutine",
    .ready = "HLXDisplacementBC: 1.5 0 3.5 0 -0.5 0, 101110 subroutine used",
};

inline const ConditionKind kVelocity{
    .name = "Velocity",
    .create = &CreateVelocity,
    .type = "HLXVelocityBCLT",
    .factory = "HLXIBoundaryConditionsFact::CreateVelocity",
    .notCreated = "could not create Velocity entity!\n",
    .noEntity = kNoPointer,
    .notDecoded = kNoLinkToFace,
    .notSupported = "Could not add support to TestBC.1\n",
    .created = "HLXVelocityBCLT: 0 0 0 0 0 0, 000000",
    .attached = "HLXVelocityBCLT: 0 0 0 0 0 0, 000000",
    .ready = "HLXVelocityBCLT: 1.5 2.5 3.5 0.25 -0.5 0.75, 101110 used",
};

inline const ConditionKind kClamp{
    .name = "Clamp",
    .create = &HLXAnalysisTestUtils::CreateClamp,
    .type = "HLXClamp",
    .factory = "HLXIBoundaryConditionsFact::CreateClamp",
    .notCreated = "could not create Clamp entity!\n",
    .noEntity = kNoPointer,
    .notDecoded = "VEXBRepDecode failed!\n",
    .notSupported = "Could not add support to 1st Clamp\n",
    .created = "HLXClamp:",
    .attached = "HLXClamp:",
    .ready = "HLXClamp:",
};

inline const std::vector<ConditionKind> kAllConditions{kDisplacement, kVelocity, kClamp};

inline std::string NameOfCondition(const testing::TestParamInfo<ConditionKind>& row)
{
    return row.param.name;
}

// --- Exits --------------------------------------------------------------------------------------

/// A creation with something broken, what it answers and prints, the condition that is then in the
/// step (no text: none) and what the handle holds. In `faults`, "TYPE" is the late type of the kind
/// and "FACTORY" the factory's operation.
struct ConditionExit
{
    const char* name;
    std::string faults;
    Outcome outcome;
    std::string left = "";
    Handle handle = Handle::New;

    friend void PrintTo(const ConditionExit& row, std::ostream* stream) { *stream << row.faults; }
};

inline std::string NameOfConditionExit(const testing::TestParamInfo<ConditionExit>& row)
{
    return row.param.name;
}

/// The handle holds a gravity of the name "Former", which no creation touches.
class BoundaryConditionTest : public BoundaryConditionStateTest
{
protected:
    using BoundaryConditionStateTest::BoundaryConditionStateTest;

    /// Takes a row through `kind`'s creation, and again with nobody to keep the condition: nothing
    /// may then be held.
    void ExpectExit(const ConditionKind& kind, ConditionExit row)
    {
        Replace(row.faults, "TYPE", kind.type);
        Replace(row.faults, "FACTORY", kind.factory);
        condition = former;
        EXPECT_EQ(Create(kind.create, row.faults), row.outcome) << row.faults;
        EXPECT_EQ(TextsIn(step),
                  row.left.empty() ? std::vector<std::string>{} : std::vector{row.left})
            << row.faults;
        {
            SCOPED_TRACE(row.faults);
            ExpectHandle(row.handle, condition, former, Last());
        }
        ExpectFormerUntouched();
        condition.Reset();
        if (GiveToNobody(row.faults)) {
            LetGo(Last());
        } else {
            ExpectNothingHeld(kind, row.faults);
        }
    }

    /// What is flushed of that which a creation prints.
    std::string FlushedBy(const ConditionKind& kind, std::string faults)
    {
        Replace(faults, "TYPE", kind.type);
        Replace(faults, "FACTORY", kind.factory);
        return FlushedWith(faults, [&] { kind.create(analysis.Get(), "Name", condition, step); });
    }

    /// The factory of boundary conditions lives to the end of the process, whoever holds it.
    void ExpectNothingHeld(const ConditionKind& kind, const std::string& faults)
    {
        HeldCounts held = HeldAfterCreation(kind.create, faults);
        held.erase("HLXBoundaryConditionsFact");
        EXPECT_EQ(held, HeldCounts{}) << faults;
    }

    void ExpectFormerUntouched()
    {
        EXPECT_EQ(AliasOf(former), "Former");
        EXPECT_EQ(SupportsOf(former), std::vector<std::string>{});
        EXPECT_EQ(Amplitudes().Size(), 0);
    }

    /// The calls by which a condition is made, of the platform and of the other operations.
    std::vector<std::string> CallsOfCreation(const ConditionKind& kind,
                                             const std::string& faults = "")
    {
        std::vector<std::string> calls;
        RunWith(faults, [&] {
            calls = CallsOf(
                [&] { kind.create(analysis.Get(), "Name", condition, step); },
                {"VEXInstantiateComponent", "HLXI", "VEXIAlias::", "VEXISamAnalysisEntity::",
                 "VEXIVectorParameter::", "VEXISpecAttrAccess::", "VEXISamDocumentManager::",
                 "VEXIPrtContainer::", "VEXIPartRequest::", "VEXIBodyRequest::", "VEXBRepDecode",
                 "VEXISamAnalysisSupport::"});
        });
        return calls;
    }

    /// Calls that every condition is made with: the part, face 1 and the support.
    static std::vector<std::string> WithSupport(std::vector<std::string> calls, bool withEdge)
    {
        calls.insert(calls.end(), {"VEXISamDocumentManager::GetLinkedDocuments(&)",
                                   "VEXIPrtContainer::GetMechanicalPart()",
                                   "VEXIPartRequest::GetMainBody(\"\", &)",
                                   "VEXIBodyRequest::GetResults(\"MfDefault3DView\", &)",
                                   "VEXBRepDecode(VEXBRepContainer, VEXFaceCell, VEXBody)"});
        if (withEdge) {
            calls.emplace_back("VEXBRepDecode(VEXBRepContainer, VEXEdgeCell, VEXBody)");
        }
        calls.emplace_back(
            "VEXISamAnalysisSupport::AddSupport(VEXBRepAccess, VEXPart, "
            "\"GeometrySmartConnector\")");
        return calls;
    }

    VEXISpecObject_var& condition = load;
    const VEXISpecObject_var former = Add(step, "HLXGravity", "Former");
};

}  // namespace hlxtest::statics
