// SPDX-License-Identifier: Apache-2.0
// The product's components and the kinds of feature that have interfaces of their own: one line
// each. A kind that is not here has the interfaces of the nearest base in the catalogue that is.
// The rows that these extend are the host's (HostComponents.cpp).
#include "host/component/Adapter.h"
#include "host/feature/Refusal.h"
#include "host/system/Probe.h"
#include "product/amplitudes/AmplitudeAdapter.h"
#include "product/amplitudes/AmplitudeFactory.h"
#include "product/cases/AnalysisCaseAdapters.h"
#include "product/catalog/CatalogFile.h"
#include "product/conditions/BoundaryConditionAdapters.h"
#include "product/conditions/BoundaryConditionFactory.h"
#include "product/conditions/LoadAdapters.h"
#include "product/conditions/LoadFactory.h"
#include "product/conditions/TemperatureAdapters.h"
#include "product/conditions/TemperatureFactory.h"
#include "product/jobs/JobAdapters.h"
#include "product/settings/GeneralSettingController.h"
#include "product/steps/StepContainerFactory.h"
#include "product/steps/StepFactory.h"

namespace hlx {

namespace {

using vex::InterfaceRow;

constexpr VEXInterfaceRow analysisCase[] = {InterfaceRow<AnalysisCaseAdapter>()};
constexpr VEXInterfaceRow analysisCaseFactory[] = {InterfaceRow<AnalysisCaseFactory>()};
constexpr VEXInterfaceRow elementBehaviorFactory[] = {InterfaceRow<ElementBehaviorFactory>()};
constexpr VEXInterfaceRow stepFactory[] = {InterfaceRow<StepFactory>()};
constexpr VEXInterfaceRow amplitudeFactory[] = {InterfaceRow<AmplitudeFactory>()};
constexpr VEXInterfaceRow loadFactory[] = {InterfaceRow<LoadFactory>()};
constexpr VEXInterfaceRow boundaryConditionsFactory[] = {InterfaceRow<BoundaryConditionFactory>()};
constexpr VEXInterfaceRow temperatureFactory[] = {InterfaceRow<TemperatureFactory>()};
constexpr VEXInterfaceRow step[] = {InterfaceRow<StepContainerFactory>()};
constexpr VEXInterfaceRow load[] = {InterfaceRow<ConditionAdapter<HLXICondition>>(),
                                    InterfaceRow<LoadAdapter<HLXILoad>>()};
constexpr VEXInterfaceRow pressure[] = {InterfaceRow<PressureAdapter>()};
constexpr VEXInterfaceRow gravity[] = {InterfaceRow<GravityAdapter>()};
constexpr VEXInterfaceRow rotationalBodyForce[] = {InterfaceRow<RotationalBodyForceAdapter>()};
constexpr VEXInterfaceRow concentratedForce[] = {InterfaceRow<ConcentratedForceAdapter>()};
constexpr VEXInterfaceRow heatFlux[] = {InterfaceRow<HeatFluxAdapter>()};
constexpr VEXInterfaceRow filmCondition[] = {InterfaceRow<FilmConditionAdapter>()};
constexpr VEXInterfaceRow boundaryCondition[] = {
    InterfaceRow<ConditionAdapter<HLXICondition>>(),
    InterfaceRow<ConditionAdapter<HLXIBoundaryCondition>>()};
constexpr VEXInterfaceRow displacement[] = {InterfaceRow<DisplacementAdapter>()};
constexpr VEXInterfaceRow motion[] = {InterfaceRow<MotionAdapter>()};
constexpr VEXInterfaceRow temperature[] = {InterfaceRow<ConditionAdapter<HLXICondition>>(),
                                           InterfaceRow<TemperatureAdapter>()};
constexpr VEXInterfaceRow temperatureHistory[] = {InterfaceRow<TemperatureHistoryAdapter>()};
constexpr VEXInterfaceRow amplitude[] = {InterfaceRow<AmplitudeAdapter<HLXIAmplitude>>()};
constexpr VEXInterfaceRow tabularAmplitude[] = {
    InterfaceRow<AmplitudeAdapter<HLXITabularAmplitude>>()};
constexpr VEXInterfaceRow smoothStepAmplitude[] = {
    InterfaceRow<AmplitudeAdapter<HLXISmoothStepAmplitude>>()};
constexpr VEXInterfaceRow job[] = {InterfaceRow<JobAdapter>()};
constexpr VEXInterfaceRow jobContainer[] = {InterfaceRow<JobFactory>()};
constexpr VEXInterfaceRow settingController[] = {InterfaceRow<GeneralSettingAdapter>(),
                                                 InterfaceRow<SettingRepositoryAdapter>()};

/// Makes a component without state of its own.
template <vex::probe::PointName Name>
VEXBaseUnknown* MakeService(void*)
{
    return new vex::Component(vex::ComponentTypes::Instance().Require(Name.View()));
}

constexpr VEXComponentRow components[] = {
    // Kinds of feature.
    {"HLXHacAnalysisCaseLT", "VEXSamAnalysisCase", analysisCase, nullptr},
    {"HLXHacSimHistLT", "VEXSamAnalysisObject", {}, nullptr},
    {"HLXHacSolutionLT", "VEXSamAnalysisObject", {}, nullptr},
    {"HLXStepLT", "VEXSamAnalysisSet", step, nullptr},
    {"HLXContainerLT", "VEXSamAnalysisObject", {}, nullptr},
    {"HLXJobContainerLT", "HLXContainerLT", jobContainer, nullptr},
    {"HLXEntity", "VEXSamAnalysisEntity", {}, nullptr},
    {"HLXLoad", "HLXEntity", load, nullptr},
    {"HLXPressure", "HLXLoad", pressure, nullptr},
    {"HLXGravity", "HLXLoad", gravity, nullptr},
    {"HLXRotationalBodyForce", "HLXLoad", rotationalBodyForce, nullptr},
    {"HLXConcentratedForce", "HLXLoad", concentratedForce, nullptr},
    {"HLXHeatFlux", "HLXLoad", heatFlux, nullptr},
    {"HLXFilmCondition", "HLXLoad", filmCondition, nullptr},
    {"HLXBoundaryConditionLT", "HLXEntity", boundaryCondition, nullptr},
    {"HLXDisplacementBC", "HLXBoundaryConditionLT", displacement, nullptr},
    {"HLXMotionBCLT", "HLXBoundaryConditionLT", motion, nullptr},
    {"HLXBaseTemperatureLT", "HLXEntity", temperature, nullptr},
    {"HLXTemperatureHistoryLT", "HLXBaseTemperatureLT", temperatureHistory, nullptr},
    {"HLXAmplitudeLT", "VEXFeature", amplitude, nullptr},
    {"HLXTabularAmplitudeLT", "HLXAmplitudeLT", tabularAmplitude, nullptr},
    {"HLXSmoothStepAmplitudeLT", "HLXAmplitudeLT", smoothStepAmplitude, nullptr},
    {"HLXJobLT", "VEXFeature", job, nullptr},
    // Factories and services.
    {"HLXHacAnalysisCaseFact", nullptr, analysisCaseFactory, MakeService<"HLXHacAnalysisCaseFact">},
    {"HLXElementBehaviorFact", nullptr, elementBehaviorFactory,
     MakeService<"HLXElementBehaviorFact">},
    {"HLXAnalysisStepFact", nullptr, stepFactory, MakeService<"HLXAnalysisStepFact">},
    {"HLXAmplitudeFact", nullptr, amplitudeFactory, MakeService<"HLXAmplitudeFact">},
    {"HLXLoadFact", nullptr, loadFactory, MakeService<"HLXLoadFact">},
    {"HLXBoundaryConditionsFact", nullptr, boundaryConditionsFactory,
     MakeService<"HLXBoundaryConditionsFact">},
    {"HLXTemperatureFact", nullptr, temperatureFactory, MakeService<"HLXTemperatureFact">},
    {GeneralSettingController::Name, nullptr, settingController, &GeneralSettingController::Create},
};

HRESULT Start()
{
    std::string error;
    if (!LoadCatalog(CatalogFolders(), error)) {
        return vex::Refuse(E_FAIL, error);
    }
    return S_OK;
}

constexpr VEXComponentLibrary library = {VEXComponentLibraryVersion, "HLXProduct", components,
                                         &Start};

}  // namespace

}  // namespace hlx

const VEXComponentLibrary* VEXGetComponentLibrary()
{
    return &hlx::library;
}
