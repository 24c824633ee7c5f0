// SPDX-License-Identifier: Apache-2.0
// The kinds of load that are created by one procedure, and where they differ in it.
#pragma once

#include "library/CreationChecks.h"
#include "library/LoadState.h"

namespace hlxtest::statics {

/// Texts of loads are LoadStateTest's, for the name "Load" and a handle that holds another object.
struct LoadKind
{
    const char* name;
    LoadCreation create;
    const char* type;     ///< late type of the load
    const char* factory;  ///< the factory's operation
    const char* notCreated;
    bool checksFactory;   ///< else a missing factory is as a load that was not created
    bool asksPartFirst;   ///< product and part are found before the load is created
    bool givesAtOnce;     ///< the load is given before its support is added
    bool namesFormer;     ///< the name goes to what the handle held
    std::string valued;   ///< the load when its amplitude is made
    std::string ready;    ///< with its amplitude, when the part's cells are listed
    std::string placed;   ///< when the support is added
    std::string support;  ///< with '*' for the part
    std::string done;     ///< what is printed after success
    Captured notSupported;

    bool DecodesCell() const
    {
        return support.starts_with("face") || support.starts_with("vertex");
    }

    std::string Supported(const std::string& part = "box") const
    {
        std::string text = placed + " on " + support;
        return text.replace(text.find('*'), 1, part + ".VEXPart");
    }

    std::string Whole(const std::string& part = "box") const
    {
        return Supported(part) + (done.empty() ? "" : " follows mesh");
    }

    int AmplitudeCount() const { return placed.find("film amplitude 2") == placed.npos ? 1 : 2; }

    std::string NoFactory() const
    {
        return checksFactory ? "********** Could not create HLXLoadFact\n" : notCreated;
    }

    friend void PrintTo(const LoadKind& kind, std::ostream* stream) { *stream << kind.name; }
};

inline HRESULT CreatePressureLoad(VEXDocument* document, VEXUnicodeString name,
                                  VEXISpecObject_var& load, VEXISamAnalysisSet_var& step)
{
    return HLXAnalysisTestUtils::CreatePressureLoad(document, name, load, step);
}

inline const LoadKind kPressure{
    .name = "Pressure",
    .create = &CreatePressureLoad,
    .type = "HLXPressure",
    .factory = "HLXILoadFact::CreatePressure",
    .notCreated = "********** could not create pressure entity!\n",
    .checksFactory = true,
    .asksPartFirst = true,
    .givesAtOnce = true,
    .namesFormer = false,
    .valued = "Load: 1.25 used",
    .ready = "Load: 1.25 amplitude 1 used",
    .placed = "Load: 1.25 amplitude 1 used",
    .support = "face 1 of *, GeometrySmartConnector",
    .done = "subscription to MeshNegociator OK\n",
    .notSupported = {"Could not add support to Pressure\n", ""},
};

inline const LoadKind kRotationalBodyForce{
    .name = "RotationalBodyForce",
    .create = &HLXAnalysisTestUtils::CreateRBF,
    .type = "HLXRotationalBodyForce",
    .factory = "HLXILoadFact::CreateRotationalBodyForce",
    .notCreated = "********** could not create centrifugal load entity!\n",
    .checksFactory = true,
    .asksPartFirst = false,
    .givesAtOnce = false,
    .namesFormer = true,
    .valued = ": 1.73205 5.25",
    .ready = ": 1.73205 5.25 amplitude 1 used",
    .placed = ": 1.73205 5.25 about Edge-1 amplitude 1 used",
    .support = "body of *, GeometrySmartConnector",
    .done = "",
    .notSupported = {"Could not add support to gravity load\n", ""},
};

inline const LoadKind kConcentratedForce{
    .name = "ConcentratedForce",
    .create = &HLXAnalysisTestUtils::CreatedConcForce,
    .type = "HLXConcentratedForce",
    .factory = "HLXILoadFact::CreateConcentratedForce",
    .notCreated = "********** could not create conc force entity!\n",
    .checksFactory = true,
    .asksPartFirst = false,
    .givesAtOnce = false,
    .namesFormer = false,
    .valued = "Load: 1 0 0",
    .ready = "Load: 1 0 0 amplitude 1 used",
    .placed = "Load: 1 0 0 amplitude 1 used",
    .support = "vertex 1 of *, ",
    .done = "",
    .notSupported = {"", " Failed to add support 1\n"},
};

inline const LoadKind kHeatFlux{
    .name = "HeatFlux",
    .create = &HLXAnalysisTestUtils::CreateConcHTFlux,
    .type = "HLXConcHeatFlux",
    .factory = "HLXILoadFact::CreateHeatFlux",
    .notCreated = "could not create Concentrated Heat Flux entity!\n",
    .checksFactory = false,
    .asksPartFirst = false,
    .givesAtOnce = true,
    .namesFormer = false,
    .valued = "Load: 4.6589 subroutine used",
    .ready = "Load: 4.6589 subroutine amplitude 1 used",
    .placed = "Load: 4.6589 subroutine amplitude 1 used",
    .support = "vertex 1 of *, ",
    .done = "",
    .notSupported = {"", " Failed to add support 1\n"},
};

inline const LoadKind kFilmCondition{
    .name = "FilmCondition",
    .create = &HLXAnalysisTestUtils::CreateFilmCondition,
    .type = "HLXFilmCondition",
    .factory = "HLXILoadFact::CreateFilmCondition",
    .notCreated = "could not create Film Condition entity!\n",
    .checksFactory = false,
    .asksPartFirst = false,
    .givesAtOnce = true,
    .namesFormer = false,
    .valued = "Load: 51 () () used",
    .ready = "Load: 51 film amplitude 2 (1.2 2.4 3.5) (10 20 30) amplitude 1 used",
    .placed = "Load: 51 film amplitude 2 (1.2 2.4 3.5) (10 20 30) amplitude 1 used",
    .support = "face 1 of *, GeometrySmartConnector",
    .done = "",
    .notSupported = {"Could not add support to Film Condition\n", ""},
};

inline const std::vector<LoadKind> kAllKinds{kPressure, kRotationalBodyForce, kConcentratedForce,
                                             kHeatFlux, kFilmCondition};

// --- Exits --------------------------------------------------------------------------------------

/// A creation with something broken, what it answers and prints, and the load that is then in the
/// step; no text: none.
struct LoadExit
{
    const char* name;
    std::string faults;
    Outcome outcome;
    std::string text = "";
    int amplitudes = 0;

