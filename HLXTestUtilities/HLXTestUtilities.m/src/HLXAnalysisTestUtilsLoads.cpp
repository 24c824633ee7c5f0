// SPDX-License-Identifier: Apache-2.0
// Static utilities that create loads, in the order of their header. All follow one procedure: make
// the factory, create the load in the step, name it, give it its values and an amplitude, find the
// part, add geometry of it as the support. Each keeps its own order of these steps. Nothing is
// undone on failure, and nobody releases the factory; kept.
#include "HLXAnalysisTestUtils.h"
#include "HLXConsole.h"
#include "HLXEntityCreation.h"
#include "HLXLoads.h"

using namespace HLXEntityCreation;
using HLXConsole::Fail;

HRESULT HLXAnalysisTestUtils::CreateGravity(VEXDocument* document, VEXUnicodeString name,
                                            VEXISpecObject_var& gravity,
                                            VEXISamAnalysisSet_var& step)
{
    HLXILoadFact* factory = nullptr;
    if (FAILED(MakeLoadFactory(factory)) || factory == nullptr) return Fail(noLoadFactory);
    VEXISpecObject_var created;
    if (FAILED(factory->CreateGravity(created, document, step)) || created == nullptr) {
        return Fail("********** could not create gravity entity!");
    }
    // What the caller handed in is named, not the new load; kept.
    SetAlias(gravity, name);
    const VEXISamAnalysisSupport_var support = SupportOf(created);

    const HLXIGravity_var load = created;
    VEXIParameter_var x;
    VEXIParameter_var y;
    VEXIParameter_var z;
    if (load) load->GetComponentParameters(x, y, z);
    if (z == nullptr) return Fail("********** Could not valuate gravity");
    z->Valuate(-9.81);

    VEXISpecObject_var amplitude;
    if (FAILED(MakeAmplitude(document, amplitude))) return E_FAIL;
    load->SetUseAmplitude(on);
    if (FAILED(load->SetAmplitude(amplitude))) return E_FAIL;

    if (FAILED(SupportOnBody(document, support, "Could not add support to gravity load"))) {
        return E_FAIL;
    }
    gravity = created;
    return S_OK;
}

HRESULT HLXAnalysisTestUtils::CreatePressureLoad(VEXDocument*& document, VEXUnicodeString name,
                                                 VEXISpecObject_var& pressure,
                                                 VEXISamAnalysisSet_var& step)
{
    HLXPartSupport::Part part;
    if (FAILED(HLXPartSupport::FindPart(document, part))) return E_FAIL;

    HLXILoadFact* factory = nullptr;
    if (FAILED(MakeLoadFactory(factory)) || factory == nullptr) return Fail(noLoadFactory);
    if (FAILED(factory->CreatePressure(pressure, document, step)) || pressure == nullptr) {
        return Fail("********** could not create pressure entity!");
    }
    SetAlias(pressure, name);
    const VEXISamAnalysisSupport_var support = SupportOf(pressure);

    void* queried = nullptr;
    if (FAILED(pressure->QueryInterface(IID_HLXIPressureLoad, &queried)) || queried == nullptr) {
        return Fail("********** could not access interface HLXIPressureLoad !");
    }
    HLXIPressureLoad_var load = VEXAdopt(static_cast<HLXIPressureLoad*>(queried));
    VEXIParameter_var parameter;
    if (FAILED(load->GetPressureParameter(parameter)) || parameter == nullptr) {
        load.Reset();
        return Fail("********** could not access pressure parameter !");
    }
    parameter->Valuate(1.25);
    load->SetUserSubroutine(off);
    load->SetUseAmplitude(on);

    VEXISpecObject_var amplitude;
    if (FAILED(MakeAmplitude(document, amplitude))) return E_FAIL;
    const HRESULT rc = load->SetAmplitude(amplitude);
    load.Reset();
    // The message is about another attribute; kept.
    if (FAILED(rc)) return Fail("********** Could not set user sub attribute");

    if (FAILED(SupportOnFace(part, support, "Could not add support to Pressure"))) return E_FAIL;

    VEXISamMeshNegotiator* found = nullptr;
    // The pointer tells, the result is not looked at; kept.
    if (part.model) part.model->GetMeshNegotiator(found);
    const VEXISamMeshNegotiator_var negotiator = VEXAdopt(found);
    if (negotiator && SUCCEEDED(negotiator->Subscribe(pressure))) {
        // Spelled so; kept.
        HLXConsole::PrintLine("subscription to MeshNegociator OK");
    }
    return S_OK;
}

