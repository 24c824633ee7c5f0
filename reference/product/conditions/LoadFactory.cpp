// SPDX-License-Identifier: Apache-2.0
// Operations of the factory of loads.
#include "product/conditions/LoadFactory.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"
#include "product/conditions/ConditionBuilder.h"

#include <algorithm>
#include <iterator>

namespace hlx {

using vex::DocumentArgument;
using vex::In;
using vex::Out;
using vex::Probe;

namespace {

constexpr std::string_view heatFluxes[] = {
    "HLXConcHeatFlux",
    "HLXSurfaceHeatFlux",
    "HLXBodyHeatFlux",
};

HRESULT Make(std::string_view lateType, VEXISpecObject_var& load, const VEXDocument* document,
             const VEXISamAnalysisSet_var& step)
{
    return MakeCondition(lateType, "HLXLoadContainerLT", load, document, step);
}

}  // namespace

HRESULT LoadFactory::CreatePressure(VEXISpecObject_var& load, VEXDocument* document,
                                    VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreatePressure">(
        [&] { return Make("HLXPressure", load, document, step); }, Out(load),
        In(DocumentArgument{document}), In(step));
}

HRESULT LoadFactory::CreateHeatFlux(VEXISpecObject_var& load, const VEXUnicodeString& lateType,
                                    VEXDocument* document, VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateHeatFlux">(
        [&]() -> HRESULT {
            const std::string_view type = lateType.View();
            return std::ranges::find(heatFluxes, type) == std::end(heatFluxes)
                       ? E_INVALIDARG
                       : Make(type, load, document, step);
        },
        Out(load), In(lateType), In(DocumentArgument{document}), In(step));
}

HRESULT LoadFactory::CreateGravity(VEXISpecObject_var& load, VEXDocument* document,
                                   VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateGravity">(
        [&] { return Make("HLXGravity", load, document, step); }, Out(load),
        In(DocumentArgument{document}), In(step));
}

HRESULT LoadFactory::CreateRotationalBodyForce(VEXISpecObject_var& load, VEXDocument* document,
                                               VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateRotationalBodyForce">(
        [&] { return Make("HLXRotationalBodyForce", load, document, step); }, Out(load),
        In(DocumentArgument{document}), In(step));
}

HRESULT LoadFactory::CreateConcentratedForce(VEXISpecObject_var& load, VEXDocument* document,
                                             VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateConcentratedForce">(
        [&] { return Make("HLXConcentratedForce", load, document, step); }, Out(load),
        In(DocumentArgument{document}), In(step));
}

HRESULT LoadFactory::CreateFilmCondition(VEXISpecObject_var& load, VEXDocument* document,
                                         VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXILoadFact::CreateFilmCondition">(
        [&] { return Make("HLXFilmCondition", load, document, step); }, Out(load),
        In(DocumentArgument{document}), In(step));
}

}  // namespace hlx
