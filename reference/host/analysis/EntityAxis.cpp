// SPDX-License-Identifier: Apache-2.0
// Axes of entities.
#include "host/analysis/EntityAxis.h"

#include "host/feature/FeatureSearch.h"
#include "host/feature/FeatureTree.h"
#include "host/feature/Refusal.h"
#include "host/part/Region.h"
#include "host/part/RegionGeometry.h"

namespace vex {

namespace {

constexpr const char* axisType = "VEXSamAxis";

}  // namespace

HRESULT SetAxis(Feature& entity, std::string_view attribute, const VEXILinkableObject_var& edge,
                const VEXISpecObject_var& part)
{
    if (entity.Tree() == nullptr) {
        return E_FAIL;
    }
    Document* document = nullptr;
    RegionGeometry description;
    std::string error;
    const HRESULT result = DescribeGeometry(edge, part, document, description, error);
    if (FAILED(result)) {
        return error.empty() ? result : Refuse(result, error);
    }
    if (description.dimension != 1) {
        return E_INVALIDARG;
    }
    Feature* const known = FirstChildOfType(entity, axisType);
    Feature& axis = known != nullptr ? *known : AddFeature(entity, axisType);
    entity.Set(attribute, Reference{axis.Id()});
    return SetRegion(axis, *document, description);
}

}  // namespace vex
