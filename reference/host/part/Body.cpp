// SPDX-License-Identifier: Apache-2.0
// Bodies: the living ones by document, and what belongs to them.
#include "host/part/Body.h"

#include "host/part/BRepAccesses.h"

#include <map>
#include <utility>

namespace vex {

namespace {

/// The body that a document's geometry has at present; a body takes itself out when it dies.
std::map<const Document*, Body*>& LivingBodies()
{
    static auto& bodies = *new std::map<const Document*, Body*>;
    return bodies;
}

/// One of `members`, made when it is not there yet; null beyond `count`.
template <class Member>
Member* MemberAt(std::vector<std::unique_ptr<Member>>& members, std::size_t count, Body& body,
                 int kind, std::size_t index)
{
    if (index < 1 || index > count) {
        return nullptr;
    }
    members.resize(count);
    std::unique_ptr<Member>& member = members[index - 1];
    if (member == nullptr) {
        member = std::make_unique<Member>(body, kind, index);
    }
    return member.get();
}

}  // namespace

void ReleaseBody::operator()(const Body* body) const
{
    body->Release();
}

BodyHolder Body::Of(Document& part, std::string& error)
{
    Body*& living = LivingBodies()[&part];
    if (living != nullptr && !living->IsGone()) {
        living->AddRef();
        return BodyHolder(living);
    }
    PartGeometry geometry(part);
    const ShapeModel* const shape = geometry.Shape(error);
    if (shape == nullptr) {
        if (living == nullptr) {
            LivingBodies().erase(&part);
        }
        return {};
    }
    if (living != nullptr) {
        living->_replaced = true;
    }
    living = new Body(part, std::move(geometry), *shape);
    return BodyHolder(living);
}

Body::Body(Document& part, PartGeometry geometry, const ShapeModel& shape)
    : Component(ComponentTypes::Instance().Require("VEXBody")),
      _part(&part),
      _geometry(std::move(geometry)),
      _shape(&shape),
      _number(GeometryNumber(part))
{}

Body::~Body()
{
    if (!_replaced) {
        LivingBodies().erase(_part);
    }
}

bool Body::IsGone() const
{
    return _replaced || !_part->IsOpen() || GeometryNumber(*_part) != _number;
}

const std::string& Body::ShapeDigest()
{
    std::string error;
    if (_digest.empty()) {
        const std::string* const digest =
            _part->Blobs().Digest(static_cast<std::uint64_t>(_number), error);
        _digest = digest == nullptr ? std::string() : *digest;
    }
    return _digest;
}

BRepAccesses& Body::Accesses()
{
    if (_accesses == nullptr) {
        _accesses = std::make_unique<BRepAccesses>(*this);
    }
    return *_accesses;
}

Cell* Body::CellAt(int dimension, std::size_t index)
{
    return dimension < 0 || dimension > 3
               ? nullptr
               : MemberAt(_cells[static_cast<std::size_t>(dimension)], _shape->CellCount(dimension),
                          *this, dimension, index);
}

Domain* Body::DomainAt(int codimension, std::size_t index)
{
    return codimension < 0 || codimension > 3
               ? nullptr
               : MemberAt(_domains[static_cast<std::size_t>(codimension)],
                          _shape->DomainCount(codimension), *this, codimension, index);
}

}  // namespace vex
