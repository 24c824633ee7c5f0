// SPDX-License-Identifier: Apache-2.0
// Boundary conditions and temperatures in the steps of an analysis document, kinds that another
// catalogue adds to them, and documents that are closed and opened again.
#pragma once

#include "HLXBoundaryConditions.h"
#include "HLXTemperatures.h"
#include "reference/analysis/EntityFixture.h"

#include <cmath>
#include <limits>

namespace hlxtest {

inline constexpr double infinity = std::numeric_limits<double>::infinity();

/// Late types as a catalogue of somebody else's has them: CndDisplacement (with a vector "Tilt" of
/// two numbers and a list without a default), CndMotion, CndTemperature, CndHistory, CndJob, and
/// what stands in a case: CndStep, CndInitialStep, CndHistoryOfSteps, CndContainer,
/// CndFieldContainer.
inline void AddForeignTypes()
{
    static const bool added = [] {
        using vex::ValueKind;
        const vex::Boxed<vex::DoubleList> tilt(vex::DoubleList{0.5, 0.25});
        std::string error;
        EXPECT_TRUE(vex::LateTypes::Instance().Add(
            {{"CndDisplacement",
              "HLXDisplacementBC",
              {{"Tilt", ValueKind::List, tilt},
               {"Untold", ValueKind::List, vex::Boxed<vex::DoubleList>()},
               {"Loose", ValueKind::Boolean, true}}},
             {"CndMotion", "HLXMotionBCLT", {}},
             {"CndTemperature", "HLXTemperatureLT", {}},
             {"CndHistory", "HLXTemperatureHistoryLT", {}},
             {"CndJob", "HLXJobLT", {}},
             {"CndStep", "HLXGeneralStaticStepLT", {}},
             {"CndInitialStep", "HLXHacInitialStepLT", {}},
             {"CndHistoryOfSteps", "HLXHacSimHistLT", {}},
             {"CndContainer", "HLXContainerLT", {}},
             {"CndFieldContainer", "HLXHacFieldContainerLT", {}}},
            error))
            << error;
        return true;
    }();
    EXPECT_TRUE(added);
}

class ConditionTest : public EntityTest
{
protected:
    ConditionTest() { AddForeignTypes(); }

    static VEXISamAnalysisSet_var Set(const vex::Feature& feature)
    {
        return vex::FaceOf<VEXISamAnalysisSet>(&feature);
    }

    /// The step that the case has from the start.
    vex::Feature& InitialStep() const
    {
        return *vex::FirstChildOfType(*step->Parent(), "HLXHacInitialStepLT");
    }

    VEXVar<HLXIBoundaryConditionsFact> conditions =
        Service<HLXIBoundaryConditionsFact>("HLXBoundaryConditionsFact");
    VEXVar<HLXITemperatureFact> temperatures = Service<HLXITemperatureFact>("HLXTemperatureFact");

    /// An interface of a condition at the end of the step's boundary conditions.
    template <class Interface>
    VEXVar<Interface> Condition(const char* lateType)
    {
        return vex::FaceOf<Interface>(
            &Make(lateType, *vex::FirstChildOfType(*step, "HLXBoundaryConditionContainerLT")));
    }

    /// A feature of a late type as somebody else left it in the document.
    VEXISpecObject_var Object(const char* lateType)
    {
        return vex::FaceOf<VEXISpecObject>(&Make(lateType, *model));
    }

