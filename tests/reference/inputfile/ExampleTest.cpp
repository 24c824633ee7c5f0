// SPDX-License-Identifier: Apache-2.0
// The example of docs/input-file.md is what the writer writes, with what the document says left
// out.
#include "host/feature/FeatureSearch.h"
#include "reference/inputfile/SupportFixture.h"

#include <algorithm>
#include <sstream>

namespace {

using vex::Feature;
using Pieces = std::vector<std::string>;

class InputFileExample : public hlxtest::SupportTest
{
protected:
    static Pieces Split(const std::string& text, const std::string& separator)
    {
        Pieces pieces;
        std::size_t begin = 0;
        for (std::size_t end = 0; (end = text.find(separator, begin)) != std::string::npos;) {
            pieces.push_back(text.substr(begin, end - begin));
            begin = end + separator.size();
        }
        pieces.push_back(text.substr(begin));
        return pieces;
    }

    /// Whether the example's line is the deck's, but for parameters that were left out.
    static bool IsShortened(const std::string& example, const std::string& line)
    {
        const Pieces whole = Split(line, ", ");
        auto at = whole.begin();
        for (const std::string& piece : Split(example, ", ")) {
            at = std::find(at, whole.end(), piece);
            if (at == whole.end()) {
                return false;
            }
            ++at;
        }
        return whole.front() == Split(example, ", ").front() &&
               (example.starts_with('*') || example == line);
    }

    /// Whether it is a line of a container, which may be empty.
    static bool IsOfContainer(const std::string& line)
    {
        const std::string_view containers[] = {"LOADS", "BOUNDARY CONDITIONS", "INTERACTIONS",
                                               "TEMPERATURES", "INITIAL CONDITIONS"};
        return std::ranges::any_of(containers, [&](std::string_view name) {
            return line.starts_with("*") && line.ends_with(name);
        });
    }

    static Pieces Example()
    {
        const std::string text = hlxtest::ReadFile(HLX_SOURCE_DIR "/docs/input-file.md");
        const std::size_t begin = text.find("```\n", text.find("An example")) + 4;
        return Split(text.substr(begin, text.find("```\n", begin) - begin), "\n");
    }

    void SetText(Feature& feature, const char* attribute, const char* text)
    {
        feature.Set(attribute, vex::Boxed<std::string>(std::string(text)));
    }

    void MakeProduct(const std::string& bracket)
    {
        Feature& arm = Product();
        Use(arm, "Bracket.1", "Bracket", bracket);
        const std::string path = SaveProduct(arm, "arm");
        Feature& root = Product();
        Use(root, "Left", "Arm", path, {1, 0, 0, 25, 0, 1, 0, 0, 0, 0, 1, 0});
        Use(root, "Right", "Arm", path, {-1, 0, 0, -25, 0, -1, 0, 0, 0, 0, 1, 0});
        Link(SaveProduct(root, "top"));
    }

    void MakeJobs()
    {
        Feature& jobs = *vex::FirstChildOfType(Case(1), "HLXJobContainerLT");
        Make("HLXJobLT", jobs, "Job-1");
        Make("HLXJobLT", jobs, "Job-1_SinglePart").Set("SinglePart", true);
    }

    void MakeModel()
    {
        Feature& ramp = Make("HLXTabularAmplitudeLT", Model(), "Ramp");
        ramp.Set("Data", vex::Boxed<vex::DoubleTable>({2, {0, 0, 1, 1}}));
        Make("HLXHollexPropertySetLT", Model());
        _ramp = &ramp;
    }

    /// Puts a condition on geometry, as the platform does.
    void PutOn(const std::string& part, std::int64_t dimension, std::int64_t index,
               Feature& feature)
    {
        SetText(Region(feature, part, dimension, index), "Connector", "GeometrySmartConnector");
    }

    void MakeLoads(const Feature& step, const std::string& bracket, const std::string& cover)
    {
        Feature& pressure = Load("HLXPressure", step, "Pressure.1");
        pressure.Set("Pressure", 1.25);
        pressure.Set("UseAmplitude", true);
        pressure.Set("Amplitude", vex::Reference{_ramp->Id()});
        PutOn(bracket, 2, 3, pressure);
        Feature& spin = Load("HLXRotationalBodyForce", step, "Spin.1");
        spin.Set("Velocity", 1.5);
        Region(spin, bracket, 1, 12, "VEXSamAxis");
        PutOn(bracket, 3, 1, spin);
        Feature& film = Load("HLXFilmCondition", step, "Film.1");
        film.Set("ReferenceTemperature", 20.0);
        film.Set("Coefficients", vex::Boxed<vex::DoubleList>({1.5, 2.5}));
        film.Set("Temperatures", vex::Boxed<vex::DoubleList>({20, 100}));
        Region(film, cover, 2, 1);
    }

    void MakeBoundaryConditions(const Feature& step, const std::string& bracket)
    {
        const char* const container = "HLXBoundaryConditionContainerLT";
        const Feature& history = *vex::FirstChildOfType(Case(1), "HLXHacSimHistLT");
        const Feature& initial = *vex::FirstChildOfType(history, "HLXHacInitialStepLT");
        PutOn(bracket, 2, 1, MakeIn(container, "HLXClamp", initial, "Wall"));
        Feature& settling = MakeIn(container, "HLXDisplacementBC", step, "Settling");
        settling.Set("DisplBCTrans", vex::Boxed<vex::DoubleList>({0, 0, -0.5}));
        settling.Set("u3ON", true);
        PutOn(bracket, 2, 6, settling);
    }

    void MakeTemperature(const Feature& step, const std::string& bracket)
    {
        Feature& sun = MakeIn("HLXTemperatureContainerLT", "HLXTemperatureLT", step, "Sun");
        sun.Set("Magnitude", 60.0);
        PutOn(bracket, 3, 1, sun);
    }

    /// A copy of a specimen under another name.
    std::string Copy(const char* specimen, const std::string& name)
    {
        const std::string path = folder.File(name);
        hlxtest::WriteFile(path, hlxtest::ReadFile(hlxtest::PartSpecimen(folder, specimen)));
        return path;
    }

private:
    const Feature* _ramp = nullptr;
};

TEST_F(InputFileExample, IsTrue)
{
    const std::string bracket = Copy("box", "bracket.VEXPart");
    MakeProduct(bracket);
    MakeJobs();
    MakeModel();
    const Feature& step = AddStep("HLXGeneralStaticStepLT", "Load up");
    MakeLoads(step, bracket, Copy("cylinder", "cover.VEXPart"));
    MakeBoundaryConditions(step, bracket);
    MakeTemperature(step, bracket);
    const Pieces example = Example();
    ASSERT_GT(example.size(), 50u);
    std::size_t next = 0;
    for (const std::string& line : Split(Text(), "\n")) {
        ASSERT_LT(next, example.size()) << line;
        if (IsShortened(example[next], line)) {
            ++next;
        } else {
            EXPECT_TRUE(IsOfContainer(line)) << line << "\nand not " << example[next];
        }
    }
    EXPECT_EQ(next, example.size());
}

}  // namespace
