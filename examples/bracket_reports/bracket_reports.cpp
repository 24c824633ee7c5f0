// SPDX-License-Identifier: Apache-2.0
// A bracket that is mounted, moved, heated and put to work, with a report of what each step
// prescribes: one text file a step. Then the document under a new name, its feature tree and its
// input file.
//
//   bracket_reports INPUT-DIR DOCUMENT OUTPUT-DIR INPUT-FILE
//
// The document has an analysis case and is linked to the bracket assembly. Ends with 1 when
// anything could not be made or written.
#include "HLXAnalysisTestUtils.h"
#include "HLXBaseTestCase.h"
#include "HLXBoundaryConditions.h"
#include "HLXTemperatures.h"
#include "HLXTestCaseDriver.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

class BracketReports : public HLXBaseTestCase
{
public:
    long Process() override
    {
        _rc = InitializeAnalysisCaseFromDocument();
        if (SUCCEEDED(_rc)) _rc = SetInitialTemperature();
        if (SUCCEEDED(_rc)) _rc = Mount();
        if (SUCCEEDED(_rc)) _rc = Move();
        if (SUCCEEDED(_rc)) _rc = Heat();
        if (SUCCEEDED(_rc)) _rc = PutToWork();
        if (SUCCEEDED(_rc)) _rc = WriteResults();
        if (FAILED(_rc)) std::cerr << "bracket_reports: ended early, result " << _rc << "\n";
        return _rc;
    }

    bool Succeeded() const { return SUCCEEDED(_rc); }

protected:
    unsigned char VerifyArguments(int argc) override
    {
        if (argc == 5) return 1;
        std::cerr << "usage: bracket_reports INPUT-DIR DOCUMENT OUTPUT-DIR INPUT-FILE\n";
        return 0;
    }

private:
    using Dump = HRESULT (*)(VEXISpecObject_var, VEXUnicodeString);
    using Utils = HLXAnalysisTestUtils;

    /// The workshop's temperature.
    long SetInitialTemperature()
    {
        VEXUnicodeString name = "Workshop";
        VEXISpecObject_var made;
        const long rc = Utils::CreateInitialTemperature(_Document, name, made);
        if (FAILED(rc)) return rc;
        const HLXITemperature_var temperature = made;
        return temperature ? temperature->SetMagnitude(20.0) : E_FAIL;
    }

