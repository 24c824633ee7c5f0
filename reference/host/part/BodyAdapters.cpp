// SPDX-License-Identifier: Apache-2.0
// Bodies, domains and cells through their interfaces. Those of a body that is gone answer failure
// or nothing.
#include "host/part/BodyAdapters.h"

#include "host/part/Body.h"
#include "host/part/BoundedCells.h"
#include "host/product/ProductAdapters.h"
#include "host/system/Probe.h"

#include <cmath>

namespace vex {

namespace {

/// VEXCell, and the interfaces that say of which dimension a cell is.
template <class Interface>
class CellAdapter final : public Adapter<Interface, Cell>
{
public:
    using Adapter<Interface, Cell>::Adapter;

    int GetDimension() const override
    {
        return Probe<"VEXCell::GetDimension">([&] { return IsGone() ? -1 : Own().Dimension(); });
    }

    VEXBoundedCellsIterator* CreateBoundedCellsIterator() const override
    {
        return Probe<"VEXCell::CreateBoundedCellsIterator">([&]() -> VEXBoundedCellsIterator* {
            return IsGone() ? nullptr : new BoundedCells(Own());
        });
    }

    VEXUnicodeString GetKind() const override
    {
        return Probe<"VEXCell::GetKind">([&] {
            return IsGone() ? VEXUnicodeString()
                            : VEXUnicodeString(Shape().CellKind(Own().Dimension(), Own().Index()));
        });
    }

    HRESULT GetMeasure(double& measure) const override
    {
        return Probe<"VEXCell::GetMeasure">(
            [&]() -> HRESULT {
                measure = 0;
                const auto found =
                    IsGone() ? std::nullopt : Shape().CellMeasure(Own().Dimension(), Own().Index());
                if (!found || !std::isfinite(*found)) {
                    return E_FAIL;
                }
                measure = *found;
                return S_OK;
            },
            Out(measure));
    }

private:
    const Cell& Own() const { return this->Self(); }
    bool IsGone() const { return Own().OwnBody().IsGone(); }
    const ShapeModel& Shape() const { return Own().OwnBody().Shape(); }
};

class DomainAdapter final : public Adapter<VEXDomain, Domain>
{
public:
    using Adapter::Adapter;

    VEXCell* GetCell(int index, int codimension) const override
    {
        return Probe<"VEXDomain::GetCell">(
            [&]() -> VEXCell* {
                const Cell* const cell =
                    index < 1 || Self().OwnBody().IsGone()
                        ? nullptr
                        : Self().CellAt(static_cast<std::size_t>(index), codimension);
                return cell == nullptr ? nullptr : cell->Face<VEXCell>();
            },
            In(index), In(codimension));
    }
};

class BodyAdapter final : public Adapter<VEXBody, Body>
{
public:
    using Adapter::Adapter;

    HRESULT GetAllCells(VEXListPtrVEXCell& cells, short dimension) const override
    {
        return Probe<"VEXBody::GetAllCells">(
            [&]() -> HRESULT {
                if (Self().IsGone()) {
                    return E_FAIL;
                }
                if (dimension < 0 || dimension > 3) {
                    return E_INVALIDARG;
                }
                const std::size_t count = Self().Shape().CellCount(dimension);
                for (std::size_t index = 1; index <= count; ++index) {
                    cells.Append(Self().CellAt(dimension, index)->Face<VEXCell>());
                }
                return S_OK;
            },
            Out(cells), In(dimension));
    }

    VEXDomain* GetDomain(int index, int codimension) const override
    {
        return Probe<"VEXBody::GetDomain">(
            [&]() -> VEXDomain* {
                const Domain* const domain =
                    index < 1 || Self().IsGone()
                        ? nullptr
                        : Self().DomainAt(codimension, static_cast<std::size_t>(index));
                return domain == nullptr ? nullptr : domain->Face<VEXDomain>();
            },
            In(index), In(codimension));
    }
};

using AnyCell = CellAdapter<VEXCell>;

constexpr VEXInterfaceRow bodyRows[] = {InterfaceRow<BodyAdapter>()};
constexpr VEXInterfaceRow domainRows[] = {InterfaceRow<DomainAdapter>()};
constexpr VEXInterfaceRow volumeCellRows[] = {InterfaceRow<AnyCell>()};
constexpr VEXInterfaceRow faceCellRows[] = {InterfaceRow<AnyCell>(),
                                            InterfaceRow<CellAdapter<VEXFace>>(),
                                            InterfaceRow<LinkableAdapter<Cell>>()};
constexpr VEXInterfaceRow edgeCellRows[] = {InterfaceRow<AnyCell>(),
                                            InterfaceRow<CellAdapter<VEXEdge>>(),
                                            InterfaceRow<LinkableAdapter<Cell>>()};
constexpr VEXInterfaceRow vertexCellRows[] = {InterfaceRow<AnyCell>(),
                                              InterfaceRow<CellAdapter<VEXVertex>>(),
                                              InterfaceRow<LinkableAdapter<Cell>>()};

}  // namespace

constinit const std::span<const VEXInterfaceRow> bodyInterfaces = bodyRows;
constinit const std::span<const VEXInterfaceRow> domainInterfaces = domainRows;
constinit const std::span<const VEXInterfaceRow> volumeCellInterfaces = volumeCellRows;
constinit const std::span<const VEXInterfaceRow> faceCellInterfaces = faceCellRows;
constinit const std::span<const VEXInterfaceRow> edgeCellInterfaces = edgeCellRows;
constinit const std::span<const VEXInterfaceRow> vertexCellInterfaces = vertexCellRows;

}  // namespace vex
