// SPDX-License-Identifier: Apache-2.0
// Operations of the factory of loads.
#include "product/conditions/LoadFactory.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"

namespace hlx {

using vex::DocumentArgument;
using vex::In;
using vex::Out;
using vex::Probe;

namespace {

HRESULT NotMade()
{
    return E_NOTIMPL;
}

}  // namespace

HRESULT LoadFactory::CreatePressure(VEXISpecObject_var& load, VEXDocument* document,
                                    VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreatePressure">(NotMade, Out(load), In(DocumentArgument{document}),
                                                 In(step));
}

HRESULT LoadFactory::CreateHeatFlux(VEXISpecObject_var& load, const VEXUnicodeString& lateType,
                                    VEXDocument* document, VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateHeatFlux">(NotMade, Out(load), In(lateType),
                                                 In(DocumentArgument{document}), In(step));
}

HRESULT LoadFactory::CreateGravity(VEXISpecObject_var& load, VEXDocument* document,
                                   VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateGravity">(NotMade, Out(load), In(DocumentArgument{document}),
                                                In(step));
}

HRESULT LoadFactory::CreateRotationalBodyForce(VEXISpecObject_var& load, VEXDocument* document,
                                               VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateRotationalBodyForce">(
        NotMade, Out(load), In(DocumentArgument{document}), In(step));
}

HRESULT LoadFactory::CreateConcentratedForce(VEXISpecObject_var& load, VEXDocument* document,
                                             VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateConcentratedForce">(NotMade, Out(load),
                                                          In(DocumentArgument{document}), In(step));
}

HRESULT LoadFactory::CreateFilmCondition(VEXISpecObject_var& load, VEXDocument* document,
                                         VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateFilmCondition">(NotMade, Out(load),
                                                      In(DocumentArgument{document}), In(step));
}

}  // namespace hlx
