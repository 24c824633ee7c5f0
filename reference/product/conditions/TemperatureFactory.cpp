// SPDX-License-Identifier: Apache-2.0
// Which temperature stands where.
#include "product/conditions/TemperatureFactory.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"
#include "product/conditions/ConditionBuilder.h"

#include <algorithm>
#include <iterator>

namespace hlx {

namespace {

struct Place
{
    std::string_view lateType;
    std::string_view containerType;
};

constexpr Place places[] = {
    {"HLXTemperatureLT", "HLXTemperatureContainerLT"},
    {"HLXTemperatureHistoryLT", "HLXTemperatureContainerLT"},
    {"HLXInitialTemperatureLT", "HLXHacFieldContainerLT"},
};

}  // namespace

HRESULT TemperatureFactory::CreateTemperature(VEXISpecObject_var& temperature,
                                              const VEXUnicodeString& lateType,
                                              VEXDocument* document, VEXISamAnalysisSet_var& step)
{
    return vex::Probe<"HLXITemperatureFact::CreateTemperature">(
        [&]() -> HRESULT {
            const auto* const place = std::ranges::find(places, lateType.View(), &Place::lateType);
            return place == std::end(places) ? E_INVALIDARG
                                             : MakeCondition(place->lateType, place->containerType,
                                                             temperature, document, step);
        },
        vex::Out(temperature), vex::In(lateType), vex::In(vex::DocumentArgument{document}),
        vex::In(step));
}

}  // namespace hlx
