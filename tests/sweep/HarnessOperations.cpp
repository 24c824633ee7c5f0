// SPDX-License-Identifier: Apache-2.0
// Driver, frame, timing log, dumps, sessions, settings. What calls no operation of the platform has
// no row.
#include "sweep/Sweep.h"

#include "HLXFileDumpTestCase.h"
#include "HLXSession.h"
#include "HLXSetUnitSystem.h"
#include "HLXTestCaseDriver.h"
#include "HLXToolsOptionsManager.h"

namespace hlxtest::sweep {

namespace {

long DumpFiles(World& w)
{
    HLXFileDumpTestCase fileDump;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&fileDump);
    driver.Run(5, w.line.Values());
    return S_OK;
}

long RunTwoCases(World& w)
{
    ExposedTestCase second;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&w.test);
    driver.AddTestCase(&second);
    driver.Run(w.line.Count(), w.line.Values());
    return S_OK;
}

long WriteTimingLog(World& w)
{
    char name[] = "Run";
    w.test.CreateTimeLoggingFile(name);
    w.test.StartTimer("Propagate: ");
    w.test.StopTimer();
    return S_OK;
}

long DumpTree(World& w)
{
    char mode[] = "w";
    w.test.SetDumpTreeParameters("tree.txt", "Title");
    w.test.DumpFeatTree(mode);
    return S_OK;
}

long MakeSession(World&)
{
    HLXSession session("sweep");
    return session.IsSessionRunning() == 1 ? S_OK : E_FAIL;
}

long SetUnitsTwice(World&)
{
    HLXSetUnitSystem units;
    const long result = units.SetBasicUnits("m", "t", "min", "C");
    return SUCCEEDED(result) ? units.SetBasicUnits("in", "lb", "h", "F") : result;
}

const Operation operations[] = {
    {"FileDumpOfNoCase", 0, &World::Nothing, DumpFiles},
    {"FileDumpOfOneCase", 1, &World::Nothing, DumpFiles},
    {"FileDumpOfThreeCases", 3, &World::Nothing, DumpFiles},
    {"DriverWithTwoCases", 1, &World::Nothing, RunTwoCases},
    {"PreProcessOpenExisting", 1, &World::Nothing,
     [](World& w) { return w.test.PreProcess(6, w.line.Values(), w.test.OpenExisting); }},
    {"PreProcessCreateNew", 1, &World::Nothing,
     [](World& w) { return w.test.PreProcess(6, w.line.Values(), w.test.CreateNew); }},
    {"PostProcess", 1, &World::Open, [](World& w) { return w.test.PostProcess(); }},
    {"ProcessArguments", 1, &World::Nothing,
     [](World& w) { return w.test.ProcessArguments(6, w.line.Values()) == 1 ? 0L : E_FAIL; }},
    {"TimingLog", 1, &World::Nothing, WriteTimingLog},
    {"DumpFeatTree", 3, &World::FindTree, DumpTree},
    {"SaveAsDocument", 1, &World::Open,
     [](World& w) { return w.test.SaveAsDocument(w.test._Document, "copy.VEXAnalysis"), 0L; }},
    {"Session", 0, &World::Nothing, MakeSession},
    {"SetUnitSystemUnused", 0, &World::Nothing, [](World&) { return HLXSetUnitSystem(), 0L; }},
    {"SetUnitSystem", 0, &World::Nothing,
     [](World&) { return HLXSetUnitSystem().SetBasicUnits("m", "t", "min", "C"); }},
    {"SetUnitSystemTwice", 0, &World::Nothing, SetUnitsTwice},
    {"ToolsOptionsUnused", 0, &World::Nothing, [](World&) { return HLXToolsOptionsManager(), 0L; }},
    {"ToolsOptions", 0, &World::Nothing,
     [](World&) { return HLXToolsOptionsManager().SetWriteFlatInputFileFlag(0); }},
};

INSTANTIATE_TEST_SUITE_P(Harness, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