    friend void PrintTo(const LoadExit& row, std::ostream* stream) { *stream << row.faults; }
};

inline std::string NameOfLoadExit(const testing::TestParamInfo<LoadExit>& row)
{
    return row.param.name;
}

/// The handle holds a clamp of the name "Former".
class LoadKindTest : public LoadStateTest
{
protected:
    using LoadStateTest::LoadStateTest;

    /// Takes a row through `kind`'s creation, and again with nobody to keep the load: nothing may
    /// then be held.
    void ExpectExit(const LoadKind& kind, const LoadExit& row)
    {
        // From the first creation on: what it lost on an object that is there before, such as the
        // body, would look like that object's own later.
        ExpectNothingButFactories(HeldAfter([&] { ExpectLeft(kind, row); }));
        ExpectNothingHeld(kind, row.faults);
    }

    /// What is answered and printed, what is then in the document and in the handle.
    void ExpectLeft(const LoadKind& kind, const LoadExit& row)
    {
        load = former;
        EXPECT_EQ(Create(kind.create, row.faults), row.outcome);
        EXPECT_EQ(LoadTexts(),
                  row.text.empty() ? std::vector<std::string>{} : std::vector{row.text});
        EXPECT_EQ(Amplitudes().Size(), row.amplitudes);
        const bool given = !row.text.empty() && (kind.givesAtOnce || row.outcome.result == S_OK);
        ExpectHandle(given ? Handle::New : Handle::Former, load, former, Loads()[1]);
        EXPECT_EQ(AliasOf(former), kind.namesFormer && !row.text.empty() ? "Load" : "Former");
        load.Reset();
    }

    /// What a row prints is flushed.
    void ExpectFlushed(const LoadKind& kind, const LoadExit& row)
    {
        EXPECT_EQ(FlushedWith(row.faults, [&] { kind.create(analysis.Get(), "Load", load, step); }),
                  row.outcome.out);
    }

    void ExpectNothingHeld(const LoadKind& kind, const std::string& faults)
    {
        ExpectNothingButFactories(HeldAfterCreation(kind.create, faults));
    }

    /// Factories live to the end of the process, whoever holds them.
    static void ExpectNothingButFactories(HeldCounts held)
    {
        held.erase("HLXLoadFact");
        held.erase("HLXAmplitudeFact");
        EXPECT_EQ(held, HeldCounts{});
    }

    /// The calls by which a load is made, of the platform and of the other operations.
    std::vector<std::string> CallsOfCreation(const LoadKind& kind, const std::string& interface)
    {
        return CallsOf(
            [&] { kind.create(analysis.Get(), "Load", load, step); },
            {"VEXInstantiateComponent", "HLXILoad", "HLXICondition", interface + "::",
             "HLXIAmplitudeFact::", "VEXIAlias::", "VEXIParameter::", "VEXISamDocumentManager::",
             "VEXIPrtContainer::", "VEXIPartRequest::", "VEXIBodyRequest::", "VEXBRepDecode",
             "VEXISamAnalysisSupport::", "VEXISamAnalysisModel::", "VEXISamMeshNegotiator::"});
    }

    const VEXISpecObject_var former = Add(step, "HLXClamp", "Former");
};

}  // namespace hlxtest::statics
