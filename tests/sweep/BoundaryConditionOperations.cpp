// SPDX-License-Identifier: Apache-2.0
// Boundary conditions created in a step, on the part that the document is linked to.
#include "sweep/Sweep.h"

#include "HLXAnalysisTestUtils.h"

namespace hlxtest::sweep {

namespace {

using Utils = HLXAnalysisTestUtils;

/// All switches are on. The handle holds the step before.
long CreateDisplacement(World& w, unsigned char fix)
{
    VEXISpecObject_var condition = w.step;
    VEXISamAnalysisSet_var step = w.step;
    return Utils::CreateDispBC(w.test._Document, "Nobody's", 1, 1.5, 1, 2.5, 1, 3.5, 1, 4.5, 1, 5.5,
                               1, 6.5, fix, condition, step);
}

long CreateVelocity(World& w)
{
    VEXISpecObject_var condition;
    VEXISamAnalysisSet_var step = w.step;
    return Utils::CreateVelocityBC(w.test._Document, "Nobody's", 1, 1.5, 0, 2.5, 1, 3.5, 0, 4.5, 1,
                                   5.5, 0, 6.5, condition, step);
}

long CreateClamp(World& w)
{
    VEXISpecObject_var clamp;
    VEXISamAnalysisSet_var step = w.step;
    return Utils::CreateClamp(w.test._Document, "Nobody's", clamp, step);
}

const Operation operations[] = {
    {"CreateDispBC", 1, &World::FindStep, [](World& w) { return CreateDisplacement(w, 0); }},
    {"CreateFixedDispBC", 1, &World::FindStep, [](World& w) { return CreateDisplacement(w, 1); }},
    {"CreateVelocityBC", 1, &World::FindStep, CreateVelocity},
    {"CreateClamp", 1, &World::FindStep, CreateClamp},
};

INSTANTIATE_TEST_SUITE_P(BoundaryConditions, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
