// SPDX-License-Identifier: Apache-2.0
// Static utilities that create boundary conditions, in the order of their header. All follow one
// procedure: make the factory, create the condition in the step, give it its values, hand it to the
// caller (velocities before their values), put it on the first face of the part. No name is set,
// and no amplitude is given, though one is switched on for some. Nothing is undone on failure, and
// nobody releases the factory; kept.
#include "HLXAnalysisTestUtils.h"
#include "HLXBoundaryConditions.h"
#include "HLXConsole.h"
#include "HLXEntityCreation.h"

using namespace HLXEntityCreation;
using HLXConsole::Fail;
using HLXConsole::FailUnflushed;

namespace {

using Creation = HRESULT (HLXIBoundaryConditionsFact::*)(VEXISpecObject_var&, VEXDocument*,
                                                         VEXISamAnalysisSet_var&);

/// The interfaces that a new condition is set up through.
struct NewCondition
{
    VEXISamAnalysisEntity_var entity;
    VEXISamAnalysisSupport_var support;
};

/// Whether a degree of freedom is prescribed, and the value that it is to have.
struct Component
{
    unsigned char on;
    double value;
};

/// Creates a condition in the caller's handle. A condition that is in it before is taken for the
/// new one when the platform succeeds without making one; kept.
/// @param message  printed when there is none
/// @return S_OK; E_FAIL
HRESULT Create(Creation create, const char* message, VEXDocument* document,
               VEXISamAnalysisSet_var& step, VEXISpecObject_var& bc, NewCondition& made)
{
    HLXIBoundaryConditionsFact* factory = nullptr;
    // The pointer tells, the result is not looked at; kept.
    MakeFactory("HLXBoundaryConditionsFact", factory);
    if (factory == nullptr || FAILED((factory->*create)(bc, document, step)) || bc == nullptr) {
        return FailUnflushed(message);
    }
    void* queried = nullptr;
    if (FAILED(bc->QueryInterface(IID_VEXISpecObject, &queried)) || queried == nullptr) {
        return E_FAIL;
    }
    const VEXISpecObject_var created = VEXAdopt(static_cast<VEXISpecObject*>(queried));
    made.entity = created;
    made.support = created;
    return S_OK;
}

/// Gives the caller the condition by its entity. @return S_OK; E_FAIL
HRESULT HandOver(const NewCondition& made, VEXISpecObject_var& bc)
{
    bc = made.entity;
    // The trailing blank is kept.
    return bc == nullptr ? FailUnflushed("Error in Getting the BC pointer ") : S_OK;
}

/// Puts the condition on the first face of the part. @return S_OK; E_FAIL
HRESULT SupportOnFirstFace(VEXDocument* document, const NewCondition& made)
{
    HLXPartSupport::Part part;
    HLXPartSupport::Cells cells;
    VEXILinkableObject_var face;
    if (FAILED(FindLinkableFace(document, part, cells, face))) return E_FAIL;
    if (FAILED(HLXPartSupport::Add(made.support, face, part, smartConnector))) {
        // Whatever condition it is; kept.
        return FailUnflushed("Could not add support to TestBC.1");
    }
    return S_OK;
}

/// Gives the values that are switched on to the vector parameters; those of the translations come
/// first. Whether a parameter took its value is not looked at; kept.
/// @return S_OK; E_FAIL without one of the parameters
HRESULT SetDisplacements(const VEXISamAnalysisEntity_var& entity, const Component (&components)[6],
                         bool fixed)
{
    VEXIVectorParameter_var translation;
    // The handle tells, the result is not looked at; kept.
    if (entity) entity->GetVectorParameter("DisplBCTrans", translation);
    // Spelled so; kept.
    if (translation == nullptr) return Fail("Failed to get Tranlation Component");
    VEXIVectorParameter_var rotation;
    entity->GetVectorParameter("DisplBCRotation", rotation);
    if (rotation == nullptr) return Fail("Failed to get Rotation Component");
    if (fixed) return S_OK;

    for (int i = 0; i < 6; ++i) {
        const VEXIVectorParameter_var& vector = i < 3 ? translation : rotation;
        // Other bytes than 1 do not count as on here, though they do in the switches; kept.
        if (components[i].on == 1) vector->SetComponent(components[i].value, "", i % 3 + 1, 1, 0);
    }
    return S_OK;
}

/// Sets the switches. Whether the condition took them is not looked at; kept.
/// @return S_OK; E_NOINTERFACE; E_FAIL at the first that the condition does not have
HRESULT SetSwitches(const VEXISamAnalysisEntity_var& entity, const Component (&components)[6],
                    unsigned char fixOn)
{
    const VEXISpecAttrAccess_var access = entity;
    // The one result that is not E_FAIL; kept.
    if (access == nullptr) return E_NOINTERFACE;
    const struct
    {
        const char* name;
        unsigned char value;
    } switches[] = {
        {"fixON", fixOn},
        {"u1ON", components[0].on},
        {"u2ON", components[1].on},
        {"u3ON", components[2].on},
        {"ur1ON", components[3].on},
        {"ur2ON", components[4].on},
        {"ur3ON", components[5].on},
        {"userSub", on},
    };
    for (const auto& each : switches) {
        const VEXISpecAttrKey_var key = access->GetAttrKey(each.name);
        if (key == nullptr) return E_FAIL;
        access->SetBoolean(key, each.value, 0);
    }
    return S_OK;
}

}  // namespace

