// SPDX-License-Identifier: Apache-2.0
// Temperatures created in a step, on the part that the document is linked to.
#include "sweep/Sweep.h"

#include "HLXAnalysisTestUtils.h"

namespace hlxtest::sweep {

namespace {

using Utils = HLXAnalysisTestUtils;

long CreateTemperature(World& w)
{
    VEXUnicodeString name = "Named";
    VEXISpecObject_var temperature;
    VEXISamAnalysisSet_var step = w.step;
    return Utils::CreateTemperatureBC(w.test._Document, name, temperature, step);
}

long CreateInitialTemperature(World& w)
{
    VEXUnicodeString name = "Named";
    VEXISpecObject_var temperature;
    return Utils::CreateInitialTemperature(w.test._Document, name, temperature);
}

long CreateHistory(World& w)
{
    VEXUnicodeString name = "Named";
    VEXISamAnalysisEntity_var history;
    VEXISamAnalysisSet_var step = w.step;
    return Utils::CreateTemperatureHistory(w.test._Document, name, history, step);
}

const Operation operations[] = {
    {"CreateTemperatureBC", 1, &World::FindStep, CreateTemperature},
    {"CreateInitialTemperature", 1, &World::FindStep, CreateInitialTemperature},
    {"CreateTemperatureHistory", 1, &World::FindStep, CreateHistory},
};

INSTANTIATE_TEST_SUITE_P(Temperatures, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
