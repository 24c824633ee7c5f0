// SPDX-License-Identifier: Apache-2.0
// Static utilities that create temperatures, in the order of their header, by the procedure of
// loads. Nothing is undone on failure, and nobody releases the factory; kept.
#include "HLXAnalysisTestUtils.h"
#include "HLXConsole.h"
#include "HLXEntityCreation.h"
#include "HLXModelVocabulary.h"
#include "HLXProductUtilities.h"
#include "HLXTemperatures.h"

using namespace HLXEntityCreation;
using HLXConsole::Fail;

namespace {

/// Makes the factory; null when there is none.
HLXITemperatureFact* MakeTemperatureFactory()
{
    HLXITemperatureFact* factory = nullptr;
    const HRESULT rc = MakeFactory("HLXTemperatureFact", factory);
    return FAILED(rc) ? nullptr : factory;
}

/// Creates a temperature. A success that gives nothing is none of its failures; kept.
HRESULT Create(HLXITemperatureFact* factory, VEXISpecObject_var& temperature,
               const VEXUnicodeString& lateType, VEXDocument* document,
               VEXISamAnalysisSet_var& step)
{
    return factory == nullptr ? E_FAIL
                              : factory->CreateTemperature(temperature, lateType, document, step);
}

}  // namespace

HRESULT HLXAnalysisTestUtils::CreateTemperatureBC(VEXDocument* document, VEXUnicodeString& name,
                                                  VEXISpecObject_var& temperature,
                                                  VEXISamAnalysisSet_var& step)
{
    HLXITemperatureFact* const factory = MakeTemperatureFactory();
    if (FAILED(
            Create(factory, temperature, HLXModelVocabulary::HLXTemperatureLT, document, step))) {
        return Fail("Could not create temperature BC in the current step");
    }
    // A temperature that the handle held before is taken for the new one when nothing was made;
    // kept.
    SetAlias(temperature, name);
    const VEXISamAnalysisSupport_var support = SupportOf(temperature);

    const HLXITemperature_var condition = temperature;
    if (condition == nullptr || FAILED(condition->SetMagnitude(25.89))) return E_FAIL;
    condition->SetUseAmplitude(on);
    condition->SetUserSubroutine(on);
    VEXISpecObject_var amplitude;
    if (FAILED(MakeAmplitude(document, amplitude))) return E_FAIL;
    // Whether the temperature took the amplitude is not looked at; kept.
    condition->SetAmplitude(amplitude);

    HLXPartSupport::Part part;
    HLXPartSupport::Cells cells;
    VEXILinkableObject_var face;
    if (FAILED(FindLinkableFace(document, part, cells, face))) return E_FAIL;
    if (FAILED(HLXPartSupport::Add(support, face, part, smartConnector))) {
        return Fail("Could not add support to Temperature BC");
    }
    return S_OK;
}

HRESULT HLXAnalysisTestUtils::CreateInitialTemperature(VEXDocument* document,
                                                       VEXUnicodeString& name,
                                                       VEXISpecObject_var& temperature)
{
    HLXITemperatureFact* const factory = MakeTemperatureFactory();
    VEXISamAnalysisSet* found = nullptr;
    VEXUnicodeString stepName;
    // Whether there is a step is not looked at: the factory refuses an empty one; kept.
    HLXAnalysisDocUtils::ValidateStep(found, HLXModelVocabulary::HLXHacFieldContainerLT, stepName,
                                      on, document);
    VEXISamAnalysisSet_var step = VEXAdopt(found);
    if (FAILED(Create(factory, temperature, HLXModelVocabulary::HLXInitialTemperatureLT, document,
                      step))) {
        return Fail("Could not create initial temperature in the current step");
    }
    SetAlias(temperature, name);
    const VEXISamAnalysisSupport_var support = temperature;
    return SupportOnBody(document, support, "Could not add support to Initial Temperature");
}

HRESULT HLXAnalysisTestUtils::CreateTemperatureHistory(VEXDocument* document,
                                                       VEXUnicodeString& name,
                                                       VEXISamAnalysisEntity_var& history,
                                                       VEXISamAnalysisSet_var& step)
{
    HLXITemperatureFact* const factory = MakeTemperatureFactory();
    VEXISpecObject_var created;
    if (FAILED(Create(factory, created, HLXModelVocabulary::HLXTemperatureHistoryLT, document,
                      step))) {
        return Fail("Could not create temperature history in the current step");
    }
    // Before its support, which may fail; kept.
    history = created;
    SetAlias(created, name);
    const VEXISamAnalysisSupport_var support = created;
    // The words of the film condition; kept.
    return SupportOnBody(document, support, "Could not add support to Film Condition");
}
