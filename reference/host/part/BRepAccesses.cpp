// SPDX-License-Identifier: Apache-2.0
// Makes accesses and finds their cells again. What a stored access holds may be anything.
#include "host/part/BRepAccesses.h"

#include "host/product/ProductStructure.h"
#include "host/system/MessageTexts.h"

#include <utility>

namespace vex {

namespace {

bool IsOfShape(const Feature& access, Body& body)
{
    const Feature* const part = PartOf(body.Part());
    return part != nullptr && access.Target("Part") == part && !body.ShapeDigest().empty() &&
           access.GetAs<std::string>("Shape") == body.ShapeDigest();
}

/// The dimension and index, of a cell that an access can have; null when there is none.
Cell* NamedCell(const Feature& access, Body& body)
{
    const std::int64_t dimension = access.GetAs<std::int64_t>("Dimension");
    const std::int64_t index = access.GetAs<std::int64_t>("Index");
    return dimension < 0 || dimension > 2 || index < 1
               ? nullptr
               : body.CellAt(static_cast<int>(dimension), static_cast<std::size_t>(index));
}

bool IsAccessTo(const Feature* access, const Cell& cell, Body& body)
{
    return access != nullptr && access->Kind().IsKindOf(brepAccessType) &&
           access->Parent() == body.Part().BRepContainer() && IsOfShape(*access, body) &&
           NamedCell(*access, body) == &cell;
}

}  // namespace

bool FindAccessedCell(const Feature& access, BodyHolder& body, Cell*& cell, std::string& error)
{
    Document& document = access.Tree()->Owner();
    const std::string place =
        system::Quoted(document.Path()) + ": B-rep access " + std::to_string(access.Id()) + ": ";
    const Feature* const part = PartOf(document);
    if (part == nullptr || access.Target("Part") != part) {
        error = place +
                "the document no longer has the part that it was taken from. Select the "
                "cell again in a part.";
        return false;
    }
    BodyHolder found = Body::Of(document, error);
    if (found == nullptr) {
        return false;
    }
    if (!IsOfShape(access, *found)) {
        error = place +
                "it was taken from another shape than the part has now. Select the cell "
                "again in the present shape.";
        return false;
    }
    cell = NamedCell(access, *found);
    if (cell == nullptr) {
        error = place + "its shape has no cell " +
                std::to_string(access.GetAs<std::int64_t>("Index")) + " of dimension " +
                std::to_string(access.GetAs<std::int64_t>("Dimension")) +
                " that an access could have. Select the cell again.";
        return false;
    }
    body = std::move(found);
    return true;
}

void BRepAccesses::ReadAll(const Feature& container)
{
    if (std::exchange(_areRead, true)) {
        return;
    }
    for (const Feature* const child : container.Children()) {
        if (!child->Kind().IsKindOf(brepAccessType) || !IsOfShape(*child, *_body)) {
            continue;
        }
        if (const Cell* const cell = NamedCell(*child, *_body)) {
            _accesses[static_cast<std::size_t>(cell->Dimension())].try_emplace(cell->Index(),
                                                                               child->Id());
        }
    }
}

Feature* BRepAccesses::FindOrMake(const Cell& cell)
{
    FeatureTree& tree = _body->Part().Tree();
    Feature* const container = _body->Part().BRepContainer();
    const Feature* const part = PartOf(_body->Part());
    if (cell.Dimension() > 2 || container == nullptr || part == nullptr) {
        return nullptr;
    }
    ReadAll(*container);
    FeatureId& known = _accesses[static_cast<std::size_t>(cell.Dimension())][cell.Index()];
    Feature* access = tree.Find(known);
    if (!IsAccessTo(access, cell, *_body)) {
        access = &AddFeature(*container, brepAccessType);
        access->Set("Part", Reference{part->Id()});
        access->Set("Dimension", std::int64_t{cell.Dimension()});
        access->Set("Index", static_cast<std::int64_t>(cell.Index()));
        access->Set("Shape", Boxed<std::string>(_body->ShapeDigest()));
        known = access->Id();
    }
    return access;
}

}  // namespace vex
