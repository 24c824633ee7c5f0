// SPDX-License-Identifier: Apache-2.0
// What every component owes whoever holds one of its interfaces, checked through interfaces only,
// for each row of the component table: made once as a specimen, asked for all its interfaces from
// each of them.
#include "VEXComponents.h"
#include "VEXDocumentServices.h"
#include "VEXEntities.h"
#include "VEXFeatures.h"
#include "VEXMetaClass.h"
#include "host/analysis/EntityParameter.h"
#include "host/component/ComponentTypes.h"
#include "host/feature/Document.h"
#include "host/part/Body.h"
#include "support/GeometrySpecimens.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using vex::ComponentType;
using vex::ComponentTypes;
using vex::InterfaceEntry;

/// The components that the table's rows describe, each held by one reference.
class Specimens
{
public:
    Specimens()
    {
        AddDocuments();
        AddFeatures();
        AddServices();
        AddCells();
    }

    ~Specimens()
    {
        _objects.clear();
        for (VEXDocument* const document : _documents) {
            VEXDocumentServices::Remove(*document, 1);
        }
    }

    const std::vector<VEXBaseUnknown_var>& All() const { return _objects; }

private:
    void AddDocuments()
    {
        for (const char* const type : {"VEXAnalysis", "VEXProduct", "VEXPart"}) {
            VEXDocument* document = nullptr;
            EXPECT_EQ(VEXDocumentServices::New(type, document), S_OK) << type;
            _documents.push_back(document);
            _objects.push_back(VEXShare(document->GetImpl()));
        }
    }

    /// One feature of each late type, attributes, a key of one, and parameters.
    void AddFeatures()
    {
        vex::FeatureTree& tree = vex::Document::From(_documents.front())->Tree();
        for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
            vex::Feature& feature = tree.Create(*type, tree.Roots().front());
            _objects.push_back(VEXShare<VEXBaseUnknown>(&feature));
        }
        const VEXISpecObject_var manager =
            VEXShare<VEXBaseUnknown>(tree.Roots().front()->Children().front());
        const VEXListPtrVEXISpecAttribute* const attributes = manager->ListAttributes("", "", "");
        for (int i = 1; i <= attributes->Size(); ++i) {
            _objects.push_back(VEXAdopt((*attributes)[i]));
        }
        delete attributes;
        vex::Feature& gravity =
            tree.Create(vex::LateTypes::Instance().Require("HLXGravity"), tree.Roots().front());
        _objects.push_back(vex::ParameterOf(gravity, "ComponentX"));
        vex::Feature& displacement = tree.Create(
            vex::LateTypes::Instance().Require("HLXDisplacementBC"), tree.Roots().front());
        VEXIVectorParameter_var vector;
        EXPECT_EQ(vex::FaceOf<VEXISamAnalysisEntity>(&displacement)
                      ->GetVectorParameter("DisplBCTrans", vector),
                  S_OK);
        _objects.push_back(vector);
        _objects.push_back(vex::FaceOf<VEXISpecAttrAccess>(&displacement)->GetAttrKey("fixON"));
    }

    void AddServices()
    {
        for (const ComponentType* const type : ComponentTypes::Instance().All()) {
            void* object = nullptr;
            if (type->create != nullptr) {
                EXPECT_EQ(VEXInstantiateComponent(type->name.c_str(), IID_VEXBaseUnknown, &object),
                          S_OK)
                    << type->name;
                _objects.push_back(VEXAdopt(static_cast<VEXBaseUnknown*>(object)));
            }
        }
    }

    /// A body, its domain and a cell of each dimension.
    void AddCells()
    {
        VEXDocument* document = nullptr;
        const VEXUnicodeString path(hlxtest::PartSpecimen(_folder, "box"));
        EXPECT_EQ(VEXDocumentServices::OpenDocument(path, document, 0), S_OK);
        _documents.push_back(document);
        std::string error;
        const vex::BodyHolder body = vex::Body::Of(*vex::Document::From(document), error);
        EXPECT_NE(body, nullptr) << error;
        _objects.push_back(VEXShare<VEXBaseUnknown>(body.get()));
        _objects.push_back(VEXShare<VEXBaseUnknown>(body->DomainAt(0, 1)));
        for (int dimension = 0; dimension <= 3; ++dimension) {
            _objects.push_back(VEXShare<VEXBaseUnknown>(body->CellAt(dimension, 1)));
        }
    }

    hlxtest::TemporaryFolder _folder;
    std::vector<VEXDocument*> _documents;
    std::vector<VEXBaseUnknown_var> _objects;
};

const ComponentType& RowOf(const VEXBaseUnknown_var& object)
{
    return static_cast<const vex::Component*>(object->GetImpl())->Type();
}

VEXBaseUnknown_var Ask(const VEXBaseUnknown_var& object, const IID& iid)
{
    void* answer = nullptr;
    EXPECT_EQ(object->QueryInterface(iid, &answer), S_OK);
    return VEXAdopt(static_cast<VEXBaseUnknown*>(answer));
}

class ComponentContract : public testing::Test
{
protected:
    void ForEach(void (*check)(const VEXBaseUnknown_var&, const ComponentType&))
    {
        for (const VEXBaseUnknown_var& object : specimens.All()) {
            SCOPED_TRACE(object->IsA());
            check(object, RowOf(object));
        }
    }

    Specimens specimens;
};