HRESULT HLXAnalysisTestUtils::CreateDispBC(VEXDocument* document, VEXUnicodeString,
                                           unsigned char u1On, double u1, unsigned char u2On,
                                           double u2, unsigned char u3On, double u3,
                                           unsigned char ur1On, double ur1, unsigned char ur2On,
                                           double ur2, unsigned char ur3On, double ur3,
                                           unsigned char fixOn, VEXISpecObject_var& bc,
                                           VEXISamAnalysisSet_var& step)
{
    const Component components[6] = {{u1On, u1},   {u2On, u2},   {u3On, u3},
                                     {ur1On, ur1}, {ur2On, ur2}, {ur3On, ur3}};
    NewCondition made;
    // The words of the clamp; kept.
    HRESULT rc = Create(&HLXIBoundaryConditionsFact::CreateDisplacement,
                        "could not create Clamp entity!", document, step, bc, made);
    if (SUCCEEDED(rc)) rc = SetDisplacements(made.entity, components, fixOn != 0);
    if (SUCCEEDED(rc)) rc = SetSwitches(made.entity, components, fixOn);
    if (SUCCEEDED(rc)) rc = HandOver(made, bc);
    if (FAILED(rc)) return rc;
    const HLXIDisplacementBC_var displacement = bc;
    if (displacement == nullptr || FAILED(displacement->SetUseAmplitude(on))) return E_FAIL;
    return SupportOnFirstFace(document, made);
}

HRESULT HLXAnalysisTestUtils::CreateVelocityBC(VEXDocument* document, VEXUnicodeString,
                                               unsigned char u1On, double u1, unsigned char u2On,
                                               double u2, unsigned char u3On, double u3,
                                               unsigned char ur1On, double ur1, unsigned char ur2On,
                                               double ur2, unsigned char ur3On, double ur3,
                                               VEXISpecObject_var& bc, VEXISamAnalysisSet_var& step)
{
    const Component components[6] = {{u1On, u1},   {u2On, u2},   {u3On, u3},
                                     {ur1On, ur1}, {ur2On, ur2}, {ur3On, ur3}};
    NewCondition made;
    HRESULT rc = Create(&HLXIBoundaryConditionsFact::CreateVelocity,
                        "could not create Velocity entity!", document, step, bc, made);
    if (SUCCEEDED(rc)) rc = HandOver(made, bc);
    if (FAILED(rc)) return rc;
    const HLXIMotionBC_var motion = bc;
    if (motion == nullptr) return E_FAIL;
    // All values, whatever the switches say, and no result is looked at; kept.
    for (int i = 0; i < 6; ++i)
        motion->SetValue(i + 1, components[i].value);
    for (int i = 0; i < 6; ++i)
        motion->SetSwitch(i + 1, components[i].on);
    if (FAILED(motion->SetUseAmplitude(on))) return E_FAIL;
    return SupportOnFirstFace(document, made);
}

HRESULT HLXAnalysisTestUtils::CreateClamp(VEXDocument* document, VEXUnicodeString,
                                          VEXISpecObject_var& clamp, VEXISamAnalysisSet_var& step)
{
    NewCondition made;
    HRESULT rc = Create(&HLXIBoundaryConditionsFact::CreateClamp, "could not create Clamp entity!",
                        document, step, clamp, made);
    if (SUCCEEDED(rc)) rc = HandOver(made, clamp);
    HLXPartSupport::Part part;
    HLXPartSupport::Cells cells;
    if (FAILED(rc) || FAILED(HLXPartSupport::FindPart(document, part)) ||
        FAILED(HLXPartSupport::FindCells(part, cells))) {
        return E_FAIL;
    }
    const VEXIBRepAccess_var face = HLXPartSupport::Decode(part, VEXShare(cells.faces[1]), cells);
    // Nothing is put on the edge, but it must be there: both are decoded, then looked at; kept.
    const VEXIBRepAccess_var edge = HLXPartSupport::Decode(part, VEXShare(cells.edges[1]), cells);
    if (face == nullptr || edge == nullptr) return FailUnflushed("VEXBRepDecode failed!");
    const VEXILinkableObject_var linkable = LinkableFace(face);
    if (linkable == nullptr) return E_FAIL;
    if (FAILED(HLXPartSupport::Add(made.support, linkable, part, smartConnector))) {
        return FailUnflushed("Could not add support to 1st Clamp");
    }
    return S_OK;
}