    /// Stores the document, closes it and opens it again.
    /// @return the feature that was stored with that number
    vex::Feature& Reopened(vex::FeatureId id)
    {
        const std::string path = folder.File("conditions.VEXAnalysis");
        analysis.SaveAs(path);
        EXPECT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
        EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), analysis.Get(), 0),
                  S_OK);
        vex::Feature* const found = Inside(*analysis.Get()).Tree().Find(id);
        EXPECT_NE(found, nullptr);
        return *found;
    }

    /// What HLXICondition promises, through any interface that has its operations: an amplitude of
    /// the document, and whether it is used.
    void ExpectAmplitudes(HLXICondition& condition)
    {
        SCOPED_TRACE(condition.IsA());
        const VEXISpecObject_var tabular = Object("HLXTabularAmplitudeLT");
        const VEXISpecObject_var smooth = Object("HLXSmoothStepAmplitudeLT");
        VEXISpecObject_var found = tabular;
        unsigned char use = 7;
        EXPECT_EQ(condition.SetAmplitude({}), S_OK);
        EXPECT_EQ(condition.GetAmplitude(found), S_OK);
        EXPECT_FALSE(found);
        EXPECT_EQ(condition.SetUseAmplitude(1), S_OK);
        EXPECT_EQ(condition.GetUseAmplitude(use), S_OK);
        EXPECT_EQ(use, 1) << "it may be missing while it is used";
        for (const VEXISpecObject_var& wanted : {tabular, smooth, VEXISpecObject_var(), tabular}) {
            EXPECT_EQ(condition.SetAmplitude(wanted), S_OK);
            EXPECT_EQ(condition.GetAmplitude(found), S_OK);
            EXPECT_EQ(found, wanted);
        }
        for (const unsigned char flag : std::initializer_list<unsigned char>{1, 0, 255, 128, 0}) {
            use = 7;
            EXPECT_EQ(condition.SetUseAmplitude(flag), S_OK);
            EXPECT_EQ(condition.GetUseAmplitude(use), S_OK);
            EXPECT_EQ(use, flag == 0 ? 0 : 1);
            EXPECT_EQ(condition.GetAmplitude(found), S_OK);
            EXPECT_EQ(found, tabular) << "it is kept while it is not used";
        }
        ExpectAmplitudeRefused(condition, tabular);
        FeatureOf(tabular).Tree()->Delete(FeatureOf(tabular));
        found = smooth;
        EXPECT_EQ(condition.GetAmplitude(found), S_OK);
        EXPECT_FALSE(found) << "it was deleted";
    }

    /// What is no amplitude of the document is refused; the old one stays.
    void ExpectAmplitudeRefused(HLXICondition& condition, const VEXISpecObject_var& old)
    {
        AnalysisDocument other(1);
        const VEXISpecObject_var foreign = vex::FaceOf<VEXISpecObject>(
            &Make("HLXTabularAmplitudeLT", *Inside(*other.Get()).SpecContainer()));
        const VEXISpecObject_var gone = Object("HLXTabularAmplitudeLT");
        FeatureOf(gone).Tree()->Delete(FeatureOf(gone));
        const VEXISpecObject_var itself =
            vex::FaceOf<VEXISpecObject>(vex::FeatureBehind(&condition));
        for (const VEXISpecObject_var& wrong :
             {foreign, gone, itself, vex::FaceOf<VEXISpecObject>(step), Object("HLXJobLT")}) {
            EXPECT_EQ(condition.SetAmplitude(wrong), E_INVALIDARG);
            VEXISpecObject_var found;
            EXPECT_EQ(condition.GetAmplitude(found), S_OK);
            EXPECT_EQ(found, old);
        }
    }

    /// The same operations of a condition that is gone.
    static void ExpectAmplitudesGone(HLXICondition& condition, const VEXISpecObject_var& amplitude)
    {
        SCOPED_TRACE(condition.IsA());
        VEXISpecObject_var found = amplitude;
        unsigned char flag = 7;
        EXPECT_EQ(condition.SetAmplitude(amplitude), E_FAIL);
        EXPECT_EQ(condition.SetAmplitude({}), E_FAIL);
        EXPECT_EQ(condition.GetAmplitude(found), E_FAIL);
        EXPECT_FALSE(found);
        EXPECT_EQ(condition.SetUseAmplitude(1), E_FAIL);
        EXPECT_EQ(condition.GetUseAmplitude(flag), E_FAIL);
        EXPECT_EQ(flag, 7) << "left as it is";
        EXPECT_EQ(condition.IsNull(), 1);
    }

    /// A setter and a getter of one number agree, and refuse what is not finite.
    template <class Setter, class Getter>
    static void ExpectNumber(Setter set, Getter get)
    {
        double found = 7;
        EXPECT_EQ(get(found), S_OK);
        EXPECT_EQ(found, 0);
        for (const double number : {1.5, std::numeric_limits<double>::max(), 5e-324, -2.25}) {
            EXPECT_EQ(set(number), S_OK);
            EXPECT_EQ(get(found), S_OK);
            EXPECT_EQ(found, number);
        }
        for (const double number : {infinity, -infinity, std::nan("")}) {
            EXPECT_EQ(set(number), E_INVALIDARG);
            EXPECT_EQ(get(found), S_OK);
            EXPECT_EQ(found, -2.25) << "the old one stays";
        }
    }

    /// A setter and a getter of one flag agree; any byte but 0 sets it.
    template <class Setter, class Getter>
    static void ExpectFlag(Setter set, Getter get)
    {
        unsigned char found = 7;
        EXPECT_EQ(get(found), S_OK);
        EXPECT_EQ(found, 0);
        for (const unsigned char flag :
             std::initializer_list<unsigned char>{1, 0, 255, 2, 0, 128}) {
            EXPECT_EQ(set(flag), S_OK);
            EXPECT_EQ(get(found), S_OK);
            EXPECT_EQ(found, flag == 0 ? 0 : 1);
        }
    }
};

}  // namespace hlxtest
