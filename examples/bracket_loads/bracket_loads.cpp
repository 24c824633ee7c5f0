// SPDX-License-Identifier: Apache-2.0
// A bracket from the workshop to the running machine: steps, loads and jobs, saved under a new
// name, with its input file, its feature tree and the time that it took.
//
//   bracket_loads INPUT-DIR DOCUMENT OUTPUT-DIR INPUT-FILE
//
// The document has an analysis case and is linked to the bracket assembly. Ends with 1 when a step,
// load or job could not be made, or document or input file not be written.
#include "HLXAnalysisTestUtils.h"
#include "HLXBaseTestCase.h"
#include "HLXTestCaseDriver.h"

#include <iostream>

class BracketLoads : public HLXBaseTestCase
{
public:
    long Process() override
    {
        _rc = InitializeAnalysisCaseFromDocument();
        if (SUCCEEDED(_rc)) _rc = SetUpTimed();
        if (SUCCEEDED(_rc)) _rc = WriteResults();
        if (FAILED(_rc)) std::cerr << "bracket_loads: ended early, result " << _rc << "\n";
        return _rc;
    }

    bool Succeeded() const { return SUCCEEDED(_rc); }

protected:
    unsigned char VerifyArguments(int argc) override
    {
        if (argc == 5) return 1;
        std::cerr << "usage: bracket_loads INPUT-DIR DOCUMENT OUTPUT-DIR INPUT-FILE\n";
        return 0;
    }

private:
    long SetUpTimed()
    {
        char logName[] = "bracket_loads";
        CreateTimeLoggingFile(logName);
        StartTimer("Steps, loads and jobs\n");
        const long rc = SetUp();
        StopTimer();
        return rc;
    }

    long SetUp()
    {
        VEXISamAnalysisCase_var analysisCase = _AnalysisCases[1];
        VEXListValVEXUnicodeString codes;
        for (const char* const code : {"GSS", "EDS", "HTS"})
            codes.Append(code);
        VEXListPtrVEXBaseUnknown made;
        long rc = HLXAnalysisTestUtils::CreateSteps(codes, analysisCase.Get(), made);
        // The steps came counted: the list owns nothing, so handles take them over.
        VEXListValVEXBaseUnknown_var steps;
        for (int i = 1; i <= made.Size(); ++i)
            steps.Append(VEXAdopt(made[i]));

        VEXISamAnalysisSet_var mounting = steps[1];
        VEXISamAnalysisSet_var runUp = steps[2];
        VEXISamAnalysisSet_var warmUp = steps[3];
        if (SUCCEEDED(rc)) rc = Mount(mounting);
        if (SUCCEEDED(rc)) rc = Overload();
        if (SUCCEEDED(rc)) rc = RunUp(runUp);
        if (SUCCEEDED(rc)) rc = WarmUp(warmUp);
        if (SUCCEEDED(rc)) {
            rc = HLXAnalysisTestUtils::AddJobsForWritingInputFiles(_Document, analysisCase,
                                                                   "Bracket");
        }
        return rc;
    }

    /// On the wall: the bracket carries its own weight, and a cable pulls at a corner.
    long Mount(VEXISamAnalysisSet_var& step)
    {
        VEXISpecObject_var weight;
        VEXISpecObject_var pull;
        long rc = HLXAnalysisTestUtils::CreateGravity(_Document, "", weight, step);
        // CreateGravity names what the handle held before, which was nothing.
        if (const VEXIAlias_var alias = weight) alias->SetAlias("Own weight");
        if (SUCCEEDED(rc)) {
            rc = HLXAnalysisTestUtils::CreatedConcForce(_Document, "Cable pull", pull, step);
        }
        return rc;
    }

    /// How much more it could take: a clamp presses until the bracket gives way.
    long Overload()
    {
        VEXISamAnalysisSet* made = nullptr;
        long rc = CreateStep("HLXRiksStepLT", "Overload", made);
        VEXISamAnalysisSet_var step = VEXAdopt(made);
        VEXISpecObject_var clamp;
        if (SUCCEEDED(rc)) {
            rc = HLXAnalysisTestUtils::CreatePressureLoad(_Document, "Clamp plate", clamp, step);
        }
        return rc;
    }

    /// On the shaft: the machine comes up to speed.
    long RunUp(VEXISamAnalysisSet_var& step)
    {
        VEXISpecObject_var rotation;
        const long rc = HLXAnalysisTestUtils::CreateRBF(_Document, "", rotation, step);
        if (const VEXIAlias_var alias = rotation) alias->SetAlias("Shaft run-up");
        return rc;
    }

    /// In service: a bearing heats the bracket, the air cools it.
    long WarmUp(VEXISamAnalysisSet_var& step)
    {
        VEXISpecObject_var bearing;
        VEXISpecObject_var air;
        long rc = HLXAnalysisTestUtils::CreateConcHTFlux(_Document, "Bearing heat", bearing, step);
        if (SUCCEEDED(rc)) {
            rc = HLXAnalysisTestUtils::CreateFilmCondition(_Document, "Cooling air", air, step);
        }
        return rc;
    }

    long WriteResults()
    {
        SaveAsDocument(_Document, "BracketLoads.VEXAnalysis");
        // Nothing is said when that fails: the document tells where it is stored.
        if (!_Document->StorageName().View().ends_with("/BracketLoads.VEXAnalysis")) return E_FAIL;

        VEXISamAnalysisManager_var manager;
        long rc = GetAnalysisManager(manager);
        if (SUCCEEDED(rc)) rc = InitializeNavigateObject(manager);
        if (FAILED(rc)) return rc;
        SetDumpTreeParameters("BracketLoads_FeatTree.txt", "Bracket loads");
        char openMode[] = "w";
        DumpFeatTree(openMode);

        return WriteInputFileForAnalysisCase(1, nullptr);
    }

    long _rc = E_FAIL;
};

int main(int argc, char** argv)
{
    BracketLoads bracketLoads;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&bracketLoads);
    driver.Run(argc, argv);
    return bracketLoads.Succeeded() ? 0 : 1;
}