HRESULT HLXAnalysisTestUtils::CreateRBF(VEXDocument* document, VEXUnicodeString name,
                                        VEXISpecObject_var& bodyForce, VEXISamAnalysisSet_var& step)
{
    HLXILoadFact* factory = nullptr;
    if (FAILED(MakeLoadFactory(factory)) || factory == nullptr) return Fail(noLoadFactory);
    VEXISpecObject_var created;
    if (FAILED(factory->CreateRotationalBodyForce(created, document, step)) || created == nullptr) {
        return Fail("********** could not create centrifugal load entity!");
    }
    // What the caller handed in is named, not the new load; kept.
    SetAlias(bodyForce, name);
    const VEXISamAnalysisSupport_var support = SupportOf(created);

    const HLXIRotationalBodyForce_var load = created;
    VEXIParameter_var velocity;
    VEXIParameter_var acceleration;
    if (load) load->GetRotationParameters(velocity, acceleration);
    if (velocity == nullptr || acceleration == nullptr) {
        return Fail("********** Could not valuate RBF velocity");
    }
    velocity->Valuate(1.73205);
    acceleration->Valuate(5.25);

    VEXISpecObject_var amplitude;
    if (FAILED(MakeAmplitude(document, amplitude))) return E_FAIL;
    load->SetUseAmplitude(on);
    if (FAILED(load->SetAmplitude(amplitude))) {
        // The message is about another attribute; kept.
        return Fail("********** Could not set user sub attribute");
    }

    HLXPartSupport::Part part;
    HLXPartSupport::Cells cells;
    if (FAILED(HLXPartSupport::FindPart(document, part)) ||
        FAILED(HLXPartSupport::FindCells(part, cells))) {
        return E_FAIL;
    }
    // The edge itself, not an access to it; kept.
    const VEXILinkableObject_var edge = VEXEdge_var(VEXShare(cells.edges[1]));
    if (edge == nullptr) return E_FAIL;
    const VEXILinkableObject_var body = HLXPartSupport::FindBody(part);
    if (body == nullptr) return E_FAIL;
    // Whether the load took the axis is not looked at; kept.
    load->SetAxis(edge, part.linkable);
    if (FAILED(HLXPartSupport::Add(support, body, part, smartConnector))) {
        // The words of another load; kept.
        return Fail("Could not add support to gravity load");
    }
    bodyForce = created;
    return S_OK;
}

HRESULT HLXAnalysisTestUtils::CreatedConcForce(VEXDocument* document, VEXUnicodeString name,
                                               VEXISpecObject_var& force,
                                               VEXISamAnalysisSet_var& step)
{
    HLXILoadFact* factory = nullptr;
    if (FAILED(MakeLoadFactory(factory)) || factory == nullptr) return Fail(noLoadFactory);
    VEXISpecObject_var created;
    if (FAILED(factory->CreateConcentratedForce(created, document, step)) || created == nullptr) {
        return Fail("********** could not create conc force entity!");
    }
    SetAlias(created, name);
    const VEXISamAnalysisSupport_var support = SupportOf(created);

    const HLXIConcentratedForce_var load = created;
    if (load) {
        load->SetComponentX(1.0);
        load->SetComponentY(0.0);
        load->SetComponentZ(0.0);
    }
    VEXISpecObject_var amplitude;
    if (FAILED(MakeAmplitude(document, amplitude))) return E_FAIL;
    if (load) load->SetUseAmplitude(on);
    if (load == nullptr || FAILED(load->SetAmplitude(amplitude))) return E_FAIL;

    HLXPartSupport::Part part;
    if (FAILED(HLXPartSupport::FindPart(document, part))) return E_FAIL;
    if (FAILED(SupportOnVertex(part, support))) return E_FAIL;
    force = created;
    return S_OK;
}

