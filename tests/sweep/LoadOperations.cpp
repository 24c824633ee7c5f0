// SPDX-License-Identifier: Apache-2.0
// Loads created in a step, on the part that the document is linked to.
#include "sweep/Sweep.h"

#include "HLXAnalysisTestUtils.h"

namespace hlxtest::sweep {

namespace {

using Utils = HLXAnalysisTestUtils;

/// The name goes to what the handle holds: the step.
long CreateGravity(World& w)
{
    VEXISpecObject_var gravity = w.step;
    VEXISamAnalysisSet_var step = w.step;
    return Utils::CreateGravity(w.test._Document, "Named", gravity, step);
}

long CreateUnnamedGravity(World& w)
{
    VEXISpecObject_var gravity;
    VEXISamAnalysisSet_var step = w.step;
    return Utils::CreateGravity(w.test._Document, "Nobody's", gravity, step);
}

using Creation = HRESULT (*)(VEXDocument*, VEXUnicodeString, VEXISpecObject_var&,
                             VEXISamAnalysisSet_var&);

/// The handle holds the step, which the rotational body force gives the name to.
long Create(World& w, Creation create)
{
    VEXISpecObject_var load = w.step;
    VEXISamAnalysisSet_var step = w.step;
    return create(w.test._Document, "Named", load, step);
}

long CreatePressure(World& w)
{
    VEXISpecObject_var pressure;
    VEXISamAnalysisSet_var step = w.step;
    return Utils::CreatePressureLoad(w.test._Document, "Named", pressure, step);
}

const Operation operations[] = {
    {"CreateGravity", 1, &World::FindStep, CreateGravity},
    {"CreateGravityWithoutAName", 1, &World::FindStep, CreateUnnamedGravity},
    {"CreatePressureLoad", 1, &World::FindStep, CreatePressure},
    {"CreateRBF", 1, &World::FindStep, [](World& w) { return Create(w, &Utils::CreateRBF); }},
    {"CreatedConcForce", 1, &World::FindStep,
     [](World& w) { return Create(w, &Utils::CreatedConcForce); }},
    {"CreateConcHTFlux", 1, &World::FindStep,
     [](World& w) { return Create(w, &Utils::CreateConcHTFlux); }},
    {"CreateFilmCondition", 1, &World::FindStep,
     [](World& w) { return Create(w, &Utils::CreateFilmCondition); }},
};

INSTANTIATE_TEST_SUITE_P(Loads, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