TEST_F(ComponentContract, EveryRowHasASpecimen)
{
    std::set<const ComponentType*> seen;
    for (const VEXBaseUnknown_var& object : specimens.All()) {
        for (const ComponentType* row = &RowOf(object); row != nullptr; row = row->base) {
            seen.insert(row);
        }
    }
    for (const ComponentType* const row : ComponentTypes::Instance().All()) {
        EXPECT_TRUE(seen.contains(row)) << row->name;
    }
}

TEST_F(ComponentContract, EachInterfaceIsReachedByIdentifierAndByNameAndIsTheSameBoth)
{
    ForEach([](const VEXBaseUnknown_var& object, const ComponentType& row) {
        for (const InterfaceEntry& entry : row.interfaces) {
            SCOPED_TRACE(entry.name);
            EXPECT_EQ(entry.id, VEXGuidOfName(entry.name.c_str()));
            void* byName = nullptr;
            EXPECT_EQ(object->QueryInterface(entry.name.c_str(), &byName), S_OK);
            const auto named = VEXAdopt(static_cast<VEXBaseUnknown*>(byName));
            EXPECT_EQ(named.Get(), Ask(object, entry.id).Get());
        }
    });
}

TEST_F(ComponentContract, EveryInterfaceLeadsToEveryOther)
{
    ForEach([](const VEXBaseUnknown_var& object, const ComponentType& row) {
        for (const InterfaceEntry& from : row.interfaces) {
            const VEXBaseUnknown_var start = Ask(object, from.id);
            EXPECT_EQ(Ask(start, IID_VEXBaseUnknown).Get(), object->GetImpl()) << from.name;
            for (const InterfaceEntry& to : row.interfaces) {
                EXPECT_EQ(Ask(start, to.id).Get(), Ask(object, to.id).Get())
                    << from.name << " to " << to.name;
            }
        }
    });
}

TEST_F(ComponentContract, AllInterfacesAreOneComponent)
{
    ForEach([](const VEXBaseUnknown_var& object, const ComponentType& row) {
        for (const InterfaceEntry& entry : row.interfaces) {
            const VEXBaseUnknown_var face = Ask(object, entry.id);
            EXPECT_EQ(face->GetImpl(), object->GetImpl());
            EXPECT_EQ(face->IsEqual(object.Get()), 1);
            EXPECT_EQ(object->IsEqual(face.Get()), 1);
            EXPECT_EQ(face->IsEqual(nullptr), 0);
            EXPECT_STREQ(face->IsA(), object->IsA());
            EXPECT_EQ(face->IsAKindOf(object->IsA()), 1);
            EXPECT_EQ(face->IsAKindOf("NoSuchClass"), 0);
            EXPECT_EQ(face->IsAKindOf(nullptr), 0);
            EXPECT_EQ(face->IsNull(), 0);
            EXPECT_EQ(face->GetMetaObject(), object->GetMetaObject());
            EXPECT_STREQ(face->GetMetaObject()->GetName(), object->IsA());
        }
    });
}

TEST_F(ComponentContract, CountsAreThoseOfTheComponent)
{
    ForEach([](const VEXBaseUnknown_var& object, const ComponentType& row) {
        for (const InterfaceEntry& entry : row.interfaces) {
            const unsigned long before = object->AddRef();
            {
                const VEXBaseUnknown_var face = Ask(object, entry.id);
                EXPECT_EQ(face->AddRef(), before + 2) << entry.name;
                EXPECT_EQ(face->Release(), before + 1) << entry.name;
            }
            EXPECT_EQ(object->Release(), before - 1) << entry.name;
        }
    });
}

TEST_F(ComponentContract, WhatItLacksIsRefusedAndLeavesNull)
{
    ForEach([](const VEXBaseUnknown_var& object, const ComponentType& row) {
        std::vector<VEXBaseUnknown_var> faces{object};
        for (const InterfaceEntry& entry : row.interfaces) {
            faces.push_back(Ask(object, entry.id));
        }
        for (const VEXBaseUnknown_var& face : faces) {
            void* answer = &faces;
            EXPECT_EQ(face->QueryInterface(VEXGuidOfName("NoSuchInterface"), &answer),
                      E_NOINTERFACE);
            EXPECT_EQ(answer, nullptr);
            answer = &faces;
            EXPECT_EQ(face->QueryInterface("NoSuchInterface", &answer), E_NOINTERFACE);
            EXPECT_EQ(answer, nullptr);
            EXPECT_EQ(face->QueryInterface(IID_VEXBaseUnknown, nullptr), E_POINTER);
            EXPECT_EQ(face->QueryInterface("VEXBaseUnknown", nullptr), E_POINTER);
        }
    });
}

TEST_F(ComponentContract, LateBoundCallsAndStatesAreNotOffered)
{
    ForEach([](const VEXBaseUnknown_var& object, const ComponentType& row) {
        for (const InterfaceEntry& entry : row.interfaces) {
            const VEXBaseUnknown_var face = Ask(object, entry.id);
            unsigned int count = 0;
            void* typeInfo = nullptr;
            long identifier = 0;
            EXPECT_EQ(face->GetTypeInfoCount(&count), E_NOTIMPL);
            EXPECT_EQ(face->GetTypeInfo(0, 0, &typeInfo), E_NOTIMPL);
            EXPECT_EQ(face->GetIDsOfNames(IID{}, nullptr, 0, 0, &identifier), E_NOTIMPL);
            EXPECT_EQ(face->Invoke(0, IID{}, 0, 0, nullptr, nullptr), E_NOTIMPL);
            EXPECT_EQ(face->ChangeComponentState(0, nullptr), E_NOTIMPL);
        }
    });
}

}  // namespace