HRESULT HLXAnalysisTestUtils::CreateConcHTFlux(VEXDocument* document, VEXUnicodeString name,
                                               VEXISpecObject_var& flux,
                                               VEXISamAnalysisSet_var& step)
{
    HLXILoadFact* factory = nullptr;
    // The pointer tells, the result is not looked at; kept.
    MakeLoadFactory(factory);
    VEXISpecObject_var created;
    if (factory == nullptr ||
        FAILED(factory->CreateHeatFlux(created, "HLXConcHeatFlux", document, step)) ||
        created == nullptr) {
        return Fail("could not create Concentrated Heat Flux entity!");
    }
    flux = created;
    SetAlias(flux, name);
    const VEXISamAnalysisSupport_var support = SupportOf(created);

    const HLXIHeatFlux_var load = created;
    if (load) {
        load->SetMagnitude(4.6589);
        load->SetUseAmplitude(on);
        load->SetUserSubroutine(on);
    }
    VEXISpecObject_var amplitude;
    if (FAILED(MakeAmplitude(document, amplitude))) return E_FAIL;
    // Whether the load took the amplitude is not looked at; kept.
    if (load) load->SetAmplitude(amplitude);

    HLXPartSupport::Part part;
    if (FAILED(HLXPartSupport::FindPart(document, part))) return E_FAIL;
    return SupportOnVertex(part, support);
}

HRESULT HLXAnalysisTestUtils::CreateFilmCondition(VEXDocument* document, VEXUnicodeString name,
                                                  VEXISpecObject_var& film,
                                                  VEXISamAnalysisSet_var& step)
{
    HLXILoadFact* factory = nullptr;
    // The pointer tells, the result is not looked at; kept.
    MakeLoadFactory(factory);
    VEXISpecObject_var created;
    if (factory == nullptr || FAILED(factory->CreateFilmCondition(created, document, step)) ||
        created == nullptr) {
        return Fail("could not create Film Condition entity!");
    }
    film = created;
    SetAlias(film, name);
    const VEXISamAnalysisSupport_var support = SupportOf(created);

    const HLXIFilmCondition_var load = created;
    if (load == nullptr || FAILED(load->SetTemperature(51.0))) return E_FAIL;
    load->SetUserSubroutine(off);
    load->SetUseAmplitude(on);
    VEXISpecObject_var amplitude;
    if (FAILED(MakeAmplitude(document, amplitude))) return E_FAIL;
    // Whether the load took either amplitude is not looked at; kept.
    load->SetAmplitude(amplitude);
    VEXISpecObject_var filmAmplitude;
    if (FAILED(MakeAmplitude(document, filmAmplitude))) return E_FAIL;
    load->SetFilmAmplitude(filmAmplitude);

    VEXRawColldouble coefficients;
    for (const double coefficient : {1.2, 2.4, 3.5})
        coefficients.Append(coefficient);
    if (FAILED(load->SetCoefficients(coefficients))) return E_FAIL;
    VEXRawColldouble temperatures;
    for (const double temperature : {10.0, 20.0, 30.0})
        temperatures.Append(temperature);
    if (FAILED(load->SetTemperatures(temperatures))) return E_FAIL;

    HLXPartSupport::Part part;
    if (FAILED(HLXPartSupport::FindPart(document, part))) return E_FAIL;
    return SupportOnFace(part, support, "Could not add support to Film Condition");
}
