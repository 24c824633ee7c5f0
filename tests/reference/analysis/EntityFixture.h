// SPDX-License-Identifier: Apache-2.0
// An analysis document with a step, its loads, and part documents that they can be applied to.
#pragma once

#include "HLXAmplitudes.h"
#include "HLXILoadFact.h"
#include "HLXLoads.h"
#include "VEXComponents.h"
#include "VEXEntities.h"
#include "host/analysis/AnalysisObjects.h"
#include "product/steps/StepBuilder.h"
#include "reference/part/PartFixture.h"
#include "support/AnalysisDocuments.h"
#include "support/Capture.h"
#include "support/Outcome.h"

#include <string>
#include <vector>

namespace hlxtest {

template <class Interface>
VEXVar<Interface> Service(const char* name)
{
    void* object = nullptr;
    EXPECT_EQ(VEXInstantiateComponent(name, VEXInterfaceTraits<Interface>::Id, &object), S_OK);
    return VEXAdopt(static_cast<Interface*>(object));
}

class EntityTest : public PartTest
{
protected:
    EntityTest() : analysis(1)
    {
        vex::Feature* const manager = vex::AnalysisManagerOf(Inside(*analysis.Get()));
        model = manager->Target("CurrentModel");
        analysisCase = vex::FirstChildOfType(*model, "HLXHacAnalysisCaseLT");
        std::string error;
        step = hlx::AddStep(*analysisCase, "HLXGeneralStaticStepLT", "Load up", error);
        EXPECT_NE(step, nullptr) << error;
        loads = vex::FirstChildOfType(*step, "HLXLoadContainerLT");
    }

    static vex::Feature& FeatureOf(const VEXBaseUnknown_var& object)
    {
        return *vex::FeatureBehind(object.Get());
    }

    static vex::Feature& Make(const char* lateType, vex::Feature& parent)
    {
        return parent.Tree()->Create(vex::LateTypes::Instance().Require(lateType), &parent);
    }

    /// An interface of a new load, at the end of the step's.
    template <class Interface = VEXISamAnalysisSupport>
    VEXVar<Interface> Load(const char* lateType = "HLXPressure")
    {
        return vex::FaceOf<Interface>(&Make(lateType, *loads));
    }

    void RemoveAnalysis() { ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK); }

    static VEXISpecObject_var PartFeature(VEXDocument& part)
    {
        return VEXISpecObject_var(PartOf(part));
    }

    /// A cell (from 0) of a body, as it is.
    static VEXILinkableObject_var CellOf(const VEXBody_var& body, short dimension,
                                         std::size_t number = 0)
    {
        return VEXILinkableObject_var(VEXShare(Cells(body, dimension)[number]));
    }

    /// The access to a cell.
    static VEXILinkableObject_var AccessTo(VEXDocument& part, const VEXBody_var& body,
                                           short dimension, std::size_t number = 0)
    {
        return VEXILinkableObject_var(
            VEXBRepDecode(AccessesOf(part), VEXShare(Cells(body, dimension)[number]), body));
    }

    static std::vector<VEXISamSupport_var> Supports(const VEXISamAnalysisSupport_var& entity)
    {
        VEXListValVEXBaseUnknown_var list;
        EXPECT_EQ(entity->GetSupports(list), S_OK);
        std::vector<VEXISamSupport_var> supports;
        for (int i = 1; i <= list.Size(); ++i) {
            supports.emplace_back(VEXISamSupport_var(list[i]));
        }
        return supports;
    }

    /// The support of a pressure on the first face of the box, whose document is open.
    vex::Feature& SupportOnBox()
    {
        VEXDocument& box = Open("box");
        const VEXBody_var body = BodyOf(box);
        const auto load = Load();
        EXPECT_EQ(load->AddSupport(CellOf(body, 2), PartFeature(box), "GeometrySmartConnector"),
                  S_OK);
        return FeatureOf(Supports(load)[0]);
    }

    AnalysisDocument analysis;
    vex::Feature* model = nullptr;
    vex::Feature* analysisCase = nullptr;
    vex::Feature* step = nullptr;
    vex::Feature* loads = nullptr;
};

}  // namespace hlxtest
