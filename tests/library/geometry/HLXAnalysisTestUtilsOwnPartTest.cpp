// SPDX-License-Identifier: Apache-2.0
// Cells of a part that is no feature of the host: several results, a list of cells that holds what
// the host's lists never do.
#include "library/geometry/StaticSupportData.h"
#include "support/StandIns.h"

#include <array>
#include <utility>

namespace hlxtest::statics {
namespace {

/// A feature with interfaces that are objects of their own. Whoever holds one keeps the feature.
class OwnFeature : public FeatureStandIn
{
public:
    using FeatureStandIn::FeatureStandIn;

    template <class Interface>
    void Give(Interface* face)
    {
        _faces.emplace_back(VEXInterfaceTraits<Interface>::Id, face);
    }

    HRESULT QueryInterface(const IID& iid, void** object) const override
    {
        *object = nullptr;
        for (const auto& [id, face] : _faces) {
            if (id == iid) {
                face->AddRef();
                *object = face;
                return S_OK;
            }
        }
        return E_NOINTERFACE;
    }

private:
    std::vector<std::pair<IID, VEXBaseUnknown*>> _faces;
};

/// An interface of an OwnFeature, which it leads back to.
template <class Interface>
class Face : public Interface
{
public:
    explicit Face(OwnFeature& owner) : _owner(owner) { owner.Give<Interface>(this); }
    HRESULT QueryInterface(const IID& iid, void** object) const override
    {
        return _owner.QueryInterface(iid, object);
    }

private:
    OwnFeature& _owner;
};

/// Its objects are counted but live as long as the test.
class OwnBody : public VEXBody
{
public:
    HRESULT GetAllCells(VEXListPtrVEXCell& list, short dimension) const override
    {
        list.Append(cells.at(static_cast<std::size_t>(dimension)));
        return S_OK;
    }
    VEXDomain* GetDomain(int, int) const override { return nullptr; }

    std::array<VEXListPtrVEXCell, 4> cells;
};

class Element : public Face<VEXIGeometricalElement>
{
public:
    Element(OwnFeature& owner, OwnBody& body) : Face(owner), _body(body) {}
    VEXBody_var GetBody() const override { return VEXShare<VEXBody>(&_body); }

private:
    OwnBody& _body;
};

class Request : public Face<VEXIBodyRequest>
{
public:
    using Face::Face;
    HRESULT GetResults(const VEXUnicodeString&, VEXListValVEXBaseUnknown_var& list) const override
    {
        list.Append(results);
        return S_OK;
    }

    VEXListValVEXBaseUnknown_var results;
};

class Tool : public Face<VEXIMechanicalTool>
{
public:
    using Face::Face;
    VEXISpecObject_var GetLastShapedObject() const override { return {}; }
};

class Part : public Face<VEXIPartRequest>
{
public:
    Part(OwnFeature& owner, OwnFeature& mainBody) : Face(owner), _mainBody(mainBody) {}
    HRESULT GetMainBody(const VEXUnicodeString&, VEXISpecObject_var& mainBody) const override
    {
        mainBody = VEXShare<VEXISpecObject>(&_mainBody);
        return S_OK;
    }

private:
    OwnFeature& _mainBody;
};

class StaticOwnPartTest : public StaticSupportDataTest
{
protected:
    StaticOwnPartTest()
    {
        Take("box");
        boxBody = PlatformBody();
        part = VEXShare<VEXISpecObject>(&_part);
        request.results.Append(VEXShare<VEXBaseUnknown>(&_shape));
        for (short dimension = 0; dimension <= 2; ++dimension) {
            Give(dimension, Box(dimension, 1));
        }
    }

    ~StaticOwnPartTest() override
    {
        part.Reset();
        body.Reset();
    }

    /// A cell of the box.
    VEXCell* Box(short dimension, int index)
    {
        VEXListPtrVEXCell cells;
        EXPECT_EQ(boxBody->GetAllCells(cells, dimension), S_OK);
        return cells[index];
    }

    void Give(short dimension, VEXCell* cell)
    {
        ownBody.cells.at(static_cast<std::size_t>(dimension)).Append(cell);
    }

    VEXBody_var boxBody;
    OwnBody ownBody;

private:
    Deaths _deaths;
    OwnFeature _part{_deaths};
    OwnFeature _mainBody{_deaths};
    OwnFeature _shape{_deaths};
    Part _partRequest{_part, _mainBody};
    Tool _tool{_mainBody};
    Element _element{_shape, ownBody};

protected:
    Request request{_mainBody};
};

TEST_F(StaticOwnPartTest, ItsCellsAreListed)
{
    EXPECT_EQ(List(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Counts(), (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(body.Get(), &ownBody);
    EXPECT_EQ(faces[1]->IsEqual(Box(2, 1)), 1);
    EXPECT_EQ(edges[1]->IsEqual(Box(1, 1)), 1);
    EXPECT_EQ(vertices[1]->IsEqual(Box(0, 1)), 1);
}

TEST_F(StaticOwnPartTest, TheFirstResultIsTaken)
{
    OwnBody other;
    Deaths deaths;
    OwnFeature otherShape(deaths);
    const Element otherElement(otherShape, other);
    request.results.Append(VEXShare<VEXBaseUnknown>(&otherShape));
    EXPECT_EQ(List(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(body.Get(), &ownBody);
    body.Reset();
    request.results.RemoveAll();
    request.results.Append(VEXShare<VEXBaseUnknown>(&otherShape));
    EXPECT_EQ(List(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(body.Get(), &other);
    EXPECT_EQ(Counts(), (std::vector<int>{1, 1, 1}));
    request.results.RemoveAll();
    body.Reset();
}

struct StrangeCell
{
    const char* name;
    short list;       ///< dimension of the list that it stands in
    short dimension;  ///< its own; -1: it is none
    const char* out;
    std::vector<int> counts;

    friend void PrintTo(const StrangeCell& cell, std::ostream* stream) { *stream << cell.name; }
};

class StaticStrangeCellTest : public StaticOwnPartTest,
                              public testing::WithParamInterface<StrangeCell>
{};

TEST_P(StaticStrangeCellTest, EndsTheList)
{
    const StrangeCell& cell = GetParam();
    Give(cell.list, cell.dimension < 0 ? nullptr : Box(cell.dimension, 2));
    Give(cell.list, Box(cell.list, 3));
    EXPECT_EQ(List(), (Outcome{E_FAIL, cell.out, ""}));
    EXPECT_EQ(Counts(), cell.counts);
    EXPECT_EQ(body.Get(), &ownBody);
}

INSTANTIATE_TEST_SUITE_P(
    Of, StaticStrangeCellTest,
    testing::Values(StrangeCell{"NoneAmongFaces", 2, -1, "Cannot get a VEXFace!\n", {1, 0, 0}},
                    StrangeCell{"EdgeAmongFaces", 2, 1, "Cannot get a VEXFace!\n", {1, 0, 0}},
                    StrangeCell{"NoneAmongEdges", 1, -1, "Cannot get a VEXEdge!\n", {1, 1, 0}},
                    StrangeCell{"FaceAmongEdges", 1, 2, "Cannot get a VEXEdge!\n", {1, 1, 0}},
                    StrangeCell{"NoneAmongVertices", 0, -1, "Cannot get a VEXVertex!\n", {1, 1, 1}},
                    StrangeCell{"EdgeAmongVertices", 0, 1, "Cannot get a VEXVertex!\n", {1, 1, 1}}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace hlxtest::statics