    /// On the wall: it carries its own weight, and a cable pulls at a corner.
    long Mount()
    {
        VEXISamAnalysisSet_var step;
        VEXISpecObject_var wall;
        VEXISpecObject_var weight;
        VEXISpecObject_var pull;
        long rc = Begin("HLXGeneralStaticStepLT", "Mounted", step);
        if (SUCCEEDED(rc)) rc = Utils::CreateClamp(_Document, "", wall, step);
        if (SUCCEEDED(rc)) rc = Name(wall, "Wall");
        if (SUCCEEDED(rc)) rc = Utils::CreateGravity(_Document, "", weight, step);
        if (SUCCEEDED(rc)) rc = Name(weight, "Own weight");
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpGravityParams, weight);
        if (SUCCEEDED(rc)) rc = Utils::CreatedConcForce(_Document, "Cable pull", pull, step);
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpConcForceParams, pull);
        return rc;
    }

    /// On a robot's arm: it is taken along, and swung.
    long Move()
    {
        VEXISamAnalysisSet_var step;
        VEXISpecObject_var travel;
        VEXISpecObject_var swing;
        VEXISpecObject_var start;
        long rc = Begin("HLXExplicitDynamicLT", "Moved", step);
        if (SUCCEEDED(rc)) {
            // 250 along X; nothing else of the face moves.
            rc = Utils::CreateVelocityBC(_Document, "", 1, 250.0, 1, 0.0, 1, 0.0, 1, 0.0, 1, 0.0, 1,
                                         0.0, travel, step);
        }
        if (SUCCEEDED(rc)) rc = Name(travel, "Travel");
        if (SUCCEEDED(rc)) rc = Utils::CreateSmoothStepAmplitude(_Document, 0, start);
        if (SUCCEEDED(rc)) rc = Name(start, "Smooth start");
        if (SUCCEEDED(rc)) rc = GiveAmplitude(travel, start);
        if (SUCCEEDED(rc)) rc = Utils::CreateRBF(_Document, "", swing, step);
        if (SUCCEEDED(rc)) rc = Name(swing, "Swing");
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpRBFParams, swing);
        return rc;
    }

    /// On the bench: a hot plate and a bearing heat it, the air cools it.
    long Heat()
    {
        VEXISamAnalysisSet_var step;
        VEXISpecObject_var plate;
        VEXISpecObject_var bearing;
        VEXISpecObject_var air;
        VEXUnicodeString plateName = "Hot plate";
        long rc = Begin("HLXHeatTransferStepLT", "Heated", step);
        if (SUCCEEDED(rc)) rc = Utils::CreateTemperatureBC(_Document, plateName, plate, step);
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpTempBCParams, plate);
        if (SUCCEEDED(rc)) rc = Utils::CreateConcHTFlux(_Document, "Bearing heat", bearing, step);
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpConcHeatFluxParams, bearing);
        if (SUCCEEDED(rc)) rc = Utils::CreateFilmCondition(_Document, "Cooling air", air, step);
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpFilmConditionParams, air);
        return rc;
    }

    /// In service, warm all through: the wall settles, and a shaft presses on its seat.
    long PutToWork()
    {
        VEXISamAnalysisSet_var step;
        VEXISpecObject_var settling;
        VEXISpecObject_var creep;
        VEXISpecObject_var seat;
        VEXISamAnalysisEntity_var warmth;
        VEXUnicodeString warmthName = "Warm machine";
        long rc = Begin("HLXGeneralStaticStepLT", "Working", step);
        if (SUCCEEDED(rc)) {
            // Half a unit down, not sideways, and tilted a little about X.
            rc = Utils::CreateDispBC(_Document, "", 1, 0.0, 1, 0.0, 1, -0.5, 1, 0.0025, 0, 0.0, 0,
                                     0.0, 0, settling, step);
        }
        if (SUCCEEDED(rc)) rc = Name(settling, "Settling wall");
        if (SUCCEEDED(rc)) rc = Utils::CreateTabularAmplitude(_Document, 1, creep);
        if (SUCCEEDED(rc)) rc = Name(creep, "Over the years");
        if (SUCCEEDED(rc)) rc = GiveAmplitude(settling, creep);
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpDispBCParams, settling);
        if (SUCCEEDED(rc)) rc = Utils::CreatePressureLoad(_Document, "Shaft seat", seat, step);
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpPressureParams, seat);
        if (SUCCEEDED(rc)) {
            rc = Utils::CreateTemperatureHistory(_Document, warmthName, warmth, step);
        }
        const HLXITemperatureHistory_var history = warmth;
        if (SUCCEEDED(rc)) rc = history ? history->SetUniformValue(65.0) : E_FAIL;
        if (SUCCEEDED(rc)) rc = Report(Utils::DumpTempHistParams, warmth);
        return rc;
    }

    /// Makes a step, and an empty file for the reports of what will be in it.
    long Begin(const char* type, const char* name, VEXISamAnalysisSet_var& step)
    {
        VEXISamAnalysisSet* made = nullptr;
        const long rc = CreateStep(type, name, made);
        step = VEXAdopt(made);
        if (FAILED(rc)) return rc;
        if (step == nullptr) return E_FAIL;
        _reportPath = OutputPath(std::string(name) + ".txt");
        return std::ofstream(_reportPath).good() ? S_OK : E_FAIL;
    }

    /// Appends a feature's report to that file. Whether the file took it is not told: look.
    long Report(Dump dump, const VEXISpecObject_var& feature)
    {
        const std::size_t before = TextOf(_reportPath).size();
        const long rc = dump(feature, VEXUnicodeString(_reportPath));
        if (FAILED(rc)) return rc;
        const std::string text = TextOf(_reportPath);
        return text.size() > before && text.ends_with("\n\n\n") ? S_OK : E_FAIL;
    }

    /// What the operations that take no name need.
    static long Name(const VEXISpecObject_var& feature, const char* name)
    {
        const VEXIAlias_var alias = feature;
        return alias ? alias->SetAlias(name) : E_FAIL;
    }

    /// Boundary conditions have their amplitude switched on, but none to use.
    static long GiveAmplitude(const VEXISpecObject_var& condition,
                              const VEXISpecObject_var& amplitude)
    {
        const HLXIBoundaryCondition_var boundaryCondition = condition;
        return boundaryCondition ? boundaryCondition->SetAmplitude(amplitude) : E_FAIL;
    }

    long WriteResults()
    {
        SaveAsDocument(_Document, "BracketReports.VEXAnalysis");
        // Nothing is said when that fails: the document tells where it is stored.
        if (!_Document->StorageName().View().ends_with("/BracketReports.VEXAnalysis")) {
            return E_FAIL;
        }
        const long rc = WriteFeatureTree();
        return SUCCEEDED(rc) ? WriteInputFileForAnalysisCase(1, nullptr) : rc;
    }

    long WriteFeatureTree()
    {
        VEXISamAnalysisManager_var manager;
        long rc = GetAnalysisManager(manager);
        if (SUCCEEDED(rc)) rc = InitializeNavigateObject(manager);
        if (FAILED(rc)) return rc;
        const char* const name = "BracketReports_FeatTree.txt";
        const std::string path = OutputPath(name);
        std::error_code error;
        std::filesystem::remove(path, error);
        SetDumpTreeParameters(name, "Bracket reports");
        char openMode[] = "w";
        DumpFeatTree(openMode);
        // As with reports: a whole one holds the model, and ends with an empty line.
        const std::string tree = TextOf(path);
        const bool isWhole =
            tree.find("VEXSamAnalysisModel") != tree.npos && tree.ends_with("\n\n");
        return !error && isWhole ? S_OK : E_FAIL;
    }

    std::string OutputPath(const std::string& name) const
    {
        return std::string(_OutputDirectory.View()) + "/" + name;
    }

    /// What a file holds; empty without one.
    static std::string TextOf(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::string _reportPath;  ///< of the step that was made last
    long _rc = E_FAIL;
};

int main(int argc, char** argv)
{
    BracketReports bracketReports;
    HLXTestCaseDriver driver;
    driver.AddTestCase(&bracketReports);
    driver.Run(argc, argv);
    return bracketReports.Succeeded() ? 0 : 1;
}
