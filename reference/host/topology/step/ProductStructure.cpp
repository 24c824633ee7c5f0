// SPDX-License-Identifier: Apache-2.0
// From the kernel's document of labels to products, instances and parts.
#include "host/topology/step/ProductStructure.h"

#include "host/topology/BRepShapeModel.h"
#include "host/topology/ShapeBytes.h"
#include "host/topology/step/Utf8Text.h"

#include <TCollection_AsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDF_Tool.hxx>
#include <TDataStd_Name.hxx>
#include <TopLoc_Location.hxx>
#include <gp_Trsf.hxx>

#include <map>
#include <stdexcept>

namespace vex::topology {
namespace {

std::string NameOf(const TDF_Label& label)
{
    Handle(TDataStd_Name) name;
    if (!label.FindAttribute(TDataStd_Name::GetID(), name)) return {};
    return Utf8Text(name->Get());
}

Placement PlacementOf(const TopLoc_Location& location)
{
    const gp_Trsf transformation = location.Transformation();
    Placement placement{};
    auto value = placement.begin();
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 4; ++column) {
            *value++ = transformation.Value(row, column);
        }
    }
    return placement;
}

// Numbers products as they are first met, and takes them one after the other: no recursion, however
// deep the structure.
class Collector
{
public:
    explicit Collector(const Handle(XCAFDoc_ShapeTool) & shapes) : shapes_(shapes) {}

    ImportedAssembly Collect(const std::string& rootName)
    {
        TDF_LabelSequence roots;
        shapes_->GetFreeShapes(roots);
        if (roots.Length() == 1) {
            IndexOf(roots.First());
        } else if (roots.Length() > 1) {
            labels_.emplace_back();
            assembly_.products.push_back({rootName, {}, {}});
            for (const TDF_Label& root : roots) {
                const std::size_t product = IndexOf(root);
                assembly_.products[0].children.push_back({NameOf(root), product});
            }
        }
        for (std::size_t index = 0; index < labels_.size(); ++index) {
            if (!labels_[index].IsNull()) Fill(index);
        }
        if (assembly_.parts.empty()) {
            throw std::runtime_error(
                "its data section holds no shape: export it again with solids or surfaces");
        }
        return std::move(assembly_);
    }

private:
    std::size_t IndexOf(const TDF_Label& label)
    {
        TCollection_AsciiString entry;
        TDF_Tool::Entry(label, entry);
        const auto [known, isNew] = indices_.emplace(entry.ToCString(), labels_.size());
        if (isNew) {
            labels_.push_back(label);
            assembly_.products.push_back({NameOf(label), {}, {}});
        }
        return known->second;
    }

    void Fill(std::size_t index)
    {
        const TDF_Label label = labels_[index];
        if (!XCAFDoc_ShapeTool::IsAssembly(label)) {
            AddPart(index, label);
            return;
        }
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        for (const TDF_Label& component : components) {
            TDF_Label referred;
            if (!XCAFDoc_ShapeTool::GetReferredShape(component, referred)) continue;
            const std::size_t product = IndexOf(referred);
            assembly_.products[index].children.push_back(
                {NameOf(component), product,
                 PlacementOf(XCAFDoc_ShapeTool::GetLocation(component))});
        }
    }

    void AddPart(std::size_t index, const TDF_Label& label)
    {
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(label);
        if (shape.IsNull()) return;  // a product without geometry stays in the structure
        ImportedPart part{NameOf(label), WriteShape(shape)};
        ProveReadable(part);
        assembly_.products[index].partIndex = assembly_.parts.size();
        assembly_.parts.push_back(std::move(part));
    }

    // What the kernel cannot take back, or breaks down on when asked, must come out now and here,
    // where that harms nothing.
    static void ProveReadable(const ImportedPart& part)
    {
        BRepShapeModel(ReadShape(part.shape)).AskEverything();
    }

    Handle(XCAFDoc_ShapeTool) shapes_;
    std::map<std::string, std::size_t> indices_;  // by the label's entry
    std::vector<TDF_Label> labels_;               // by product; null for a root made here
    ImportedAssembly assembly_;
};

// Takes away products without open parents until none is left; those of a cycle stay.
bool HasCycle(const ImportedAssembly& assembly)
{
    std::vector<std::size_t> parents(assembly.products.size(), 0);
    for (const ImportedProduct& product : assembly.products) {
        for (const ImportedInstance& child : product.children)
            ++parents[child.product];
    }
    std::vector<std::size_t> open;
    for (std::size_t index = 0; index < parents.size(); ++index) {
        if (parents[index] == 0) open.push_back(index);
    }
    std::size_t taken = 0;
    while (!open.empty()) {
        const ImportedProduct& product = assembly.products[open.back()];
        open.pop_back();
        ++taken;
        for (const ImportedInstance& child : product.children) {
            if (--parents[child.product] == 0) open.push_back(child.product);
        }
    }
    return taken != assembly.products.size();
}

}  // namespace

ImportedAssembly CollectProducts(const Handle(XCAFDoc_ShapeTool) & shapes,
                                 const std::string& rootName)
{
    ImportedAssembly assembly = Collector(shapes).Collect(rootName);
    if (HasCycle(assembly)) {
        throw std::runtime_error(
            "its product structure has a product inside itself: export it again");
    }
    return assembly;
}

}  // namespace vex::topology
