// SPDX-License-Identifier: Apache-2.0
// Operations of the factory of boundary conditions.
#include "product/conditions/BoundaryConditionFactory.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"
#include "product/conditions/ConditionBuilder.h"

namespace hlx {

using vex::DocumentArgument;
using vex::In;
using vex::Out;
using vex::Probe;

namespace {

constexpr const char* containerType = "HLXBoundaryConditionContainerLT";

}  // namespace

HRESULT BoundaryConditionFactory::CreateDisplacement(VEXISpecObject_var& condition,
                                                     VEXDocument* document,
                                                     VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXIBoundaryConditionsFact::CreateDisplacement">(
        [&] {
            return MakeCondition("HLXDisplacementBC", containerType, condition, document, step);
        },
        Out(condition), In(DocumentArgument{document}), In(step));
}

HRESULT BoundaryConditionFactory::CreateClamp(VEXISpecObject_var& condition, VEXDocument* document,
                                              VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXIBoundaryConditionsFact::CreateClamp">(
        [&] { return MakeCondition("HLXClamp", containerType, condition, document, step); },
        Out(condition), In(DocumentArgument{document}), In(step));
}

HRESULT BoundaryConditionFactory::CreateVelocity(VEXISpecObject_var& condition,
                                                 VEXDocument* document,
                                                 VEXISamAnalysisSet_var& step)
{
    return Probe<"HLXIBoundaryConditionsFact::CreateVelocity">(
        [&] { return MakeCondition("HLXVelocityBCLT", containerType, condition, document, step); },
        Out(condition), In(DocumentArgument{document}), In(step));
}

}  // namespace hlx
